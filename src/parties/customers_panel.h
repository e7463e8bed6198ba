#pragma once

#include "records/list_panel.h"

#include <QPushButton>

/// The customer list of the main window.
class CustomersPanel : public ListPanel {
    Q_OBJECT
public:
    explicit CustomersPanel(QWidget* parent = nullptr);

    /// Refills the list and selects the row of `selectId`, else row number `row`. Throws RuntimeError when a statement
    /// fails or a customer's first name is Null.
    void RefreshCustomerList(int row, qint64 selectId);

    /// Shows the customer record for a new customer and reloads the list.
    void AddCustomer();

    CONTROL(RecordList, gcust);
    CONTROL(QPushButton, cmdEditCustomer);
    CONTROL(QPushButton, cmdCreateCustomer);
    CONTROL(QPushButton, cmdDeleteCustomer);

private:
    void EditSelected();
    void DeleteSelected();
};
