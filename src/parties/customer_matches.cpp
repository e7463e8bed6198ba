#include "parties/customer_matches.h"

#include "parties/customer_texts.h"

std::optional<qint64> AddMatchCells(const Recordset& customer, GridFill& fill)
{
    enum { Id, FirstName, LastName, Address1, Address2, PostCode, Phone };
    fill.Add(FirstAndLastName(customer.Text(FirstName), customer.Text(LastName)));
    fill.Add(CustomerAddress(customer.Text(Address1), customer.Text(Address2)));
    fill.Add(customer.Text(PostCode));
    fill.Add(customer.Text(Phone));
    return customer.Long(Id);
}
