#include "Fuzz.h"

#include "platform/foundation/FatalError.h"
#include "platform/foundation/MainQueue.h"

#include <QFile>
#include <QTemporaryDir>
#include <cstdio>

namespace kovamo {

// Takes the place of the product's, which a linker fetches from its library only where it is
// needed.
void fatalError(const QString&) {
    throw Stopped();
}

void check(bool holds, const char* what) {
    if (holds)
        return;
    std::fprintf(stderr, "Does not hold: %s\n", what);
    std::abort();
}

QString scratchPath(const QString& name) {
    static const QTemporaryDir folder;
    return folder.filePath(name);
}

void writeFile(const QString& path, std::span<const std::uint8_t> bytes) {
    QFile file(path);
    check(file.open(QFile::WriteOnly), "the scratch folder can be written to");
    file.write(reinterpret_cast<const char*>(bytes.data()), static_cast<qint64>(bytes.size()));
}

QByteArray readFile(const QString& path) {
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace kovamo

// For targets without one of their own.
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int*, char***) {
    // There is no event loop that would run what is put off.
    kovamo::MainQueue::setScheduler([](auto, const auto&) {});
    return 0;
}
