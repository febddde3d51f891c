#pragma once

#include <QString>
#include <sys/types.h>

namespace kovamo {

/// Makes the folders and the empty file of a store, for its owner alone, where they are not there:
/// SQLite gives its side files the permissions of the main one. Throws StoreError where the file
/// cannot be read and written.
void makeStoreFile(const QString& path);

/// What tells a file from all others as long as somebody has it open, whatever its name is.
struct FileIdentity {
    dev_t device = 0;
    ino_t inode = 0;

    friend bool operator==(const FileIdentity&, const FileIdentity&) = default;
};

/// The identity of the file at `path`; the empty one where there is none.
[[nodiscard]] FileIdentity identityOf(const QString& path);

} // namespace kovamo
