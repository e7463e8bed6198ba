#include "base/numbers.h"

#include "base/number_reader.h"
#include "base/regional_formats.h"
#include "base/runtime_error.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <string_view>

namespace {

DecimalNumber NumberOf(QStringView text)
{
    auto number = ReadNumber(text);
    if (!number)
        throw TypeMismatch();
    return std::move(*number);
}

QString WithDecimalSeparator(std::string_view ascii)
{
    QString text = QString::fromLatin1(ascii.data(), qsizetype(ascii.size())).toUpper();
    const QString& decimal = Formats().decimal;
    if (decimal != QLatin1String("."))
        text.replace(QLatin1Char('.'), decimal);
    return text;
}

constexpr size_t MostMoneyDigits = 40;

/// Writes an amount with a point and as many decimals as it has.
std::string_view WriteDigits(Currency value, char (&room)[MostMoneyDigits])
{
    const qint64 count = value.TenThousandths();
    const quint64 size = count < 0 ? 0 - quint64(count) : quint64(count);
    room[0] = '-';
    char* end = std::to_chars(room + 1, std::end(room), size / 10000).ptr;
    if (quint64 decimals = size % 10000; decimals != 0) {
        *end++ = '.';
        for (quint64 place = 1000; decimals != 0; decimals %= place, place /= 10)
            *end++ = char('0' + decimals / place);
    }
    const char* start = count < 0 ? room : room + 1;
    return {start, size_t(end - start)};
}

/// What `Val` reads: the text without its blanks, as far as it can matter.
QByteArray Packed(QStringView text)
{
    QByteArray packed;
    for (const QChar character : text) {
        if (character == QLatin1Char(' ') || character == QLatin1Char('\t') || character == QLatin1Char('\n'))
            continue;
        const char latin = character.unicode() < 0x80 ? char(character.unicode()) : '?';
        if (!std::isalnum(static_cast<unsigned char>(latin)) && !std::strchr("+-.&%!#@$", latin))
            break;
        packed.append(latin);
    }
    return packed;
}

/// "&H" and "&O" numbers: four hexadecimal digits are a 16-bit number with its sign, eight a 32-bit one.
double BaseVal(const QByteArray& packed)
{
    const int base = std::tolower(packed.at(1)) == 'h' ? 16 : 8;
    const char* const start = packed.constData() + 2;
    quint64 value = 0;
    const auto [end, error] = std::from_chars(start, packed.constEnd(), value, base);
    if (error != std::errc())
        return 0;
    if (value <= 0xFFFF && *end != '&')
        return qint16(value);
    return value <= 0xFFFFFFFF ? double(qint32(value)) : double(value);
}

/// The length of digits with at most one point among them.
qsizetype MantissaLength(const QByteArray& text, bool& fraction)
{
    qsizetype at = 0;
    for (; at < text.size(); ++at) {
        const bool point = text.at(at) == '.';
        if (!std::isdigit(static_cast<unsigned char>(text.at(at))) && !(point && !fraction))
            break;
        fraction |= point;
    }
    return at;
}

/// The exponent behind the mantissa, as "e-5"; "" when a letter has no digits behind it.
QByteArray ExponentAt(const QByteArray& text, qsizetype at)
{
    if (at >= text.size() || !std::strchr("eEdD", text.at(at)))
        return {};
    qsizetype end = at + 1;
    if (end < text.size() && (text.at(end) == '-' || text.at(end) == '+'))
        ++end;
    const qsizetype digits = end;
    while (end < text.size() && std::isdigit(static_cast<unsigned char>(text.at(end))))
        ++end;
    if (end == digits)
        return {};
    return 'e' + QByteArray(text.at(at + 1) == '-' ? "-" : "") + text.mid(digits, end - digits);
}

} // namespace

bool IsNumeric(QStringView text)
{
    const auto number = ReadNumber(text);
    return number && number->FitsDouble();
}

double CDbl(QStringView text)
{
    return NumberOf(text).ToDouble();
}

Currency CCur(QStringView text)
{
    return NumberOf(text).ToCurrency();
}

qint32 CLng(QStringView text)
{
    return CLng(CDbl(text));
}

qint32 CLng(double value)
{
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<qint32>::min() && whole <= std::numeric_limits<qint32>::max()))
        throw Overflow();
    return qint32(whole);
}

bool CBool(QStringView text)
{
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0)
        return false;
    return CDbl(text) != 0;
}

QString TruthText(bool value)
{
    return value ? QStringLiteral("True") : QStringLiteral("False");
}

double Val(QStringView text)
{
    const QByteArray packed = Packed(text);
    if (packed.size() > 2 && packed.at(0) == '&' && std::strchr("hHoO", packed.at(1)))
        return BaseVal(packed);
    const bool minus = packed.startsWith('-');
    const QByteArray number = minus || packed.startsWith('+') ? packed.mid(1) : packed;
    bool fraction = false;
    const qsizetype length = MantissaLength(number, fraction);
    if (length == 0)
        return 0;
    const QByteArray exponent = ExponentAt(number, length);
    if (fraction && exponent.isEmpty() && length < number.size() && std::strchr("%&", number.at(length)))
        throw TypeMismatch();
    double value = 0;
    const QByteArray whole = number.left(length) + exponent;
    const auto result = std::from_chars(whole.constData(), whole.constEnd(), value);
    if (result.ec == std::errc::result_out_of_range && !exponent.startsWith("e-"))
        throw Overflow();
    return minus ? -value : value;
}

QString CStr(double value)
{
    if (value == 0)
        return QStringLiteral("0");
    char buffer[40];
    const char* end = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::general, 15).ptr;
    return WithDecimalSeparator({buffer, size_t(end - buffer)});
}

QString CStr(qint64 value)
{
    return QString::number(value);
}

QString CStr(Currency value)
{
    char room[MostMoneyDigits];
    return WithDecimalSeparator(WriteDigits(value, room));
}

void CStrUtf8(Currency value, std::string& text)
{
    char room[MostMoneyDigits];
    text = WriteDigits(value, room);
    if (const QString& decimal = Formats().decimal; decimal != QLatin1String("."))
        if (const size_t point = text.find('.'); point != std::string::npos)
            text.replace(point, 1, decimal.toStdString());
}
