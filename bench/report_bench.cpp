#include "subjects.h"

#include "db/add_row.h"
#include "db/batch.h"
#include "invoicing/invoice_documents.h"
#include "paper/preview_window.h"
#include "paper/report_output.h"
#include "reports/stock_reports.h"

#include "floor.h"
#include "running_program.h"

#include <QCoreApplication>
#include <QEvent>
#include <QTemporaryDir>

// After the reports: its routine has the name of their class.
#include "measure.h"

namespace {
constexpr int Rounds = 7;

void CloseAllPreviews()
{
    ClosePreviews();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// The bytes of the fields that the stock level report shows: texts as UTF-8, eight a number.
double BytesOfTheRows()
{
    double bytes = 0;
    for (Recordset rows = gConnection->Execute("SELECT item.[Number], item.name, vendor.businessname FROM item, vendor "
                                               "WHERE item.vendorid = vendor.id");
         !rows.Eof(); rows.MoveNext())
        bytes += double(rows.Text(0).size() + rows.Text(1).size() + rows.Text(2).size() + 2 * sizeof(double));
    return bytes;
}

void MeasureFirstPage(RunningProgram& program)
{
    FloorStatement query(program.Handle(),
        QStringLiteral("SELECT * FROM item, vendor WHERE item.vendorid = vendor.id ORDER BY item.name"));
    const Pair pair = MeasureInTurn(
        Rounds,
        [] {
            ShowStockLevelReport();
            LetPaint();
            CloseAllPreviews();
        },
        [&] { query.Run(); });
    PrintFigure("stock level report, first page in view", pair.program.Median(), pair.floor.Median(),
        pair.floor.Median() * 1.2, "ms");
}

void MeasurePdf()
{
    constexpr double MillisecondsAPage = 2;
    constexpr double BytesARow = 100;
    const QTemporaryDir folder;
    const double rowBytes = BytesOfTheRows();
    const double before = MegabytesInUse();
    ReportLayout layout(PrepareStockLevelReport(), {});
    const double time = MillisecondsOf([&] { SaveReportAsPdf(layout, folder.filePath(QStringLiteral("stock.pdf"))); });
    const double grown = (MegabytesInUse() - before) * 1e6;
    const int rows = layout.Design().rows->parents.Count();
    PrintFigure("stock level report to PDF, per page", time / layout.PageCount(), 0, MillisecondsAPage, "ms");
    PrintFigure("  memory beyond the rows themselves, per row", (grown - rowBytes) / rows, 0, BytesARow, "bytes");
}

int AddInvoiceOfTwentyLines()
{
    return InBatch(*gConnection, [&] {
        AddRow customer(*gConnection, "customer");
        customer.AddNew();
        customer.Set("FirstName", QStringLiteral("Ann"));
        customer.Update();
        AddRow invoice(*gConnection, "invoice");
        invoice.AddNew();
        invoice.Set("CustomerID", customer.Id());
        invoice.Set("InvoiceNo", QStringLiteral("99999"));
        invoice.Update();
        for (int i = 1; i <= 20; ++i) {
            AddRow line(*gConnection, "invoiceline");
            line.AddNew();
            line.Set("InvoiceID", invoice.Id());
            line.Set("ItemID", i);
            line.Set("Quantity", i);
            line.Set("Amount", 9.99);
            line.Set("Name", QStringLiteral("Screws M%1").arg(i));
            line.Set("TaxRatePercentage", 10.0);
            line.Update();
        }
        return int(invoice.Id());
    });
}

void MeasureInvoice()
{
    constexpr double Limit = 150;
    const int invoice = AddInvoiceOfTwentyLines();
    Times times;
    for (int round = 0; round < Rounds; ++round) {
        times.Add(MillisecondsOf([&] {
            ShowInvoiceDocument(invoice, false);
            LetPaint();
        }));
        CloseAllPreviews();
    }
    PrintFigure("invoice of 20 lines, click to preview", times.Median(), 0, Limit, "ms");
}
} // namespace

void MeasureReports(RunningProgram& program)
{
    MeasureFirstPage(program);
    MeasurePdf();
    MeasureInvoice();
}
