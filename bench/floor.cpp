#include "floor.h"

#include "sql/dialect.h"
#include "sql/function_names.h"

#include <QRegularExpression>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace {

void Check(sqlite3* handle, int result)
{
    if (result == SQLITE_OK || result == SQLITE_ROW || result == SQLITE_DONE)
        return;
    std::fprintf(stderr, "bench: %s\n", sqlite3_errmsg(handle));
    std::exit(1);
}

} // namespace

std::string InByteOrder(const char* statement)
{
    StatementShape shape;
    ReadStatement(QString::fromUtf8(statement), shape);
    const QRegularExpression key(QLatin1String(SortKeyFunction) + QStringLiteral("\\(([^()]*)\\)"));
    return QString::fromStdString(Translate(shape).sql)
        .replace(key, QStringLiteral("\\1 COLLATE BINARY"))
        .toStdString();
}

FloorStatement::FloorStatement(sqlite3* handle, const char* statement)
    : FloorStatement(handle, QString::fromUtf8(statement))
{
}

FloorStatement::FloorStatement(sqlite3* handle, const QString& statement)
    : m_handle(handle)
{
    StatementShape shape;
    ReadStatement(statement, shape);
    Prepare(Translate(shape).sql.c_str());
    for (size_t i = 0; i < shape.literals.size(); ++i) {
        if (const auto* number = std::get_if<qint64>(&shape.literals[i]))
            Bind(int(i) + 1, *number);
        else if (const auto* text = std::get_if<std::string>(&shape.literals[i]))
            Bind(int(i) + 1, *text);
    }
}

FloorStatement::FloorStatement(sqlite3* handle, EngineSql statement)
    : m_handle(handle)
{
    Prepare(statement.text);
}

void FloorStatement::Prepare(const char* sql)
{
    Check(m_handle, sqlite3_prepare_v3(m_handle, sql, -1, SQLITE_PREPARE_PERSISTENT, &m_statement, nullptr));
}

FloorStatement::~FloorStatement()
{
    sqlite3_finalize(m_statement);
}

void FloorStatement::Bind(int place, qint64 value)
{
    Check(m_handle, sqlite3_bind_int64(m_statement, place, value));
}

void FloorStatement::Bind(int place, double value)
{
    Check(m_handle, sqlite3_bind_double(m_statement, place, value));
}

void FloorStatement::Bind(int place, const std::string& text)
{
    Check(m_handle, sqlite3_bind_text(m_statement, place, text.data(), int(text.size()), SQLITE_TRANSIENT));
}

int FloorStatement::Step()
{
    m_texts.clear();
    const int columns = sqlite3_column_count(m_statement);
    int rows = 0;
    int result = 0;
    while ((result = sqlite3_step(m_statement)) == SQLITE_ROW) {
        ++rows;
        m_number = columns ? sqlite3_column_int64(m_statement, 0) : 0;
        for (int column = 0; column < columns; ++column) {
            const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
            m_texts.append(text ? text : "", size_t(sqlite3_column_bytes(m_statement, column)));
        }
    }
    Check(m_handle, result);
    Check(m_handle, sqlite3_reset(m_statement));
    return rows;
}
