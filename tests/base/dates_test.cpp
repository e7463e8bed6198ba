#include "base/clock.h"
#include "base/date_reader.h"
#include "base/dates.h"
#include "base/regional.h"

#include <gtest/gtest.h>

#include <random>

namespace {

const QDateTime FourthOfJuly(QDate(2003, 7, 4), QTime(13, 5, 0));

class Dates : public testing::Test {
protected:
    void SetUp() override
    {
        SetRegional(QLocale("en_US"));
        SetClock([] { return QDateTime(QDate(2024, 2, 10), QTime(9, 0)); });
    }
    void TearDown() override
    {
        SetRegional(QLocale("en_US"));
        SetClock({});
    }
};

TEST_F(Dates, MasksWriteFieldsAndSeparators)
{
    const std::pair<const char*, const char*> cases[] = {{"yyyy-mm-dd", "2003-07-04"}, {"dd-mmm-yyyy", "04-Jul-2003"},
        {"mmm-yyyy", "Jul-2003"}, {"yyyy", "2003"}, {"dddd", "Friday"}, {"dd/MM/yyyy", "04/07/2003"},
        {"d/MM/yy", "4/07/03"}, {"hh:mm", "13:05"}, {"h:nn:ss AM/PM", "1:05:00 PM"}, {"mm \"m\" \\d", "07 m d"},
        {"", "7/4/2003 1:05:00 PM"}};
    for (const auto& [mask, text] : cases)
        EXPECT_EQ(FormatDate(FourthOfJuly, mask), text) << mask;
    EXPECT_EQ(FormatDate(FourthOfJuly.date().startOfDay(), ""), "7/4/2003");
    EXPECT_EQ(FormatDate(QDateTime(QDate(1899, 12, 30), QTime(0, 20)), ""), "12:20:00 AM");
    EXPECT_EQ(FormatDate(QDateTime(), "yyyy"), "");
}

TEST_F(Dates, ShortDatesFollowTheLocaleWithAYearOfFourDigits)
{
    const std::tuple<const char*, const char*, const char*> cases[] = {{"en_US", "M/d/yyyy", "7/4/2003"},
        {"en_GB", "dd/MM/yyyy", "04/07/2003"}, {"de_DE", "dd.MM.yyyy", "04.07.2003"},
        {"en_CA", "yyyy-MM-dd", "2003-07-04"}, {"sv_SE", "yyyy-MM-dd", "2003-07-04"},
        {"ja_JP", "yyyy/MM/dd", "2003/07/04"}};
    for (const auto& [locale, mask, text] : cases) {
        SetRegional(QLocale(locale));
        EXPECT_EQ(ShortDateMask(), mask);
        EXPECT_EQ(ShortDate(FourthOfJuly), text);
        EXPECT_EQ(GetLocaleText(LocaleItem::ShortDate), mask);
    }
    SetRegional(QLocale("en_GB"));
    EXPECT_EQ(FormatDate(QDateTime(QDate(2003, 9, 1), QTime(0, 0)), "mmm"), "Sep");
}

TEST_F(Dates, ListsWriteStoredDatesAsTheFormsDo)
{
    ShortDateWriter shortDate;
    EXPECT_EQ(shortDate("2003-07-04 13:05:00"), "7/4/2003");
    EXPECT_EQ(shortDate("2003-12-31"), "12/31/2003");
    for (const char* none : {"", "2003", "2003-02-30 00:00:00", "abc"})
        EXPECT_EQ(shortDate(none), "") << none;
}

/// What masks write is read back in every locale, as typed text and in statements alike, and so are English months.
TEST_F(Dates, TextsOfAllLocalesReadBack)
{
    const auto everyLocale = QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory);
    ASSERT_GT(everyLocale.size(), 500);
    const auto inStatement = [](const QString& text) {
        return ReadDate(text, RegionalFormats::Order::MonthDayYear, DateStrictness::AsInStatements);
    };
    for (const QLocale& locale : everyLocale) {
        SetRegional(locale);
        const std::string name =
            locale.name().toStdString() + ' ' + ShortDateMask().toStdString() + ' ' + Formats().time.toStdString();
        for (int month = 1; month <= 12; ++month) {
            const QDateTime first(QDate(2003, month, 1), QTime(0, 0));
            const QDateTime evening(QDate(1998, month, 27 - 2 * month), QTime(23, 5, month));
            for (const QString& own : {"1-" + FormatDate(first, "mmm-yyyy"), FormatDate(first, "dd-mmm-yyyy")}) {
                EXPECT_EQ(ReadDate(own), first) << name << own.toStdString();
                EXPECT_EQ(inStatement(own + " 00:00"), first) << name << own.toStdString();
            }
            const QString english = QString("1-%1-2003").arg(MonthAbbreviation(month));
            EXPECT_EQ(inStatement(english), first) << name << english.toStdString();
            EXPECT_EQ(ReadDate(ShortDate(first)), first) << name;
            const QString general = FormatDate(evening, "");
            EXPECT_EQ(ReadDate(general), evening) << name << general.toStdString();
            EXPECT_EQ(ReadDate(FormatDate(QDateTime(QDate(1899, 12, 30), evening.time()), ""))->time(), evening.time())
                << name;
        }
    }
}

