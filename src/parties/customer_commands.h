#pragma once

#include <QWidget>

/// What a list of customers does with them. The list is reloaded by whoever shows it.

/// Shows the customer record, over `parent`, for a new customer.
void AddCustomer(QWidget* parent);
/// Shows the customer record. Does nothing for an id of 0 or -1, which is no customer; throws Overflow for one above
/// 32767.
void EditCustomer(qint64 customerId, QWidget* parent);
/// Deletes the customer after asking. Returns false, having written nothing, for an id of 0 or -1, after telling that
/// the customer has invoices, and when the user said no. `name` is for the status line.
bool DeleteCustomer(qint64 customerId, const QString& name);
