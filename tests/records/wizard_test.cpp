#include "records/wizard.h"

#include "controls/layout.h"
#include "controls/text_box.h"
#include "support/form_test.h"

namespace {

struct Survey : WizardState {
    Survey()
        : WizardState(WizardState::MailingList)
    {
    }
    QString name = "Ann";
};

class SurveyWelcome : public WelcomePage {
public:
    SurveyWelcome(Survey& survey, QWidget* parent)
        : WelcomePage("frmSurvey_Welcome", "Survey", "Asks a few things.", survey, parent)
    {
    }
};

/// Asks for a name, which must not be empty.
class SurveyName : public WizardPage {
public:
    SurveyName(Survey& survey, QWidget* parent)
        : WizardPage("frmSurvey_Name", "Name", survey, parent)
        , m_survey(survey)
    {
        txtName->setText(survey.name);
        SetContent(column({fields({{"Name:", txtName}})}));
    }
    CONTROL(TextBox, txtName);

protected:
    bool StoreAnswers() override
    {
        if (txtName->text().isEmpty())
            return false;
        m_survey.name = txtName->text();
        return true;
    }

private:
    Survey& m_survey;
};

class SurveyFinish : public FinishPage {
public:
    SurveyFinish(Survey& survey, QWidget* parent)
        : FinishPage("frmSurvey_Complete", "Thank you.", survey, parent)
    {
    }
};

const WizardPages<Survey> Pages{Page<SurveyWelcome>, Page<SurveyName>, Page<SurveyFinish>};

class WizardTest : public DatabaseTest {
protected:
    WizardTest() { ShowAllWelcomePages(); }
    ~WizardTest() override { ShowAllWelcomePages(); }

    bool Run()
    {
        StartWizard(survey);
        return ShowPages(Pages, survey, nullptr);
    }

    template <typename PageForm>
    static void At(void (*visit)(PageForm& page))
    {
        WhenFormShows<PageForm>(visit);
    }
    template <typename PageForm>
    static void NextAt()
    {
        At<PageForm>([](PageForm& page) { Click(page.cmdNext); });
    }

    Survey survey;
};

} // namespace

TEST_F(WizardTest, NextStoresTheAnswersAndFinishEndsIt)
{
    At<SurveyWelcome>([](SurveyWelcome& page) {
        CheckForm(page);
        EXPECT_FALSE(page.cmdBack->isEnabled());
        Press(page.focusWidget(), Qt::Key_Return);
    });
    At<SurveyName>([](SurveyName& page) {
        CheckForm(page);
        Type(page.txtName, "");
        Click(page.cmdNext);
        EXPECT_TRUE(page.isVisible());
        Type(page.txtName, "Bob");
        Press(page.txtName, Qt::Key_Return);
    });
    At<SurveyFinish>([](SurveyFinish& page) {
        CheckForm(page);
        EXPECT_EQ(ControlNames(page.Controls()),
            QStringList({"lblMessage Thank you.", "cmdBack &Back", "cmdNext &Finish", "cmdCancel &Cancel"}));
        Press(page.focusWidget(), Qt::Key_Return);
    });
    EXPECT_TRUE(Run());
    EXPECT_EQ(survey.name, "Bob");
}

TEST_F(WizardTest, BackDropsWhatWasTypedAndAPageClosedOtherwiseOpensAgain)
{
    NextAt<SurveyWelcome>();
    At<SurveyName>([](SurveyName& page) {
        Type(page.txtName, "Bob");
        Click(page.cmdBack);
    });
    NextAt<SurveyWelcome>();
    At<SurveyName>([](SurveyName& page) {
        EXPECT_EQ(page.txtName->text(), "Ann");
        Type(page.txtName, "Carl");
        page.close();
    });
    At<SurveyName>([](SurveyName& page) {
        EXPECT_EQ(page.txtName->text(), "Ann");
        Press(page.txtName, Qt::Key_Escape);
    });
    EXPECT_FALSE(Run());
    EXPECT_EQ(survey.name, "Ann");
}

TEST_F(WizardTest, CancelOnTheLastPageCancelsItAll)
{
    NextAt<SurveyWelcome>();
    NextAt<SurveyName>();
    At<SurveyFinish>([](SurveyFinish& page) { Click(page.cmdCancel); });
    EXPECT_FALSE(Run());
}

TEST_F(WizardTest, AnUntickedWelcomePageIsPassedOverButBackStillLeadsThere)
{
    At<SurveyWelcome>([](SurveyWelcome& page) {
        Click(page.chkDisplayNext);
        Click(page.cmdNext);
    });
    At<SurveyName>([](SurveyName& page) { Click(page.cmdCancel); });
    EXPECT_FALSE(Run());

    At<SurveyName>([](SurveyName& page) { Click(page.cmdBack); });
    At<SurveyWelcome>([](SurveyWelcome& page) { Click(page.cmdNext); });
    NextAt<SurveyName>();
    NextAt<SurveyFinish>();
    EXPECT_TRUE(Run());
}

TEST_F(WizardTest, APageMovedAndResizedHandsItsPlaceToTheNext)
{
    At<SurveyWelcome>([](SurveyWelcome& page) {
        page.setGeometry(90, 70, 600, 500);
        Click(page.cmdNext);
    });
    At<SurveyName>([](SurveyName& page) {
        EXPECT_EQ(page.geometry(), QRect(90, 70, 600, 500));
        Click(page.cmdCancel);
    });
    Run();
}

namespace {

struct Sharing {
    const char* unticked;
    const WizardState& wizard;
    QList<int> firstPages; ///< of the import, configuration, web orders and mailing list wizard
};
void PrintTo(const Sharing& sharing, std::ostream* out)
{
    *out << sharing.unticked;
}

class WelcomeSharingTest : public ::testing::TestWithParam<Sharing> { };

} // namespace

TEST_P(WelcomeSharingTest, AWelcomePageGoesForItsSharerAlone)
{
    ShowAllWelcomePages();
    GetParam().wizard.ShowWelcome = false;
    QList<int> firstPages;
    for (const WizardState* wizard :
        {&WizardState::Import, &WizardState::Configuration, &WizardState::WebOrders, &WizardState::MailingList}) {
        wizard->WizardCancelled = true;
        StartWizard(*wizard);
        EXPECT_FALSE(wizard->WizardCancelled);
        firstPages.append(wizard->WizardPage);
    }
    EXPECT_EQ(firstPages, GetParam().firstPages);
    ShowAllWelcomePages();
}

INSTANTIATE_TEST_SUITE_P(Wizards, WelcomeSharingTest,
    ::testing::Values(Sharing{"import", WizardState::Import, {2, 2, 1, 1}},
        Sharing{"configuration", WizardState::Configuration, {2, 2, 1, 1}},
        Sharing{"web orders", WizardState::WebOrders, {1, 1, 2, 1}},
        Sharing{"mailing list", WizardState::MailingList, {1, 1, 1, 2}}));
