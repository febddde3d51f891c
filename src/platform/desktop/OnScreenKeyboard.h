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

    /// In Phosh, keeps Qt from calling up the keyboard, unless the environment names an input
    /// method: Qt 6.8 tells it of text wherever the focus is, and the keyboard comes with each tap.
    /// Requires: the QGuiApplication is not made yet.
    static void takeFromQt();

    /// Whether the keyboard is for the app to call: on Wayland, where it was taken from Qt, or Qt
    /// is older than the protocol by which compositors learn of text fields.
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
