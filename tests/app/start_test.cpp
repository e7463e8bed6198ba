#include "app/app_test.h"
#include "app/database_folder.h"
#include "app/splash.h"
#include "app/start.h"
#include "app/tip.h"
#include "base/files.h"
#include "config/configuration_pages.h"
#include "config/secondary_tax.h"
#include "invoicing/open_invoice.h"

#include <QDir>
#include <QFile>
#include <QTest>

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
        gConnection = m_before;
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

private:
    Connection* m_before = gConnection;
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

TEST_F(StartTest, YesToTheTutorialOpensItAndAsksNoMore)
{
    SaveOption("Show Tips at Startup", "0");
    ScriptedAnswers answers;
    answers.Expect(Tutorial, Answer::Yes);
    answers.ExpectHelp(HelpCommand::Context, 3);
    WhenFormShows<frmWizConfig_Welcome>([](frmWizConfig_Welcome& page) { Click(page.cmdCancel); });
    EXPECT_TRUE(Start());
}

TEST_F(StartTest, YesToTheSecondQuestionStartsTheConfigurationWizard)
{
    SaveOption("Show Tips at Startup", "0");
    ScriptedAnswers answers;
    answers.Expect(Tutorial, Answer::No);
    answers.Expect(Wizard, Answer::Yes);
    WhenFormShows<frmWizConfig_Welcome>([](frmWizConfig_Welcome& page) { Click(page.cmdCancel); });
    EXPECT_TRUE(Start());
}

TEST_F(StartTest, AFirstRunThatIsNoBooleanEndsTheProgramAndStaysAsItIs)
{
    SaveOption("Show Tips at Startup", "0");
    SaveConfig("FirstRun", "perhaps");
    ExpectedEnd end;
    Start();
    EXPECT_EQ(end.Number(), 13);
    EXPECT_EQ(GetConfig("FirstRun", ""), "perhaps");
}

TEST_F(StartTest, TheSplashLoadsBehindItselfAndClosesByItself)
{
    int loads = 0;
    frmSplash splash([&] { return ++loads > 0; });
    Shown(&splash);
    EXPECT_TRUE(QTest::qWaitFor([&] { return loads >= 2; }, 1400));
    EXPECT_TRUE(splash.isVisible());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }, 3000));
}

TEST_F(StartTest, AClickOnTheSplashClosesItAndSoDoesALoadThatFailed)
{
    frmSplash clicked([] { return true; });
    Shown(&clicked);
    Click(clicked.Frame1);
    EXPECT_FALSE(clicked.isVisible());

    frmSplash failing([] { return false; });
    Shown(&failing);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !failing.isVisible(); }, 1000));
}

namespace {

struct StoredFolder {
    const char* ending; ///< of the stored folder; null for nothing stored
    const char* endingAfterwards;
};

class StoredFolderTest : public DatabaseTest, public ::testing::WithParamInterface<StoredFolder> { };

} // namespace

TEST_P(StoredFolderTest, IsRepairedInTheStoreOnlyWithoutASeparator)
{
    SaveConfig("DBPath", Folder() + GetParam().ending);
    EXPECT_EQ(ResolveDatabaseFolder(), Folder() + GetParam().endingAfterwards);
    EXPECT_EQ(GetConfig("DBPath", ""), Folder() + GetParam().endingAfterwards);
}

INSTANTIATE_TEST_SUITE_P(Endings, StoredFolderTest,
    ::testing::Values(
        StoredFolder{"", "/"}, StoredFolder{"/", "/"}, StoredFolder{"\\", "\\"}, StoredFolder{"/x", "/x/"}));

TEST_F(StartTest, WithoutAStoredFolderItIsTheProgramsOwnAndIsNotStored)
{
    EXPECT_EQ(ResolveDatabaseFolder(), ProgramFolder() + "\\");
    EXPECT_EQ(GetConfig("DBPath", "unset"), "unset");
    SaveConfig("DBPath", "");
    EXPECT_EQ(ResolveDatabaseFolder(), ProgramFolder() + "\\");
    EXPECT_EQ(GetConfig("DBPath", "unset"), "");
}

TEST_F(StartTest, AFolderStoredWithABackslashOpens)
{
    NotTheFirstRun();
    SaveConfig("DBPath", Folder() + "\\");
    EXPECT_TRUE(Start());
}

namespace {

struct BadFile {
    const char* name;
    void (*make)(const QString& path);
};
void PrintTo(const BadFile& file, std::ostream* out)
{
    *out << file.name;
}

class BadDatabaseTest : public StartTest, public ::testing::WithParamInterface<BadFile> { };

} // namespace

TEST_P(BadDatabaseTest, IsToldAndEndsTheStartWithNothingStoredOrMade)
{
    const QString folder = Folder() + "/bad/";
    QDir().mkpath(folder);
    GetParam().make(folder + "db.mdb");
    SaveConfig("DBPath", folder);
    const QStringList before = QDir(folder).entryList();

    ScriptedAnswers answers;
    answers.ExpectMessage("Unable to open database " + folder + "db.mdb", Icon::Critical);
    EXPECT_FALSE(Start());
    EXPECT_EQ(program->Window(), nullptr);
    EXPECT_EQ(GetConfig("FirstRun", "unset"), "unset");
    EXPECT_EQ(GetConfig("gcustColWidth0", "unset"), "unset");
    EXPECT_EQ(QDir(folder).entryList(), before);
}

INSTANTIATE_TEST_SUITE_P(Files, BadDatabaseTest,
    ::testing::Values(BadFile{"missing", [](const QString&) {}},
        BadFile{"folder", [](const QString& path) { QDir().mkpath(path); }},
        BadFile{"empty", [](const QString& path) { WriteFile(path, ""); }},
        BadFile{"text", [](const QString& path) { WriteFile(path, QByteArray(5000, 'x')); }},
        BadFile{"cut short", [](const QString& path) { WriteFile(path, QByteArray("SQLite format 3\0", 16)); }}));

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

TEST_F(StartTest, ASplashThatIsLeftAloneLoadsAndGoesWhenTheLoadFailed)
{
    SaveConfig("DBPath", Folder() + "/nowhere/");
    ScriptedAnswers answers;
    answers.ExpectMessage("Unable to open database " + Folder() + "/nowhere/db.mdb", Icon::Critical);
    WhenFormShows<frmSplash>(
        [](frmSplash& splash) { EXPECT_TRUE(QTest::qWaitFor([&] { return !splash.isVisible(); }, 1200)); });
    EXPECT_FALSE(Program().Main());
}

TEST_F(StartTest, TablesThatAreMissingAreSkippedAndTheWindowShows)
{
    NotTheFirstRun();
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxName.clear();
    for (const char* table : {"settings", "invoice", "PriceList", "item"})
        Run(QStringLiteral("DROP TABLE %1").arg(table));
    ASSERT_TRUE(Start());
    MainWindow& window = *program->Window();
    EXPECT_TRUE(window.picArrivals->isVisible());
    EXPECT_EQ(window.picArrivals->gInvoices->Rows(), 1);
    EXPECT_EQ(window.picInventory->cboInvoicePriceList->ListCount(), 0);
    EXPECT_EQ(window.picVendors->gVendors->Cols(), 3);
}
