#include "base/number_reader.h"
#include "base/numbers.h"
#include "base/regional_formats.h"

#include <algorithm>
#include <charconv>

namespace {

using Text = QVarLengthArray<QChar, 96>;

void Append(Text& text, const QString& piece)
{
    text.append(piece.constData(), piece.size());
}

/// True when a group separator follows a digit that has `left` more digits behind it in the whole part.
bool GroupEndsAt(const RegionalFormats& formats, qsizetype left)
{
    return left == formats.lastGroup
        || (left > formats.lastGroup && (left - formats.lastGroup) % formats.otherGroups == 0);
}

/// `digits` with the last `decimals` of them as decimals, inside the locale's frame for the sign.
QString CurrencyText(bool negative, const char* digits, qsizetype count, int decimals)
{
    const RegionalFormats& formats = Formats();
    // An amount that rounds to nothing has no sign.
    const bool isZero = std::all_of(digits, digits + count, [](char digit) { return digit == '0'; });
    const RegionalFormats::Frame& frame = negative && !isZero ? formats.negative : formats.positive;
    const qsizetype whole = count - decimals;
    const bool grouped = formats.lastGroup > 0 && whole >= formats.digitsToGroup;

    Text text;
    Append(text, frame.before);
    for (qsizetype at = 0; at < count; ++at) {
        if (at == whole)
            Append(text, formats.decimal);
        text.append(QLatin1Char(digits[at]));
        if (grouped && at + 1 < whole && GroupEndsAt(formats, whole - 1 - at))
            Append(text, formats.group);
    }
    Append(text, frame.after);
    return QString(text.constData(), text.size());
}

QString CurrencyText(Currency value, int decimals)
{
    constexpr quint64 StepOfDigits[] = {10000, 1000, 100, 10, 1};
    const qint64 count = value.TenThousandths();
    const quint64 size = count < 0 ? 0 - quint64(count) : quint64(count);
    const quint64 step = StepOfDigits[decimals];
    const quint64 rounded = (size + step / 2) / step;

    char buffer[32];
    std::fill(buffer, buffer + 5, '0');
    char* const start = buffer + 5;
    const char* const end = std::to_chars(start, buffer + sizeof buffer, rounded).ptr;
    // At least one digit stands in front of the decimals: the zeros laid out before the number fill it up.
    const qsizetype length = std::max<qsizetype>(end - start, decimals + 1);
    return CurrencyText(count < 0, end - length, length, decimals);
}

QString CurrencyText(double value, int decimals)
{
    const DecimalNumber number = DecimalOf(value);
    const auto digits = RoundedDigits(number, decimals);
    return CurrencyText(number.negative, digits.constData(), digits.size(), decimals);
}

/// A mask cut up: what stands before, among and behind the digit places.
struct NumberMask {
    explicit NumberMask(const QString& mask);

    QString before;
    QString after;
    int wholeZeros = 0;
    int decimalZeros = 0;
    int decimals = 0;
    bool grouped = false;
    bool percent = false;
    bool hasPlaces = false;

private:
    void Literal(QChar character) { (hasPlaces ? after : before).append(character); }
    void Place(QChar character);
    bool m_inDecimals = false;
};

NumberMask::NumberMask(const QString& mask)
{
    for (qsizetype at = 0; at < mask.size(); ++at) {
        const QChar character = mask.at(at);
        if (character == QLatin1Char('"')) {
            while (++at < mask.size() && mask.at(at) != QLatin1Char('"'))
                Literal(mask.at(at));
        } else if (character == QLatin1Char('\\')) {
            if (++at < mask.size())
                Literal(mask.at(at));
        } else if (character == QLatin1Char('0') || character == QLatin1Char('#')) {
            Place(character);
        } else if (character == QLatin1Char('.') && !m_inDecimals) {
            m_inDecimals = hasPlaces = true;
        } else if (character == QLatin1Char(',')) {
            grouped = true;
        } else {
            percent |= character == QLatin1Char('%');
            Literal(character);
        }
    }
}

void NumberMask::Place(QChar character)
{
    hasPlaces = true;
    const bool zero = character == QLatin1Char('0');
    if (!m_inDecimals) {
        // Behind the first "0" every place is filled.
        wholeZeros += zero || wholeZeros > 0;
        return;
    }
    ++decimals;
    if (zero)
        decimalZeros = decimals;
}

/// Digits as they stand in the mask's places: leading zeros filled up, optional decimals dropped.
QString Placed(QVarLengthArray<char, 40> digits, const NumberMask& mask)
{
    const RegionalFormats& formats = Formats();
    qsizetype whole = digits.size() - mask.decimals;
    qsizetype first = 0;
    while (first < whole && digits[first] == '0' && whole - first > mask.wholeZeros)
        ++first;
    qsizetype last = digits.size();
    while (last > whole + mask.decimalZeros && digits[last - 1] == '0')
        --last;

    QString text(std::max<qsizetype>(0, mask.wholeZeros - (whole - first)), QLatin1Char('0'));
    for (qsizetype at = first; at < last; ++at) {
        if (at == whole)
            text += formats.decimal;
        text += QLatin1Char(digits[at]);
        if (mask.grouped && formats.lastGroup > 0 && at + 1 < whole && GroupEndsAt(formats, whole - 1 - at))
            text += formats.group;
    }
    return text;
}

} // namespace

QString FormatCurrency(Currency value)
{
    return CurrencyText(value, Formats().currencyDigits);
}

QString FormatCurrency(double value)
{
    return CurrencyText(value, Formats().currencyDigits);
}

QString FormatCurrency(QStringView text)
{
    return FormatCurrency(CCur(text));
}

QString FormatNumber(double value, const QString& mask)
{
    if (mask.isEmpty())
        return CStr(value);
    if (mask.compare(QLatin1String("Currency"), Qt::CaseInsensitive) == 0)
        return CurrencyText(value, 2);
    const NumberMask parts(mask);
    if (!parts.hasPlaces)
        return parts.before;
    const DecimalNumber number = DecimalOf(parts.percent ? value * 100 : value);
    const auto digits = RoundedDigits(number, parts.decimals);
    const bool isZero = std::all_of(digits.begin(), digits.end(), [](char digit) { return digit == '0'; });
    const QString sign = number.negative && !isZero ? QStringLiteral("-") : QString();
    return sign + parts.before + Placed(digits, parts) + parts.after;
}

QString FormatNumber(const QString& text, const QString& mask)
{
    return IsNumeric(text) ? FormatNumber(CDbl(text), mask) : text;
}
