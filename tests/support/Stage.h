#pragma once

#include "Hand.h"

#include <QTest>
#include <functional>
#include <memory>

namespace kovamo {

/// A window that shows a piece of QML, to be played on with real events.
class Stage {
  public:
    /// Shows `body`, the members of an item as large as the window, at 390 by 844. It may use a
    /// further QML `module` and an object by the name of `subject`.
    explicit Stage(const char* body, bool reducedMotion = true,
                   const char* module = "Kovamo.Desktop", QObject* subject = nullptr);
    Q_DISABLE_COPY_MOVE(Stage)

    [[nodiscard]] QQuickWindow* window() { return &m_window; }
    /// The item with an `objectName`, in the window or in its sheets; the root for none.
    [[nodiscard]] QQuickItem* item(const char* name = "") const;
    /// A property of an item, the root's for no name.
    [[nodiscard]] QVariant get(const char* property, const char* name = "") const;
    void set(const char* property, const QVariant& value, const char* name = "");
    /// What the QML appended to `log` by `log += "…"`.
    [[nodiscard]] std::string log() const { return get("log").toString().toStdString(); }

    [[nodiscard]] QQuickItem* showing(const QString& text) { return shown(m_window, text); }
    void click(const QQuickItem* item) { click(middle(item)); }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton) {
        kovamo::click(m_window, point, button);
    }
    void drag(QPoint from, QPoint by, int milliseconds = 4000) {
        kovamo::drag(m_window, from, by, milliseconds);
    }
    void press(Qt::Key key) { QTest::keyClick(&m_window, key); }
    /// Whether `condition` comes true while the window lives on.
    [[nodiscard]] static bool soon(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, 30000);
    }

  private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QObject> m_root;
};

} // namespace kovamo
