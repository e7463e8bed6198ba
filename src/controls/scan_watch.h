#pragma once

#include "controls/text_box.h"

#include <QPushButton>

#include <functional>
#include <initializer_list>

class QMessageBox;

/// A bar code scanner types like a keyboard, only faster. A scan is six or more characters, none more than the setting
/// "Scan Gap" (milliseconds, 35 unless it is set) after the one before, and Enter; 0 lets all keys be just keys. A
/// pause or two of five gaps, where a busy computer held up a key, are forgiven.
///
/// While the user works with a screen that takes scans, or with a dialog of it, a scan of a known code goes to its bar
/// code box, wherever the focus is: nothing else of it shows, and an open dialog is cancelled. An unknown code is just
/// typed in a text box, and told to be unknown everywhere else.
///
/// Where no screen takes scans, a scan in a text box is typed, but saves no form by its Enter; everywhere else it does
/// nothing, and the status line says what to do first. No scan answers a message box, in all of the program.

/// A screen that takes scans.
struct ScanTaker {
    QWidget* screen; ///< a panel or form; the forms that it opens are its children
    TextBox* box; ///< the bar code box, where keys do what they always do
    QPushButton* lookUp; ///< what a code that has come to the box runs; none, and it stays there, selected
    std::function<bool(const QString& code)> isKnown;
    std::function<void()> tellUnknown; ///< none where an unknown code is keys like any others
    /// Before a known code goes to the box from elsewhere on the screen.
    std::function<void(const QString& code)> prepare = nullptr;
};

/// From now on, as long as the screen lives. Reads the setting.
void TakeScans(const ScanTaker& taker);

/// Boxes for numbers: the scan of an unknown EAN or UPC is not typed there, as it is no number.
void KeepCodesOut(std::initializer_list<QLineEdit*> boxes);

/// Lets a scan close the box, where it closes no other, and go on to the screen behind it.
void LetScansClose(QMessageBox* box);
