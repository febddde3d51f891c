#pragma once

#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// An item that the Tab key reaches and that knows whether the user is to see its focus: while the
/// keyboard is used, and not the pointer. One that is hidden hands the focus on to the next. The
/// Qt's own controls know most of it too, but fix their accessible role.
class Focusable : public QQuickItem {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool visualFocus READ hasVisualFocus NOTIFY visualFocusChanged)

  public:
    explicit Focusable(QQuickItem* parent = nullptr);

    /// Whether the item has the focus and the user is to see it.
    [[nodiscard]] bool hasVisualFocus() const { return m_visualFocus; }

    void setVisualFocus(bool visualFocus);

  Q_SIGNALS:
    void visualFocusChanged();
    /// The user pressed Enter, Return or Space on it. A key that is held down is pressed once.
    void activated();

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

  private:
    void handOnLater();

    bool m_visualFocus = false;
};

} // namespace kovamo
