#include "inventory/item_groups.h"

#include "controls/message_box.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "inventory/item_group_form.h"
#include "records/row_deletion.h"

ItemGroups::ItemGroups(QWidget* parent)
    : ListPanel("picItemGroups", parent)
{
    cmdItemGroupEdit->setText(tr("View/Edit Item Group"));
    cmdItemGroupNew->setText(tr("New Item Group"));
    cmdItemGroupDelete->setText(tr("Delete Item Group"));
    gItemGroups->setAccessibleName(tr("Item Groups"));
    // The instructions promise sorting, but this list stays in order of name.
    gItemGroups->SetColumns(
        {{"name", tr("Name"), 800, CellAlign::CenterTop, CellAlign::LeftCenter, NoOrder, Spare::Always}});

    setLayout(column({
        head(tr("Item Groups"),
            tr("Instructions - you are currently viewing your item groups. To sort by a column click it's title. "
               "For more details press F1 for help.")),
        gItemGroups,
        ButtonBar("picItemGroupsBot", {stretch(), cmdItemGroupEdit, cmdItemGroupNew, cmdItemGroupDelete}),
    }));

    ShowList(gItemGroups, {cmdItemGroupEdit, cmdItemGroupNew, cmdItemGroupDelete},
        [this](int row, qint64 selectId) { RefreshItemGroupList(row, selectId); });
    On(cmdItemGroupEdit, &QPushButton::clicked, this, &ItemGroups::EditGroup);
    On(cmdItemGroupNew, &QPushButton::clicked, this, &ItemGroups::NewGroup);
    On(cmdItemGroupDelete, &QPushButton::clicked, this, &ItemGroups::DeleteGroup);
}

void ItemGroups::RefreshItemGroupList(int row, qint64 selectId)
{
    gConnection->Execute("SELECT count(*) FROM itemgroup").Close();

    gItemGroups->Load(
        gItemGroups->Ordered(QStringLiteral("SELECT id, name FROM itemgroup "), "ORDER BY name"), row, selectId);
}

void ItemGroups::EditGroup()
{
    // Only -1 is no group: on an empty list the form opens for group 0.
    const qint64 groupId = gItemGroups->CurrentRowData();
    if (groupId == -1 || gItemGroups->HidesAllRows()) {
        MsgBox(tr("No item group has been selected. Select an item group from the list and try again."),
            Icon::Information);
        return;
    }
    frmItemGroup::gEditItemGroupId = qint32(groupId);
    frmItemGroup(window()).ShowModal();
    LoadInPlace();
}

void ItemGroups::NewGroup()
{
    frmItemGroup::gEditItemGroupId = NewRow;
    gItemGroups->ShowAdded([this] {
        frmItemGroup(window()).ShowModal();
        RefreshItemGroupList(1, 0);
    });
}

void ItemGroups::DeleteGroup()
{
    const RowDeletion deletion{
        .uses = "SELECT count(*) FROM itemgroup_item WHERE itemgroupid = {id} ",
        .inUse = tr("This Item Group has existing items and cannot be deleted. To delete this Item Group first delete "
                    "all items they supply."),
        .inUseTitle = tr("Cannot delete Item Group."),
        .question = tr("Delete Item Group?"),
        .remove = "DELETE FROM itemgroup WHERE id = {id}",
        .done = tr("Item Group %1 deleted").arg(gItemGroups->CellText(gItemGroups->Row(), "name")),
    };
    if (DeleteRecord(deletion, gItemGroups->CurrentRowData()))
        LoadInPlace();
}
