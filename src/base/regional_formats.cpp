#include "base/regional_formats.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

int gGenerations = 0;

bool IsDirectionMark(QChar character)
{
    const char16_t unit = character.unicode();
    return unit == 0x200E || unit == 0x200F || unit == 0x061C || (unit >= 0x202A && unit <= 0x202E)
        || (unit >= 0x2066 && unit <= 0x2069);
}

char32_t FirstCharacter(const QString& text)
{
    const auto characters = text.toUcs4();
    return characters.isEmpty() ? U'0' : characters.front();
}

QString WithoutBlanksAround(QString text)
{
    while (!text.isEmpty() && IsBlank(text.front()))
        text.remove(0, 1);
    while (!text.isEmpty() && IsBlank(text.back()))
        text.chop(1);
    return text;
}

QString Signs(const QString& always, const QString& locales)
{
    QString signs = always;
    for (const QChar character : locales)
        if (!IsBlank(character) && !signs.contains(character))
            signs.append(character);
    return signs;
}

void ReadGroups(RegionalFormats& formats)
{
    const QStringList groups = formats.locale.toString(qlonglong(12345678901234)).split(formats.group);
    if (formats.group.isEmpty() || groups.size() < 3)
        return;
    const int unitsOfDigit = formats.zero > 0xFFFF ? 2 : 1;
    formats.lastGroup = int(groups.last().size()) / unitsOfDigit;
    formats.otherGroups = int(groups.at(groups.size() - 2).size()) / unitsOfDigit;
    const bool groupsFourDigits = formats.locale.toString(qlonglong(1234)).contains(formats.group);
    formats.digitsToGroup = formats.lastGroup + (groupsFourDigits ? 1 : 2);
}

/// Cuts a currency text at its number. Returns the digits behind the decimal separator.
int ReadFrame(const RegionalFormats& formats, const QString& text, RegionalFormats::Frame& frame)
{
    qsizetype start = -1;
    qsizetype end = 0;
    int digits = 0;
    for (qsizetype at = 0; at < text.size(); ++at) {
        int length = 0;
        if (formats.DigitAt(text, at, length) < 0)
            continue;
        if (start < 0)
            start = at;
        ++digits;
        end = at + length;
        at = end - 1;
    }
    frame = {text.left(std::max<qsizetype>(start, 0)), text.mid(end)};
    return digits - 1;
}

void ReadSymbols(RegionalFormats& formats)
{
    const QString symbol = formats.locale.currencySymbol();
    for (const QString& candidate : {symbol, WithoutBlanksAround(symbol), WithoutBlanksAround(formats.positive.before),
             WithoutBlanksAround(formats.positive.after)})
        if (!candidate.isEmpty() && !formats.currencySymbols.contains(candidate))
            formats.currencySymbols.append(candidate);
    std::sort(formats.currencySymbols.begin(), formats.currencySymbols.end(),
        [](const QString& a, const QString& b) { return a.size() > b.size(); });
}

/// A pattern of the locale data as a mask: quoted text in double quotes, minutes as `n`, no time zone.
QString MaskOf(const QString& pattern, bool isTime)
{
    QString mask;
    bool quoted = false;
    for (qsizetype at = 0; at < pattern.size(); ++at) {
        const QChar character = pattern.at(at);
        if (character == QLatin1Char('\'')) {
            quoted = !quoted;
            mask += QLatin1Char('"');
        } else if (quoted || !isTime) {
            mask += character;
        } else if (character == QLatin1Char('m')) {
            mask += QLatin1Char('n');
        } else if (character.toLower() == QLatin1Char('a')) {
            mask += QLatin1Char('t');
            at += at + 1 < pattern.size() && pattern.at(at + 1).toLower() == QLatin1Char('p');
        } else if (character != QLatin1Char('t')) {
            mask += character.toLower() == QLatin1Char('h') ? QChar(QLatin1Char('h')) : character;
        }
    }
    return mask.trimmed();
}

QString ShortDateOf(const QLocale& locale)
{
    static const QRegularExpression LoneYear(QStringLiteral("(?<!y)y{1,2}(?!y)"));
    return MaskOf(locale.dateFormat(QLocale::ShortFormat), false).replace(LoneYear, QStringLiteral("yyyy"));
}

RegionalFormats::Order OrderOf(const QString& mask)
{
    const qsizetype day = mask.indexOf(QLatin1Char('d'));
    const qsizetype month = mask.indexOf(QLatin1Char('M'));
    const qsizetype year = mask.indexOf(QLatin1Char('y'));
    if (year < month && year < day)
        return RegionalFormats::Order::YearMonthDay;
    return month < day ? RegionalFormats::Order::MonthDayYear : RegionalFormats::Order::DayMonthYear;
}

/// The first mark between two fields of a mask, or `fallback`.
QString SeparatorOf(const QString& mask, const QString& fallback)
{
    for (qsizetype at = 1; at < mask.size(); ++at)
        if (mask.at(at).isPunct() && mask.at(at) != QLatin1Char('"') && mask.at(at - 1).isLetter())
            return mask.mid(at, 1);
    return fallback;
}

} // namespace

bool IsBlank(QChar character)
{
    return character == QLatin1Char(' ') || (character.unicode() > 0x7F && IsDirectionMark(character))
        || character.isSpace();
}

RegionalFormats::RegionalFormats(const QLocale& chosen)
    : locale(chosen)
    , generation(++gGenerations)
    , zero(FirstCharacter(chosen.zeroDigit()))
    , decimal(chosen.decimalPoint())
    , group(chosen.groupSeparator())
    , minusSigns(Signs(QStringLiteral("-\u2212"), chosen.negativeSign()))
    , plusSigns(Signs(QStringLiteral("+"), chosen.positiveSign()))
    , shortDate(ShortDateOf(chosen))
    , time(MaskOf(chosen.timeFormat(QLocale::LongFormat), true))
{
    groupsAreBlanks = !group.isEmpty() && IsBlank(group.front());
    ReadGroups(*this);
    currencyDigits = std::clamp(ReadFrame(*this, locale.toCurrencyString(1.0), positive), 0, 4);
    ReadFrame(*this, locale.toCurrencyString(-1.0), negative);
    ReadSymbols(*this);
    order = OrderOf(shortDate);
    dateSeparator = SeparatorOf(shortDate, QStringLiteral("/"));
    timeSeparator = SeparatorOf(time, QStringLiteral(":"));
}

int RegionalFormats::DigitAt(QStringView text, qsizetype at, int& length) const
{
    const char16_t unit = text.at(at).unicode();
    length = 1;
    if (unit <= 0x7F)
        return unit >= u'0' && unit <= u'9' ? unit - u'0' : -1;
    char32_t character = unit;
    if (QChar::isHighSurrogate(unit) && at + 1 < text.size() && text.at(at + 1).isLowSurrogate()) {
        character = QChar::surrogateToUcs4(unit, text.at(at + 1).unicode());
        length = 2;
    }
    return character >= zero && character < zero + 10 ? int(character - zero) : -1;
}
