#include "app/app_test.h"
#include "app/menu_key.h"
#include "inventory/item_details.h"
#include "inventory/item_group_form.h"
#include "invoicing/open_invoice.h"
#include "parties/customer_record.h"
#include "parties/vendor_record.h"

namespace {

/// What is told of one list panel. Its three rows have the ids 11, 12 and 13 in the order in which they show at first.
struct ListPanelCase {
    const char* title;
    const char* entry; ///< of the menu
    const char* list;
    const char* bar;
    const char* table;
    QStringList rows; ///< SQL that makes the rows
    Table shown;
    QStringList
        sorted; ///< for each title the order of the rows that a click on it makes: "213"; empty: it does not sort
    const char* open;
    const char* add;
    const char* remove;
    std::function<qint64()> edited; ///< what the form edits; none where an invoice opens on its page
    QList<int> rowsAfterEdit; ///< selected when the row above went meanwhile, and when not
    const char* use; ///< makes the first row one that cannot be deleted
    const char* refusal;
    const char* refusalTitle;
    const char* question;
    int rowAfterRemoval;
    const char* finder; ///< what Ctrl+F opens; none for the line that filters
    const char* nothingSelected; ///< said of row data -1 ...
    bool emptyOpens; ///< ... while an empty list opens its form for row 0
};

void PrintTo(const ListPanelCase& panel, std::ostream* out)
{
    *out << panel.title;
}

const ListPanelCase Invoices{"Invoice History", "mnuListInvoices", "gInvoices", "picSimpleCalButBar", "invoice",
    {"INSERT INTO customer (id, FirstName, LastName, BusinessName) VALUES (1, 'Zoe', 'Brown', 'Alloys'), "
     "(2, 'Bob', 'Ray', 'metals'), (3, 'Ann', 'Smith', 'Zinc & Co')",
        "INSERT INTO invoice (id, InvoiceNo, CustomerID, SubmittedDate, Paid) VALUES "
        "(11, '00003', 1, '2025-12-31 00:00:00', 0), (12, '00001', 2, '2026-03-04 00:00:00', 1), "
        "(13, '00002', 3, NULL, 0), (14, 'no customer', NULL, NULL, 0)"},
    {{"00003", "Alloys", "Zoe Brown", "12/31/2025"}, {"00001", "metals", "Bob Ray", "3/4/2026"},
        {"00002", "Zinc & Co", "Ann Smith", ""}},
    {"231", "123", "321", "312"}, "cmdViewDetails", "cmdAddReservation", "cmdSimpleCalCancel", nullptr, {}, nullptr,
    nullptr, nullptr, "Are you sure you want to delete this invoice?", 2, "frmFindInvoice", nullptr, false};

const ListPanelCase Customers{"Customers", "mnuCustomersView", "gcust", "picCustBot", "customer",
    {"INSERT INTO customer (id, FirstName, LastName, BusinessName, Address1, Address2, PostCode, Phone) VALUES "
     "(11, 'Ann', 'Lee', 'O''Brien & Co', '9 Mill', 'Dock 4', 'A1', '3'), "
     "(12, 'Bob', 'lee', '', '5 Mill', '', 'C1', '2'), (13, 'Cid', 'Nash', NULL, '7 Mill', NULL, NULL, '1')"},
    {{"Ann Lee (O'Brien & Co)", "9 Mill, Dock 4", "A1", "3"}, {"Bob lee", "5 Mill", "C1", "2"},
        {"Cid Nash", "7 Mill", "", "1"}},
    {"123", "231", "312", "321"}, "cmdEditCustomer", "cmdCreateCustomer", "cmdDeleteCustomer",
    [] { return frmCustomer::gEditCustomerId; }, {1, 2, 2}, "INSERT INTO invoice (CustomerID) VALUES (11)",
    "This customer has existing invoices and cannot be deleted. To delete this customer first delete all their "
    "invoices.",
    "Cannot delete customer.", "Delete customer?", 2, "frmFindCustomer", "", false};

const ListPanelCase Vendors{"Vendors", "mnuVendorsView", "gVendors", "picVendorButBar", "vendor",
    {"INSERT INTO vendor (id, BusinessName, ContactName, Phone) VALUES (11, 'Axes ''R'' Us', 'Zoe', '1'), "
     "(12, 'bolts', 'Ann', '3'), (13, 'Cords', NULL, '2')"},
    {{"Axes 'R' Us", "Zoe", "1"}, {"bolts", "Ann", "3"}, {"Cords", "", "2"}}, {"123", "321", "132"}, "cmdVendorEdit",
    "cmdVendorNew", "cmdVendorDelete", [] { return frmVendor::gEditVendorId; }, {1, 1, 1},
    "INSERT INTO item (Name, VendorID) VALUES ('Hatchet', 11)",
    "This vendor has existing items and cannot be deleted. To delete this vendor first delete all items they supply.",
    "Cannot delete vendor.", "Delete vendor?", 2, nullptr,
    "No vendor has been selected. Select a vendor from the list and try again.", true};

const ListPanelCase Inventory{"Inventory", "mnuViewInventory", "gInventory", "picInventoryButBar", "item",
    {"INSERT INTO taxrate (id, Name, Percentage) VALUES (21, 'A zero rate', 0), (22, 'VAT', 17.5)",
        "INSERT INTO item (id, Number, Name, NoInStock, TaxRateID) VALUES (11, '30', 'Anchor', 2.5, 1), "
        "(12, '0010', 'bolts & <nuts>', 9, 21), (13, '20', 'Cleat', 1200, 22), (14, '40', 'No such tax', 1, 999)",
        "UPDATE item SET LocationID = 1, SubCategoryID = 1, VendorID = 1, ReorderLevel = 0, MinStockLevel = 0",
        "INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (11, 1, 0.125), (12, 1, 1234.5), (13, 1, 20)"},
    {{"30", "Anchor", "$0.13", "None", "2.5"}, {"0010", "bolts & <nuts>", "$1,234.50", "A zero rate", "9"},
        {"20", "Cleat", "$20.00", "VAT", "1200"}},
    {"231", "123", "132", "213", "123"}, "cmdEditInventory", "cmdAddInventory", "cmdDeleteInventory",
    [] { return frmItemDetails::gEditItemId; }, {1, 2, 2}, "INSERT INTO invoiceline (ItemID) VALUES (11)",
    "This item is used on one or more invoices and cannot be deleted. To delete this item first delete all invoices "
    "it is included in.",
    "Cannot delete item.", "Delete item?", 1, nullptr, nullptr, false};

const ListPanelCase Groups{"Item Groups", "mnuInventoryViewItemGroup", "gItemGroups", "picItemGroupsBot", "itemgroup",
    {"INSERT INTO itemgroup (id, name) VALUES (11, 'kit'), (12, 'Ladders'), (13, 'Other')"},
    {{"kit"}, {"Ladders"}, {"Other"}}, {}, "cmdItemGroupEdit", "cmdItemGroupNew", "cmdItemGroupDelete",
    [] { return frmItemGroup::gEditItemGroupId; }, {2, 2, 2},
    "INSERT INTO itemgroup_item (itemgroupid, ItemID) VALUES (11, 1)",
    "This Item Group has existing items and cannot be deleted. To delete this Item Group first delete all items they "
    "supply.",
    "Cannot delete Item Group.", "Delete Item Group?", 2, nullptr,
    "No item group has been selected. Select an item group from the list and try again.", true};

class ListPanelTest : public MainWindowTest, public ::testing::WithParamInterface<ListPanelCase> {
protected:
    void MakeRows()
    {
        for (const QString& statement : GetParam().rows)
            Run(statement);
    }
    /// Shows the panel as the menu does.
    void Open()
    {
        Window().Run(GetParam().entry);
        list = Find<RecordList>(&Window(), GetParam().list);
        ASSERT_TRUE(list->isVisible());
    }
    QPushButton* Button(const char* name) { return Find<QPushButton>(list->parent(), name); }
    /// "213": the rows in the order in which they stand.
    QString Order() const
    {
        QString order;
        for (int row = 1; row < list->Rows(); ++row)
            order += QString::number(list->RowData(row) - 10);
        return order;
    }
    /// Expects the form for this id and cancels it.
    void ExpectForm(qint64 id)
    {
        WhenFormShows<Form>([this, id](Form& form) {
            EXPECT_EQ(GetParam().edited(), id);
            Run(QString("DELETE FROM %1 WHERE id = 11").arg(GetParam().table));
            Press(&form, Qt::Key_Escape);
        });
    }

