#include "support/test.h"
#include "web/web_orders_wizard.h"

namespace {

const QString Columns =
    QStringLiteral("SELECT webbookingemail, webbookingproviderindex, webbookingprovidercustom FROM settings");
const QString Offer = QStringLiteral("Would you like to create a booking web page now?");

class WebOrdersWizardTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        ShowAllWelcomePages();
        Store("shop@harbour.example", "0", "");
    }

    void Store(const QString& email, const QString& index, const QString& custom) const
    {
        Run(QStringLiteral("UPDATE settings SET webbookingemail = '%1', webbookingproviderindex = %2, "
                           "webbookingprovidercustom = '%3'")
                .arg(email, index, custom));
    }
    Table Stored() const { return Rows(Columns); }

    void Start() const
    {
        Guarded([] { RunWebOrdersWizard(nullptr); });
    }
    /// The whole wizard with these entries, as far as the offer.
    void Enter(const QString& email, const QString& custom)
    {
        NextOn<frmWizOConfig_Welcome>();
        AtPage<frmWizOConfig_Email>([email](auto& page) { Type(page.txtName, email); });
        AtPage<frmWizOConfig_Provider>([custom](auto& page) { Type(page.txtCustom, custom); });
        NextOn<frmWizOConfig_Complete>();
    }
    void Finish(Answer toTheOffer)
    {
        AtPage<frmWizOConfig_Complete>([this, toTheOffer](auto&) { answers.Expect(Offer, toTheOffer); });
    }

    ScriptedAnswers answers;
};

} // namespace

TEST_F(WebOrdersWizardTest, ItsPagesSayWhatTheyAreFor)
{
    QString texts;
    const auto check = [&](auto& page) {
        CheckForm(page);
        texts += ScreenText(&page);
    };
    AtPage<frmWizOConfig_Welcome>(check);
    AtPage<frmWizOConfig_Email>(check);
    AtPage<frmWizOConfig_Provider>([&](auto& page) {
        texts += Entries(page.cboProvider).join(u'\n') + u'\n';
        check(page);
    });
    AtPage<frmWizOConfig_Complete>(check);
    answers.Expect(Offer, Icon::Question, Buttons::YesNoCancel, Answer::Cancel);
    Start();
    EXPECT_EQ(Stored(), Table({{"shop@harbour.example", "0", ""}}));
    ExpectGolden(texts, "web_orders_wizard.txt");
}

TEST_F(WebOrdersWizardTest, StoresItsAnswersOnFinishAloneAndCreatesThePageOnYes)
{
    NextOn<frmWizOConfig_Welcome>();
    AtPage<frmWizOConfig_Email>([](auto& page) { Type(page.txtName, "other@harbour.example"); });
    AtPage<frmWizOConfig_Provider>([](auto& page) { Type(page.txtCustom, "https://own.example"); });
    AtPage<frmWizOConfig_Complete>([](auto& page) { Click(page.cmdCancel); });
    Start();
    EXPECT_EQ(Stored(), Table({{"shop@harbour.example", "0", ""}}));

    const QString page = Folder() + "/orders.html";
    Enter("orders@harbour.example", "https://own.example");
    answers.Expect(Offer, Answer::Yes);
    answers.ExpectSaveFile(page);
    Start();
    EXPECT_EQ(Stored(), Table({{"orders@harbour.example", "1", "https://own.example"}}));
    EXPECT_TRUE(QFile::exists(page));
}

TEST_F(WebOrdersWizardTest, AsksForWhatIsMissing)
{
    NextOn<frmWizOConfig_Welcome>();
    AtPage<frmWizOConfig_Email>([this](auto& page) {
        Type(page.txtName, "");
        answers.ExpectMessage(
            "No email address has been entered. Please enter an email address to continue.", Icon::Critical);
        Click(page.cmdNext);
        EXPECT_TRUE(page.txtName->hasFocus());
        Type(page.txtName, "no address");
    });
    AtPage<frmWizOConfig_Provider>([this](auto& page) {
        const QString question = "No custom provider has been entered. Continue anyway?";
        Pick(page.cboProvider, "Custom...");
        for (const Answer stay : {Answer::No, Answer::Cancel}) {
            answers.Expect(question, Icon::None, Buttons::YesNoCancel, stay);
            Click(page.cmdNext);
            EXPECT_TRUE(page.isVisible());
        }
        answers.Expect(question, Answer::Yes);
    });
    Finish(Answer::No);
    Start();
    EXPECT_EQ(Stored(), Table({{"no address", "1", ""}}));
}

TEST_F(WebOrdersWizardTest, TypingAnAddressChoosesTheCustomProviderAndTheDefaultKeepsIt)
{
    NextOn<frmWizOConfig_Welcome, frmWizOConfig_Email>();
    AtPage<frmWizOConfig_Provider>([](auto& page) {
        EXPECT_EQ(page.cboProvider->ListIndex(), BuiltInProvider);
        Type(page.txtCustom, "https://own.example");
        EXPECT_EQ(page.cboProvider->ListIndex(), CustomProvider);
        Pick(page.cboProvider, "Response-o-Matic (default)");
    });
    AtPage<frmWizOConfig_Complete>([](auto& page) { Click(page.cmdBack); });
    // What is stored is shown, although an address stands there.
    AtPage<frmWizOConfig_Provider>([](auto& page) {
        EXPECT_EQ(page.cboProvider->ListIndex(), BuiltInProvider);
        EXPECT_EQ(page.txtCustom->text(), "https://own.example");
    });
    Finish(Answer::No);
    Start();
    EXPECT_EQ(Stored(), Table({{"shop@harbour.example", "0", "https://own.example"}}));
}

TEST_F(WebOrdersWizardTest, AnApostropheEndsTheProgramAfterTheStatementsBeforeIt)
{
    const struct {
        QString email, custom;
        Table stored;
    } cases[] = {
        {"o'neil@harbour.example", "https://own.example", {{"shop@harbour.example", "0", ""}}},
        {"orders@harbour.example", "https://o'neil.example", {{"orders@harbour.example", "1", ""}}},
    };
    for (const auto& [email, custom, stored] : cases) {
        const ExpectedEnd end;
        Enter(email, custom);
        Start();
        EXPECT_TRUE(end.Ended());
        EXPECT_EQ(Stored(), stored);
    }
}

TEST_F(WebOrdersWizardTest, AnUnknownProviderIsARunTimeErrorAndMinusOneIsNone)
{
    for (const char* index : {"2", "99", "40000", "NULL"}) {
        const ExpectedEnd end;
        Store("shop@harbour.example", QLatin1String(index), "");
        const bool readable = QLatin1String(index).size() <= 2;
        if (readable) {
            NextOn<frmWizOConfig_Welcome, frmWizOConfig_Email>();
        }
        Start();
        EXPECT_EQ(end.Number(), readable ? 380 : index[0] == 'N' ? 94 : 6) << index;
    }

    Store("shop@harbour.example", "-1", "");
    NextOn<frmWizOConfig_Welcome, frmWizOConfig_Email>();
    AtPage<frmWizOConfig_Provider>([](auto& page) { EXPECT_EQ(page.cboProvider->ListIndex(), -1); });
    Finish(Answer::No);
    Start();
    EXPECT_EQ(Stored(), Table({{"shop@harbour.example", "-1", ""}}));

    Run("DELETE FROM settings");
    Start();
    EXPECT_EQ(Count("settings"), 0) << "without a settings row it ends in silence";
}
