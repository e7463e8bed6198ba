#pragma once

#include <QList>
#include <QString>

/// A field of an item that a column of the file can feed.
struct ImportField {
    enum Kind : qint16 { Text = 1, LookedUpName, Number, Price };
    static constexpr qint16 Ignored = -1;

    QString Caption; ///< what the user sees
    QString ColumnName; ///< the target, or PriceOf the price list
    Kind Kind = Text;
    qint16 Limit = 0; ///< of a text, in characters
    qint16 SourceColumn = Ignored; ///< the file's column, from 0
};

/// All fields, none of them fed: those of the item and the prices of all lists by name.
QList<ImportField> BuildImportFields();

/// The ColumnName of a price.
QString PriceOf(const QString& priceList);
