#include "base/dates.h"
#include "controls/date_picker.h"
#include "support/test.h"

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

TEST_F(Picker, ShowsTheUsersShortDateAndKeepsTheTimeOfDayAndFiresForTheUserAlone)
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

    SetClock([] { return Given; });
    for (const char* locale : {"de_DE", "bg_BG", "ar_EG", "fa_IR", "hr_HR", "ko_KR", "en_US"}) {
        SetRegional(QLocale(locale));
        const DatePicker local;
        EXPECT_EQ(local.Value(), Given);
        EXPECT_EQ(local.findChild<QDateEdit*>()->text(), ShortDate(Given)) << locale;
    }
}

TEST(TypedDates, GoStraightThroughTheParts)
{
    ExpectCases("typed_dates.txt", [](const QString& shown, const QString& typed) {
        DatePicker picker;
        picker.setObjectName("dtDue");
        picker.SetValue(QDate::fromString(shown, Qt::ISODate).startOfDay());
        // A screen that saves each change.
        QObject::connect(&picker, &DatePicker::Change, [&picker] { picker.Value(); });
        Shown(&picker);
        Type(&picker, typed);
        return picker.Value()->date().toString(Qt::ISODate);
    });
}

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
