#include "base/number_reader.h"

#include "base/regional_formats.h"
#include "base/runtime_error.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

namespace {

/// Exponents past this are out of every range already.
constexpr qint64 ExponentLimit = 100000000;

int HexDigit(QChar character)
{
    const char16_t unit = character.toLower().unicode();
    if (unit >= u'0' && unit <= u'9')
        return unit - u'0';
    return unit >= u'a' && unit <= u'f' ? unit - u'a' + 10 : -1;
}

/// Reads one text from left to right: what may stand in front, the digits, what may stand behind.
class Reader {
public:
    explicit Reader(QStringView text)
        : m_text(text)
        , m_formats(Formats())
    {
    }

    std::optional<DecimalNumber> Read()
    {
        while (SkipBlank() || TakeSign() || TakeOpenBracket() || TakeSymbol()) { }
        if (!(AtBasePrefix() ? ReadBaseDigits() : ReadDigits()))
            return std::nullopt;
        while (SkipBlank() || TakeSign() || TakeCloseBracket() || TakeSymbol()) { }
        if (!AtEnd() || m_bracketOpen)
            return std::nullopt;
        m_number.negative = m_minus || m_bracketClosed;
        return std::move(m_number);
    }

private:
    bool AtEnd() const { return m_at >= m_text.size(); }
    QChar Here() const { return m_text.at(m_at); }
    bool StandsHere(const QString& text) const
    {
        return !text.isEmpty() && !AtEnd() && Here() == text.front() && m_text.mid(m_at).startsWith(text);
    }

    bool Take(bool& once, qsizetype length)
    {
        if (once)
            return false;
        once = true;
        m_at += length;
        return true;
    }

    bool SkipBlank()
    {
        if (AtEnd() || !IsBlank(Here()))
            return false;
        ++m_at;
        return true;
    }

    bool TakeSign()
    {
        if (AtEnd())
            return false;
        if (m_formats.minusSigns.contains(Here()))
            return Take(m_minus, 1);
        return m_formats.plusSigns.contains(Here()) && Take(m_plus, 1);
    }

    bool TakeOpenBracket()
    {
        if (AtEnd() || Here() != QLatin1Char('('))
            return false;
        return Take(m_bracketOpen, 1);
    }

    bool TakeCloseBracket()
    {
        if (AtEnd() || Here() != QLatin1Char(')') || !m_bracketOpen)
            return false;
        m_bracketOpen = false;
        return Take(m_bracketClosed, 1);
    }

    bool TakeSymbol()
    {
        for (const QString& symbol : m_formats.currencySymbols)
            if (StandsHere(symbol))
                return Take(m_symbol, symbol.size());
        return false;
    }

    bool AtBasePrefix() const
    {
        return !m_symbol && m_at + 1 < m_text.size() && Here() == QLatin1Char('&')
            && (m_text.at(m_at + 1).toLower() == QLatin1Char('h') || m_text.at(m_at + 1).toLower() == QLatin1Char('o'));
    }

    bool ReadBaseDigits()
    {
        const quint64 base = m_text.at(m_at + 1).toLower() == QLatin1Char('h') ? 16 : 8;
        m_at += 2;
        const qsizetype start = m_at;
        quint64 value = 0;
        for (; !AtEnd(); ++m_at) {
            const int digit = HexDigit(Here());
            if (digit < 0 || quint64(digit) >= base)
                break;
            if (value > std::numeric_limits<quint64>::max() / base)
                return false;
            value = value * base + quint64(digit);
        }
        char buffer[20];
        const char* end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
        if (value > 0)
            m_number.digits.append(buffer, end - buffer);
        return m_at > start;
    }

    bool ReadDigits()
    {
        while (!AtEnd() && (TakeDigit() || SkipGroup() || TakeDecimal() || TakeExponent())) { }
        m_number.exponent += m_exponent;
        return m_anyDigit;
    }

    bool TakeDigit()
    {
        int length = 0;
        const int digit = m_formats.DigitAt(m_text, m_at, length);
        if (digit < 0)
            return false;
        m_anyDigit = true;
        m_at += length;
        if (digit > 0 || !m_number.digits.isEmpty())
            m_number.digits.append(char('0' + digit));
        m_number.exponent -= m_decimal;
        return true;
    }

    bool SkipGroup()
    {
        if (StandsHere(m_formats.group) && !m_formats.groupsAreBlanks) {
            m_at += m_formats.group.size();
            return true;
        }
        // Swiss groups are written with a typographic apostrophe, which no keyboard has.
        if (m_formats.group == QStringLiteral("\u2019") && Here() == QLatin1Char('\'')) {
            ++m_at;
            return true;
        }
        int length = 0;
        const bool betweenDigits = m_formats.groupsAreBlanks && IsBlank(Here()) && m_anyDigit
            && m_at + 1 < m_text.size() && m_formats.DigitAt(m_text, m_at + 1, length) >= 0;
        m_at += betweenDigits;
        return betweenDigits;
    }

    bool TakeDecimal()
    {
        if (m_exponentSeen)
            return false;
        if (StandsHere(m_formats.decimal))
            return Take(m_decimal, m_formats.decimal.size());
        // Where the locale has a decimal separator of its own script, Latin keyboards still give a point.
        const bool ownSeparator = m_formats.decimal.front().unicode() > 0x7F;
        return ownSeparator && Here() == QLatin1Char('.') && Take(m_decimal, 1);
    }

