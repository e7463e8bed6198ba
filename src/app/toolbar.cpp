#include "app/toolbar.h"

#include "app/image_lists.h"
#include "app/main_window.h"
#include "base/guard.h"
#include "base/regional.h"

#include <QCoreApplication>
#include <QHash>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>

namespace {

/// The context of the captions.
class ToolbarTexts {
    Q_DECLARE_TR_FUNCTIONS(ToolbarTexts)
public:
    static const QList<ToolbarButton>& Buttons();
};

constexpr auto FindKey = QT_TRANSLATE_NOOP("ToolbarTexts", "Find");
constexpr auto WebOrdersKey = QT_TRANSLATE_NOOP("ToolbarTexts", "Web Orders");
/// The picture that the form itself gives the last button: no setup changes it.
constexpr int WebOrdersImage = 1;

constexpr QSize TopIconSize(32, 32);
/// The picture of each panel's head, numbered in the toolbar's list.
constexpr int TopImages[]{6, 7, 4, 2, 3, 4, 3};

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
        window, menu, ToolbarTexts::tr("Customer..."), QStringLiteral("Customer"), QStringLiteral("mnuCustomerFind"));
    AddFindEntry(
        window, menu, ToolbarTexts::tr("Invoice..."), QStringLiteral("Invoice"), QStringLiteral("mnuReservationFind"));
    return menu;
}

void AddFindDropDown(MainWindow& window, QAction* find)
{
    find->setMenu(FindMenu(window));
    auto* button = qobject_cast<QToolButton*>(window.Toolbar->widgetForAction(find));
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

} // namespace

const QList<ToolbarButton>& ToolbarTexts::Buttons()
{
    static const QList<ToolbarButton> buttons{
        {1, QT_TR_NOOP("New Invoice"), 6, 2},
        {3, QT_TR_NOOP("Invoices"), 7, 3},
        {4, QT_TR_NOOP("Inventory"), 3, 1},
        {5, QT_TR_NOOP("Customers"), 4, 4},
        {6, QT_TR_NOOP("Reports"), 2, 5},
        {8, FindKey, 5, 6},
        {10, WebOrdersKey, WebOrdersImage, 7},
    };
    return buttons;
}

const QList<ToolbarButton>& ToolbarButtons()
{
    return ToolbarTexts::Buttons();
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

void BuildToolbar(MainWindow& window)
{
    QToolBar* toolbar = window.Toolbar;
    int position = 1;
    for (const ToolbarButton& button : ToolbarButtons()) {
        for (; position < button.position; ++position)
            toolbar->addSeparator();
        ++position;
        const QString key = QLatin1String(button.key);
        QAction* action = toolbar->addAction(ToolbarTexts::tr(button.key));
        action->setObjectName(key);
        if (key == QLatin1String(WebOrdersKey))
            action->setIcon(ImageOfImToolbar(WebOrdersImage));
        if (key == QLatin1String(FindKey))
            AddFindDropDown(window, action);
        On(action, &QAction::triggered, &window, [&window, key] { window.Run(EntryOfToolbarKey(key)); });
    }
}

void SetupToolbar(MainWindow& window)
{
    const bool xp = IsWindowsXP();
    for (const ToolbarButton& button : ToolbarButtons()) {
        if (QLatin1String(button.key) == QLatin1String(WebOrdersKey))
            continue;
        auto* action = window.Toolbar->findChild<QAction*>(QLatin1String(button.key));
        action->setIcon(xp ? ImageOfImageListXP(button.imageInImageListXP) : ImageOfImToolbar(button.imageInImToolbar));
    }
    if (xp)
        return;
    const QList<Panel*>& panels = window.Panels();
    for (int number = 0; number < panels.size(); ++number)
        panels.at(number)->TopIcon()->setPixmap(
            ImageOfImToolbar(TopImages[number]).pixmap(TopIconSize, window.devicePixelRatio()));
}
