#include "db/index_renewal.h"

#include "base/guard.h"
#include "db/database_file.h"
#include "db/engine_errors.h"
#include "sql/schema.h"

#include <QHash>
#include <QStringList>

#include <memory>

#include <sqlite3.h>

namespace {

using Definitions = QHash<QString, QString>; ///< the DDL of indexes by their names

void Run(sqlite3* handle, const QString& sql)
{
    if (sqlite3_exec(handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw EngineError(handle);
}

int ReadDefinition(void* definitions, int, char** fields, char**)
{
    static_cast<Definitions*>(definitions)->insert(QString::fromUtf8(fields[0]), QString::fromUtf8(fields[1]));
    return 0;
}

/// The statements that are to be run.
QStringList Changes(sqlite3* handle)
{
    Definitions definitions;
    constexpr auto Query = "SELECT lower(name), sql FROM sqlite_schema WHERE type = 'index'";
    if (sqlite3_exec(handle, Query, ReadDefinition, &definitions, nullptr) != SQLITE_OK)
        throw EngineError(handle);
    QStringList changes;
    for (const IndexDefinition& index : SchemaIndexes()) {
        const QString definition = definitions.value(index.name);
        // One that somebody has made unique does more than save time.
        if (definition == index.Statement() || definition.startsWith(QLatin1String("CREATE UNIQUE ")))
            continue;
        if (!definition.isEmpty())
            changes.append(QStringLiteral("DROP INDEX %1").arg(index.name));
        changes.append(index.Statement());
    }
    return changes;
}

} // namespace

void RenewIndexes(const QString& path)
{
    Ignoring([&] {
        const std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle(
            OpenDatabaseFile(path, FileUse::ReadAndWrite), sqlite3_close);
        if (Changes(handle.get()).isEmpty())
            return;
        sqlite3_busy_handler(handle.get(), nullptr, nullptr);
        TellSignsOfLife(handle.get());
        // Until the commit the end of the handle, or of the process, takes everything back.
        Run(handle.get(), QStringLiteral("BEGIN IMMEDIATE"));
        for (const QString& change : Changes(handle.get()))
            Run(handle.get(), change);
        Run(handle.get(), QStringLiteral("COMMIT"));
    });
}
