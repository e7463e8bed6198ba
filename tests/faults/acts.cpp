#include "acts.h"

#include "base/database_path.h"
#include "config/configuration_pages.h"
#include "db/connection_private.h"
#include "db/index_renewal.h"
#include "exchange/csv_export_commands.h"
#include "exchange/database_backup.h"
#include "exchange/import_pages.h"
#include "exchange/import_preview.h"
#include "exchange/mailing_list_wizard.h"
#include "inventory/item_details.h"
#include "inventory/item_group_form.h"
#include "inventory/receive_stock.h"
#include "invoicing/add_group_items.h"
#include "invoicing/add_order_item.h"
#include "invoicing/customer_search.h"
#include "invoicing/invoice_documents.h"
#include "invoicing/item_quantity.h"
#include "invoicing/set_next_invoice_no.h"
#include "parties/customer_record.h"
#include "parties/vendor_record.h"
#include "records/name_form.h"
#include "support/files.h"
#include "support/previews.h"
#include "support/wizard_walk.h"
#include "web/web_orders_page.h"
#include "web/web_orders_wizard.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTest>

namespace {

using Doing = std::function<void(Shop&)>;

/// Chooses the entry of the menu and fills the form that it opens.
template <typename FormClass>
Doing Fill(const char* entry, void (*fill)(FormClass& form))
{
    return [=](Shop& shop) {
        WhenFormShows<FormClass>(fill);
        shop.Window().Run(entry);
    };
}

/// Presses a button of a form over a key table; the details that it may open get a name.
Doing Keys(const char* entry, const char* button)
{
    return [=](Shop& shop) {
        WhenDialogShows(
            entry, [](QDialog* form) { return !qobject_cast<NameForm*>(form); },
            [button](QDialog* form) {
                if (!QByteArray(button).endsWith("Remove"))
                    WhenFormShows<NameForm>([](NameForm& details) {
                        Type(details.txtName, "A name");
                        Click(details.cmdOK);
                    });
                Click(Find<QPushButton>(form, button));
                Click(Find<QPushButton>(form, "cmdCancel"));
            });
        shop.Window().Run(entry);
    };
}

Doing Statement(const char* statement)
{
    return [=](Shop&) { gConnection->Execute(statement); };
}

/// Selects the first row of a list and presses a button below it; the form that it may open is filled.
template <typename FormClass = QDialog>
Doing OnFirstRow(const char* entry, const char* grid, const char* button, void (*fill)(FormClass& form) = nullptr)
{
    return [=](Shop& shop) {
        shop.Window().Run(entry);
        ClickRow(Find<FlexGrid>(&shop.Window(), grid), 1);
        if (fill)
            WhenFormShows<FormClass>(fill);
        Click(Find<QPushButton>(&shop.Window(), button));
    };
}

void FillItem(frmItemDetails& form)
{
    Type(form.txtFields_5, "Lantern");
    Type(form.txtPriceList_0, "49.95");
    Type(form.txtFields_6, "24");
    Type(Find<QWidget>(&form, "txtCustom_0"), "Brass");
    Click(Find<QWidget>(&form, "chkCustom_0"));
    Click(form.cmdOk);
}

void FillGroup(frmItemGroup& form)
{
    Type(form.txtName, "Mooring");
    for (const char* item : {"Anchor", "Rope"}) {
        Pick(form.cboItems, item);
        Click(form.cmdAdd);
    }
    Click(form.cmdOk);
}

void FillCustomer(frmCustomer& form)
{
    Type(form.txtLastname, "O'Hara");
    Type(form.txtDiscount, "7");
    Click(form.cmdOk);
}

void FillVendor(frmVendor& form)
{
    Type(form.txtBusinessName, "Chandler");
    Type(form.txtNotes, "Closed on Mondays");
    Click(form.cmdOk);
}

void ReceiveRope(frmReceiveStock& form)
{
    ClickRow(form.gInventory, 2);
    Type(form.txtAddQuantity, "7");
    Click(form.cmdUpdateStockLevel);
    Click(form.cmdCancel);
}

void NewInvoice(Shop& shop)
{
    shop.Window().Run("mnuReservationAdd");
}

void TypeCustomer(Shop& shop)
{
    Type(shop.Page().txtLastname, "Shaw");
}

void LeaveBox(Shop&)
{
    Tab();
}

void TypeCode(Shop& shop)
{
    Type(shop.Page().txtBarcode, RopeCode);
}

void Enter(Shop& shop)
{
    Press(shop.Page().txtBarcode, Qt::Key_Return);
}

/// The focus stays in the bar code box.
void InvoiceWithRope(Shop& shop)
{
    NewInvoice(shop);
    TypeCustomer(shop);
    TypeCode(shop);
    Enter(shop);
    TypeCode(shop);
}

template <typename FormClass>
Doing OnPage(QPushButton* InvoicePage::*button, void (*fill)(FormClass& form))
{
    return [=](Shop& shop) {
        WhenFormShows<FormClass>(fill);
        Click(shop.Page().*button);
    };
}

Doing OnPage(QPushButton* InvoicePage::*button)
{
    return [=](Shop& shop) { Click(shop.Page().*button); };
}

void AddShackles(frmAddOrderItem& form)
{
    ClickRow(form.gItems, 5);
    Type(form.txtQuantityToAdd, "2");
    Click(form.cmdOk);
}

void AddSet(frmAddGroupItems& form)
{
    ClickRow(form.gItemGroups, 2);
    Click(form.cmdOk);
}

void FindAda(frmResCustSearch& form)
{
    Type(form.txtLastname, "Abel");
    Click(form.cmdOk);
    ClickRow(form.gcust, 1);
    Click(form.cmdSelect);
}

void EditRope(Shop& shop)
{
    WhenFormShows<frmItemQuantity>([](frmItemQuantity& form) {
        Type(form.txtQuantityToAdd, "4");
        Click(form.cmdOk);
    });
    DoubleClickRow(shop.Page().gNewInvoice, 1);
}

void DeleteRope(Shop& shop)
{
    ClickRow(shop.Page().gNewInvoice, 1);
    Click(shop.Page().cmdDeleteOrderItem);
}

void PaintLogo(Shop& shop)
{
    QImage logo(220, 90, QImage::Format_RGB32);
    logo.fill(Qt::darkBlue);
    logo.save(shop.File(), "BMP");
}

void Configure(Shop& shop)
{
    NextOn<frmWizConfig_Welcome>();
    AtPage<frmWizConfig_Business>([](frmWizConfig_Business& page) { Type(page.txtBusinessName, "Harbour Supplies"); });
    AtPage<frmWizConfig_Logo>([](frmWizConfig_Logo& page) { Click(page.cmdBrowse); });
    AtPage<frmWizConfig_Tax>([](frmWizConfig_Tax& page) {
        Type(page.txtName, "Town Tax");
        Type(page.txtPercentage, "8.25");
    });
    NextOn<frmWizConfig_Barcode, frmWizConfig_PickingList, frmWizConfig_Cats, frmWizConfig_Complete>();
    shop.Window().Run("mnuConfigureWizard");
}

void ConfigureWebOrders(Shop& shop)
{
    NextOn<frmWizOConfig_Welcome>();
    AtPage<frmWizOConfig_Email>([](frmWizOConfig_Email& page) { Type(page.txtName, "orders@shop.example"); });
    NextOn<frmWizOConfig_Provider, frmWizOConfig_Complete>();
    Guarded([&] { RunWebOrdersWizard(&shop.Window()); });
}

void WriteGoods(Shop& shop)
{
    QByteArray goods = "Name,Price,On hand,Supplier\r\n";
    for (int i = 1; i <= 200; ++i)
        goods += QString("Buoy %1,%1.50,%1,Maker %2\r\n").arg(i).arg(i % 7).toLatin1();
    WriteFile(shop.File(), goods);
}

void Import(Shop& shop)
{
    NextOn<frmWizImport_Welcome>();
    AtPage<frmWizImport_File>([&shop](frmWizImport_File& page) { Type(page.txtName, shop.File()); });
    AtPage<frmWizImport_Preview>([](frmWizImport_Preview& page) {
        EXPECT_TRUE(QTest::qWaitFor([&page] { return page.cmdNext->isEnabled(); }));
        for (const auto& [field, title] :
            {std::pair("cboImportField_13", "Price"), std::pair("cboImportField_9", "On hand"),
                std::pair("cboImportField_7", "Supplier"), std::pair("cboImportField_1", "Name")}) {
            auto* source = Find<ComboBox>(&page, field);
            page.picBack->ensureWidgetVisible(source);
            Pick(source, title);
        }
    });
    NextOn<frmWizImport_Complete>();
    shop.Window().Run("mnuFileImportInventory");
}

void SavePdf(Shop&)
{
    ShowInvoiceDocument(1, false);
    Find<QAction>(Previews().last(), "mnuSavePdf")->trigger();
}

void ListAddresses(Shop& shop)
{
    NextOn<frmWizMailList_Welcome>();
    AtPage<frmWizMailList_File>([&shop](frmWizMailList_File& page) { Type(page.txtName, shop.File()); });
    NextOn<frmWizMailList_Complete>();
    shop.Window().Run("mnuCustMailingList");
}

Doing Command(void (*command)())
{
    return [=](Shop&) { Guarded(command); };
}

/// As an earlier version made them.
void MakeIndexesOld(Shop&)
{
    for (const char* sql : {"DROP INDEX item_name", "DROP INDEX itempricelist_item",
             "CREATE INDEX itempricelist_item ON ItemPriceList(ItemID, PriceListID)"})
        gConnection->Private().RunPlain(sql);
}

} // namespace

