#include "db/recordset.h"

#include "base/numbers.h"
#include "base/runtime_error.h"
#include "db/engine_errors.h"
#include "db/recordset_private.h"
#include "db/stored_value.h"
#include "sql/dialect_tokens.h"

#include <charconv>
#include <cmath>

#include <sqlite3.h>

namespace {

std::string_view ColumnText(sqlite3_stmt* row, int ordinal)
{
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, ordinal));
    return {text, size_t(sqlite3_column_bytes(row, ordinal))};
}

Value TextValue(sqlite3_stmt* row, int ordinal)
{
    const std::string_view text = ColumnText(row, ordinal);
    return Value(QString::fromUtf8(text.data(), qsizetype(text.size())));
}

Value DateValue(sqlite3_stmt* row, int ordinal)
{
    const QDateTime date = ReadStoredDate(ColumnText(row, ordinal));
    return date.isValid() ? Value(date) : TextValue(row, ordinal);
}

Currency MoneyOf(sqlite3_stmt* row, int ordinal)
{
    if (sqlite3_column_type(row, ordinal) == SQLITE_INTEGER)
        return Currency::FromWhole(sqlite3_column_int64(row, ordinal));
    return CCur(sqlite3_column_double(row, ordinal));
}

Value NumberValue(sqlite3_stmt* row, int ordinal, Value::Kind kind)
{
    switch (kind) {
    case Value::Kind::Long:
        return sqlite3_column_type(row, ordinal) == SQLITE_INTEGER ? Value(qint64(sqlite3_column_int64(row, ordinal)))
                                                                   : Value(sqlite3_column_double(row, ordinal));
    case Value::Kind::Money:
        return Value(MoneyOf(row, ordinal));
    case Value::Kind::Boolean:
        return Value(sqlite3_column_double(row, ordinal) != 0);
    case Value::Kind::Text:
        return TextValue(row, ordinal);
    case Value::Kind::Null:
        if (sqlite3_column_type(row, ordinal) == SQLITE_INTEGER)
            return Value(qint64(sqlite3_column_int64(row, ordinal)));
        break;
    default:
        break;
    }
    return Value(sqlite3_column_double(row, ordinal));
}

/// A value whose storage is not what its column's kind lets expect, written by another program, is read as it lies.
Value ReadValue(sqlite3_stmt* row, int ordinal, Value::Kind kind)
{
    switch (sqlite3_column_type(row, ordinal)) {
    case SQLITE_NULL:
        return {};
    case SQLITE_INTEGER:
    case SQLITE_FLOAT:
        return NumberValue(row, ordinal, kind);
    default:
        return kind == Value::Kind::Date ? DateValue(row, ordinal) : TextValue(row, ordinal);
    }
}

bool IsWhole(double number)
{
    return std::abs(number) < 1e15 && number == std::floor(number);
}

std::string_view WholeText(std::string& buffer, qint64 number)
{
    buffer.resize(24);
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number).ptr;
    buffer.resize(size_t(end - buffer.data()));
    return buffer;
}

} // namespace

RecordsetPrivate::RecordsetPrivate(std::shared_ptr<PreparedStatement> statement, std::vector<Literal> literals)
    : m_statement(std::move(statement))
    , m_literals(std::move(literals))
{
    m_statement->Bind(m_literals);
    Advance();
}

RecordsetPrivate::~RecordsetPrivate()
{
    if (!m_eof)
        m_statement->Release();
}

/// At the end the statement is let go at once, so that no reader holds the file.
void RecordsetPrivate::Advance()
{
    m_eof = true;
    m_eof = !m_statement->Step();
    if (m_eof)
        m_statement->Release();
}

void RecordsetPrivate::MoveNext()
{
    RequireOpen();
    if (m_eof)
        throw NoCurrentRecordError();
    Advance();
}

void RecordsetPrivate::RequireOpen() const
{
    if (m_statement->IsClosed())
        throw ObjectClosedError();
}

