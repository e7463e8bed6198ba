#include "controls/screen_input.h"

#include "controls/form.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointer>
#include <QShortcutEvent>

namespace {

Panel* PanelAround(QWidget* widget)
{
    while (widget && !dynamic_cast<Panel*>(widget))
        widget = widget->isWindow() ? nullptr : widget->parentWidget();
    return static_cast<Panel*>(widget);
}

/// The buttons of a window that have this access key now.
QList<QAbstractButton*> ButtonsOf(const QWidget* window, const QKeySequence& key)
{
    QList<QAbstractButton*> buttons = window->findChildren<QAbstractButton*>();
    buttons.removeIf([&](const QAbstractButton* button) {
        return button->shortcut() != key || !button->isVisible() || !button->isEnabled() || button->window() != window;
    });
    return buttons;
}

class ScreenInput : public QObject {
public:
    ScreenInput()
        : QObject(qApp)
    {
        qApp->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::Shortcut:
            return watched->isWidgetType()
                && AccessKey(static_cast<QWidget*>(watched), static_cast<QShortcutEvent*>(event)->key());
        case QEvent::Show:
            if (auto* panel = dynamic_cast<Panel*>(watched); panel && !event->spontaneous())
                m_unpressed = panel;
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonDblClick:
            return watched->isWidgetType() && IsOfAnotherPanelsGesture(static_cast<QWidget*>(watched), event->type());
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
        buttons.first()->setFocus(Qt::ShortcutFocusReason);
        buttons.first()->animateClick();
        return true;
    }

    bool IsOfAnotherPanelsGesture(QWidget* pressed, QEvent::Type type)
    {
        const Panel* panel = PanelAround(pressed);
        if (!panel)
            return false;
        // A third click, and so on, belongs to the same gesture.
        const bool goesOn = m_swallowed.isValid() && !m_swallowed.hasExpired(QApplication::doubleClickInterval());
        if (goesOn || (panel == m_unpressed && type == QEvent::MouseButtonDblClick)) {
            m_swallowed.start();
            return true;
        }
        m_unpressed = nullptr;
        return false;
    }

    QPointer<Panel> m_unpressed; ///< the panel that came into view last, until it is pressed for the first time
    QElapsedTimer m_swallowed;
};

} // namespace

void WatchScreenInput()
{
    static QPointer<ScreenInput> watch;
    if (!watch)
        watch = new ScreenInput;
}
