#pragma once

#include "model/PersistenceController.h"

class QQmlApplicationEngine;

namespace kovamo {

class ContentView;

/// The app: the store, taken at its creation, and one window.
struct KovamoApp {
    PersistenceController persistenceController = PersistenceController::shared();

    /// Loads the window's QML into `engine` with `content` as its main screen; the process cannot
    /// go on without it, so a window that does not load is a fatal error.
    static void showWindow(QQmlApplicationEngine& engine, ContentView& content);
};

} // namespace kovamo
