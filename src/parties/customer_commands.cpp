#include "parties/customer_commands.h"

#include "base/runtime_error.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "parties/customer_record.h"

namespace {

bool IsCustomer(qint64 customerId)
{
    return customerId != 0 && customerId != NewRow;
}

bool HasInvoices(qint64 customerId)
{
    const Sql invoices =
        Sql("SELECT count(*) FROM customer, invoice WHERE invoice.customerid = customer.id AND customer.id={id} ")
            .Number("id", customerId);
    return gConnection->Execute(invoices)[0].ToLong() > 0;
}

} // namespace

void AddCustomer(QWidget* parent)
{
    gEditCustomerId = NewRow;
    frmCustomer(parent).ShowModal();
}

void EditCustomer(qint64 customerId, QWidget* parent)
{
    if (!IsCustomer(customerId))
        return;
    gEditCustomerId = qint16(ToInteger16(customerId));
    frmCustomer(parent).ShowModal();
}

bool DeleteCustomer(qint64 customerId)
{
    if (!IsCustomer(customerId))
        return false;
    if (HasInvoices(customerId)) {
        MsgBox(QObject::tr("This customer has existing invoices and cannot be deleted. To delete this customer first "
                           "delete all their invoices."),
            Icon::Critical, QObject::tr("Cannot delete customer."));
        return false;
    }
    if (MsgBox(QObject::tr("Delete customer?"), Icon::Question, Buttons::YesNo) == Answer::No)
        return false;
    gConnection->Execute(Sql("DELETE FROM customer WHERE id = {id}").Number("id", customerId));
    return true;
}
