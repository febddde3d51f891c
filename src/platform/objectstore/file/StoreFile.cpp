#include "StoreFile.h"

#include "StoreError.h"
#include "platform/foundation/SyncFolder.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kovamo {

namespace {

void makeFolder(const QString& folder, const QString& path) {
    if (QFileInfo::exists(folder))
        return;
    const QString parent = QFileInfo(folder).path();
    makeFolder(parent, path);
    if (::mkdir(QFile::encodeName(folder).constData(), 0700) == 0)
        syncFolder(parent);
    else if (errno != EEXIST)
        fail(QString::fromLocal8Bit(std::strerror(errno)), errno, path);
}

} // namespace

void makeStoreFile(const QString& path) {
    makeFolder(QFileInfo(path).path(), path);
    // Never open an existing file here: closing it would drop the locks that SQLite holds on it.
    const QByteArray name = QFile::encodeName(path);
    const int file = ::open(name.constData(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    int code = file < 0 ? errno : 0;
    if (file >= 0)
        ::close(file);
    if (code == EEXIST)
        code = QFileInfo(path).isDir()                   ? EISDIR
               : ::access(name.constData(), R_OK | W_OK) ? errno
                                                         : 0;
    if (code != 0)
        fail(QString::fromLocal8Bit(std::strerror(code)), code, path);
}

FileIdentity identityOf(const QString& path) {
    struct stat status {};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return {status.st_dev, status.st_ino};
}

} // namespace kovamo
