#include "sql/dialect.h"

#include "sql/dialect_expressions.h"
#include "sql/dialect_from.h"
#include "sql/dialect_names.h"
#include "sql/dialect_tokens.h"
#include "sql/function_names.h"
#include "sql/statement_errors.h"

#include <algorithm>
#include <optional>

namespace {

using Kind = Value::Kind;

Coercion CoercionTo(Kind kind)
{
    switch (kind) {
    case Kind::Long:
        return Coercion::Long;
    case Kind::Double:
        return Coercion::Double;
    case Kind::Money:
        return Coercion::Money;
    case Kind::Boolean:
        return Coercion::Boolean;
    case Kind::Date:
        return Coercion::Date;
    case Kind::Text:
        return Coercion::Text;
    case Kind::Null:
        break;
    }
    return Coercion::None;
}

/// What all three statements share.
class StatementTranslator {
public:
    StatementTranslator(TokenStream& tokens, size_t literals)
        : m_tokens(tokens)
    {
        m_result.coercions.resize(literals, Coercion::None);
    }

protected:
    ExpressionReader Expressions() { return {m_tokens, m_scope, m_result.coercions}; }

    std::string Where(ExpressionReader& expressions)
    {
        if (!m_tokens.TakeWord("where"))
            return {};
        if (m_tokens.Peek().kind == Token::Kind::End)
            throw SyntaxError(QStringLiteral("Syntax error in WHERE clause."));
        return " WHERE " + expressions.Read().sql;
    }

    /// Nothing but the end may follow an expression that began at `start`.
    void ExpectEnd(const ExpressionReader& expressions, size_t start)
    {
        if (m_tokens.Peek().kind != Token::Kind::End)
            throw expressions.MissingOperator(start);
    }

    TokenStream& m_tokens;
    NameScope m_scope;
    Translation m_result;
};

class UpdateTranslator : StatementTranslator {
public:
    using StatementTranslator::StatementTranslator;

    Translation Run()
    {
        if (!m_tokens.AtName())
            throw Error();
        const Token table = m_tokens.Take();
        m_scope.Add(table.text, {});
        if (!m_tokens.TakeWord("set"))
            throw Error();
        ExpressionReader expressions = Expressions();
        do {
            Assign(expressions);
        } while (m_tokens.TakeSign(","));
        const size_t start = m_lastStart;
        if (m_tokens.Peek().kind != Token::Kind::End && !m_tokens.AtWord("where"))
            throw expressions.MissingOperator(start);
        const size_t condition = m_tokens.Place() + 1;
        const std::string where = Where(expressions);
        ExpectEnd(expressions, condition);
        m_result.sql.append("UPDATE [").append(table.text).append("] SET ").append(m_assignments).append(where);
        std::string& any = m_result.anyChange;
        any.append("SELECT 1 FROM [").append(table.text).append("] WHERE (").append(m_changes).append(")");
        if (!where.empty())
            any.append(" AND (").append(where, std::string_view(" WHERE ").size()).append(")");
        return m_result;
    }

private:
    static RuntimeError Error() { return SyntaxError(QStringLiteral("Syntax error in UPDATE statement.")); }

    const ColumnDefinition& Target()
    {
        if (!m_tokens.AtName())
            throw Error();
        Token name = m_tokens.Take();
        std::string_view qualifier;
        if (m_tokens.TakeSign(".")) {
            qualifier = name.text;
            name = m_tokens.Take();
        }
        return *m_scope.Resolve(qualifier, name.text).column;
    }

    void Assign(ExpressionReader& expressions)
    {
        const ColumnDefinition& column = Target();
        if (!m_tokens.TakeSign("="))
            throw Error();
        const bool blank = m_tokens.Peek().kind == Token::Kind::End || m_tokens.AtSign(",") || m_tokens.AtWord("where");
        if (blank)
            throw Error();
        m_lastStart = m_tokens.Place();
        const Expression value = expressions.Read();
        const std::string name = column.name.toStdString();
        const std::string sql = Assigned(value, KindOf(column.kind));
        m_assignments.append(m_assignments.empty() ? "[" : ", [").append(name).append("] = ").append(sql);
        // To the letter, where texts compare without regard to case.
        m_changes.append(m_changes.empty() ? "[" : " OR [").append(name);
        m_changes.append("] IS NOT (").append(sql).append(") COLLATE BINARY");
    }

