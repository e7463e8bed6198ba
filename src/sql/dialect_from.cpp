#include "sql/dialect_from.h"

#include "sql/statement_errors.h"

#include <algorithm>

namespace {
constexpr const char* SideBySide = ", ";
constexpr const char* LeftJoin = " LEFT JOIN ";
constexpr const char* RightJoin = " RIGHT JOIN ";
} // namespace

FromClause::FromClause(TokenStream& tokens, NameScope& scope)
    : m_tokens(tokens)
    , m_scope(scope)
{
    ReadList();
}

RuntimeError FromClause::Error() const
{
    return SyntaxError(QStringLiteral("Syntax error in FROM clause."));
}

void FromClause::ReadList()
{
    ReadJoins();
    while (m_tokens.TakeSign(",")) {
        ReadTable(SideBySide);
        for (std::string join = TakeJoin(); !join.empty(); join = TakeJoin()) {
            ReadTable(join);
            SkipCondition();
        }
    }
}

void FromClause::ReadJoins()
{
    ReadFirst();
    for (std::string join = TakeJoin(); !join.empty(); join = TakeJoin()) {
        if (m_tokens.AtSign("("))
            throw SyntaxError(QStringLiteral("Join expression not supported."));
        ReadTable(join);
        SkipCondition();
    }
}

/// Joins run from left to right, so brackets on the left change nothing and are left out.
void FromClause::ReadFirst()
{
    if (!m_tokens.TakeSign("("))
        return ReadTable("");
    if (++m_depth > 50)
        throw Error();
    ReadJoins();
    --m_depth;
    if (!m_tokens.TakeSign(")"))
        throw Error();
}

void FromClause::ReadTable(const std::string& lead)
{
    if (!m_tokens.AtName())
        throw Error();
    const Token table = m_tokens.Take();
    std::string_view alias;
    if (m_tokens.TakeWord("as") && !m_tokens.AtName())
        throw Error();
    if (m_tokens.AtName())
        alias = m_tokens.Take().text;
    m_scope.Add(table.text, alias);
    std::string sql = std::string("[").append(table.text) + "]";
    if (!alias.empty())
        sql += " AS [" + std::string(alias) + "]";
    m_parts.push_back({lead, sql, std::string("[").append(alias.empty() ? table.text : alias) + "]", 0});
}

std::string FromClause::TakeJoin()
{
    std::string join;
    if (m_tokens.TakeWord("inner"))
        join = " INNER JOIN ";
    else if (m_tokens.TakeWord("left"))
        join = LeftJoin;
    else if (m_tokens.TakeWord("right"))
        join = RightJoin;
    else
        return join;
    m_tokens.TakeWord("outer");
    if (!m_tokens.TakeWord("join"))
        throw Error();
    return join;
}

void FromClause::SkipCondition()
{
    if (!m_tokens.TakeWord("on"))
        throw Error();
    m_parts.back().condition = m_tokens.Place();
    for (int depth = 0; m_tokens.Peek().kind != Token::Kind::End; m_tokens.Take()) {
        if (m_tokens.AtSign("("))
            ++depth;
        else if (m_tokens.AtSign(")") && --depth < 0)
            return;
        if (depth > 0)
            continue;
        for (const char* end : {"inner", "left", "right", "where", "group", "order", "having"}) {
            if (m_tokens.AtWord(end))
                return;
        }
        if (m_tokens.AtSign(","))
            return;
    }
}

void FromClause::ReadConditions(ExpressionReader& expressions)
{
    for (Part& part : m_parts) {
        if (part.condition == 0)
            continue;
        m_tokens.GoTo(part.condition);
        part.conditionRead = expressions.Read();
    }
}

std::string FromClause::Sql() const
{
    std::string sql = " FROM ";
    for (const Part& part : m_parts) {
        sql += part.lead + part.table;
        if (part.condition != 0)
            sql += " ON " + part.conditionRead.sql;
    }
    return sql;
}

bool FromClause::IsList() const
{
    return std::ranges::all_of(m_parts, [](const Part& part) { return part.lead.empty() || part.lead == SideBySide; });
}

std::string FromClause::SqlOfSome(const std::vector<bool>& sources, const std::string& condition) const
{
    std::string tables;
    std::string others;
    for (size_t i = 0; i < m_parts.size(); ++i)
        if (sources[i])
            tables += (tables.empty() ? " FROM " : SideBySide) + m_parts[i].table;
        else
            others += " AND EXISTS (SELECT 1 FROM " + m_parts[i].table + ")";
    return tables + " WHERE (" + condition + ")" + others;
}

bool FromClause::IsFoundByKey(size_t source) const
{
    return std::any_of(m_parts.begin(), m_parts.end(), [source](const Part& part) {
        const auto& columns = part.conditionRead.equals;
        return part.lead != LeftJoin && columns[0] && columns[0].source != columns[1].source
            && std::any_of(columns.begin(), columns.end(), [source](const ColumnReference& column) {
                   return column.source == source && column.column->kind == ColumnKind::AutoNumber;
               });
    });
}

bool FromClause::MultipliesRowsOf(size_t source) const
{
    const auto isLeft = [](const Part& part) { return part.lead == LeftJoin; };
    const auto firstLeft = std::find_if(m_parts.begin(), m_parts.end(), isLeft);
    const auto before = size_t(firstLeft - m_parts.begin());
    if (source >= before || firstLeft == m_parts.end() || !std::all_of(firstLeft, m_parts.end(), isLeft))
        return false;
    for (size_t i = 0; i < before; ++i)
        if (m_parts[i].lead == RightJoin || (i != source && !IsFoundByKey(i)))
            return false;
    return true;
}

std::string FromClause::SqlFrom(size_t source, const std::string& rows) const
{
    std::string sql = " FROM (" + rows + ") AS " + m_parts[source].name;
    std::string where;
    for (size_t i = 0; i < m_parts.size(); ++i) {
        const Part& part = m_parts[i];
        if (part.lead == LeftJoin)
            sql += part.lead + part.table + " ON " + part.conditionRead.sql;
        // The engine keeps to the order in which tables are crossed.
        else if (i != source)
            sql += " CROSS JOIN " + part.table;
        if (part.lead != LeftJoin && part.condition != 0)
            where += (where.empty() ? " WHERE (" : " AND (") + part.conditionRead.sql + ")";
    }
    return sql + where;
}
