#pragma once

#include <QList>
#include <QRect>
#include <QSize>

class QWidget;

/// Brings a window that was not shown yet where it was when it was closed last, in its size then, also in another run
/// of the program, and notes that again when it is closed. What the user left as it opened is not noted: a dialog stays
/// in the middle of its owner until it is moved. The window's objectName tells windows apart. True when a place was
/// noted; without one the window is made no larger than its screen.
bool RememberPlace(QWidget* window);

/// The size of a window that is told for the platform's standard font, grown with the user's.
QSize GrownWithFont(int width, int height);

/// The place moved, and made smaller where need be, so that all of it lies on the screen that holds most of it; on the
/// first of the screens when none holds any.
QRect PlaceOnScreens(const QRect& place, const QList<QRect>& screens);
