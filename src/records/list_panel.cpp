#include "records/list_panel.h"

#include "controls/keys.h"

#include <QShowEvent>

QWidget* ListPanel::ButtonBar(const char* name, std::initializer_list<LayoutItem> buttons)
{
    auto* bar = new QWidget;
    bar->setObjectName(QLatin1String(name));
    bar->setLayout(row(buttons));
    bar->layout()->setContentsMargins(0, 0, 0, 0);
    return bar;
}

void ListPanel::ShowList(RecordList* list, const RowButtons& buttons, Loader load)
{
    m_list = list;
    m_load = std::move(load);
    On(list, &RecordList::Sorted, this, &ListPanel::LoadInPlace);
    On(list, &RecordList::Opened, buttons.open, [open = buttons.open] { open->click(); });
    list->OfferOnRows({buttons.open, buttons.add, buttons.remove});
    list->SetEmptyText(tr("There is nothing to show. Press \"%1\" to begin.").arg(buttons.add->text()));
    SetUpKeys(buttons);
}

void ListPanel::SetUpKeys(const RowButtons& buttons)
{
    LetKeyClickInWindow(buttons.open, Qt::Key_F2, this);
    LetKeyClickInWindow(buttons.add, QKeySequence::New, this);
    LetKeyClick(buttons.remove, Qt::Key_Delete, m_list);
    OnKeyInWindow(this, Qt::Key_F5, [this] { RefreshIfSeen(); });
    OnKeyInWindow(this, QKeySequence::Find, [this] {
        if (m_find)
            m_find();
        else
            m_list->OpenFilter();
    });
}

void ListPanel::LoadInPlace()
{
    m_load(m_list->Row(), 0);
}

void ListPanel::RefreshIfSeen()
{
    if (isVisible())
        m_load(m_list->Row(), m_list->CurrentRowData());
}

void ListPanel::showEvent(QShowEvent* event)
{
    Panel::showEvent(event);
    if (!event->spontaneous())
        m_list->setFocus(Qt::OtherFocusReason);
}
