#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "parties/find_customer.h"

#include <QTest>

#include <list>
#include <string>

namespace {

constexpr int Rounds = 15;
constexpr double Allowed = 1.5;

void ReportList(const std::string& subject, const Pair& pair)
{
    PrintFigure(subject.c_str(), pair.program.Median(), pair.floor.Median(), pair.floor.Median() * Allowed, "ms");
}

/// A list keeps its rows where nothing has changed; from one that was touched it reads them anew.
void Touch(RecordList* list)
{
    list->SetRowData(1, list->RowData(1));
}

void RunAll(std::list<FloorStatement>& statements)
{
    for (FloorStatement& statement : statements)
        statement.Run();
}

/// A list of the main window, reloaded and painted, beside the statements that its loader runs: as they are, and with
/// texts in the engine's own order. Then once more with nothing changed.
void MeasureRefill(RunningProgram& program, const std::string& subject, std::initializer_list<const char*> statements,
    RecordList* list, const std::function<void()>& reload)
{
    constexpr double AllowedUnchanged = 20;
    std::list<FloorStatement> floor;
    std::list<FloorStatement> inByteOrder;
    for (const char* statement : statements) {
        floor.emplace_back(program.Handle(), statement);
        inByteOrder.emplace_back(program.Handle(), EngineSql{InByteOrder(statement).c_str()});
    }
    Pair translated;
    Pair bytes;
    Times unchanged;
    for (int round = 0; round < Rounds; ++round) {
        translated.floor.Add(MillisecondsOf([&] { RunAll(floor); }));
        bytes.floor.Add(MillisecondsOf([&] { RunAll(inByteOrder); }));
        Touch(list);
        const auto show = [&] {
            reload();
            LetPaint();
        };
        const double time = MillisecondsOf(show);
        translated.program.Add(time);
        bytes.program.Add(time);
        unchanged.Add(MillisecondsOf(show));
    }
    ReportList(subject + ", refill", translated);
    ReportList(subject + ", refill, in byte order", bytes);
    PrintFigure((subject + ", reload unchanged").c_str(), unchanged.Median(), 0, AllowedUnchanged, "ms");
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
    MeasureRefill(program, "customer list", {Count, CustomersByName}, customers->gcust, refill);
    customers->gcust->SetTag(QStringLiteral("address1"));
    MeasureRefill(program, "customer list by address", {Count, CustomersByAddress}, customers->gcust, refill);
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
                Touch(finder.gcust);
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
        Touch(inventory->gInventory);
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
    MeasureRefill(program, "inventory list",
        {"SELECT count(*) FROM item", "SELECT id FROM item WHERE noinstock <= reorderlevel",
            "SELECT item.id, [number], item.name, noinstock, taxrate.name AS tname, price, PriceListID "
            "FROM (TaxRate INNER JOIN Item ON TaxRate.ID = Item.TaxRateID) "
            "LEFT JOIN ItemPriceList ON Item.ID = ItemPriceList.ItemID ORDER BY item.name"},
        window.picInventory->gInventory, [&] { window.picInventory->RefreshInventoryList(1, 0); });

    MeasureFilter(program);

    window.ListInvoices();
    MeasureRefill(program, "invoice history",
        {"SELECT count(*) FROM invoice",
            "SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, businessname, shippeddate "
            "FROM customer, invoice WHERE invoice.customerid = customer.id ORDER BY businessname"},
        window.picArrivals->gInvoices, [&] { window.picArrivals->RefreshInvoiceList(1, 0); });

    MeasureCustomers(program);
}
