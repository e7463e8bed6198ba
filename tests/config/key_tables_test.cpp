#include "config/categories.h"
#include "config/locations.h"
#include "config/tax_rates.h"
#include "support/test.h"

/// What all dialogs over key tables owe: the refusals and questions word for word and in their order, and a form that
/// asks for the name.

namespace {

template <typename Dialog>
std::unique_ptr<Form> Opened()
{
    return std::make_unique<Dialog>(nullptr);
}

/// One key table, as its dialog shows it.
struct KeyDialog {
    const char* table;
    std::unique_ptr<Form> (*open)();
    const char* noun;
    const char* users; ///< what points at its rows
    const char* emptied; ///< leaves no row to select
    const char* row; ///< adds row 500, "Zeta", which the dialog selects when it opens
    const char* use; ///< lets something point at it
    const char* unuse;
    const char* groups = nullptr; ///< the drop-down list of a table that is the upper one of its dialog
    const char* nounAsMisspelt = noun; ///< in the second half of the refusal of a row in use

    /// "cmdAdd", or "cmdCatAdd" for the upper table.
    std::string Button(const char* what) const { return std::string(groups ? "cmdCat" : "cmd") + what; }
    QString DetailsName() const { return QStringLiteral("frmAdd") + QString(noun).remove(' ').remove('-'); }

    /// A message with its nouns: %1 of the row, %2 of what uses it, %3 of the row as it is misspelt there.
    QString Said(const char* message) const { return QString(message).arg(noun, users, nounAsMisspelt); }
};

void PrintTo(const KeyDialog& dialog, std::ostream* out)
{
    *out << dialog.table;
}

const KeyDialog Dialogs[] = {
    {"taxrate", Opened<frmTaxRate>, "Tax Rate", "items", "DELETE FROM taxrate WHERE id <> 1",
        "INSERT INTO taxrate (id, name, percentage) VALUES (500, 'Zeta', 5)",
        "INSERT INTO item (name, TaxRateID) VALUES ('Saw', 500)", "DELETE FROM item"},
    {"warehouse", Opened<frmLocations>, "Warehouse", "locations", "DELETE FROM warehouse",
        "INSERT INTO warehouse (id, name) VALUES (500, 'Zeta')",
        "INSERT INTO location (name, WarehouseID) VALUES ('Shelf', 500)", "DELETE FROM location WHERE id <> 1",
        "cboWarehouses"},
    {"location", Opened<frmLocations>, "Location", "items", "DELETE FROM location WHERE id <> 1",
        "INSERT INTO location (id, name, WarehouseID) VALUES (500, 'Zeta', 1)",
        "INSERT INTO item (name, LocationID) VALUES ('Saw', 500)", "DELETE FROM item"},
    {"category", Opened<frmCategories>, "Category", "Sub-Categories", "DELETE FROM category WHERE id <> 1",
        "INSERT INTO category (id, name) VALUES (500, 'Zeta')",
        "INSERT INTO subcategory (name, CategoryID) VALUES ('None', 500)", "DELETE FROM subcategory WHERE id <> 1",
        "cboCategories", "Sub-Category"},
    {"subcategory", Opened<frmCategories>, "Sub-Category", "items",
        "DELETE FROM subcategory WHERE id <> 1; INSERT INTO category (id, name) VALUES (400, 'Tools')",
        "INSERT INTO subcategory (id, name, CategoryID) VALUES (500, 'Zeta', 400)",
        "INSERT INTO item (name, SubCategoryID) VALUES ('Saw', 500)", "DELETE FROM item"},
};

class KeyTablesTest : public DatabaseTest, public ::testing::WithParamInterface<KeyDialog> {
protected:
    void Open()
    {
        form = GetParam().open();
        Shown(form.get());
    }
    /// Opens the dialog over row 500 alone, which it selects.
    void OpenOverOneRow()
    {
        Run(GetParam().emptied);
        Run(GetParam().row);
        Open();
    }
    void Press(const char* button) { Click(Find<QPushButton>(form.get(), GetParam().Button(button).c_str())); }
    QListWidget* List() const { return GetParam().groups ? nullptr : Find<QListWidget>(form.get(), "lstItems"); }
    QString Name() const { return Single(QStringLiteral("SELECT name FROM %1 WHERE id = 500").arg(GetParam().table)); }
    qint64 RowCount() const { return Count(GetParam().table); }
    /// The texts that the dialog lists.
    QStringList Listed() const
    {
        if (GetParam().groups)
            return Entries(Find<QComboBox>(form.get(), GetParam().groups));
        return Entries(List());
    }
    void WhenDetailsShow(const std::function<void(NameForm&)>& visit)
    {
        WhenDialogShows(
            GetParam().noun,
            [](QDialog* dialog) {
                return dialog->objectName() == GetParam().DetailsName()
                    && dialog->windowTitle() == GetParam().noun + QStringLiteral(" Details");
            },
            [visit](QDialog* dialog) { visit(dynamic_cast<NameForm&>(*dialog)); });
    }

    std::unique_ptr<Form> form;
    ScriptedAnswers answers;
};

} // namespace

