#include "controls/held_keys.h"

#include "controls/typed_text.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPointer>
#include <QTextEdit>

namespace {

bool IsModifier(const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
        return true;
    default:
        return false;
    }
}

/// Whether the key writes in the control, or moves in it.
bool IsForText(const QWidget* control, const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return qobject_cast<const QPlainTextEdit*>(control) && TextBefore::IsTextBox(control);
    case Qt::Key_Space:
        // A text to be read goes on by a page.
        if (qobject_cast<const QTextEdit*>(control))
            return true;
        [[fallthrough]];
    case Qt::Key_Delete:
        return TextBefore::IsTextBox(control) || qobject_cast<const QAbstractSpinBox*>(control);
    default:
        return false;
    }
}

bool IsCommand(const QKeyEvent* key)
{
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Insert:
    case Qt::Key_Delete:
    case Qt::Key_Escape:
        return true;
    default:
        break;
    }
    // Ctrl and Alt together are AltGr, which writes.
    const bool isWithAlt = key->modifiers() & Qt::AltModifier && !(key->modifiers() & Qt::ControlModifier);
    const bool isFunctionKey = key->key() >= Qt::Key_F1 && key->key() <= Qt::Key_F35;
    // A box takes letters without Alt, too.
    return isWithAlt || isFunctionKey || qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

class HeldKeys : public QObject {
public:
    HeldKeys()
        : QObject(qApp)
    {
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride: {
            // Taken from the shortcuts by this; the key press that follows is stopped below.
            const bool isStopped = IsStopped(static_cast<QKeyEvent*>(event));
            if (isStopped)
                event->accept();
            return isStopped;
        }
        case QEvent::KeyPress:
            return watched->isWindowType() && IsStopped(static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            if (watched->isWindowType())
                Released(static_cast<QKeyEvent*>(event));
            return false;
        default:
            return false;
        }
    }

private:
    bool IsStopped(const QKeyEvent* key)
    {
        if (IsModifier(key) || !IsRepeat(key) || !IsCommand(key))
            return false;
        const QWidget* focus = QApplication::focusWidget();
        return focus != m_pressedIn || !IsForText(focus, key);
    }

    /// X tells a repeat as a release and a press at the same time, which Qt sees through only where both have already
    /// come. No finger and no scanner is that fast, nor does a key repeat before it has been held for a while.
    bool IsRepeat(const QKeyEvent* key)
    {
        constexpr ulong ShortestHold = 50;
        if (key->isAutoRepeat())
            return true;
        const bool isSameKey = key->key() == m_key;
        // One press comes more than once: first it is looked up as a shortcut.
        if (isSameKey && key->timestamp() == m_pressed)
            return m_isRepeat;
        m_isRepeat = isSameKey && key->timestamp() == m_released && m_released >= m_heldSince + ShortestHold;
        m_key = key->key();
        m_pressed = key->timestamp();
        if (!m_isRepeat) {
            m_heldSince = m_pressed;
            m_pressedIn = QApplication::focusWidget();
        }
        return m_isRepeat;
    }

    void Released(const QKeyEvent* key)
    {
        if (key->key() == m_key)
            m_released = key->timestamp();
    }

    int m_key = 0; ///< the last one pressed
    ulong m_pressed = 0;
    bool m_isRepeat = false;
    ulong m_released = 0;
    ulong m_heldSince = 0;
    QPointer<QWidget> m_pressedIn;
};

} // namespace

void LetHeldKeysActOnce()
{
    static QPointer<HeldKeys> keys;
    if (!keys)
        keys = new HeldKeys;
    // Once more moves it to the front.
    qApp->installEventFilter(keys);
}
