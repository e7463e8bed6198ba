#include "app/about.h"
#include "app/app_test.h"
#include "app/endpoints.h"
#include "app/help_key.h"
#include "app/system_info.h"

using AboutTest = DatabaseTest;

TEST_F(AboutTest, TellsTheProductAndLeadsToTheWebSiteAndItsHelp)
{
    const HelpKey helpKey(nullptr);
    frmAbout about(nullptr);
    Shown(&about);
    CheckForm(about, {"Picture1"});
    EXPECT_EQ(about.windowTitle(), "About");
    EXPECT_EQ(about.lblProductName->text(), "Tavrin Inventory");
    EXPECT_EQ(about.lblDescription->text(), "The fully flexible and easy to use inventory management system.");

    ScriptedAnswers answers;
    answers.ExpectLink(MakerWebSite());
    Click(about.Label2);
    about.cmdSysInfo->setFocus();
    for (QWidget* link : std::initializer_list<QWidget*>{about.Label2, about.Picture4}) {
        Tab();
        answers.ExpectLink(MakerWebSite());
        Press(link, Qt::Key_Return);
    }
    answers.ExpectHelpAt({"cmdOK", "frmAbout"});
    Press(about.cmdOK, Qt::Key_F1);
    Press(about.cmdOK, Qt::Key_F1, Qt::ShiftModifier);
    Click(about.cmdOK);
    QCoreApplication::processEvents();
    EXPECT_FALSE(about.isVisible());
}

TEST_F(AboutTest, SystemInformationCanBeCopiedAndSaysWhenItCannotBeHad)
{
    Item("Screws M4").Add();
    frmAbout about(nullptr);
    Shown(&about);
    WhenFormShows<frmSystemInfo>([](frmSystemInfo& form) {
        CheckForm(form);
        Click(form.cmdCopy);
        Click(form.cmdClose);
    });
    Click(about.cmdSysInfo);
    const QString copied = QGuiApplication::clipboard()->text();
    for (const QString& told : {QStringLiteral("Tavrin Inventory " TAVRIN_VERSION), QString(qVersion()),
             QStringLiteral("SQLite 3."), gConnection->Path(), QStringLiteral("1 items, 0 customers, 0 invoices")})
        EXPECT_TRUE(copied.contains(told)) << told.toStdString() << " in\n" << copied.toStdString();

    gConnection->Close();
    ScriptedAnswers answers;
    answers.ExpectMessage("System Information Is Unavailable At This Time", Icon::None);
    Click(about.cmdSysInfo);
}
