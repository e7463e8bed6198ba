#include "app/help_key.h"

#include "app/help_desk.h"
#include "app/splash.h"
#include "base/guard.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>

namespace {

/// The menu bar would otherwise have the focus when the help is closed, with no menu open any more.
void LeaveMenus()
{
    while (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget()))
        if (!menu->close())
            break;
    if (auto* bar = qobject_cast<QMenuBar*>(QApplication::focusWidget())) {
        QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(bar, &escape);
    }
}

} // namespace

HelpKey::HelpKey(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool HelpKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    // Any key closes the splash, this one too.
    auto* widget = static_cast<QWidget*>(watched);
    if (qobject_cast<const frmSplash*>(widget->window()))
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier)
        return false;
    // The message of a missing viewer stands until it is answered; one is enough.
    if (!m_opening) {
        const QScopedValueRollback opening(m_opening, true);
        const QStringList names = HelpNamesAt(widget);
        LeaveMenus();
        Guarded([&] { OpenHelpAt(names); });
    }
    return true;
}
