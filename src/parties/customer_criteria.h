#pragma once

#include <QList>
#include <QString>

/// The conditions of the customer finder.

/// A box of the finder: its text, and the column that it searches.
struct CustomerCriterion {
    const char* column;
    QString text;
};

/// The condition that the column contains the text anywhere; "" for an empty text. The text goes in as typed: its
/// wildcards count, and an apostrophe makes the statement fail.
QString AAS(const char* fieldName, const QString& text);

/// The conditions of all criteria as alternatives; "" when every text is empty.
QString AnyCriterion(const QList<CustomerCriterion>& criteria);
