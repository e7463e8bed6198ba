#include "app/app_test.h"
#include "app/edit_keys.h"
#include "app/endpoints.h"
#include "app/menu_table.h"
#include "app/toolbar.h"
#include "config/configuration_pages.h"
#include "config/tax_rates.h"
#include "parties/customer_record.h"
#include "parties/vendor_record.h"
#include "support/golden.h"
#include "support/wizard_walk.h"

#include <QApplication>
#include <QMenuBar>
#include <QTest>

namespace {

class MenuTest : public MainWindowTest { };

QString Line(const QString& name, const QAction* action)
{
    return name + QLatin1Char(' ') + action->text()
        + (action->isEnabled() ? QStringLiteral("\n") : QStringLiteral(" (greyed)\n"));
}

/// The menu bar as a user reads it: name and caption of each menu, its entries below it.
QString MenusOf(const MainWindow& window)
{
    QString text;
    for (const QAction* head : window.menuBar()->actions()) {
        text += Line(head->menu()->objectName(), head);
        for (const QAction* entry : head->menu()->actions())
            text += entry->isSeparator() ? QStringLiteral("  --\n")
                                         : QStringLiteral("  ") + Line(entry->objectName(), entry);
    }
    return text;
}

/// The toolbar: each button with the menu entry that it runs, and below it the entries of its drop-down.
QString ToolbarOf(const MainWindow& window)
{
    QString text;
    for (const QAction* button : window.Toolbar->actions()) {
        if (button->isSeparator()) {
            text += QStringLiteral("--\n");
            continue;
        }
        const QString entry = EntryOfToolbarKey(button->objectName());
        text += Line((entry.isEmpty() ? QStringLiteral("(nothing)") : entry) + QLatin1Char(':'), button);
        if (button->menu())
            for (const QAction* choice : button->menu()->actions())
                text += QStringLiteral("  ") + Line(choice->objectName() + QLatin1Char(':'), choice);
    }
    return text;
}

} // namespace

TEST_F(MenuTest, MenusAndToolbarStandAsTheyAreDelivered)
{
    const MainWindow& window = Window();
    ExpectGolden(MenusOf(window), "menus.txt");
    ExpectGolden(ToolbarOf(window), "toolbar.txt");
}

TEST_F(MenuTest, NoMenuStartsOrEndsWithASeparatorOrShowsTwoInARow)
{
    for (const QAction* head : Window().menuBar()->actions()) {
        bool separatorBefore = true;
        for (const QAction* entry : head->menu()->actions()) {
            EXPECT_FALSE(separatorBefore && entry->isSeparator()) << head->text().toStdString();
            separatorBefore = entry->isSeparator();
        }
        EXPECT_FALSE(separatorBefore) << head->text().toStdString();
    }
}

namespace {

struct PanelEntry {
    const char* entry;
    const char* panel;
};
void PrintTo(const PanelEntry& entry, std::ostream* out)
{
    *out << entry.entry;
}

class PanelEntryTest : public MainWindowTest, public ::testing::WithParamInterface<PanelEntry> { };

} // namespace

TEST_P(PanelEntryTest, ShowsItsPanelAlone)
{
    MainWindow& window = Window();
    window.Run(QLatin1String(GetParam().entry));
    QStringList visible;
    for (const QWidget* widget : window.picBack->findChildren<QWidget*>())
        if (dynamic_cast<const Panel*>(widget) && widget->isVisible())
            visible.append(widget->objectName());
    EXPECT_EQ(visible, QStringList{GetParam().panel});
    EXPECT_EQ(Find<QWidget>(&window, GetParam().panel)->size(), window.picBack->size());
}

INSTANTIATE_TEST_SUITE_P(Entries, PanelEntryTest,
    ::testing::Values(PanelEntry{"mnuReservationAdd", "picNewInvoice"}, PanelEntry{"mnuListInvoices", "picArrivals"},
        PanelEntry{"mnuViewInventory", "picInventory"}, PanelEntry{"mnuCustomersView", "picCustomers"},
        PanelEntry{"mnuReportQuick", "picReports"}, PanelEntry{"mnuVendorsView", "picVendors"},
        PanelEntry{"mnuInventoryViewItemGroup", "picItemGroups"}));

