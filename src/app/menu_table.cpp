#include "app/menu_table.h"

#include "app/about.h"
#include "app/edit_keys.h"
#include "app/endpoints.h"
#include "app/main_window.h"
#include "app/tip.h"
#include "config/categories.h"
#include "config/locations.h"
#include "controls/dialogs.h"
#include "exchange/csv_export_commands.h"
#include "exchange/database_backup.h"
#include "exchange/import_wizard.h"
#include "exchange/mailing_list_wizard.h"
#include "inventory/receive_stock.h"
#include "invoicing/config_invoice.h"
#include "invoicing/set_next_invoice_no.h"
#include "reports/stock_reports.h"
#include "web/web_orders_page.h"
#include "web/web_orders_wizard.h"

#include <QCoreApplication>
#include <QMenuBar>

namespace {

MenuRow Menu(const char* name, const char* caption)
{
    return {MenuRow::Kind::Menu, name, caption, nullptr, MenuRow::State::On};
}

MenuRow MenuSwitchedOff(const char* name, const char* caption)
{
    return {MenuRow::Kind::Menu, name, caption, nullptr, MenuRow::State::SwitchedOff};
}

MenuRow Entry(const char* name, const char* caption, MenuRow::Action action)
{
    return {MenuRow::Kind::Entry, name, caption, action, MenuRow::State::On};
}

MenuRow SwitchedOff(const char* name, const char* caption, MenuRow::Action action)
{
    return {MenuRow::Kind::Entry, name, caption, action, MenuRow::State::SwitchedOff};
}

MenuRow Separator()
{
    return {MenuRow::Kind::Separator, "", "", nullptr, MenuRow::State::On};
}

template <typename FormClass>
void ShowForm(MainWindow& window)
{
    FormClass(&window).ShowModal();
}

void PageSetup(MainWindow& window)
{
    PageMargins unused;
    ShowPageSetup(&window, unused);
}

template <int Command, int Data>
void Help(MainWindow&)
{
    OpenHelp(HelpCommand(Command), Data);
}

/// The context of the captions.
class MainMenu {
    Q_DECLARE_TR_FUNCTIONS(MainMenu)
public:
    static const QList<MenuRow>& Table();
};

constexpr int ContextCommand = int(HelpCommand::Context);
constexpr int TabCommand = int(HelpCommand::Tab);

} // namespace

