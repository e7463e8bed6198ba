#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

namespace {

constexpr int Rounds = 15;
constexpr double Allowed = 1.5;

void ReportList(const char* subject, const Pair& pair)
{
    Report(subject, pair.program.Median(), pair.floor.Median(), pair.floor.Median() * Allowed, "ms");
}

} // namespace

void MeasureLists(RunningProgram& program)
{
    MainWindow& window = program.Window();
    FloorStatement countItems(program.Handle(), QStringLiteral("SELECT count(*) FROM item"));
    FloorStatement items(program.Handle(),
        QStringLiteral("SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, price, PriceListID "
                       "FROM (TaxRate INNER JOIN Item ON TaxRate.ID = Item.TaxRateID) "
                       "LEFT JOIN ItemPriceList ON Item.ID = ItemPriceList.ItemID ORDER BY item.name"));
    window.ViewInventory();
    ReportList("inventory list, refill",
        MeasureInTurn(
            Rounds,
            [&] {
                window.picInventory->RefreshInventoryList(1, 0);
                LetPaint();
            },
            [&] {
                countItems.Run();
                items.Run();
            }));

    FloorStatement countInvoices(program.Handle(), QStringLiteral("SELECT count(*) FROM invoice"));
    FloorStatement invoices(program.Handle(),
        QStringLiteral(
            "SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, businessname, shippeddate "
            "FROM customer, invoice WHERE invoice.customerid = customer.id ORDER BY businessname"));
    window.ListInvoices();
    ReportList("invoice history, refill",
        MeasureInTurn(
            Rounds,
            [&] {
                window.picArrivals->RefreshInvoiceList(1, 0);
                LetPaint();
            },
            [&] {
                countInvoices.Run();
                invoices.Run();
            }));
}
