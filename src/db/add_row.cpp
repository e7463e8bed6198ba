#include "db/add_row.h"

#include "db/connection_private.h"
#include "db/engine_errors.h"
#include "db/stored_value.h"
#include "sql/dialect_names.h"
#include "sql/schema.h"

#include <sqlite3.h>

#include <algorithm>

namespace {

const TableDefinition& TableNamed(const char* name)
{
    QString table = QString::fromUtf8(name);
    if (table.startsWith(u'[') && table.endsWith(u']'))
        table = table.mid(1, table.size() - 2);
    if (const TableDefinition* definition = FindTable(table))
        return *definition;
    throw UnknownTableError(table);
}

} // namespace

struct AddRow::State {
    struct Field {
        const ColumnDefinition* column;
        StoredValue value;
    };

    State(Connection& connection, const char* tableName)
        : owner(connection)
        , table(TableNamed(tableName))
    {
    }

    /// Looked up once for all rows.
    const ColumnDefinition* Column(const char* name)
    {
        for (const auto& [known, column] : columns) {
            if (known == name)
                return column;
        }
        const ColumnDefinition* column = FindColumn(table, QLatin1String(name));
        if (column == nullptr)
            throw UnknownFieldError();
        columns.emplace_back(name, column);
        return column;
    }

    void Set(const char* name, const Value& value)
    {
        const ColumnDefinition* column = Column(name);
        StoredValue stored;
        try {
            stored = ToStored(value, KindOf(column->kind));
        } catch (const RuntimeError&) {
            throw FieldMismatchError();
        }
        for (Field& field : fields) {
            if (field.column == column) {
                field.value = std::move(stored);
                return;
            }
        }
        fields.push_back({column, std::move(stored)});
    }

    std::string InsertStatement() const
    {
        std::string sql = "INSERT INTO [";
        sql.append(table.name.toStdString()).append("] ");
        if (fields.empty())
            return sql.append("DEFAULT VALUES");
        const char* parting = "([";
        for (const Field& field : fields) {
            sql.append(parting).append(field.column->name.toStdString());
            parting = "], [";
        }
        sql.append("]) VALUES (?");
        for (size_t i = 1; i < fields.size(); ++i)
            sql.append(", ?");
        return sql.append(")");
    }

    /// Rows mostly set the same fields as the row before, and then go through the same statement.
    PreparedStatement& Statement(ConnectionPrivate& connection)
    {
        const bool isSame = statement && !statement->IsClosed()
            && std::equal(fields.begin(), fields.end(), statementColumns.begin(), statementColumns.end(),
                [](const Field& field, const ColumnDefinition* column) { return field.column == column; });
        if (!isSame) {
            const std::string sql = InsertStatement();
            statement = connection.cache.Statement(connection.handle, sql, Translation{sql, {}, {}, {}});
            statementColumns.clear();
            for (const Field& field : fields)
                statementColumns.push_back(field.column);
        }
        return *statement;
    }

    void Update()
    {
        ConnectionPrivate& connection = owner.Private();
        connection.RequireOpen();
        PreparedStatement& insert = Statement(connection);
        for (size_t i = 0; i < fields.size(); ++i)
            BindStored(insert.Handle(), int(i) + 1, fields[i].value);
        insert.Step();
        insert.Release();
        id = sqlite3_last_insert_rowid(connection.handle);
        fields.clear();
    }

    Connection& owner;
    const TableDefinition& table;
    std::vector<Field> fields;
    std::vector<std::pair<std::string, const ColumnDefinition*>> columns; ///< by the names that callers use
    std::shared_ptr<PreparedStatement> statement;
    std::vector<const ColumnDefinition*> statementColumns;
    bool adding = false;
    qint64 id = 0;
};

AddRow::AddRow(Connection& connection, const char* table)
    : d(std::make_unique<State>(connection, table))
{
    connection.Private().RequireOpen();
}

AddRow::~AddRow() = default;

void AddRow::AddNew()
{
    d->fields.clear();
    d->adding = true;
}

void AddRow::Set(const char* field, const Value& value)
{
    if (!d->adding)
        throw NoCurrentRecordError();
    d->Set(field, value);
}

void AddRow::Set(const char* field, const QString& text)
{
    Set(field, Value(text));
}

void AddRow::Set(const char* field, qint64 number)
{
    Set(field, Value(number));
}

void AddRow::Set(const char* field, double number)
{
    Set(field, Value(number));
}

void AddRow::Set(const char* field, Currency amount)
{
    Set(field, Value(amount));
}

void AddRow::Set(const char* field, bool value)
{
    Set(field, Value(value));
}

void AddRow::Set(const char* field, const QDateTime& date)
{
    Set(field, date.isValid() ? Value(date) : Value());
}

void AddRow::Update()
{
    if (!d->adding)
        throw NoCurrentRecordError();
    d->Update();
    d->adding = false;
}

qint64 AddRow::Id() const
{
    return d->id;
}
