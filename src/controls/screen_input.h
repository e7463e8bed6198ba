#pragma once

#include <QKeySequence>

class QPushButton;
class QWidget;

/// What all screens need of mouse and keyboard.

/// From the first call on an access key gives its button the focus before it clicks, as the mouse does, so that the
/// control that had it is left. The buttons in a window go before its menus. A key that is held down acts once.
void LetAccessKeysFocus();

/// While `screen` is in view, `key` presses the button as its access key does. Its tooltip tells so.
void PressWithKey(QPushButton* button, QWidget* screen, const QKeySequence& key);

/// `panel` has just come into view. It takes no click of the gesture that brought it: the second press of a double
/// click on another panel's button is not one on the button that stands there now.
void KeepGestureOff(QWidget* panel);
