#pragma once

#include <QString>

namespace kovamo {

/// Makes the folders and the empty file of a store, for its owner alone, where they are not there:
/// SQLite gives its side files the permissions of the main one. Throws StoreError where the file
/// cannot be read and written.
void makeStoreFile(const QString& path);

/// Makes what was done to the names in a folder last.
void syncFolder(const QString& folder);

} // namespace kovamo
