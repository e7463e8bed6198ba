#include "invoicing/invoice_history.h"

#include "controls/hourglass.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "db/batch.h"
#include "invoicing/invoice_cells.h"

namespace {

constexpr int UnpaidInvoices = 1; ///< the filter's second entry

} // namespace

void DoDelete(qint64 invoiceId)
{
    // The goods are not given back here: deleting from the history is for invoices whose goods have left.
    InBatch(*gConnection, [&] {
        gConnection->Execute(
            Sql("DELETE FROM invoiceline WHERE invoiceid = {invoiceId}").Number("invoiceId", invoiceId));
        gConnection->Execute(Sql("DELETE FROM invoice WHERE id = {invoiceId}").Number("invoiceId", invoiceId));
    });
}

InvoiceHistory::InvoiceHistory(QWidget* parent)
    : ListPanel("picArrivals", parent)
{
    cmdViewDetails->setText(tr("View/Edit Invoice"));
    cmdAddReservation->setText(tr("New Invoice"));
    cmdSimpleCalCancel->setText(tr("Delete Invoice"));
    gInvoices->setAccessibleName(tr("Invoices"));
    auto* filterLabel = new QLabel(tr("Show invoices:"));
    SetLabelOf(filterLabel, cboInvoiceFilter);

    gInvoices->SetColumns({
        {"invoiceno", tr("Number"), 800, CellAlign::CenterTop, CellAlign::LeftCenter, "invoiceno"},
        {"businessname", tr("Business Name"), 800, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder,
            Spare::Always},
        {"firstname", tr("Name"), 2400, CellAlign::CenterTop, CellAlign::LeftCenter, "firstname, lastname", Spare::No,
            FullNameCell()},
        {"submitteddate", tr("Invoice Date"), 1440, CellAlign::CenterTop, CellAlign::LeftCenter,
            "invoice.submitteddate", Spare::No, ShortDateCell()},
    });

    TitleLabel()->setObjectName(QStringLiteral("Label1_8"));
    setLayout(column({
        head(tr("Invoice History"),
            tr("Instructions - you are currently viewing your Invoice History. This includes all past invoices that "
               "have been created. To sort by a column click it's title. For more details press F1 for help.")),
        row({filterLabel, cboInvoiceFilter, stretch()}),
        gInvoices,
        ButtonBar("picSimpleCalButBar", {stretch(), cmdViewDetails, cmdAddReservation, cmdSimpleCalCancel}),
    }));

    On(cboInvoiceFilter, &ComboBox::Click, this, [this] { RefreshInvoiceList(1, 0); });
    ShowList(gInvoices, {cmdViewDetails, cmdAddReservation, cmdSimpleCalCancel},
        [this](int row, qint64 selectId) { RefreshInvoiceList(row, selectId); });
    On(cmdViewDetails, &QPushButton::clicked, this, &InvoiceHistory::ViewDetails);
    On(cmdAddReservation, &QPushButton::clicked, this, [this] { emit NewInvoice(); });
    On(cmdSimpleCalCancel, &QPushButton::clicked, this, &InvoiceHistory::DeleteInvoice);
}

void InvoiceHistory::FillInvoiceFilter()
{
    for (const QString& filter : {tr("All Invoices"), tr("Unpaid Invoices")})
        cboInvoiceFilter->AddItem(filter, 0);
}

void InvoiceHistory::ShowAllInvoices()
{
    SelectIgnoring(cboInvoiceFilter, 0, [this] { RefreshInvoiceList(1, 0); });
}

void InvoiceHistory::RefreshInvoiceList(int selectRow, qint64 selectId)
{
    const Hourglass hourglass(tr("Reading the invoices..."));
    gConnection->Execute("SELECT count(*) FROM invoice").Close();

    QString head = QStringLiteral("SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, "
                                  "businessname, shippeddate FROM customer, invoice "
                                  "WHERE invoice.customerid = customer.id ");
    if (cboInvoiceFilter->ListIndex() == UnpaidInvoices)
        head += QStringLiteral("AND paid=0 ");
    gInvoices->Load(gInvoices->Ordered(head, "ORDER BY businessname"), selectRow, selectId);
}

qint64 InvoiceHistory::SelectedInvoice() const
{
    const qint64 invoiceId = gInvoices->CurrentRowData();
    if (invoiceId == 0)
        MsgBox(tr("No invoice has been selected. Select an invoice from the list and try again."), Icon::Information);
    return invoiceId;
}

void InvoiceHistory::ViewDetails()
{
    if (const qint64 invoiceId = SelectedInvoice(); invoiceId != 0)
        emit OpenInvoice(qint32(invoiceId));
}

void InvoiceHistory::DeleteInvoice()
{
    const qint64 invoiceId = SelectedInvoice();
    if (invoiceId == 0)
        return;
    if (MsgBox(tr("Are you sure you want to delete this invoice?"), Icon::Question, Buttons::YesNo) != Answer::Yes)
        return;
    const QString number = gInvoices->CellText(gInvoices->Row(), "invoiceno");
    DoDelete(invoiceId);
    LoadInPlace();
    ShowStatus(tr("Invoice %1 deleted").arg(number));
}
