#include "parties/customers_panel.h"

#include "controls/layout.h"
#include "parties/customer_commands.h"
#include "parties/customer_record.h"
#include "parties/customer_texts.h"
#include "records/lists.h"

namespace {

/// One a column; the name's is the default order.
const QStringList& SortExpressions()
{
    static const QStringList expressions{
        QString(), QStringLiteral("address1"), QStringLiteral("postcode"), QStringLiteral("phone")};
    return expressions;
}

std::optional<qint64> AddCustomerCells(const Recordset& row, GridFill& fill)
{
    enum { Id, FirstName, LastName, BusinessName, Address1, Address2, PostCode, Phone };
    // A first name is never Null in a row that the program wrote.
    if (row.IsNull(FirstName))
        throw InvalidUseOfNull();
    fill.Add(CustomerName(row.Text(FirstName), row.Text(LastName), row.Text(BusinessName)));
    fill.Add(CustomerAddress(row.Text(Address1), row.Text(Address2)));
    fill.Add(row.Text(PostCode));
    fill.Add(row.Text(Phone));
    return row.Long(Id);
}

} // namespace

CustomersPanel::CustomersPanel(QWidget* parent)
    : Panel("picCustomers", parent)
{
    cmdEditCustomer->setText(tr("View/Edit Customer"));
    cmdCreateCustomer->setText(tr("Add Customer"));
    cmdDeleteCustomer->setText(tr("Delete Customer"));
    gcust->setAccessibleName(tr("Customers"));

    gcust->SetCols(int(SortExpressions().size()));
    for (int col = 0; col < gcust->Cols(); ++col)
        gcust->SetColAlignment(col, CellAlign::LeftCenter);

    auto* buttonBar = new QWidget;
    buttonBar->setObjectName(QStringLiteral("picCustBot"));
    buttonBar->setLayout(row({stretch(), cmdEditCustomer, cmdCreateCustomer, cmdDeleteCustomer}));
    buttonBar->layout()->setContentsMargins(0, 0, 0, 0);

    setLayout(column({
        head(tr("Customers"),
            tr("Instructions - you are currently viewing your customer list. This includes all customers you "
               "have invoiced or previously added. To sort by a column click it's title. For more details "
               "press F1 for help.")),
        gcust,
        buttonBar,
    }));

    On(gcust, &FlexGrid::Click, this,
        [this] { SortOnTitleClick(gcust, SortExpressions(), [this] { RefreshCustomerList(gcust->Row(), 0); }); });
    On(gcust, &FlexGrid::DblClick, this, [this] {
        if (gcust->MouseRow() != 0)
            EditSelected();
    });
    On(cmdEditCustomer, &QPushButton::clicked, this, &CustomersPanel::EditSelected);
    On(cmdCreateCustomer, &QPushButton::clicked, this, &CustomersPanel::AddCustomer);
    On(cmdDeleteCustomer, &QPushButton::clicked, this, &CustomersPanel::DeleteSelected);
}

void CustomersPanel::RefreshCustomerList(int row, qint64 selectId)
{
    gConnection->Execute("SELECT count(*) FROM customer").Close();
    LoadList(gcust,
        Ordered(QStringLiteral("SELECT id, firstname, lastname, businessname, address1, address2, postcode, phone FROM "
                               "customer "),
            gcust, QStringLiteral("ORDER BY lastname, firstname")),
        row, selectId, AddCustomerCells);
}

void CustomersPanel::AddCustomer()
{
    ::AddCustomer(window());
    RefreshCustomerList(1, 0);
}

void CustomersPanel::EditSelected()
{
    // Where no customer is selected the last one edited is.
    EditCustomer(gcust->CurrentRowData(), window());
    RefreshCustomerList(1, gEditCustomerId);
}

void CustomersPanel::DeleteSelected()
{
    if (DeleteCustomer(gcust->CurrentRowData()))
        RefreshCustomerList(gcust->Row(), 0);
}
