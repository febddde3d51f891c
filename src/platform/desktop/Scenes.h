#pragma once

#include <QList>

class QWindow;

namespace kovamo {

/// How far a scene is from its user.
enum class ActivationState { foregroundActive, foregroundInactive, background };

/// One of the app's user interfaces.
struct Scene {
    ActivationState activationState = ActivationState::background;
    /// The window that shows it; null for a scene that is no window scene.
    QWindow* window = nullptr;
};

/// The app's connected scenes: its top-level windows, those of other windows' dialogs left out.
[[nodiscard]] QList<Scene> connectedScenes();

} // namespace kovamo
