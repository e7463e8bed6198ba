#pragma once

#include <QString>

/// How often this process has waited for the disk.
qint64 DiskSyncs();

/// How many commits the file counts in its head.
qint64 CommitsOf(const QString& path);
