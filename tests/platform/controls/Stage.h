#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <functional>
#include <memory>

namespace kovamo {

/// A window that shows a piece of QML, to be played on with real events.
class Stage {
  public:
    /// Shows `body`, the members of an item as large as the window, at 390 by 844.
    explicit Stage(const char* body, bool reducedMotion = true);
    ~Stage();
    Q_DISABLE_COPY_MOVE(Stage)

    [[nodiscard]] QQuickWindow* window() { return &m_window; }
    /// The item with an `objectName`, in the window or in its sheets; the root for none.
    [[nodiscard]] QQuickItem* item(const char* name = "") const;
    /// A property of an item, the root's for no name.
    [[nodiscard]] QVariant get(const char* property, const char* name = "") const;
    void set(const char* property, const QVariant& value, const char* name = "");
    /// The names of the emphasised moments that the QML noted by `log += "…"`.
    [[nodiscard]] std::string log() const { return get("log").toString().toStdString(); }

    /// The visible item that shows `text`.
    [[nodiscard]] QQuickItem* showing(const QString& text) const;
    /// The middle of an item in the window.
    [[nodiscard]] static QPoint middle(const QQuickItem* item);
    void click(const QQuickItem* item) { click(middle(item)); }
    void click(QPoint point, Qt::MouseButton button = Qt::LeftButton);
    /// Presses at `from`, moves by `by` in small steps and in some time, and lets go.
    void drag(QPoint from, QPoint by, int milliseconds = 4000);
    void press(Qt::Key key) { QTest::keyClick(&m_window, key); }
    void type(const QString& text);
    /// Whether `condition` comes true while the window lives on.
    [[nodiscard]] static bool soon(const std::function<bool()>& condition) {
        return QTest::qWaitFor(condition, 5000);
    }

  private:
    QQmlEngine m_engine;
    QQuickWindow m_window;
    std::unique_ptr<QObject> m_root;
};

} // namespace kovamo
