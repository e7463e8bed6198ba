#include "base/numbers.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "db/batch.h"
#include "db/connection.h"
#include "invoicing/add_group_items.h"
#include "invoicing/add_order_item.h"
#include "invoicing/add_order_line.h"
#include "invoicing/customer_search.h"
#include "invoicing/invoice_documents.h"
#include "invoicing/invoice_page.h"
#include "invoicing/item_quantity.h"
#include "invoicing/order_lines.h"

#include <algorithm>

void InvoicePage::SearchCustomer()
{
    frmResCustSearch::SelectedCustomerID = -1;
    frmResCustSearch form(txtFirstname->text(), txtLastname->text(), this);
    form.RefreshCustomerScreen();
    form.ShowModal();
    if (frmResCustSearch::SelectedCustomerID == -1)
        return;
    OpenInvoice::gCurrentCustomerId = frmResCustSearch::SelectedCustomerID;
    LoadCustomerDetailsIntoInvoice(OpenInvoice::gCurrentCustomerId);
    UpdateInvoiceEdit();
}

void InvoicePage::ResetCustomer()
{
    if (MsgBox(tr("Clear customer details?"), Icon::None, Buttons::YesNo) != Answer::Yes)
        return;
    ShowTexts({}, CustomerBoxes());
    OpenInvoice::gCurrentCustomerId = -1;
}

std::optional<qint64> InvoicePage::AddLine(
    qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice)
{
    FileChanges file = m_file;
    const bool isFilled = m_linesOf == OpenInvoice::gCurrentInvoiceId && !file.Changed(*gConnection);
    const std::optional<qint64> line = AddNewOrderItemToDB(itemId, quantity, discountPercent, isWarranty, unitPrice);
    if (!line)
        return std::nullopt;
    if (!isFilled || !ShowLine(*line)) {
        RefreshNewInvoiceItemsList(1, 0);
        gNewInvoice->Reveal(gNewInvoice->RowOf(*line));
    }
    m_file.Remember(*gConnection);
    return line;
}

void InvoicePage::AddOrderItem()
{
    frmAddOrderItem::SelectedItemID = -1;
    frmAddOrderItem::SelectedItemQuantity = 0;
    frmAddOrderItem::SelectedItemPrice = Currency();
    frmAddOrderItem(cboPriceList->SelectedData(), this).ShowModal();

    InBatch(*gConnection, [&] {
        if (frmAddOrderItem::SelectedItemID != -1)
            AddLine(frmAddOrderItem::SelectedItemID, frmAddOrderItem::SelectedItemQuantity, Val(txtDiscount->text()),
                chkWarrantyInvoice->isChecked(), frmAddOrderItem::SelectedItemPrice);
        UpdateInvoiceEdit();
    });
}

void InvoicePage::AddGroupItems()
{
    frmAddGroupItems::GroupItems.clear();
    frmAddGroupItems::GroupItemCount = 0;
    frmAddGroupItems(cboPriceList->SelectedData(), this).ShowModal();

    const bool allAdded = InBatch(*gConnection, [&] {
        const bool all = frmAddGroupItems::GroupItemCount == 0 || AddChosenGroupItems();
        if (all)
            UpdateInvoiceEdit();
        return all;
    });
    if (allAdded)
        return;
    ScanMsgBox(tr("Not all items have enough stock to be added to the invoice."), Icon::Information);
    UpdateInvoiceEdit();
}

/// False when an item had too little stock; the others are on the invoice all the same. Neither the discount nor the
/// warranty state touches them.
bool InvoicePage::AddChosenGroupItems()
{
    bool allAdded = true;
    for (const GroupItem& item : frmAddGroupItems::GroupItems)
        allAdded &= AddNewOrderItemToDB(item.id, item.quantity, 0, false, item.price).has_value();
    gNewInvoice->CloseFilter();
    RefreshNewInvoiceItemsList(1, 0);
    return allAdded;
}

qint32 InvoicePage::QuantityInRow(int row) const
{
    // The cell is empty where another program left the quantity out.
    const QString quantity = gNewInvoice->CellText(row, "quantity");
    return quantity.isEmpty() ? 0 : CLng(quantity);
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
    const QString quantity = gNewInvoice->CellText(row, "quantity");
    const QString price = gNewInvoice->CellText(row, "amount");
    const qint32 oldQuantity = QuantityInRow(row);
    // The price as shown: it replaces the stored one even when the form is cancelled.
    frmItemQuantity::EditLineQuantity = oldQuantity;
    frmItemQuantity::EditLinePrice = CCur(price);
    frmItemQuantity(quantity, price, this).ShowModal();

    InBatch(*gConnection, [&] {
        ChangeOrderLine(lineId, oldQuantity, frmItemQuantity::EditLineQuantity, frmItemQuantity::EditLinePrice);
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

    QList<OrderLine> lines;
    for (int row = 1; row < gNewInvoice->Rows(); ++row)
        if (const qint64 lineId = gNewInvoice->RowData(row); lineId != 0)
            lines.append({lineId, QuantityInRow(row)});
    OpenInvoice::Cancel(lines);
    emit Left();
    ShowStatus(tr("Invoice %1 cancelled").arg(lblInvoiceNo->text()));
}

void InvoicePage::PrintPickingList()
{
    UpdateInvoiceEdit();
    ShowPickingList(OpenInvoice::gCurrentInvoiceId);
}

void InvoicePage::CompleteInvoice()
{
    UpdateInvoiceEdit();
    if (MsgBox(tr("Print Invoice?"), Icon::Question, Buttons::YesNo) == Answer::Yes)
        ShowInvoiceDocument(OpenInvoice::gCurrentInvoiceId, chkWarrantyInvoice->isChecked());
    Leave(OpenInvoice::Finish(), tr("Invoice %1 completed"));
}

void InvoicePage::CloseInvoice()
{
    const QString numberGivenTwice = InBatch(*gConnection, [&] {
        UpdateInvoiceEdit();
        return OpenInvoice::Finish();
    });
    Leave(numberGivenTwice, tr("Invoice %1 closed"));
}

void InvoicePage::Leave(const QString& numberGivenTwice, const QString& done)
{
    emit Left();
    ShowStatus(numberGivenTwice.isEmpty()
            ? done.arg(lblInvoiceNo->text())
            : tr("Invoice number %1 was given twice: another invoice went out under it meanwhile.")
                  .arg(numberGivenTwice));
}
