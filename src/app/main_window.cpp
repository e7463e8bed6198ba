#include "app/main_window.h"

#include "app/status_bar.h"
#include "config/configuration_wizard.h"
#include "config/tax_rates.h"
#include "controls/dialogs.h"
#include "controls/ink_icon.h"
#include "controls/message_box.h"
#include "controls/status_line.h"
#include "controls/window_place.h"
#include "inventory/multiple_pricing.h"
#include "invoicing/find_invoice.h"
#include "invoicing/open_invoice.h"
#include "parties/find_customer.h"

#include <QCloseEvent>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

#include <stdexcept>

namespace {

constexpr QSize FirstSize(1024, 700);
constexpr QSize ToolbarIconSize(32, 32);

bool IsTitleLabel(const QWidget* panel, const QWidget* pressed)
{
    const auto* titled = dynamic_cast<const Panel*>(panel);
    return titled && pressed == titled->TitleLabel();
}

} // namespace

MainWindow::MainWindow()
    : Toolbar(new QToolBar)
    , picBack(new PanelArea(this))
    , picNewInvoice(new InvoicePage(picBack))
    , picArrivals(new InvoiceHistory(picBack))
    , picCustomers(new CustomersPanel(picBack))
    , picReports(new ReportsPanel(picBack))
    , picInventory(new InventoryList(picBack))
    , picVendors(new VendorsPanel(picBack))
    , picItemGroups(new ItemGroups(picBack))
    , m_panels{picNewInvoice, picArrivals, picCustomers, picReports, picInventory, picVendors, picItemGroups}
{
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(tr("Tavrin Inventory"));
    resize(GrownWithFont(FirstSize.width(), FirstSize.height()));
    RememberPlace(this);

    for (Panel* panel : m_panels)
        picBack->AddPanel(panel);
    setCentralWidget(picBack);

    Toolbar->setObjectName(QStringLiteral("Toolbar"));
    Toolbar->setWindowTitle(tr("Toolbar"));
    Toolbar->setMovable(false);
    // Qt's menu for the right button would hide the toolbar for good.
    setContextMenuPolicy(Qt::PreventContextMenu);
    Toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    Toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    Toolbar->setIconSize(ToolbarIconSize);
    InkExtensionButton(Toolbar);
    InkExtensionButton(menuBar());
    addToolBar(Toolbar);

    ConnectPanels();
    LetPanelsDragTheWindow();
}

void MainWindow::ConnectPanels()
{
    On(picBack, &PanelArea::Resized, this, [this] {
        // The area also changes with the status line. That leaves the widths as the user has dragged them.
        if (size() != m_stretchedFor)
            RunResizeRules();
    });
    On(picReports, &ReportsPanel::Expanded, this, [this] { RunResizeRules(); });
    On(picNewInvoice, &InvoicePage::Left, this, [this] { ListInvoices(); });
    auto* bar = new StatusBar(this);
    setStatusBar(bar);
    On(picNewInvoice, &InvoicePage::LinesCounted, bar, &StatusBar::ShowCounted);
    // It has been taken now, which the last message may have denied.
    On(picNewInvoice, &InvoicePage::Scanned, bar, &StatusBar::clearMessage);
    On(&StatusLine::Get(), &StatusLine::Told, bar, &StatusBar::ShowNotice);
    On(picArrivals, &InvoiceHistory::OpenInvoice, this, [this](qint32 invoiceId) { OpenInvoice(invoiceId); });
    On(picArrivals, &InvoiceHistory::NewInvoice, this, [this] { OpenInvoicePage(); });
    picArrivals->FindBy([this] { FindInvoice(); });
    picCustomers->FindBy([this] { Run(QStringLiteral("mnuCustomerFind")); });
}