    /// Brings up the menu of the second row, looks at it and chooses Delete, and No.
    void ShowMenu();

    RecordList* list = nullptr;
    ScriptedAnswers answers;
};

TEST_P(ListPanelTest, ShowsItsRowsUnderItsTitleWithTheFocusInTheListAndSortsUpwardsByEachTitle)
{
    MakeRows();
    Open();
    EXPECT_EQ(GridRows(list), GetParam().shown);
    EXPECT_EQ(Order(), "123");
    EXPECT_EQ(list->Row(), 1);
    EXPECT_EQ(list->ColSel(), list->Cols() - 1);
    EXPECT_TRUE(list->hasFocus());
    const auto* panel = dynamic_cast<Panel*>(list->parent());
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->Title(), GetParam().title);
    const auto* bar = Find<QWidget>(&Window(), GetParam().bar);
    EXPECT_EQ(Button(GetParam().open)->parent(), bar);
    EXPECT_GT(bar->y(), list->geometry().bottom());

    ClickRow(list, 2);
    for (int col = list->Cols() - 1; col >= 0; --col) {
        for (int click = 0; click < 2; ++click) {
            ClickTitle(list, col);
            EXPECT_EQ(Order(), GetParam().sorted.value(col, "123")) << "column " << col << ", click " << click;
            EXPECT_EQ(list->Row(), 2);
        }
    }
}

