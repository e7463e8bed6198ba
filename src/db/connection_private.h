#pragma once

#include "db/database_file.h"
#include "db/prepared_statement.h"
#include "db/statement_cache.h"

#include <QString>

struct sqlite3;

/// What the files of this folder share of a connection.
class ConnectionPrivate {
public:
    ConnectionPrivate() = default;
    ~ConnectionPrivate();
    ConnectionPrivate(const ConnectionPrivate&) = delete;
    ConnectionPrivate& operator=(const ConnectionPrivate&) = delete;

    /// Throws RuntimeError when the connection is closed or the program has ended.
    void RequireOpen() const;
    /// Runs one of the engine's own statements, which gives no rows. Throws RuntimeError when it fails.
    void RunPlain(const char* sql);
    /// Prepares a statement of the dialect and leaves its literals in `shape`.
    std::shared_ptr<PreparedStatement> Prepare(const QString& statement);
    /// Whether each row that the UPDATE in `shape` would write holds all of its values already.
    bool HoldsAlready(const PreparedStatement& update);
    void Open(const QString& file, FileUse use);
    void Close();

    /// Told of each statement, as the screens wrote it, that the engine could read. Nobody listens in the program; the
    /// tests do, to know which statements they ran.
    static void (*StatementListener)(const QString& statement);

    sqlite3* handle = nullptr;
    QString path;
    LiveStatements live;
    StatementCache cache{live};
    StatementShape shape; ///< kept from statement to statement for its memory
    int openBatches = 0;
    qint64 opening = 0; ///< each Open of any connection has its own
};
