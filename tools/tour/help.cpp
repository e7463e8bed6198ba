#include "help.h"

#include "steps.h"

#include "app/help_desk.h"
#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

void LookForHelp(Program& program, HelpDesk& helpDesk, Album& album)
{
    MainWindow& window = *program.Window();
    At("frmAbout", [&album](QDialog& about) {
        album.Take("about");
        At("frmSystemInfo", [&album](QDialog& form) {
            album.Take("system-information");
            Click(Find<QPushButton>(&form, "cmdClose"));
        });
        Click(Find<QPushButton>(&about, "cmdSysInfo"));
        Click(Find<QPushButton>(&about, "cmdOK"));
    });
    ChooseFromMenu(window, "mnuHelp", "mnuAbout", album, "about-in-the-help-menu");

    helpDesk.OpenAt(HelpNamesAt(window.picArrivals->gInvoices));
    frmHelp& viewer = *helpDesk.Viewer();
    album.Take("help-on-the-invoice-history");
    viewer.ShowTab(frmHelp::IndexTab);
    Type(viewer.txtIndex, QStringLiteral("re"));
    album.Take("help-index");
    viewer.close();
}
