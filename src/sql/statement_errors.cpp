#include "sql/statement_errors.h"

#include "base/texts.h"

namespace {

/// What a box can show of an expression that a user has pasted.
constexpr qsizetype LongestShown = 500;

QString Shown(QStringView expression)
{
    const QStringView trimmed = expression.trimmed();
    const QStringView start = Shortened(trimmed, LongestShown);
    return start.size() == trimmed.size() ? start.toString() : start.toString() + QChar(0x2026);
}

} // namespace

RuntimeError CannotOpen(const QString& path, const QString& reason)
{
    return {GeneralFailure, QStringLiteral("Could not open file '%1'. %2").arg(path, reason)};
}

RuntimeError UnknownNameError()
{
    return {UnknownNameFailure, QStringLiteral("No value given for one or more required parameters.")};
}

RuntimeError UnknownTableError(QStringView table)
{
    return {UnknownTableFailure,
        QStringLiteral(
            "The database engine cannot find the input table or query '%1'. Make sure it exists and that its "
            "name is spelled correctly.")
            .arg(table)};
}

RuntimeError AmbiguousNameError(QStringView field)
{
    return {SyntaxFailure,
        QStringLiteral("The specified field '%1' could refer to more than one table listed in the FROM clause of your "
                       "SQL statement.")
            .arg(field)};
}

RuntimeError CriteriaMismatchError()
{
    return {TypeMismatchFailure, QStringLiteral("Data type mismatch in criteria expression.")};
}

RuntimeError FieldMismatchError()
{
    return {FieldTypeFailure, QStringLiteral("Type mismatch.")};
}

RuntimeError NumericOverflowError()
{
    return {SyntaxFailure, QStringLiteral("Numeric field overflow.")};
}

RuntimeError NoCurrentRecordError()
{
    return {NoCurrentRecord,
        QStringLiteral(
            "Either BOF or EOF is True, or the current record has been deleted. Requested operation requires "
            "a current record.")};
}

RuntimeError UnknownFieldError()
{
    return {UnknownField,
        QStringLiteral("Item cannot be found in the collection corresponding to the requested name or ordinal.")};
}

RuntimeError ObjectClosedError()
{
    return {ObjectClosed, QStringLiteral("Operation is not allowed when the object is closed.")};
}

RuntimeError SyntaxError(const QString& description)
{
    return {SyntaxFailure, description};
}

RuntimeError TooComplexError()
{
    return SyntaxError(QStringLiteral("Expression too complex in query expression."));
}

RuntimeError MissingOperatorError(QStringView expression)
{
    return {SyntaxFailure,
        QStringLiteral("Syntax error (missing operator) in query expression '%1'.").arg(Shown(expression))};
}

RuntimeError OpenTextError(QStringView expression)
{
    return {SyntaxFailure, QStringLiteral("Syntax error in string in query expression '%1'.").arg(Shown(expression))};
}

RuntimeError DateLiteralError(QStringView expression)
{
    return {SyntaxFailure, QStringLiteral("Syntax error in date in query expression '%1'.").arg(Shown(expression))};
}
