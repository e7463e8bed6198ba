#include "subjects.h"

#include "measure.h"
#include "running_program.h"
#include "scan_floor.h"

#include "invoicing/open_invoice.h"
#include "make_database/ean13.h"

#include <QElapsedTimer>
#include <QHeaderView>
#include <QKeyEvent>
#include <QTest>
#include <QWindow>

namespace {

constexpr double Allowed = 1.3;
constexpr double AllowedForManyLinesMs = 2;
constexpr int Scans = 1000; // so that ten of them stand beyond the 99th percentile
constexpr int ScansOfAShortInvoice = 5;
constexpr int ScansOfALongInvoice = 100;

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

/// Invoices that grow alike, one after the other under the floor's hands and under the program's.
class ScanRace {
public:
    ScanRace(RunningProgram& program, int linesAtStart, int scansOfAnInvoice)
        : m_program(program)
        , m_floor(program.Handle())
        , m_linesAtStart(linesAtStart)
        , m_scansOfAnInvoice(scansOfAnInvoice)
    {
        for (int scan = 0; scan < Scans; scan += scansOfAnInvoice)
            ScanInTurn();
    }

    Pair scans; ///< from Enter to the line on disk and the figures set
    Times figures; ///< to the figures on the screen
    Times writes; ///< what the floor takes for the statements that write, alone

private:
    /// By turns, but not scan by scan: the program sees when another one writes between its own scans.
    void ScanInTurn()
    {
        ScanAnInvoice([this](InvoicePage& page, qint64) {
            const double toDisk = MillisecondsOf([&] { QTest::keyClick(page.txtBarcode, Qt::Key_Return); });
            scans.program.Add(toDisk);
            figures.Add(toDisk + MillisecondsOf(LetPaint));
        });
        ScanAnInvoice([this](InvoicePage& page, qint64) {
            const std::string code = page.txtBarcode->text().toStdString();
            scans.floor.Add(MillisecondsOf([&] { m_floor.Scan(code, OpenInvoice::gCurrentInvoiceId); }));
            PaintAsAfterScan(page);
        });
        ScanAnInvoice([this](InvoicePage& page, qint64 item) {
            writes.Add(MillisecondsOf([&] { m_floor.Write(item, OpenInvoice::gCurrentInvoiceId); }));
            PaintAsAfterScan(page);
        });
    }

    /// Everything but the scan itself is the same for the program and for the floor, for how long a commit takes
    /// depends on what the processor and the disk did just before: in a loop of its own the floor takes a fifth less.
    void ScanAnInvoice(const std::function<void(InvoicePage& page, qint64 item)>& scanOnce)
    {
        OpenInvoice::gCurrentInvoiceId = qint32(AddInvoice(m_program.Handle(), m_linesAtStart));
        m_program.Window().OpenInvoicePage();
        InvoicePage& page = *m_program.Window().picNewInvoice;
        LetPaint();
        for (int scan = 0; scan < m_scansOfAnInvoice; ++scan) {
            const qint64 item = NextItem();
            page.txtBarcode->setText(ShopEan13(item));
            page.txtBarcode->setFocus();
            LetPaint();
            scanOnce(page, item);
        }
    }

    static void PaintAsAfterScan(InvoicePage& page)
    {
        constexpr int RowsThatChange = 2;
        QWidget& grid = *page.gNewInvoice->viewport();
        grid.update(0, 0, grid.width(), RowsThatChange * page.gNewInvoice->verticalHeader()->defaultSectionSize());
        page.lblTotal->update();
        page.txtBarcode->clear();
        LetPaint();
    }

    /// Items spread over the whole file, none twice.
    qint64 NextItem()
    {
        constexpr qint64 Stride = 7919;
        constexpr qint64 FirstFreeItem = 2000;
        constexpr qint64 Items = 98'000;
        return FirstFreeItem + ++m_items * Stride % Items;
    }

    RunningProgram& m_program;
    ScanFloor m_floor;
    int m_linesAtStart, m_scansOfAnInvoice;
    qint64 m_items = 0;
};

qint64 LinesOf(RunningProgram& program, qint64 invoice)
{
    FloorStatement count(program.Handle(), EngineSql{"SELECT count(*) FROM invoiceline WHERE invoiceid = ?"});
    count.Run(invoice);
    return count.Number();
}

void ReportScans(const std::string& subject, const ScanRace& race, double allowedMs)
{
    constexpr double AllowedOfWrites = 2;
    const auto report = [&](const char* which, double program, double floor) {
        PrintFigure((subject + which).c_str(), program, floor, floor * Allowed + allowedMs, "ms");
    };
    report(", median", race.scans.program.Median(), race.scans.floor.Median());
    report(", 99th percentile", race.scans.program.Percentile99(), race.scans.floor.Percentile99());
    const double writes = race.writes.Median();
    PrintFigure((subject + ", on the screen, by its writes").c_str(), race.figures.Median(), writes,
        writes * AllowedOfWrites, "ms");
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
