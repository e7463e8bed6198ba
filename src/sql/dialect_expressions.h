#pragma once

#include "base/runtime_error.h"
#include "sql/dialect_names.h"
#include "sql/dialect_tokens.h"

#include <array>
#include <string>

/// An expression in the engine's own SQL, and what is known of its value.
struct Expression {
    std::string sql;
    Value::Kind kind = Value::Kind::Null; ///< Null when it has none of its own
    ColumnReference column; ///< of a plain column
    int literal = -1; ///< of a plain literal
    std::array<ColumnReference, 2> equals = {}; ///< of a condition that two plain columns are equal
};

/// One of the conditions between the ORs of another.
struct Alternative {
    std::string sql;
    std::vector<bool> sources; ///< the tables that it names
};

/// Reads expressions from a statement's tokens and writes them in the engine's own SQL.
class ExpressionReader {
public:
    ExpressionReader(TokenStream& tokens, const NameScope& scope, std::vector<Coercion>& coercions);

    /// Reads one expression and leaves the stream behind it. Throws RuntimeError for what is no expression.
    Expression Read();
    /// Of the expression read last: any of them makes it true. One, where no OR stands outside of its brackets.
    const std::vector<Alternative>& Alternatives() const { return m_alternatives; }
    /// An error for the stream's place, whose expression began at `start`.
    RuntimeError MissingOperator(size_t start) const;

private:
    Expression ReadOr();
    Expression ReadAlternative();
    Expression ReadAnd();
    Expression ReadNot();
    Expression ReadComparison();
    Expression ReadJoined();
    Expression ReadSum();
    Expression ReadProduct();
    Expression ReadSigned();
    Expression ReadPrimary();
    Expression ReadWord();
    Expression ReadName();
    Expression ReadFunction();
    Expression ReadLiteral();
    Expression ReadAggregate(const std::string& name);

    Expression Compare(Expression left, const std::string& sign, Expression right) const;
    Expression ReadIs(const Expression& left);
    Expression ReadIn(const Expression& left, const std::string& negation);
    Expression ReadBetween(const Expression& left, const std::string& negation);
    Expression ReadLike(const Expression& left, const std::string& negation);
    Expression Arithmetic(Expression left, const std::string& sign, Expression right);
    Expression AsNumber(Expression operand);
    bool HasOtherLetters(const Expression& expression) const;
    bool IsIndexed(const ColumnReference& column) const;
    std::string AmongSpellings(const Expression& column, const Expression& text) const;

    TokenStream& m_tokens;
    const NameScope& m_scope;
    std::vector<Coercion>& m_coercions;
    std::vector<LiteralMark> m_marks; ///< of the literals read so far, by index
    std::vector<Alternative> m_alternatives;
    std::vector<bool> m_named; ///< the tables named in the alternative that is being read
    size_t m_start = 0;
    int m_depth = 0;
};

/// The expression as it sorts: texts in the order of the user's locale.
std::string SortSql(const Expression& expression);