const std::vector<Act>& Acts()
{
    static const std::vector<Act> acts{
        {"new-invoice", 1, NewInvoice},
        {"type-customer", 1, LeaveBox, [](Shop& shop) { NewInvoice(shop), TypeCustomer(shop); }},
        {"find-customer", 1, OnPage(&InvoicePage::cmdNewInvoiceCustSearch, FindAda), InvoiceWithRope},
        {"scan", 1, Enter, [](Shop& shop) { NewInvoice(shop), TypeCustomer(shop), TypeCode(shop); }},
        {"scan-again", 1, Enter, InvoiceWithRope},
        {"add-order-item", 1, OnPage(&InvoicePage::cmdAddOrderItem, AddShackles), InvoiceWithRope},
        // The lines, and then the page as it stands.
        {"add-group", 2, OnPage(&InvoicePage::cmdAddGroupItems, AddSet), InvoiceWithRope},
        {"edit-line", 1, EditRope, InvoiceWithRope},
        {"delete-line", 1, DeleteRope, InvoiceWithRope},
        // The page is saved before the user is asked whether to print.
        {"complete-invoice", 2, OnPage(&InvoicePage::cmdCompleteInvoice), InvoiceWithRope},
        {"close-invoice", 1, OnPage(&InvoicePage::cmdCloseInvoice), InvoiceWithRope},
        {"cancel-invoice", 1, OnPage(&InvoicePage::cmdCancelInvoice), InvoiceWithRope},
        {"delete-invoice", 1, OnFirstRow("mnuListInvoices", "gInvoices", "cmdSimpleCalCancel"), Nothing, true},
        {"next-invoice-number", 1,
            Fill<frmSetNextInvoiceNo>("mnuInvoiceSetInvoiceNo",
                [](frmSetNextInvoiceNo& form) {
                    Type(form.txtName, "500");
                    Click(form.cmdOk);
                })},
        {"new-item", 1, Fill<frmItemDetails>("mnuInvAddItem", FillItem), Nothing, true},
        {"edit-item", 1, OnFirstRow<frmItemDetails>("mnuViewInventory", "gInventory", "cmdEditInventory", FillItem),
            Nothing, true},
        {"delete-item", 1, OnFirstRow("mnuViewInventory", "gInventory", "cmdDeleteInventory"), Nothing, true},
        {"receive-stock", 1, Fill<frmReceiveStock>("mnuInventoryReceive", ReceiveRope), Nothing, true},
        {"new-group", 1,
            OnFirstRow<frmItemGroup>("mnuInventoryViewItemGroup", "gItemGroups", "cmdItemGroupNew", FillGroup)},
        {"edit-group", 1,
            OnFirstRow<frmItemGroup>("mnuInventoryViewItemGroup", "gItemGroups", "cmdItemGroupEdit", FillGroup)},
        {"delete-group", 1, OnFirstRow("mnuInventoryViewItemGroup", "gItemGroups", "cmdItemGroupDelete")},
        {"new-customer", 1, Fill<frmCustomer>("mnuCustomerAdd", FillCustomer)},
        {"edit-customer", 1, OnFirstRow<frmCustomer>("mnuCustomersView", "gcust", "cmdEditCustomer", FillCustomer)},
        {"delete-customer", 1, OnFirstRow("mnuCustomersView", "gcust", "cmdDeleteCustomer")},
        {"new-vendor", 1, Fill<frmVendor>("mnuVendorAdd", FillVendor)},
        {"edit-vendor", 1, OnFirstRow<frmVendor>("mnuVendorsView", "gVendors", "cmdVendorEdit", FillVendor)},
        {"delete-vendor", 1, OnFirstRow("mnuVendorsView", "gVendors", "cmdVendorDelete")},
        {"add-price-list", 1, Keys("mnuConfigMultipleItemPricing", "cmdAdd")},
        {"edit-price-list", 1, Keys("mnuConfigMultipleItemPricing", "cmdEdit")},
        {"remove-price-list", 1, Keys("mnuConfigMultipleItemPricing", "cmdRemove")},
        // Closing the form stores the second tax.
        {"add-tax-rate", 2, Keys("mnuInvTaxRates", "cmdAdd")},
        {"edit-tax-rate", 2, Keys("mnuInvTaxRates", "cmdEdit")},
        {"remove-tax-rate", 2, Keys("mnuInvTaxRates", "cmdRemove")},
        {"add-warehouse", 1, Keys("mnuInvLocations", "cmdCatAdd")},
        {"edit-warehouse", 1, Keys("mnuInvLocations", "cmdCatEdit")},
        {"remove-warehouse", 1, Keys("mnuInvLocations", "cmdCatRemove"),
            Statement("DELETE FROM location WHERE name = 'Attic shelf'")},
        {"add-location", 1, Keys("mnuInvLocations", "cmdAdd")},
        {"edit-location", 1, Keys("mnuInvLocations", "cmdEdit")},
        {"remove-location", 1, Keys("mnuInvLocations", "cmdRemove")},
        {"add-category", 1, Keys("mnuInvCats", "cmdCatAdd")},
        {"edit-category", 1, Keys("mnuInvCats", "cmdCatEdit")},
        {"remove-category", 1, Keys("mnuInvCats", "cmdCatRemove"),
            Statement("DELETE FROM subcategory WHERE name = 'Art goods'")},
        {"add-sub-category", 1, Keys("mnuInvCats", "cmdAdd")},
        {"edit-sub-category", 1, Keys("mnuInvCats", "cmdEdit")},
        {"remove-sub-category", 1, Keys("mnuInvCats", "cmdRemove")},
        {"configuration-wizard", 1, Configure, PaintLogo},
        {"web-orders-wizard", 1, ConfigureWebOrders},
        {"import", 1, Import, WriteGoods, true},
        {"renew-indexes", 1, [](Shop&) { RenewIndexes(DatabasePath()); }, MakeIndexesOld, false, true},
    };
    return acts;
}

const std::vector<FileAct>& FileActs()
{
    static const std::vector<FileAct> acts{
        {"export-invoices", true, Command(ExportInvoices)},
        {"export-customers", true, Command(ExportCustomers)},
        {"export-inventory", true, Command(ExportInventory)},
        {"export-today", true, Command(ExportTodaysInvoices)},
        {"mailing-list", true, ListAddresses},
        {"web-orders-page", true, Command(CreateWebOrdersPage)},
        {"backup", false, Command(BackupDatabase)},
        {"pdf", false, SavePdf},
    };
    return acts;
}
