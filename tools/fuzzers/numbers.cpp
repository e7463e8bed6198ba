#include "fuzzing.h"

#include "base/numbers.h"
#include "base/regional.h"

#include <QtNumeric>

#include <cmath>
#include <cstring>
#include <optional>

/// Numbers read and written in a dozen locales. The first byte chooses the locale, then come an amount and a number of
/// eight bytes each, a mask in a line, and a text.

namespace {

/// What `read` makes of a text; nothing when it tells an error.
template <typename Read>
auto Tried(Read&& read) -> std::optional<decltype(read())>
{
    std::optional<decltype(read())> value;
    Succeeds([&] { value = read(); });
    return value;
}

/// Within what fifteen digits can tell.
bool AreClose(double one, double other)
{
    return one == other || std::abs(one - other) <= 1e-14 * std::max(std::abs(one), std::abs(other));
}

void CheckNumber(double number, const QString& mask)
{
    if (!std::isfinite(number))
        return;
    const QString text = CStr(number);
    if (const auto back = Tried([&] { return CDbl(text); }))
        Expect(CStr(*back) == text, "a number is written as it was read");
    else
        // Rounded to fifteen digits the largest numbers are past the range.
        Expect(std::abs(number) > 1.7976931348623e308, "a written number is read");
    Expect(Val(QString::number(number, 'g', 17)) == number, "Val reads plain digits");
    Tried([&] { return FormatCurrency(number); });
    Tried([&] { return FormatNumber(number, mask); });
}

void CheckReading(const QString& text)
{
    const auto number = Tried([&] { return CDbl(text); });
    Expect(number.has_value() == IsNumeric(text), "what is numeric converts, and nothing else does");
    const auto amount = Tried([&] { return CCur(text); });
    const auto whole = Tried([&] { return CLng(text); });
    Tried([&] { return Val(text); });
    Tried([&] { return CBool(text); });
    if (!number) {
        Expect(!whole, "a whole number is a number");
        return;
    }
    Expect(std::isfinite(*number), "a number that was read is finite");
    Expect(CDbl(u' ' + text + u' ') == *number, "blanks around a number change nothing");
    CheckNumber(*number, {});
    if (std::abs(*number) > 1e-290 && std::abs(*number) < 1e308)
        Expect(AreClose(CDbl(CStr(*number)), *number), "a written number reads back");
    if (whole)
        Expect(*whole == std::nearbyint(*number), "a whole number is the nearest");
    else
        Expect(std::abs(*number) >= 2147483647.5, "a number within 32 bits has a whole number");
    if (amount)
        Expect(std::abs(amount->ToDouble() - *number) <= 0.00005001 + 1e-14 * std::abs(*number),
            "an amount is the number to four decimals");
    else
        Expect(std::abs(*number) > 922337203685477, "a number within the range of amounts is an amount");
}

void CheckAmount(Currency amount)
{
    Expect(CCur(CStr(amount)) == amount, "an amount reads back as it is written");
    const auto rounded = Tried([&] { return amount.RoundedHalfAway(CurrencyDigits()); });
    if (!rounded)
        return;
    const QString text = FormatCurrency(amount);
    Expect(CCur(text) == *rounded, "currency text reads back");
    Expect(IsNumeric(text), "currency text is numeric");
    // Fifteen digits are enough for amounts up to here.
    if (std::abs(amount.ToDouble()) < 1e10) {
        Expect(FormatCurrency(amount.ToDouble()) == text, "an amount looks the same as a number");
        Expect(CCur(amount.ToDouble()) == amount, "an amount goes through a number and back");
    }
}

void CheckArithmetic(Currency one, Currency other)
{
    const auto sum = Tried([&] { return one + other; });
    if (sum)
        Expect(*sum - other == one && *sum - one == other, "a sum less one part is the other");
    const auto difference = Tried([&] { return one - other; });
    if (difference)
        Expect(*difference + other == one, "a difference and what was taken is the whole");
    if (const auto doubled = Tried([&] { return one * 2; }))
        Expect(*doubled == one + one, "twice an amount is the sum of two");
}

} // namespace

void Fuzz(FuzzInput input)
{
    ChooseLocale(input.Byte());
    const Currency amount = Currency::FromTenThousandths(input.Number());
    const qint64 bits = input.Number();
    double number = 0;
    std::memcpy(&number, &bits, sizeof number);
    const QString mask = AnyText(input.Line());
    CheckAmount(amount);
    CheckArithmetic(amount, Currency::FromTenThousandths(bits));
    CheckNumber(number, mask);
    CheckReading(AnyText(input.Rest()));
}
