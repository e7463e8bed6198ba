#include "app/app_test.h"
#include "base/regional.h"
#include "config/secondary_tax.h"
#include "invoicing/open_invoice.h"
#include "support/form_check.h"

#include <QLocale>

#include <numeric>

namespace {

class LoadTest : public MainWindowTest { };

QList<int> Widths(const FlexGrid* grid)
{
    QList<int> widths;
    for (int col = 0; col < grid->Cols(); ++col)
        widths.append(grid->ColWidth(col));
    return widths;
}

int Sum(const QList<int>& widths)
{
    return std::accumulate(widths.begin(), widths.end(), 0);
}

} // namespace

TEST_F(LoadTest, TheFirstScreenIsTheInvoiceHistoryWithAllInvoices)
{
    const int ann = Customer("Ann", "Lee").Business("Lee & Sons").Add();
    Invoice(ann).No("00007").Paid(true).Add();
    Invoice(ann).No("00008").Add();
    Item("Screws M4").Add();

    MainWindow& window = Window();
    EXPECT_TRUE(window.picArrivals->isVisible());
    EXPECT_EQ(window.picArrivals->gInvoices->Rows(), 3);
    EXPECT_EQ(Entries(window.picArrivals->cboInvoiceFilter), QStringList({"All Invoices", "Unpaid Invoices"}));
    EXPECT_EQ(window.picArrivals->cboInvoiceFilter->ListIndex(), 0);
    EXPECT_EQ(Entries(window.picNewInvoice->cboPaymentMethod),
        QStringList({"N/A", "Check", "Cash", "Credit Card", "Bank Transfer", "Charge to Account"}));
    EXPECT_EQ(window.picInventory->gInventory->Rows(), 2);
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, -1);
    EXPECT_EQ(OpenInvoice::gCurrentCustomerId, -1);
}

TEST_F(LoadTest, ThePriceListsStandByNameAndTheFirstIsChosen)
{
    const int zulu = PriceListRow("Zulu");
    const int alpha = PriceListRow("Alpha");
    ComboBox* lists = Window().picInventory->cboInvoicePriceList;
    EXPECT_EQ(lists->Text(), "Alpha");
    EXPECT_EQ(lists->SelectedData(), alpha);
    EXPECT_EQ(lists->ItemData(lists->ListCount() - 1), zulu);
}

namespace {

struct TaxSettings {
    const char* statement;
    bool shown;
    const char* label;
    const char* name;
};

class SecondaryTaxLabelTest : public MainWindowTest, public ::testing::WithParamInterface<TaxSettings> { };

} // namespace

TEST_P(SecondaryTaxLabelTest, FollowsTheSettingsRow)
{
    Run(GetParam().statement);
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    EXPECT_EQ(window.picNewInvoice->lblLabels_26->isVisible(), GetParam().shown);
    EXPECT_EQ(window.picNewInvoice->lblSecondTax->isVisible(), GetParam().shown);
    EXPECT_EQ(window.picNewInvoice->lblLabels_26->text(), GetParam().label);
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, GetParam().name);
}

INSTANTIATE_TEST_SUITE_P(Settings, SecondaryTaxLabelTest,
    ::testing::Values(
        TaxSettings{"UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'GST'", true, "GST:", "GST"},
        TaxSettings{"UPDATE settings SET SecondaryTaxEnable = 0, SecondaryTaxName = 'GST'", false, "GST:", "GST"},
        TaxSettings{"UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = NULL", true, ":", ""},
        TaxSettings{"DELETE FROM settings", false, "2nd Sales Tax:", "2nd Sales Tax"}));

TEST_F(LoadTest, ThePostCodeLabelTakesTheStoredTermAsItStands)
{
    SaveConfig("PostCode", "ZIP");
    EXPECT_EQ(Find<QLabel>(&Window(), "lblPostCode")->text(), "ZIP");
}

TEST_F(LoadTest, ThePostCodeLabelLosesItsColonWithoutAStoredTerm)
{
    // Terms that nothing uses any more do not disturb the load, whatever they hold.
    SaveConfig("CostPerNight", "cheap");
    SaveConfig("SalesTaxPercentage", "");
    EXPECT_EQ(Find<QLabel>(&Window(), "lblPostCode")->text(), "Post Code");
}

TEST_F(LoadTest, WeekdaysFollowTheLocale)
{
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    MainWindow& window = Window();
    EXPECT_EQ(Find<QLabel>(&window, "lblLabels_52")->text(), "Montag");
    EXPECT_EQ(Find<QLabel>(&window, "lblLabels_58")->text(), "Sonntag");
}

