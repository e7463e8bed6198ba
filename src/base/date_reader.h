#pragma once

#include "base/regional_formats.h"

#include <QDateTime>
#include <QStringView>

#include <optional>

/// How much a reader of dates makes up its mind by itself.
enum class DateStrictness {
    /// The time may stand anywhere, an hour past 12 needs no half of the day, and where the order gives no date any
    /// other order does.
    AsTyped,
    /// The time stands last, if anywhere, and months and days change places alone: a year in front is one that is
    /// written in full. A time behind a blank is what is left of a date and time whose date was empty, and none.
    AsInStatements,
};

/// The one reader of dates: three numbers in `order`, or a month's name in English or the user's language with a day, a
/// year, or both; a date without a time is midnight, a time without a date is on 30 December 1899. Nothing when it is
/// no date from the year 100 to 9999.
std::optional<QDateTime> ReadDate(QStringView text, RegionalFormats::Order order, DateStrictness strictness);
