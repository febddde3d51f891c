#include "SyncFolder.h"

#include <QFile>
#include <fcntl.h>
#include <unistd.h>

namespace kovamo {

void syncFolder(const QString& folder) {
    const int file =
        ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    ::fsync(file);
    ::close(file);
}

} // namespace kovamo
