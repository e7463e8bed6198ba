#pragma once

#include <QAnyStringView>
#include <QList>
#include <QString>

/// The tables of the file: kinds, lengths, defaults and indexes. The dialect reads column kinds from here to give
/// literals their type; tools/make-database makes the file from here. The program itself never creates a table.

/// The longest text of a lookup column: what an import writes there may come from anywhere.
inline constexpr int LongestName = 255;

enum class ColumnKind { AutoNumber, Id, Text, Memo, Long, Double, Money, Boolean, Date };

struct ColumnDefinition {
    QString name;
    ColumnKind kind;
    int length = 0; ///< characters of a Text column; 0 for no limit
};

struct TableDefinition {
    QString name;
    QList<ColumnDefinition> columns;
};

struct IndexDefinition {
    QString name;
    QString table;
    QString columns; ///< or expressions, parted by commas

    /// The DDL, as the file keeps it.
    QString Statement() const;
};

const QList<TableDefinition>& SchemaTables();
const QList<IndexDefinition>& SchemaIndexes();
/// Whether an index finds the rows with a value of the column.
bool IsIndexed(const TableDefinition& table, const ColumnDefinition& column);
/// Without regard to case; null when there is none.
const TableDefinition* FindTable(QAnyStringView name);
const ColumnDefinition* FindColumn(const TableDefinition& table, QAnyStringView name);

/// The DDL of the whole file, one statement an entry, in order: tables, then indexes.
QStringList SchemaStatements();
