#include "records/key_list_form.h"

#include "controls/layout.h"
#include "db/new_row.h"

KeyListForm::KeyListForm(const char* name, const Texts& texts, const KeyTable& table, QWidget* parent)
    : Form(name, texts.title, parent)
    , m_table(table)
{
    cmdAdd->setText(tr("&Add"));
    cmdEdit->setText(tr("&Edit"));
    cmdRemove->setText(tr("&Remove"));
    cmdCancel->setText(tr("&Close"));
    auto* listLabel = new QLabel(texts.listLabel);
    SetLabelOf(listLabel, lstItems);

    setLayout(column({
        instructions(texts.instructions),
        listLabel,
        row({lstItems, column({cmdAdd, cmdEdit, cmdRemove, stretch()})}),
        row({stretch(), cmdCancel}),
    }));
    SetCancelButton(cmdCancel);
    cmdCancel->setDefault(true);

    KeyListForm::Reload();

    On(cmdAdd, &QPushButton::clicked, this, [this] {
        ShowDetails(NewRow);
        Reload();
    });
    On(cmdEdit, &QPushButton::clicked, this, &KeyListForm::Edit);
    On(lstItems, &KeyList::Opened, this, &KeyListForm::Edit);
    On(cmdRemove, &QPushButton::clicked, this, &KeyListForm::Remove);
    lstItems->SetEmptyText(tr("There is nothing to show. Press \"Add\" to begin."));
    LetKeysEdit(lstItems, {cmdAdd, cmdEdit, cmdRemove});
}

void KeyListForm::AddBelowList(QLayout* lines, std::initializer_list<QWidget*> controls)
{
    auto* all = static_cast<QBoxLayout*>(layout());
    all->insertLayout(all->count() - 1, lines);
    for (QWidget* control : controls)
        PutInTabOrderBefore(cmdCancel, control);
}

void KeyListForm::Reload()
{
    lstItems->ShowEntries(m_table, Sql(m_table.entries));
}

void KeyListForm::Edit()
{
    const std::optional<qint64> id = KeyToEdit(m_table, lstItems->SelectedId());
    if (!id)
        return;
    ShowDetails(*id);
    Reload();
}

void KeyListForm::Remove()
{
    const std::optional<qint64> id = lstItems->SelectedId();
    if (!MayRemoveKey(m_table, id))
        return;
    DeleteRow(*id);
    Reload();
}

void KeyListForm::DeleteRow(qint64 id)
{
    DeleteKey(m_table, id);
}
