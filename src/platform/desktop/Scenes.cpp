#include "Scenes.h"

#include <QGuiApplication>
#include <QWindow>

namespace kovamo {

namespace {

ActivationState activationState(const QWindow& window) {
    if (!window.isExposed())
        return ActivationState::background;
    return window.isActive() ? ActivationState::foregroundActive
                             : ActivationState::foregroundInactive;
}

} // namespace

QList<Scene> connectedScenes() {
    QList<Scene> scenes;
    for (QWindow* window : QGuiApplication::topLevelWindows())
        if (!window->transientParent())
            scenes.append({activationState(*window), window});
    return scenes;
}

} // namespace kovamo
