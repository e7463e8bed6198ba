#pragma once

#include <QString>

/// Looks at the journal that a crash left beside a database file. A journal belongs to the file whose change counter
/// its copy of page 1 bears: of another file, say one that a backup has replaced since, it would roll foreign pages
/// into this one. Such a journal is renamed, so that the engine never sees it; returns its new path, "" when nothing
/// was done. Throws RuntimeError when it cannot be renamed.
QString SetAsideForeignJournal(const QString& databasePath);
