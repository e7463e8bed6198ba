#include "hands.h"

#include "virtual_time.h"

#include <QApplication>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>

namespace {

constexpr int KeyDownMs = 2;

int gMouseTime = 0;
Qt::MouseButton gHeld = Qt::NoButton;

void SendKey(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    // The one that has the focus now: what a key does may change it. A popup that lost it to one that has closed since
    // has the keys all the same.
    QWindow* window = QGuiApplication::focusWindow();
    if (const QWidget* popup = QApplication::activePopupWidget(); popup && !window)
        window = popup->windowHandle();
    if (window)
        qt_handleKeyEvent(window, type, key, modifiers, text);
}

void StrikeKey(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    SendKey(QEvent::KeyPress, key, modifiers, text);
    PassTime(KeyDownMs);
    SendKey(QEvent::KeyRelease, key, modifiers, text);
}

/// What the key writes.
QString TextOf(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    if (modifiers & (Qt::ControlModifier | Qt::AltModifier))
        return {};
    if (key == Qt::Key_Return || key == Qt::Key_Enter)
        return QStringLiteral("\r");
    if (key == Qt::Key_Tab)
        return QStringLiteral("\t");
    return key < 128 ? QString(QChar(key)) : QString();
}

void SendMouse(const Spot& spot, QEvent::Type type, Qt::MouseButton button)
{
    QWindow* window = spot.widget->window()->windowHandle();
    if (!window || !window->isVisible())
        return;
    const QPoint global = spot.widget->mapToGlobal(spot.at);
    gMouseTime += 10;
    qt_handleMouseEvent(window, window->mapFromGlobal(global), global, gHeld, button, type, Qt::NoModifier, gMouseTime);
}

} // namespace

void PressKey(Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    StrikeKey(key, modifiers, TextOf(key, modifiers));
}

void TypeText(const QString& text, int msAKey)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        const int units = text[i].isHighSurrogate() ? 2 : 1;
        const QString character = text.mid(i, units);
        i += units - 1;
        PassTime(msAKey - KeyDownMs);
        const char16_t code = character.front().toUpper().unicode();
        StrikeKey(units == 1 && code < 128 ? int(code) : int(Qt::Key_unknown),
            character.front().isUpper() ? Qt::ShiftModifier : Qt::NoModifier, character);
    }
}

void Scan(const QString& code, int msAKey)
{
    TypeText(code, msAKey);
    PassTime(msAKey - KeyDownMs);
    PressKey(Qt::Key_Return, Qt::NoModifier);
}

void MouseMove(const Spot& spot)
{
    SendMouse(spot, QEvent::MouseMove, Qt::NoButton);
}

void MousePress(const Spot& spot, Qt::MouseButton button)
{
    // Qt takes two presses in one time and place for a double click.
    gMouseTime += QApplication::doubleClickInterval() + 1;
    gHeld = button;
    SendMouse(spot, QEvent::MouseButtonPress, button);
}

void MouseRelease(const Spot& spot)
{
    const Qt::MouseButton button = std::exchange(gHeld, Qt::NoButton);
    SendMouse(spot, QEvent::MouseButtonRelease, button);
}

void Click(const Spot& spot, Qt::MouseButton button)
{
    const QPointer<QWidget> widget = spot.widget;
    MouseMove(spot);
    if (widget)
        MousePress(spot, button);
    PassTime(40);
    if (widget && gHeld != Qt::NoButton)
        MouseRelease(spot);
    else
        gHeld = Qt::NoButton;
}

void DoubleClick(const Spot& spot)
{
    const QPointer<QWidget> widget = spot.widget;
    Click(spot, Qt::LeftButton);
    if (!widget)
        return;
    PassTime(60);
    gHeld = Qt::LeftButton;
    SendMouse(spot, QEvent::MouseButtonPress, Qt::LeftButton);
    if (widget && gHeld != Qt::NoButton)
        MouseRelease(spot);
    else
        gHeld = Qt::NoButton;
}

void Wheel(const Spot& spot, QPoint turn, Qt::KeyboardModifiers modifiers)
{
    QWindow* window = spot.widget->window()->windowHandle();
    const QPoint global = spot.widget->mapToGlobal(spot.at);
    QWheelEvent wheel(
        window->mapFromGlobal(global), global, {}, turn, Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    QCoreApplication::sendEvent(window, &wheel);
}

Qt::MouseButton HeldButton()
{
    return gHeld;
}
