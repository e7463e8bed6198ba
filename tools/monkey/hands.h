#pragma once

#include <QPoint>
#include <QString>

class QWidget;

/// Keys and mouse as the window system brings them to a window. They take the time that they would take.

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers);
/// The keys of a text, `msAKey` apart, and those of a scanner, with Enter behind them.
void TypeText(const QString& text, int msAKey);
void Scan(const QString& code, int msAKey);

/// At a spot of a widget's window.
struct Spot {
    QWidget* widget;
    QPoint at; ///< in the widget
};
void MouseMove(const Spot& spot);
void MousePress(const Spot& spot, Qt::MouseButton button);
void MouseRelease(const Spot& spot);
void Click(const Spot& spot, Qt::MouseButton button);
void DoubleClick(const Spot& spot);
void Wheel(const Spot& spot, QPoint turn, Qt::KeyboardModifiers modifiers);
/// The button that is held down now.
Qt::MouseButton HeldButton();
