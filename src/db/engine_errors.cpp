#include "db/engine_errors.h"

#include <sqlite3.h>

namespace {

QString Message(sqlite3* handle)
{
    return QString::fromUtf8(sqlite3_errmsg(handle));
}

QString GeneralText(int code)
{
    if (code == SQLITE_READONLY_DBMOVED)
        return QStringLiteral("The database file was moved or deleted while it was open.");
    switch (code & 0xff) {
    case SQLITE_FULL:
        return QStringLiteral("There is not enough space on the disk.");
    case SQLITE_READONLY:
        return QStringLiteral("Cannot update. Database or object is read-only.");
    case SQLITE_IOERR:
        return QStringLiteral("Disk or network error.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        return QStringLiteral("Could not update; the database is in use by another program.");
    case SQLITE_NOTADB:
        return QStringLiteral("Unrecognized database format.");
    case SQLITE_CORRUPT:
        return QStringLiteral("The database is damaged.");
    case SQLITE_CANTOPEN:
        return QStringLiteral("Cannot open the database file or the journal beside it.");
    case SQLITE_NOMEM:
        return QStringLiteral("Not enough memory.");
    case SQLITE_TOOBIG:
        return QStringLiteral("The text is too long for the database.");
    default:
        return QStringLiteral("The database engine failed (%1).").arg(code);
    }
}

RuntimeError ConstraintError(int code)
{
    if (code == SQLITE_CONSTRAINT_CHECK)
        return {TooLongFailure,
            QStringLiteral("The field is too small to accept the amount of data you attempted to add. Try inserting or "
                           "pasting less data.")};
    if (code == SQLITE_CONSTRAINT_UNIQUE || code == SQLITE_CONSTRAINT_PRIMARYKEY || code == SQLITE_CONSTRAINT_ROWID)
        return {GeneralFailure,
            QStringLiteral("The changes you requested to the table were not successful because they would create "
                           "duplicate values in the index, primary key, or relationship.")};
    return {GeneralFailure, QStringLiteral("The table does not accept the row (%1).").arg(code)};
}

/// A failure while a statement is prepared, of a file that lacks what the program expects.
RuntimeError StatementError(sqlite3* handle)
{
    const QString message = Message(handle);
    const QString noTable = QStringLiteral("no such table: ");
    if (message.startsWith(noTable))
        return UnknownTableError(QStringView(message).mid(noTable.size()));
    if (message.startsWith(QLatin1String("no such column")))
        return UnknownNameError();
    // The words of our own functions; the engine has no numbers for them.
    if (message == Overflow().Description() || message == QLatin1String("integer overflow"))
        return NumericOverflowError();
    if (message == TypeMismatch().Description())
        return CriteriaMismatchError();
    if (message == QLatin1String("parser stack overflow") || message.startsWith(QLatin1String("Expression tree")))
        return TooComplexError();
    return {SyntaxFailure, QStringLiteral("Syntax error in query.")};
}

} // namespace

RuntimeError EngineError(sqlite3* handle)
{
    const int code = sqlite3_extended_errcode(handle);
    switch (code & 0xff) {
    case SQLITE_ERROR:
        return StatementError(handle);
    case SQLITE_CONSTRAINT:
        return ConstraintError(code);
    default:
        return {GeneralFailure, GeneralText(code)};
    }
}
