#include "controls/control.h"

namespace {
bool TakesTab(const QWidget* control)
{
    return control->focusPolicy() & Qt::TabFocus;
}
} // namespace

QList<QWidget*> ControlOwner::TabStops(QWidget* control) const
{
    if (TakesTab(control))
        return {control};
    QList<QWidget*> stops;
    for (QWidget* part : control->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (TakesTab(part) && !m_controls.contains(part))
            stops.append(part);
    return stops;
}

void ControlOwner::PutInTabOrderBefore(QWidget* next, QWidget* control)
{
    m_controls.removeOne(control);
    m_controls.insert(m_controls.indexOf(next), control);
}

void ControlOwner::ApplyTabOrder(QWidget* screen)
{
    QWidget* before = screen;
    for (QWidget* control : m_controls) {
        if (control->window() != screen->window())
            continue;
        for (QWidget* stop : TabStops(control)) {
            QWidget::setTabOrder(before, stop);
            before = stop;
        }
    }
}

QWidget* ControlOwner::FirstToFocus() const
{
    for (QWidget* control : m_controls)
        for (QWidget* stop : TabStops(control))
            if (stop->isVisible() && stop->isEnabled())
                return stop;
    return nullptr;
}