TEST_F(Dates, OtherOrdersAreTakenWhereTheUsersOwnIsImpossible)
{
    const QDateTime second(QDate(1970, 1, 2), QTime(0, 0));
    for (const char* text : {"1/2/1970", "1-2-1970", "1 2 1970", "2 Jan 1970", "2-Jan-1970", "2/Jan/1970",
             "2 January, 1970", "Jan 2, 1970", "1970-01-02"})
        EXPECT_EQ(ReadDate(text), second) << text;
    const QDateTime thirteenth(QDate(1970, 1, 13), QTime(0, 0));
    for (const char* text : {"13-1-1970", "1970-1-13", "1/13/70"})
        EXPECT_EQ(ReadDate(text), thirteenth) << text;
    EXPECT_EQ(ReadDate("1/2/29")->date(), QDate(2029, 1, 2));
    EXPECT_EQ(ReadDate("1/2/30")->date(), QDate(1930, 1, 2));
    for (const char* text : {"Jan 14", "14 Jan", "1 14", "14 1"})
        EXPECT_EQ(ReadDate(text)->date(), QDate(2024, 1, 14)) << text;
    EXPECT_EQ(ReadDate("Jan 35")->date(), QDate(1935, 1, 1));
    SetRegional(QLocale("en_GB"));
    EXPECT_EQ(ReadDate("1/2/1970")->date(), QDate(1970, 2, 1));
    EXPECT_EQ(ReadDate("1970-01-02")->date(), QDate(1970, 1, 2));
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(ReadDate("02.01.1970"), second);
    EXPECT_EQ(ReadDate("2. Januar 1970"), second);
}

TEST_F(Dates, TimesOfDayStandAloneOrWithADate)
{
    EXPECT_EQ(ReadDate("6/30/2011 01:20:34 PM"), QDateTime(QDate(2011, 6, 30), QTime(13, 20, 34)));
    EXPECT_EQ(ReadDate("2013-05-14 02:04:12"), QDateTime(QDate(2013, 5, 14), QTime(2, 4, 12)));
    const std::pair<const char*, QTime> cases[] = {{"1 am", {1, 0}}, {"0:20", {0, 20}}, {"2.5", {2, 5}},
        {"12:59 AM", {0, 59}}, {"00:00 pm", {12, 0}}, {"13:00 AM", {13, 0}}};
    for (const auto& [text, time] : cases)
        EXPECT_EQ(ReadDate(text), QDateTime(QDate(1899, 12, 30), time)) << text;
}

TEST_F(Dates, WhatIsNoDateGivesNothing)
{
    for (const char* text : {"", " ", "0", "1", "24:00", "0:60", "32 49", "2 32 3", "True", "1*2*3", "(1:2)", "Jan",
             "2013-05-14 02:04:12.017", "02.01.1970", "1//2/1970", "1/2/3/4", "2/30/2004", "Jan Feb 2004", "am"})
        EXPECT_FALSE(ReadDate(text)) << text;
    EXPECT_FALSE(ReadDate(QString(1000000, '1')));
}

TEST_F(Dates, StatementsCarryTheFormsTheyNeed)
{
    EXPECT_EQ(DateToYmd(FourthOfJuly), "2003-7-4");
    EXPECT_EQ(DateToYmd(std::nullopt), "");
    SetRegional(QLocale("ar_EG"));
    EXPECT_EQ(DateToIso(FourthOfJuly), "2003-07-04");
    EXPECT_EQ(DateToYmd(FourthOfJuly), "2003-7-4");
}

TEST_F(Dates, CalendarHelpersKnowTheirRange)
{
    EXPECT_EQ(LastDayOfMonth(QDate(2004, 2, 1)), 29);
    EXPECT_EQ(MonthAbbreviation(9), "Sep");
    EXPECT_EQ(MonthAbbreviation(0) + MonthAbbreviation(13), "");
    EXPECT_EQ(WeekdayNumber("Monday"), 1);
    EXPECT_EQ(WeekdayNumber("Sunday"), 7);
    EXPECT_EQ(WeekdayNumber("Montag"), 0);
}

TEST_F(Dates, AnyTextIsReadWithoutHarm)
{
    const QStringList pieces = QString("1|2|31|1970|70|Jan|may|am|pm|/|-|.|:|,| |x|\"|٣|\u200F|sept").split('|');
    std::mt19937 random(1);
    int dates = 0;
    for (const char* locale : {"en_US", "de_DE", "ar_EG"}) {
        SetRegional(QLocale(locale));
        for (int turn = 0; turn < 20000; ++turn) {
            QString text;
            for (auto length = random() % 8; length > 0; --length)
                text += pieces.at(random() % pieces.size());
            const auto date = ReadDate(text);
            if (!date)
                continue;
            ++dates;
            ASSERT_TRUE(date->isValid()) << text.toStdString();
            ASSERT_TRUE(date->date().year() >= 100 && date->date().year() <= 9999) << text.toStdString();
        }
    }
    EXPECT_GT(dates, 500) << "too few of the texts are dates to say much";
}

} // namespace
