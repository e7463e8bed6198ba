#pragma once

#include "controls/form.h"
#include "controls/number_box.h"
#include "parties/email_link.h"
#include "parties/party_fields.h"

#include <QPushButton>

/// Edits one customer. OK writes the row whatever the boxes hold; a discount that is no number becomes 0.
class frmCustomer : public Form {
    Q_OBJECT
public:
    /// The customer to edit, NewRow for a new one. 16 bits wide: set it through ToInteger16.
    static qint16 gEditCustomerId;

    explicit frmCustomer(QWidget* parent);

    CONTROL(TextBox, txtFirstname);
    CONTROL(TextBox, txtLastname);
    CONTROL(TextBox, txtBusinessName);
    CONTROL(TextBox, txtAddress1);
    CONTROL(TextBox, txtAddress2);
    CONTROL(TextBox, txtCity);
    CONTROL(TextBox, txtState);
    CONTROL(TextBox, txtCountry);
    CONTROL(TextBox, txtPostcode);
    CONTROL(TextBox, txtPhone);
    CONTROL(TextBox, txtFax);
    CONTROL(TextBox, txtEmail);
    CONTROL(EmailLink, lblEmail);
    CONTROL(NumberBox, txtDiscount);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void ShowStoredCustomer();
    void Save();
    void UpdateCustomer() const;
    void AddCustomer() const;
};
