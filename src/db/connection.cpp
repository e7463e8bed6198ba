#include "db/connection.h"

#include "base/guard.h"
#include "db/connection_private.h"
#include "db/database_file.h"
#include "db/engine_errors.h"
#include "db/engine_functions.h"
#include "db/recordset_private.h"

#include <sqlite3.h>

Connection* gConnection = nullptr;
void (*ConnectionPrivate::StatementListener)(const QString& statement) = nullptr;

ConnectionPrivate::~ConnectionPrivate()
{
    Close();
}

void ConnectionPrivate::RequireOpen() const
{
    if (handle == nullptr || ProgramHasEnded())
        throw ObjectClosedError();
}

void ConnectionPrivate::RunPlain(const char* sql)
{
    // No statement of the dialect begins with a zero.
    const std::string key = std::string(1, '\0').append(sql);
    PreparedStatement& statement = *cache.Statement(handle, key, Translation{sql, {}, {}, {}});
    statement.Step();
    statement.Release();
}

std::shared_ptr<PreparedStatement> ConnectionPrivate::Prepare(const QString& statement)
{
    RequireOpen();
    ReadStatement(statement, shape);
    return cache.Statement(handle, shape);
}

bool ConnectionPrivate::HoldsAlready(const PreparedStatement& update)
{
    const Translation& meaning = update.Meaning();
    PreparedStatement& ask =
        *cache.Statement(handle, meaning.anyChange, Translation{meaning.anyChange, meaning.coercions, {}, {}});
    ask.Bind(shape.literals);
    const bool changes = ask.Step();
    ask.Release();
    return !changes;
}

void ConnectionPrivate::Open(const QString& file, FileUse use)
{
    static qint64 openings = 0;
    Close();
    handle = OpenDatabaseFile(file, use);
    path = file;
    opening = ++openings;
    RegisterEngineFunctions(handle);
    TellSignsOfLife(handle);
}

void ConnectionPrivate::Close()
{
    cache.Clear();
    // Cursors that are still open lose their statements, so that nothing holds the file afterwards.
    while (!live.empty())
        (*live.begin())->Finalize();
    sqlite3_close(handle);
    handle = nullptr;
    openBatches = 0;
}

Connection::Connection()
    : d(std::make_unique<ConnectionPrivate>())
{
}

Connection::~Connection() = default;

void Connection::Open(const QString& path)
{
    d->Open(path, FileUse::ReadAndWrite);
}

void Connection::OpenReadOnly(const QString& path)
{
    d->Open(path, FileUse::ReadOnly);
}

void Connection::Close()
{
    d->Close();
}

bool Connection::IsOpen() const
{
    return d->handle != nullptr;
}

QString Connection::Path() const
{
    return d->path;
}

QString Connection::EngineVersion()
{
    return QStringLiteral("SQLite ") + QLatin1String(sqlite3_libversion());
}

Recordset Connection::Execute(const Sql& sql)
{
    return Execute(sql.Filled());
}

Recordset Connection::Execute(const char* statement)
{
    return Execute(QString::fromUtf8(statement));
}

Recordset Connection::Execute(const QString& statement)
{
    std::shared_ptr<PreparedStatement> prepared = d->Prepare(statement);
    if (ConnectionPrivate::StatementListener)
        ConnectionPrivate::StatementListener(statement);
    if (!prepared->Meaning().columnNames.empty())
        return Recordset(std::make_unique<RecordsetPrivate>(std::move(prepared), std::move(d->shape.literals)));
    prepared->Bind(d->shape.literals);
    prepared->Step();
    prepared->Release();
    return Recordset();
}

void Connection::ExecuteIfItChanges(const Sql& update)
{
    const QString& statement = update.Filled();
    if (!d->HoldsAlready(*d->Prepare(statement)))
        Execute(statement);
}
