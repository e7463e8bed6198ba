#include "data_file.h"

#include <sqlite3.h>

#include <stdexcept>

namespace {

void Check(sqlite3* handle, int result)
{
    if (result != SQLITE_OK && result != SQLITE_ROW && result != SQLITE_DONE)
        throw std::runtime_error(sqlite3_errmsg(handle));
}

} // namespace

DataFile::DataFile(const QString& path)
{
    Check(m_handle, sqlite3_open_v2(path.toUtf8().constData(), &m_handle, SQLITE_OPEN_READWRITE, nullptr));
    Run("PRAGMA journal_mode = OFF");
    Run("PRAGMA cache_size = -100000");
    Run("BEGIN");
}

DataFile::~DataFile()
{
    sqlite3_close(m_handle);
}

void DataFile::Finish()
{
    Run("COMMIT");
}

void DataFile::Run(const char* statement)
{
    Check(m_handle, sqlite3_exec(m_handle, statement, nullptr, nullptr, nullptr));
}

qint64 DataFile::Number(const char* query)
{
    sqlite3_stmt* statement = nullptr;
    Check(m_handle, sqlite3_prepare_v2(m_handle, query, -1, &statement, nullptr));
    sqlite3_step(statement);
    const qint64 number = sqlite3_column_int64(statement, 0);
    Check(m_handle, sqlite3_finalize(statement));
    return number;
}

Statement::Statement(DataFile& file, const char* text)
    : m_handle(file.Handle())
{
    Check(m_handle, sqlite3_prepare_v2(m_handle, text, -1, &m_statement, nullptr));
}

Statement::~Statement()
{
    sqlite3_finalize(m_statement);
}

void Statement::Bind(int place, std::nullptr_t)
{
    Check(m_handle, sqlite3_bind_null(m_statement, place));
}

void Statement::Bind(int place, qint64 value)
{
    Check(m_handle, sqlite3_bind_int64(m_statement, place, value));
}

void Statement::Bind(int place, bool value)
{
    Bind(place, qint64(value));
}

void Statement::Bind(int place, double value)
{
    Check(m_handle, sqlite3_bind_double(m_statement, place, value));
}

void Statement::Bind(int place, Currency value)
{
    Bind(place, value.ToDouble());
}

void Statement::Bind(int place, const QDate& date)
{
    if (date.isValid())
        Bind(place, date.toString(QStringLiteral("yyyy-MM-dd 00:00:00")));
    else
        Bind(place, nullptr);
}

void Statement::Bind(int place, const QString& text)
{
    const QByteArray utf8 = text.toUtf8();
    Check(m_handle, sqlite3_bind_text(m_statement, place, utf8.constData(), int(utf8.size()), SQLITE_TRANSIENT));
}

void Statement::Bind(int place, const char* utf8)
{
    Check(m_handle, sqlite3_bind_text(m_statement, place, utf8, -1, SQLITE_TRANSIENT));
}

qint64 Statement::Step()
{
    Check(m_handle, sqlite3_step(m_statement));
    Check(m_handle, sqlite3_reset(m_statement));
    return sqlite3_last_insert_rowid(m_handle);
}
