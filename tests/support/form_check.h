#pragma once

#include <QStringList>
#include <QWidget>

/// Holds a form or panel that is shown against what every screen owes its user: each control laid out, inside the form,
/// not cut off and not under another; the tab order that of declaration; readable, also with longer texts
/// (CheckReading, CheckLongTexts). Controls in `leftOut` are hidden on purpose, and the letters in `sharedMnemonics`
/// taken twice.
void CheckScreen(
    QWidget* screen, const QList<QWidget*>& controls, const QStringList& leftOut, const QString& sharedMnemonics = {});

/// Shows the form and checks it.
template <typename FormClass>
void CheckForm(FormClass& form, const QStringList& leftOut = {}, const QString& sharedMnemonics = {})
{
    CheckScreen(&form, form.Controls(), leftOut, sharedMnemonics);
}

/// What the screen says, for a golden file: its title and the captions that show, a line each.
QString ScreenText(const QWidget* screen);

/// The names and captions of the controls in order of declaration: "cmdOK &OK".
QStringList ControlNames(const QList<QWidget*>& controls);

/// What the controls hold, in order of declaration, a line each: "txtName: Ann", "chkPaid: x", "cboList: two of one |
/// two", a grid with its titles and rows, the current one marked ">". Switched off or hidden ones say so. Buttons are
/// left out.
QString ScreenValues(const QList<QWidget*>& controls);
