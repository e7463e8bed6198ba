#include "config/key_list.h"

#include "platform/runtime_error.h"

KeyList::KeyList(QWidget* parent)
    : QListWidget(parent)
{
    setUniformItemSizes(true);
}

void KeyList::AddEntry(const QString& text, qint64 id)
{
    auto* entry = new QListWidgetItem(text, this);
    entry->setData(Qt::UserRole, id);
}

void KeyList::SelectFirst()
{
    if (count() > 0)
        setCurrentRow(0);
}

bool KeyList::HasSelection() const
{
    return !selectedItems().isEmpty();
}

qint64 KeyList::SelectedId() const
{
    if (!HasSelection())
        throw InvalidPropertyArrayIndex();
    return selectedItems().constFirst()->data(Qt::UserRole).toLongLong();
}
