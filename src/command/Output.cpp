#include "Output.h"

#include "CommandFailure.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace kovamo {

namespace {

[[noreturn]] void failToWrite() {
    if (errno == EPIPE)
        throw CommandFailure{};
    throw CommandFailure{u"Standard output cannot be written: " +
                         QString::fromLocal8Bit(std::strerror(errno))};
}

} // namespace

void print(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    const auto length = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, length, stdout) != length)
        failToWrite();
}

QString inOneLine(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    return text;
}

void finishOutput() {
    if (std::fflush(stdout) != 0)
        failToWrite();
}

} // namespace kovamo
