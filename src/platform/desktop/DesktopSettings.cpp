#include "DesktopSettings.h"

#include <QDBusError>
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

DesktopSettings::DesktopSettings(bool followsAppearance, const QDBusConnection& bus)
    : m_bus(bus), m_followsAppearance(followsAppearance) {
    if (!m_bus.isConnected())
        return;
    if (!m_bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                       SLOT(hear(QDBusMessage))))
        qWarning("The desktop's settings are not followed: %s",
                 qPrintable(m_bus.lastError().message()));
    ask(appearance, colorScheme);
    ask(desktop, animations);
    ask(desktop, textScaling);
}

void DesktopSettings::ask(const QString& group, const QString& key) {
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("Read"));
    call << group << key;
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, group, key, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            take(group, key, QVariant::fromValue(reply.value()));
        watcher->deleteLater();
    });
}

void DesktopSettings::hear(const QDBusMessage& change) {
    const QVariantList values = change.arguments();
    if (change.signature() == u"ssv")
        take(values[0].toString(), values[1].toString(), values[2]);
}

void DesktopSettings::take(const QString& group, const QString& key, const QVariant& value) {
    const QVariant setting = unwrapped(value);
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
