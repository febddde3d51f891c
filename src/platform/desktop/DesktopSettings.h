#pragma once

#include "SystemColors.h"

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QVariant>

class QDBusMessage;

namespace kovamo {

/// What the user has set for all apps, asked of the desktop's settings portal and followed while
/// the app runs. Without a portal everything keeps its default.
class DesktopSettings : public QObject {
    Q_OBJECT
    /// Whether things are to change at once instead of moving.
    Q_PROPERTY(bool reducedMotion READ reducedMotion NOTIFY reducedMotionChanged)
    /// How much larger than usual text is to be: 2 is twice as large.
    Q_PROPERTY(double textScale READ textScale NOTIFY textScaleChanged)

  public:
    /// Puts the desktop's appearance into the palette, unless `followsAppearance` is false. Asks on
    /// `bus` without waiting: the answers come in the event loop.
    explicit DesktopSettings(bool followsAppearance,
                             const QDBusConnection& bus = QDBusConnection::sessionBus());

    [[nodiscard]] bool reducedMotion() const { return m_reducedMotion; }
    [[nodiscard]] double textScale() const { return m_textScale; }

  Q_SIGNALS:
    void reducedMotionChanged();
    void textScaleChanged();

  private Q_SLOTS:
    void hear(const QDBusMessage& change);

  private:
    void take(const QString& group, const QString& key, const QVariant& value);
    void ask(const QString& group, const QString& key);

    QDBusConnection m_bus;
    bool m_followsAppearance;
    bool m_reducedMotion = false;
    double m_textScale = 1;
};

} // namespace kovamo
