#include "records/key_group_form.h"

#include "controls/layout.h"
#include "db/new_row.h"
#include "records/lists.h"

KeyGroupForm::KeyGroupForm(const char* name, const char* comboName, const Texts& texts, const KeyTable& groups,
    const KeyTable& entries, QWidget* parent)
    : Form(name, texts.title, parent)
    , cboGroups(Make<ComboBox>(comboName))
    , m_noGroupToAddTo(texts.noGroupToAddTo)
    , m_groups(groups)
    , m_entries(entries)
{
    cmdCatAdd->setText(tr("&Add"));
    cmdCatEdit->setText(tr("&Edit"));
    cmdCatRemove->setText(tr("&Remove"));
    cmdAdd->setText(texts.addEntry);
    cmdEdit->setText(texts.editEntry);
    cmdRemove->setText(texts.removeEntry);
    cmdCancel->setText(tr("&Close"));
    auto* groupsLabel = new QLabel(texts.groupsLabel);
    SetLabelOf(groupsLabel, cboGroups);
    auto* entriesLabel = new QLabel(texts.entriesLabel);
    SetLabelOf(entriesLabel, lstItems);

    setLayout(column({
        instructions(texts.instructions),
        groupsLabel,
        cboGroups,
        row({stretch(), cmdCatAdd, cmdCatEdit, cmdCatRemove}),
        gap(6),
        entriesLabel,
        lstItems,
        row({stretch(), cmdAdd, cmdEdit, cmdRemove}),
        gap(6),
        row({stretch(), cmdCancel}),
    }));
    SetCancelButton(cmdCancel);
    cmdCancel->setDefault(true);

    On(cboGroups, &ComboBox::Click, this, &KeyGroupForm::ShowEntriesOfGroup);
    Reload(std::nullopt);

    On(cmdCatAdd, &QPushButton::clicked, this, [this] { Reload(ShowGroupDetails(NewRow)); });
    On(cmdCatEdit, &QPushButton::clicked, this, &KeyGroupForm::EditGroup);
    On(cmdCatRemove, &QPushButton::clicked, this, &KeyGroupForm::RemoveGroup);
    On(cmdAdd, &QPushButton::clicked, this, &KeyGroupForm::AddEntry);
    On(cmdEdit, &QPushButton::clicked, this, &KeyGroupForm::EditEntry);
    On(lstItems, &KeyList::Opened, this, &KeyGroupForm::EditEntry);
    On(cmdRemove, &QPushButton::clicked, this, &KeyGroupForm::RemoveEntry);
    LetKeysEdit(cboGroups, {cmdCatAdd, cmdCatEdit, cmdCatRemove});
    LetKeysEdit(lstItems, {cmdAdd, cmdEdit, cmdRemove});
}

std::optional<qint64> KeyGroupForm::ChosenGroup() const
{
    if (cboGroups->ListIndex() == -1)
        return std::nullopt;
    return cboGroups->SelectedData();
}

void KeyGroupForm::Reload(std::optional<qint64> groupId)
{
    lstItems->clear();
    cboGroups->Clear();
    FillCombo(cboGroups, Sql(m_groups.entries));
    if (groupId)
        SelectComboByData(cboGroups, *groupId);
    if (!ChosenGroup() && cboGroups->ListCount() > 0)
        cboGroups->SetListIndex(0);
    // Where there is no group there is nothing to add an entry to.
    const QPushButton* first = ChosenGroup() ? cmdAdd : cmdCatAdd;
    lstItems->SetEmptyText(tr("There is nothing to show. Press \"%1\" to begin.").arg(first->text().remove(u'&')));
}

void KeyGroupForm::ShowEntriesOfGroup()
{
    lstItems->ShowEntries(m_entries, Sql(m_entries.entries).Number("parentId", cboGroups->SelectedData()));
}

void KeyGroupForm::EditGroup()
{
    if (const std::optional<qint64> id = KeyToEdit(m_groups, ChosenGroup()))
        Reload(ShowGroupDetails(*id));
}

void KeyGroupForm::RemoveGroup()
{
    const std::optional<qint64> id = ChosenGroup();
    if (!MayRemoveKey(m_groups, id))
        return;
    DeleteKey(m_groups, *id);
    Reload(std::nullopt);
}

void KeyGroupForm::AddEntry()
{
    const std::optional<qint64> groupId = ChosenGroup();
    if (!groupId) {
        MsgBox(m_noGroupToAddTo, Icon::Critical);
        return;
    }
    ShowEntryDetails(NewRow, *groupId);
    Reload(groupId);
}

void KeyGroupForm::EditEntry()
{
    const std::optional<qint64> id = KeyToEdit(m_entries, lstItems->SelectedId());
    if (!id)
        return;
    const std::optional<qint64> groupId = ChosenGroup();
    ShowEntryDetails(*id, *groupId);
    Reload(groupId);
}

void KeyGroupForm::RemoveEntry()
{
    const std::optional<qint64> id = lstItems->SelectedId();
    if (!MayRemoveKey(m_entries, id))
        return;
    const std::optional<qint64> groupId = ChosenGroup();
    DeleteKey(m_entries, *id);
    Reload(groupId);
}
