#include "controls/hourglass.h"

#include <QApplication>

Hourglass::Hourglass()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
}

Hourglass::~Hourglass()
{
    QApplication::restoreOverrideCursor();
}
