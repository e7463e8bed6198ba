#include "stockroom.h"

#include "steps.h"

#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

namespace {

void PutAGroupTogether(MainWindow& window, Album& album)
{
    ChooseFromMenu(window, "mnuInventory", "mnuInventoryViewItemGroup", album, "item-groups-in-the-inventory-menu");
    album.Take("item-groups");
    At("frmItemGroup", [&album](QDialog& form) {
        Type(Find<QWidget>(&form, "txtName"), QStringLiteral("Lantern Evening"));
        for (const char* item : {"Ship's Lantern, Brass \"Pilot\"", "Black Tea Assam"}) {
            Pick(Find<QComboBox>(&form, "cboItems"), QString::fromUtf8(item));
            Click(Find<QPushButton>(&form, "cmdAdd"));
        }
        album.Take("new-item-group");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    Click(window.picItemGroups->cmdItemGroupNew);
    album.Take("item-groups-with-the-new-one");
}

void ReceiveGoods(MainWindow& window, Album& album, const QString& barCode)
{
    At("frmReceiveStock", [&](QDialog& form) {
        auto* scanned = Find<QWidget>(&form, "txtBarcode");
        auto* received = Find<QWidget>(&form, "txtAddQuantity");
        Type(scanned, barCode);
        Press(scanned, Qt::Key_Return);
        Type(received, QStringLiteral("12"));
        album.Take("goods-scanned");
        Press(received, Qt::Key_Return);
        album.Take("goods-received");
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuInventory", "mnuInventoryReceive", album, "receive-stock-in-the-inventory-menu");
}

void AddAPriceList(MainWindow& window, Album& album)
{
    At("frmMultiplePricing", [&album](QDialog& lists) {
        At("frmAddPriceList", [&album](QDialog& form) {
            Type(Find<QWidget>(&form, "txtName"), QStringLiteral("Winter Market"));
            album.Take("new-price-list");
            Click(Find<QPushButton>(&form, "cmdOK"));
        });
        Click(Find<QPushButton>(&lists, "cmdAdd"));
        album.Take("price-lists");
        Click(Find<QPushButton>(&lists, "cmdCancel"));
    });
    ChooseFromMenu(window, "mnuConfigure", "mnuConfigMultipleItemPricing", album, "price-lists-in-the-configure-menu");
    ClickToolbar(window, "Inventory");
    Pick(window.picInventory->cboInvoicePriceList, QStringLiteral("Winter Market"));
    album.Take("inventory-in-the-new-price-list");
    Pick(window.picInventory->cboInvoicePriceList, QStringLiteral("Sale Price"));
}

} // namespace

void KeepTheStock(Program& program, Album& album, const QString& barCode)
{
    MainWindow& window = *program.Window();
    PutAGroupTogether(window, album);
    ReceiveGoods(window, album, barCode);
    AddAPriceList(window, album);
}
