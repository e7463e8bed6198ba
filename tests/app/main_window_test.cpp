#include "app/app_test.h"
#include "config/secondary_tax.h"
#include "invoicing/open_invoice.h"

#include <numeric>

namespace {

using LoadTest = MainWindowTest;

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

TEST_F(LoadTest, TheWindowStartsOnTheInvoiceHistoryWithItsListsFilled)
{
    const int ann = Customer("Ann", "Lee").Business("Lee & Sons").Add();
    Invoice(ann).No("00007").Paid(true).Date(QDate(2026, 3, 1)).Add();
    Invoice(ann).No("00008").Date(QDate(2026, 3, 1)).Add();
    for (const char* list : {"Zulu", "Alpha"})
        PriceListRow(list);
    Item("Screws M4").Price("Alpha", "2.5").Add();
    SetRegional(QLocale(QLocale::German, QLocale::Germany));

    MainWindow& window = Window();
    EXPECT_TRUE(window.picArrivals->isVisible());
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId + OpenInvoice::gCurrentCustomerId, -2);
    QString text;
    for (const Panel* panel : Panels(window))
        text += panel->objectName() + '\n' + ScreenValues(panel->Controls());
    for (const char* day : {"lblLabels_52", "lblLabels_58"})
        text += Find<QLabel>(&window, day)->text() + '\n';
    ExpectGolden(text, "main_window.txt");
}

TEST_F(LoadTest, TheSecondTaxFollowsTheSettingsRowAndThePostCodeLabelTakesTheStoredTermOrLosesItsColon)
{
    // Terms that nothing uses any more do not disturb the load, whatever they hold.
    SaveConfig("CostPerNight", "cheap");
    SaveConfig("SalesTaxPercentage", "");
    const std::tuple<const char*, const char*, const char*> settings[] = {
        {"UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = NULL", ":", ""},
        {"UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'GST'", "GST:", "GST"},
        {"UPDATE settings SET SecondaryTaxEnable = 0", "", "GST"}, {"DELETE FROM settings", "", "2nd Sales Tax"}};
    for (const auto& [statement, shown, name] : settings) {
        Run(statement);
        MainWindow& window = LoadAgain();
        window.Run("mnuReservationAdd");
        EXPECT_EQ(SecondTaxShown(window), shown);
        EXPECT_EQ(
            window.picNewInvoice->lblLabels_26->text() + SecondaryTax::SecondaryTaxName, name + QString(":") + name);
        const auto* postCode = Find<QLabel>(&window, "lblPostCode");
        EXPECT_EQ(postCode->text() + window.picNewInvoice->txtPostcode->accessibleName(),
            GetConfig("PostCode", "").isEmpty() ? "Post CodePost Code" : "ZIP && <b>Code</b>ZIP & <b>Code</b>");
        EXPECT_EQ(postCode->textFormat(), Qt::PlainText);
        SaveConfig("PostCode", "ZIP & <b>Code</b>");
    }
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
    EXPECT_EQ(QPoint(reports->c->x(), reports->c->width()), QPoint(place.x(), place.width()));
}

TEST_F(LoadTest, ResizingGivesTheSpareWidthToEachGridsColumnEvenOutOfSightAndKeepsWhatWasDragged)
{
    {
        const MainWindow loading;
        loading.picInventory->gInventory->resize(700, 300);
        loading.Grids().SetUpColumns();
        EXPECT_EQ(Widths(loading.picInventory->gInventory), QList<int>({700 * 15 - 6700, 2400, 1600, 1100, 1600}));
    }
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

    FlexGrid* gcust = window.picCustomers->gcust;
    gcust->SetColWidth(0, 3000);
    window.resize(1400, 800);
    QCoreApplication::processEvents();
    EXPECT_EQ(gcust->ColWidth(0), 3000);
    EXPECT_EQ(Sum(Widths(gcust)), gcust->WidthInTwips() - 400);

    // The status line comes with the invoice. That is no new size of the window.
    gcust->SetColWidth(1, 777);
    const int height = window.picBack->height();
    window.Run("mnuReservationAdd");
    QCoreApplication::processEvents();
    EXPECT_LT(window.picBack->height(), height);
    EXPECT_EQ(gcust->ColWidth(1), 777);

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

    ScriptedAnswers nothingAsked;
    window.Run("mnuFileExit");
    QCoreApplication::processEvents();
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(GetConfig("gcustColWidth0", ""), "3210");
    EXPECT_EQ(GetConfig("gVendorsColWidth2", ""), "0");
    for (const char* key :
        {"gInvoicesColWidth3", "gInventoryColWidth4", "gNewInvoiceColWidth5", "gItemGroupsColWidth0"})
        EXPECT_NE(GetConfig(key, "unset"), "unset") << key;
    EXPECT_EQ(Count("invoice") + Count("customer"), 1) << "what is typed is not saved";
    EXPECT_EQ(OpenInvoice::gCurrentInvoiceId, openInvoice);
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

TEST_F(LoadTest, RestoredWidthsHoldOutOfSight)
{
    SaveConfig("gcustColWidth0", "3210");
    SaveConfig("gcustColWidth1", "777");
    SaveConfig("gcustColWidth2", "0");
    MainWindow& window = Window();
    window.Grids().RestoreWidths();
    window.ShowMainPanel(CustomersListPanel);
    QCoreApplication::processEvents();
    EXPECT_EQ(Widths(window.picCustomers->gcust), QList<int>({3210, 777, 1100, 1600}));
}

TEST_F(LoadTest, EveryPanelIsFitToShowAndTheWindowForASmallScreen)
{
    Customer("Ann", "Lee").Add();
    MainWindow& window = Window();
    EXPECT_LE(window.minimumSizeHint().width(), 900);
    EXPECT_LE(window.minimumSizeHint().height(), 500);
    const QStringList hiddenOnPurpose{
        "cboReportFirstProduct", "cboReportSecondProduct", "lblLabels_26", "lblSecondTax"};
    for (const char* entry : {"mnuListInvoices", "mnuCustomersView", "mnuVendorsView", "mnuReportQuick",
             "mnuViewInventory", "mnuInventoryViewItemGroup", "mnuReservationAdd"}) {
        window.Run(entry);
        for (Panel* panel : Panels(window))
            if (panel->isVisible())
                CheckScreen(panel, panel->Controls(), hiddenOnPurpose);
    }
}

TEST_F(LoadTest, AFileFromBeforeTheIndexesWorks)
{
    for (const QStringList& index : Rows("SELECT name FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL"))
        Run("DROP INDEX " + index[0]);
    const int rope = Item("Rope").Barcode("4711").Stock(5).Add();
    Line(Invoice(Customer("Ann", "Lee").Add()).Add(), rope, 2, "2.50");
    MainWindow& window = Window();
    window.ViewReports();
    EXPECT_EQ(window.picArrivals->gInvoices->Rows(), 2);
    window.Run("mnuReservationAdd");
    Type(window.picNewInvoice->txtBarcode, "4711");
    Press(window.picNewInvoice->txtBarcode, Qt::Key_Return);
    EXPECT_EQ(window.picNewInvoice->gNewInvoice->Rows(), 2);
    EXPECT_EQ(Stock(rope), 4);
}
