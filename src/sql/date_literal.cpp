#include "sql/date_literal.h"

#include "base/date_reader.h"

namespace {

/// By hand, since every statement about a period passes here: Qt takes longer to write this than we take to read a
/// date.
std::string IsoText(const QDateTime& moment)
{
    std::string text = "0000-00-00 00:00:00";
    const auto write = [&text](size_t end, int value) {
        for (; value > 0; value /= 10)
            text[--end] = char('0' + value % 10);
    };
    int year, month, day;
    moment.date().getDate(&year, &month, &day);
    write(4, year);
    write(7, month);
    write(10, day);
    write(13, moment.time().hour());
    write(16, moment.time().minute());
    write(19, moment.time().second());
    return text;
}

} // namespace

std::optional<std::string> ReadDateLiteral(QStringView text)
{
    const std::optional<QDateTime> date =
        ReadDate(text, RegionalFormats::Order::MonthDayYear, DateStrictness::AsInStatements);
    return date ? std::optional(IsoText(*date)) : std::nullopt;
}
