#include "config/categories.h"
#include "config/locations.h"
#include "config/tax_rates.h"
#include "support/form_test.h"

#include <QListWidget>
#include <QTest>

/// What all dialogs over key tables owe: the refusals and questions word for word and in their order, and a form that
/// asks for the name.

namespace {

/// One key table, as its dialog shows it.
struct KeyDialog {
    const char* table;
    std::function<std::unique_ptr<Form>(void)> open;
    const char* list; ///< the list or drop-down list of its rows
    const char* add;
    const char* edit;
    const char* remove;
    const char* form;
    const char* formTitle;

    const char* emptied; ///< leaves no row to select
    const char* row; ///< adds row 500, "Zeta", which the dialog selects when it opens
    const char* use; ///< lets something point at it
    const char* unuse;

    const char* nothingToEdit;
    const char* nothingToRemove;
    const char* inUse;
    const char* question;
    const char* nameMissing;
};

void PrintTo(const KeyDialog& dialog, std::ostream* out)
{
    *out << dialog.table;
}

template <typename Dialog>
std::unique_ptr<Form> Opened()
{
    return std::make_unique<Dialog>(nullptr);
}

const KeyDialog TaxRatesDialog{"taxrate", Opened<frmTaxRate>, "lstItems", "cmdAdd", "cmdEdit", "cmdRemove",
    "frmAddTaxRate", "Tax Rate Details", "DELETE FROM taxrate WHERE id <> 1",
    "INSERT INTO taxrate (id, name, percentage) VALUES (500, 'Zeta', 5)",
    "INSERT INTO item (name, TaxRateID) VALUES ('Saw', 500)", "DELETE FROM item",
    "No Tax Rate has been selected to edit. Please select a Tax Rate and try again.",
    "Please select a Tax Rate to remove.",
    "This Tax Rate is in use by one or more items and so cannot be deleted. To delete this Tax Rate first remove the "
    "items and then try again.",
    "Are you sure you want to delete this Tax Rate?", "Please enter a Tax Rate name to continue."};

const KeyDialog WarehousesDialog{"warehouse", Opened<frmLocations>, "cboWarehouses", "cmdCatAdd", "cmdCatEdit",
    "cmdCatRemove", "frmAddWarehouse", "Warehouse Details", "DELETE FROM warehouse",
    "INSERT INTO warehouse (id, name) VALUES (500, 'Zeta')",
    "INSERT INTO location (name, WarehouseID) VALUES ('Shelf', 500)", "DELETE FROM location WHERE id <> 1",
    "No Warehouse has been selected to edit. Please select a Warehouse and try again.",
    "Please select a Warehouse to remove.",
    "This Warehouse is in use by one or more locations and so cannot be deleted. To delete this Warehouse first remove "
    "the locations and then try again.",
    "Are you sure you want to delete this Warehouse?", "Please enter a Warehouse name to continue."};

const KeyDialog LocationsDialog{"location", Opened<frmLocations>, "lstItems", "cmdAdd", "cmdEdit", "cmdRemove",
    "frmAddLocation", "Location Details", "DELETE FROM location WHERE id <> 1",
    "INSERT INTO location (id, name, WarehouseID) VALUES (500, 'Zeta', 1)",
    "INSERT INTO item (name, LocationID) VALUES ('Saw', 500)", "DELETE FROM item",
    "No Location has been selected to edit. Please select a Location and try again.",
    "Please select a Location to remove.",
    "This Location is in use by one or more items and so cannot be deleted. To delete this Location first remove the "
    "items and then try again.",
    "Are you sure you want to delete this Location?", "Please enter a Location name to continue."};

const KeyDialog CategoriesDialog{"category", Opened<frmCategories>, "cboCategories", "cmdCatAdd", "cmdCatEdit",
    "cmdCatRemove", "frmAddCategory", "Category Details", "DELETE FROM category WHERE id <> 1",
    "INSERT INTO category (id, name) VALUES (500, 'Zeta')",
    "INSERT INTO subcategory (name, CategoryID) VALUES ('None', 500)", "DELETE FROM subcategory WHERE id <> 1",
    "No Category has been selected to edit. Please select a Category and try again.",
    "Please select a Category to remove.",
    "This Category is in use by one or more Sub-Categories and so cannot be deleted. To delete this Sub-Category first "
    "remove the Sub-Categories and then try again.",
    "Are you sure you want to delete this Category?", "Please enter a Category name to continue."};

const KeyDialog SubCategoriesDialog{"subcategory", Opened<frmCategories>, "lstItems", "cmdAdd", "cmdEdit", "cmdRemove",
    "frmAddSubCategory", "Sub-Category Details",
    "DELETE FROM subcategory WHERE id <> 1; INSERT INTO category (id, name) VALUES (400, 'Tools')",
    "INSERT INTO subcategory (id, name, CategoryID) VALUES (500, 'Zeta', 400)",
    "INSERT INTO item (name, SubCategoryID) VALUES ('Saw', 500)", "DELETE FROM item",
    "No Sub-Category has been selected to edit. Please select a Sub-Category and try again.",
    "Please select a Sub-Category to remove.",
    "This Sub-Category is in use by one or more items and so cannot be deleted. To delete this Sub-Category first "
    "remove the items and then try again.",
    "Are you sure you want to delete this Sub-Category?", "Please enter a Sub-Category name to continue."};

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
    void Press(const char* button) { Click(Find<QPushButton>(form.get(), button)); }
    QString Name() const { return Single(QStringLiteral("SELECT name FROM %1 WHERE id = 500").arg(GetParam().table)); }
    qint64 RowCount() const { return Count(GetParam().table); }
    /// The texts that the dialog lists.
    QStringList Listed() const
    {
        if (const auto* combo = form->findChild<QComboBox*>(GetParam().list))
            return Entries(combo);
        QStringList texts;
        const auto* list = Find<QListWidget>(form.get(), GetParam().list);
        for (int i = 0; i < list->count(); ++i)
            texts.append(list->item(i)->text());
        return texts;
    }
    void WhenDetailsShow(const std::function<void(NameForm&)>& visit)
    {
        WhenDialogShows(
            GetParam().form,
            [](QDialog* dialog) {
                return dialog->objectName() == QLatin1String(GetParam().form)
                    && dialog->windowTitle() == QLatin1String(GetParam().formTitle);
            },
            [visit](QDialog* dialog) { visit(dynamic_cast<NameForm&>(*dialog)); });
    }

