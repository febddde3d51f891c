#pragma once

#include "Ledger.h"
#include "app/RootView.h"
#include "model/PersistenceController.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTemporaryDir>
#include <memory>

namespace kovamo {

/// A folder for data and preferences with a store in it; the preferences say that the user knows
/// the app. From then on the process uses it.
void makeStore(const QTemporaryDir& folder, const Ledger& ledger);

/// The app in its window, on the store that was made last.
class RunningApp {
  public:
    RunningApp();

    [[nodiscard]] ContentView& content() { return *m_root->content(); }
    [[nodiscard]] ManagedObjectContext& context() { return m_container->viewContext(); }
    [[nodiscard]] PlainLoop& plain() { return *m_plain; }
    [[nodiscard]] QQuickWindow& window() { return *m_window; }

    /// The list in the foreground: that of all transactions while its sheet is shown, else that of
    /// the time frame.
    [[nodiscard]] QQuickItem& list();

    /// Does what the event loop's next turn does: lays the main screen out, its list included.
    void layOut();

    /// Runs the event loop until the window has shown another frame.
    void showFrame();

    /// Runs the event loop until what moves has come to rest and what has gone is gone.
    void settle();

  private:
    std::unique_ptr<PersistentContainer> m_container;
    std::unique_ptr<PlainLoop> m_plain;
    std::unique_ptr<RootView> m_root;
    std::unique_ptr<QQmlEngine> m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace kovamo
