#include "parties/customers_panel.h"

#include "controls/hourglass.h"
#include "parties/customer_commands.h"
#include "parties/customer_record.h"
#include "parties/customer_texts.h"

namespace {

/// The fields of the list's statement.
enum { Id, FirstName, LastName, BusinessName, Address1, Address2 };

void AddName(const Recordset& customer, int firstName, GridFill& fill)
{
    // A first name is never Null in a row that the program wrote.
    if (customer.IsNull(firstName))
        throw InvalidUseOfNull();
    fill.Add(CustomerName(customer.Text(firstName), customer.Text(LastName), customer.Text(BusinessName)));
}

void AddAddress(const Recordset& customer, int address1, GridFill& fill)
{
    fill.Add(CustomerAddress(customer.Text(address1), customer.Text(Address2)));
}

} // namespace

CustomersPanel::CustomersPanel(QWidget* parent)
    : ListPanel("picCustomers", parent)
{
    cmdEditCustomer->setText(tr("View/Edit Customer"));
    cmdCreateCustomer->setText(tr("Add Customer"));
    cmdDeleteCustomer->setText(tr("Delete Customer"));
    gcust->setAccessibleName(tr("Customers"));

    gcust->SetColumns({
        {"firstname", tr("Name"), 2400, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder, Spare::No, AddName},
        {"address1", tr("Address"), 1600, CellAlign::CenterTop, CellAlign::LeftCenter, "address1", Spare::Always,
            AddAddress},
        {"postcode", tr("Zip/Postcode"), 1100, CellAlign::CenterTop, CellAlign::LeftCenter, "postcode"},
        {"phone", tr("Phone"), 1600, CellAlign::CenterTop, CellAlign::LeftCenter, "phone"},
    });

    TitleLabel()->setObjectName(QStringLiteral("Label1_14"));
    setLayout(column({
        head(tr("Customers"),
            tr("Instructions - you are currently viewing your customer list. This includes all customers you "
               "have invoiced or previously added. To sort by a column click it's title. For more details "
               "press F1 for help.")),
        gcust,
        ButtonBar("picCustBot", {stretch(), cmdEditCustomer, cmdCreateCustomer, cmdDeleteCustomer}),
    }));

    ShowList(gcust, {cmdEditCustomer, cmdCreateCustomer, cmdDeleteCustomer},
        [this](int row, qint64 selectId) { RefreshCustomerList(row, selectId); });
    On(cmdEditCustomer, &QPushButton::clicked, this, &CustomersPanel::EditSelected);
    On(cmdCreateCustomer, &QPushButton::clicked, this, &CustomersPanel::AddCustomer);
    On(cmdDeleteCustomer, &QPushButton::clicked, this, &CustomersPanel::DeleteSelected);
}

void CustomersPanel::RefreshCustomerList(int row, qint64 selectId)
{
    const Hourglass hourglass(tr("Reading the customers..."));
    gConnection->Execute("SELECT count(*) FROM customer").Close();
    gcust->Load(
        gcust->Ordered(QStringLiteral("SELECT id, firstname, lastname, businessname, address1, address2, postcode, "
                                      "phone FROM customer "),
            "ORDER BY lastname, firstname"),
        row, selectId);
}

void CustomersPanel::AddCustomer()
{
    gcust->ShowAdded([this] {
        ::AddCustomer(window());
        RefreshCustomerList(1, 0);
    });
}

void CustomersPanel::EditSelected()
{
    if (gcust->HidesAllRows())
        return gcust->setFocus();
    // Where no customer is selected the last one edited is.
    EditCustomer(gcust->CurrentRowData(), window());
    RefreshCustomerList(1, frmCustomer::gEditCustomerId);
}

void CustomersPanel::DeleteSelected()
{
    if (DeleteCustomer(gcust->CurrentRowData(), gcust->CellText(gcust->Row(), "firstname")))
        LoadInPlace();
}
