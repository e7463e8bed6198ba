#include "app/menu_key.h"

#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QRect>
#include <QWidget>

MenuKey::MenuKey(QObject* parent)
    : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuKey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F10 || key->modifiers() != Qt::ShiftModifier)
        return false;
    auto* widget = static_cast<QWidget*>(watched);
    const QPoint place = widget->inputMethodQuery(Qt::ImCursorRectangle).toRect().center();
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, widget->mapToGlobal(place));
    QCoreApplication::sendEvent(widget, &menu);
    return true;
}