TEST_P(ListPanelTest, ARowOpensByButtonDoubleClickAndEnterAndTheListIsReadAnew)
{
    if (!GetParam().edited)
        return; // the invoice page is the invoice history's own matter
    MakeRows();
    Open();
    const std::function<void()> ways[] = {[&] { Click(Button(GetParam().open)); }, [&] { DoubleClickRow(list, 2); },
        [&] { Press(list, Qt::Key_Return); }};
    QList<int> rows;
    for (const auto& open : ways) {
        ClickRow(list, 2);
        ExpectForm(list->CurrentRowData());
        open();
        EXPECT_EQ(Order(), "23") << "read anew";
        rows.append(list->Row());
    }
    EXPECT_EQ(rows, GetParam().rowsAfterEdit);

    ClickRow(list, 2);
    ExpectForm(NewRow);
    Click(Button(GetParam().add));
    EXPECT_EQ(list->Row(), 1);
}

TEST_P(ListPanelTest, EveryKeyDoesItsWorkAndARightClickOffersWhatTheButtonsDo)
{
    MakeRows();
    Open();
    ShowMenu();
    const auto expectOpen = [&](qint64 id) {
        if (GetParam().edited)
            ExpectForm(id);
    };
    ClickRow(list, 2);
    expectOpen(12);
    Press(list, Qt::Key_F2);
    if (!GetParam().edited) {
        EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, 12);
    }
    Open();
    expectOpen(NewRow);
    Press(Button(GetParam().remove), Qt::Key_N, Qt::ControlModifier);
    if (!GetParam().edited) {
        EXPECT_TRUE(Window().picNewInvoice->isVisible());
    }

    Open();
    ClickRow(list, 2);
    const qint64 before = list->CurrentRowData();
    Run(QString("DELETE FROM %1 WHERE id = 12").arg(GetParam().table));
    Run(QString("DELETE FROM %1 WHERE id = 11").arg(GetParam().table));
    Press(Button(GetParam().open), Qt::Key_F5);
    EXPECT_EQ(Order(), "3");
    EXPECT_EQ(list->Row(), 1) << "record " << before << " has gone";

    if (GetParam().finder)
        WhenDialogShows(
            GetParam().finder, [](QDialog* dialog) { return dialog->objectName() == GetParam().finder; },
            [](QDialog* dialog) { Press(dialog, Qt::Key_Escape); });
    Press(list, Qt::Key_F, Qt::ControlModifier);
    if (!GetParam().finder) {
        EXPECT_TRUE(Find<TextBox>(list->parent(), "txtFilter")->hasFocus());
    }

    answers.Expect(GetParam().question, Answer::No);
    Press(list, Qt::Key_Delete);
}

