#include "inventory_test.h"

namespace {

class CustomFieldsTest : public ItemFormTest {
protected:
    /// Rows of (id, name, type, pos).
    void Fields(const char* rows) { Run(QString("INSERT INTO ItemCustomField VALUES ") + rows); }
    /// Rows of (field, option).
    void Options(const char* rows) { Run(QString("INSERT INTO itemCustomFieldOption VALUES ") + rows); }
    void Data(int item, int field, const QString& data)
    {
        Run(QString("INSERT INTO ItemCustomFieldData VALUES (NULL, %1, %2, '%3')").arg(item).arg(field).arg(data));
    }
    Table Stored() const { return Rows("SELECT ItemCustomFieldID, Data FROM ItemCustomFieldData ORDER BY 1"); }
};

TEST_F(CustomFieldsTest, ControlsStandByPositionAndAreNumberedByKind)
{
    Fields("(1, 'Colour', 'ComboBox', 3), (2, 'Sizes', 'combobox', 5), (3, 'Heavy', 'CheckBox', 2), "
           "(4, 'Note & more', '', 1), (5, 'Other', 'memo', 4)");
    Options("(1, 'red'), (1, 'blue')");
    Open(NewRow);

    EXPECT_EQ(Member<QLabel>("lblCustom_0")->text(), "Note && more:");
    EXPECT_EQ(Member<QCheckBox>("chkCustom_0")->text(), "");
    EXPECT_EQ(Entries(Member<ComboBox>("cboCustom_0")), QStringList({"blue", "red"}));
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "blue");
    QStringList buddies;
    for (int i = 0; i < 5; ++i)
        buddies.append(Member<QLabel>(qPrintable(QString("lblCustom_%1").arg(i)))->buddy()->objectName());
    EXPECT_EQ(buddies, QStringList({"txtCustom_0", "chkCustom_0", "cboCustom_0", "txtCustom_1", "cboCustom_1"}));
    CheckForm(*form);
}

TEST_F(CustomFieldsTest, ValuesAreStoredAsTextAndShownAgain)
{
    Fields("(1, 'Heavy', 'checkbox', 1), (2, 'Colour', 'combobox', 2), (3, 'Empty', 'combobox', 3), "
           "(4, 'Note', 'text', 3)");
    Options("(2, 'blue'), (2, 'it''s red')");
    Open(NewRow);
    Click(Member<QCheckBox>("chkCustom_0"));
    Pick(Member<ComboBox>("cboCustom_0"), "it's red");
    Type(Member<TextBox>("txtCustom_0"), "O'Brien");
    SaveAndClose();

    EXPECT_EQ(Stored(), Table({{"1", "1"}, {"2", "it's red"}, {"3", ""}, {"4", "O'Brien"}}))
        << "a row that is added takes quotes";
    Open(frmItemDetails::gEditItemId);
    EXPECT_TRUE(Member<QCheckBox>("chkCustom_0")->isChecked());
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "it's red");
    EXPECT_EQ(Member<TextBox>("txtCustom_0")->text(), "O'Brien");

    Run("DELETE FROM itemCustomFieldOption WHERE option <> 'blue'");
    Open(frmItemDetails::gEditItemId);
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "blue") << "an option that is gone falls back to the first";
}

TEST_F(CustomFieldsTest, FieldsDefinedWhileTheFormIsOpenWaitAndAQuoteInAnUpdatedValueEndsTheProgram)
{
    Fields("(1, 'Note', 'text', 1)");
    const int item = Item("Saw").Add();
    Open(item);
    Type(form->txtFields_5, "Sawblade");
    Type(Member<TextBox>("txtCustom_0"), "sharp");
    Fields("(2, 'Later', 'text', 2), (3, 'Tick', 'checkbox', 3), (4, 'Colour', 'combobox', 4)");
    SaveAndClose();
    EXPECT_EQ(Single("SELECT name FROM item"), "Sawblade");
    EXPECT_EQ(Stored(), Table({{"1", "sharp"}}));

    Data(item, 2, "old");
    Open(item);
    Type(form->txtFields_5, "Saw");
    Type(Member<TextBox>("txtCustom_0"), "O'Brien");
    Type(Member<TextBox>("txtCustom_1"), "new");
    const ExpectedEnd end;
    Click(form->cmdOk);
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(Stored(), Table({{"1", "sharp"}, {"2", "old"}}));
    EXPECT_EQ(Single("SELECT name FROM item"), "Saw") << "written before";
}

TEST_F(CustomFieldsTest, AnItemOlderThanAFieldShowsTheNextValueInItsPlaceUntilItIsSaved)
{
    Fields("(1, 'First', 'text', 1), (2, 'Tick', 'checkbox', 2), (3, 'Second', 'text', 3)");
    const int item = Item("Saw").Add();
    Data(item, 2, "1");
    Data(item, 3, "of second");
    Open(item);

    EXPECT_EQ(Member<TextBox>("txtCustom_0")->text(), "of second");
    EXPECT_EQ(Member<TextBox>("txtCustom_1")->text(), "");
    EXPECT_TRUE(Member<QCheckBox>("chkCustom_0")->isChecked()) << "each kind counts for itself";

    Type(Member<TextBox>("txtCustom_1"), "new second");
    SaveAndClose();
    EXPECT_EQ(Stored(), Table({{"1", "of second"}, {"2", "1"}, {"3", "new second"}}));
    Open(item);
    EXPECT_EQ(Member<TextBox>("txtCustom_1")->text(), "new second");
}

} // namespace
