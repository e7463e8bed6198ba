#include "app/help_desk.h"
#include "app/help_key.h"
#include "app/image_lists.h"
#include "app/menu_key.h"
#include "app/start.h"
#include "base/guard.h"
#include "base/system_locale.h"
#include "controls/error_box.h"
#include "controls/hourglass.h"
#include "controls/readable_links.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    ReadSystemLocale();
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    QGuiApplication::setDesktopFileName(QStringLiteral("tavrin-inventory"));
    QGuiApplication::setWindowIcon(ProgramIcon(QStringLiteral("tavrin")));
    // The main window's closing ends the program; the splash's does not.
    QGuiApplication::setQuitOnLastWindowClosed(false);
    InstallErrorBox();
    TellWaitsForTheFile();
    LetLinksBeRead();
    const HelpKey helpKey(&application);
    const MenuKey menuKey(&application);
    const HelpDesk helpDesk;

    Program program;
    int status = EXIT_FAILURE;
    Guarded([&] {
        if (!program.Main())
            return;
        On(program.Window(), &MainWindow::Closed, program.Window(), [] { QCoreApplication::exit(EXIT_SUCCESS); });
        status = QApplication::exec();
    });
    return status;
}