void MainWindow::LetPanelsDragTheWindow()
{
    picBack->installEventFilter(this);
    for (Panel* panel : m_panels)
        panel->installEventFilter(this);
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event)
{
    auto* widget = qobject_cast<QWidget*>(watched);
    if (event->type() == QEvent::MouseButtonPress && widget) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        // A press on a label travels on to the panel beneath.
        QWidget* pressed = widget->childAt(mouse->position().toPoint());
        if (mouse->button() == Qt::LeftButton && (!pressed || IsTitleLabel(widget, pressed)))
            windowHandle()->startSystemMove();
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::ShowMainPanel(int panelNumber)
{
    if (panelNumber >= 0 && panelNumber < picBack->PanelCount())
        picBack->ShowPanel(panelNumber);
}

MainGrids MainWindow::Grids() const
{
    return {picArrivals->gInvoices, picCustomers->gcust, picInventory->gInventory, picNewInvoice->gNewInvoice,
        picItemGroups->gItemGroups, picVendors->gVendors};
}

void MainWindow::RunResizeRules()
{
    m_stretchedFor = size();
    Grids().Stretch();
}

QAction* MainWindow::MenuEntry(const QString& name) const
{
    auto* entry = menuBar()->findChild<QAction*>(name);
    if (!entry)
        throw std::logic_error(std::string("no menu entry ").append(name.toStdString()));
    return entry;
}

void MainWindow::Run(const QString& name)
{
    if (!name.isEmpty())
        MenuEntry(name)->trigger();
}

void MainWindow::ListInvoices()
{
    ShowMainPanel(InvoiceHistoryPanel);
    picArrivals->RefreshInvoiceList(1, 0);
}

void MainWindow::OpenInvoicePage()
{
    OpenInvoice(OpenInvoice::gCurrentInvoiceId);
}

void MainWindow::OpenInvoice(qint32 invoiceId)
{
    picNewInvoice->SaveWhatIsBeingTyped();
    OpenInvoice::gCurrentInvoiceId = invoiceId;
    ShowMainPanel(InvoicePagePanel);
    picNewInvoice->ShowInvoicePage();
}

void MainWindow::FindInvoice()
{
    frmFindInvoice::InvoiceSelected = false;
    frmFindInvoice::SelectedInvoiceID = -1;
    frmFindInvoice(this).ShowModal();
    if (frmFindInvoice::InvoiceSelected)
        OpenInvoice(frmFindInvoice::SelectedInvoiceID);
}

void MainWindow::ViewInventory()
{
    ShowMainPanel(InventoryListPanel);
    picInventory->RefreshInventoryList(1, 0);
}

void MainWindow::ViewItemGroups()
{
    ShowMainPanel(ItemGroupsPanel);
    picItemGroups->RefreshItemGroupList(1, 0);
}

void MainWindow::AddItem()
{
    picInventory->AddItem();
}

void MainWindow::ViewCustomers()
{
    ShowMainPanel(CustomersListPanel);
    picCustomers->RefreshCustomerList(1, 0);
}

void MainWindow::FindCustomer()
{
    picNewInvoice->SaveWhatIsBeingTyped();
    frmFindCustomer(this).ShowModal();
    picNewInvoice->ShowCustomerAnew();
    RefreshListInView();
}

void MainWindow::ViewVendors()
{
    ShowMainPanel(VendorsListPanel);
    picVendors->RefreshVendorList(1, 0);
}

void MainWindow::ViewReports()
{
    ShowMainPanel(ReportsViewPanel);
    picReports->ShowReports();
}

void MainWindow::ConfigurePriceLists()
{
    frmMultiplePricing(this).ShowModal();
    picInventory->RefillInvoicePriceLists();
    picNewInvoice->RefillPriceLists();
}

void MainWindow::ConfigureTaxRates()
{
    frmTaxRate(this).ShowModal();
    picNewInvoice->ShowSecondaryTax();
    RefreshListInView();
}

void MainWindow::ConfigureBusiness()
{
    if (!RunConfigurationWizard(this))
        return;
    picNewInvoice->ShowSecondaryTax();
    RefreshListInView();
}

void MainWindow::RefreshListInView()
{
    for (ListPanel* list : findChildren<ListPanel*>())
        list->RefreshIfSeen();
}

void MainWindow::FirstRun()
{
    const Answer tutorial =
        MsgBox(tr("We've noticed that this is the first time you have launched Tavrin Inventory. You "
                  "may find it useful to follow the getting started tutorial. Would you like to view "
                  "it now?"),
            Icon::Question, Buttons::YesNoCancel);
    if (tutorial == Answer::Yes) {
        constexpr int TutorialTopic = 3;
        OpenHelp(HelpCommand::Context, TutorialTopic);
        ConfigureBusiness();
    } else if (MsgBox(tr("Would you like to run the 'Configuration Wizard' now?"), Icon::Question, Buttons::YesNoCancel)
        == Answer::Yes) {
        ConfigureBusiness();
    }
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    Guarded([this] { Grids().SaveWidths(); });
    QMainWindow::closeEvent(event);
    emit Closed();
}
