#pragma once

#include "model/PersistenceController.h"

class QQmlApplicationEngine;
class QQuickWindow;

namespace kovamo {

class RootView;

/// The app: the store, and one window.
struct KovamoApp {
    PersistenceController persistenceController;

    /// Loads the window that shows `root` into `engine`. A window that does not load is a fatal
    /// error.
    static QQuickWindow& showWindow(QQmlApplicationEngine& engine, RootView& root);
};

} // namespace kovamo
