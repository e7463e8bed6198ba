#include "road.h"

#include "reports.h"
#include "steps.h"

#include "app/start.h"
#include "paper/preview_window.h"
#include "support/screen.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace {

void VisitSplash(Album& album)
{
    At("frmSplash", [&album](QDialog& splash) {
        album.Take("splash");
        // It goes by itself, once the main window is loaded behind it.
        constexpr int PatienceMs = 30'000;
        const QDeadlineTimer patience(PatienceMs);
        while (splash.isVisible() && !patience.hasExpired())
            QTest::qWait(20);
    });
}

void VisitTips(Album& album)
{
    At("frmTip", [&album](QDialog& tip) {
        album.Take("tip-of-the-day");
        Click(Find<QPushButton>(&tip, "cmdNextTip"));
        album.Take("next-tip");
        Click(Find<QPushButton>(&tip, "cmdOK"));
    });
}

void FillItemRecord(QDialog& form, Album& album, const QString& barCode)
{
    album.Take("new-item-record");
    Type(Find<QWidget>(&form, "txtFields_5"), QStringLiteral("Ship's Lantern, Brass \"Pilot\""));
    Type(Find<QWidget>(&form, "txtFields_1"), QStringLiteral("Burns lamp oil for twelve hours."));
    Type(Find<QWidget>(&form, "txtFields_0"), barCode);
    Type(Find<QWidget>(&form, "txtPriceList_0"), QStringLiteral("49.95"));
    Type(Find<QWidget>(&form, "txtPriceList_1"), QStringLiteral("34.95"));
    Type(Find<QWidget>(&form, "txtPriceList_2"), QStringLiteral("42.45"));
    Type(Find<QWidget>(&form, "txtFields_6"), QStringLiteral("24"));
    Type(Find<QWidget>(&form, "txtFields_7"), QStringLiteral("6"));
    Pick(Find<QComboBox>(&form, "cboCategory"), QStringLiteral("Household"));
    Pick(Find<QComboBox>(&form, "cboVendor"), QStringLiteral("Tidewell Household Supplies"));
    Pick(Find<QComboBox>(&form, "cboTaxRate"), QStringLiteral("Standard"));
    album.Take("item-record-filled-in");
    Click(Find<QPushButton>(&form, "cmdOk"));
}

void EnterCustomer(InvoicePage& page, Album& album)
{
    Type(page.txtFirstname, QStringLiteral("Renée"));
    Type(page.txtLastname, QStringLiteral("O'Hara"));
    Type(page.txtBusinessName, QStringLiteral("Gull Rock Tea Rooms"));
    Type(page.txtAddress1, QStringLiteral("3 Lighthouse Walk"));
    Type(page.txtCity, QStringLiteral("Gull Rock"));
    Type(page.txtPostcode, QStringLiteral("04133"));
    Type(page.txtPhone, QStringLiteral("(555) 240-0177"));
    Type(page.txtDiscount, QStringLiteral("5"));
    Tab();
    album.Take("customer-typed");
}

void SearchCustomer(InvoicePage& page, Album& album)
{
    At("frmResCustSearch", [&album](QDialog& search) {
        Type(Find<QWidget>(&search, "txtLastname"), QStringLiteral("O"));
        Click(Find<QPushButton>(&search, "cmdOk"));
        auto* matches = Find<FlexGrid>(&search, "gcust");
        album.Take("customer-search");
        ClickRow(matches, 1);
        Click(Find<QPushButton>(&search, "cmdSelect"));
    });
    Click(page.cmdNewInvoiceCustSearch);
    album.Take("customer-found");
}

void ScanBarCodes(InvoicePage& page, Album& album, const QString& barCode)
{
    Type(page.txtBarcode, barCode);
    album.Take("bar-code-read");
    Press(page.txtBarcode, Qt::Key_Return);
    Type(page.txtBarcode, barCode);
    Press(page.txtBarcode, Qt::Key_Return);
    album.Take("bar-code-scanned-twice");
}

void ScanUnknownBarCode(InvoicePage& page, Album& album)
{
    AnswerBox(album, "bar-code-unknown", QMessageBox::Ok);
    Type(page.txtBarcode, QStringLiteral("4006381333931"));
    Press(page.txtBarcode, Qt::Key_Return);
}