    /// A literal is brought to the column's kind when it is bound, anything else by the engine as it is written.
    std::string Assigned(const Expression& value, Kind target)
    {
        if (value.literal >= 0) {
            m_result.coercions[size_t(value.literal)] = CoercionTo(target);
            return value.sql;
        }
        const bool isNumber = value.kind == Kind::Long || value.kind == Kind::Double || value.kind == Kind::Money;
        const bool fits = value.kind == Kind::Null || (value.column && value.kind == target)
            || (target == Kind::Double && isNumber)
            || (value.kind == target && (target == Kind::Text || target == Kind::Boolean || target == Kind::Date));
        if (fits)
            return value.sql;
        return std::string(ConvertFunction) + "(" + std::to_string(int(target)) + ", " + value.sql + ")";
    }

    std::string m_assignments;
    std::string m_changes; ///< whether any of them would change a row
    size_t m_lastStart = 0;
};

class DeleteTranslator : StatementTranslator {
public:
    using StatementTranslator::StatementTranslator;

    Translation Run()
    {
        m_tokens.TakeSign("*");
        if (!m_tokens.TakeWord("from"))
            throw Error();
        if (!m_tokens.AtName())
            throw SyntaxError(QStringLiteral("Syntax error in FROM clause."));
        const Token table = m_tokens.Take();
        m_scope.Add(table.text, {});
        if (m_tokens.Peek().kind != Token::Kind::End && !m_tokens.AtWord("where"))
            throw Error();
        ExpressionReader expressions = Expressions();
        const size_t condition = m_tokens.Place() + 1;
        const std::string where = Where(expressions);
        ExpectEnd(expressions, condition);
        m_result.sql = "DELETE FROM [" + std::string(table.text) + "]" + where;
        return m_result;
    }

private:
    static RuntimeError Error() { return SyntaxError(QStringLiteral("Syntax error in DELETE statement.")); }
};

class SelectTranslator : StatementTranslator {
public:
    using StatementTranslator::StatementTranslator;

    Translation Run()
    {
        m_distinct = m_tokens.TakeWord("distinct");
        ReadTop();
        const size_t list = m_tokens.Place();
        SkipTo("from");
        const bool hasTables = m_tokens.TakeWord("from");
        if (!hasTables)
            m_tokens.GoTo(list);
        size_t behindFrom = 0;
        if (hasTables) {
            m_from.emplace(m_tokens, m_scope);
            behindFrom = m_tokens.Place();
            ExpressionReader conditions = Expressions();
            m_from->ReadConditions(conditions);
        }
        m_tokens.GoTo(list);
        ExpressionReader expressions = Expressions();
        ReadList(expressions, hasTables);
        if (hasTables)
            m_tokens.GoTo(behindFrom);
        ReadClauses(expressions);
        Compose();
        return m_result;
    }

private:
    struct SortTerm {
        std::string sql;
        const char* direction;
        ColumnReference column; ///< of a plain column
    };

    static RuntimeError Error()
    {
        return SyntaxError(QStringLiteral("The SELECT statement includes a reserved word or an argument name that is "
                                          "misspelled or missing, or the punctuation is incorrect."));
    }

    void ReadTop()
    {
        if (!m_tokens.AtWord("top") || m_tokens.Peek(1).kind != Token::Kind::Number)
            return;
        m_tokens.Take();
        m_top = std::string(m_tokens.Take().text);
        if (m_distinct || m_top.find_first_not_of("0123456789") != std::string::npos)
            throw Error();
    }

    void SkipTo(const char* keyword)
    {
        while (m_tokens.Peek().kind != Token::Kind::End && !m_tokens.AtWord(keyword))
            m_tokens.Take();
    }

