#include "sql/dialect_names.h"

#include "sql/dialect_tokens.h"
#include "sql/statement_errors.h"

#include <algorithm>

namespace {

QString ToQString(std::string_view text)
{
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

std::string ExpressionName(size_t position)
{
    return "Expr" + std::to_string(1000 + position);
}

} // namespace

void NameScope::Add(std::string_view table, std::string_view alias)
{
    const TableDefinition* definition = FindTable(ToQString(table));
    if (definition == nullptr)
        throw UnknownTableError(ToQString(table));
    m_sources.push_back({std::string(alias.empty() ? table : alias), definition});
}

size_t NameScope::SourceNamed(std::string_view qualifier) const
{
    const auto found = std::find_if(m_sources.begin(), m_sources.end(),
        [qualifier](const TableSource& source) { return SameWord(source.name, qualifier); });
    if (found == m_sources.end())
        throw UnknownNameError();
    return size_t(found - m_sources.begin());
}

ColumnReference NameScope::Resolve(std::string_view qualifier, std::string_view name) const
{
    const QString columnName = ToQString(name);
    ColumnReference result;
    for (size_t i = 0; i < m_sources.size(); ++i) {
        if (!qualifier.empty() && !SameWord(m_sources[i].name, qualifier))
            continue;
        const ColumnDefinition* column = FindColumn(*m_sources[i].table, columnName);
        if (column == nullptr)
            continue;
        if (result)
            throw AmbiguousNameError(columnName);
        result = {i, column};
    }
    if (!result)
        throw UnknownNameError();
    return result;
}

std::string NameScope::SqlOf(const ColumnReference& column) const
{
    if (std::find(m_used.begin(), m_used.end(), column) == m_used.end())
        m_used.push_back(column);
    return "[" + m_sources[column.source].name + "].[" + column.column->name.toStdString() + "]";
}

std::string NameScope::UsedColumns(size_t source) const
{
    std::string columns;
    for (const ColumnReference& used : m_used)
        if (used.source == source)
            columns += (columns.empty() ? "[" : ", [") + used.column->name.toStdString() + "]";
    return columns;
}

std::string NameScope::QualifiedName(const ColumnReference& column) const
{
    return m_sources[column.source].name + "." + column.column->name.toStdString();
}

Value::Kind KindOf(ColumnKind kind)
{
    switch (kind) {
    case ColumnKind::AutoNumber:
    case ColumnKind::Id:
    case ColumnKind::Long:
        return Value::Kind::Long;
    case ColumnKind::Double:
        return Value::Kind::Double;
    case ColumnKind::Money:
        return Value::Kind::Money;
    case ColumnKind::Boolean:
        return Value::Kind::Boolean;
    case ColumnKind::Date:
        return Value::Kind::Date;
    case ColumnKind::Text:
    case ColumnKind::Memo:
        break;
    }
    return Value::Kind::Text;
}

std::vector<std::string> ResultNames(const NameScope& scope, const std::vector<ResultColumn>& columns)
{
    std::vector<std::string> names;
    for (size_t i = 0; i < columns.size(); ++i) {
        const ResultColumn& column = columns[i];
        if (!column.alias.empty()) {
            names.push_back(column.alias);
            continue;
        }
        const auto isSame = [&column](const ResultColumn& other) {
            return other.alias.empty() && other.column == column.column;
        };
        const auto sharesName = [&](const ResultColumn& other) {
            return other.alias.empty() && other.column
                && other.column.column->name.compare(column.column.column->name, Qt::CaseInsensitive) == 0;
        };
        if (!column.column || std::any_of(columns.begin(), columns.begin() + ptrdiff_t(i), isSame))
            names.push_back(ExpressionName(i));
        else if (std::count_if(columns.begin(), columns.end(), sharesName) > 1)
            names.push_back(scope.QualifiedName(column.column));
        else
            names.push_back(column.column.column->name.toStdString());
    }
    return names;
}
