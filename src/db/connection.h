#pragma once

#include "db/recordset.h"
#include "sql/sql.h"

#include <QString>

#include <memory>

class ConnectionPrivate;

/// An open connection to a database file. It never creates one. Statements are written in the system's own dialect
/// (db/dialect.h) and commit one by one unless a Batch is open.
class Connection {
public:
    Connection();
    ~Connection();
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// Throws RuntimeError with the reason when the file is missing, is a folder, cannot be read and written, or is no
    /// database. Creates nothing.
    void Open(const QString& path);
    /// As Open, for reading only.
    void OpenReadOnly(const QString& path);
    void Close();
    bool IsOpen() const;
    QString Path() const;
    /// "SQLite 3.40.1".
    static QString EngineVersion();

    /// Runs one statement. A SELECT yields a forward-only cursor on its first row; other statements an empty one.
    /// Throws RuntimeError when it fails; a failed statement has changed nothing.
    Recordset Execute(const Sql& sql);
    /// As above for a statement without markers.
    Recordset Execute(const QString& statement);
    Recordset Execute(const char* statement);
    /// Runs an UPDATE unless each row that it would write holds its values already, to the letter: then nothing is
    /// written, and nothing waits for the disk. Throws RuntimeError as Execute does.
    void ExecuteIfItChanges(const Sql& update);

    ConnectionPrivate& Private() { return *d; }

private:
    std::unique_ptr<ConnectionPrivate> d;
};

/// The one connection of the screens. Set by the start of the program; lives until the process ends.
extern Connection* gConnection;
