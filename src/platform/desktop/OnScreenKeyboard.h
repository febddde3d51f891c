#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QPointer>

namespace kovamo {

/// Calls up the phone shell's on-screen keyboard over the session bus while something that takes
/// text has the focus. For where Qt has no input method that would do it.
class OnScreenKeyboard : public QObject {
    Q_OBJECT

  public:
    /// Asks on `bus` without waiting; where nobody offers a keyboard there, nothing happens.
    explicit OnScreenKeyboard(const QDBusConnection& bus = QDBusConnection::sessionBus());
    /// Sends the keyboard away.
    ~OnScreenKeyboard() override;
    Q_DISABLE_COPY_MOVE(OnScreenKeyboard)

    /// Whether the keyboard is for the app to call: on Wayland, with a Qt older than the protocol
    /// by which compositors learn of text fields, and no input method named in the environment.
    [[nodiscard]] static bool isCalledByApp();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watch(QObject* focused);
    void followFocus();
    void setVisible(bool visible);

    QDBusConnection m_bus;
    QPointer<QObject> m_field;
    bool m_visible = false;
};

} // namespace kovamo
