#include "app/app_test.h"
#include "app/database_folder.h"
#include "app/help_key.h"
#include "app/splash.h"
#include "app/start.h"
#include "app/tip.h"
#include "config/configuration_pages.h"
#include "config/secondary_tax.h"
#include "invoicing/open_invoice.h"

namespace {

const QString Tutorial =
    "We've noticed that this is the first time you have launched Tavrin Inventory. You may find it useful "
    "to follow the getting started tutorial. Would you like to view it now?";
const QString Wizard = "Would you like to run the 'Configuration Wizard' now?";

class StartTest : public DatabaseTest {
protected:
    void TearDown() override
    {
        program.reset();
        DatabaseTest::TearDown();
    }

    /// Runs the start with a splash that a key closes at once.
    bool Start()
    {
        program.reset();
        program = std::make_unique<Program>();
        WhenFormShows<frmSplash>([](frmSplash& splash) { Press(&splash, Qt::Key_Space); });
        bool started = false;
        Guarded([&] { started = program->Main(); });
        return started;
    }

    /// Past the prompts of the first start.
    static void NotTheFirstRun()
    {
        SaveConfig("FirstRun", "False");
        SaveOption("Show Tips at Startup", "0");
    }

    std::unique_ptr<Program> program;
};

} // namespace

TEST_F(StartTest, TheFirstStartShowsTheTipAndAsksAndTheSecondDoesNot)
{
    bool tipSeen = false;
    WhenFormShows<frmTip>([&](frmTip& tip) {
        tipSeen = true;
        // The prompts come after the tip, and nothing of them is stored before.
        EXPECT_EQ(GetConfig("FirstRun", "unset"), "unset");
        Click(tip.chkLoadTipsAtStartup);
        Click(tip.cmdOK);
    });
    {
        ScriptedAnswers answers;
        answers.Expect(Tutorial, Icon::Question, Buttons::YesNoCancel, Answer::Cancel);
        answers.Expect(Wizard, Icon::Question, Buttons::YesNoCancel, Answer::Cancel);
        EXPECT_TRUE(Start());
    }
    EXPECT_TRUE(tipSeen);
    EXPECT_EQ(GetConfig("FirstRun", ""), "False");

    ScriptedAnswers nothingAsked;
    EXPECT_TRUE(Start());
    EXPECT_TRUE(program->Window()->isVisible());
    EXPECT_TRUE(program->Window()->picArrivals->isVisible());
}

TEST_F(StartTest, EitherYesLeadsToTheConfigurationWizardAndAFirstRunThatIsNoBooleanToTheEnd)
{
    SaveOption("Show Tips at Startup", "0");
    for (const bool tutorial : {true, false}) {
        SaveConfig("FirstRun", "True");
        ScriptedAnswers answers;
        answers.Expect(Tutorial, tutorial ? Answer::Yes : Answer::No);
        if (tutorial)
            answers.ExpectHelp(HelpCommand::Context, 3);
        else
            answers.Expect(Wizard, Answer::Yes);
        WhenFormShows<frmWizConfig_Welcome>([](frmWizConfig_Welcome& page) { Click(page.cmdCancel); });
        EXPECT_TRUE(Start());
    }
    SaveConfig("FirstRun", "perhaps");
    ExpectedEnd end;
    Start();
    EXPECT_EQ(end.Number(), 13);
    EXPECT_EQ(GetConfig("FirstRun", ""), "perhaps");
}

TEST_F(StartTest, TheSplashLoadsBehindItselfAndClosesByItselfByAClickOrWhenTheLoadFailed)
{
    int loads = 0;
    frmSplash splash([&] { return ++loads > 0; });
    Shown(&splash);
    EXPECT_TRUE(QTest::qWaitFor([&] { return loads >= 2; }, 1400));
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }, 3000));

    frmSplash clicked([] { return true; });
    Shown(&clicked);
    Click(clicked.Frame1);
    EXPECT_FALSE(clicked.isVisible());

    const HelpKey helpKey(nullptr);
    frmSplash struck([] { return true; });
    Shown(&struck);
    Press(&struck, Qt::Key_F1);
    EXPECT_FALSE(struck.isVisible());

    frmSplash failing([] { return false; });
    Shown(&failing);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failing.isVisible(); }, 1000));
}

