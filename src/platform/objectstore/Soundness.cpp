#include "Soundness.h"

#include <QFileInfo>
#include <memory>
#include <xxhash.h>

namespace kovamo {

namespace {

constexpr qsizetype chunk = 1 << 18;

QString sealPath(const QString& path) {
    return path + u"-seal";
}

/// A digest of a file's content in hexadecimal; empty when it cannot be read.
QByteArray digest(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    const std::unique_ptr<XXH3_state_t, decltype(&XXH3_freeState)> state(XXH3_createState(),
                                                                         &XXH3_freeState);
    XXH3_64bits_reset(state.get());
    QByteArray bytes(chunk, Qt::Uninitialized);
    for (qint64 size = 0; (size = file.read(bytes.data(), chunk)) > 0;)
        XXH3_64bits_update(state.get(), bytes.constData(), static_cast<std::size_t>(size));
    return QByteArray::number(static_cast<qulonglong>(XXH3_64bits_digest(state.get())), 16);
}

} // namespace

QString faultOf(SQLite::Database& database) {
    const std::string verdict = database.execAndGet("PRAGMA integrity_check(1)").getString();
    return verdict == "ok" ? QString() : QString::fromStdString(verdict).replace(u'\n', u' ');
}

bool isSealed(const QString& path) {
    QFile file(sealPath(path));
    return file.open(QIODevice::ReadOnly) && file.size() > 0 && file.readAll() == digest(path);
}

bool isEmptied(const QString& path) {
    const QFileInfo file(path);
    if (!file.exists())
        QFile::remove(sealPath(path));
    return file.isFile() && file.size() == 0 && QFile::exists(sealPath(path));
}

void seal(const QString& path) {
    QFile file(sealPath(path));
    if (QFileInfo(path + u"-wal").size() > 0 || !file.open(QIODevice::WriteOnly))
        return;
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    file.write(digest(path));
}

} // namespace kovamo
