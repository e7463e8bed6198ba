#pragma once

class QWidget;

/// What all screens need of mouse and keyboard.

/// From the first call on an access key gives its button the focus before it clicks, as the mouse does, so that the
/// control that had it is left. The buttons in a window go before its menus.
void LetAccessKeysFocus();

/// `panel` has just come into view. It takes no click of the gesture that brought it: the second press of a double
/// click on another panel's button is not one on the button that stands there now.
void KeepGestureOff(QWidget* panel);
