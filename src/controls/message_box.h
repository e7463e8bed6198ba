#pragma once

#include <QString>
#include <QStringList>

/// What stands in the title of a window that has none of its own.
inline constexpr auto ProgramTitle = "Tavrin Inventory";

enum class Icon { None, Critical, Question, Exclamation, Information };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel };
enum class Answer { Ok, Cancel, Yes, No };

/// A message with an OK button, under the application's title.
void MsgBox(const QString& text, Icon icon);
/// Such a message about a scan: the next scan closes it. Others wait for their user.
void ScanMsgBox(const QString& text, Icon icon);
/// A message with an OK button and a title of its own.
void MsgBox(const QString& text, Icon icon, const QString& title);
/// A question. The first button is the default; Esc and the close button do nothing in a Yes/No box and answer Cancel
/// where there is a Cancel.
Answer MsgBox(const QString& text, Icon icon, Buttons buttons);

/// Who answers in place of the real dialogs; tests set one, the program none.
class DialogDoor {
public:
    virtual ~DialogDoor() = default;
    virtual Answer Message(const QString& text, Icon icon, Buttons buttons, const QString& title) = 0;
    /// The picked path, or "" for Cancel.
    virtual QString OpenFileName(const QString& title, const QString& filter) = 0;
    virtual QString SaveFileName(const QString& title, const QString& filter, const QString& suggested) = 0;
    /// True when the user pressed Print (the printer is set up then).
    virtual bool Print(class QPrinter& printer) = 0;
    virtual bool PageSetup(class QPrinter& printer) = 0;
    virtual bool HasPrinter() { return true; }
    virtual void OpenLink(const QString& target) = 0;
    /// The help viewer at a topic number, or at its contents (-2: index, -1: search).
    virtual void Help(int command, int data) = 0;
    /// The help viewer at the page of one of these names.
    virtual void HelpAt(const QStringList& names) = 0;
};
/// Nothing brings the real dialogs back.
void SetDialogDoor(DialogDoor* door);
DialogDoor* CurrentDialogDoor();
