#include "SoleInstance.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QThread>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace kovamo {

namespace {

/// Longer than a start takes on a slow and busy device: two windows are worse than a late one.
constexpr int patience = 10000;
constexpr int pause = 20;
/// The system's longest path, each of its bytes written as three, and as much again.
constexpr int longestLine = 6 * 4096;
constexpr const char* tokenVariable = "XDG_ACTIVATION_TOKEN";

/// Where the processes for a data folder and a display meet.
QString meetingPlace(const QString& folder) {
    const QByteArray place =
        folder.toUtf8() + '\n' + qgetenv("WAYLAND_DISPLAY") + '\n' + qgetenv("DISPLAY");
    const QByteArray name = QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex();
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation) + u"/kovamo-" +
           QString::fromLatin1(name.first(16));
}

} // namespace

SoleInstance::SoleInstance(const QString& folder, const Start& start)
    : m_path(meetingPlace(folder)) {
    // The other process may be starting or ending: try both, to take its place and to ask it.
    for (const QDeadlineTimer deadline(patience); !deadline.hasExpired(); QThread::msleep(pause)) {
        if (lock()) {
            // The socket file of a process that was killed.
            QLocalServer::removeServer(m_path);
            connect(&m_server, &QLocalServer::newConnection, this, &SoleInstance::answer);
            m_server.setSocketOptions(QLocalServer::UserAccessOption);
            m_server.listen(m_path);
            return;
        }
        // If the folder cannot hold a lock file, go on without looking for other processes.
        const bool isTaken = errno == EWOULDBLOCK;
        m_handedOver = isTaken && ask(start);
        if (m_handedOver || !isTaken)
            return;
    }
}

SoleInstance::~SoleInstance() {
    m_server.close();
    ::close(m_lockFile);
}

bool SoleInstance::lock() {
    if (m_lockFile < 0)
        m_lockFile = ::open(QFile::encodeName(m_path + u".lock").constData(),
                            O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    return ::flock(m_lockFile, LOCK_EX | LOCK_NB) == 0;
}

bool SoleInstance::ask(const Start& start) const {
    QLocalSocket socket;
    socket.connectToServer(m_path);
    if (!socket.waitForConnected(patience))
        return false;
    socket.write(qgetenv(tokenVariable) + ' ' + lineOf(start) + '\n');
    return socket.waitForBytesWritten(patience) && socket.waitForReadyRead(patience);
}

void SoleInstance::answer() {
    QLocalSocket* socket = m_server.nextPendingConnection();
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
        if (!socket->canReadLine())
            return;
        // The token, which may be empty, and the start.
        const QByteArray line = socket->readLine(longestLine);
        const qsizetype end = line.lastIndexOf(' ');
        const QByteArray token = line.first(std::max<qsizetype>(end, 0));
        if (!token.isEmpty())
            qputenv(tokenVariable, token);
        Q_EMIT activationRequested(startOf(line.sliced(end + 1).trimmed()));
        socket->write("shown\n");
        socket->disconnectFromServer();
    });
}

} // namespace kovamo
