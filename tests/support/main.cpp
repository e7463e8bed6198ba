#include "base/clock.h"
#include "base/files.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "paper/preview_window.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/statement_record.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLocale>
#include <QTemporaryDir>
#include <QTimeZone>

#include <cstdio>

namespace {
/// What Qt had to say during a test. It matters only where the test fails.
QStringList gMessages;

void Collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    gMessages.append(qFormatLogMessage(type, context, message));
}

/// What each test starts and ends with: the program alive, United States formats, settings of its own, no form left
/// waited for, no preview left open.
class EveryTest : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override
    {
        gMessages.clear();
        m_settings = std::make_unique<QTemporaryDir>();
        SetSettingsFolder(m_settings->path());
        SetProgramFolder(QString());
        SetRegional(QLocale(QLocale::English, QLocale::UnitedStates));
        FailOnProgramEnd();
        StartWatchingForms();
    }
    void OnTestEnd(const testing::TestInfo& test) override
    {
        CheckAwaitedForms();
        SetClock({});
        ClosePreviews();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        if (test.result()->Failed() && !gMessages.isEmpty())
            std::printf("Qt: %s\n", qPrintable(gMessages.join(QStringLiteral("\nQt: "))));
    }

    std::unique_ptr<QTemporaryDir> m_settings;
};
} // namespace

int main(int argc, char** argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    qputenv("FONTCONFIG_FILE", TEST_FONTS);
    // What closes after its test's settings are gone must not reach the user's.
    const QTemporaryDir settings;
    qputenv("XDG_CONFIG_HOME", settings.path().toLocal8Bit());
    // Only failing tests speak; --gtest_brief=0 lets all of them.
    GTEST_FLAG_SET(brief, true);
    testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(Collect);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    QApplication::setQuitOnLastWindowClosed(false);
    testing::UnitTest::GetInstance()->listeners().Append(new EveryTest);
    RecordStatements();
    return RUN_ALL_TESTS();
}
