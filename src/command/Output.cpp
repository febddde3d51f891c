#include "Output.h"

#include "CommandFailure.h"

#include <QFileInfo>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace kovamo {

namespace {

const QString standardOutput = QStringLiteral("Standard output");

[[noreturn]] void failToWrite(const QString& name, const QString& why) {
    // The reader has closed the pipe, as `head` does: no error.
    if (why == qt_error_string(EPIPE))
        throw CommandFailure{};
    throw CommandFailure{name + u" cannot be written: " + why};
}

} // namespace

void print(const QString& text) {
    const QByteArray bytes = text.toUtf8();
    const auto length = static_cast<std::size_t>(bytes.size());
    if (std::fwrite(bytes.constData(), 1, length, stdout) != length)
        failToWrite(standardOutput, qt_error_string(errno));
}

void finishOutput() {
    if (std::fflush(stdout) != 0)
        failToWrite(standardOutput, qt_error_string(errno));
}

OutputFile::OutputFile(const QString& path) : m_name(path) {
    if (path.isEmpty() || path == u"-") {
        m_name = standardOutput;
        auto file = std::make_unique<QFile>();
        static_cast<void>(file->open(STDOUT_FILENO, QIODevice::WriteOnly));
        m_device = std::move(file);
        return;
    }
    // A pipe or a device has no former content to keep, and must not be replaced.
    if (const QFileInfo file(path); file.exists() && !file.isFile() && !file.isDir()) {
        m_device = std::make_unique<QFile>(path);
    } else {
        auto whole = std::make_unique<QSaveFile>(path);
        m_whole = whole.get();
        m_device = std::move(whole);
    }
    if (!m_device->open(QIODevice::WriteOnly))
        fail();
}

void OutputFile::commit() {
    if (m_whole ? !m_whole->commit() : !m_device->flush())
        fail();
}

void OutputFile::fail() const {
    const int code = errno;
    // QSaveFile's own error text does not tell why a write failed.
    const bool saysNothing = m_whole && m_device->error() == QFileDevice::WriteError;
    failToWrite(m_name, saysNothing ? qt_error_string(code) : m_device->errorString());
}

QString inOneLine(QString text) {
    for (QChar& character : text)
        if (character.category() == QChar::Other_Control || character == QChar::LineSeparator ||
            character == QChar::ParagraphSeparator)
            character = u' ';
    return text;
}

} // namespace kovamo
