#pragma once

#include "config/secondary_tax.h"
#include "invoicing/invoice_page.h"
#include "invoicing/open_invoice.h"
#include "support/test.h"

/// The invoice page in a window, set up as the main window does it.
class InvoicePageTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        OpenInvoice::gCurrentInvoiceId = -1;
        OpenInvoice::gCurrentCustomerId = -1;
        LoadSecondaryTax();
        page = new InvoicePage(&window);
        (new QVBoxLayout(&window))->addWidget(page);
        window.resize(1024, 640);
        page->FillPaymentMethods();
        QObject::connect(page, &InvoicePage::Left, &window, [this] {
            ++timesLeft;
            page->hide();
        });
        Shown(&window);
    }

    void Open(qint32 invoiceId)
    {
        OpenInvoice::gCurrentInvoiceId = invoiceId;
        page->show();
        page->ShowInvoicePage();
        // Events of the show itself are not part of what a test looks at.
        QCoreApplication::processEvents();
    }
    void OpenNew() { Open(-1); }

    void Scan(const QString& code)
    {
        Type(page->txtBarcode, code);
        Press(page->txtBarcode, Qt::Key_Return);
    }

    QWidget window;
    InvoicePage* page = nullptr;
    int timesLeft = 0;
};
