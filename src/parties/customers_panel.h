#pragma once

#include "platform/flex_grid.h"
#include "platform/form.h"

#include <QPushButton>

#include <string>
#include <string_view>

/// The customer list of the main window.
class CustomersPanel : public Panel {
    Q_OBJECT
public:
    explicit CustomersPanel(QWidget* parent = nullptr);

    /// Refills the list and selects the row of `selectId`, else row number `row`. Throws RuntimeError when a statement
    /// fails or a customer's first name is Null.
    void RefreshCustomerList(int row, qint64 selectId);

    CONTROL(FlexGrid, gcust);
    CONTROL(QPushButton, cmdEditCustomer);
    CONTROL(QPushButton, cmdCreateCustomer);
    CONTROL(QPushButton, cmdDeleteCustomer);
};

/// "First Last (Business)" in UTF-8, with blanks and brackets only around what is there.
std::string CustomerName(std::string_view firstName, std::string_view lastName, std::string_view businessName);
