#include "controls/screen_input.h"

#include "controls/held_keys.h"
#include "controls/keys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QShortcutEvent>
#include <QTimer>

namespace {

/// The buttons of a window that have this access key now.
QList<QAbstractButton*> ButtonsOf(const QWidget* window, const QKeySequence& key)
{
    QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
    buttons.removeIf([&](const QAbstractButton* button) {
        return button->shortcut() != key || !button->isVisible() || !button->isEnabled() || button->window() != window;
    });
    return buttons;
}

/// The button shows pressed for a moment first. Unlike Qt's own late click, this one is let go where a form or box has
/// opened or closed meanwhile: it would close a form behind its own box, which then could not be answered any more.
void FocusAndClick(QAbstractButton* button)
{
    constexpr int PressedMs = 100;
    button->setFocus(Qt::ShortcutFocusReason);
    if (button->isDown())
        return;
    button->setDown(true);
    QTimer::singleShot(PressedMs, button, [button, modal = QPointer(QApplication::activeModalWidget())] {
        button->setDown(false);
        if (button->isVisible() && QApplication::activeModalWidget() == modal)
            button->click();
    });
}

class ScreenInput : public QObject {
public:
    ScreenInput()
        : QObject(qApp)
    {
        qApp->installEventFilter(this);
        LetHeldKeysActOnce();
    }

    void CameIntoView(QWidget* panel)
    {
        m_fresh = panel;
        m_isPressed = false;
        m_swallowed.invalidate();
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Shortcut:
            return watched->isWidgetType()
                && AccessKey(static_cast<QWidget*>(watched), static_cast<QShortcutEvent*>(event)->key());
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return watched->isWidgetType() && IsOfTheGestureThatBrought(static_cast<QWidget*>(watched), event->type());
        default:
            return false;
        }
    }

private:
    /// True when this has done all that the key asks for.
    static bool AccessKey(QWidget* owner, const QKeySequence& key)
    {
        if (!qobject_cast<QAbstractButton*>(owner) && !qobject_cast<QMenuBar*>(owner))
            return false;
        const QList<QAbstractButton*> buttons = ButtonsOf(owner->window(), key);
        // Several of them take turns, which is Qt's affair.
        if (buttons.size() != 1)
            return false;
        FocusAndClick(buttons.first());
        return true;
    }

    bool IsOfTheGestureThatBrought(QWidget* pressed, QEvent::Type type)
    {
        if (!m_fresh || !(m_fresh == pressed || m_fresh->isAncestorOf(pressed)))
            return false;
        // A double click whose first press was not on the panel; a third click, and so on, belongs to it.
        const bool goesOn = m_swallowed.isValid() && !m_swallowed.hasExpired(QApplication::doubleClickInterval());
        if (goesOn || (!m_isPressed && type == QEvent::MouseButtonDblClick)) {
            m_swallowed.start();
            return true;
        }
        m_isPressed = true;
        return false;
    }

    QPointer<QWidget> m_fresh; ///< the panel that came into view last
    bool m_isPressed = false; ///< since then
    QElapsedTimer m_swallowed;
};

ScreenInput& Watch()
{
    static QPointer<ScreenInput> watch;
    if (!watch)
        watch = new ScreenInput;
    return *watch;
}

} // namespace

void LetAccessKeysFocus()
{
    Watch();
}

void PressWithKey(QPushButton* button, QWidget* screen, const QKeySequence& key)
{
    TellKey(button, key);
    auto* shortcut = new QShortcut(key, screen);
    shortcut->setAutoRepeat(false);
    QObject::connect(shortcut, &QShortcut::activated, button, [button] {
        if (button->isEnabled())
            FocusAndClick(button);
    });
}

void KeepGestureOff(QWidget* panel)
{
    Watch().CameIntoView(panel);
}
