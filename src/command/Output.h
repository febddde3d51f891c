#pragma once

#include <QFile>
#include <QSaveFile>
#include <memory>

namespace kovamo {

/// Writes text to standard output. What cannot be written throws CommandFailure, without a word
/// where whoever read it has gone.
void print(const QString& text);

/// Writes what is still buffered; throws as print() does.
void finishOutput();

/// What a user names by a file, or by "-" or nothing for standard output.
class OutputFile {
  public:
    /// Throws CommandFailure where it cannot be written to.
    explicit OutputFile(const QString& path);

    [[nodiscard]] QIODevice& device() { return *m_device; }

    /// Makes all that was written stand in the file, which had its former content until then.
    /// Throws as print() does.
    void commit();

    /// Throws what is to be said of a device that could not be written to.
    [[noreturn]] void fail() const;

  private:
    QString m_name;
    std::unique_ptr<QFileDevice> m_device;
    QSaveFile* m_whole = nullptr;
};

/// A user's text as a part of a line: line breaks and other control characters become blanks.
[[nodiscard]] QString inOneLine(QString text);

} // namespace kovamo
