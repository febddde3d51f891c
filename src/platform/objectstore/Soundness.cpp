#include "Soundness.h"

#include <QFileInfo>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kovamo {

namespace {

constexpr qsizetype chunk = 1 << 18;

QString sealPath(const QString& path) {
    return path + u"-seal";
}

/// A digest of a file's content in hexadecimal; empty when it cannot be read. Each step is a
/// bijection of the digest so far and of the word that it takes in, so that no change of a single
/// word goes unnoticed; four lanes keep the processor's multipliers busy.
QByteArray digest(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return {};
    constexpr std::uint64_t factor = 0x9e3779b97f4a7c15; // 2^64 divided by the golden ratio
    const auto taken = [](std::uint64_t digest, std::uint64_t word) {
        return std::rotl((digest ^ word) * factor, 29);
    };
    std::array<std::uint64_t, 4> lanes{1, 2, 3, 4};
    std::array<std::uint64_t, 4> words{};
    std::vector<char> bytes(chunk);
    for (qint64 size = 0; (size = file.read(bytes.data(), chunk)) > 0;) {
        std::memset(bytes.data() + size, 0, static_cast<std::size_t>(chunk - size));
        for (qsizetype at = 0; at < size; at += sizeof words) {
            std::memcpy(words.data(), bytes.data() + at, sizeof words);
            for (std::size_t lane = 0; lane < lanes.size(); ++lane)
                lanes[lane] = taken(lanes[lane], words[lane]);
        }
    }
    std::uint64_t all = static_cast<std::uint64_t>(file.size());
    for (const std::uint64_t lane : lanes)
        all = taken(all, lane);
    return QByteArray::number(static_cast<qulonglong>(all), 16);
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
