#include "config/categories.h"

#include "db/batch.h"

namespace {

const KeyTable& Categories()
{
    static const KeyTable table{
        .name = "[Category]",
        .entries = "SELECT id, name FROM [Category] WHERE id<>1 ORDER BY name",
        .nothingToEdit = QObject::tr("No Category has been selected to edit. Please select a Category and try again."),
        .nothingToRemove = QObject::tr("Please select a Category to remove."),
        .uses = "SELECT COUNT(*) FROM category, SubCategory WHERE category.id = SubCategory.categoryid AND "
                "Category.id = {id}",
        .inUse = QObject::tr("This Category is in use by one or more Sub-Categories and so cannot be deleted. To "
                             "delete this Sub-Category first remove the Sub-Categories and then try again."),
        .removeQuestion = QObject::tr("Are you sure you want to delete this Category?"),
        .remove = "DELETE FROM [Category] WHERE id = {id}",
        .form = "frmAddCategory",
        .formTitle = QObject::tr("Category Details"),
        .formInstructions = QObject::tr("Instructions - enter the Category name and then click OK."),
        .nameMissing = QObject::tr("Please enter a Category name to continue."),
        .storedRow = "SELECT name FROM Category WHERE id = {id}",
        .update = "UPDATE Category SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

const KeyTable& SubCategories()
{
    static const KeyTable table{
        .name = "[SubCategory]",
        .entries = "SELECT id, name FROM [SubCategory] WHERE id<>1 AND categoryid = {parentId} ORDER BY name",
        .nothingToEdit =
            QObject::tr("No Sub-Category has been selected to edit. Please select a Sub-Category and try again."),
        .nothingToRemove = QObject::tr("Please select a Sub-Category to remove."),
        .uses = "SELECT COUNT(*) FROM item, SubCategory WHERE item.SubCategoryid = SubCategory.id AND "
                "SubCategory.id = {id}",
        .inUse = QObject::tr("This Sub-Category is in use by one or more items and so cannot be deleted. To delete "
                             "this Sub-Category first remove the items and then try again."),
        .removeQuestion = QObject::tr("Are you sure you want to delete this Sub-Category?"),
        .remove = "DELETE FROM [SubCategory] WHERE id = {id}",
        .form = "frmAddSubCategory",
        .formTitle = QObject::tr("Sub-Category Details"),
        .formInstructions = QObject::tr("Instructions - enter the Sub-Category name and then click OK."),
        .nameMissing = QObject::tr("Please enter a Sub-Category name to continue."),
        .storedRow = "SELECT name FROM SubCategory WHERE id = {id}",
        .update = "UPDATE SubCategory SET name = '{name}' WHERE id = {id}",
    };
    return table;
}

void AddSubCategoryNone(qint32 categoryId)
{
    AddRow none(*gConnection, SubCategories().name);
    none.AddNew();
    none.Set("Name", QStringLiteral("None"));
    none.Set("CategoryID", categoryId);
    none.Update();
}

} // namespace

qint32 CurrentCategoryID = NewRow;
qint32 CurrentSubCategoryID = NewRow;
qint32 SubCategoryParentID = NewRow;

frmCategories::frmCategories(QWidget* parent)
    : KeyGroupForm("frmCategories", "cboCategories",
        {tr("Configure Categories"), tr("Instructions - configure the Categories and Sub-Categories items can be in."),
            tr("Categories:"), tr("Sub-Categories:"), tr("&Add Sub-Category"), tr("&Edit Sub-Category"),
            tr("&Remove Sub-Category"),
            tr("No Category has been selected to add the Sub-Category to. Please select a Category to continue.")},
        Categories(), SubCategories(), parent)
{
}

qint64 frmCategories::ShowGroupDetails(qint64 id)
{
    CurrentCategoryID = qint32(id);
    frmAddCategory(this).ShowModal();
    return CurrentCategoryID;
}

void frmCategories::ShowEntryDetails(qint64 id, qint64 groupId)
{
    CurrentSubCategoryID = qint32(id);
    SubCategoryParentID = qint32(groupId);
    frmAddSubCategory(this).ShowModal();
}

frmAddCategory::frmAddCategory(QWidget* parent)
    : NameForm(Categories(), CurrentCategoryID, parent)
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
    : NameForm(SubCategories(), CurrentSubCategoryID, parent)
{
    ShowStoredRow();
}

void frmAddSubCategory::SetFields(AddRow& row)
{
    row.Set("CategoryID", SubCategoryParentID);
}
