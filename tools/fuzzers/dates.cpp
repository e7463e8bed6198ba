#include "fuzzing.h"

#include "base/clock.h"
#include "base/dates.h"
#include "sql/date_literal.h"

/// Dates typed, written and in statements, in a dozen locales. The first byte chooses the locale, eight more are the
/// seconds of a moment, then come a mask in a line and a text.

namespace {

const QDate FirstDay(100, 1, 1);
const QDate LastDay(9999, 12, 31);

void CheckReading(const QString& text)
{
    if (const auto date = ReadDate(text)) {
        Expect(date->isValid(), "a date that was read is one");
        Expect(date->date() >= FirstDay && date->date() <= LastDay, "a date is of the years that dates may have");
        Expect(ReadDate(FormatDate(*date, {})) == date, "a date that was read is written and read back");
    }
    if (const auto iso = ReadDateLiteral(text)) {
        Expect(iso->size() == 19, "a date in a statement has its full form");
        Expect(ReadDateLiteral(QString::fromStdString(*iso)) == iso, "a date in its full form stands for itself");
    }
}

void CheckWriting(const QDateTime& moment)
{
    const QDateTime day = MomentOf(moment.date());
    Expect(ReadDate(FormatDate(moment, {})) == moment, "the general form reads back");
    Expect(ReadDate(ShortDate(moment)) == day, "a short date reads back");
    Expect(
        ReadDate(FormatDate(moment, QStringLiteral("dd-mmm-yyyy"))) == day, "a date with its month's name reads back");
    Expect(ShortDateWriter()(moment.toString(Qt::ISODate).toStdString()) == ShortDate(moment).toStdString(),
        "both writers of short dates write the same");
    const std::string iso = moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString();
    for (const QString& text :
        {QString::fromStdString(iso), DateToIso(moment) + moment.toString(QStringLiteral(" h:mm:ss AP"))})
        Expect(ReadDateLiteral(text) == iso, "a date in a statement is what it was");
    for (const QString& text : {DateToIso(moment), DateToYmd(moment.date())})
        Expect(
            ReadDateLiteral(text) == DateToIso(moment).toStdString() + " 00:00:00", "a day in a statement is that day");
}

} // namespace

void Fuzz(FuzzInput input)
{
    ChooseLocale(input.Byte());
    const qint64 seconds = input.Number() & 0xFFFFFFFFFFFF;
    const QString mask = AnyText(input.Line());
    const QDate day = FirstDay.addDays((seconds / 86400) % (FirstDay.daysTo(LastDay) + 1));
    const QDateTime moment = MomentOf(day, QTime(0, 0).addSecs(int(seconds % 86400)));
    CheckWriting(moment);
    FormatDate(moment, mask);
    CheckReading(AnyText(input.Rest()));
}
