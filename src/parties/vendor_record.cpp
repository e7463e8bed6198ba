#include "parties/vendor_record.h"

#include "controls/layout.h"
#include "controls/status_line.h"
#include "controls/window_place.h"
#include "db/connection.h"
#include "db/new_row.h"
#include "sql/schema.h"

namespace {

constexpr int FormWidth = 620;
constexpr int FormHeight = 400;

} // namespace

qint32 frmVendor::gEditVendorId = NewRow;

frmVendor::frmVendor(QWidget* parent)
    : Form("frmVendor", tr("Vendor Details"), parent)
{
    lblEmail->WriteTo(txtEmail);
    cmdOk->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    auto* notesLabel = new QLabel(tr("Notes:"));
    SetLabelOf(notesLabel, txtNotes);

    setLayout(column({
        fieldColumns({
            {{tr("Contact Name:"), txtContactName}, {tr("Business Name:"), txtBusinessName},
                {tr("Address:"), txtAddress1}, {tr("Address:"), txtAddress2}, {tr("City:"), txtCity},
                {tr("State:"), txtState}},
            {{tr("Country:"), txtCountry}, {tr("Zip/Post Code:"), txtPostcode}, {tr("Phone:"), txtPhone},
                {tr("Fax:"), txtFax}, {tr("Email:"), row({txtEmail, lblEmail})}},
        }),
        notesLabel,
        txtNotes,
        row({stretch(), cmdOk, cmdCancel}),
    }));
    txtBusinessName->setMaxLength(LongestName);
    cmdOk->setDefault(true);
    SetCancelButton(cmdCancel);
    resize(GrownWithFont(FormWidth, FormHeight));

    if (gEditVendorId != NewRow)
        ShowStoredVendor();

    On(cmdOk, &QPushButton::clicked, this, &frmVendor::Save);
}

PartyFields frmVendor::Fields() const
{
    const PartyFields contact{{"ContactName", "contact", txtContactName}};
    const PartyFields further{{"Fax", "fax", txtFax}, {"BusinessName", "business", txtBusinessName}};
    return contact + AddressFields(*this) + further;
}

void frmVendor::ShowStoredVendor()
{
    const Recordset vendor = gConnection->Execute(
        Sql("SELECT ID, ContactName, Address1, Address2, City, State, PostCode, Country, Phone, Email, BusinessName, "
            "Fax, Notes FROM Vendor WHERE ID = {gEditVendorId}")
            .Number("gEditVendorId", gEditVendorId));
    if (vendor.Eof())
        return;
    ShowTexts(ReadTexts(vendor), Fields());
    txtNotes->SetText(NullToText(vendor["Notes"]));
}

void frmVendor::Save()
{
    if (gEditVendorId == NewRow)
        AddVendor();
    else
        UpdateVendor();
    accept();
    // From an empty list the record opens for vendor 0, and the update hits no row.
    if (gEditVendorId != 0)
        ShowStatus(tr("Vendor %1 saved").arg(txtBusinessName->text()));
}

void frmVendor::UpdateVendor() const
{
    Sql update("UPDATE Vendor SET ContactName = '{contact}', Fax = '{fax}', Address1 = '{a1}', Address2 = '{a2}', "
               "City = '{city}', State = '{state}', PostCode = '{post}', Country = '{country}', Phone = '{phone}', "
               "Email = '{email}', BusinessName = '{business}'  WHERE ID={gEditVendorId};");
    gConnection->Execute(FillFields(update, Fields()).Number("gEditVendorId", gEditVendorId));
}

void frmVendor::AddVendor() const
{
    const PartyFields fields = Fields();
    AddRow vendor(*gConnection, "Vendor");
    vendor.AddNew();
    SetFields(vendor, fields.first(1));
    vendor.Set("notes", txtNotes->Text());
    SetFields(vendor, fields.sliced(1));
    vendor.Update();
}
