#include "base/dates.h"

#include "base/date_mask.h"
#include "base/date_reader.h"
#include "base/regional_formats.h"

#include <array>
#include <charconv>

namespace {

/// The day on which the count of days starts: a time of day alone has it as its date.
const QDate DayZero(1899, 12, 30);

QString GeneralMask(const QDateTime& value)
{
    const RegionalFormats& formats = Formats();
    const bool hasTime = value.time() != QTime(0, 0);
    if (hasTime && value.date() == DayZero)
        return formats.time;
    return hasTime ? formats.shortDate + QLatin1Char(' ') + formats.time : formats.shortDate;
}

} // namespace

QString FormatDate(const QDateTime& value, const QString& mask)
{
    if (!value.isValid())
        return {};
    return CompiledMask(mask.isEmpty() ? GeneralMask(value) : mask).Write(value.date(), value.time());
}

QString ShortDateMask()
{
    return Formats().shortDate;
}

QString ShortDate(const QDateTime& value)
{
    return value.isValid() ? CompiledMask(Formats().shortDate).Write(value.date(), value.time()) : QString();
}

std::string_view ShortDateWriter::operator()(std::string_view stored)
{
    constexpr size_t Places = 2048; // five years of days side by side
    if (m_written.empty() || m_mask != Formats().shortDate) {
        m_mask = Formats().shortDate;
        m_written.assign(Places, {});
    }
    const auto number = [&](size_t at, size_t length) {
        int value = 0;
        if (at + length <= stored.size())
            std::from_chars(stored.data() + at, stored.data() + at + length, value);
        return value;
    };
    constexpr qint64 Apart = 200; // more than two digits and a sign can differ by
    const int year = number(0, 4), month = number(5, 2), dayOfMonth = number(8, 2);
    const qint64 day = (year * Apart + month) * Apart + dayOfMonth;
    Written& written = m_written[size_t((year * 12 + month) * 31 + dayOfMonth) % Places];
    if (written.day != day) {
        const QDate date(year, month, dayOfMonth);
        written = {day, date.isValid() ? CompiledMask(m_mask).Write(date, QTime()).toStdString() : std::string()};
    }
    return written.text;
}

std::optional<QDateTime> ReadDate(const QString& text)
{
    return ReadDate(text, Formats().order, DateStrictness::AsTyped);
}

QString DateToYmd(const std::optional<QDateTime>& date)
{
    return date ? DateToYmd(date->date()) : QString();
}

QString DateToYmd(const QDate& date)
{
    if (!date.isValid())
        return {};
    return QString::number(date.year()) + u'-' + QString::number(date.month()) + u'-' + QString::number(date.day());
}

QString DateToIso(const QDateTime& date)
{
    return date.date().toString(Qt::ISODate);
}

int LastDayOfMonth(const QDate& date)
{
    return date.daysInMonth();
}
