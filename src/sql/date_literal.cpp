#include "sql/date_literal.h"

#include "base/date_reader.h"

std::optional<std::string> ReadDateLiteral(QStringView text)
{
    const std::optional<QDateTime> date =
        ReadDate(text, RegionalFormats::Order::MonthDayYear, DateStrictness::AsInStatements);
    if (!date)
        return std::nullopt;
    return (date->date().toString(Qt::ISODate) + u' ' + date->time().toString(Qt::ISODate)).toStdString();
}
