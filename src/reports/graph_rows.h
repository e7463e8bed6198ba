#pragma once

#include <QList>
#include <QStringList>

/// One row of a graph: the label below it and, as text, its value in each series.
struct GraphRow {
    QString label;
    QStringList values;
};

/// What the graphs show, read from gConnection with one statement a value. All throw RuntimeError when one fails.

/// The invoices of each day of the present month, labelled with short dates.
QList<GraphRow> InvoicesThisMonth();
/// The invoices of each of the twelve months that end with the present one, labelled "Jul-2003".
QList<GraphRow> InvoicesPerMonth();
/// The units of two items on the invoices of those twelve months.
QList<GraphRow> ItemSales(qint64 firstItem, qint64 secondItem);
