#include "sql/dialect_from.h"

#include "sql/statement_errors.h"

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
        ReadTable(", ");
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
    m_parts.push_back({lead, sql, 0});
}

std::string FromClause::TakeJoin()
{
    std::string join;
    if (m_tokens.TakeWord("inner"))
        join = " INNER JOIN ";
    else if (m_tokens.TakeWord("left"))
        join = " LEFT JOIN ";
    else if (m_tokens.TakeWord("right"))
        join = " RIGHT JOIN ";
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

std::string FromClause::Sql(TokenStream& tokens, ExpressionReader& expressions) const
{
    std::string sql = " FROM ";
    for (const Part& part : m_parts) {
        sql += part.lead + part.table;
        if (part.condition == 0)
            continue;
        tokens.GoTo(part.condition);
        sql += " ON " + expressions.Read().sql;
    }
    return sql;
}
