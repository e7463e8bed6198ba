#pragma once

#include "sql/dialect_expressions.h"

/// Reads a FROM clause: tables side by side and joins, which may stand in brackets on the left. Its tables are known
/// before any expression is read.
class FromClause {
public:
    /// Leaves the stream behind the clause. Throws RuntimeError for what is none and for unknown tables.
    FromClause(TokenStream& tokens, NameScope& scope);

    /// Reads the join conditions, in which all tables may be named.
    void ReadConditions(ExpressionReader& expressions);
    /// The clause in the engine's own SQL.
    std::string Sql() const;
    /// Whether tables stand side by side alone, so that each row of one meets all rows of the others.
    bool IsList() const;
    /// The clause of these tables alone, and the condition under which the others leave its rows as they are but for
    /// their number: that there is anything in them.
    std::string SqlOfSome(const std::vector<bool>& sources, const std::string& condition) const;
    /// A clause of one of the tables alone.
    std::string SqlOf(size_t source) const { return " FROM " + m_parts[source].table; }

    /// Whether each row of this table meets one of each other, and then as many as there are of those that it is left
    /// joined to: its rows can be brought in order before that.
    bool MultipliesRowsOf(size_t source) const;
    /// The same clause over `rows`, a SELECT that stands for the table: their order is that of the joined rows. Ends in
    /// the WHERE that holds the conditions. Only where MultipliesRowsOf(source).
    std::string SqlFrom(size_t source, const std::string& rows) const;

private:
    struct Part {
        std::string lead; ///< what joins the table to those before it
        std::string table; ///< with its alias
        std::string name; ///< the alias, else the table's own name
        size_t condition = 0; ///< place of the join condition; 0 for none
        Expression conditionRead = {};
    };

    void ReadList();
    void ReadJoins();
    void ReadFirst();
    void ReadTable(const std::string& lead);
    std::string TakeJoin();
    void SkipCondition();
    /// Whether a condition finds rows of this table by their key.
    bool IsFoundByKey(size_t source) const;
    RuntimeError Error() const;

    TokenStream& m_tokens;
    NameScope& m_scope;
    std::vector<Part> m_parts;
    int m_depth = 0;
};