    void ReadList(ExpressionReader& expressions, bool hasTables)
    {
        do {
            if (m_tokens.TakeSign("*"))
                AddAllColumns();
            else if (m_tokens.AtName() && m_tokens.Peek(1).text == "." && m_tokens.Peek(2).text == "*")
                AddColumnsOf(TakeQualifier());
            else
                AddColumn(expressions);
        } while (m_tokens.TakeSign(","));
        if (hasTables ? !m_tokens.AtWord("from") : m_tokens.Peek().kind != Token::Kind::End)
            throw expressions.MissingOperator(m_columnStart);
    }

    size_t TakeQualifier()
    {
        const std::string_view qualifier = m_tokens.Take().text;
        m_tokens.Take();
        m_tokens.Take();
        return m_scope.SourceNamed(qualifier);
    }

    void AddAllColumns()
    {
        if (m_scope.Sources().empty())
            throw Error();
        for (size_t source = 0; source < m_scope.Sources().size(); ++source)
            AddColumnsOf(source);
    }

    void AddColumnsOf(size_t source)
    {
        for (const ColumnDefinition& column : m_scope.Sources()[source].table->columns) {
            const ColumnReference reference{source, &column};
            m_columns.push_back({m_scope.SqlOf(reference), {}, reference, KindOf(column.kind)});
        }
    }

    void AddColumn(ExpressionReader& expressions)
    {
        if (m_tokens.AtWord("from") || m_tokens.AtSign(",") || m_tokens.Peek().kind == Token::Kind::End)
            throw Error();
        m_columnStart = m_tokens.Place();
        const Expression value = expressions.Read();
        std::string alias;
        if (m_tokens.TakeWord("as")) {
            if (!m_tokens.AtName())
                throw Error();
            alias = std::string(m_tokens.Take().text);
        }
        m_columns.push_back({value.sql, alias, value.column, value.kind});
    }

    void ReadClauses(ExpressionReader& expressions)
    {
        size_t start = m_tokens.Place() + 1;
        m_body = Where(expressions);
        if (!m_body.empty() && m_tokens.Peek().kind == Token::Kind::End)
            m_alternatives = expressions.Alternatives();
        if (m_tokens.AtWord("group")) {
            TakeBy("group");
            start = m_tokens.Place();
            ReadGroups(expressions);
        }
        if (m_tokens.TakeWord("having")) {
            start = m_tokens.Place();
            m_body += " HAVING " + expressions.Read().sql;
        }
        if (m_tokens.AtWord("order")) {
            TakeBy("order");
            start = m_tokens.Place();
            ReadOrder(expressions);
        }
        ExpectEnd(expressions, start);
    }

    void TakeBy(const char* keyword)
    {
        m_tokens.TakeWord(keyword);
        if (!m_tokens.TakeWord("by"))
            throw SyntaxError(
                QStringLiteral("Syntax error in %1 BY clause.").arg(QString::fromLatin1(keyword).toUpper()));
    }

    void ReadGroups(ExpressionReader& expressions)
    {
        do {
            m_groups.push_back(expressions.Read().sql);
            m_body += (m_groups.size() == 1 ? " GROUP BY " : ", ") + m_groups.back();
        } while (m_tokens.TakeSign(","));
    }

    void ReadOrder(ExpressionReader& expressions)
    {
        do {
            if (m_tokens.Peek().kind == Token::Kind::End)
                throw SyntaxError(QStringLiteral("Syntax error in ORDER BY clause."));
            const Expression term = expressions.Read();
            const bool down = m_tokens.TakeWord("desc");
            if (!down)
                m_tokens.TakeWord("asc");
            m_order.push_back({SortSql(term), down ? " DESC" : "", term.column});
        } while (m_tokens.TakeSign(","));
    }

    void Compose()
    {
        for (const ResultColumn& column : m_columns)
            m_result.columnKinds.push_back(column.kind);
        m_result.columnNames = ResultNames(m_scope, m_columns);
        std::string list;
        for (const ResultColumn& column : m_columns)
            list += (list.empty() ? "" : ", ") + column.sql;
        if (SortsBeforeItJoins())
            return ComposeSortedFirst(list);
        if (FindsAlternativesApart())
            return ComposeApart(list);
        if (m_from)
            m_body = m_from->Sql() + m_body;
        if (!m_top.empty() && !m_order.empty())
            return ComposeWithTies();
        m_result.sql = (m_distinct ? "SELECT DISTINCT " : "SELECT ") + list + m_body + Order();
        if (!m_top.empty())
            m_result.sql += " LIMIT " + m_top;
    }

