#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "parties/find_customer.h"

#include <QTest>

#include <list>

namespace {

constexpr int Rounds = 15;
constexpr double Allowed = 1.5;

void ReportList(const char* subject, const Pair& pair)
{
    PrintFigure(subject, pair.program.Median(), pair.floor.Median(), pair.floor.Median() * Allowed, "ms");
}

/// A list of the main window, reloaded and painted, beside the statements that its loader runs.
void MeasureRefill(RunningProgram& program, const char* subject, std::initializer_list<const char*> statements,
    const std::function<void()>& refill)
{
    std::list<FloorStatement> floor;
    for (const char* statement : statements)
        floor.emplace_back(program.Handle(), statement);
    ReportList(subject,
        MeasureInTurn(
            Rounds,
            [&] {
                refill();
                LetPaint();
            },
            [&] {
                for (FloorStatement& statement : floor)
                    statement.Run();
            }));
}

constexpr const char* CustomersByName =
    "SELECT id, firstname, lastname, businessname, address1, address2, postcode, phone FROM customer "
    "ORDER BY lastname, firstname";
constexpr const char* CustomersByAddress =
    "SELECT id, firstname, lastname, businessname, address1, address2, postcode, phone FROM customer "
    "ORDER BY address1";
constexpr const char* CustomersFound =
    "SELECT id, firstname, lastname, address1, address2, postcode, phone FROM customer "
    "WHERE lastname LIKE '%an%' OR city LIKE '%o%' ORDER BY lastname, firstname";

void MeasureCustomers(RunningProgram& program)
{
    MainWindow& window = program.Window();
    window.ViewCustomers();
    CustomersPanel* customers = window.picCustomers;
    const auto refill = [customers] { customers->RefreshCustomerList(1, 0); };
    constexpr const char* Count = "SELECT count(*) FROM customer";
    MeasureRefill(program, "customer list, refill", {Count, CustomersByName}, refill);
    customers->gcust->SetTag(QStringLiteral("address1"));
    MeasureRefill(program, "customer list, sorted by address", {Count, CustomersByAddress}, refill);
    customers->gcust->SetTag(QString());

    frmFindCustomer finder(&window);
    finder.txtLastname->setText(QStringLiteral("an"));
    finder.txtCity->setText(QStringLiteral("o"));
    finder.show();
    finder.cmdOk->click();
    FloorStatement found(program.Handle(), CustomersFound);
    ReportList("customers found by two criteria",
        MeasureInTurn(
            Rounds,
            [&] {
                finder.RefreshCustomerScreen(1, 0);
                LetPaint();
            },
            [&] { found.Run(); }));
    finder.close();
    // What is measured next types into the main window.
    window.activateWindow();
    LetPaint();
}

/// Words typed into the line under the inventory list, each time over rows that have just been read: from the key to
/// the rows on the screen.
void MeasureFilter(RunningProgram& program)
{
    constexpr int Words = 12;
    constexpr double Limit = 50;
    const InventoryList* inventory = program.Window().picInventory;
    Times keys;
    for (int word = 0; word < Words; ++word) {
        program.Window().ViewInventory();
        inventory->gInventory->OpenFilter();
        auto* line = inventory->findChild<TextBox*>(QStringLiteral("txtFilter"));
        for (const QChar key : QStringLiteral("bowl 1 as"))
            keys.Add(MillisecondsOf([&] {
                QTest::sendKeyEvent(QTest::Click, line, Qt::Key_unknown, key, Qt::NoModifier);
                LetPaint();
            }));
        QTest::keyClick(line, Qt::Key_Escape);
    }
    PrintFigure("filter line, a key, median", keys.Median(), 0, Limit, "ms");
    PrintFigure("filter line, a key, 99th percentile", keys.Percentile99(), 0, Limit, "ms");
}

} // namespace

void MeasureLists(RunningProgram& program)
{
    MainWindow& window = program.Window();
    window.ViewInventory();
    MeasureRefill(program, "inventory list, refill",
        {"SELECT count(*) FROM item", "SELECT id FROM item WHERE noinstock <= reorderlevel",
            "SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, price, PriceListID "
            "FROM (TaxRate INNER JOIN Item ON TaxRate.ID = Item.TaxRateID) "
            "LEFT JOIN ItemPriceList ON Item.ID = ItemPriceList.ItemID ORDER BY item.name"},
        [&] { window.picInventory->RefreshInventoryList(1, 0); });

    MeasureFilter(program);

    window.ListInvoices();
    MeasureRefill(program, "invoice history, refill",
        {"SELECT count(*) FROM invoice",
            "SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, businessname, shippeddate "
            "FROM customer, invoice WHERE invoice.customerid = customer.id ORDER BY businessname"},
        [&] { window.picArrivals->RefreshInvoiceList(1, 0); });

    MeasureCustomers(program);
}
