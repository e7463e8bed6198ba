#include "base/numbers.h"
#include "base/regional.h"
#include "base/runtime_error.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>

#include <limits>
#include <optional>
#include <random>

namespace {

/// The number of the error that `body` throws; 0 for none.
template <typename Body>
int ErrorOf(Body&& body)
{
    try {
        body();
        return 0;
    } catch (const RuntimeError& error) {
        return error.Number();
    }
}

class Numbers : public testing::Test {
protected:
    void SetUp() override { SetRegional(QLocale("en_US")); }
    void TearDown() override { SetRegional(QLocale("en_US")); }
};

struct TextCase {
    const char* text;
    std::optional<double> value;
};
class NumberTexts : public testing::TestWithParam<TextCase> {
protected:
    void SetUp() override { SetRegional(QLocale("en_US")); }
};

TEST_P(NumberTexts, ReadAsNumbersOrNotAtAll)
{
    const QString text = QString::fromUtf8(GetParam().text);
    EXPECT_EQ(IsNumeric(text), GetParam().value.has_value());
    if (GetParam().value)
        EXPECT_DOUBLE_EQ(CDbl(text), *GetParam().value);
    else
        EXPECT_THROW(CDbl(text), RuntimeError);
}

INSTANTIATE_TEST_SUITE_P(Plain, NumberTexts,
    testing::Values(TextCase{"", {}}, TextCase{" ", {}}, TextCase{"0", 0}, TextCase{"007", 7}, TextCase{".5", 0.5},
        TextCase{"5.", 5}, TextCase{".", {}}, TextCase{"-", {}}, TextCase{"$", {}}, TextCase{",", {}},
        TextCase{" 12 ", 12}, TextCase{"\t12\r\n", 12}, TextCase{"1 2", {}}, TextCase{"1 000", {}},
        TextCase{"1.2.3", {}}, TextCase{"5%", {}}, TextCase{"5 items", {}}, TextCase{"True", {}}, TextCase{"12/5", {}},
        TextCase{"12:30", {}}, TextCase{"0x1F", {}}, TextCase{"٣", {}}));
INSTANTIATE_TEST_SUITE_P(Signs, NumberTexts,
    testing::Values(TextCase{"-5", -5}, TextCase{"- 5", -5}, TextCase{"+5", 5}, TextCase{"5-", -5}, TextCase{"5 -", -5},
        TextCase{"-5-", {}}, TextCase{"--5", {}}, TextCase{"+-5", -5}, TextCase{"−5", -5}, TextCase{"(5)", -5},
        TextCase{"(5", {}}, TextCase{"5)", {}}, TextCase{"()", {}}, TextCase{"(-5)", -5}, TextCase{"-(5)", -5},
        TextCase{"((5))", {}}));
INSTANTIATE_TEST_SUITE_P(GroupsAndCurrency, NumberTexts,
    testing::Values(TextCase{"1,234.50", 1234.5}, TextCase{"1,2,3", 123}, TextCase{"1,,2", 12}, TextCase{"1,", 1},
        TextCase{",5", 5}, TextCase{"1.234,56", 1.23456}, TextCase{"$5", 5}, TextCase{"$ 5", 5}, TextCase{"-$5", -5},
        TextCase{"$-5", -5}, TextCase{"5$", 5}, TextCase{"$5$", {}}, TextCase{"€5", {}},
        TextCase{"($1,234.50)", -1234.5}));
INSTANTIATE_TEST_SUITE_P(ExponentsAndBases, NumberTexts,
    testing::Values(TextCase{"1e3", 1000}, TextCase{"1E+3", 1000}, TextCase{"1.5e-2", 0.015}, TextCase{"1d3", 1000},
        TextCase{"1e3,5", 15000}, TextCase{"1e", {}}, TextCase{"e3", {}}, TextCase{"1e3.5", {}}, TextCase{"1e+", {}},
        TextCase{"1e309", {}}, TextCase{"1e308", 1e308}, TextCase{"0.001e311", 1e308}, TextCase{"1e-400", 0},
        TextCase{"0e999", 0}, TextCase{"1e99999999999999999999", {}}, TextCase{"&H1F", 31}, TextCase{"&hff", 255},
        TextCase{"&O17", 15}, TextCase{"&HG", {}}, TextCase{"&O8", {}}, TextCase{"&H", {}},
        TextCase{"&HFFFFFFFFFFFFFFFFFF", {}}));

TEST_F(Numbers, CurrencyTextsAreExactToTheLastPlace)
{
    EXPECT_EQ(CCur(u"922337203685477.5807").TenThousandths(), std::numeric_limits<qint64>::max());
    EXPECT_EQ(CCur(u"-922337203685477.5808").TenThousandths(), std::numeric_limits<qint64>::min());
    EXPECT_EQ(CCur(u"($1,200.68)").TenThousandths(), -12006800);
    EXPECT_EQ(CCur(u"0.12344999").TenThousandths(), 1234);
    EXPECT_EQ(CCur(u"0.12345").TenThousandths(), CCur(0.12345).TenThousandths());
    EXPECT_EQ(CCur(u"1e-9").TenThousandths(), 0);
    EXPECT_EQ(CCur(u"1.5e3").TenThousandths(), 15000000);
    for (const char16_t* text : {u"922337203685477.5808", u"1E15", u"1e300"})
        EXPECT_EQ(ErrorOf([&] { CCur(text); }), 6);
    EXPECT_EQ(ErrorOf([] { CCur(u""); }), 13);
}

TEST_F(Numbers, WholeNumbersRoundHalfToEven)
{
    EXPECT_EQ(CLng(u"12.5"), 12);
    EXPECT_EQ(CLng(u"13.5"), 14);
    EXPECT_EQ(CLng(-2.5), -2);
    EXPECT_EQ(CLng(u"1,234"), 1234);
    EXPECT_EQ(ErrorOf([] { CLng(u"3000000000"); }), 6);
    EXPECT_EQ(ErrorOf([] { CLng(u""); }), 13);
    EXPECT_EQ(ErrorOf([] { ToInteger16(32768); }), 6);
    EXPECT_EQ(ToInteger16(-32768), -32768);
}

TEST_F(Numbers, TruthIsAWordOrANumber)
{
    EXPECT_TRUE(CBool(u"True"));
    EXPECT_FALSE(CBool(u"false"));
    EXPECT_TRUE(CBool(u"-1"));
    EXPECT_FALSE(CBool(u"0"));
    EXPECT_EQ(ErrorOf([] { CBool(u"abc"); }), 13);
}

TEST_F(Numbers, ValReadsTheNumberThatStartsTheText)
{
    const std::pair<const char*, double> cases[] = {{"", 0}, {"abc", 0}, {"$5", 0}, {"(5)", 0}, {",", 0},
        {"12.5abc", 12.5}, {" 1615 198th Street", 1615198}, {"1,234", 1}, {"- 5", -5}, {"5-", 5}, {"1.2.3", 1.2},
        {"5e2x", 500}, {"5d2", 500}, {"5e", 5}, {"&HFF", 255}, {"&HFFFF", -1}, {"&HFFFF&", 65535}, {"50%", 50},
        {".5", 0.5}, {"1e-999", 0}};
    for (const auto& [text, value] : cases)
        EXPECT_EQ(Val(QString::fromUtf8(text)), value) << text;
    EXPECT_EQ(ErrorOf([] { Val(u"50.5%"); }), 13);
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(Val(u"12,5"), 12) << "only the point is a decimal separator, whatever the locale";
}

TEST_F(Numbers, PlainTextsHaveNoZerosToSpare)
{
    EXPECT_EQ(CStr(0.1 + 0.2), "0.3");
    EXPECT_EQ(CStr(-1234.5), "-1234.5");
    EXPECT_EQ(CStr(1e15), "1E+15");
    EXPECT_EQ(CStr(123456789012345.0), "123456789012345");
    EXPECT_EQ(CStr(0.00001), "1E-05");
    EXPECT_EQ(CStr(-0.0), "0");
    EXPECT_EQ(CStr(Currency::FromTenThousandths(89910)), "8.991");
    EXPECT_EQ(CStr(Currency::FromTenThousandths(-5000)), "-0.5");
    EXPECT_EQ(CStr(Currency::FromTenThousandths(std::numeric_limits<qint64>::min())), "-922337203685477.5808");
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(CStr(8.25), "8,25");
    EXPECT_EQ(CStr(Currency::FromTenThousandths(1)), "0,0001");
}

TEST_F(Numbers, MasksPlaceDigits)
{
    EXPECT_EQ(FormatNumber(42, "00000"), "00042");
    EXPECT_EQ(FormatNumber(123456, "00000"), "123456");
    EXPECT_EQ(FormatNumber(-5, "00000"), "-00005");
    EXPECT_EQ(FormatNumber(2.5, "00000"), "00003");
    EXPECT_EQ(FormatNumber(QString("42"), "00000"), "00042");
    EXPECT_EQ(FormatNumber(QString("abc"), "00000"), "abc");
    EXPECT_EQ(FormatNumber(8.25, "00.0\"%\""), "08.3%");
    EXPECT_EQ(FormatNumber(0.5, "0.0#%"), "50.0%");
    EXPECT_EQ(FormatNumber(1234567.891, "#,##0.00"), "1,234,567.89");
    EXPECT_EQ(FormatNumber(-0.004, "0.00"), "0.00");
    EXPECT_EQ(FormatNumber(-1234.5, "Currency"), "($1,234.50)");
    SetRegional(QLocale("ja_JP"));
    EXPECT_EQ(FormatNumber(1234.5, "Currency"), "￥1,234.50") << "the named format has two decimals everywhere";
}

TEST_F(Numbers, ReadingFollowsTheLocale)
{
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(CDbl(u"1.234,56"), 1234.56);
    EXPECT_FALSE(IsNumeric(u"$5"));
    SetRegional(QLocale("fr_FR"));
    EXPECT_EQ(CDbl(u"1 234,5"), 1234.5) << "typed with the plain blank";
    EXPECT_FALSE(IsNumeric(u"1  234"));
    SetRegional(QLocale("de_CH"));
    EXPECT_EQ(CDbl(u"1'234.5"), 1234.5);
    SetRegional(QLocale("ar_EG"));
    EXPECT_EQ(CDbl(u"١٬٢٣٤٫٥"), 1234.5);
    EXPECT_EQ(CDbl(u"1234.5"), 1234.5);
}

TEST_F(Numbers, AnUnsetLocaleCountsAsTheUnitedStates)
{
    SetRegional(QLocale::c());
    EXPECT_EQ(FormatCurrency(1234.5), "$1,234.50");
    EXPECT_EQ(GetLocaleText(LocaleItem::CurrencySymbol), "$");
    EXPECT_EQ(WeekdayNames().front(), "Sunday");
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(WeekdayNames(), QString("Montag Dienstag Mittwoch Donnerstag Freitag Samstag Sonntag").split(' '));
}

TEST_F(Numbers, HugeTextsAreReadInNoTime)
{
    constexpr int Megabyte = 1000000;
    QElapsedTimer timer;
    timer.start();
    EXPECT_FALSE(IsNumeric(QString(Megabyte, '7')));
    EXPECT_EQ(CDbl(QString(Megabyte, '0') + "5"), 5);
    EXPECT_EQ(CCur("0." + QString(Megabyte, '3')).TenThousandths(), 3333);
    EXPECT_EQ(CDbl("0." + QString(Megabyte, '0') + "1e1000001"), 1);
    EXPECT_FALSE(IsNumeric(QString(Megabyte, 'x')));
    EXPECT_FALSE(IsNumeric(QString(Megabyte, '(')));
    EXPECT_EQ(Val(QString(Megabyte, ' ') + "5"), 5);
    EXPECT_EQ(ErrorOf([] { Val(QString(400, '9')); }), 6);
    EXPECT_LT(timer.elapsed(), 2000);
}

TEST_F(Numbers, WhatIsNumericIsWhatConverts)
{
    const QString alphabet = QStringLiteral("0123456789..,,eEdD+-−() $€%&HhOoxfF'\u00A0\u202F\u200F٣٫٬a\t");
    std::mt19937 random(1);
    int numeric = 0;
    for (const char* locale : {"en_US", "de_DE", "fr_FR", "ar_EG", "en_IN"}) {
        SetRegional(QLocale(locale));
        for (int turn = 0; turn < 40000; ++turn) {
            QString text;
            for (auto length = random() % 8; length > 0; --length)
                text += alphabet.at(random() % alphabet.size());
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

} // namespace