TEST_F(LoadTest, GraphListsStartOnTheirFirstEntries)
{
    ReportsPanel* reports = Window().picReports;
    EXPECT_EQ(reports->cboGraphType->Text(), "Invoices this month");
    EXPECT_EQ(reports->cboGraphStyle->Text(), "3D Bar");
    EXPECT_EQ(reports->cboGraphStyle->ListCount(), 8);
}

TEST_F(LoadTest, ExpandingTheGraphTwiceBringsItBackToItsPlace)
{
    MainWindow& window = Window({1300, 800});
    window.ShowMainPanel(ReportsViewPanel);
    ReportsPanel* reports = window.picReports;
    const QRect place = reports->c->geometry();
    EXPECT_EQ(place.left(), 3870 / 15);
    EXPECT_EQ(place.width(), 7215 / 15);

    Click(reports->cmdExpand);
    EXPECT_EQ(reports->cmdExpand->text(), "Shrink >>");
    EXPECT_FALSE(reports->Frame2->isVisible());
    EXPECT_EQ(reports->c->width(), reports->Label1_2->width() - 100 / 15);

    window.resize(1100, 760);
    Click(reports->cmdExpand);
    EXPECT_EQ(reports->cmdExpand->text(), "<< Expand");
    EXPECT_TRUE(reports->Frame2->isVisible());
    EXPECT_EQ(reports->c->geometry().left(), place.left());
    EXPECT_EQ(reports->c->width(), place.width());
}

TEST_F(LoadTest, EachGridHasItsTitles)
{
    MainWindow& window = Window();
    EXPECT_EQ(
        GridTitles(window.picArrivals->gInvoices), QStringList({"Number", "Business Name", "Name", "Invoice Date"}));
    EXPECT_EQ(GridTitles(window.picCustomers->gcust), QStringList({"Name", "Address", "Zip/Postcode", "Phone"}));
    EXPECT_EQ(GridTitles(window.picVendors->gVendors), QStringList({"Business Name", "Contact Name", "Phone"}));
    EXPECT_EQ(GridTitles(window.picItemGroups->gItemGroups), QStringList({"Name"}));
    EXPECT_EQ(GridTitles(window.picInventory->gInventory).mid(3), QStringList({"Tax Rate", "In Stock"}));
    EXPECT_EQ(GridTitles(window.picNewInvoice->gNewInvoice),
        QStringList({"Qty", "Number", "Name", "Sale Price", "Tax Rate", "Sub-Total"}));
}

TEST_F(LoadTest, AtLoadTheInventoryGivesItsSpareWidthToTheNumberAndNotToTheName)
{
    const MainWindow window;
    window.picInventory->gInventory->resize(700, 300);
    window.Grids().SetUpColumns();
    EXPECT_EQ(Widths(window.picInventory->gInventory), QList<int>({700 * 15 - 6700, 2400, 1600, 1100, 1600}));
}

TEST_F(LoadTest, ResizingGivesTheSpareWidthToEachGridsColumnEvenOutOfSight)
{
    MainWindow& window = Window({1200, 760});
    for (const QSize size : {QSize(1200, 760), QSize(1500, 900)}) {
        window.resize(size);
        QCoreApplication::processEvents();
        for (const RecordList* list : window.findChildren<RecordList*>())
            EXPECT_EQ(Sum(Widths(list)), list->WidthInTwips() - (list == window.picNewInvoice->gNewInvoice ? 350 : 400))
                << list->objectName().toStdString();
    }
    EXPECT_EQ(window.picInventory->gInventory->ColWidth(3), 1100);
    EXPECT_GT(window.picInventory->gInventory->ColWidth(1), 2400);
}

