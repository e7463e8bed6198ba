#pragma once

#include "sql/dialect_expressions.h"

/// Reads a FROM clause: tables side by side and joins, which may stand in brackets on the left. Its tables are known
/// before any expression is read.
class FromClause {
public:
    /// Leaves the stream behind the clause. Throws RuntimeError for what is none and for unknown tables.
    FromClause(TokenStream& tokens, NameScope& scope);

    /// The clause in the engine's own SQL, with its join conditions read by `expressions`.
    std::string Sql(TokenStream& tokens, ExpressionReader& expressions) const;

private:
    struct Part {
        std::string lead; ///< what joins the table to those before it
        std::string table;
        size_t condition = 0; ///< place of the join condition; 0 for none
    };

    void ReadList();
    void ReadJoins();
    void ReadFirst();
    void ReadTable(const std::string& lead);
    std::string TakeJoin();
    void SkipCondition();
    RuntimeError Error() const;

    TokenStream& m_tokens;
    NameScope& m_scope;
    std::vector<Part> m_parts;
    int m_depth = 0;
};
