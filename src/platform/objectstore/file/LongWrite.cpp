#include "LongWrite.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace kovamo {

namespace {

/// Not the store itself: closing it would drop the locks that SQLite holds on it.
int openFolder(const QString& storePath) {
    return ::open(QFile::encodeName(QFileInfo(storePath).path()).constData(),
                  O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

} // namespace

LongWrite::LongWrite(const QString& storePath) : m_folder(openFolder(storePath)) {
    ::flock(m_folder, LOCK_SH);
}

LongWrite::~LongWrite() {
    ::close(m_folder);
}

bool LongWrite::isUnderWay(const QString& storePath) {
    const int folder = openFolder(storePath);
    const bool isLocked = ::flock(folder, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
    ::close(folder);
    return isLocked;
}

} // namespace kovamo