TEST_F(StartTest, AStoredFolderIsRepairedOnlyWithoutASeparatorAndNoneIsTheProgramsOwn)
{
    for (const auto& [stored, repaired] : {std::pair("", "/"), {"/", "/"}, {"\\", "\\"}, {"/x", "/x/"}}) {
        SaveConfig("DBPath", Folder() + stored);
        EXPECT_EQ(ResolveDatabaseFolder(), Folder() + repaired);
        EXPECT_EQ(GetConfig("DBPath", ""), Folder() + repaired);
    }
    SaveConfig("DBPath", "");
    EXPECT_EQ(ResolveDatabaseFolder(), ProgramFolder() + "\\");
    EXPECT_EQ(GetConfig("DBPath", "unset"), "");
    SetSettingsFolder(Folder() + "/no settings yet");
    EXPECT_EQ(ResolveDatabaseFolder(), ProgramFolder() + "\\");
    EXPECT_EQ(GetConfig("DBPath", "unset"), "unset");
}

TEST_F(StartTest, ABadFileIsToldAndEndsTheStartWithNothingStoredOrMade)
{
    const std::function<void(const QString&)> bad[] = {[](const QString&) {},
        [](const QString& path) { WriteFile(path, ""); },
        [](const QString& path) { WriteFile(path, QByteArray(5000, 'x')); },
        [](const QString& path) { WriteFile(path, QByteArray("SQLite format 3\0", 16)); },
        [](const QString& path) { QFile::remove(path) && QDir().mkpath(path); }};
    const QString folder = Folder() + "/bad/";
    QDir().mkpath(folder);
    SaveConfig("DBPath", folder);
    for (const auto& make : bad) {
        make(folder + "db.mdb");
        const QStringList before = QDir(folder).entryList();
        ScriptedAnswers answers;
        answers.ExpectMessage("Unable to open database " + folder + "db.mdb", Icon::Critical);
        EXPECT_FALSE(Start());
        EXPECT_EQ(program->Window(), nullptr);
        EXPECT_EQ(GetConfig("FirstRun", "unset"), "unset");
        EXPECT_EQ(GetConfig("gcustColWidth0", "unset"), "unset");
        EXPECT_EQ(QDir(folder).entryList(), before);
    }
}

TEST_F(StartTest, ADamagedFileIsToldOfOnceWithItsName)
{
    NotTheFirstRun();
    for (int i = 0; i < 30; ++i)
        Item("Screws").Description(QString(3000, u'x')).Add();
    QFile file(DatabasePath());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    constexpr int Page = 4096;
    for (qint64 page = file.size() / Page - 8; page < file.size() / Page; ++page) {
        file.seek(page * Page);
        file.write(QByteArray(100, '\x77'));
    }
    file.close();

    ScriptedAnswers answers;
    answers.ExpectMessage("The database file " + DatabasePath()
            + " is damaged. Close the program and restore a backup of the file: what is entered from now on may be "
              "lost.",
        Icon::Critical);
    ASSERT_TRUE(Start());
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers.Done(); }));
}

TEST_F(StartTest, TablesThatAreMissingAreSkippedAndTheWindowShows)
{
    NotTheFirstRun();
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxName.clear();
    for (const char* table : {"settings", "invoice", "PriceList", "item"})
        Run(QStringLiteral("DROP TABLE %1").arg(table));
    SaveConfig("DBPath", Folder() + "\\");
    ASSERT_TRUE(Start());
    MainWindow& window = *program->Window();
    EXPECT_TRUE(window.picArrivals->isVisible());
    EXPECT_EQ(window.picArrivals->gInvoices->Rows(), 1);
    EXPECT_EQ(window.picInventory->cboInvoicePriceList->ListCount(), 0);
    EXPECT_EQ(window.picVendors->gVendors->Cols(), 3);
}
