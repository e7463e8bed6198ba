#include "records/list_panel.h"

#include <QShowEvent>

QWidget* ListPanel::ButtonBar(const char* name, std::initializer_list<LayoutItem> buttons)
{
    auto* bar = new QWidget;
    bar->setObjectName(QLatin1String(name));
    bar->setLayout(row(buttons));
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    return bar;
}

void ListPanel::ShowList(RecordList* list, QPushButton* open, Loader load)
{
    m_list = list;
    m_load = std::move(load);
    On(list, &RecordList::Sorted, this, &ListPanel::LoadInPlace);
    On(list, &RecordList::Opened, open, [open] { open->click(); });
}

void ListPanel::LoadInPlace()
{
    m_load(m_list->Row(), 0);
}

void ListPanel::showEvent(QShowEvent* event)
{
    Panel::showEvent(event);
    if (!event->spontaneous())
        m_list->setFocus(Qt::OtherFocusReason);
}
