#include "inventory/item_group_form.h"

#include "controls/focus.h"
#include "controls/hourglass.h"
#include "controls/keys.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/window_place.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "records/lists.h"
#include "sql/schema.h"

qint32 frmItemGroup::gEditItemGroupId = NewRow;

frmItemGroup::frmItemGroup(QWidget* parent)
    : Form("frmItemGroup", tr("Item Group Details"), parent)
{
    cmdAdd->setText(tr("&Add Item"));
    cmdRemove->setText(tr("&Remove"));
    cmdOk->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    auto* membersLabel = new QLabel(tr("Items in Group:"));
    SetLabelOf(membersLabel, gItems);

    cboItems->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);

    setLayout(column({
        instructions(
            tr("Instructions - enter the group's name, add items to the group and then click close to finish.")),
        fields({
            {tr("Item Group Name:"), txtName},
            {tr("Items:"), row({cboItems, cmdAdd})},
        }),
        membersLabel,
        gItems,
        row({cmdRemove, stretch()}),
        row({stretch(), cmdOk, cmdCancel}),
    }));
    txtName->setMaxLength(LongestName);
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    resize(GrownWithFont(480, 480));

    gItems->SetColumns(
        {{"name", tr("Name"), 2400, CellAlign::CenterTop, CellAlign::LeftCenter, NoOrder, Spare::Always}});
    gItems->StretchWithSize();
    gItems->OfferOnRows({cmdRemove});
    LetKeyClick(cmdRemove, Qt::Key_Delete, gItems);
    gItems->SetEmptyText(tr("The group is empty. Choose an item and press \"Add Item\"."));
    FillItems();
    if (gEditItemGroupId == NewRow)
        gItems->SetRows(1);
    else
        ShowStoredGroup();

    // Enter in the list of items adds the one that is chosen there.
    OnFocusGained(cboItems, [this] { SetDefaultButton(cmdAdd, true); });
    OnFocusLeft(cboItems, [this] { SetDefaultButton(cmdOk, true); });
    On(cmdAdd, &QPushButton::clicked, this, &frmItemGroup::AddMember);
    On(cmdRemove, &QPushButton::clicked, this, &frmItemGroup::RemoveMember);
    On(cmdOk, &QPushButton::clicked, this, &frmItemGroup::Save);
}

void frmItemGroup::FillItems()
{
    const Hourglass hourglass(tr("Reading the items..."));
    FillCombo(cboItems, Sql("SELECT id, name FROM item ORDER BY name;"));
    if (cboItems->ListCount() > 0)
        cboItems->SetListIndex(0);
}

void frmItemGroup::ShowStoredGroup()
{
    const Recordset group = gConnection->Execute(Sql("SELECT id, name FROM itemgroup WHERE id = {gEditItemGroupId}")
                                                     .Number("gEditItemGroupId", gEditItemGroupId));
    if (!group.Eof())
        txtName->ShowWhole(NullToText(group["name"]));
    RefreshItemGroupList(1, 0);
}

void frmItemGroup::RefreshItemGroupList(int row, qint64 selectId)
{
    gItems->Load(Sql("SELECT item.id, name FROM itemgroup_item, item WHERE itemgroup_item.itemid = item.id "
                     "AND itemgroupid = {gEditItemGroupId}")
                     .Number("gEditItemGroupId", gEditItemGroupId),
        row, selectId);
}

void frmItemGroup::AddMember()
{
    const int last = gItems->Rows();
    gItems->SetRows(last + 1);
    gItems->SetTextMatrix(last, 0, cboItems->Text());
    gItems->SetRowData(last, cboItems->SelectedData());
    gItems->SelectRow(last);
}

void frmItemGroup::RemoveMember()
{
    if (gItems->Row() == 0) {
        MsgBox(tr("No item has been selected. Please select an item to remove and try again."), Icon::Critical);
        return;
    }
    const int last = gItems->Rows() - 1;
    for (int row = gItems->Row(); row < last; ++row) {
        gItems->SetRowData(row, gItems->RowData(row + 1));
        gItems->SetTextMatrix(row, 0, gItems->TextMatrix(row + 1, 0));
    }
    gItems->SetRows(last);
    gItems->SelectRow(last - 1);
}

void frmItemGroup::Save()
{
    InBatch(*gConnection, [&] {
        if (gEditItemGroupId == NewRow)
            AddGroup();
        else
            ReplaceGroup();
        AddMembers();
    });

    accept();
}

void frmItemGroup::ReplaceGroup() const
{
    gConnection->Execute(Sql("DELETE FROM itemgroup_item WHERE itemgroupid = {gEditItemGroupId}")
                             .Number("gEditItemGroupId", gEditItemGroupId));
    gConnection->Execute(Sql("UPDATE itemgroup SET name = '{name}' WHERE id = {gEditItemGroupId}")
                             .Text("name", txtName->text())
                             .Number("gEditItemGroupId", gEditItemGroupId));
}

void frmItemGroup::AddGroup() const
{
    AddRow group(*gConnection, "[itemgroup]");
    group.AddNew();
    group.Set("Name", txtName->text());
    group.Update();
    gEditItemGroupId = qint32(group.Id());
}

void frmItemGroup::AddMembers() const
{
    AddRow member(*gConnection, "[itemgroup_item]");
    for (int row = 1; row < gItems->Rows(); ++row) {
        member.AddNew();
        member.Set("itemgroupid", gEditItemGroupId);
        member.Set("ItemID", gItems->RowData(row));
        member.Update();
    }
}
