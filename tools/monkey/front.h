#pragma once

#include "make_database/dice.h"

#include <QList>

class QWidget;

/// What a user has before his eyes.

/// The windows that no modal form blocks, in the order in which they were opened. A popup has all input to itself.
QList<QWidget*> OpenWindows();
/// Gives the window that the user works with the focus, as a window manager does when the one that had it has gone.
/// True when that was needed.
bool FocusAWindow();
/// The windows of the program, shown or not, in the order in which they were made.
QList<QWidget*> AllWindows();

/// A control that shows, picked so that those that do something come up more often; null when none does.
QWidget* PickControl(QWidget* window, Dice& dice);
/// A control of the window that shows and takes text, or null.
QWidget* PickTextBox(QWidget* window, Dice& dice);
/// "cmdOk (QPushButton) of frmCustomer".
QString Described(const QWidget* widget);