const QList<MenuRow>& MainMenu::Table()
{
    using Window = MainWindow;
    static const QList<MenuRow> table{
        Menu("mnuFile", QT_TR_NOOP("&File")),
        Entry("mnuFileImportInventory", QT_TR_NOOP("Import In&ventory..."),
            [](Window& window) {
                if (RunImportWizard(&window))
                    window.ViewInventory();
                else // What was imported before the cancel stays.
                    window.RefreshListInView();
            }),
        Separator(),
        Entry("mnuFileExportResCSV", QT_TR_NOOP("Export &Invoices..."), [](Window&) { ExportInvoices(); }),
        Entry("mnuFileExpInventory", QT_TR_NOOP("Export Inv&entory..."), [](Window&) { ExportInventory(); }),
        Entry("mnuFileExportCustomers", QT_TR_NOOP("Export &Customers..."), [](Window&) { ExportCustomers(); }),
        SwitchedOff("mnuFileExportTodayRes", QT_TR_NOOP("Export &Today's Invoices..."),
            [](Window&) { ExportTodaysInvoices(); }),
        Separator(),
        Entry("mnuFileBackup", QT_TR_NOOP("&Backup Database..."), [](Window&) { BackupDatabase(); }),
        Separator(),
        Entry("mnuFilePageSetup", QT_TR_NOOP("Page &Setup..."), PageSetup),
        Entry("mnuFilePrint", QT_TR_NOOP("&Print..."), [](Window& window) { PrintWindowImage(&window); }),
        Separator(),
        Entry("mnuFileExit", QT_TR_NOOP("E&xit"), [](Window& window) { window.close(); }),

        Menu("mnuEdit", QT_TR_NOOP("&Edit")),
        Entry("mnuEditUndo", QT_TR_NOOP("&Undo"), [](Window&) { SendKeys(Qt::CTRL | Qt::Key_Z); }),
        Separator(),
        Entry("mnuEditCut", QT_TR_NOOP("Cu&t"), [](Window&) { SendKeys(Qt::CTRL | Qt::Key_X); }),
        Entry("mnuEditCopy", QT_TR_NOOP("&Copy"), [](Window&) { SendKeys(Qt::CTRL | Qt::Key_C); }),
        Entry("mnuEditPaste", QT_TR_NOOP("&Paste"), [](Window&) { SendKeys(Qt::CTRL | Qt::Key_V); }),
        Entry("mnuEditClear", QT_TR_NOOP("Cle&ar"), [](Window&) { SendKeys(Qt::Key_Delete); }),
        Separator(),
        Entry("mnuEditSelectAll", QT_TR_NOOP("Select &All"), [](Window&) { SendKeys(Qt::CTRL | Qt::Key_A); }),

        MenuSwitchedOff("mnuWeb", QT_TR_NOOP("&Web Orders")),
        SwitchedOff("mnuWebConfig", QT_TR_NOOP("&Configure Web Orders..."),
            [](Window& window) { RunWebOrdersWizard(&window); }),
        SwitchedOff(
            "mnuWebCreatePage", QT_TR_NOOP("&Create Web Orders Page..."), [](Window&) { CreateWebOrdersPage(); }),

        Menu("mnuReservations", QT_TR_NOOP("Inv&oices")),
        Entry("mnuListInvoices", QT_TR_NOOP("Invoice &History"), [](Window& window) { window.ListInvoices(); }),
        Entry("mnuReservationAdd", QT_TR_NOOP("&New Invoice"), [](Window& window) { window.OpenInvoicePage(); }),
        Entry("mnuReservationFind", QT_TR_NOOP("&Find Invoice..."), [](Window& window) { window.FindInvoice(); }),
        Separator(),
        Entry("mnuInvoiceSetInvoiceNo", QT_TR_NOOP("&Set Next Invoice No..."), ShowForm<frmSetNextInvoiceNo>),

        Menu("mnuInventory", QT_TR_NOOP("&Inventory")),
        Entry("mnuViewInventory", QT_TR_NOOP("&View Inventory"), [](Window& window) { window.ViewInventory(); }),
        Entry("mnuInventoryViewItemGroup", QT_TR_NOOP("View Item &Groups"),
            [](Window& window) { window.ViewItemGroups(); }),
        Separator(),
        Entry("mnuInvAddItem", QT_TR_NOOP("&Add Item..."), [](Window& window) { window.AddItem(); }),
        Entry("mnuInventoryReceive", QT_TR_NOOP("&Receive Stock..."), ShowForm<frmReceiveStock>),

        Menu("mnuCustomers", QT_TR_NOOP("&Customers")),
        Entry("mnuCustomersView", QT_TR_NOOP("&View Customers"), [](Window& window) { window.ViewCustomers(); }),
        Entry("mnuCustomerAdd", QT_TR_NOOP("&Add Customer..."),
            [](Window& window) { window.picCustomers->AddCustomer(); }),
        Entry("mnuCustomerFind", QT_TR_NOOP("&Find Customer..."), [](Window& window) { window.FindCustomer(); }),
        Separator(),
        Entry("mnuCustMailingList", QT_TR_NOOP("Email Mailing List &Wizard..."),
            [](Window& window) { RunMailingListWizard(&window); }),

        Menu("mnuReportS", QT_TR_NOOP("&Reports")),
        Entry("mnuReportQuick", QT_TR_NOOP("&Quick Statistics"), [](Window& window) { window.ViewReports(); }),
        Separator(),
        Entry("mnuReportReorder", QT_TR_NOOP("&Reorder Report"), [](Window&) { ShowReorderReport(); }),
        Entry("mnuReportFilterReorder", QT_TR_NOOP("&Filtered Reorder Report..."),
            [](Window& window) { ShowFilteredReorderReport(&window); }),
        Entry("mnuReportStockLevel", QT_TR_NOOP("&Stock Level Report"), [](Window&) { ShowStockLevelReport(); }),
        Separator(),
        Entry("mnuCustomReports", QT_TR_NOOP("&Custom Reports..."), [](Window&) { OpenLink(CustomReportsPage()); }),

        Menu("mnuVendors", QT_TR_NOOP("&Vendors")),
        Entry("mnuVendorsView", QT_TR_NOOP("&View Vendors"), [](Window& window) { window.ViewVendors(); }),
        Entry("mnuVendorAdd", QT_TR_NOOP("&Add Vendor..."), [](Window& window) { window.picVendors->AddVendor(); }),

        Menu("mnuConfigure", QT_TR_NOOP("Confi&gure")),
        Entry("mnuConfigureWizard", QT_TR_NOOP("&Configuration Wizard..."),
            [](Window& window) { window.ConfigureBusiness(); }),
        SwitchedOff("mnuConfigureTerminology", QT_TR_NOOP("&Regional Settings..."), nullptr),
        Separator(),
        Entry("mnuInvTaxRates", QT_TR_NOOP("&Tax Rates..."), [](Window& window) { window.ConfigureTaxRates(); }),
        Entry("mnuInvLocations", QT_TR_NOOP("Item &Locations and Warehouses..."), ShowForm<frmLocations>),
        Entry("mnuInvCats", QT_TR_NOOP("Item C&ategories..."), ShowForm<frmCategories>),
        Separator(),
        Entry("mnuConfigInvoiceStyle", QT_TR_NOOP("&Invoice Style..."), ShowForm<frmConfigInvoice>),
        Entry("mnuConfigMultipleItemPricing", QT_TR_NOOP("Multiple Item &Pricing..."),
            [](Window& window) { window.ConfigurePriceLists(); }),

        Menu("mnuHelp", QT_TR_NOOP("&Help")),
        Entry("mnuHelpContents", QT_TR_NOOP("&Contents..."), Help<ContextCommand, 1>),
        Entry("mnuHelpTipOfTheDay", QT_TR_NOOP("Tip of the &Day..."), ShowForm<frmTip>),
        Entry("mnuHelpIndex", QT_TR_NOOP("&Index..."), Help<TabCommand, -2>),
        Entry("mnuHelpSearch", QT_TR_NOOP("&Search..."), Help<TabCommand, -1>),
        Separator(),
        Entry("mnuHelpOnlineSupport", QT_TR_NOOP("&Online Support"), [](Window&) { OpenLink(SupportSite()); }),
        Entry("mnuHelpSendFeedback", QT_TR_NOOP("Send &Feedback"), [](Window&) { OpenLink(FeedbackMail()); }),
        Separator(),
        Entry("mnuAbout", QT_TR_NOOP("&About..."), ShowForm<frmAbout>),
    };
    return table;
}

const QList<MenuRow>& MenuTable()
{
    return MainMenu::Table();
}

void BuildMenus(MainWindow& window)
{
    QMenuBar* bar = window.menuBar();
    QMenu* menu = nullptr;
    for (const MenuRow& row : MenuTable()) {
        if (row.kind == MenuRow::Kind::Separator) {
            menu->addSeparator();
            continue;
        }
        const QString caption = MainMenu::tr(row.caption);
        if (row.kind == MenuRow::Kind::Menu) {
            menu = bar->addMenu(caption);
            menu->setObjectName(QLatin1String(row.name));
            menu->menuAction()->setEnabled(row.state == MenuRow::State::On);
            continue;
        }
        QAction* entry = menu->addAction(caption);
        entry->setObjectName(QLatin1String(row.name));
        entry->setMenuRole(QAction::NoRole);
        entry->setEnabled(row.state == MenuRow::State::On && row.action);
        if (row.action)
            On(entry, &QAction::triggered, &window, [&window, action = row.action] { action(window); });
    }
}