void ListPanelTest::ShowMenu()
{
    const MenuKey menuKey(nullptr);
    Press(list, Qt::Key_F10, Qt::ShiftModifier);
    const QPointer<QMenu> byKey = list->findChild<QMenu*>();
    ASSERT_TRUE(byKey && byKey->isVisible());
    delete byKey;
    const QPoint secondRow = list->visualRect(list->model()->index(1, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::RightButton, {}, secondRow);
    QContextMenuEvent rightClick(QContextMenuEvent::Mouse, secondRow, list->viewport()->mapToGlobal(secondRow));
    QApplication::sendEvent(list->viewport(), &rightClick);
    auto* menu = list->findChild<QMenu*>();
    ASSERT_TRUE(menu && list->Row() == 2);
    QStringList entries;
    for (const QAction* entry : menu->actions())
        entries.append(entry->text());
    EXPECT_EQ(entries.mid(0, 6),
        QStringList({Button(GetParam().open)->text() + "\tF2", Button(GetParam().add)->text() + "\tCtrl+N",
            Button(GetParam().remove)->text() + "\tDel", "", "&Copy\tCtrl+C", "&Filter\t/"}));
    EXPECT_EQ(entries.value(6), GetParam().sorted.isEmpty() ? "" : "S&ort By");
    answers.Expect(GetParam().question, Answer::No);
    menu->actions().at(2)->trigger();
    menu->close();
}

TEST_P(ListPanelTest, ARowInUseStaysAndOthersGoOnYes)
{
    MakeRows();
    Open();
    if (GetParam().use) {
        Run(GetParam().use);
        answers.ExpectMessage(GetParam().refusal, Icon::Critical, GetParam().refusalTitle);
        Click(Button(GetParam().remove));
    }
    ClickRow(list, 2);
    answers.Expect(GetParam().question, Icon::Question, Buttons::YesNo, Answer::No);
    Click(Button(GetParam().remove));
    EXPECT_EQ(Order(), "123");
    answers.Expect(GetParam().question, Answer::Yes);
    Click(Button(GetParam().remove));
    EXPECT_EQ(Order(), "13");
    EXPECT_EQ(Single(QString("SELECT count(*) FROM %1 WHERE id BETWEEN 11 AND 13").arg(GetParam().table)), "2");
    EXPECT_EQ(list->Row(), GetParam().rowAfterRemoval);
}

TEST_P(ListPanelTest, AnEmptyListAnswersAsItsHandlersSay)
{
    Open();
    EXPECT_EQ(list->Row(), 0);
    EXPECT_TRUE(list->accessibleDescription().contains(Button(GetParam().add)->text()));
    const QString noInvoice = "No invoice has been selected. Select an invoice from the list and try again.";
    if (!GetParam().edited)
        answers.ExpectMessage(noInvoice, Icon::Information);
    Click(Button(GetParam().remove));
    if (!GetParam().edited)
        answers.ExpectMessage(noInvoice, Icon::Information);
    if (GetParam().emptyOpens)
        ExpectForm(0);
    Click(Button(GetParam().open));
    Press(list, Qt::Key_Return);

    if (!GetParam().nothingSelected)
        return;
    MakeRows();
    Open();
    list->SetRowData(1, -1);
    frmCustomer::gEditCustomerId = 12;
    for (const char* filter : {"", "no row has this"}) {
        list->SetFilter(filter);
        if (GetParam().emptyOpens)
            answers.ExpectMessage(GetParam().nothingSelected, Icon::Information);
        Click(Button(GetParam().open));
    }
    EXPECT_EQ(list->ShownRows(), 0);
}

INSTANTIATE_TEST_SUITE_P(Panels, ListPanelTest, ::testing::Values(Invoices, Customers, Vendors, Inventory, Groups));

} // namespace
