#include "FileChooser.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QGuiApplication>
#include <QUuid>
#include <QWindow>

namespace kovamo {

namespace {

const QString& portal() {
    static const auto name = QStringLiteral("org.freedesktop.portal.Desktop");
    return name;
}

const QString& request() {
    static const auto name = QStringLiteral("org.freedesktop.portal.Request");
    return name;
}

const QString& response() {
    static const auto name = QStringLiteral("Response");
    return name;
}

/// The window that the dialog belongs to, as the portal names it. Qt has no name for one on
/// Wayland.
QString parentWindow() {
    const QWindow* const window = QGuiApplication::focusWindow();
    const bool isX = QGuiApplication::platformName() == QLatin1String("xcb");
    return window && isX ? u"x11:" + QString::number(window->winId(), 16) : QString();
}

} // namespace

FileChooser::~FileChooser() {
    takeBack();
}

void FileChooser::open(const QString& title) {
    ask(false, title, {});
}

void FileChooser::save(const QString& title, const QString& name) {
    ask(true, title, name);
}

QDBusConnection FileChooser::bus() const {
    return m_ownBus ? *m_ownBus : QDBusConnection::sessionBus();
}

void FileChooser::ask(bool saves, const QString& title, const QString& name) {
    QDBusConnection bus = this->bus();
    if (!bus.isConnected()) {
        Q_EMIT unavailable(saves, title, name);
        return;
    }
    takeBack();
    m_saves = saves;
    // The answer may come before the call returns: its path is known from the token.
    const QString token = u"kovamo" + QUuid::createUuid().toString(QUuid::Id128);
    const QString sender = bus.baseService().mid(1).replace(u'.', u'_');
    m_request = u"/org/freedesktop/portal/desktop/request/" + sender + u'/' + token;
    bus.connect(portal(), m_request, request(), response(), this, SLOT(answer(QDBusMessage)));
    auto call = QDBusMessage::createMethodCall(
        portal(), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.FileChooser"),
        saves ? QStringLiteral("SaveFile") : QStringLiteral("OpenFile"));
    QVariantMap options{{QStringLiteral("handle_token"), token}, {QStringLiteral("modal"), true}};
    if (saves)
        options.insert(QStringLiteral("current_name"), name);
    call.setArguments({parentWindow(), title, options});
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [=, this] {
        watcher->deleteLater();
        if (watcher->isError())
            Q_EMIT unavailable(saves, title, name);
    });
}

void FileChooser::takeBack() {
    if (m_request.isEmpty())
        return;
    QDBusConnection bus = this->bus();
    bus.disconnect(portal(), m_request, request(), response(), this, SLOT(answer(QDBusMessage)));
    // Otherwise its dialog stays open, and nobody hears what is chosen there.
    bus.send(
        QDBusMessage::createMethodCall(portal(), m_request, request(), QStringLiteral("Close")));
    m_request.clear();
}

void FileChooser::answer(const QDBusMessage& message) {
    takeBack();
    constexpr uint chosen = 0;
    const QVariantList arguments = message.arguments();
    if (arguments.size() != 2 || arguments[0].toUInt() != chosen)
        return;
    const auto results = qdbus_cast<QVariantMap>(arguments[1]);
    const QStringList files = results.value(QStringLiteral("uris")).toStringList();
    if (files.isEmpty())
        return;
    choose(QUrl(files.first()), m_saves, true);
}

void FileChooser::choose(const QUrl& url, bool saves, bool mayReplace) {
    if (saves)
        Q_EMIT saved(url.toLocalFile(), mayReplace);
    else
        Q_EMIT opened(url.toLocalFile());
}

} // namespace kovamo
