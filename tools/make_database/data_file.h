#pragma once

#include "base/currency.h"

#include <QDate>
#include <QString>

struct sqlite3;
struct sqlite3_stmt;

/// A data file that is being filled: everything lands in one transaction, and without a journal, since a file that was
/// not finished is thrown away. Throws std::runtime_error with the engine's message.
class DataFile {
public:
    explicit DataFile(const QString& path);
    ~DataFile();
    DataFile(const DataFile&) = delete;
    DataFile& operator=(const DataFile&) = delete;

    /// Brings all rows to the disk. A file that is let go before is of no use.
    void Finish();

    void Run(const char* statement);
    /// The first column of the first row.
    qint64 Number(const char* query);
    sqlite3* Handle() const { return m_handle; }

private:
    sqlite3* m_handle = nullptr;
};

/// A prepared statement over a DataFile, run once for each row.
class Statement {
public:
    Statement(DataFile& file, const char* text);
    ~Statement();
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;

    /// Binds the values in order and runs. Returns the id of the row, when it added one.
    template <typename... Values>
    qint64 Run(const Values&... values)
    {
        int place = 0;
        (Bind(++place, values), ...);
        return Step();
    }

private:
    void Bind(int place, std::nullptr_t);
    void Bind(int place, qint64 value);
    void Bind(int place, int value) { Bind(place, qint64(value)); }
    void Bind(int place, bool value);
    void Bind(int place, double value);
    void Bind(int place, Currency value);
    void Bind(int place, const QDate& date); ///< Null for an invalid date
    void Bind(int place, const QString& text);
    void Bind(int place, const char* utf8);
    qint64 Step();

    sqlite3* m_handle;
    sqlite3_stmt* m_statement = nullptr;
};
