#include "records/data_environment.h"

#include "base/database_path.h"

#include <stdexcept>
#include <vector>

namespace {
ReportValue ReportValueOf(const Value& value)
{
    switch (value.Type()) {
    case Value::Kind::Null:
        return {};
    case Value::Kind::Long:
    case Value::Kind::Double:
        return value.ToDouble();
    case Value::Kind::Money:
        return value.ToCurrency();
    case Value::Kind::Date:
        return value.ToDate();
    default:
        return value.ToText();
    }
}

/// Copies the fields that a report wants from a recordset into a table.
class FieldReader {
public:
    FieldReader(const Recordset& rows, const QStringList& wanted)
    {
        const ReportTable names(FieldNames(rows));
        for (const QString& field : wanted)
            if (const int ordinal = names.Field(field); ordinal >= 0) {
                m_fields.append(field);
                m_columns.push_back({ordinal});
            }
    }
    const QStringList& Fields() const { return m_fields; }

    /// Adds the current row's fields, without ending the row.
    void Copy(const Recordset& rows, ReportTable& table)
    {
        for (Column& column : m_columns)
            CopyField(rows, column, table);
    }

private:
    struct Column {
        int ordinal;
        bool isText = false; ///< known from its first value; texts are copied without being converted
    };

    static QStringList FieldNames(const Recordset& rows)
    {
        QStringList names;
        for (int i = 0; i < rows.FieldCount(); ++i)
            names.append(rows.FieldName(i));
        return names;
    }
    static void CopyField(const Recordset& rows, Column& column, ReportTable& table)
    {
        if (rows.IsNull(column.ordinal)) {
            table.Add({});
        } else if (column.isText) {
            table.AddText(rows.Text(column.ordinal));
        } else {
            const Value value = rows[column.ordinal];
            column.isText = value.Type() == Value::Kind::Text;
            table.Add(ReportValueOf(value));
        }
    }

    QStringList m_fields;
    std::vector<Column> m_columns;
};

/// The sums over the child rows of one parent, in binary double over unrounded terms.
class Sums {
public:
    Sums(const ReportCommand& command)
        : m_command(command)
        , m_totals(static_cast<size_t>(command.sums.size()), 0)
    {
    }
    void Add(const Recordset& row)
    {
        for (size_t i = 0; i < m_totals.size(); ++i)
            if (const Value term = row[row.Field(qPrintable(m_command.sums[static_cast<qsizetype>(i)].second))];
                !term.IsNull())
                m_totals[i] += term.ToDouble();
    }
    void AppendTo(ReportTable& parents) const
    {
        for (const double total : m_totals)
            parents.Add(total);
    }
    static QStringList Names(const ReportCommand& command)
    {
        QStringList names;
        for (const auto& sum : command.sums)
            names.append(sum.first);
        return names;
    }

private:
    const ReportCommand& m_command;
    std::vector<double> m_totals;
};

void ReadChildren(Recordset rows, const QStringList& fields, ReportTable& table, Sums& sums)
{
    FieldReader reader(rows, fields);
    if (table.Fields().isEmpty())
        table = ReportTable(reader.Fields());
    for (; !rows.Eof(); rows.MoveNext()) {
        reader.Copy(rows, table);
        table.EndRow();
        sums.Add(rows);
    }
}
} // namespace

void MainDataEnvironment::Register(const ReportCommand& command)
{
    m_commands.insert(command.name, command);
}

ReportCommand& MainDataEnvironment::Command(const QString& name)
{
    const auto found = m_commands.find(name);
    if (found == m_commands.end())
        throw std::logic_error("no report command " + name.toStdString());
    return *found;
}

void MainDataEnvironment::SetParameter(const QString& command, const QString& parameter, qint64 value)
{
    m_parameters[command][parameter] = value;
}

void MainDataEnvironment::Requery(const QString& command)
{
    if (IsOpen(command))
        m_open[command].reset();
}

void MainDataEnvironment::Close(const QString& command)
{
    m_open.remove(command);
}

void MainDataEnvironment::OpenConnection()
{
    MainConn.OpenReadOnly(DatabasePath());
}

Sql MainDataEnvironment::Filled(const QString& command, const QString& statement) const
{
    Sql sql(statement);
    const QHash<QString, qint64> parameters = m_parameters.value(command);
    for (auto parameter = parameters.begin(); parameter != parameters.end(); ++parameter)
        if (statement.contains(QLatin1Char('{') + parameter.key() + QLatin1Char('}')))
            sql.Number(qPrintable(parameter.key()), parameter.value());
    return sql;
}

std::shared_ptr<const ReportRows> MainDataEnvironment::Read(const ReportCommand& command, const Report& report)
{
    auto result = std::make_shared<ReportRows>();
    Recordset rows = MainConn.Execute(Filled(command.name, command.parentStatement));
    FieldReader reader(rows, report.ParentFields());
    result->parents = ReportTable(reader.Fields() + Sums::Names(command));
    for (; !rows.Eof(); rows.MoveNext()) {
        Sums sums(command);
        if (!command.childStatement.isEmpty()) {
            result->firstChild.push_back(result->children.Count());
            Sql sql = Filled(command.name, command.childStatement + command.relation);
            sql.Number("parentKey", rows[qPrintable(command.parentKey)].ToLong());
            ReadChildren(MainConn.Execute(sql), report.ChildFields(), result->children, sums);
        }
        reader.Copy(rows, result->parents);
        sums.AppendTo(result->parents);
        result->parents.EndRow();
    }
    return result;
}

void MainDataEnvironment::Bind(Report& report, const QString& command)
{
    report.rows = m_open.value(command).lock();
    if (report.rows)
        return;
    OpenConnection();
    try {
        report.rows = Read(Command(command), report);
    } catch (...) {
        MainConn.Close();
        throw;
    }
    MainConn.Close();
    m_open.insert(command, report.rows);
}

MainDataEnvironment& DataEnvironment()
{
    static MainDataEnvironment environment;
    return environment;
}
