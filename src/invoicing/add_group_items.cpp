#include "invoicing/add_group_items.h"

#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/window_place.h"

std::vector<GroupItem> frmAddGroupItems::GroupItems;
qint32 frmAddGroupItems::GroupItemCount = 0;

namespace {

std::vector<GroupItem> ReadGroupItems(qint64 groupId, qint64 priceListId)
{
    std::vector<GroupItem> items;
    Recordset rs =
        gConnection->Execute(Sql("SELECT item.id, itempricelist.price FROM ItemGroup_Item, Item, ItemPriceList "
                                 "WHERE ItemPriceList.pricelistid = {priceListId} AND ItemPriceList.itemid = item.id "
                                 "AND ItemGroup_Item.itemid = item.id AND itemgroupid = {groupId}")
                                 .Number("priceListId", priceListId)
                                 .Number("groupId", groupId));
    for (; !rs.Eof(); rs.MoveNext())
        items.push_back({qint32(rs.Long(0)), 1, rs.Money(1)});
    return items;
}

} // namespace

frmAddGroupItems::frmAddGroupItems(qint64 priceListId, QWidget* parent)
    : Form("frmAddGroupItems", tr("Add Group Items"), parent)
    , m_priceListId(priceListId)
{
    cmdOk->setText(tr("Add Items to Invoice"));
    cmdCancel->setText(tr("&Cancel"));
    auto* caption = new QLabel(tr("Item Groups:"));
    SetLabelOf(caption, gItemGroups);
    setLayout(column({
        instructions(tr("Instructions - select the item group to add to the invoice and then click "
                        "'Add Items to Invoice'.")),
        caption,
        gItemGroups,
        row({stretch(), cmdOk, cmdCancel}),
    }));
    resize(GrownWithFont(480, 400));
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);

    gItemGroups->SetColumns(
        {{"name", tr("Name"), 6300, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder, Spare::Always}});
    gItemGroups->StretchWithSize();
    gItemGroups->SetEmptyText(tr("There are no item groups."));
    gItemGroups->Load(Sql("SELECT id, name FROM itemgroup ORDER BY name"), 1, 0);

    On(cmdOk, &QPushButton::clicked, this, &frmAddGroupItems::TakeItems);
    On(gItemGroups, &FlexGrid::DblClick, this, &frmAddGroupItems::TakeItems);
}

void frmAddGroupItems::TakeItems()
{
    const qint64 groupId = gItemGroups->CurrentRowData();
    if (groupId == 0) {
        MsgBox(
            tr("No Item Group has been selected. Please select an Item Group to add then try again."), Icon::Critical);
        return;
    }
    GroupItems = ReadGroupItems(groupId, m_priceListId);
    GroupItemCount = qint32(GroupItems.size());
    accept();
}
