#include "OnScreenKeyboard.h"

#include <QDBusMessage>
#include <QGuiApplication>
#include <QInputMethodQueryEvent>
#include <QLibraryInfo>
#include <QTimer>

namespace kovamo {

namespace {

/// The first Qt that speaks version 3 of Wayland's text-input protocol, the one that phones' shells
/// offer.
const QVersionNumber firstWithTextInput(6, 7);

constexpr const char* inputMethod = "QT_IM_MODULE";
/// Qt's own input method, which speaks to no keyboard.
constexpr const char* ownInputMethod = "compose";

bool takesText(QObject* object) {
    if (!object)
        return false;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QGuiApplication::sendEvent(object, &query);
    return query.value(Qt::ImEnabled).toBool();
}

} // namespace

void OnScreenKeyboard::takeFromQt() {
    const QList<QByteArray> desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    if (desktops.contains("Phosh") && qEnvironmentVariableIsEmpty(inputMethod) &&
        qEnvironmentVariableIsEmpty("QT_IM_MODULES"))
        qputenv(inputMethod, ownInputMethod);
}

bool OnScreenKeyboard::isCalledByApp() {
    const QByteArray method = qgetenv(inputMethod);
    return QGuiApplication::platformName().startsWith(u"wayland") &&
           (method.isEmpty() ? QLibraryInfo::version() < firstWithTextInput
                             : method == ownInputMethod);
}

OnScreenKeyboard::OnScreenKeyboard(const QDBusConnection& bus) : m_bus(bus) {
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &OnScreenKeyboard::watch);
    watch(QGuiApplication::focusObject());
}

OnScreenKeyboard::~OnScreenKeyboard() {
    if (m_visible)
        setVisible(false);
}

void OnScreenKeyboard::watch(QObject* focused) {
    if (m_field)
        m_field->removeEventFilter(this);
    m_field = takesText(focused) ? focused : nullptr;
    if (m_field)
        m_field->installEventFilter(this);
    // From one field to the next the focus is nowhere for a moment.
    QTimer::singleShot(0, this, &OnScreenKeyboard::followFocus);
}

void OnScreenKeyboard::followFocus() {
    if (m_visible != !m_field.isNull())
        setVisible(m_field);
}

void OnScreenKeyboard::setVisible(bool visible) {
    m_visible = visible;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("sm.puri.OSK0"), QStringLiteral("/sm/puri/OSK0"),
        QStringLiteral("sm.puri.OSK0"), QStringLiteral("SetVisible"));
    call.setAutoStartService(false);
    call << visible;
    m_bus.send(call);
}

bool OnScreenKeyboard::eventFilter(QObject*, QEvent* event) {
    // The user may have closed the keyboard; a tap on the field opens it again.
    if (event->type() == QEvent::MouseButtonRelease)
        setVisible(true);
    return false;
}

} // namespace kovamo
