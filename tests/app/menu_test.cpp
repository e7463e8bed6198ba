#include "app/app_test.h"
#include "app/edit_keys.h"
#include "app/endpoints.h"
#include "app/menu_table.h"
#include "app/toolbar.h"
#include "config/configuration_pages.h"
#include "config/tax_rates.h"
#include "parties/customer_record.h"
#include "parties/find_customer.h"
#include "parties/vendor_record.h"

#include <algorithm>

namespace {

using MenuTest = MainWindowTest;

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

/// An entry that is gone is named once, before all the tests that would look for it in vain: then none of them runs.
class DeliveredEntries : public testing::Environment {
    void SetUp() override
    {
        QFile delivered(QStringLiteral(SOURCE_FOLDER "/../tests/app/golden/menus.txt"));
        ASSERT_TRUE(delivered.open(QFile::ReadOnly));
        const QString lines = QString::fromUtf8(delivered.readAll());
        for (const QString& name : lines.split(QRegularExpression("\\s"), Qt::SkipEmptyParts).filter("mnu")) {
            const auto isIt = [&name](const MenuRow& row) { return name == QLatin1String(row.name); };
            ASSERT_TRUE(qEnvironmentVariableIsSet("TAVRIN_WRITE_GOLDEN") || std::ranges::any_of(MenuTable(), isIt))
                << "src/app/menu_table.cpp lacks " << name.toStdString() << ", which golden/menus.txt has. If that is "
                << "meant: TAVRIN_WRITE_GOLDEN=1 build/tests/test_app --gtest_filter='MenuTest.Menus*'";
        }
    }
};

const auto* const Delivered = testing::AddGlobalTestEnvironment(new DeliveredEntries);

} // namespace

TEST_F(MenuTest, MenusAndToolbarStandAsTheyAreDelivered)
{
    const MainWindow& window = Window();
    ExpectGolden(MenusOf(window), "menus.txt");
    ExpectGolden(ToolbarOf(window), "toolbar.txt");
}

TEST_F(MenuTest, AnEntryAndAToolbarButtonShowTheirPanelAloneAndANumberThatNoPanelHasNone)
{
    MainWindow& window = Window();
    const auto visible = [&window] {
        QStringList names;
        for (const Panel* panel : Panels(window))
            if (panel->isVisible() && panel->size() == window.picBack->size())
                names.append(panel->objectName());
        return names.join(' ');
    };
    for (const auto& [entry, panel] : {std::pair("mnuReservationAdd", "picNewInvoice"),
             {"mnuListInvoices", "picArrivals"}, {"mnuViewInventory", "picInventory"},
             {"mnuCustomersView", "picCustomers"}, {"mnuReportQuick", "picReports"}, {"mnuVendorsView", "picVendors"},
             {"mnuInventoryViewItemGroup", "picItemGroups"}}) {
        window.Run(entry);
        EXPECT_EQ(visible(), panel);
    }
    for (const int number : {-1, 7, 1000})
        window.ShowMainPanel(number);
    EXPECT_EQ(visible(), "picItemGroups");
    const auto click = [&](const char* key) {
        Click(window.Toolbar->widgetForAction(window.Toolbar->findChild<QAction*>(key)));
        return visible();
    };
    EXPECT_EQ(click("Inventory"), "picInventory");
    EXPECT_EQ(click("Web Orders"), "picInventory");
    EXPECT_EQ(click("Invoices"), "picArrivals");
    EXPECT_EQ(EntryOfToolbarKey("Web Bookings"), "mnuWebConfig") << "an old key still runs the wizard";
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

    window.Run("mnuCustomersView");
    WhenFormShows<frmFindCustomer>([this](frmFindCustomer& form) {
        Run("UPDATE customer SET LastName = 'Ray'");
        Click(form.cmdCancel);
    });
    window.Run("mnuCustomerFind");
    EXPECT_EQ(window.picCustomers->gcust->TextMatrix(1, 0), "Ray") << "so does what was found and changed";
}

TEST_F(MenuTest, ClosingTheTaxRatesOrTheConfigurationWizardLetsTheOpenInvoiceFollowAtOnce)
{
    Run("UPDATE settings SET SecondaryTaxEnable = 0");
    // What an earlier run of the program switched off is on again with each load.
    WizardState::Configuration.ShowWelcome = false;
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
    EXPECT_EQ(SecondTaxShown(window), "PST:");
    closeWithTax("");
    closeWithTax(qPrintable(QString(150, u'W')));
    QCoreApplication::processEvents();
    EXPECT_EQ(window.width(), 1024);
    closeWithTax("");
    EXPECT_EQ(SecondTaxShown(window), "");
    NextOn<frmWizConfig_Welcome, frmWizConfig_Business, frmWizConfig_Logo>();
    AtPage<frmWizConfig_Tax>([](frmWizConfig_Tax& page) {
        Click(page.chkEnableTax2);
        Type(page.txtSalesTaxName2, "PST");
    });
    NextOn<frmWizConfig_Barcode, frmWizConfig_PickingList, frmWizConfig_Cats, frmWizConfig_Complete>();
    window.Run("mnuConfigureWizard");
    EXPECT_EQ(SecondTaxShown(window), "PST:");

    Item("Saw").Add();
    window.Run("mnuViewInventory");
    Run("UPDATE taxrate SET Name = 'VAT'");
    closeWithTax("");
    EXPECT_EQ(window.picInventory->gInventory->TextMatrix(1, 3), "VAT") << "so does the inventory in view";
}

TEST_F(MenuTest, HelpEntriesLinksAndPrintingAskForTheirTopicsPagesAndDialogs)
{
    MainWindow& window = Window();
    ScriptedAnswers answers;
    answers.ExpectHelp(HelpCommand::Context, 1);
    answers.ExpectHelp(HelpCommand::Tab, -2);
    answers.ExpectHelp(HelpCommand::Tab, -1);
    answers.ExpectLink(SupportSite());
    answers.ExpectLink(FeedbackMail());
    answers.ExpectLink(CustomReportsPage());
    answers.ExpectPrint(false);
    answers.ExpectPageSetup(false);
    for (const char* entry : {"mnuHelpContents", "mnuHelpIndex", "mnuHelpSearch", "mnuHelpOnlineSupport",
             "mnuHelpSendFeedback", "mnuCustomReports", "mnuFilePrint", "mnuFilePageSetup"})
        window.Run(entry);
    EXPECT_TRUE(FeedbackMail().startsWith("mailto:"));
    EXPECT_TRUE(CustomReportsPage().endsWith("/InventoryCustomisation.php?s=app"));
}

TEST_F(MenuTest, EditEntriesActOnTheTextBoxWithTheFocusAndDoNothingInAList)
{
    Customer("Ann", "Lee").Add();
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

    window.Run("mnuCustomersView");
    FlexGrid* gcust = window.picCustomers->gcust;
    gcust->setFocus();
    const QList<QStringList> before = GridRows(gcust);
    for (const char* entry : {"mnuEditUndo", "mnuEditCut", "mnuEditPaste", "mnuEditClear"})
        choose(entry);
    EXPECT_EQ(GridRows(gcust), before);
    EXPECT_EQ(gcust->Row(), 1);
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
