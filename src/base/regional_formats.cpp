#include "base/regional_formats.h"

#include "base/calendar_names.h"

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

/// The short date's pattern of the locale data as a mask: quoted words in double quotes, a year of four digits. Without
/// marks that turn the direction: texts run from left to right here, where these would mix up the fields.
QString ShortDateOf(const QLocale& locale)
{
    static const QRegularExpression LoneYear(QStringLiteral("(?<!y)y{1,2}(?!y)"));
    return locale.dateFormat(QLocale::ShortFormat)
        .removeIf(IsDirectionMark)
        .replace(QLatin1Char('\''), QLatin1Char('"'))
        .replace(LoneYear, QStringLiteral("yyyy"));
}

/// The long time's pattern of the locale data as a mask: hour, minutes, seconds and, where the language has it, the
/// half of the day. The words that some languages write among them and the time zone are left out.
QString TimeMaskOf(const QString& pattern)
{
    static const QRegularExpression QuotedWords(QStringLiteral("'[^']*'"));
    static const QRegularExpression Hours(QStringLiteral("[hH]+"));
    static const QRegularExpression HalfOfDay(QStringLiteral("[aAB]"));
    QString plain = pattern;
    plain.remove(QuotedWords);
    const QRegularExpressionMatch hours = Hours.match(plain);
    QString fields =
        (hours.capturedLength() > 1 ? QStringLiteral("hh") : QStringLiteral("h")) + QStringLiteral(":nn:ss");
    const qsizetype half = plain.indexOf(HalfOfDay);
    if (half < 0)
        return fields;
    if (half > hours.capturedStart())
        return fields + QStringLiteral(" t");
    const bool apart = QStringView(plain).mid(half, hours.capturedStart() - half).contains(QLatin1Char(' '));
    return (apart ? QStringLiteral("t ") : QStringLiteral("t")) + fields;
}

/// The sign between the fields of a time, unless dates have it too: a text must show which of them it is.
QString TimeSeparatorOf(const QString& pattern, const QString& dateSeparator)
{
    static const QRegularExpression Separators(QStringLiteral("[hH]([^\\w\\s'])m+\\1s"));
    const QString separator = Separators.match(pattern).captured(1);
    return separator.isEmpty() || separator == dateSeparator ? QStringLiteral(":") : separator;
}

/// Short month names as they stand alone. English ones for English, some of whose locales have "Sept" among the months
/// of three letters, and where the locale's own cannot be told from numbers, from each other, from English ones or from
/// a half of the day.
QStringList ShortMonthsOf(const QLocale& locale)
{
    QStringList own;
    QStringList english;
    for (int month = 1; month <= 12; ++month) {
        english.append(MonthAbbreviation(month));
        own.append(locale.standaloneMonthName(month, QLocale::ShortFormat));
    }
    const QStringList others =
        english + QStringList{QStringLiteral("am"), QStringLiteral("pm"), locale.amText(), locale.pmText()};
    const auto isClear = [&](const QString& name) {
        const auto isIt = [&](const QString& other) { return name.compare(other, Qt::CaseInsensitive) == 0; };
        const auto place = [&](const QStringList& names) {
            return std::find_if(names.begin(), names.end(), isIt) - names.begin();
        };
        const bool hasLetters =
            std::any_of(name.begin(), name.end(), [](QChar c) { return c.isLetter() || c.isSurrogate(); });
        return hasLetters && std::count_if(own.begin(), own.end(), isIt) == 1
            && (place(others) == others.size() || place(others) == place(own));
    };
    return locale.language() != QLocale::English && std::all_of(own.begin(), own.end(), isClear) ? own : english;
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

/// The first mark between two fields of a date mask.
QString DateSeparatorOf(const QString& mask)
{
    for (qsizetype at = 1; at < mask.size(); ++at)
        if (mask.at(at).isPunct() && mask.at(at) != QLatin1Char('"') && mask.at(at - 1).isLetter())
            return mask.mid(at, 1);
    return QStringLiteral("/");
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
    , time(TimeMaskOf(chosen.timeFormat(QLocale::LongFormat)))
    , shortMonths(ShortMonthsOf(chosen))
{
    groupsAreBlanks = !group.isEmpty() && IsBlank(group.front());
    ReadGroups(*this);
    currencyDigits = std::clamp(ReadFrame(*this, locale.toCurrencyString(1.0), positive), 0, 4);
    ReadFrame(*this, locale.toCurrencyString(-1.0), negative);
    ReadSymbols(*this);
    order = OrderOf(shortDate);
    dateSeparator = DateSeparatorOf(shortDate);
    timeSeparator = TimeSeparatorOf(locale.timeFormat(QLocale::LongFormat), dateSeparator);
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
