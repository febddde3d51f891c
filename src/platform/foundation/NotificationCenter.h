#pragma once

#include <QObject>
#include <QString>
#include <QVariant>

namespace kovamo {

/// Carries named notifications from whoever posts them to whoever listens, on the poster's
/// thread: post() returns after every observer has run, in the order in which they connected.
class NotificationCenter : public QObject {
    Q_OBJECT

  public:
    /// The process's default centre.
    static NotificationCenter& defaultCenter();

    /// Delivers the notification `name` with its `object` to all observers.
    void post(const QString& name, const QVariant& object = {}) { Q_EMIT posted(name, object); }

    /// Runs `handler(object)` at each notification `name` for as long as `context` lives.
    template<typename Handler>
    void addObserver(const QString& name, const QObject* context, Handler handler) {
        connect(this, &NotificationCenter::posted, context,
                [name, handler](const QString& posted, const QVariant& object) {
                    if (posted == name)
                        handler(object);
                });
    }

  Q_SIGNALS:
    void posted(const QString& name, const QVariant& object);
};

} // namespace kovamo
