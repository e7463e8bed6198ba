#include "app/toolbar.h"

#include "app/image_lists.h"
#include "app/main_window.h"
#include "base/guard.h"

#include <QHash>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

constexpr auto FindKey = "Find";
constexpr auto WebOrdersKey = "Web Orders";
/// The picture that the form itself gives the last button: no setup changes it.
constexpr int WebOrdersImage = 1;

void AddFindEntry(MainWindow& window, QMenu* menu, const QString& text, const QString& key, const QString& entryName)
{
    QAction* action = menu->addAction(text);
    action->setObjectName(key);
    action->setEnabled(window.MenuEntry(entryName)->isEnabled());
    On(action, &QAction::triggered, &window, [&window, entryName] { window.Run(entryName); });
}

QMenu* FindMenu(MainWindow& window)
{
    auto* menu = new QMenu(&window);
    AddFindEntry(
        window, menu, QObject::tr("Customer..."), QStringLiteral("Customer"), QStringLiteral("mnuCustomerFind"));
    AddFindEntry(
        window, menu, QObject::tr("Invoice..."), QStringLiteral("Invoice"), QStringLiteral("mnuReservationFind"));
    return menu;
}

void AddFindDropDown(MainWindow& window, QToolBar* toolbar, QAction* find)
{
    find->setMenu(FindMenu(window));
    auto* button = qobject_cast<QToolButton*>(toolbar->widgetForAction(find));
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

} // namespace

const QList<ToolbarButton>& ToolbarButtons()
{
    static const QList<ToolbarButton> buttons{
        {1, "New Invoice", 6, 2},
        {3, "Invoices", 7, 3},
        {4, "Inventory", 3, 1},
        {5, "Customers", 4, 4},
        {6, "Reports", 2, 5},
        {8, FindKey, 5, 6},
        {10, WebOrdersKey, WebOrdersImage, 7},
    };
    return buttons;
}

QString EntryOfToolbarKey(const QString& key)
{
    // The last button's key is "Web Orders", which is not among these: a click on it does nothing.
    static const QHash<QString, QString> entries{
        {QStringLiteral("New Invoice"), QStringLiteral("mnuReservationAdd")},
        {QStringLiteral("Invoices"), QStringLiteral("mnuListInvoices")},
        {QStringLiteral("Inventory"), QStringLiteral("mnuViewInventory")},
        {QStringLiteral("Customers"), QStringLiteral("mnuCustomersView")},
        {QStringLiteral("Reports"), QStringLiteral("mnuReportQuick")},
        {QStringLiteral("Web Bookings"), QStringLiteral("mnuWebConfig")},
        {QStringLiteral("Find"), QStringLiteral("mnuCustomerFind")},
    };
    return entries.value(key);
}

void BuildToolbar(MainWindow& window, QToolBar* toolbar)
{
    int position = 1;
    for (const ToolbarButton& button : ToolbarButtons()) {
        for (; position < button.position; ++position)
            toolbar->addSeparator();
        ++position;
        const QString key = QLatin1String(button.key);
        QAction* action = toolbar->addAction(key);
        action->setObjectName(key);
        if (key == QLatin1String(WebOrdersKey))
            action->setIcon(ImageOfImToolbar(WebOrdersImage));
        if (key == QLatin1String(FindKey))
            AddFindDropDown(window, toolbar, action);
        On(action, &QAction::triggered, &window, [&window, key] { window.Run(EntryOfToolbarKey(key)); });
    }
}
