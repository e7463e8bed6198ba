#pragma once

#include <QDate>
#include <QString>
#include <QVarLengthArray>

/// A statement with `{name}` markers, filled by name. A statement that is executed with a marker unfilled, or filled
/// for a marker that it does not have, is a programming error and throws std::logic_error. It can be filled anew, for a
/// loop that runs it many times.
class Sql {
public:
    explicit Sql(const QString& statement);
    explicit Sql(const char* statement);

    /// Text between quotes: each quote in it is doubled.
    Sql& Text(const char* name, const QString& value);
    /// Inserted as it stands, for the statements that must not guard their value and for numbers as typed.
    Sql& Raw(const char* name, const QString& value);
    Sql& Number(const char* name, qint64 value);
    /// "true" or "false".
    Sql& Bool(const char* name, bool value);
    /// "2003-07-04", to stand between `#` signs.
    Sql& Date(const char* name, const QDate& value);
    /// Adds to the end of the statement, for those that grow by clauses. May hold markers of its own.
    Sql& Append(const QString& clause);

    /// The statement with every marker filled.
    const QString& Filled() const;

private:
    struct Marker {
        qsizetype start = 0; ///< of its brace in the statement
        qsizetype length = 0; ///< with both braces
        qsizetype value = -1; ///< in m_values
    };
    void FindMarkers(qsizetype from);
    Sql& Fill(const char* name, const QString& value);

    QString m_statement;
    QVarLengthArray<Marker, 16> m_markers;
    QVarLengthArray<QString, 16> m_values;
    mutable QString m_filled;
};

/// The value with each "'" replaced by "''".
QString SqlText(const QString& value);
