#include "config/categories.h"
#include "config/locations.h"
#include "support/test.h"

/// What is particular to warehouses with their locations and to categories with their sub-categories.

namespace {

template <typename DetailsForm>
void AwaitName(const QString& name)
{
    WhenFormShows<DetailsForm>([name](DetailsForm& details) {
        Type(details.txtName, name);
        Click(details.cmdOK);
    });
}

class LocationsTest : public FormTest<frmLocations> { };
class CategoriesTest : public FormTest<frmCategories> { };

} // namespace

TEST_F(LocationsTest, TheDefaultWarehouseIsRenamedAndNeverRemoved)
{
    Open();
    CheckForm(*form, {}, "AER");
    EXPECT_EQ(form->cboGroups->objectName(), "cboWarehouses");
    AwaitName<frmAddWarehouse>("Zentrallager");
    Click(form->cmdCatEdit);
    EXPECT_EQ(Rows("SELECT id, name FROM warehouse"), Table({{"1", "Zentrallager"}}));

    // Being the default is told before being in use.
    LocationRow(1, "Shelf");
    answers.ExpectMessage(
        "The default warehouse cannot be deleted. To change this warehouse click Edit.", Icon::Critical);
    Click(form->cmdCatRemove);
    EXPECT_EQ(Count("warehouse"), 1);
}

TEST_F(LocationsTest, EachWarehouseShowsItsOwnLocationsAndKeepsThem)
{
    const int south = WarehouseRow("Süd");
    const int loud = WarehouseRow("SÜD");
    LocationRow(south, "Bin 2");
    LocationRow(south, "Bin 1");
    LocationRow(loud, "Ramp");
    Open();
    EXPECT_TRUE(Entries(form->lstItems).isEmpty());

    SelectComboByData(form->cboGroups, south);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Bin 1", "Bin 2"}));
    EXPECT_EQ(form->lstItems->currentRow(), 0);
    AwaitName<frmAddLocation>("Bin 3");
    Click(form->cmdAdd);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Bin 1", "Bin 2", "Bin 3"}));
    AwaitName<frmAddLocation>("Bin 9");
    Click(form->cmdEdit);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Bin 2", "Bin 3", "Bin 9"}));
    answers.Expect("Are you sure you want to delete this Location?", Answer::Yes);
    Click(form->cmdRemove);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Bin 3", "Bin 9"}));
    EXPECT_EQ(form->cboGroups->SelectedData(), south);

    // Names that differ in case alone are two warehouses; the edited one stays chosen.
    SelectComboByData(form->cboGroups, loud);
    AwaitName<frmAddWarehouse>("süd");
    Click(form->cmdCatEdit);
    EXPECT_EQ(form->cboGroups->SelectedData(), loud);
    EXPECT_EQ(Entries(form->lstItems), QStringList{"Ramp"});
}

TEST_F(LocationsTest, ANewWarehouseIsChosenAndALeftOneTooAndALocationNeedsOne)
{
    WarehouseRow("Annex");
    Open();
    AwaitName<frmAddWarehouse>("Yard");
    Click(form->cmdCatAdd);
    EXPECT_EQ(form->cboGroups->Text(), "Yard");
    EXPECT_EQ(frmAddWarehouse::CurrentWarehouseID, form->cboGroups->SelectedData());

    WhenFormShows<frmAddWarehouse>([](frmAddWarehouse& details) { Click(details.cmdCancel); });
    Click(form->cmdCatAdd);
    EXPECT_EQ(form->cboGroups->Text(), "Annex");

    Run("DELETE FROM warehouse");
    Open();
    answers.ExpectMessage(
        "No Warehouse has been selected to add the Location to. Please select a Warehouse to continue.",
        Icon::Critical);
    Click(form->cmdAdd);
    EXPECT_EQ(Count("location"), 1);
}

TEST_F(CategoriesTest, ANewCategoryHasASubCategoryNone)
{
    Open();
    CheckForm(*form, {}, "AER");
    EXPECT_EQ(form->cboGroups->objectName(), "cboCategories");
    EXPECT_EQ(form->cboGroups->ListCount(), 0);
    answers.ExpectMessage(
        "No Category has been selected to add the Sub-Category to. Please select a Category to continue.",
        Icon::Critical);
    Click(form->cmdAdd);

    AwaitName<frmAddCategory>("Tools");
    Click(form->cmdCatAdd);
    EXPECT_EQ(form->cboGroups->Text(), "Tools");
    EXPECT_EQ(Entries(form->lstItems), QStringList{"None"});

    AwaitName<frmAddSubCategory>("Saws");
    Click(form->cmdAdd);
    EXPECT_EQ(Rows("SELECT name, CategoryID FROM subcategory WHERE id <> 1"),
        Table({{"None", QString::number(frmAddCategory::CurrentCategoryID)},
            {"Saws", QString::number(frmAddCategory::CurrentCategoryID)}}));

    for (int i = 0; i < 2; ++i) {
        answers.Expect("Are you sure you want to delete this Sub-Category?", Answer::Yes);
        Click(form->cmdRemove);
    }
    answers.Expect("Are you sure you want to delete this Category?", Answer::Yes);
    Click(form->cmdCatRemove);
    EXPECT_EQ(form->cboGroups->ListCount(), 0);
    EXPECT_EQ(Rows("SELECT id FROM category UNION ALL SELECT id FROM subcategory"), Table({{"1"}, {"1"}}));
}
