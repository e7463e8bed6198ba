#include "db/database_copy.h"

#include "base/files.h"
#include "base/runtime_error.h"
#include "db/database_file.h"

#include <QFile>

#include <memory>

#include <sqlite3.h>

bool CopyDatabase(const QString& database, const QString& target)
{
    if (IsSameFile(database, target))
        return false;
    try {
        // A transaction that has read keeps writers off, so that the copy is of one moment.
        const std::unique_ptr<sqlite3, int (*)(sqlite3*)> reader(
            OpenDatabaseFile(database, FileUse::ReadOnly), sqlite3_close);
        constexpr const char* Hold = "BEGIN; SELECT count(*) FROM sqlite_schema";
        if (sqlite3_exec(reader.get(), Hold, nullptr, nullptr, nullptr) != SQLITE_OK)
            return false;
        QFile source(database);
        return source.open(QFile::ReadOnly) && WriteWholeFile(target, source);
    } catch (const RuntimeError&) {
        return false;
    }
}
