#include "inventory_test.h"

namespace {

class CustomFieldsTest : public ItemFormTest {
protected:
    int Field(const QString& name, const QString& type, int pos)
    {
        Run(QString("INSERT INTO ItemCustomField (name, type, pos) VALUES ('%1', '%2', %3)").arg(name, type).arg(pos));
        return Single("SELECT MAX(id) FROM ItemCustomField").toInt();
    }
    void Option(int field, const QString& option)
    {
        Run(QString("INSERT INTO itemCustomFieldOption VALUES (%1, '%2')").arg(field).arg(option));
    }
    void Data(int item, int field, const QString& data)
    {
        Run(QString("INSERT INTO ItemCustomFieldData VALUES (NULL, %1, %2, '%3')").arg(item).arg(field).arg(data));
    }
    Table Stored() const { return Rows("SELECT ItemCustomFieldID, Data FROM ItemCustomFieldData ORDER BY 1"); }
    static QString Text(int number) { return QString::number(number); }
};

TEST_F(CustomFieldsTest, ControlsStandByPositionAndAreNumberedByKind)
{
    const int colour = Field("Colour", "ComboBox", 3);
    Option(colour, "red");
    Option(colour, "blue");
    Field("Sizes", "combobox", 5);
    Field("Heavy", "CheckBox", 2);
    Field("Note & more", "", 1);
    Field("Other", "memo", 4);
    Open(NewRow);

    EXPECT_EQ(Member<QLabel>("lblCustom_0")->text(), "Note && more:");
    EXPECT_EQ(Member<QLabel>("lblCustom_0")->buddy(), Member<TextBox>("txtCustom_0"));
    EXPECT_EQ(Member<QLabel>("lblCustom_1")->buddy(), Member<QCheckBox>("chkCustom_0"));
    EXPECT_EQ(Member<QCheckBox>("chkCustom_0")->text(), "");
    EXPECT_EQ(Entries(Member<ComboBox>("cboCustom_0")), QStringList({"blue", "red"}));
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "blue");
    EXPECT_EQ(Member<QLabel>("lblCustom_3")->buddy(), Member<TextBox>("txtCustom_1"));
    EXPECT_EQ(Member<QLabel>("lblCustom_4")->buddy(), Member<ComboBox>("cboCustom_1"));
    CheckForm(*form);
}

TEST_F(CustomFieldsTest, ValuesAreStoredAsTextAndShownAgain)
{
    const int heavy = Field("Heavy", "checkbox", 1);
    const int colour = Field("Colour", "combobox", 2);
    Option(colour, "blue");
    Option(colour, "it''s red");
    const int empty = Field("Empty", "combobox", 3);
    const int note = Field("Note", "text", 3);
    Open(NewRow);
    Click(Member<QCheckBox>("chkCustom_0"));
    Pick(Member<ComboBox>("cboCustom_0"), "it's red");
    Type(Member<TextBox>("txtCustom_0"), "O'Brien");
    SaveAndClose();

    EXPECT_EQ(
        Stored(), Table({{Text(heavy), "1"}, {Text(colour), "it's red"}, {Text(empty), ""}, {Text(note), "O'Brien"}}))
        << "a row that is added takes quotes";
    Open(gEditItemId);
    EXPECT_TRUE(Member<QCheckBox>("chkCustom_0")->isChecked());
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "it's red");
    EXPECT_EQ(Member<TextBox>("txtCustom_0")->text(), "O'Brien");

    Run("DELETE FROM itemCustomFieldOption WHERE option <> 'blue'");
    Open(gEditItemId);
    EXPECT_EQ(Member<ComboBox>("cboCustom_0")->Text(), "blue") << "an option that is gone falls back to the first";
}

TEST_F(CustomFieldsTest, AQuoteInAnUpdatedValueEndsTheProgramAfterTheItemWasWritten)
{
    const int note = Field("Note", "text", 1);
    const int later = Field("Later", "text", 2);
    const int item = Item("Saw").Add();
    Data(item, note, "old");
    Data(item, later, "old too");
    Open(item);
    Type(form->txtFields_5, "Sawblade");
    Type(Member<TextBox>("txtCustom_0"), "O'Brien");
    Type(Member<TextBox>("txtCustom_1"), "new");

    ExpectedEnd end;
    Click(form->cmdOk);
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(Stored(), Table({{Text(note), "old"}, {Text(later), "old too"}}));
    EXPECT_EQ(Single("SELECT name FROM item"), "Sawblade");
}

TEST_F(CustomFieldsTest, AnItemOlderThanAFieldShowsTheNextValueInItsPlaceUntilItIsSaved)
{
    const int first = Field("First", "text", 1);
    const int tick = Field("Tick", "checkbox", 2);
    const int second = Field("Second", "text", 3);
    const int item = Item("Saw").Add();
    Data(item, tick, "1");
    Data(item, second, "of second");
    Open(item);

    EXPECT_EQ(Member<TextBox>("txtCustom_0")->text(), "of second");
    EXPECT_EQ(Member<TextBox>("txtCustom_1")->text(), "");
    EXPECT_TRUE(Member<QCheckBox>("chkCustom_0")->isChecked()) << "each kind counts for itself";

    Type(Member<TextBox>("txtCustom_1"), "new second");
    SaveAndClose();
    EXPECT_EQ(Stored(), Table({{Text(first), "of second"}, {Text(tick), "1"}, {Text(second), "new second"}}));
    Open(item);
    EXPECT_EQ(Member<TextBox>("txtCustom_0")->text(), "of second");
    EXPECT_EQ(Member<TextBox>("txtCustom_1")->text(), "new second");
}

} // namespace
