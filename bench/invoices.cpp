#include "subjects.h"

#include "disk.h"
#include "measure.h"
#include "running_program.h"
#include "scan_floor.h"

#include "controls/message_box.h"
#include "inventory/receive_stock.h"
#include "invoicing/customer_search.h"
#include "invoicing/invoice_page.h"
#include "make_database/ean13.h"

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>

namespace {

constexpr int Invoices = 40;
constexpr int ScansEach = 5;
constexpr qint64 FirstItem = 3000;
const QString Surname = QStringLiteral("Quernmore");
constexpr int Customer = 7;

/// Says No to whatever is asked.
class NoToAll : public DialogDoor {
public:
    NoToAll() { SetDialogDoor(this); }
    ~NoToAll() override { SetDialogDoor(nullptr); }
    NoToAll(const NoToAll&) = delete;
    NoToAll& operator=(const NoToAll&) = delete;

    Answer Message(const QString&, Icon, Buttons, const QString&) override { return Answer::No; }
    QString OpenFileName(const QString&, const QString&) override { return {}; }
    QString SaveFileName(const QString&, const QString&, const QString&) override { return {}; }
    bool Print(QPrinter&) override { return false; }
    bool PageSetup(QPrinter&) override { return false; }
    void OpenLink(const QString&) override { }
    void Help(int, int) override { }
    void HelpAt(const QStringList&) override { }
};

/// The invoice page in a window of its own: what the main window does when an invoice ends is measured elsewhere.
class InvoiceDesk {
public:
    InvoiceDesk()
    {
        (new QVBoxLayout(&m_window))->addWidget(&m_page);
        m_window.resize(1024, 640);
        m_page.FillPaymentMethods();
        m_window.show();
        WaitUntilActive();
    }

    /// Opens, finds the customer, scans and completes.
    void WriteInvoice(qint64 firstItem)
    {
        m_page.ShowInvoicePage();
        m_page.txtLastname->setText(Surname);
        QTimer::singleShot(0, &m_window, [] {
            auto& form = dynamic_cast<frmResCustSearch&>(*QApplication::activeModalWidget());
            form.gcust->SelectRow(form.gcust->RowOf(Customer));
            form.cmdSelect->click();
        });
        m_page.cmdNewInvoiceCustSearch->setFocus();
        m_page.cmdNewInvoiceCustSearch->click();
        WaitUntilActive();
        for (qint64 item = firstItem; item < firstItem + ScansEach; ++item) {
            m_page.txtBarcode->setFocus();
            m_page.txtBarcode->setText(ShopEan13(item));
            QTest::keyClick(m_page.txtBarcode, Qt::Key_Return);
        }
        m_page.cmdCompleteInvoice->click();
    }

private:
    void WaitUntilActive()
    {
        m_window.activateWindow();
        if (!QTest::qWaitForWindowActive(&m_window))
            std::fputs("bench: the window does not become active\n", stderr);
    }

    QWidget m_window;
    InvoicePage m_page{&m_window};
};

/// The same, each act of the user in a commit of its own.
class InvoiceFloor {
public:
    explicit InvoiceFloor(sqlite3* handle)
        : m_scans(handle)
        , m_begin(handle, EngineSql{"BEGIN IMMEDIATE"})
        , m_number(handle, "SELECT invoiceno FROM NextInvoiceNo")
        , m_add(handle, EngineSql{"INSERT INTO invoice (SubmittedDate, InvoiceNo, StockReturned) VALUES (?, ?, 0)"})
        , m_newest(handle, EngineSql{"SELECT max(id) FROM invoice"})
        , m_search(handle,
              "SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer WHERE lastname LIKE "
              "'%x%' ORDER BY lastname, firstname")
        , m_customer(handle,
              "SELECT ID, FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Fax, Email, "
              "SubmittedDate, BusinessName, Discount, PriceListID FROM Customer WHERE ID = 1")
        , m_saveCustomer(handle, "UPDATE Customer SET LastName = 'x' WHERE ID = 1")
        , m_saveInvoice(handle,
              EngineSql{"UPDATE invoice SET CustomerID = ?, PaymentMethod = 'N/A', Paid = 0, WarrantyInvoice = 0, "
                        "SubmittedDate = '2026-03-14 00:00:00', ShippedDate = NULL, Notes = '', Total2ndTax = '$0.00' "
                        "WHERE id = ?"})
        , m_addCustomer(handle,
              EngineSql{"INSERT INTO customer (FirstName, LastName, BusinessName, Address1, Address2, City, State, "
                        "PostCode, Country, Phone, Fax, Email, Discount, PriceListID) VALUES ('', ?, '', '', '', '', "
                        "'', '', '', '', '', '', 0, 1)"})
        , m_nextNumber(handle, "UPDATE nextinvoiceno SET invoiceno = invoiceno + 1;")
        , m_commit(handle, EngineSql{"COMMIT"})
    {
    }

