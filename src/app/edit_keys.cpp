#include "app/edit_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QWidget>

void SendKeys(QKeyCombination keys)
{
    QWidget* target = QApplication::focusWidget();
    if (!target)
        return;
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(target, new QKeyEvent(type, keys.key(), keys.keyboardModifiers()));
}
