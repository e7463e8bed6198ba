#include "config/categories.h"

#include "db/batch.h"

namespace {

void AddSubCategoryNone(qint32 categoryId)
{
    AddRow none(*gConnection, frmAddSubCategory::Table().name);
    none.AddNew();
    none.Set("Name", QStringLiteral("None"));
    none.Set("CategoryID", categoryId);
    none.Update();
}

} // namespace

const KeyTable& frmAddSubCategory::Table()
{
    static const KeyTable table{
        .name = "[SubCategory]",
        .entries = "SELECT id, name FROM [SubCategory] WHERE id<>1 AND categoryid = {parentId} ORDER BY name",
        .nothingToEdit = tr("No Sub-Category has been selected to edit. Please select a Sub-Category and try again."),
        .nothingToRemove = tr("Please select a Sub-Category to remove."),
        .uses = "SELECT COUNT(*) FROM item, SubCategory WHERE item.SubCategoryid = SubCategory.id AND "
                "SubCategory.id = {id}",
        .inUse = tr("This Sub-Category is in use by one or more items and so cannot be deleted. To delete "
                    "this Sub-Category first remove the items and then try again."),
        .removeQuestion = tr("Are you sure you want to delete this Sub-Category?"),
        .remove = "DELETE FROM [SubCategory] WHERE id = {id}",
        .form = "frmAddSubCategory",
        .formTitle = tr("Sub-Category Details"),
        .formInstructions = tr("Instructions - enter the Sub-Category name and then click OK."),
        .nameMissing = tr("Please enter a Sub-Category name to continue."),
        .storedRow = "SELECT name FROM SubCategory WHERE id = {id}",
        .update = "UPDATE SubCategory SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

const KeyTable& frmAddCategory::Table()
{
    static const KeyTable table{
        .name = "[Category]",
        .entries = "SELECT id, name FROM [Category] WHERE id<>1 ORDER BY name",
        .nothingToEdit = tr("No Category has been selected to edit. Please select a Category and try again."),
        .nothingToRemove = tr("Please select a Category to remove."),
        .uses = "SELECT COUNT(*) FROM category, SubCategory WHERE category.id = SubCategory.categoryid AND "
                "Category.id = {id}",
        .inUse = tr("This Category is in use by one or more Sub-Categories and so cannot be deleted. To "
                    "delete this Sub-Category first remove the Sub-Categories and then try again."),
        .removeQuestion = tr("Are you sure you want to delete this Category?"),
        .remove = "DELETE FROM [Category] WHERE id = {id}",
        .form = "frmAddCategory",
        .formTitle = tr("Category Details"),
        .formInstructions = tr("Instructions - enter the Category name and then click OK."),
        .nameMissing = tr("Please enter a Category name to continue."),
        .storedRow = "SELECT name FROM Category WHERE id = {id}",
        .update = "UPDATE Category SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

qint32 frmAddCategory::CurrentCategoryID = NewRow;
qint32 frmAddSubCategory::CurrentSubCategoryID = NewRow;
qint32 frmAddSubCategory::SubCategoryParentID = NewRow;

frmCategories::frmCategories(QWidget* parent)
    : KeyGroupForm("frmCategories", "cboCategories",
        {tr("Configure Categories"), tr("Instructions - configure the Categories and Sub-Categories items can be in."),
            tr("Categories:"), tr("Sub-Categories:"), tr("&Add Sub-Category"), tr("&Edit Sub-Category"),
            tr("&Remove Sub-Category"),
            tr("No Category has been selected to add the Sub-Category to. Please select a Category to continue.")},
        frmAddCategory::Table(), frmAddSubCategory::Table(), parent)
{
}

qint64 frmCategories::ShowGroupDetails(qint64 id)
{
    frmAddCategory::CurrentCategoryID = qint32(id);
    frmAddCategory(this).ShowModal();
    return frmAddCategory::CurrentCategoryID;
}

void frmCategories::ShowEntryDetails(qint64 id, qint64 groupId)
{
    frmAddSubCategory::CurrentSubCategoryID = qint32(id);
    frmAddSubCategory::SubCategoryParentID = qint32(groupId);
    frmAddSubCategory(this).ShowModal();
}

frmAddCategory::frmAddCategory(QWidget* parent)
    : NameForm(Table(), CurrentCategoryID, parent)
{
    ShowStoredRow();
}

void frmAddCategory::Add(const QString& name)
{
    InBatch(*gConnection, [&] {
        NameForm::Add(name);
        AddSubCategoryNone(CurrentCategoryID);
    });
}

frmAddSubCategory::frmAddSubCategory(QWidget* parent)
    : NameForm(Table(), CurrentSubCategoryID, parent)
{
    ShowStoredRow();
}

void frmAddSubCategory::SetFields(AddRow& row)
{
    row.Set("CategoryID", SubCategoryParentID);
}
