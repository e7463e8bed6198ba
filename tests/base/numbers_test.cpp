#include "base/numbers.h"
#include "base/retail_code.h"
#include "support/test.h"

namespace {

Currency Amount(const QString& tenThousandths)
{
    return Currency::FromTenThousandths(tenThousandths.toLongLong());
}

QString Written(Currency amount)
{
    std::string text = "longer than an amount";
    CStrUtf8(amount, text);
    EXPECT_EQ(QString::fromStdString(text), CStr(amount));
    return CStr(amount);
}

/// What is given may have a second part, behind a bar.
QString Answered(const QString& function, const QString& given)
{
    const auto number = [](double value) { return QString::number(value, 'g', 15); };
    const auto count = [](Currency amount) { return QString::number(amount.TenThousandths()); };
    const QString first = given.section('|', 0, 0), second = given.section('|', 1);
    const QHash<QString, std::function<QString()>> functions{
        {"CDbl", [&] { return number(CDbl(given)); }},
        {"CCur", [&] { return count(CCur(given)); }},
        {"CCurOfDouble", [&] { return count(CCur(given.toDouble())); }},
        {"CLng", [&] { return QString::number(CLng(given)); }},
        {"ToInteger16", [&] { return QString::number(ToInteger16(given.toInt())); }},
        {"CBool", [&] { return TruthText(CBool(given)); }},
        {"Val", [&] { return number(Val(given)); }},
        {"CStr", [&] { return CStr(given.toDouble()); }},
        {"CStrOfCurrency", [&] { return Written(Amount(given)); }},
        {"RoundedHalfAway", [&] { return count(Amount(first).RoundedHalfAway(second.toInt())); }},
        {"FormatNumber", [&] { return FormatNumber(first.toDouble(), second); }},
        {"FormatText", [&] { return FormatNumber(first, second); }},
        {"FormatCurrency", [&] { return FormatCurrency(Amount(given)); }},
        {"FormatDouble", [&] { return FormatCurrency(given.toDouble()); }},
        {"FormatCurrencyText", [&] { return FormatCurrency(given); }},
    };
    return functions.value(function)();
}

TEST(Numbers, TextsAreReadAndWrittenByTheRulesOfTheLocale)
{
    ExpectCases("numbers.txt", Answered);
    ExpectCases("currency.txt", Answered);
}

TEST(Currency, ArithmeticThatLeavesTheRangeOverflows)
{
    const Currency largest = Amount("9223372036854775807"), smallest = Amount("-9223372036854775808"),
                   one = Amount("1");
    const std::function<Currency()> overflows[] = {[&] { return largest + one; }, [&] { return smallest - one; },
        [&] { return -smallest; }, [&] { return largest * 2; }, [] { return Currency::FromWhole(922337203685478); }};
    for (const auto& overflow : overflows)
        EXPECT_EQ(ErrorOf(overflow), 6);
    EXPECT_EQ(largest - one + one, largest);
    // A discount of ten percent is rounded before it is taken off.
    const Currency price = Amount("99900");
    EXPECT_EQ(price - CCur(price.ToDouble() * 10 / 100), Amount("89910"));
}

TEST(Numbers, AnUnsetLocaleCountsAsTheUnitedStates)
{
    SetRegional(QLocale::c());
    EXPECT_EQ(GetLocaleText(LocaleItem::CurrencySymbol), "$");
    EXPECT_EQ(WeekdayNames().front(), "Sunday");
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(WeekdayNames(), QString("Montag Dienstag Mittwoch Donnerstag Freitag Samstag Sonntag").split(' '));
}

TEST(Numbers, HugeTextsAreRead)
{
    constexpr int Megabyte = 1000000;
    EXPECT_FALSE(IsNumeric(QString(Megabyte, '7')));
    EXPECT_EQ(CDbl(QString(Megabyte, '0') + "5"), 5);
    EXPECT_EQ(CCur("0." + QString(Megabyte, '3')).TenThousandths(), 3333);
    EXPECT_EQ(CDbl("0." + QString(Megabyte, '0') + "1e1000001"), 1);
    EXPECT_FALSE(IsNumeric(QString(Megabyte, 'x')));
    EXPECT_FALSE(IsNumeric(QString(Megabyte, '(')));
    EXPECT_EQ(Val(QString(Megabyte, ' ') + "5"), 5);
    EXPECT_EQ(ErrorOf([] { Val(QString(400, '9')); }), 6);
}

TEST(Numbers, WhatIsNumericIsWhatConverts)
{
    const QString alphabet = QStringLiteral("0123456789..,,eEdD+-−() $€%&HhOoxfF'\u00A0\u202F\u200F٣٫٬a\t");
    std::mt19937 random(1);
    int numeric = 0;
    for (const char* locale : {"en_US", "de_DE", "fr_FR", "ar_EG", "en_IN"}) {
        SetRegional(QLocale(locale));
        for (int turn = 0; turn < 40000; ++turn) {
            QString text;
            for (auto length = random() % 8; length > 0; --length)
                text += alphabet.at(qsizetype(random()) % alphabet.size());
            const int error = ErrorOf([&] { CDbl(text); });
            ASSERT_EQ(IsNumeric(text), error == 0) << text.toStdString();
            ASSERT_TRUE(error == 0 || error == 6 || error == 13);
            const int currencyError = ErrorOf([&] { CCur(text); });
            ASSERT_TRUE(error == 13 ? currencyError == 13 : currencyError != 13) << text.toStdString();
            ErrorOf([&] { Val(text); });
            numeric += error == 0;
        }
    }
    EXPECT_GT(numeric, 2000) << "too few of the texts are numbers to say much";
}

TEST(Currency, IsShownAsTheLocaleDataHasItAndReadBackInEveryLocale)
{
    for (const char* name : {"en_US", "en_GB", "de_DE", "fr_FR", "ja_JP", "sv_SE", "nl_NL", "de_CH", "en_IN", "es_ES",
             "pl_PL", "da_DK", "hi_IN", "ar_KW", "ar_EG", "fa_IR", "he_IL", "ff_Adlm_GN"}) {
        const QLocale locale(name);
        SetRegional(locale);
        std::mt19937_64 random(20030704);
        for (int turn = 0; turn < 2000; ++turn) {
            const Currency amount = Currency::FromTenThousandths(qint64(random()) >> (random() % 63));
            const QString text = FormatCurrency(amount);
            ASSERT_TRUE(IsNumeric(text)) << name << text.toStdString();
            // The largest amounts round up to what no amount can hold.
            if (qAbs(amount.ToDouble()) < 9e14) {
                ASSERT_EQ(CCur(text), amount.RoundedHalfAway(CurrencyDigits())) << name << text.toStdString();
            }
        }
        // All numbers are written with the same digits, those that stand without a frame included.
        for (const double amount : {1.0, -1.0, 1234.0, -98765432.0}) {
            QString expected = locale.toCurrencyString(amount);
            for (int digit = 0; digit <= 9; ++digit)
                expected.replace(locale.toString(digit), QString::number(digit));
            EXPECT_EQ(FormatCurrency(amount), expected) << name;
        }
    }
}

TEST(RetailCode, IsTheDigitsOfAnEanOrUpcWithTheRightCheckDigit)
{
    for (const char* code : {"4006381333931", "036000291452", "96385074", "0000000000000"})
        EXPECT_TRUE(IsRetailCode(code)) << code;
    for (const char* text :
        {"", "4006381333932", "36000291452", "1234567", "40063813339310", "400638133393A", "-4006381333931", "100000"})
        EXPECT_FALSE(IsRetailCode(text)) << text;
}

} // namespace