    /// Rows that a join makes more are fewer to sort before it. All that is wanted must be plain columns, and the order
    /// that of one table.
    bool SortsBeforeItJoins() const
    {
        const auto isPlain = [](const auto& term) { return bool(term.column); };
        const auto isOfTheFirst = [this](const SortTerm& term) {
            return term.column && term.column.source == m_order.front().column.source;
        };
        return m_from && m_body.empty() && m_top.empty() && !m_distinct && !m_order.empty()
            && std::all_of(m_columns.begin(), m_columns.end(), isPlain)
            && std::all_of(m_order.begin(), m_order.end(), isOfTheFirst)
            && m_from->MultipliesRowsOf(m_order.front().column.source);
    }

    void ComposeSortedFirst(const std::string& list)
    {
        const size_t source = m_order.front().column.source;
        // Without a limit the engine would drop the order of an inner SELECT.
        const std::string rows =
            "SELECT " + m_scope.UsedColumns(source) + m_from->SqlOf(source) + Order() + " LIMIT -1";
        m_result.sql = "SELECT " + list + m_from->SqlFrom(source, rows);
    }

    /// An OR beside the conditions of a join leaves its tables unjoined, and the engine would go through all of their
    /// rows together. Where no row is wanted twice, each alternative can be asked for on its own.
    bool FindsAlternativesApart() const
    {
        const auto isPlain = [](const ResultColumn& column) { return bool(column.column); };
        return m_distinct && m_alternatives.size() > 1 && m_from->IsList()
            && std::all_of(m_columns.begin(), m_columns.end(), isPlain);
    }

    void ComposeApart(const std::string& list)
    {
        for (Alternative& alternative : m_alternatives) {
            for (const ResultColumn& column : m_columns)
                alternative.sources[column.column.source] = true;
            m_result.sql += m_result.sql.empty() ? "SELECT " : " UNION SELECT ";
            m_result.sql += list + m_from->SqlOfSome(alternative.sources, alternative.sql);
        }
    }

    std::string Order() const
    {
        std::string order;
        for (const SortTerm& term : m_order)
            order += (order.empty() ? " ORDER BY " : ", ") + term.sql + term.direction;
        return order;
    }

    /// TOP n keeps every row that ties with the n-th. Among ties groups come in the order of their values.
    void ComposeWithTies()
    {
        std::string outer;
        std::string inner;
        for (size_t i = 0; i < m_columns.size(); ++i) {
            std::string name = "c";
            name += std::to_string(i);
            outer.append(outer.empty() ? "" : ", ").append(name);
            inner.append(m_columns[i].sql).append(" AS ").append(name).append(", ");
        }
        std::string order = " ORDER BY place";
        for (size_t i = 0; i < m_groups.size(); ++i) {
            std::string name = "g";
            name += std::to_string(i);
            inner.append(m_groups[i]).append(" AS ").append(name).append(", ");
            order.append(", ").append(name);
        }
        m_result.sql = "SELECT " + outer + " FROM (SELECT " + inner + "rank() OVER (" + Order().substr(1) + ") AS place"
            + m_body + ") WHERE place <= " + m_top + order;
    }

    bool m_distinct = false;
    std::string m_top;
    std::vector<ResultColumn> m_columns;
    std::optional<FromClause> m_from;
    std::string m_body; ///< what stands between FROM and ORDER BY
    std::vector<Alternative> m_alternatives; ///< of the WHERE clause, where nothing follows it
    std::vector<std::string> m_groups;
    std::vector<SortTerm> m_order;
    size_t m_columnStart = 0;
};

} // namespace

Translation Translate(const StatementShape& shape)
{
    TokenStream tokens(shape);
    const size_t literals = shape.literals.size();
    if (tokens.TakeWord("select"))
        return SelectTranslator(tokens, literals).Run();
    if (tokens.TakeWord("update"))
        return UpdateTranslator(tokens, literals).Run();
    if (tokens.TakeWord("delete"))
        return DeleteTranslator(tokens, literals).Run();
    throw SyntaxError(
        QStringLiteral("Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."));
}
