#include "base/date_mask.h"

#include "base/regional_formats.h"

#include <algorithm>
#include <iterator>
#include <memory>

namespace {

void AppendNumber(QString& text, int value, int width)
{
    char16_t digits[12];
    char16_t* start = std::end(digits);
    for (; value > 0 || width > 0; value /= 10, --width)
        *--start = char16_t(u'0' + value % 10);
    text.append(reinterpret_cast<const QChar*>(start), std::end(digits) - start);
}

int TwelveHours(int hour)
{
    return hour % 12 == 0 ? 12 : hour % 12;
}

} // namespace

DateMask::DateMask(const QString& mask)
{
    static const QString AmPm = QStringLiteral("AM/PM");
    for (qsizetype at = 0; at < mask.size();) {
        const QChar character = mask.at(at);
        if (QStringView(mask).mid(at).startsWith(AmPm, Qt::CaseInsensitive)) {
            m_tokens.append({Part::AmPm, QString()});
            m_twelveHours = true;
            at += AmPm.size();
        } else if (character == QLatin1Char('"') || character == QLatin1Char('\\')) {
            at = ReadQuoted(mask, at);
        } else if (character == QLatin1Char('/') || character == QLatin1Char(':')) {
            Literal(character == QLatin1Char('/') ? Formats().dateSeparator : Formats().timeSeparator);
            ++at;
        } else {
            at = ReadField(mask, at);
        }
    }
}

void DateMask::Literal(const QString& text)
{
    m_tokens.append({Part::Literal, text});
}

qsizetype DateMask::ReadQuoted(const QString& mask, qsizetype at)
{
    if (mask.at(at) == QLatin1Char('\\')) {
        Literal(mask.mid(at + 1, 1));
        return at + 2;
    }
    qsizetype end = mask.indexOf(QLatin1Char('"'), at + 1);
    end = end < 0 ? mask.size() : end;
    Literal(mask.mid(at + 1, end - at - 1));
    return end + 1;
}

/// A run of one letter is a field; what is no field's letter stands for itself.
qsizetype DateMask::ReadField(const QString& mask, qsizetype at)
{
    const QChar letter = mask.at(at).toLower();
    qsizetype end = at;
    while (end < mask.size() && mask.at(end).toLower() == letter)
        ++end;
    const qsizetype length = end - at;
    const auto field = [&](std::initializer_list<Part> byLength) {
        const qsizetype index = std::min<qsizetype>(length, qsizetype(byLength.size())) - 1;
        m_tokens.append({*(byLength.begin() + index), QString()});
    };
    const bool minutes = letter == QLatin1Char('n') || (letter == QLatin1Char('m') && m_afterHour);
    if (letter.isLetter())
        m_afterHour = letter == QLatin1Char('h');

    if (minutes)
        field({Part::Minute, Part::Minute2});
    else if (letter == QLatin1Char('d'))
        field({Part::Day, Part::Day2, Part::DayShort, Part::DayLong});
    else if (letter == QLatin1Char('m'))
        field({Part::Month, Part::Month2, Part::MonthShort, Part::MonthLong});
    else if (letter == QLatin1Char('y'))
        field({Part::DayOfYear, Part::Year2, Part::Year4, Part::Year4});
    else if (letter == QLatin1Char('h'))
        field({Part::Hour, Part::Hour2});
    else if (letter == QLatin1Char('s'))
        field({Part::Second, Part::Second2});
    else if (letter == QLatin1Char('t'))
        field({Part::LocaleAmPm});
    else
        Literal(mask.mid(at, length));
    m_twelveHours |= letter == QLatin1Char('t');
    return end;
}

QString DateMask::NameOf(Part part, const QDate& date, const QTime& time)
{
    const QLocale& locale = Formats().locale;
    switch (part) {
    case Part::DayShort:
        return locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat);
    case Part::DayLong:
        return locale.standaloneDayName(date.dayOfWeek(), QLocale::LongFormat);
    case Part::MonthShort:
        return Formats().shortMonths.at(date.month() - 1);
    case Part::MonthLong:
        return locale.monthName(date.month(), QLocale::LongFormat);
    case Part::AmPm:
        return time.hour() < 12 ? QStringLiteral("AM") : QStringLiteral("PM");
    default:
        return time.hour() < 12 ? locale.amText() : locale.pmText();
    }
}

void DateMask::Append(QString& text, const Token& token, const Moment& moment) const
{
    switch (token.part) {
    case Part::Literal:
        text += token.text;
        return;
    case Part::Day:
    case Part::Day2:
        return AppendNumber(text, moment.day, token.part == Part::Day ? 1 : 2);
    case Part::Month:
    case Part::Month2:
        return AppendNumber(text, moment.month, token.part == Part::Month ? 1 : 2);
    case Part::DayOfYear:
        return AppendNumber(text, moment.date.dayOfYear(), 1);
    case Part::Year2:
        return AppendNumber(text, moment.year % 100, 2);
    case Part::Year4:
        return AppendNumber(text, moment.year, 4);
    case Part::Hour:
    case Part::Hour2:
        return AppendNumber(text, m_twelveHours ? TwelveHours(moment.time.hour()) : moment.time.hour(),
            token.part == Part::Hour ? 1 : 2);
    case Part::Minute:
    case Part::Minute2:
        return AppendNumber(text, moment.time.minute(), token.part == Part::Minute ? 1 : 2);
    case Part::Second:
    case Part::Second2:
        return AppendNumber(text, moment.time.second(), token.part == Part::Second ? 1 : 2);
    default:
        text += NameOf(token.part, moment.date, moment.time);
    }
}

QString DateMask::Write(const QDate& date, const QTime& time) const
{
    Moment moment{date, time};
    date.getDate(&moment.year, &moment.month, &moment.day);
    QString text;
    text.reserve(24);
    for (const Token& token : m_tokens)
        Append(text, token, moment);
    return text;
}

const DateMask& CompiledMask(const QString& mask)
{
    static std::unique_ptr<DateMask> compiled;
    static QString lastMask;
    static int generation = 0;
    if (!compiled || generation != Formats().generation || lastMask != mask) {
        compiled = std::make_unique<DateMask>(mask);
        lastMask = mask;
        generation = Formats().generation;
    }
    return *compiled;
}
