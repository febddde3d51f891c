#pragma once

#include <QString>

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

    /// Lets the file say that no log belongs to it, as one does to the store's, makes all of it
    /// last and gives it the name `path`, which another file may have until then. Requires that it
    /// is closed and holds pages of a store.
    void finish(const QString& path);

  private:
    QString m_path;
};

} // namespace kovamo
