#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace kovamo {

/// Carries named notifications from whoever posts them to the NotificationPublishers of that name,
/// on the poster's thread: post() returns after each has delivered it, in the order in which they
/// were made.
class NotificationCenter : public QObject {
    Q_OBJECT

  public:
    /// The process's default centre.
    static NotificationCenter& defaultCenter();

    /// Delivers the notification `name` with its `object` to all of its publishers.
    void post(const QString& name, const QVariant& object = {}) { Q_EMIT posted(name, object); }

  Q_SIGNALS:
    void posted(const QString& name, const QVariant& object);
};

/// Delivers the notifications of one name for as long as it lives.
class NotificationPublisher : public QObject {
    Q_OBJECT

  public:
    explicit NotificationPublisher(
        const QString& name, NotificationCenter& center = NotificationCenter::defaultCenter());

  Q_SIGNALS:
    /// The notification came, with its object.
    void received(const QVariant& object);
};

} // namespace kovamo