TEST_P(KeyTablesTest, WithoutASelectionThereIsNothingToEditOrRemoveAndARowThatHasGoneIsNotWrittenAnew)
{
    const QString nothingToEdit = GetParam().Said("No %1 has been selected to edit. Please select a %1 and try again.");
    Run(GetParam().emptied);
    Open();
    const QString add = Find<QPushButton>(form.get(), GetParam().Button("Add").c_str())->text().remove('&');
    EXPECT_EQ(Find<QListWidget>(form.get(), "lstItems")->accessibleDescription(),
        "There is nothing to show. Press \"" + add + "\" to begin.");
    answers.ExpectMessage(nothingToEdit, Icon::Critical);
    Press("Edit");
    answers.ExpectMessage(GetParam().Said("Please select a %1 to remove."), Icon::Critical);
    Press("Remove");
    if (List()) {
        answers.ExpectMessage(nothingToEdit, Icon::Critical);
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton);
    }
    Run(GetParam().row);
    Open();
    Run(QStringLiteral("DELETE FROM %1 WHERE id = 500").arg(GetParam().table));
    const qint64 before = RowCount();
    answers.ExpectMessage("Record not found.", Icon::None);
    WhenDetailsShow([](NameForm& details) {
        EXPECT_EQ(details.txtName->text(), "");
        Type(details.txtName, "Again");
        Click(details.cmdOK);
    });
    Press("Edit");
    EXPECT_EQ(RowCount(), before);
}

TEST_P(KeyTablesTest, ARowInUseIsRefusedAndAnotherGoesOnYesAlone)
{
    const QString question = GetParam().Said("Are you sure you want to delete this %1?");
    const QString inUse = GetParam().Said("This %1 is in use by one or more %2 and so cannot be deleted. To delete "
                                          "this %3 first remove the %2 and then try again.");
    OpenOverOneRow();
    const qint64 before = RowCount();
    Run(GetParam().use);
    answers.ExpectMessage(inUse, Icon::Critical);
    Press("Remove");
    Run(GetParam().unuse);

    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        answers.Expect(question, Icon::Question, Buttons::YesNoCancel, answer);
        Press("Remove");
        EXPECT_EQ(RowCount(), before);
    }
    answers.Expect(question, Icon::Question, Buttons::YesNoCancel, Answer::Yes);
    Press("Remove");
    EXPECT_EQ(RowCount(), before - 1);
    EXPECT_EQ(Name(), "");
    EXPECT_TRUE(Listed().filter("Zeta").isEmpty());
}

TEST_P(KeyTablesTest, ANewRowNeedsANameAndIsListed)
{
    OpenOverOneRow();
    const qint64 before = RowCount();
    const QString odd = " O'Brien's \"Süd\" [50%] ";
    WhenDetailsShow([&](NameForm& details) {
        CheckForm(details);
        EXPECT_EQ(details.txtName->text(), "");
        answers.ExpectMessage(GetParam().Said("Please enter a %1 name to continue."), Icon::Critical);
        Click(details.cmdOK);
        EXPECT_TRUE(details.isVisible() && details.txtName->hasFocus());
        Type(details.txtName, odd);
        ::Press(details.txtName, Qt::Key_Return);
    });
    Press("Add");
    EXPECT_EQ(RowCount(), before + 1);
    EXPECT_EQ(Listed().filter(odd).size(), 1);

    WhenDetailsShow([](NameForm& details) {
        Type(details.txtName, "Left");
        ::Press(details.txtName, Qt::Key_Escape);
    });
    Press("Add");
    EXPECT_EQ(RowCount(), before + 1);
}

TEST_P(KeyTablesTest, EditingRenamesTheSelectedRowAlone)
{
    OpenOverOneRow();
    const qint64 before = RowCount();
    WhenDetailsShow([](NameForm& details) {
        EXPECT_EQ(details.txtName->text(), "Zeta");
        Type(details.txtName, "ZETA");
        Click(details.cmdOK);
    });
    Press("Edit");
    EXPECT_EQ(Name(), "ZETA");
    EXPECT_EQ(RowCount(), before);
    EXPECT_EQ(Listed().filter("ZETA").size(), 1);

    QWidget* const rows = GetParam().groups ? Find<QWidget>(form.get(), GetParam().groups) : List();
    for (const Qt::Key key : {Qt::Key_F2, Qt::Key_Insert}) {
        WhenDetailsShow([key](NameForm& details) {
            EXPECT_EQ(details.txtName->text(), key == Qt::Key_F2 ? "ZETA" : "");
            Click(details.cmdCancel);
        });
        ::Press(rows, key);
    }
    answers.Expect(GetParam().Said("Are you sure you want to delete this %1?"), Answer::No);
    ::Press(rows, Qt::Key_Delete);
    if (QListWidget* list = List()) {
        WhenDetailsShow([](NameForm& details) { Click(details.cmdCancel); });
        ::Press(list, Qt::Key_Return);
        // On the entry, and beside it, where it stays selected.
        for (const QPoint spot :
            {list->visualItemRect(list->item(0)).center(), list->viewport()->rect().bottomLeft()}) {
            WhenDetailsShow([](NameForm& details) {
                Type(details.txtName, "Left");
                Click(details.cmdCancel);
            });
            QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
            QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, spot);
        }
    }
    EXPECT_EQ(Name(), "ZETA");
}

INSTANTIATE_TEST_SUITE_P(Dialogs, KeyTablesTest, ::testing::ValuesIn(Dialogs),
    [](const auto& table) { return std::string(table.param.table); });
