#pragma once

#include "model/PersistenceController.h"

#include <memory>

class QQmlEngine;
class QQuickWindow;

namespace kovamo {

class RootView;

/// The app: the store, and one window.
struct KovamoApp {
    PersistenceController persistenceController;

    /// Says in the main bundle what the app is called and which build it is. Before anything else.
    static void describe();

    /// Loads the window that shows `root` by `engine`. Both outlive it. A window that does not load
    /// is a fatal error.
    [[nodiscard]] static std::unique_ptr<QQuickWindow> showWindow(QQmlEngine& engine,
                                                                  RootView& root);
};

} // namespace kovamo
