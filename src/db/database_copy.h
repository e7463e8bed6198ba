#pragma once

#include <QString>

/// Copies a database file byte by byte to `target`, in place of a file of this name, and flushes the copy to the disk.
/// Other programs' writes to it wait meanwhile. False when that cannot be done, also when both are one file; what
/// `target` named before is still there then.
bool CopyDatabase(const QString& database, const QString& target);