void AddOrderItem(InvoicePage& page, Album& album)
{
    At("frmAddOrderItem", [&album](QDialog& form) {
        album.Take("add-order-item");
        Type(Find<QWidget>(&form, "txtItemName"), QStringLiteral("tea"));
        Click(Find<QPushButton>(&form, "cmdSearch"));
        ClickRowOf(Find<FlexGrid>(&form, "gItems"), 1, "Black Tea Assam");
        Type(Find<QWidget>(&form, "txtQuantityToAdd"), QStringLiteral("3"));
        album.Take("add-order-item-found");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    Click(page.cmdAddOrderItem);
}

void AddGroup(InvoicePage& page, Album& album)
{
    At("frmAddGroupItems", [&album](QDialog& form) {
        ClickRowOf(Find<FlexGrid>(&form, "gItemGroups"), 0, "Room Painting Set");
        album.Take("add-group-items");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    Click(page.cmdAddGroupItems);
    album.Take("lines-and-totals");
}

void EditQuantity(InvoicePage& page, Album& album)
{
    At("frmItemQuantity", [&album](QDialog& form) {
        Type(Find<QWidget>(&form, "txtQuantityToAdd"), QStringLiteral("4"));
        album.Take("item-quantity");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    DoubleClickRow(page.gNewInvoice, 1);
    album.Take("quantity-edited");
}

void DeleteLine(InvoicePage& page, Album& album)
{
    ClickRow(page.gNewInvoice, 2);
    AnswerBox(album, "delete-the-line-or-not", QMessageBox::Yes);
    Click(page.cmdDeleteOrderItem);
}

void Complete(InvoicePage& page, Album& album)
{
    Pick(page.cboPaymentMethod, InvoicePage::tr("Credit Card"));
    Type(page.txtNotes, QStringLiteral("Deliver to the side door."));
    Click(page.chkPaid);
    album.Take("ready-to-complete");
    Click(page.cmdPrintPickingList);
    album.Take("picking-list");
    ClosePreviews();
    AnswerBox(album, "print-the-invoice-or-not", QMessageBox::Yes);
    Click(page.cmdCompleteInvoice);
    album.Take("invoice-document");
    ClosePreviews();
    album.Take("invoice-history-with-the-new-invoice");
}

} // namespace

void StartForTheFirstTime(Program& program, Album& album)
{
    VisitSplash(album);
    VisitTips(album);
    AnswerBox(album, "first-start-offers-the-tutorial", QMessageBox::No);
    AnswerBox(album, "first-start-offers-the-wizard", QMessageBox::No);
    program.Main();
    album.Take("invoice-history");
}

void LookAround(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    Pick(window.picArrivals->cboInvoiceFilter, InvoiceHistory::tr("Unpaid Invoices"));
    album.Take("unpaid-invoices");
    Pick(window.picArrivals->cboInvoiceFilter, InvoiceHistory::tr("All Invoices"));
    ClickToolbar(window, "Customers");
    album.Take("customers");
    LookAtReports(program, album);
    ChooseFromMenu(window, "mnuVendors", "mnuVendorsView", album, "vendors-menu");
    album.Take("vendors");
}

QString AddAnItem(Program& program, Album& album)
{
    QString barCode = QStringLiteral("2000009990003");
    MainWindow& window = *program.Window();
    ClickToolbar(window, "Inventory");
    album.Take("inventory");
    ClickTitle(window.picInventory->gInventory, 4);
    album.Take("inventory-by-stock");
    At("frmItemDetails", [&](QDialog& form) { FillItemRecord(form, album, barCode); });
    Click(window.picInventory->cmdAddInventory);
    album.Take("inventory-with-the-new-item");
    return barCode;
}

void WriteAnInvoice(Program& program, Album& album, const QString& barCode)
{
    MainWindow& window = *program.Window();
    ClickToolbar(window, "New Invoice");
    album.Take("new-invoice");
    InvoicePage& page = *window.picNewInvoice;
    EnterCustomer(page, album);
    SearchCustomer(page, album);
    ScanBarCodes(page, album, barCode);
    ScanUnknownBarCode(page, album);
    AddOrderItem(page, album);
    AddGroup(page, album);
    EditQuantity(page, album);
    DeleteLine(page, album);
    Complete(page, album);
}

void FindTheInvoice(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    At("frmFindInvoice", [&album](QDialog& form) {
        Click(Find<QPushButton>(&form, "cmdOk"));
        auto* matches = Find<FlexGrid>(&form, "gres");
        ClickRow(matches, matches->Rows() - 1);
        album.Take("find-invoice");
        Click(Find<QPushButton>(&form, "cmdEditCustomer"));
    });
    ChooseFromMenu(window, "mnuReservations", "mnuReservationFind", album, "find-invoice-in-the-invoices-menu");
    album.Take("edit-invoice");
    Click(window.picNewInvoice->cmdCloseInvoice);
}
