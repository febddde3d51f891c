#pragma once

#include <QString>
#include <vector>

namespace kovamo {

/// A file beside a store that holds what the store held once.
struct KeptCopy {
    /// What tells it from the others: the day that it is of, or "set-aside-" and the day on which
    /// the store was set aside for a copy.
    QString name;
    QString path;
};

/// What is kept of the store at `storePath`: the days' copies, then what was set aside, each the
/// newest first.
[[nodiscard]] std::vector<KeptCopy> keptCopies(const QString& storePath);

/// Puts what the store at `copyPath` holds in the place of the store at `storePath`, in one step:
/// a process that is killed leaves one or the other. The former store is kept beside it, with its
/// log where it is too damaged to take the log in; returns where, or nothing if there was none.
/// Requires that the copy is sound. Throws StoreError, and then the store is as it was.
QString goBackTo(const QString& copyPath, const QString& storePath);

} // namespace kovamo
