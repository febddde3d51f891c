#include "DesktopSettings.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <algorithm>

namespace kovamo {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colorScheme = QStringLiteral("color-scheme");
const QString desktop = QStringLiteral("org.gnome.desktop.interface");
const QString animations = QStringLiteral("enable-animations");
const QString textScaling = QStringLiteral("text-scaling-factor");

/// The portal's value of `color-scheme` for an appearance that prefers dark.
constexpr uint preferDark = 1;

/// The range that the screens are made for.
constexpr double smallestText = 0.5, largestText = 3;

/// The portal's older reading call wraps its value twice.
QVariant unwrapped(QVariant value) {
    while (value.canConvert<QDBusVariant>())
        value = value.value<QDBusVariant>().variant();
    return value;
}

} // namespace

DesktopSettings::DesktopSettings(bool followsAppearance) : m_followsAppearance(followsAppearance) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(take(QString, QString, QDBusVariant)));
    ask(appearance, colorScheme);
    ask(desktop, animations);
    ask(desktop, textScaling);
}

void DesktopSettings::ask(const QString& group, const QString& key) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto* watcher =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            take(group, key, reply.value());
        watcher->deleteLater();
    });
}

void DesktopSettings::take(const QString& group, const QString& key, const QDBusVariant& value) {
    const QVariant setting = unwrapped(QVariant::fromValue(value));
    if (group == appearance && key == colorScheme && m_followsAppearance)
        SystemColors::shared().setColorScheme(setting.toUInt() == preferDark ? ColorScheme::dark
                                                                             : ColorScheme::light);
    if (group == desktop && key == animations && m_reducedMotion == setting.toBool()) {
        m_reducedMotion = !setting.toBool();
        Q_EMIT reducedMotionChanged();
    }
    if (group == desktop && key == textScaling) {
        m_textScale = std::clamp(setting.toDouble(), smallestText, largestText);
        Q_EMIT textScaleChanged();
    }
}

} // namespace kovamo
