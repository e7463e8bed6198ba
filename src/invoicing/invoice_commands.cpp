#include "base/numbers.h"
#include "controls/message_box.h"
#include "db/batch.h"
#include "db/connection.h"
#include "invoicing/add_group_items.h"
#include "invoicing/add_order_item.h"
#include "invoicing/current_invoice.h"
#include "invoicing/customer_search.h"
#include "invoicing/invoice_documents.h"
#include "invoicing/invoice_page.h"
#include "invoicing/item_quantity.h"
#include "invoicing/order_lines.h"

#include <algorithm>

void InvoicePage::SearchCustomer()
{
    SelectedCustomerID = -1;
    frmResCustSearch form(txtFirstname->text(), txtLastname->text(), this);
    form.RefreshCustomerScreen();
    form.ShowModal();
    if (SelectedCustomerID == -1)
        return;
    gCurrentCustomerId = SelectedCustomerID;
    LoadCustomerDetailsIntoInvoice(gCurrentCustomerId);
    UpdateInvoiceEdit();
}

void InvoicePage::ResetCustomer()
{
    if (MsgBox(tr("Clear customer details?"), Icon::None, Buttons::YesNo) != Answer::Yes)
        return;
    for (const CustomerBox& entry : CustomerBoxes())
        entry.box->clear();
    gCurrentCustomerId = -1;
}

bool InvoicePage::AddLine(qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice)
{
    if (!AddNewOrderItemToDB(itemId, quantity, discountPercent, isWarranty, unitPrice))
        return false;
    RefreshNewInvoiceItemsList(1, 0);
    return true;
}

void InvoicePage::AddOrderItem()
{
    SelectedItemID = -1;
    SelectedItemQuantity = 0;
    SelectedItemPrice = Currency();
    frmAddOrderItem(cboPriceList->SelectedData(), this).ShowModal();

    InBatch(*gConnection, [&] {
        if (SelectedItemID != -1)
            AddLine(SelectedItemID, SelectedItemQuantity, Val(txtDiscount->text()), chkWarrantyInvoice->isChecked(),
                SelectedItemPrice);
        UpdateInvoiceEdit();
    });
}

void InvoicePage::AddBarCodeItem()
{
    const std::optional<qint32> itemId = FindItemByBarCode(txtBarcode->text());
    if (!itemId) {
        MsgBox(tr("Item not found."), Icon::Critical);
        txtBarcode->FocusAll();
        return;
    }

    InBatch(*gConnection, [&] {
        const Currency price = ListPrice(*itemId, cboPriceList->SelectedData());
        AddLine(*itemId, 1, Val(txtDiscount->text()), chkWarrantyInvoice->isChecked(), price);
    });

    txtBarcode->clear();
    txtBarcode->setFocus();
}

void InvoicePage::AddGroupItems()
{
    GroupItems.clear();
    GroupItemCount = 0;
    frmAddGroupItems(cboPriceList->SelectedData(), this).ShowModal();

    if (GroupItemCount != 0 && !AddChosenGroupItems())
        MsgBox(tr("Not all items have enough stock to be added to the invoice."), Icon::Information);
    UpdateInvoiceEdit();
}

/// False when an item had too little stock; the others are on the invoice all the same. Neither the discount nor the
/// warranty state touches them.
bool InvoicePage::AddChosenGroupItems()
{
    return InBatch(*gConnection, [&] {
        bool allAdded = true;
        for (const GroupItem& item : GroupItems)
            allAdded &= AddNewOrderItemToDB(item.id, item.quantity, 0, false, item.price);
        RefreshNewInvoiceItemsList(1, 0);
        return allAdded;
    });
}

qint32 InvoicePage::QuantityInRow(int row) const
{
    return CLng(gNewInvoice->TextMatrix(row, 0));
}

void InvoicePage::EditOrderItem()
{
    if (const qint64 lineId = gNewInvoice->CurrentRowData(); lineId != 0)
        EditLine(lineId);
    else
        UpdateInvoiceEdit();
}

void InvoicePage::EditLine(qint64 lineId)
{
    const int row = gNewInvoice->Row();
    const QString quantity = gNewInvoice->TextMatrix(row, 0);
    const QString price = gNewInvoice->TextMatrix(row, 3);
    const qint32 oldQuantity = QuantityInRow(row);
    // The price as shown: it replaces the stored one even when the form is cancelled.
    EditLineQuantity = oldQuantity;
    EditLinePrice = CCur(price);
    frmItemQuantity(quantity, price, this).ShowModal();

    InBatch(*gConnection, [&] {
        ChangeOrderLine(lineId, oldQuantity, EditLineQuantity, EditLinePrice);
        RefreshNewInvoiceItemsList(1, 0);
        UpdateInvoiceEdit();
    });
}

void InvoicePage::DeleteOrderItem()
{
    const qint64 lineId = gNewInvoice->CurrentRowData();
    const bool deletes =
        lineId != 0 && MsgBox(tr("Delete item from invoice?"), Icon::Question, Buttons::YesNo) == Answer::Yes;

    InBatch(*gConnection, [&] {
        if (deletes) {
            DeleteOrderLine(lineId, QuantityInRow(gNewInvoice->Row()));
            RefreshNewInvoiceItemsList(1, 0);
        }
        UpdateInvoiceEdit();
    });
}

void InvoicePage::CancelInvoice()
{
    if (MsgBox(tr("Cancel invoice?"), Icon::Question, Buttons::YesNo) != Answer::Yes)
        return;

    InBatch(*gConnection, [&] {
        for (int row = 1; row < gNewInvoice->Rows(); ++row)
            if (const qint64 lineId = gNewInvoice->RowData(row); lineId != 0)
                DeleteOrderLine(lineId, QuantityInRow(row));
        gConnection->Execute(
            Sql("DELETE FROM invoice WHERE id = {gCurrentInvoiceId}").Number("gCurrentInvoiceId", gCurrentInvoiceId));
    });

    gCurrentInvoiceId = -1;
    emit Left();
}

void InvoicePage::PrintPickingList()
{
    UpdateInvoiceEdit();
    ShowPickingList(gCurrentInvoiceId);
}

void InvoicePage::CompleteInvoice()
{
    UpdateInvoiceEdit();
    if (MsgBox(tr("Print Invoice?"), Icon::Question, Buttons::YesNo) == Answer::Yes)
        ShowInvoiceDocument(gCurrentInvoiceId, chkWarrantyInvoice->isChecked());
    PutAwayAndRaiseNextNumber();
    emit Left();
}

void InvoicePage::CloseInvoice()
{
    InBatch(*gConnection, [&] {
        UpdateInvoiceEdit();
        PutAwayAndRaiseNextNumber();
    });

    emit Left();
}

/// The number moves on for an old invoice too: nothing tells an old one from a new one here.
void InvoicePage::PutAwayAndRaiseNextNumber()
{
    gCurrentInvoiceId = -1;
    gCurrentCustomerId = -1;
    gConnection->Execute("UPDATE nextinvoiceno SET invoiceno = invoiceno + 1;");
}
