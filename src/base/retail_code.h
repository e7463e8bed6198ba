#pragma once

#include <QString>

/// Whether these are the digits of an EAN or UPC: 8, 12 or 13 of them, the last one checking the others.
bool IsRetailCode(const QString& text);

/// The same article's other code: a UPC of 12 digits is an EAN of 13 that begins with 0. "" for all other texts.
QString TwinOfRetailCode(const QString& code);
