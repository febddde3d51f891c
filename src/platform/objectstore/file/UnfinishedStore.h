#pragma once

#include <QString>
#include <cstdint>
#include <optional>

namespace kovamo {

/// A store's file in the making, readable and writable by its owner only. It goes with the value,
/// unless it has got another name by then. All failures are thrown as SQLite::Exception.
class UnfinishedStore {
  public:
    /// Makes the empty file. Requires that there is none.
    explicit UnfinishedStore(QString path);
    ~UnfinishedStore();
    Q_DISABLE_COPY_MOVE(UnfinishedStore)

    [[nodiscard]] const QString& path() const { return m_path; }

    /// Lets the file say that no log belongs to it, as one does to the store's, and bear a mark if
    /// there is one, makes all of it last and gives it the name `path`, which another file may have
    /// until then. Requires that it is closed and holds pages of a store.
    void finish(const QString& path, std::optional<std::uint32_t> mark = std::nullopt);

    /// The mark of a store's file; nothing where it cannot be read.
    [[nodiscard]] static std::optional<std::uint32_t> markOf(const QString& path);

  private:
    QString m_path;
};

} // namespace kovamo