TEST_F(MenuTest, ANumberThatNoPanelHasChangesNothing)
{
    MainWindow& window = Window();
    window.ShowMainPanel(InventoryListPanel);
    for (const int number : {-1, 7, 1000})
        window.ShowMainPanel(number);
    EXPECT_TRUE(window.picInventory->isVisible());
}

TEST_F(MenuTest, ViewingAListReadsItAnew)
{
    MainWindow& window = Window();
    Customer("Ann", "Lee").Add();
    VendorRow("Bolts & Co");
    Item("Screws M4").Add();
    window.Run("mnuCustomersView");
    window.Run("mnuVendorsView");
    window.Run("mnuViewInventory");
    EXPECT_EQ(window.picCustomers->gcust->TextMatrix(1, 0), "Ann Lee");
    EXPECT_EQ(window.picVendors->gVendors->TextMatrix(1, 0), "Bolts & Co");
    EXPECT_EQ(window.picInventory->gInventory->TextMatrix(1, 1), "Screws M4");
}

TEST_F(MenuTest, AddingARecordReadsItsListAnewFromAnyView)
{
    MainWindow& window = Window();
    WhenFormShows<frmCustomer>([](frmCustomer& form) {
        Type(form.txtLastname, "Lee");
        Click(form.cmdOk);
    });
    window.Run("mnuCustomerAdd");
    EXPECT_EQ(GridRows(window.picCustomers->gcust), QList<QStringList>({{"Lee", "", "", ""}}));
    WhenFormShows<frmVendor>([](frmVendor& form) {
        Type(form.txtBusinessName, "Bolts");
        Click(form.cmdOk);
    });
    window.Run("mnuVendorAdd");
    EXPECT_EQ(GridRows(window.picVendors->gVendors), QList<QStringList>({{"Bolts", "", ""}}));
    EXPECT_TRUE(window.picArrivals->isVisible());
}

TEST_F(MenuTest, ClosingTheTaxRatesLetsTheOpenInvoiceFollowAtOnce)
{
    Run("UPDATE settings SET SecondaryTaxEnable = 0");
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    const auto closeWithTax = [&](const char* name) {
        WhenFormShows<frmTaxRate>([name](frmTaxRate& form) {
            Click(form.chkEnableTax2);
            if (form.txtSalesTaxName2->isEnabled())
                Type(form.txtSalesTaxName2, name);
            Click(form.cmdCancel);
        });
        window.Run("mnuInvTaxRates");
    };
    closeWithTax("PST");
    EXPECT_EQ(window.picNewInvoice->lblLabels_26->text(), "PST:");
    EXPECT_TRUE(window.picNewInvoice->lblLabels_26->isVisible() && window.picNewInvoice->lblSecondTax->isVisible());
    closeWithTax("");
    closeWithTax(qPrintable(QString(150, u'W')));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), 1024);
    closeWithTax("");
    EXPECT_FALSE(window.picNewInvoice->lblLabels_26->isVisible() || window.picNewInvoice->lblSecondTax->isVisible());
}

TEST_F(MenuTest, TheConfigurationWizardLetsTheOpenInvoiceFollowAtOnce)
{
    Run("UPDATE settings SET SecondaryTaxEnable = 0");
    // What an earlier run of the program switched off is on again with each load.
    WizardState::Configuration.ShowWelcome = false;
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    NextOn<frmWizConfig_Welcome, frmWizConfig_Business, frmWizConfig_Logo>();
    AtPage<frmWizConfig_Tax>([](frmWizConfig_Tax& page) {
        Click(page.chkEnableTax2);
        Type(page.txtSalesTaxName2, "PST");
    });
    NextOn<frmWizConfig_Barcode, frmWizConfig_PickingList, frmWizConfig_Cats, frmWizConfig_Complete>();
    window.Run("mnuConfigureWizard");
    EXPECT_EQ(window.picNewInvoice->lblLabels_26->text(), "PST:");
    EXPECT_TRUE(window.picNewInvoice->lblLabels_26->isVisible() && window.picNewInvoice->lblSecondTax->isVisible());
}

