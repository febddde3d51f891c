#pragma once

#include "model/PersistenceController.h"

class QQmlApplicationEngine;
class QQuickWindow;

namespace kovamo {

class RootView;

/// The app: the store, and one window.
struct KovamoApp {
    PersistenceController persistenceController;

    /// Says in the main bundle what the app is called and which build it is. Before anything else.
    static void describe();

    /// Loads the window that shows `root` into `engine`. A window that does not load is a fatal
    /// error.
    static QQuickWindow& showWindow(QQmlApplicationEngine& engine, RootView& root);
};

} // namespace kovamo
