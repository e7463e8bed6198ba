#include "parties/customer_commands.h"

#include "base/runtime_error.h"
#include "controls/message_box.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "parties/customer_record.h"

#include <QCoreApplication>

namespace {

/// The context of the texts.
class CustomerCommands {
    Q_DECLARE_TR_FUNCTIONS(CustomerCommands)
};

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
    frmCustomer::gEditCustomerId = NewRow;
    frmCustomer(parent).ShowModal();
}

void EditCustomer(qint64 customerId, QWidget* parent)
{
    if (!IsCustomer(customerId))
        return;
    frmCustomer::gEditCustomerId = qint16(ToInteger16(customerId));
    frmCustomer(parent).ShowModal();
}

bool DeleteCustomer(qint64 customerId)
{
    if (!IsCustomer(customerId))
        return false;
    if (HasInvoices(customerId)) {
        MsgBox(CustomerCommands::tr(
                   "This customer has existing invoices and cannot be deleted. To delete this customer first "
                   "delete all their invoices."),
            Icon::Critical, CustomerCommands::tr("Cannot delete customer."));
        return false;
    }
    if (MsgBox(CustomerCommands::tr("Delete customer?"), Icon::Question, Buttons::YesNo) == Answer::No)
        return false;
    gConnection->Execute(Sql("DELETE FROM customer WHERE id = {id}").Number("id", customerId));
    return true;
}
