#include "support/keyboard.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>
#include <QWindow>

namespace {

void Send(QEvent::Type type, Qt::Key key, Qt::KeyboardModifiers modifiers, const QString& text, ulong time)
{
    // Right after a dialog has closed none is active yet; the keys go where they went before it.
    static QPointer<QWidget> below;
    QWidget* modal = QApplication::activeModalWidget();
    QWidget* active = modal ? modal : QApplication::activeWindow();
    if (modal && modal->parentWidget())
        below = modal->parentWidget()->window();
    else if (active && !modal)
        below = active;
    const QWidget* window = active ? active : below.data();
    ASSERT_TRUE(window) << "no window takes keys";
    if (QWidget* focus = QApplication::focusWidget();
        focus && type == QEvent::KeyPress && qt_sendShortcutOverrideEvent(focus, time, key, modifiers, text, false, 1))
        return;
    QKeyEvent event(type, key, modifiers, text);
    event.setTimestamp(time);
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window->windowHandle(), &event);
}

constexpr ulong Pause = 1000;
ulong gTime = Pause;
} // namespace

void PressKeys(const QString& keys, int msAKey)
{
    constexpr ulong Hitch = 100;
    ulong& time = gTime;
    time += Pause;
    for (const QChar character : keys) {
        if (character == u'\a') {
            time += Hitch;
            continue;
        }
        time += ulong(msAKey);
        const bool isEnter = character == u'\n';
        const Qt::Key key = isEnter ? Qt::Key_Return : Qt::Key(character.toUpper().unicode());
        const QString text = isEnter ? QStringLiteral("\r") : QString(character);
        const Qt::KeyboardModifiers shift = character.isUpper() ? Qt::ShiftModifier : Qt::NoModifier;
        if (shift)
            Send(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier, {}, time - 1);
        const ulong pressed = time;
        Send(QEvent::KeyPress, key, shift, text, pressed);
        Send(QEvent::KeyRelease, key, shift, text, pressed);
    }
}

void HoldKey(Qt::Key key)
{
    Send(QEvent::KeyPress, key, {}, {}, gTime += Pause);
}

void RepeatKey(Qt::Key key)
{
    Send(QEvent::KeyRelease, key, {}, {}, gTime += Pause);
    Send(QEvent::KeyPress, key, {}, {}, gTime);
}
