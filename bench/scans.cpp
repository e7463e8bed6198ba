#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "invoicing/open_invoice.h"
#include "make_database/ean13.h"

#include <QElapsedTimer>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

namespace {

constexpr double Allowed = 1.3;
constexpr double AllowedForManyLinesMs = 2;
constexpr int Scans = 1000; // so that ten of them stand beyond the 99th percentile
constexpr int ScansOfAShortInvoice = 5;
constexpr int ScansOfALongInvoice = 100;

/// The statements of one scan on an invoice without a line of that item, in their order.
class ScanFloor {
public:
    explicit ScanFloor(sqlite3* handle)
        : m_begin(handle, EngineSql{"BEGIN IMMEDIATE"})
        , m_findItem(handle, "SELECT id FROM item WHERE barcode = 'x'")
        , m_price(handle, "SELECT price FROM itempricelist WHERE itemid = 1 AND pricelistid = 1")
        , m_stock(handle, "SELECT noinstock FROM item WHERE id = 1")
        , m_lineOfItem(handle, "SELECT id, quantity FROM invoiceline WHERE invoiceid = 1 AND itemid = 1")
        , m_item(handle,
              "SELECT item.id, [number], item.name, taxrate.percentage, taxrate.name AS tname, description "
              "FROM item, taxrate WHERE item.taxrateid = taxrate.id AND item.id = 1")
        , m_addLine(handle,
              EngineSql{"INSERT INTO InvoiceLine (ItemID, InvoiceID, Quantity, Amount, Description, Number, Name, "
                        "TaxRateName, TaxRatePercentage) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"})
        , m_takeFromStock(handle, "UPDATE item SET noinstock = noinstock - 1 WHERE id = 1")
        , m_lines(handle,
              "SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline "
              "WHERE invoiceid = 1;")
        , m_commit(handle, EngineSql{"COMMIT"})
    {
    }

    void Scan(const std::string& barCode, qint64 invoice)
    {
        m_findItem.Run(barCode);
        const qint64 item = m_findItem.Number();
        m_begin.Run();
        m_price.Run(item, 1);
        m_stock.Run(item);
        m_lineOfItem.Run(invoice, item);
        m_item.Run(item);
        m_addLine.Run(item, invoice, 1, 12.5, m_noText, m_number, m_name, m_taxRate, 8.25);
        m_takeFromStock.Run(1, item);
        m_lines.Run(invoice);
        m_commit.Run();
        m_lineOfItem.Run(invoice, item);
    }

private:
    FloorStatement m_begin, m_findItem, m_price, m_stock, m_lineOfItem, m_item, m_addLine, m_takeFromStock, m_lines,
        m_commit;
    const std::string m_noText, m_number = "12345", m_name = "Pewter Candlestick 12345", m_taxRate = "Standard";
};

/// Adds an invoice with lines of the items from number 1 on, as past scans have left it.
qint64 AddInvoice(sqlite3* handle, int lines)
{
    FloorStatement(handle, EngineSql{"BEGIN"}).Run();
    FloorStatement(handle,
        EngineSql{
            "INSERT INTO invoice (CustomerID, InvoiceNo, SubmittedDate, PaymentMethod, Paid, WarrantyInvoice, "
            "StockReturned, Notes, Total2ndTax) VALUES (1, '100001', '2024-05-31 00:00:00', 'N/A', 0, 0, 0, '', '')"})
        .Run();
    FloorStatement newest(handle, EngineSql{"SELECT max(id) FROM invoice"});
    newest.Run();
    FloorStatement(handle,
        EngineSql{
            "INSERT INTO invoiceline (InvoiceID, ItemID, Quantity, Amount, Number, Name, Description, TaxRateName, "
            "TaxRatePercentage) SELECT ?, id, 1, 12.5, Number, Name, '', 'Standard', 8.25 FROM item WHERE id <= ?"})
        .Run(newest.Number(), lines);
    FloorStatement(handle, EngineSql{"COMMIT"}).Run();
    return newest.Number();
}

/// Two invoices that grow alike, one under the program's hands and one under the floor's.
class ScanRace {
public:
    ScanRace(RunningProgram& program, int linesAtStart, int scansOfAnInvoice)
        : m_program(program)
        , m_floor(program.Handle())
        , m_linesAtStart(linesAtStart)
        , m_scansOfAnInvoice(scansOfAnInvoice)
    {
    }

