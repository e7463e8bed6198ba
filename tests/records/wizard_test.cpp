#include "records/wizard.h"

#include "controls/layout.h"
#include "controls/text_box.h"
#include "support/form_test.h"
#include "support/wizard_walk.h"

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

    Survey survey;
};

} // namespace

TEST_F(WizardTest, NextStoresTheAnswersAndFinishEndsIt)
{
    AtPage<SurveyWelcome>([](SurveyWelcome& page) {
        CheckForm(page);
        EXPECT_FALSE(page.cmdBack->isEnabled());
        Press(page.focusWidget(), Qt::Key_Return);
    });
    AtPage<SurveyName>([](SurveyName& page) {
        CheckForm(page);
        Type(page.txtName, "");
        Click(page.cmdNext);
        EXPECT_TRUE(page.isVisible());
        Type(page.txtName, "Bob");
        Press(page.txtName, Qt::Key_Return);
    });
    AtPage<SurveyFinish>([](SurveyFinish& page) {
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
    NextOn<SurveyWelcome>();
    AtPage<SurveyName>([](SurveyName& page) {
        Type(page.txtName, "Bob");
        Click(page.cmdBack);
    });
    NextOn<SurveyWelcome>();
    AtPage<SurveyName>([](SurveyName& page) {
        EXPECT_EQ(page.txtName->text(), "Ann");
        Type(page.txtName, "Carl");
        page.close();
    });
    AtPage<SurveyName>([](SurveyName& page) {
        EXPECT_EQ(page.txtName->text(), "Ann");
        Press(page.txtName, Qt::Key_Escape);
    });
    EXPECT_FALSE(Run());
    EXPECT_EQ(survey.name, "Ann");
}

TEST_F(WizardTest, AnUntickedWelcomePageIsPassedOverButBackStillLeadsThere)
{
    AtPage<SurveyWelcome>([](SurveyWelcome& page) { Click(page.chkDisplayNext); });
    AtPage<SurveyName>([](SurveyName& page) { Click(page.cmdCancel); });
    EXPECT_FALSE(Run());

    AtPage<SurveyName>([](SurveyName& page) {
        page.setGeometry(90, 70, 600, 500);
        Click(page.cmdBack);
    });
    AtPage<SurveyWelcome>([](SurveyWelcome& page) {
        EXPECT_EQ(page.geometry(), QRect(90, 70, 600, 500)) << "a page hands its place to the next";
    });
    NextOn<SurveyName>();
    AtPage<SurveyFinish>([](SurveyFinish& page) { Click(page.cmdCancel); });
    EXPECT_FALSE(Run()) << "Cancel on the last page cancels it all";
}

TEST(Wizards, AWelcomePageGoesForItsSharerAlone)
{
    const QList<const WizardState*> wizards{
        &WizardState::Import, &WizardState::Configuration, &WizardState::WebOrders, &WizardState::MailingList};
    const QStringList firstPages{"2211", "2211", "1121", "1112"};
    for (int unticked = 0; unticked < wizards.size(); ++unticked) {
        ShowAllWelcomePages();
        wizards[unticked]->ShowWelcome = false;
        QString pages;
        for (const WizardState* wizard : wizards) {
            wizard->WizardCancelled = true;
            StartWizard(*wizard);
            EXPECT_FALSE(wizard->WizardCancelled);
            pages += QString::number(wizard->WizardPage);
        }
        EXPECT_EQ(pages, firstPages[unticked]);
    }
    ShowAllWelcomePages();
}
