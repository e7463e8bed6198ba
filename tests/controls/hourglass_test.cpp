#include "base/sign_of_life.h"
#include "controls/hourglass.h"
#include "support/test.h"

TEST(HourglassTest, AWaitOfASecondSaysWhatIsBeingDoneUntilItEndsOrADialogAsks)
{
    QWidget window;
    Shown(&window);
    const auto told = [&window] {
        SignOfLife();
        const auto* note = window.findChild<QLabel*>();
        return note ? note->text() : QString();
    };
    {
        const Hourglass hourglass("Reading the items...");
        const Hourglass inner("Reading the list...");
        EXPECT_EQ(told(), "");
        QTest::qSleep(1000);
        EXPECT_EQ(told(), "Reading the items...");
        {
            const ArrowOverHourglass arrow;
            EXPECT_EQ(told(), "");
        }
        EXPECT_EQ(told(), "");
        QTest::qSleep(1000);
        EXPECT_EQ(told(), "Reading the items...");
    }
    EXPECT_EQ(told(), "");

    TellWaitsForTheFile();
    SignOfFileWait();
    EXPECT_TRUE(QApplication::overrideCursor());
    QTest::qSleep(1000);
    SignOfFileWait();
    EXPECT_EQ(told(), "Waiting for another program that has the database open...");
    QCoreApplication::processEvents();
    EXPECT_FALSE(QApplication::overrideCursor());
    SetSignOfFileWait(nullptr);
}
