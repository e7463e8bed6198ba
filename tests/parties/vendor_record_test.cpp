#include "parties/vendor_record.h"
#include "support/test.h"

namespace {

class VendorRecordTest : public FormTest<frmVendor> {
protected:
    void Open(int vendorId)
    {
        frmVendor::gEditVendorId = vendorId;
        FormTest::Open();
    }
    Table Stored() const
    {
        return Rows("SELECT ContactName, BusinessName, Address1, Address2, City, State, Country, PostCode, Phone, Fax, "
                    "Email, Notes FROM vendor WHERE id <> 1");
    }
};

} // namespace

TEST_F(VendorRecordTest, NotesAreKeptWithANewVendorAndAChangeOfThemIsLost)
{
    Open(NewRow);
    CheckForm(*form);
    for (QWidget* box : form->Controls())
        if (qobject_cast<QLineEdit*>(box))
            Type(box, box->objectName().mid(3) + "'s");
    Type(form->txtNotes, "O'Ring\nround");
    EXPECT_TRUE(form->isVisible()) << "Enter makes a line";
    Click(form->cmdOk);
    QStringList stored{"ContactName's", "BusinessName's", "Address1's", "Address2's", "City's", "State's", "Country's",
        "Postcode's", "Phone's", "Fax's", "Email's", "O'Ring\nround"};
    EXPECT_EQ(Stored(), Table({stored}));

    Open(Single("SELECT MAX(id) FROM vendor").toInt());
    answers.ExpectLink("mailto:Email's");
    Click(form->lblEmail);
    EXPECT_EQ(form->txtNotes->Text(), "O'Ring\nround");
    Type(form->txtNotes, "square");
    Type(form->txtCity, "Cork");
    Press(form->txtCity, Qt::Key_Return);
    EXPECT_FALSE(form->isVisible());
    stored[4] = "Cork";
    EXPECT_EQ(Stored(), Table({stored}));

    Open(0);
    QString told;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, form.get(), [&told](const QString& text) { told = text; });
    Click(form->cmdOk);
    EXPECT_EQ(told, "") << "no row was saved";
}
