#include "app/menu_table.h"

#include "app/about.h"
#include "app/edit_keys.h"
#include "app/endpoints.h"
#include "app/main_window.h"
#include "app/tip.h"
#include "config/categories.h"
#include "config/locations.h"
#include "controls/dialogs.h"
#include "exchange/mailing_list_wizard.h"
#include "inventory/receive_stock.h"
#include "invoicing/config_invoice.h"
#include "invoicing/set_next_invoice_no.h"
#include "parties/find_customer.h"
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

constexpr int ContextCommand = int(HelpCommand::Context);
constexpr int TabCommand = int(HelpCommand::Tab);

} // namespace

const QList<MenuRow>& MenuTable()
{
    using Window = MainWindow;
    static const QList<MenuRow> table{
        Menu("mnuFile", "&File"),
        Entry("mnuFileImportInventory", "Import In&ventory...", nullptr),
        Separator(),
        Entry("mnuFileExportResCSV", "Export &Invoices...", nullptr),
        Entry("mnuFileExpInventory", "Export Inv&entory...", nullptr),
        Entry("mnuFileExportCustomers", "Export &Customers...", nullptr),
        SwitchedOff("mnuFileExportTodayRes", "Export &Today's Invoices...", nullptr),
        Separator(),
        Entry("mnuFileBackup", "&Backup Database...", nullptr),
        Separator(),
        Entry("mnuFilePageSetup", "Page &Setup...", PageSetup),
        Entry("mnuFilePrint", "&Print...", [](Window& window) { PrintWindowImage(&window); }),
        Separator(),
        Entry("mnuFileExit", "E&xit", [](Window& window) { window.close(); }),

        Menu("mnuEdit", "&Edit"),
        Entry("mnuEditUndo", "&Undo", [](Window&) { SendKeys(Qt::CTRL | Qt::Key_Z); }),
        Separator(),
        Entry("mnuEditCut", "Cu&t", [](Window&) { SendKeys(Qt::CTRL | Qt::Key_X); }),
        Entry("mnuEditCopy", "&Copy", [](Window&) { SendKeys(Qt::CTRL | Qt::Key_C); }),
        Entry("mnuEditPaste", "&Paste", [](Window&) { SendKeys(Qt::CTRL | Qt::Key_V); }),
        Entry("mnuEditClear", "Cle&ar", [](Window&) { SendKeys(Qt::Key_Delete); }),
        Separator(),
        Entry("mnuEditSelectAll", "Select &All", [](Window&) { SendKeys(Qt::CTRL | Qt::Key_A); }),

        MenuSwitchedOff("mnuWeb", "&Web Orders"),
        SwitchedOff("mnuWebConfig", "&Configure Web Orders...", [](Window& window) { RunWebOrdersWizard(&window); }),
        SwitchedOff("mnuWebCreatePage", "&Create Web Orders Page...", [](Window&) { CreateWebOrdersPage(); }),

        Menu("mnuReservations", "Inv&oices"),
        Entry("mnuListInvoices", "Invoice &History", [](Window& window) { window.ListInvoices(); }),
        Entry("mnuReservationAdd", "&New Invoice", [](Window& window) { window.OpenInvoicePage(); }),
        Entry("mnuReservationFind", "&Find Invoice...", [](Window& window) { window.FindInvoice(); }),
        Separator(),
        Entry("mnuInvoiceSetInvoiceNo", "&Set Next Invoice No...", ShowForm<frmSetNextInvoiceNo>),

        Menu("mnuInventory", "&Inventory"),
        Entry("mnuViewInventory", "&View Inventory", [](Window& window) { window.ViewInventory(); }),
        Entry("mnuInventoryViewItemGroup", "View Item &Groups", [](Window& window) { window.ViewItemGroups(); }),
        Separator(),
        Entry("mnuInvAddItem", "&Add Item...", [](Window& window) { window.AddItem(); }),
        Entry("mnuInventoryReceive", "&Receive Stock...", ShowForm<frmReceiveStock>),

        Menu("mnuCustomers", "&Customers"),
        Entry("mnuCustomersView", "&View Customers", [](Window& window) { window.ViewCustomers(); }),
        Entry("mnuCustomerAdd", "&Add Customer...", [](Window& window) { window.picCustomers->AddCustomer(); }),
        Entry("mnuCustomerFind", "&Find Customer...", ShowForm<frmFindCustomer>),
        Separator(),
        Entry("mnuCustMailingList", "Email Mailing List &Wizard...",
            [](Window& window) { RunMailingListWizard(&window); }),

        Menu("mnuReportS", "&Reports"),
        Entry("mnuReportQuick", "&Quick Statistics", [](Window& window) { window.ViewReports(); }),
        Separator(),
        Entry("mnuReportReorder", "&Reorder Report", [](Window&) { ShowReorderReport(); }),
        Entry("mnuReportFilterReorder", "&Filtered Reorder Report...",
            [](Window& window) { ShowFilteredReorderReport(&window); }),
        Entry("mnuReportStockLevel", "&Stock Level Report", [](Window&) { ShowStockLevelReport(); }),
        Separator(),
        Entry("mnuCustomReports", "&Custom Reports...", [](Window&) { OpenLink(CustomReportsPage()); }),

        Menu("mnuVendors", "&Vendors"),
        Entry("mnuVendorsView", "&View Vendors", [](Window& window) { window.ViewVendors(); }),
        Entry("mnuVendorAdd", "&Add Vendor...", [](Window& window) { window.picVendors->AddVendor(); }),

        Menu("mnuConfigure", "Confi&gure"),
        Entry("mnuConfigureWizard", "&Configuration Wizard...", [](Window& window) { window.ConfigureBusiness(); }),
        SwitchedOff("mnuConfigureTerminology", "&Regional Settings...", nullptr),
        Separator(),
        Entry("mnuInvTaxRates", "&Tax Rates...", [](Window& window) { window.ConfigureTaxRates(); }),
        Entry("mnuInvLocations", "Item &Locations and Warehouses...", ShowForm<frmLocations>),
        Entry("mnuInvCats", "Item C&ategories...", ShowForm<frmCategories>),
        Separator(),
        Entry("mnuConfigInvoiceStyle", "&Invoice Style...", ShowForm<frmConfigInvoice>),
        Entry("mnuConfigMultipleItemPricing", "Multiple Item &Pricing...",
            [](Window& window) { window.ConfigurePriceLists(); }),

        Menu("mnuHelp", "&Help"),
        Entry("mnuHelpContents", "&Contents...", Help<ContextCommand, 1>),
        Entry("mnuHelpTipOfTheDay", "Tip of the &Day...", ShowForm<frmTip>),
        Entry("mnuHelpIndex", "&Index...", Help<TabCommand, -2>),
        Entry("mnuHelpSearch", "&Search...", Help<TabCommand, -1>),
        Separator(),
        Entry("mnuHelpOnlineSupport", "&Online Support", [](Window&) { OpenLink(SupportSite()); }),
        Entry("mnuHelpSendFeedback", "Send &Feedback", [](Window&) { OpenLink(FeedbackMail()); }),
        Separator(),
        Entry("mnuAbout", "&About...", ShowForm<frmAbout>),
    };
    return table;
}

void BuildMenus(MainWindow& window, QMenuBar* bar)
{
    QMenu* menu = nullptr;
    for (const MenuRow& row : MenuTable()) {
        if (row.kind == MenuRow::Kind::Separator) {
            menu->addSeparator();
            continue;
        }
        const QString caption = QCoreApplication::translate("MainWindow", row.caption);
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
