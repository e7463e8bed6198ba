#include "app/about.h"
#include "app/app_test.h"
#include "app/endpoints.h"
#include "app/help_key.h"
#include "app/tip.h"
#include "support/form_check.h"

namespace {

class AboutTest : public DatabaseTest { };

} // namespace

TEST_F(AboutTest, TellsTheProductAndLeadsToTheWebSite)
{
    frmAbout about(nullptr);
    Shown(&about);
    CheckForm(about, {"Picture1"});
    EXPECT_EQ(about.windowTitle(), "About");
    EXPECT_EQ(about.lblProductName->text(), "Tavrin Inventory");
    EXPECT_EQ(about.lblDescription->text(), "The fully flexible and easy to use inventory management system.");

    ScriptedAnswers answers;
    answers.ExpectLink(MakerWebSite());
    answers.ExpectLink(MakerWebSite());
    answers.ExpectMessage("System Information Is Unavailable At This Time", Icon::None);
    Click(about.Picture4);
    Click(about.Label2);
    Click(about.cmdSysInfo);
    Click(about.cmdOK);
    QCoreApplication::processEvents();
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutTest, F1OpensTheHelpFromAnyWindow)
{
    const HelpKey helpKey(nullptr);
    frmAbout about(nullptr);
    Shown(&about);
    ScriptedAnswers answers;
    answers.ExpectHelp(HelpCommand::Context, 1);
    Press(about.cmdOK, Qt::Key_F1);
    Press(about.cmdOK, Qt::Key_F1, Qt::ShiftModifier);
}

TEST_F(AboutTest, TheTipFormIsFitToShow)
{
    frmTip tip(nullptr);
    CheckForm(tip);
    EXPECT_EQ(tip.windowTitle(), "Tip of the Day");
}
