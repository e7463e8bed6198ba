#include "base/calendar_names.h"

#include <array>

namespace {

constexpr std::array MonthAbbreviations{
    "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
constexpr std::array WeekdayNumbers{"Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday", "Sunday"};

} // namespace

QString MonthAbbreviation(int month)
{
    return month >= 1 && month <= 12 ? QString::fromLatin1(MonthAbbreviations[size_t(month - 1)]) : QString();
}

int WeekdayNumber(const QString& name)
{
    for (size_t day = 0; day < WeekdayNumbers.size(); ++day)
        if (name == QLatin1String(WeekdayNumbers[day]))
            return int(day) + 1;
    return 0;
}
