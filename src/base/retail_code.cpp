#include "base/retail_code.h"

#include <algorithm>

namespace {

constexpr qsizetype EanLength = 13;
constexpr qsizetype UpcLength = 12;
constexpr qsizetype ShortEanLength = 8;

bool AreDigits(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar digit) { return digit >= u'0' && digit <= u'9'; });
}

} // namespace

bool IsRetailCode(const QString& text)
{
    if ((text.size() != EanLength && text.size() != UpcLength && text.size() != ShortEanLength) || !AreDigits(text))
        return false;
    // From the right the digits count once and three times in turn.
    int sum = 0;
    for (qsizetype i = 0; i < text.size(); ++i)
        sum += text[text.size() - 1 - i].digitValue() * (i % 2 == 0 ? 1 : 3);
    return sum % 10 == 0;
}

QString TwinOfRetailCode(const QString& code)
{
    if (!AreDigits(code))
        return {};
    if (code.size() == UpcLength)
        return QLatin1Char('0') + code;
    return code.size() == EanLength && code.startsWith(u'0') ? code.mid(1) : QString();
}
