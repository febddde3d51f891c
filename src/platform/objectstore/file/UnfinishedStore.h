#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace kovamo {

/// A store's file in the making, readable and writable by its owner only. It is deleted with the
/// value, unless finish() has renamed it. All failures are thrown as SQLite::Exception.
class UnfinishedStore {
  public:
    /// Makes the empty file. Requires that there is none.
    explicit UnfinishedStore(QString path);
    ~UnfinishedStore();
    Q_DISABLE_COPY_MOVE(UnfinishedStore)

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Takes write-ahead mode out of the file's header, for no log belongs to it, sets its mark if
    /// one is given, brings it to the disk and renames it to `path`, in place of a file that is
    /// there. Requires that it is closed and holds pages of a store.
    void finish(const QString& path, std::optional<std::uint32_t> mark = std::nullopt);

    /// The mark of a store's file; nothing where it cannot be read.
    [[nodiscard]] static std::optional<std::uint32_t> markOf(const QString& path);

  private:
    QString m_path;
};

} // namespace kovamo
