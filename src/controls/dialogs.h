#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QPrinter;

/// The platform's file pickers; "" when the user cancelled. `filter` is Qt's form: "Pictures (*.png *.jpg);;All (*)".
/// They open in the folder that a file was picked from last while the program runs, at first in the user's documents.
QString OpenFileName(const QString& title, const QString& filter);
/// Asks before a file that exists is chosen, and again while the folder does not exist. `suggested` is a file's name.
QString SaveFileName(const QString& title, const QString& filter, const QString& suggested);
/// The same; where the name ends in none of the filter's extensions, also with a dot in it, the first one is appended.
QString SaveFileNameOfKind(const QString& title, const QString& filter, const QString& suggested);
/// As SaveFileName, but the name is used as it was typed: the others get the filter's extension when they have none.
QString SaveFileNameAsTyped(const QString& title, const QString& filter);
/// A save dialog that takes a file that exists alone, and does not ask before it is chosen.
QString SaveExistingFileName(const QString& title, const QString& filter);

/// The printer that Page Setup and Print share for the run; made on first use.
QPrinter& CurrentPrinter();

bool HasPrinter();

/// The platform's print dialog over `printer`; false when cancelled or when no printer is installed.
bool PrintDialog(QPrinter& printer);

/// Page margins in thousandths of an inch, as the page setup dialog returned them.
struct PageMargins {
    int left = 0, top = 0, right = 0, bottom = 0;
};
/// Asks for orientation, paper and margins and keeps them for the next print. False when there is no printer or the
/// user cancelled; no message in either case.
bool ShowPageSetup(QWidget* owner, PageMargins& margins);
/// The same for a document that can become a file: it asks without a printer too.
bool ShowPaperSetup(QWidget* owner, PageMargins& margins);

/// Prints the picture of `window` at the top left of the page, after the print dialog. Failures are ignored.
void PrintWindowImage(QWidget* window);

/// Hands a link to the system's browser or mail program. Failures are not reported.
void OpenLink(const QString& target);

/// The commands of the help viewer that the program uses.
enum class HelpCommand { Context = 1, Tab = 15 };
/// The window that shows the help pages.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual void Open(HelpCommand command, int data) = 0;
    /// The page of the first of these names that has one.
    virtual void OpenAt(const QStringList& names) = 0;
};
/// Nothing takes the viewer out again.
void SetHelpViewer(HelpViewer* viewer);

/// These open the help viewer. Until there is one they say that help is unavailable.
void OpenHelp(HelpCommand command, int data);
/// `names` are those of a control, of the form or panel that it stands on, and of their owners, the nearest first.
void OpenHelpAt(const QStringList& names);
