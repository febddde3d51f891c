#pragma once

#include <QDir>
#include <QProcess>

namespace kovamo {

/// A program that says by its first line what it is reached by, for as long as this lives.
class Server : public QProcess {
  public:
    Server(const QString& program, const QStringList& arguments) {
        start(program, arguments);
        while (!canReadLine())
            if (!waitForReadyRead(30000))
                return;
        address = QString::fromUtf8(readLine().trimmed());
    }
    /// A message bus, beside all that the machine has.
    static QStringList bus() {
        return {QStringLiteral("--session"), QStringLiteral("--print-address"),
                QStringLiteral("--nofork"),
                QStringLiteral("--address=unix:dir=") + QDir::tempPath()};
    }
    // Killed, an X server would leave its lock and its socket.
    ~Server() override {
        terminate();
        waitForFinished();
    }

    /// What it said; empty where it could not be started.
    QString address;
};

} // namespace kovamo
