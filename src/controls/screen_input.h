#pragma once

/// Starts what all screens of the program need of mouse and keyboard, once:
/// - An access key gives its button the focus before it clicks, as the mouse does, so that the control that had it is
///   left. The buttons of the panel in view go before the menus.
/// - A panel that has just come into view takes no click of the gesture that brought it: the second press of a double
///   click on another panel's button is not one on the button that stands there now.
void WatchScreenInput();