    Pair Run()
    {
        Pair pair;
        for (int scan = 0; scan < Scans; ++scan) {
            if (scan % m_scansOfAnInvoice == 0)
                OpenInvoices();
            pair.floor.Add(MillisecondsOf([&] { m_floor.Scan(NextCode().toStdString(), m_floorInvoice); }));
            InvoicePage& page = *m_program.Window().picNewInvoice;
            page.txtBarcode->setText(NextCode());
            page.txtBarcode->setFocus();
            LetPaint();
            pair.program.Add(MillisecondsOf([&] { QTest::keyClick(page.txtBarcode, Qt::Key_Return); }));
            m_painting.Add(MillisecondsOf(LetPaint));
        }
        return pair;
    }

    /// What the window system gets to do after a scan; the floor has no counterpart of it.
    const Times& Painting() const { return m_painting; }

private:
    void OpenInvoices()
    {
        m_floorInvoice = AddInvoice(m_program.Handle(), m_linesAtStart);
        OpenInvoice::gCurrentInvoiceId = qint32(AddInvoice(m_program.Handle(), m_linesAtStart));
        m_program.Window().OpenInvoicePage();
        LetPaint();
    }

    /// Items spread over the whole file, none twice.
    QString NextCode()
    {
        constexpr qint64 Stride = 7919;
        constexpr qint64 FirstFreeItem = 2000;
        constexpr qint64 Items = 98'000;
        return ShopEan13(FirstFreeItem + ++m_codes * Stride % Items);
    }

    RunningProgram& m_program;
    ScanFloor m_floor;
    int m_linesAtStart, m_scansOfAnInvoice;
    qint64 m_floorInvoice = 0;
    qint64 m_codes = 0;
    Times m_painting;
};

qint64 LinesOf(RunningProgram& program, qint64 invoice)
{
    FloorStatement count(program.Handle(), EngineSql{"SELECT count(*) FROM invoiceline WHERE invoiceid = ?"});
    count.Run(invoice);
    return count.Number();
}

void ReportScans(const std::string& subject, ScanRace&& race, double allowedMs)
{
    constexpr double FrameMs = 16;
    const Pair pair = race.Run();
    const auto report = [&](const char* which, double program, double floor) {
        PrintFigure((subject + which).c_str(), program, floor, floor * Allowed + allowedMs, "ms");
    };
    report(", median", pair.program.Median(), pair.floor.Median());
    report(", 99th percentile", pair.program.Percentile99(), pair.floor.Percentile99());
    PrintFigure((subject + ", painting after it, median").c_str(), race.Painting().Median(), 0, FrameMs, "ms");
}

constexpr int KeyMs = 10;

/// Keys as the window system brings them to the main window, each at its time.
class Keyboard {
public:
    explicit Keyboard(QWidget& window)
        : m_window(window)
    {
        m_clock.start();
    }