    void WriteInvoice(qint64 firstItem)
    {
        m_number.Run();
        m_add.Run(std::string("2026-03-14 10:30:00"), std::string("100001"));
        m_newest.Run();
        const qint64 invoice = m_newest.Number();
        // The first control is left: a customer of the invoice's own.
        m_begin.Run();
        m_addCustomer.Run(Surname.toStdString());
        m_saveInvoice.Run(Customer, invoice);
        m_commit.Run();
        m_search.Run(std::string("%").append(Surname.toStdString()).append("%"));
        m_customer.Run(Customer);
        m_begin.Run();
        m_saveCustomer.Run(Surname.toStdString(), Customer);
        m_saveInvoice.Run(Customer, invoice);
        m_commit.Run();
        for (qint64 item = firstItem; item < firstItem + ScansEach; ++item)
            m_scans.Scan(ShopEan13(item).toStdString(), invoice);
        m_nextNumber.Run();
    }

private:
    ScanFloor m_scans;
    FloorStatement m_begin, m_number, m_add, m_newest, m_search, m_customer, m_saveCustomer, m_saveInvoice,
        m_addCustomer, m_nextNumber, m_commit;
};

struct Cost {
    Times times;
    qint64 commits = 0;
    qint64 syncs = 0;

    void Measure(const QString& path, const std::function<void()>& act)
    {
        const qint64 commitsBefore = CommitsOf(path);
        const qint64 syncsBefore = DiskSyncs();
        times.Add(MillisecondsOf(act));
        commits = CommitsOf(path) - commitsBefore;
        syncs = DiskSyncs() - syncsBefore;
    }
};

} // namespace

void MeasureInvoices(RunningProgram& program)
{
    constexpr double Allowed = 2.5;
    FloorStatement(program.Handle(), EngineSql{"UPDATE customer SET LastName = ? WHERE id = ?"})
        .Run(Surname.toStdString(), Customer);
    const NoToAll answers;
    // The keys go to one window.
    program.Window().hide();
    InvoiceFloor bare(program.Handle());
    InvoiceDesk desk;
    Cost ours, floor;
    qint64 item = FirstItem;
    for (int invoice = 0; invoice < Invoices; ++invoice, item += ScansEach) {
        floor.Measure(program.Path(), [&] { bare.WriteInvoice(item); });
        ours.Measure(program.Path(), [&] { desk.WriteInvoice(item); });
        LetPaint();
    }
    program.Window().show();
    FloorStatement lines(program.Handle(),
        EngineSql{"SELECT count(*) FROM invoiceline WHERE InvoiceID = (SELECT max(id) FROM invoice)"});
    lines.Run();
    PrintFigure("lines missing on the last invoice", double(ScansEach - lines.Number()), 0, 0, "lines");
    const double median = floor.times.Median();
    PrintFigure(
        "an invoice: new, customer, five scans, completed", ours.times.Median(), median, median * Allowed, "ms");
    PrintFigure("such an invoice, commits", double(ours.commits), double(floor.commits), double(floor.commits), "");
    PrintFigure("such an invoice, syncs of the disk", double(ours.syncs), double(floor.syncs), double(floor.syncs), "");
}

void MeasureReceiving(RunningProgram& program)
{
    constexpr int Receipts = 100;
    constexpr double Allowed = 30;
    constexpr qint64 Stride = 947; // so that the last one is an item, too
    FloorStatement update(program.Handle(), "UPDATE item SET noinstock = noinstock + 7 WHERE id = 1");
    frmReceiveStock form(nullptr);
    program.Window().hide();
    form.show();
    form.activateWindow();
    if (!QTest::qWaitForWindowActive(&form))
        std::fputs("bench: the window does not become active\n", stderr);
    Times scans, bookings, writes;
    for (qint64 item = FirstItem; item < FirstItem + Receipts * Stride; item += Stride) {
        const auto enter = [](QLineEdit* box, const QString& text) {
            box->setFocus();
            box->setText(text);
            return MillisecondsOf([box] {
                QTest::keyClick(box, Qt::Key_Return);
                LetPaint();
            });
        };
        scans.Add(enter(form.txtBarcode, ShopEan13(item)));
        bookings.Add(enter(form.txtAddQuantity, QStringLiteral("7")));
    }
    form.hide();
    program.Window().show();
    for (int receipt = 0; receipt < Receipts; ++receipt)
        writes.Add(MillisecondsOf([&] { update.Run(7, FirstItem + receipt); }));
    PrintFigure("stock received: a scan, to the row on the screen", scans.Median(), 0, Allowed, "ms");
    PrintFigure(
        "stock received: booked in, to the row on the screen", bookings.Median(), writes.Median(), Allowed, "ms");
    PrintFigure("the slowest booking", bookings.Percentile99(), writes.Percentile99(), Allowed, "ms");
}
