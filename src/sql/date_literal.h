#pragma once

#include <QStringView>

#include <optional>
#include <string>

/// Reads what stands between the `#` signs of a date as yyyy-MM-dd HH:mm:ss: month first whatever the locale, day first
/// where that is impossible, year first when it has more than two digits; month names in English or the user's
/// language. Nothing when it is no date.
std::optional<std::string> ReadDateLiteral(QStringView text);
