#include "base/regional.h"
#include "support/screen.h"
#include "support/scripted_answers.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTimeZone>

namespace {
/// What each test starts and ends with: the program alive, United States formats, no form left waited for.
class EveryTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override
    {
        SetRegional(QLocale(QLocale::English, QLocale::UnitedStates));
        FailOnProgramEnd();
        StartWatchingForms();
    }
    void OnTestEnd(const testing::TestInfo&) override { CheckAwaitedForms(); }
};
} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    QApplication::setApplicationDisplayName(QStringLiteral("Tavrin Inventory"));
    QApplication::setQuitOnLastWindowClosed(false);
    testing::UnitTest::GetInstance()->listeners().Append(new EveryTest);
    return RUN_ALL_TESTS();
}
