#include "sql/locale_order.h"

#include <gtest/gtest.h>
#include <QLocale>

#include <random>
#include <string>

namespace {

int Sign(int order)
{
    return (order > 0) - (order < 0);
}

/// A word of letters, pairs that some languages sort as one letter, blanks, digits and signs.
std::string AnyWord(std::mt19937& random)
{
    static const std::string pieces[] = {"a", "aa", "b", "c", "C", "ch", "cs", "d", "dz", "e", "g", "h", "H", "i", "j",
        "k", "l", "lj", "ll", "n", "nj", "o", "r", "s", "sz", "t", "u", "v", "w", "x", "y", "z", "zs", " ", "1", "9",
        "(", "_", "/", "é", "ö"};
    std::string word;
    for (unsigned length = 1 + random() % 4; length > 0; --length)
        word += pieces[random() % std::size(pieces)];
    return word;
}

} // namespace

class Order : public ::testing::TestWithParam<const char*> { };

/// The short way that plain texts take must never disagree with the language's own rules.
TEST_P(Order, IsThatOfTheLocale)
{
    const QLocale locale{QString::fromLatin1(GetParam())};
    const LocaleOrder order(locale);
    QCollator collator(locale);
    collator.setCaseSensitivity(Qt::CaseInsensitive);
    std::mt19937 random(1);
    for (int round = 0; round < 5000; ++round) {
        const std::string left = AnyWord(random);
        const std::string right = AnyWord(random);
        const int expected = collator.compare(QString::fromStdString(left), QString::fromStdString(right));
        ASSERT_EQ(Sign(order.Compare(left, right)), Sign(expected)) << left << " and " << right;
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, Order,
    ::testing::Values(
        "en_US", "de_DE", "fr_FR", "cs_CZ", "da_DK", "et_EE", "hr_HR", "hu_HU", "lt_LT", "es_ES", "sv_SE"));
