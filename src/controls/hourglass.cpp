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

ArrowOverHourglass::ArrowOverHourglass()
    : m_waiting(QApplication::overrideCursor() != nullptr)
{
    if (m_waiting)
        QApplication::setOverrideCursor(Qt::ArrowCursor);
}

ArrowOverHourglass::~ArrowOverHourglass()
{
    if (m_waiting)
        QApplication::restoreOverrideCursor();
}
