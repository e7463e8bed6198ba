#include "app/load_step.h"

#include "app/database_folder.h"
#include "app/main_window.h"
#include "app/menu_table.h"
#include "app/toolbar.h"
#include "base/database_path.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "config/secondary_tax.h"
#include "controls/hourglass.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "db/index_renewal.h"
#include "invoicing/open_invoice.h"
#include "records/wizard_state.h"

namespace {

bool OpenDatabase(Connection& connection, const QString& folder)
{
    const QString fileName = QLatin1String(DatabaseFileName);
    try {
        connection.Open(NativePath(folder, fileName));
    } catch (const RuntimeError&) {
        MsgBox(MainWindow::tr("Unable to open database ") + folder + fileName, Icon::Critical);
        return false;
    }
    gConnection = &connection;
    const Hourglass hourglass(MainWindow::tr("Bringing the database file up to date..."));
    RenewIndexes(connection.Path());
    return true;
}

/// Terms that a store of long ago may hold. Nothing uses them any more but the last.
void ReadTerms(MainWindow& window)
{
    Ignoring([] { CCur(GetConfig(QStringLiteral("CostPerNight"), QStringLiteral("123"))); });
    Ignoring([] { CDbl(GetConfig(QStringLiteral("SalesTaxPercentage"), QStringLiteral("10"))); });
    GetConfig(QStringLiteral("CurrencySymbol"), GetLocaleText(LocaleItem::CurrencySymbol));
    GetConfig(QStringLiteral("SalesTaxName"), QStringLiteral("Sales Tax"));
    const QString postCode = GetConfig(QStringLiteral("PostCode"), MainWindow::tr("Post Code"));
    for (QLabel* label : window.findChildren<QLabel*>(QStringLiteral("lblPostCode")))
        ShowAsItStands(label, postCode);
}

} // namespace

bool LoadStep(MainWindow& window, Connection& connection)
{
    BuildMenus(window);
    BuildToolbar(window);
    SetupToolbar(window);
    window.setWindowState(Qt::WindowMaximized);
    if (!OpenDatabase(connection, ResolveDatabaseFolder()))
        return false;

    window.picNewInvoice->FillPaymentMethods();
    window.picArrivals->FillInvoiceFilter();
    OpenInvoice::gCurrentInvoiceId = -1;
    OpenInvoice::gCurrentCustomerId = -1;
    Ignoring([] { LoadSecondaryTax(); });
    window.picNewInvoice->ShowSecondaryTax();
    Ignoring([&] { window.picInventory->FillInvoicePriceLists(); });
    window.Grids().SetUpColumns();
    window.picReports->Frame2->ShowWeekdays(WeekdayNames(), Regional().firstDayOfWeek());
    ShowAllWelcomePages();
    window.picReports->SelectFirstGraph();
    window.picBack->PlaceHiddenPanels();
    ReadTerms(window);
    window.picArrivals->ShowAllInvoices();
    window.picInventory->ShowFirstPriceList();
    window.ShowMainPanel(InvoiceHistoryPanel);
    Ignoring([&] { window.picArrivals->RefreshInvoiceList(1, 0); });
    return true;
}