    /// Waits until it is time for the key, while the program does what it has to. Returns what the key took.
    double Press(QChar character)
    {
        m_time += KeyMs;
        while (m_clock.elapsed() < qint64(m_time))
            LetPaint();
        return Send(*m_window.windowHandle(), character);
    }
    void Type(const QString& keys)
    {
        for (const QChar key : keys)
            Press(key);
    }
    /// Sends it to a window, or past it straight to a control.
    double Send(QObject& receiver, QChar character) const
    {
        const bool isEnter = character == u'\r';
        const int code = isEnter ? int(Qt::Key_Return) : int(character.unicode());
        QKeyEvent press(QEvent::KeyPress, code, Qt::NoModifier, character);
        QKeyEvent release(QEvent::KeyRelease, press.key(), Qt::NoModifier, character);
        press.setTimestamp(m_time);
        release.setTimestamp(m_time);
        return MillisecondsOf([&] {
            QCoreApplication::sendEvent(&receiver, &press);
            QCoreApplication::sendEvent(&receiver, &release);
        });
    }
    void Wait(ulong milliseconds) { m_time += milliseconds; }

private:
    QWidget& m_window;
    QElapsedTimer m_clock;
    ulong m_time = 0;
};

/// A cashier who scans without looking, on an invoice that has long been open.
void MeasureScanner(RunningProgram& program)
{
    constexpr int Lines = 300;
    constexpr int CodesInARow = 30;
    constexpr ulong Pause = 1000;
    Connection onDisk;
    onDisk.Open(program.Path());
    FloorStatement count(FloorHandle(onDisk), EngineSql{"SELECT count(*) FROM invoiceline WHERE invoiceid = ?"});
    const qint64 invoice = AddInvoice(program.Handle(), Lines);
    OpenInvoice::gCurrentInvoiceId = qint32(invoice);
    program.Window().OpenInvoicePage();
    InvoicePage& page = *program.Window().picNewInvoice;
    QWidget* const places[] = {page.txtFirstname, page.gNewInvoice, page.txtBarcode};

    Keyboard keyboard(program.Window());
    int late = 0;
    Times toDisk;
    for (int scan = 0; scan < CodesInARow; ++scan) {
        places[scan % 3]->setFocus();
        keyboard.Type(ShopEan13(1000 + scan));
        count.Run(invoice);
        late += count.Number() != Lines + scan;
        toDisk.Add(keyboard.Press(u'\r'));
    }
    count.Run(invoice);
    PrintFigure(
        "30 scans at 10 ms a key, late or lost", late + double(Lines + CodesInARow - count.Number()), 0, 0, "scans");
    PrintFigure("such a scan, Enter to the line on disk, slowest", toDisk.Percentile99(), 0, 14 * KeyMs, "ms");

    constexpr int Bursts = 200;
    Times inList, inText, typing;
    QWindow& window = *program.Window().windowHandle();
    for (int burst = 0; burst < Bursts; ++burst) {
        page.gNewInvoice->setFocus();
        keyboard.Wait(Pause);
        for (const QChar key : ShopEan13(1000)) {
            keyboard.Wait(KeyMs);
            inList.Add(keyboard.Send(window, key));
        }
        page.txtFirstname->setFocus();
        page.txtFirstname->clear();
        keyboard.Wait(Pause);
        for (const QChar key : ShopEan13(1000)) {
            keyboard.Wait(KeyMs);
            inText.Add(keyboard.Send(window, key));
            typing.Add(keyboard.Send(*page.txtFirstname, key));
        }
        LetPaint();
    }
    constexpr double MostMs = 0.02;
    PrintFigure("a key of a scan, recognised in a list", inList.Median() * 1000, 0, MostMs * 1000, "us");
    PrintFigure("a key of a scan, recognised in a text box, beyond typing it",
        (inText.Median() - typing.Median()) * 1000, 0, MostMs * 1000, "us");
}

} // namespace

void MeasureScans(RunningProgram& program)
{
    MeasureScanner(program);
    ReportScans("scan of a bar code", ScanRace(program, 0, ScansOfAShortInvoice), 0);
    // A scan that went nowhere would be a fast one.
    PrintFigure("lines missing on the last short invoice",
        double(ScansOfAShortInvoice - LinesOf(program, OpenInvoice::gCurrentInvoiceId)), 0, 0, "lines");
    ReportScans("scan, 1,000 lines", ScanRace(program, 1000, ScansOfALongInvoice), AllowedForManyLinesMs);
    OpenInvoice::gCurrentInvoiceId = -1;
}
