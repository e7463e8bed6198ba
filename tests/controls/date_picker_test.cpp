#include "base/clock.h"
#include "base/dates.h"
#include "base/regional.h"
#include "base/runtime_error.h"
#include "controls/date_picker.h"
#include "controls/layout.h"
#include "support/printing.h"
#include "support/screen.h"

#include <gtest/gtest.h>

#include <QDateEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace {

const QDateTime Given(QDate(2003, 7, 4), QTime(13, 5, 9));

class Picker : public testing::Test {
protected:
    Picker() { picker.setObjectName("dtDue"); }
    QDateEdit* Date() { return Find<QDateEdit>(&picker, "dtDue_date"); }
    QCheckBox* Tick() { return Find<QCheckBox>(&picker, "dtDue_check"); }

    DatePicker picker;
    QSignalSpy changes{&picker, &DatePicker::Change};
};

TEST_F(Picker, KeepsTheTimeOfDayAndFiresForTheUserAlone)
{
    picker.SetCheckBox(true);
    picker.SetValue(Given);
    EXPECT_EQ(picker.Value(), Given);
    EXPECT_EQ(changes.size(), 0);
    Shown(&picker);
    Date()->setFocus();
    Date()->setSelectedSection(QDateTimeEdit::DaySection);
    Press(Date(), Qt::Key_Up);
    EXPECT_EQ(picker.Value(), Given.addDays(1));
    EXPECT_EQ(changes.size(), 1);
}

struct TypedDate {
    const char* locale;
    const char* typed;
    QDate shownBefore;
    QDate date;
};
void PrintTo(const TypedDate& typed, std::ostream* out)
{
    *out << typed.locale << ' ' << typed.typed;
}

class TypedDates : public testing::TestWithParam<TypedDate> { };

TEST_P(TypedDates, GoStraightThroughTheParts)
{
    SetRegional(QLocale(GetParam().locale));
    DatePicker picker;
    picker.setObjectName("dtDue");
    picker.SetValue(GetParam().shownBefore.startOfDay());
    QObject::connect(&picker, &DatePicker::Change, [&picker] { picker.Value(); }); // a screen that saves each change
    Shown(&picker);
    Type(&picker, GetParam().typed);
    EXPECT_EQ(picker.Value()->date().toString(Qt::ISODate), GetParam().date.toString(Qt::ISODate));
}

const QDate July(2003, 7, 4), November(2026, 11, 21), February(2003, 2, 4), LeapDay(2004, 2, 29);
INSTANTIATE_TEST_SUITE_P(Orders, TypedDates,
    testing::Values(TypedDate{"en_US", "12/25/2024", July, {2024, 12, 25}},
        TypedDate{"en_US", "12252024", July, {2024, 12, 25}}, TypedDate{"en_US", "05/6/2024", July, {2024, 5, 6}},
        TypedDate{"en_US", "2/29/2024", July, {2024, 2, 29}}, TypedDate{"en_US", "1-5-24", July, {2024, 1, 5}},
        TypedDate{"en_US", "1/5/99", July, {1999, 1, 5}}, TypedDate{"en_US", "7/4/2003", November, {2003, 7, 4}},
        TypedDate{"en_US", "12", July, {2003, 12, 4}}, TypedDate{"en_GB", "31/01/2024", February, {2024, 1, 31}},
        TypedDate{"en_GB", "30/4", February, {2003, 4, 30}}, TypedDate{"en_GB", "31", February, {2003, 2, 28}},
        TypedDate{"en_GB", "99/99/2024", February, {2024, 9, 9}},
        TypedDate{"de_DE", "31.12.2023", LeapDay, {2023, 12, 31}},
        TypedDate{"bg_BG", "31.12.2023", LeapDay, {2023, 12, 31}},
        TypedDate{"ar_EG", "31/12/2023", July, {2023, 12, 31}},
        TypedDate{"sv_SE", "2023-01-31", LeapDay, {2023, 1, 31}}, TypedDate{"sv_SE", "20240229", July, {2024, 2, 29}}));

TEST_F(Picker, TheWheelScrollsPastAndAltDownOpensTheCalendar)
{
    picker.SetValue(Given);
    Shown(&picker);
    Date()->setFocus();
    QWheelEvent wheel(QPointF(5, 5), Date()->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, 120), Qt::NoButton,
        Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(Date(), &wheel);
    EXPECT_EQ(picker.Value(), Given);
    QTest::keyClick(Date(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(QApplication::activePopupWidget());
    EXPECT_EQ(picker.Value(), Given);
    if (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
}

TEST_F(Picker, UntickedMeansNoDate)
{
    EXPECT_THROW(picker.SetValue(std::nullopt), RuntimeError) << "without a tick box there is always a date";
    picker.SetCheckBox(true);
    picker.SetValue(std::nullopt);
    EXPECT_EQ(picker.Value(), std::nullopt);
    EXPECT_FALSE(Date()->isEnabled());
    EXPECT_EQ(changes.size(), 0);

    Shown(&picker);
    Click(Tick());
    EXPECT_TRUE(picker.Value().has_value());
    EXPECT_TRUE(Date()->isEnabled());
    EXPECT_EQ(changes.size(), 1);
    Click(Tick());
    EXPECT_EQ(picker.Value(), std::nullopt);
    EXPECT_EQ(changes.size(), 2);
    picker.SetValue(Given);
    EXPECT_EQ(picker.Value(), Given);
    EXPECT_EQ(changes.size(), 2);
}

TEST_F(Picker, ShowsTheUsersShortDateAndStartsAtThePresent)
{
    SetClock([] { return Given; });
    for (const char* locale : {"de_DE", "bg_BG", "ar_EG", "fa_IR", "hr_HR", "ko_KR", "en_US"}) {
        SetRegional(QLocale(locale));
        const DatePicker local;
        EXPECT_EQ(local.Value(), Given);
        EXPECT_EQ(local.findChild<QDateEdit*>()->text(), ShortDate(Given)) << locale;
    }
    SetClock({});
}

TEST_F(Picker, TheFocusAndTheNameGoToItsParts)
{
    QLabel label("&Due:");
    SetLabelOf(&label, &picker);
    EXPECT_EQ(Date()->accessibleName(), "Due");
    Shown(&picker);
    picker.setFocus();
    EXPECT_TRUE(Date()->hasFocus());
    picker.SetCheckBox(true);
    picker.setFocus();
    EXPECT_TRUE(Tick()->hasFocus());
    Tab();
    EXPECT_TRUE(Date()->hasFocus());
}

} // namespace
