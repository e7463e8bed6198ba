#include "invoicing/find_invoice.h"

#include "base/clock.h"
#include "base/dates.h"
#include "controls/hourglass.h"
#include "controls/keys.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "controls/window_place.h"
#include "invoicing/invoice_cells.h"

qint16 frmFindInvoice::SelectedInvoiceID = -1;
bool frmFindInvoice::InvoiceSelected = false;

frmFindInvoice::frmFindInvoice(QWidget* parent)
    : Form("frmFindInvoice", tr("Find Invoice"), parent)
{
    cmdOk->setText(tr("&Start Search"));
    cmdEditCustomer->setText(tr("View/Edit Invoice"));
    cmdCancel->setText(tr("&Close"));
    gres->setAccessibleName(tr("Matches"));
    for (DatePicker* date : {dtFromDate, dtToDate}) {
        date->SetCheckBox(true);
        date->SetValue(Now());
    }

    setLayout(column({
        row({fields({{tr("From Date:"), dtFromDate}, {tr("To Date:"), dtToDate}}), stretch(), cmdOk}),
        gres,
        row({fields({{tr("Total matches:"), lblTotalCustomers}}), stretch(), cmdEditCustomer, cmdCancel}),
    }));
    resize(GrownWithFont(600, 440));
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    gres->SetColumns({
        {"firstname", tr("Contact Name"), 3000, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder, Spare::No,
            FullNameCell()},
        {"businessname", tr("Business Name"), 3000, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder,
            Spare::Always},
        {"isubmitteddate", tr("Invoice Date"), 1600, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder, Spare::No,
            ShortDateCell()},
    });
    gres->StretchWithSize();

    LetKeyClickInWindow(cmdEditCustomer, Qt::Key_F2, this);
    gres->OfferOnRows({cmdEditCustomer});
    gres->SetEmptyText(tr("Press \"Start Search\" to list the invoices of these days."));

    On(cmdOk, &QPushButton::clicked, this, &frmFindInvoice::Search);
    On(cmdEditCustomer, &QPushButton::clicked, this, &frmFindInvoice::TakeInvoice);
    On(gres, &RecordList::Opened, this, &frmFindInvoice::TakeInvoice);
}

void frmFindInvoice::Search()
{
    if (!dtFromDate->Value() && !dtToDate->Value()) {
        MsgBox(
            tr("No criteria to search by has been entered. Please enter some details and try again."), Icon::Critical);
        return;
    }
    const Hourglass hourglass(tr("Searching the invoices..."));
    // One date alone leaves the other one empty, which the statement does not survive.
    const Sql invoices =
        Sql("SELECT invoice.id, businessname, invoice.SubmittedDate as isubmitteddate, firstname, "
            "lastname FROM invoice, customer WHERE invoice.customerid = customer.id "
            "AND invoice.SubmittedDate >= #{from} 12:00AM# AND invoice.SubmittedDate <= #{to} 11:59PM# "
            "ORDER BY invoice.SubmittedDate")
            .Raw("from", DateToYmd(dtFromDate->Value()))
            .Raw("to", DateToYmd(dtToDate->Value()));
    gres->Load(invoices, 1, 0);
    gres->SetEmptyText(tr("No invoice is of these days."));
    lblTotalCustomers->setText(QString::number(gres->Rows() - 1));
}

void frmFindInvoice::TakeInvoice()
{
    const qint64 invoiceId = gres->CurrentRowData();
    if (invoiceId == 0) {
        // The words are those of an older vocabulary, and users know them.
        MsgBox(tr("No reservation has been selected. Select a reservation to to view or edit and try again."),
            Icon::Critical);
        return;
    }
    SelectedInvoiceID = qint16(ToInteger16(invoiceId));
    InvoiceSelected = true;
    accept();
}