    std::unique_ptr<Form> form;
    ScriptedAnswers answers;
};

} // namespace

TEST_P(KeyTablesTest, WithoutASelectionThereIsNothingToEditOrRemove)
{
    Run(GetParam().emptied);
    Open();
    answers.ExpectMessage(GetParam().nothingToEdit, Icon::Critical);
    Press(GetParam().edit);
    answers.ExpectMessage(GetParam().nothingToRemove, Icon::Critical);
    Press(GetParam().remove);
    if (auto* list = Find<QWidget>(form.get(), GetParam().list); qobject_cast<QListWidget*>(list)) {
        answers.ExpectMessage(GetParam().nothingToEdit, Icon::Critical);
        QTest::mouseDClick(qobject_cast<QListWidget*>(list)->viewport(), Qt::LeftButton);
    }
}

TEST_P(KeyTablesTest, ARowInUseIsRefusedAndAnotherGoesOnYesAlone)
{
    OpenOverOneRow();
    const qint64 before = RowCount();
    Run(GetParam().use);
    answers.ExpectMessage(GetParam().inUse, Icon::Critical);
    Press(GetParam().remove);
    Run(GetParam().unuse);

    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        answers.Expect(GetParam().question, Icon::Question, Buttons::YesNoCancel, answer);
        Press(GetParam().remove);
        EXPECT_EQ(RowCount(), before);
    }
    answers.Expect(GetParam().question, Icon::Question, Buttons::YesNoCancel, Answer::Yes);
    Press(GetParam().remove);
    EXPECT_EQ(RowCount(), before - 1);
    EXPECT_EQ(Name(), "");
    EXPECT_TRUE(Listed().filter("Zeta").isEmpty());
}

TEST_P(KeyTablesTest, ANewRowNeedsANameAndIsListed)
{
    OpenOverOneRow();
    const qint64 before = RowCount();
    WhenDetailsShow([&](NameForm& details) {
        CheckForm(details);
        EXPECT_EQ(details.txtName->text(), "");
        answers.ExpectMessage(GetParam().nameMissing, Icon::Critical);
        Click(details.cmdOK);
        EXPECT_TRUE(details.isVisible() && details.txtName->hasFocus());
        Type(details.txtName, QString::fromUtf8(" O'Brien's \"Süd\" [50%] "));
        ::Press(details.txtName, Qt::Key_Return);
    });
    Press(GetParam().add);
    EXPECT_EQ(RowCount(), before + 1);
    EXPECT_EQ(Listed().filter(QString::fromUtf8(" O'Brien's \"Süd\" [50%] ")).size(), 1);

    WhenDetailsShow([](NameForm& details) {
        Type(details.txtName, "Left");
        ::Press(details.txtName, Qt::Key_Escape);
    });
    Press(GetParam().add);
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
    Press(GetParam().edit);
    EXPECT_EQ(Name(), "ZETA");
    EXPECT_EQ(RowCount(), before);
    EXPECT_EQ(Listed().filter("ZETA").size(), 1);

    if (auto* list = dynamic_cast<QListWidget*>(Find<QWidget>(form.get(), GetParam().list))) {
        WhenDetailsShow([](NameForm& details) { Click(details.cmdCancel); });
        ::Press(list, Qt::Key_Return);
        // Beside the entries, where the selected one stays selected.
        WhenDetailsShow([](NameForm& details) { Click(details.cmdCancel); });
        QTest::mouseClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->viewport()->rect().bottomLeft());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, Qt::NoModifier, list->viewport()->rect().bottomLeft());
        WhenDetailsShow([](NameForm& details) {
            Type(details.txtName, "Left");
            Click(details.cmdCancel);
        });
        QTest::mouseDClick(
            list->viewport(), Qt::LeftButton, Qt::NoModifier, list->visualItemRect(list->item(0)).center());
    }
    EXPECT_EQ(Name(), "ZETA");
}

TEST_P(KeyTablesTest, ARowThatHasGoneIsReportedAndNotWrittenAnew)
{
    OpenOverOneRow();
    Run(QStringLiteral("DELETE FROM %1 WHERE id = 500").arg(GetParam().table));
    const qint64 before = RowCount();
    answers.ExpectMessage("Record not found.", Icon::None);
    WhenDetailsShow([](NameForm& details) {
        EXPECT_EQ(details.txtName->text(), "");
        Type(details.txtName, "Again");
        Click(details.cmdOK);
    });
    Press(GetParam().edit);
    EXPECT_EQ(RowCount(), before);
}

INSTANTIATE_TEST_SUITE_P(Dialogs, KeyTablesTest,
    ::testing::Values(TaxRatesDialog, WarehousesDialog, LocationsDialog, CategoriesDialog, SubCategoriesDialog),
    [](const auto& table) { return std::string(table.param.table); });
