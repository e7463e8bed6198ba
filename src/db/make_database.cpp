#include "db/make_database.h"

#include "db/engine_errors.h"
#include "sql/schema.h"

#include <QFile>
#include <QTemporaryFile>

#include <sqlite3.h>

namespace {

/// What the program expects to find: the one-row tables, and the rows with id 1 that new records point at.
QStringList SeedStatements()
{
    return {
        QStringLiteral("INSERT INTO settings (SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage, "
                       "webbookingproviderindex) VALUES (0, '2nd Sales Tax', 10, 0)"),
        QStringLiteral("INSERT INTO nextinvoiceno (invoiceno) VALUES (1)"),
        QStringLiteral("INSERT INTO nextitemno (itemnumber) VALUES (1)"),
        QStringLiteral("INSERT INTO warehouse (id, name) VALUES (1, 'Default Warehouse')"),
        QStringLiteral("INSERT INTO PriceList (id, name) VALUES (1, 'Sale Price')"),
        QStringLiteral("INSERT INTO taxrate (id, name, percentage) VALUES (1, 'None', 0)"),
        QStringLiteral("INSERT INTO vendor (id, BusinessName) VALUES (1, 'None')"),
        QStringLiteral("INSERT INTO location (id, name, WarehouseID) VALUES (1, 'None', 1)"),
        QStringLiteral("INSERT INTO category (id, name) VALUES (1, 'None')"),
        QStringLiteral("INSERT INTO subcategory (id, name, CategoryID) VALUES (1, 'None', 1)"),
    };
}

struct PlainDatabase {
    explicit PlainDatabase(const QString& path)
    {
        const int code =
            sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
        if (code == SQLITE_OK)
            return;
        const RuntimeError error = EngineError(handle);
        sqlite3_close(handle);
        throw error;
    }
    ~PlainDatabase() { sqlite3_close(handle); }
    PlainDatabase(const PlainDatabase&) = delete;
    PlainDatabase& operator=(const PlainDatabase&) = delete;

    void Run(const QString& sql) const
    {
        if (sqlite3_exec(handle, sql.toUtf8().constData(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw EngineError(handle);
    }

    sqlite3* handle = nullptr;
};

void FillDatabase(const QString& path)
{
    const PlainDatabase database(path);
    database.Run(QStringLiteral("BEGIN"));
    for (const QString& statement : SchemaStatements() + SeedStatements())
        database.Run(statement);
    database.Run(QStringLiteral("COMMIT"));
}

} // namespace

void MakeDatabase(const QString& path)
{
    if (QFile::exists(path))
        throw RuntimeError(GeneralFailure, QStringLiteral("Database '%1' already exists.").arg(path));
    // Made under another name in the same folder and renamed when it is whole; the temporary file removes itself
    // otherwise.
    QTemporaryFile file(path + QStringLiteral(".XXXXXX"));
    if (!file.open())
        throw RuntimeError(GeneralFailure, QStringLiteral("Cannot write '%1': %2").arg(path, file.errorString()));
    file.close();
    FillDatabase(file.fileName());
    // A temporary file is private to its owner; the delivered one has the rights of any other file.
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    if (!file.rename(path))
        throw RuntimeError(GeneralFailure, QStringLiteral("Cannot write '%1': %2").arg(path, file.errorString()));
    file.setAutoRemove(false);
}
