#pragma once

#include "base/calendar_names.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A date by a mask of `d`, `m`, `y`, `h`, `n`, `s`, `AM/PM` and separators. Month and day names are the user's. An
/// empty mask is the general date.
QString FormatDate(const QDateTime& value, const QString& mask);

/// The user's short date mask, four-digit year, in the form FormatDate takes.
QString ShortDateMask();
QString ShortDate(const QDateTime& value);

/// Short dates for a list of many rows, from the text of a date column ("2003-07-04 00:00:00") to UTF-8; "" for a text
/// that holds no date. The view lasts until the next call. Each day is written once as a rule: a list holds few days.
class ShortDateWriter {
public:
    std::string_view operator()(std::string_view stored);

private:
    struct Written {
        qint64 day = 0; ///< as the column's digits tell it, which need not be a day
        std::string text;
    };

    QString m_mask;
    std::vector<Written> m_written; ///< each day has one place, which it shares with others
};

/// Text to a date in the user's order, other orders where that one is impossible; nothing when it is no date.
std::optional<QDateTime> ReadDate(const QString& text);

/// "2003-7-4": no zero padding; "" when there is no date.
QString DateToYmd(const std::optional<QDateTime>& date);
QString DateToYmd(const QDate& date);
/// "2003-07-04", the form that statements carry.
QString DateToIso(const QDateTime& date);

int LastDayOfMonth(const QDate& date);
