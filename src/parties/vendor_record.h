#pragma once

#include "controls/form.h"
#include "parties/email_link.h"
#include "parties/party_fields.h"

#include <QPushButton>

/// Edits one vendor. OK writes the row whatever the boxes hold. The notes are stored with a new vendor only: of one
/// that exists they show, and a change of them is lost.
class frmVendor : public Form {
    Q_OBJECT
public:
    /// The vendor to edit, NewRow for a new one.
    static qint32 gEditVendorId;

    explicit frmVendor(QWidget* parent);

    CONTROL(TextBox, txtContactName);
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
    CONTROL(MultiLineTextBox, txtNotes);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    /// All boxes but the notes, the contact's name first.
    PartyFields Fields() const;
    void ShowStoredVendor();
    void Save();
    void UpdateVendor() const;
    void AddVendor() const;
};
