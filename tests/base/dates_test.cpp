#include "base/date_reader.h"
#include "base/dates.h"
#include "base/system_locale.h"
#include "support/test.h"

namespace {

QString Answered(const QString& function, const QString& given)
{
    const QDateTime date = QDateTime::fromString(given.section('|', 0, 0), Qt::ISODate);
    if (function == "FormatDate")
        return FormatDate(date, given.section('|', 1));
    if (function == "ShortDate")
        return QStringList{ShortDate(date), ShortDateMask(), GetLocaleText(LocaleItem::ShortDate)}.join(' ');
    if (function == "DateToYmd")
        return DateToYmd(date) + ' ' + DateToIso(date);
    static ShortDateWriter writer;
    if (function == "ShortDateWriter")
        return QString::fromUtf8(writer(given.toStdString()));
    const std::optional<QDateTime> read = ReadDate(given);
    return read ? read->toString("yyyy-MM-dd'T'HH:mm:ss") : "none";
}

TEST(Dates, AreReadAndWrittenByTheRulesOfTheLocale)
{
    SetClock([] { return QDateTime(QDate(2024, 2, 10), QTime(9, 0)); });
    ExpectCases("dates.txt", Answered);
    EXPECT_FALSE(ReadDate(QString(1000000, '1')));
}

/// What masks write is read back in every locale, as typed text and in statements alike, and so are English months.
TEST(Dates, TextsOfAllLocalesReadBack)
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

TEST(Locale, OfASystemWithoutALanguageIsThatOfEachFormatsOwnVariableAndElseTheUnitedStates)
{
    for (const auto& [given, set] : {std::pair("LANG=de_DE LC_TIME=en_GB", ""), {"LC_ALL=fr_FR LANG=C", ""},
             {"LC_ALL=C.UTF-8 LC_TIME=de_DE", "LANGUAGE= LC_ALL=en_US"},
             {"LANG=C.UTF-8 LC_TIME=en_DK LC_NUMERIC=C", "LANG=en_US LANGUAGE= LC_MESSAGES=en_US LC_NUMERIC=en_US"},
             {"LC_MONETARY=de_DE.UTF-8", "LANG=en_US LANGUAGE= LC_MESSAGES=de_DE.UTF-8"},
             {"LANG=de_DE LC_MESSAGES=C", "LANGUAGE= LC_MESSAGES=de_DE"}}) {
        QProcessEnvironment environment;
        for (const QString& variable : QString(given).split(' '))
            environment.insert(variable.section('=', 0, 0), variable.section('=', 1));
        QStringList changes;
        for (const auto& [name, value] : LocaleVariablesToSet(environment).asKeyValueRange())
            changes << name + '=' + value;
        EXPECT_EQ(changes.join(' '), set) << given;
    }
}

TEST(Dates, CalendarHelpersKnowTheirRange)
{
    EXPECT_EQ(LastDayOfMonth(QDate(2004, 2, 1)), 29);
    EXPECT_EQ(MonthAbbreviation(9), "Sep");
    EXPECT_EQ(MonthAbbreviation(0) + MonthAbbreviation(13), "");
    EXPECT_EQ(WeekdayNumber("Monday"), 1);
    EXPECT_EQ(WeekdayNumber("Sunday"), 7);
    EXPECT_EQ(WeekdayNumber("Montag"), 0);
}

TEST(Dates, AnyTextIsReadWithoutHarm)
{
    const QStringList pieces = QString("1|2|31|1970|70|Jan|may|am|pm|/|-|.|:|,| |x|\"|٣|\u200F|sept").split('|');
    std::mt19937 random(1);
    int dates = 0;
    for (const char* locale : {"en_US", "de_DE", "ar_EG"}) {
        SetRegional(QLocale(locale));
        for (int turn = 0; turn < 20000; ++turn) {
            QString text;
            for (auto length = random() % 8; length > 0; --length)
                text += pieces.at(qsizetype(random()) % pieces.size());
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
