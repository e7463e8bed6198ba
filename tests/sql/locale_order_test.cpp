#include "sql/locale_order.h"
#include "support/test.h"

#include <QCollator>
#include <string>

namespace {

int Sign(int order)
{
    return (order > 0) - (order < 0);
}

/// A text of letters, pairs that some languages sort as one letter, accents, other scripts, blanks, digits and signs.
std::string AnyText(std::mt19937& random)
{
    static const std::string pieces[] = {"a", "aa", "b", "c", "C", "ch", "cs", "d", "dz", "e", "g", "h", "H", "i", "j",
        "k", "l", "lj", "ll", "n", "nj", "o", "r", "s", "sz", "t", "u", "v", "w", "x", "y", "z", "zs", " ", "1", "9",
        "(", "_", "/", "&", ".", "é", "É", "ö", "ø", "ß", "Ж", "ж", "и", "й", "ร", "字", "\x01", "e\u0301",
        "\U0001F600", "-", "'", "-", "'"};
    std::string text;
    for (unsigned length = random() % 6; length > 0; --length)
        text += pieces[random() % std::size(pieces)];
    return random() % 50 == 0 ? text + std::string(300, 'n') : text;
}

/// The language's own order, with hyphens and apostrophes between what it holds for equal.
int Expected(const QCollator& collator, const std::string& left, const std::string& right)
{
    const auto rest = [](const std::string& text) { return QString::fromStdString(text).remove(u'-').remove(u'\''); };
    const auto ignored = [&](const std::string& text) {
        return QString::fromStdString(text).size() - rest(text).size();
    };
    const int order = collator.compare(rest(left), rest(right));
    return Sign(order != 0 ? order : int(ignored(left) - ignored(right)));
}

TEST(Order, IsThatOfTheLocaleByKeyAndByComparison)
{
    for (const char* name : {"en_US", "de_DE", "fr_CA", "cs_CZ", "da_DK", "et_EE", "hr_HR", "hu_HU", "lt_LT", "es_ES",
             "sv_SE", "ru_RU", "th_TH", "ja_JP"}) {
        const QLocale locale{QLatin1String(name)};
        LocaleOrder order(locale);
        QCollator collator(locale);
        collator.setCaseSensitivity(Qt::CaseInsensitive);
        std::mt19937 random(1);
        for (int round = 0; round < 5000; ++round) {
            const std::string left = AnyText(random), right = AnyText(random);
            const int expected = Expected(collator, left, right);
            const std::string leftKey(order.Key(left));
            ASSERT_EQ(Sign(leftKey.compare(order.Key(right))), expected) << name << ": " << left << " and " << right;
            ASSERT_EQ(Sign(order.Compare(left, right)), expected) << name << ": " << left << " and " << right;
        }
    }
}

} // namespace
