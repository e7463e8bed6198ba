#include "parties/customer_record.h"

#include "base/numbers.h"
#include "controls/layout.h"
#include "controls/status_line.h"
#include "controls/window_place.h"
#include "db/connection.h"
#include "db/new_row.h"

namespace {

constexpr int FormWidth = 620;
constexpr QLatin1String NoDiscount("0");

} // namespace

qint16 frmCustomer::gEditCustomerId = NewRow;

frmCustomer::frmCustomer(QWidget* parent)
    : Form("frmCustomer", tr("Customer Details"), parent)
{
    lblEmail->WriteTo(txtEmail);
    cmdOk->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));

    setLayout(column({
        fieldColumns({
            {{tr("First Name:"), txtFirstname}, {tr("Last Name:"), txtLastname},
                {tr("Business Name:"), txtBusinessName}, {tr("Address:"), txtAddress1}, {tr("Address:"), txtAddress2},
                {tr("City:"), txtCity}, {tr("State:"), txtState}},
            {{tr("Country:"), txtCountry}, {tr("Zip/Post Code:"), txtPostcode}, {tr("Phone:"), txtPhone},
                {tr("Fax:"), txtFax}, {tr("Email:"), row({txtEmail, lblEmail})}, {tr("Discount:"), txtDiscount}},
        }),
        stretch(),
        row({stretch(), cmdOk, cmdCancel}),
    }));
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    resize(GrownWithFont(FormWidth, 0).width(), sizeHint().height());

    if (gEditCustomerId == NewRow)
        txtDiscount->setText(NoDiscount);
    else
        ShowStoredCustomer();

    On(cmdOk, &QPushButton::clicked, this, &frmCustomer::Save);
}

void frmCustomer::ShowStoredCustomer()
{
    const Recordset customer = gConnection->Execute(
        Sql("SELECT ID, fax, FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Email, "
            "BusinessName, Discount FROM Customer WHERE ID = {gEditCustomerId}")
            .Number("gEditCustomerId", gEditCustomerId));
    if (customer.Eof())
        return;
    ShowTexts(ReadTexts(customer), CustomerFields(*this));
    const Value discount = customer["Discount"];
    txtDiscount->setText(discount.IsNull() ? QString(NoDiscount) : discount.ToText());
}

void frmCustomer::Save()
{
    if (!IsNumeric(txtDiscount->text()))
        txtDiscount->setText(NoDiscount);
    if (gEditCustomerId == NewRow)
        AddCustomer();
    else
        UpdateCustomer();
    accept();
    const QString name = QStringLiteral("%1 %2").arg(txtFirstname->text(), txtLastname->text()).trimmed();
    ShowStatus(tr("Customer %1 saved").arg(name.isEmpty() ? txtBusinessName->text() : name));
}

void frmCustomer::UpdateCustomer() const
{
    Sql update("UPDATE Customer SET FirstName = '{first}', LastName = '{last}', Address1 = '{a1}', Address2 = '{a2}', "
               "City = '{city}', State = '{state}', PostCode = '{post}', Country = '{country}', Phone = '{phone}', "
               "Email = '{email}', Fax = '{fax}', Discount = {discount}, BusinessName = '{business}'  "
               "WHERE ID={gEditCustomerId};");
    gConnection->Execute(FillFields(update, CustomerFields(*this))
                             .Raw("discount", txtDiscount->text())
                             .Number("gEditCustomerId", gEditCustomerId));
}

void frmCustomer::AddCustomer() const
{
    AddRow customer(*gConnection, "Customer");
    customer.AddNew();
    SetFields(customer, CustomerFields(*this));
    customer.Set("Discount", txtDiscount->text());
    customer.Update();
}
