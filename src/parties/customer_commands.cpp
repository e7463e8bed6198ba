#include "parties/customer_commands.h"

#include "base/runtime_error.h"
#include "db/new_row.h"
#include "parties/customer_record.h"
#include "records/row_deletion.h"

#include <QCoreApplication>

namespace {

/// The context of the texts.
class CustomerCommands {
    Q_DECLARE_TR_FUNCTIONS(CustomerCommands)
};

} // namespace

void AddCustomer(QWidget* parent)
{
    frmCustomer::gEditCustomerId = NewRow;
    frmCustomer(parent).ShowModal();
}

void EditCustomer(qint64 customerId, QWidget* parent)
{
    if (customerId == 0 || customerId == NewRow)
        return;
    frmCustomer::gEditCustomerId = qint16(ToInteger16(customerId));
    frmCustomer(parent).ShowModal();
}

bool DeleteCustomer(qint64 customerId, const QString& name)
{
    const RowDeletion deletion{
        .uses = "SELECT count(*) FROM customer, invoice WHERE invoice.customerid = customer.id AND customer.id={id} ",
        .inUse = CustomerCommands::tr("This customer has existing invoices and cannot be deleted. To delete this "
                                      "customer first delete all their invoices."),
        .inUseTitle = CustomerCommands::tr("Cannot delete customer."),
        .question = CustomerCommands::tr("Delete customer?"),
        .remove = "DELETE FROM customer WHERE id = {id}",
        .done = CustomerCommands::tr("Customer %1 deleted").arg(name),
    };
    return DeleteRecord(deletion, customerId);
}
