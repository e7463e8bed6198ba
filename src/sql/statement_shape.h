#pragma once

#include <QString>

#include <string>
#include <variant>
#include <vector>

/// A statement of the system's SQL dialect, read in one pass without allocation to speak of: its shape (the text with
/// every literal replaced by a mark) and the literals in order. Statements of one shape share one prepared statement.

struct DateLiteral {
    std::string iso; ///< yyyy-MM-dd HH:mm:ss
};
using Literal = std::variant<qint64, double, std::string, DateLiteral>;

/// The marks that stand for literals in a shape: each tells what a translation depends on.
enum class LiteralMark : char { Whole = 1, Fraction = 2, AsciiText = 3, OtherText = 4, Date = 5 };

struct StatementShape {
    std::string text; ///< the key of the statement cache
    std::vector<Literal> literals;
};

/// Splits a statement into its shape and its literals. Throws RuntimeError for text that is no statement of the
/// dialect: an open quote, a bad date, a parameter sign, text behind the end.
void ReadStatement(const QString& statement, StatementShape& shape);

/// What a literal becomes when it is bound: as it is, or brought to the kind of the column it is assigned to.
enum class Coercion { None, Text, Long, Double, Money, Boolean, Date };
