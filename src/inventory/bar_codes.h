#pragma once

#include <QString>

#include <optional>

/// The first item with this bar code, or else with the other form of the same UPC or EAN. The code goes into the
/// statement as it was scanned, so one with a quote makes the statement fail.
std::optional<qint32> FindItemByBarCode(const QString& code);