    /// An exponent is taken whole or not at all: the letter may as well begin a currency symbol.
    bool TakeExponent()
    {
        const QChar letter = Here().toLower();
        if (m_exponentSeen || !m_anyDigit || (letter != QLatin1Char('e') && letter != QLatin1Char('d')))
            return false;
        qsizetype at = m_at + 1;
        const bool minus = at < m_text.size() && m_formats.minusSigns.contains(m_text.at(at));
        const bool plus = at < m_text.size() && m_formats.plusSigns.contains(m_text.at(at));
        at += minus || plus;
        const qsizetype start = at;
        int length = 0;
        for (int digit = 0; at < m_text.size() && (digit = m_formats.DigitAt(m_text, at, length)) >= 0; at += length)
            m_exponent = std::min(m_exponent * 10 + digit, ExponentLimit);
        if (at == start)
            return false;
        m_exponent = minus ? -m_exponent : m_exponent;
        m_exponentSeen = true;
        m_at = at;
        return true;
    }

    QStringView m_text;
    const RegionalFormats& m_formats;
    qsizetype m_at = 0;
    DecimalNumber m_number;
    qint64 m_exponent = 0;
    bool m_minus = false;
    bool m_plus = false;
    bool m_symbol = false;
    bool m_bracketOpen = false;
    bool m_bracketClosed = false;
    bool m_decimal = false;
    bool m_exponentSeen = false;
    bool m_anyDigit = false;
};

/// The first `count` digits as a whole number, with zeros where they end. Throws Overflow past 19 places.
quint64 LeadingDigits(const DecimalNumber& number, qint64 count)
{
    if (count > 19)
        throw Overflow();
    quint64 value = 0;
    for (qint64 at = 0; at < count; ++at)
        value = value * 10 + (at < number.digits.size() ? quint64(number.digits[at] - '0') : 0);
    return value;
}

/// What the digits from `first` on amount to, against one half of the place before them: -1 less, 0 a tie, 1 more.
int CompareToHalf(const DecimalNumber& number, qint64 first)
{
    if (first < 0 || first >= number.digits.size())
        return -1;
    if (number.digits[first] != '5')
        return number.digits[first] < '5' ? -1 : 1;
    const auto rest = number.digits.begin() + first + 1;
    return std::any_of(rest, number.digits.end(), [](char digit) { return digit != '0'; }) ? 1 : 0;
}

} // namespace

bool DecimalNumber::FitsDouble() const
{
    if (digits.size() + exponent < 308)
        return true;
    try {
        ToDouble();
        return true;
    } catch (const RuntimeError&) {
        return false;
    }
}

double DecimalNumber::ToDouble() const
{
    const qint64 places = digits.size() + exponent;
    if (digits.isEmpty() || places < -400)
        return 0;
    if (places > 400)
        throw Overflow();
    auto text = digits;
    text.append('e');
    char power[24];
    text.append(power, std::to_chars(power, power + sizeof power, exponent).ptr - power);
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        if (places > 0)
            throw Overflow();
        return 0;
    }
    return negative ? -value : value;
}

Currency DecimalNumber::ToCurrency() const
{
    constexpr qint64 Decimals = 4;
    constexpr quint64 Limit = quint64(1) << 63;
    if (digits.isEmpty())
        return {};
    const qint64 places = digits.size() + exponent + Decimals;
    quint64 count = LeadingDigits(*this, std::max<qint64>(places, 0));
    const int half = CompareToHalf(*this, places);
    // An exact tie goes the way that it goes for the same number held as a double, as far as doubles are that fine.
    constexpr quint64 DoublesAreFine = 100000000000000;
    if (half == 0 && count < DoublesAreFine)
        return CCur(ToDouble());
    count += half > 0 || (half == 0 && count % 2 == 1);
    if (count > Limit - (negative ? 0 : 1))
        throw Overflow();
    return Currency::FromTenThousandths(qint64(negative ? 0 - count : count));
}

std::optional<DecimalNumber> ReadNumber(QStringView text)
{
    return Reader(text).Read();
}

DecimalNumber DecimalOf(double value)
{
    if (!std::isfinite(value))
        throw Overflow();
    DecimalNumber number;
    if (value == 0)
        return number;
    char buffer[40];
    char* const end =
        std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value), std::chars_format::scientific, 14).ptr;
    const std::string_view text(buffer, size_t(end - buffer)); // such as 1.23400000000000e+03
    const size_t power = text.find('e');
    number.negative = value < 0;
    number.digits.append(text[0]);
    number.digits.append(text.data() + 2, qsizetype(power) - 2);
    int exponent = 0;
    std::from_chars(text.data() + power + (text[power + 1] == '+' ? 2 : 1), end, exponent);
    number.exponent = exponent - 14;
    return number;
}

QVarLengthArray<char, 40> RoundedDigits(const DecimalNumber& number, int decimals)
{
    const qint64 places = number.digits.size() + number.exponent + decimals;
    QVarLengthArray<char, 40> rounded;
    for (qint64 at = 0; at < places; ++at)
        rounded.append(at < number.digits.size() ? number.digits[at] : '0');
    if (!number.digits.isEmpty() && CompareToHalf(number, places) >= 0) {
        auto digit = rounded.end();
        while (digit != rounded.begin() && *(digit - 1) == '9')
            *--digit = '0';
        if (digit == rounded.begin())
            rounded.insert(rounded.begin(), '1');
        else
            ++*(digit - 1);
    }
    while (rounded.size() <= decimals)
        rounded.insert(rounded.begin(), '0');
    return rounded;
}
