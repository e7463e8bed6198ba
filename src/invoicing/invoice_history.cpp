#include "invoicing/invoice_history.h"

#include "base/dates.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "db/batch.h"
#include "records/lists.h"

namespace {

constexpr int UnpaidInvoices = 1; ///< the filter's second entry

const QStringList& SortExpressions()
{
    static const QStringList expressions{QStringLiteral("invoiceno"), QString(), QStringLiteral("firstname, lastname"),
        QStringLiteral("invoice.submitteddate")};
    return expressions;
}

/// Writes the rows of the list's statement. Texts go from the row to the grid as they are, since the list may be long.
class InvoiceRowWriter {
public:
    std::optional<qint64> operator()(const Recordset& invoice, GridFill& fill)
    {
        enum { Id, InvoiceNo, SubmittedDate, FirstName, LastName, BusinessName };
        fill.Add(invoice.Text(InvoiceNo));
        fill.Add(invoice.Text(BusinessName));
        m_name.assign(invoice.Text(FirstName)).append(1, ' ').append(invoice.Text(LastName));
        fill.Add(m_name);
        fill.Add(m_shortDate(invoice.StoredText(SubmittedDate)));
        return invoice.Long(Id);
    }

private:
    std::string m_name;
    ShortDateWriter m_shortDate;
};

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
    : Panel("picArrivals", parent)
{
    cmdViewDetails->setText(tr("View/Edit Invoice"));
    cmdAddReservation->setText(tr("New Invoice"));
    cmdSimpleCalCancel->setText(tr("Delete Invoice"));
    gInvoices->setAccessibleName(tr("Invoices"));
    auto* filterLabel = new QLabel(tr("Show invoices:"));
    SetLabelOf(filterLabel, cboInvoiceFilter);

    setLayout(column({
        head(tr("Invoice History"),
            tr("Instructions - you are currently viewing your Invoice History. This includes all past invoices that "
               "have been created. To sort by a column click it's title. For more details press F1 for help.")),
        row({filterLabel, cboInvoiceFilter, stretch()}),
        gInvoices,
        row({stretch(), cmdViewDetails, cmdAddReservation, cmdSimpleCalCancel}),
    }));

    On(cboInvoiceFilter, &ComboBox::Click, this, [this] { RefreshInvoiceList(1, 0); });
    On(gInvoices, &FlexGrid::Click, this, [this] {
        SortOnTitleClick(gInvoices, SortExpressions(), [this] { RefreshInvoiceList(gInvoices->Row(), 0); });
    });
    On(gInvoices, &FlexGrid::DblClick, this, [this] {
        if (gInvoices->MouseRow() != 0)
            ViewDetails();
    });
    On(cmdViewDetails, &QPushButton::clicked, this, &InvoiceHistory::ViewDetails);
    On(cmdAddReservation, &QPushButton::clicked, this, [this] { emit NewInvoice(); });
    On(cmdSimpleCalCancel, &QPushButton::clicked, this, &InvoiceHistory::DeleteInvoice);
}

void InvoiceHistory::RefreshInvoiceList(int selectRow, qint64 selectId)
{
    const Hourglass hourglass;
    gConnection->Execute("SELECT count(*) FROM invoice").Close();

    QString head = QStringLiteral("SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, "
                                  "businessname, shippeddate FROM customer, invoice "
                                  "WHERE invoice.customerid = customer.id ");
    if (cboInvoiceFilter->ListIndex() == UnpaidInvoices)
        head += QStringLiteral("AND paid=0 ");
    LoadList(gInvoices, Ordered(head, gInvoices, QStringLiteral("ORDER BY businessname")), selectRow, selectId,
        InvoiceRowWriter());
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
    DoDelete(invoiceId);
    RefreshInvoiceList(gInvoices->Row(), 0);
}
