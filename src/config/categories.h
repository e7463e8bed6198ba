#pragma once

#include "records/key_group_form.h"
#include "records/name_form.h"

/// What the forms below edit, NewRow for a new one; a form puts the id of a row that it added here.
extern qint32 CurrentCategoryID;
extern qint32 CurrentSubCategoryID;
/// The category that a new sub-category goes into.
extern qint32 SubCategoryParentID;

/// Names a category. A new one gets a sub-category "None" with it, for items to stand in.
class frmAddCategory : public NameForm {
public:
    explicit frmAddCategory(QWidget* parent);

protected:
    void Add(const QString& name) override;
};

/// Names a sub-category. A new one goes into SubCategoryParentID; one that exists stays where it is.
class frmAddSubCategory : public NameForm {
public:
    explicit frmAddSubCategory(QWidget* parent);

protected:
    void SetFields(AddRow& row) override;
};

/// Keeps the categories and their sub-categories.
class frmCategories : public KeyGroupForm {
public:
    explicit frmCategories(QWidget* parent);

protected:
    qint64 ShowGroupDetails(qint64 id) override;
    void ShowEntryDetails(qint64 id, qint64 groupId) override;
};
