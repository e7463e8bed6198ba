#include "people.h"

#include "steps.h"

#include "app/start.h"
#include "support/screen.h"

#include <QPushButton>

namespace {

void AddACustomer(MainWindow& window, Album& album)
{
    At("frmCustomer", [&album](QDialog& form) {
        Type(Find<QWidget>(&form, "txtFirstname"), QStringLiteral("Maëlle"));
        Type(Find<QWidget>(&form, "txtLastname"), QStringLiteral("O'Connor"));
        Type(Find<QWidget>(&form, "txtBusinessName"), QStringLiteral("Harbour Lights \"B&B\""));
        Type(Find<QWidget>(&form, "txtAddress1"), QStringLiteral("12 Quay Street"));
        Type(Find<QWidget>(&form, "txtCity"), QStringLiteral("Gull Rock"));
        Type(Find<QWidget>(&form, "txtPostcode"), QStringLiteral("04133"));
        Type(Find<QWidget>(&form, "txtEmail"), QStringLiteral("stay@harbourlights.example"));
        Type(Find<QWidget>(&form, "txtDiscount"), QStringLiteral("7.5"));
        album.Take("customer-record");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    ChooseFromMenu(window, "mnuCustomers", "mnuCustomerAdd", album, "add-customer-in-the-customers-menu");
    ClickToolbar(window, "Customers");
    ClickTitle(window.picCustomers->gcust, 1);
    album.Take("customers-by-address");
}

void FindThem(MainWindow& window, Album& album)
{
    At("frmFindCustomer", [&album](QDialog& form) {
        album.Take("find-customer");
        Type(Find<QWidget>(&form, "txtLastname"), QStringLiteral("Connor"));
        Type(Find<QWidget>(&form, "txtCity"), QStringLiteral("rock"));
        Click(Find<QPushButton>(&form, "cmdOk"));
        album.Take("customers-found");
        At("frmCustomer", [](QDialog& record) { Click(Find<QPushButton>(&record, "cmdCancel")); });
        DoubleClickRow(Find<FlexGrid>(&form, "gcust"), 1);
        Click(Find<QPushButton>(&form, "cmdCancel"));
    });
    ClickToolbar(window, "Find");
}

void AddAVendor(MainWindow& window, Album& album)
{
    ChooseFromMenu(window, "mnuVendors", "mnuVendorsView", album, "back-to-the-vendors");
    At("frmVendor", [&album](QDialog& form) {
        Type(Find<QWidget>(&form, "txtContactName"), QStringLiteral("Ødegård"));
        Type(Find<QWidget>(&form, "txtBusinessName"), QStringLiteral("Northern Lamps"));
        Type(Find<QWidget>(&form, "txtNotes"), QStringLiteral("Delivers on Tuesdays only."));
        album.Take("vendor-record");
        Click(Find<QPushButton>(&form, "cmdOk"));
    });
    Click(window.picVendors->cmdVendorNew);
    album.Take("vendors-with-the-new-one");
    ClickRow(window.picVendors->gVendors, 1);
    AnswerBox(album, "a-vendor-in-use-cannot-be-deleted", QMessageBox::Ok);
    Click(window.picVendors->cmdVendorDelete);
}

} // namespace

void KeepPeople(Program& program, Album& album)
{
    MainWindow& window = *program.Window();
    AddACustomer(window, album);
    FindThem(window, album);
    AddAVendor(window, album);
}