TEST_F(LoadTest, AResizeKeepsTheColumnsThatTheUserDragged)
{
    MainWindow& window = Window();
    FlexGrid* gcust = window.picCustomers->gcust;
    gcust->SetColWidth(0, 3000);
    window.resize(1400, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(gcust->ColWidth(0), 3000);
    EXPECT_EQ(Sum(Widths(gcust)), gcust->WidthInTwips() - 400);

    // With no room left the stretch column stays as it is.
    gcust->SetColWidth(0, 90000);
    const int before = gcust->ColWidth(1);
    window.resize(1300, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(gcust->ColWidth(1), before);
}

TEST_F(LoadTest, ClosingStoresTheWidthsOfAllSixGridsAndNothingElse)
{
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    Type(window.picNewInvoice->txtFirstname, "Ann");
    const int openInvoice = OpenInvoice::gCurrentInvoiceId;
    window.picCustomers->gcust->SetColWidth(0, 3210);
    window.picVendors->gVendors->SetColWidth(2, 0);
    ASSERT_EQ(Count("invoice"), 1);
    const QString customers = Single("SELECT count(*) || group_concat(FirstName) FROM customer");

    ScriptedAnswers nothingAsked;
    window.Run("mnuFileExit");
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(GetConfig("gcustColWidth0", ""), "3210");
    EXPECT_EQ(GetConfig("gVendorsColWidth2", ""), "0");
    for (const char* key :
        {"gInvoicesColWidth3", "gInventoryColWidth4", "gNewInvoiceColWidth5", "gItemGroupsColWidth0"})
        EXPECT_NE(GetConfig(key, "unset"), "unset") << key;
    EXPECT_EQ(Count("invoice"), 1);
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, openInvoice);
    EXPECT_EQ(Single("SELECT count(*) || group_concat(FirstName) FROM customer"), customers);
}

TEST_F(LoadTest, OpeningAnInvoiceOnThePageInViewSavesWhatWasBeingTypedThere)
{
    const int bob = Customer("Bob", "Ray").Add();
    const int old = Invoice(bob).No("00007").Add();
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    const int openInvoice = OpenInvoice::gCurrentInvoiceId;
    for (const QString& typed : {QStringLiteral("Ann"), QStringLiteral("Anna")}) {
        Type(window.picNewInvoice->txtFirstname, typed);
        window.Run("mnuReservationAdd");
        EXPECT_EQ(window.picNewInvoice->txtFirstname->text(), typed);
    }
    Type(window.picNewInvoice->txtFirstname, "Annabel");
    emit window.picArrivals->OpenInvoice(old);
    EXPECT_EQ(window.picNewInvoice->txtFirstname->text(), "Bob");
    EXPECT_EQ(Single(QStringLiteral("SELECT FirstName FROM customer, invoice WHERE customer.id = CustomerID "
                                    "AND invoice.id = %1")
                         .arg(openInvoice)),
        "Annabel");
}

TEST_F(LoadTest, RestoredWidthsHoldOutOfSightAndOddOnesAreIgnored)
{
    SaveConfig("gcustColWidth0", "3210");
    SaveConfig("gcustColWidth1", "777");
    SaveConfig("gcustColWidth2", "0");
    SaveConfig("gVendorsColWidth1", "-5");
    SaveConfig("gVendorsColWidth2", "99999999999999999999");
    SaveConfig("gInvoicesColWidth3", "wide");
    MainWindow& window = Window();
    window.Grids().RestoreWidths();
    window.ShowMainPanel(CustomersListPanel);
    QCoreApplication::processEvents();
    EXPECT_EQ(Widths(window.picCustomers->gcust), QList<int>({3210, 777, 1100, 1600}));
    EXPECT_EQ(window.picVendors->gVendors->ColWidth(1), 1600);
    EXPECT_EQ(window.picVendors->gVendors->ColWidth(2), 1600);
    EXPECT_EQ(window.picArrivals->gInvoices->ColWidth(3), 1440);
}

TEST_F(LoadTest, EveryPanelIsFitToShow)
{
    Customer("Ann", "Lee").Add();
    MainWindow& window = Window();
    CheckScreen(window.picArrivals, window.picArrivals->Controls(), {});
    window.ShowMainPanel(CustomersListPanel);
    CheckScreen(window.picCustomers, window.picCustomers->Controls(), {});
    window.ShowMainPanel(VendorsListPanel);
    CheckScreen(window.picVendors, window.picVendors->Controls(), {});
    window.ShowMainPanel(ReportsViewPanel);
    CheckScreen(window.picReports, window.picReports->Controls(), {"cboReportFirstProduct", "cboReportSecondProduct"});
    window.ShowMainPanel(InventoryListPanel);
    CheckScreen(window.picInventory, window.picInventory->Controls(), {});
    window.ShowMainPanel(ItemGroupsPanel);
    CheckScreen(window.picItemGroups, window.picItemGroups->Controls(), {});
    window.Run("mnuReservationAdd");
    CheckScreen(window.picNewInvoice, window.picNewInvoice->Controls(), {"lblLabels_26", "lblSecondTax"});
}

TEST_F(LoadTest, TheWindowFitsASmallScreen)
{
    EXPECT_LE(Window().minimumSizeHint().width(), 900);
    EXPECT_LE(Window().minimumSizeHint().height(), 500);
}
