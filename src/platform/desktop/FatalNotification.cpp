#include "FatalNotification.h"

#include "platform/foundation/Bundle.h"
#include "platform/foundation/FatalError.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace kovamo {

namespace {

constexpr int milliseconds = 1500;
constexpr uchar critical = 2;

QString& path() {
    static QString path;
    return path;
}

void notify(const QString& message) {
    const QString name = Bundle::main().text(kCFBundleNameKey);
    const QString identifier = Bundle::main().text(kCFBundleIdentifierKey);
    QString body = message;
    if (!body.contains(path()))
        body += u"\nIts store is " + path();
    const QString service = QStringLiteral("org.freedesktop.Notifications");
    QDBusMessage call =
        QDBusMessage::createMethodCall(service, QStringLiteral("/org/freedesktop/Notifications"),
                                       service, QStringLiteral("Notify"));
    call << name << 0U << identifier << QStringLiteral("%1 had to stop").arg(name)
         << body.toHtmlEscaped() << QStringList()
         << QVariantMap{{QStringLiteral("urgency"), QVariant::fromValue(critical)},
                        {QStringLiteral("desktop-entry"), identifier}}
         << 0;
    // A connection of its own: the error may have come up in the middle of a call on the shared
    // one.
    QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("fatal"))
        .call(call, QDBus::Block, milliseconds);
}

} // namespace

void notifyOfFatalErrors(const QString& storePath) {
    path() = storePath;
    setFatalErrorWitness(notify);
}

} // namespace kovamo
