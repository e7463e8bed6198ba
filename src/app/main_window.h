#pragma once

#include "app/main_grids.h"
#include "app/panel_area.h"
#include "inventory/inventory_list.h"
#include "inventory/item_groups.h"
#include "invoicing/invoice_history.h"
#include "invoicing/invoice_page.h"
#include "parties/customers_panel.h"
#include "parties/vendors_panel.h"
#include "reports/reports_panel.h"

#include <QMainWindow>
#include <QToolBar>

/// The numbers of the panels.
enum MainPanel {
    InvoicePagePanel,
    InvoiceHistoryPanel,
    CustomersListPanel,
    ReportsViewPanel,
    InventoryListPanel,
    VendorsListPanel,
    ItemGroupsPanel
};

/// The one large window: seven panels over one area, a menu and a toolbar that switch between them. It is made empty;
/// the load step (app/load_step.h) gives it menu and toolbar, opens the database and fills it.
class MainWindow : public QMainWindow {
    Q_OBJECT
public:
    MainWindow();

    /// Shows the numbered panel and hides the others. Numbers that no panel has do nothing.
    void ShowMainPanel(int panelNumber);
    const QList<Panel*>& Panels() const { return m_panels; }
    MainGrids Grids() const;
    /// Lets the grids' stretch columns take up the width that the window has now.
    void RunResizeRules();

    /// The action of a menu entry by its control's name. An unknown name throws std::logic_error.
    QAction* MenuEntry(const QString& name) const;
    /// As if the user chose the menu entry: nothing when it is greyed, or `name` is "".
    void Run(const QString& name);

    void ListInvoices();
    /// The invoice page with the current invoice, or a new one when there is none.
    void OpenInvoicePage();
    void FindInvoice();
    void ViewInventory();
    void ViewItemGroups();
    void AddItem();
    void ViewCustomers();
    void FindCustomer();
    void ViewVendors();
    /// The statistics and graphs, taken anew.
    void ViewReports();
    void ConfigurePriceLists();
    void ConfigureTaxRates();
    void ConfigureBusiness();
    /// Reads the list in view anew, if one is, with the same record selected: forms above it may have changed its rows.
    void RefreshListInView();
    /// The prompts of the first start: the tutorial, the configuration wizard.
    void FirstRun();

    QToolBar* Toolbar;
    PanelArea* picBack;
    InvoicePage* picNewInvoice;
    InvoiceHistory* picArrivals;
    CustomersPanel* picCustomers;
    ReportsPanel* picReports;
    InventoryList* picInventory;
    VendorsPanel* picVendors;
    ItemGroups* picItemGroups;

signals:
    /// The window has closed, with its column widths stored.
    void Closed();

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void OpenInvoice(qint32 invoiceId);
    void ConnectPanels();
    void LetPanelsDragTheWindow();

    QList<Panel*> m_panels;
    QSize m_stretchedFor; ///< the window's, when the columns took up its width last
};
