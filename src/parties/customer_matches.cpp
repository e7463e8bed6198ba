#include "parties/customer_matches.h"

#include "parties/customer_texts.h"

#include <QCoreApplication>

namespace {

/// The fields of the statement.
enum { Id, FirstName, LastName, Address1, Address2 };

void AddName(const Recordset& customer, int firstName, GridFill& fill)
{
    fill.Add(FirstAndLastName(customer.Text(firstName), customer.Text(LastName)));
}

void AddAddress(const Recordset& customer, int address1, GridFill& fill)
{
    fill.Add(CustomerAddress(customer.Text(address1), customer.Text(Address2)));
}

class CustomerMatches {
    Q_DECLARE_TR_FUNCTIONS(CustomerMatches)
public:
    static QList<ListColumn> Columns(const CustomerMatchWidths& widths)
    {
        constexpr CellAlign Left = CellAlign::LeftCenter;
        return {
            {"firstname", tr("Name"), widths.name, Left, Left, NoOrder, Spare::No, AddName},
            {"address1", tr("Address"), widths.address, Left, Left, NoOrder, Spare::Always, AddAddress},
            {"postcode", tr("Postcode"), widths.postCode, Left, Left, NoOrder},
            {"phone", tr("Phone"), widths.phone, Left, Left, NoOrder},
        };
    }
};

} // namespace

QList<ListColumn> CustomerMatchColumns(const CustomerMatchWidths& widths)
{
    return CustomerMatches::Columns(widths);
}