TEST_F(MenuTest, HelpEntriesAndLinksAskForTheirTopicsAndPages)
{
    MainWindow& window = Window();
    ScriptedAnswers answers;
    answers.ExpectHelp(HelpCommand::Context, 1);
    answers.ExpectHelp(HelpCommand::Tab, -2);
    answers.ExpectHelp(HelpCommand::Tab, -1);
    answers.ExpectLink(SupportSite());
    answers.ExpectLink(FeedbackMail());
    answers.ExpectLink(CustomReportsPage());
    for (const char* entry : {"mnuHelpContents", "mnuHelpIndex", "mnuHelpSearch", "mnuHelpOnlineSupport",
             "mnuHelpSendFeedback", "mnuCustomReports"})
        window.Run(entry);
    EXPECT_TRUE(FeedbackMail().startsWith("mailto:"));
    EXPECT_TRUE(CustomReportsPage().endsWith("/InventoryCustomisation.php?s=app"));
}

TEST_F(MenuTest, CancelledPrintingAndPageSetupSayNothing)
{
    MainWindow& window = Window();
    ScriptedAnswers answers;
    answers.ExpectPrint(false);
    answers.ExpectPageSetup(false);
    window.Run("mnuFilePrint");
    window.Run("mnuFilePageSetup");
}

TEST_F(MenuTest, EditEntriesActOnTheTextBoxWithTheFocus)
{
    MainWindow& window = Window();
    window.Run("mnuReservationAdd");
    TextBox* box = window.picNewInvoice->txtFirstname;
    const auto choose = [&](const char* entry) {
        window.Run(entry);
        QCoreApplication::processEvents();
    };
    Type(box, "Ann");
    choose("mnuEditSelectAll");
    EXPECT_EQ(box->selectedText(), "Ann");
    choose("mnuEditCopy");
    choose("mnuEditCut");
    EXPECT_EQ(box->text(), "");
    choose("mnuEditPaste");
    choose("mnuEditPaste");
    EXPECT_EQ(box->text(), "AnnAnn");
    choose("mnuEditUndo");
    EXPECT_EQ(box->text(), "Ann");
    box->setCursorPosition(0);
    choose("mnuEditClear");
    EXPECT_EQ(box->text(), "nn");
}

TEST_F(MenuTest, EditEntriesDoNothingInAList)
{
    Customer("Ann", "Lee").Add();
    MainWindow& window = Window();
    window.Run("mnuCustomersView");
    FlexGrid* gcust = window.picCustomers->gcust;
    gcust->setFocus();
    const QList<QStringList> before = GridRows(gcust);
    for (const char* entry : {"mnuEditUndo", "mnuEditCut", "mnuEditPaste", "mnuEditClear"}) {
        window.Run(entry);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(GridRows(gcust), before);
    EXPECT_EQ(gcust->Row(), 1);
    EXPECT_EQ(Count("customer"), 1);
}

TEST_F(MenuTest, ToolbarButtonsHavePicturesOfTheirOwn)
{
    QSet<QByteArray> pictures;
    for (const QAction* action : Window().Toolbar->actions()) {
        if (action->isSeparator())
            continue;
        const QImage picture = action->icon().pixmap(32).toImage();
        ASSERT_FALSE(picture.isNull()) << action->text().toStdString();
        pictures.insert(QByteArray(reinterpret_cast<const char*>(picture.constBits()), picture.sizeInBytes()));
    }
    EXPECT_EQ(pictures.size(), 7);
}

TEST(Toolbar, AnOldKeyStillRunsTheWebOrdersWizard)
{
    EXPECT_EQ(EntryOfToolbarKey("Web Bookings"), "mnuWebConfig");
}

TEST_F(MenuTest, ToolbarClicksSwitchPanelsAndWebOrdersDoesNothing)
{
    MainWindow& window = Window();
    const auto click = [&](const char* key) {
        Click(window.Toolbar->widgetForAction(window.Toolbar->findChild<QAction*>(key)));
    };
    click("Inventory");
    EXPECT_TRUE(window.picInventory->isVisible());
    click("Web Orders");
    EXPECT_TRUE(window.picInventory->isVisible());
    click("Invoices");
    EXPECT_TRUE(window.picArrivals->isVisible());
}
