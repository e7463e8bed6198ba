#include "parties/vendors_panel.h"

#include "controls/message_box.h"
#include "db/new_row.h"
#include "parties/vendor_record.h"
#include "records/row_deletion.h"

VendorsPanel::VendorsPanel(QWidget* parent)
    : ListPanel("picVendors", parent)
{
    cmdVendorEdit->setText(tr("View/Edit Vendor"));
    cmdVendorNew->setText(tr("New Vendor"));
    cmdVendorDelete->setText(tr("Delete Vendor"));
    gVendors->setAccessibleName(tr("Vendors"));

    gVendors->SetColumns({
        {"businessname", tr("Business Name"), 800, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder,
            Spare::Always},
        {"contactname", tr("Contact Name"), 1600, CellAlign::CenterTop, CellAlign::LeftCenter, "contactname"},
        {"phone", tr("Phone"), 1600, CellAlign::CenterTop, CellAlign::LeftCenter, "phone"},
    });

    setLayout(column({
        head(tr("Vendors"),
            tr("Instructions - you are currently viewing your vendors. To sort by a column click it's title. For "
               "more details press F1 for help.")),
        gVendors,
        ButtonBar("picVendorButBar", {stretch(), cmdVendorEdit, cmdVendorNew, cmdVendorDelete}),
    }));

    ShowList(gVendors, {cmdVendorEdit, cmdVendorNew, cmdVendorDelete},
        [this](int row, qint64 selectId) { RefreshVendorList(row, selectId); });
    On(cmdVendorEdit, &QPushButton::clicked, this, &VendorsPanel::EditSelected);
    On(cmdVendorNew, &QPushButton::clicked, this, &VendorsPanel::AddVendor);
    On(cmdVendorDelete, &QPushButton::clicked, this, &VendorsPanel::DeleteSelected);
}

void VendorsPanel::RefreshVendorList(int row, qint64 selectId)
{
    gConnection->Execute("SELECT count(*) FROM item").Close();
    gVendors->Load(
        gVendors->Ordered(QStringLiteral("SELECT id, businessname, contactname, phone FROM vendor WHERE id <> 1 "),
            "ORDER BY businessname"),
        row, selectId);
}

void VendorsPanel::AddVendor()
{
    gVendors->ShowAdded([this] { ShowVendorRecord(NewRow); });
}

void VendorsPanel::EditSelected()
{
    // Only -1 is no vendor: on an empty list the record opens for vendor 0.
    const qint64 vendorId = gVendors->CurrentRowData();
    if (vendorId == NewRow || gVendors->HidesAllRows())
        MsgBox(tr("No vendor has been selected. Select a vendor from the list and try again."), Icon::Information);
    else
        ShowVendorRecord(qint32(vendorId));
}

void VendorsPanel::ShowVendorRecord(qint32 vendorId)
{
    frmVendor::gEditVendorId = vendorId;
    frmVendor(window()).ShowModal();
    RefreshVendorList(1, 0);
}

void VendorsPanel::DeleteSelected()
{
    const RowDeletion deletion{
        .uses = "SELECT count(*) FROM item WHERE item.vendorid = {id} ",
        .inUse =
            tr("This vendor has existing items and cannot be deleted. To delete this vendor first delete all items "
               "they supply."),
        .inUseTitle = tr("Cannot delete vendor."),
        .question = tr("Delete vendor?"),
        .remove = "DELETE FROM vendor WHERE id = {id}",
        .done = tr("Vendor %1 deleted").arg(gVendors->CellText(gVendors->Row(), "businessname")),
    };
    if (DeleteRecord(deletion, gVendors->CurrentRowData()))
        LoadInPlace();
}