sqlite3_stmt* RecordsetPrivate::Row(int ordinal) const
{
    RequireOpen();
    if (m_eof)
        throw NoCurrentRecordError();
    if (ordinal < 0 || size_t(ordinal) >= Meaning().columnKinds.size())
        throw UnknownFieldError();
    return m_statement->Handle();
}

std::string& RecordsetPrivate::Buffer(int ordinal)
{
    m_buffers.resize(Meaning().columnKinds.size());
    return m_buffers[size_t(ordinal)];
}

Recordset::Recordset() = default;
Recordset::Recordset(std::unique_ptr<RecordsetPrivate> cursor)
    : d(std::move(cursor))
{
}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;
Recordset::~Recordset() = default;

RecordsetPrivate& Recordset::Open() const
{
    if (d == nullptr)
        throw ObjectClosedError();
    return *d;
}

bool Recordset::Eof() const
{
    Open().RequireOpen();
    return d->Eof();
}

void Recordset::MoveNext()
{
    Open().MoveNext();
}

void Recordset::Close()
{
    d.reset();
}

Value Recordset::operator[](const char* name) const
{
    return (*this)[Field(name)];
}

Value Recordset::operator[](int ordinal) const
{
    sqlite3_stmt* row = Open().Row(ordinal);
    return ReadValue(row, ordinal, d->Meaning().columnKinds[size_t(ordinal)]);
}

int Recordset::FieldCount() const
{
    return int(Open().Meaning().columnNames.size());
}

QString Recordset::FieldName(int ordinal) const
{
    if (ordinal < 0 || ordinal >= FieldCount())
        throw UnknownFieldError();
    return QString::fromStdString(d->Meaning().columnNames[size_t(ordinal)]);
}

int Recordset::Field(const char* name) const
{
    const std::vector<std::string>& names = Open().Meaning().columnNames;
    for (size_t i = 0; i < names.size(); ++i) {
        if (SameWord(names[i], name))
            return int(i);
    }
    throw UnknownFieldError();
}

bool Recordset::IsNull(int ordinal) const
{
    return sqlite3_column_type(Open().Row(ordinal), ordinal) == SQLITE_NULL;
}

qint64 Recordset::Long(int ordinal) const
{
    sqlite3_stmt* row = Open().Row(ordinal);
    if (sqlite3_column_type(row, ordinal) == SQLITE_INTEGER)
        return sqlite3_column_int64(row, ordinal);
    return (*this)[ordinal].ToLong();
}

Currency Recordset::Money(int ordinal) const
{
    sqlite3_stmt* row = Open().Row(ordinal);
    const int type = sqlite3_column_type(row, ordinal);
    if (type == SQLITE_INTEGER || type == SQLITE_FLOAT)
        return MoneyOf(row, ordinal);
    return (*this)[ordinal].ToCurrency();
}

std::string_view Recordset::StoredText(int ordinal) const
{
    return ColumnText(Open().Row(ordinal), ordinal);
}

std::string_view Recordset::Text(int ordinal) const
{
    sqlite3_stmt* row = Open().Row(ordinal);
    const Value::Kind kind = d->Meaning().columnKinds[size_t(ordinal)];
    const int type = sqlite3_column_type(row, ordinal);
    if (type == SQLITE_NULL)
        return "";
    if (kind == Value::Kind::Text || (type == SQLITE_TEXT && kind != Value::Kind::Date))
        return ColumnText(row, ordinal);
    std::string& buffer = d->Buffer(ordinal);
    const double number =
        kind == Value::Kind::Date || kind == Value::Kind::Boolean ? std::nan("") : sqlite3_column_double(row, ordinal);
    if (IsWhole(number))
        return WholeText(buffer, qint64(number));
    if (kind == Value::Kind::Money && type == SQLITE_FLOAT)
        CStrUtf8(MoneyOf(row, ordinal), buffer);
    else
        buffer = ReadValue(row, ordinal, kind).ToText().toStdString();
    return buffer;
}
