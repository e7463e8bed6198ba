#pragma once

#include "records/key_group_form.h"
#include "records/name_form.h"

/// Names a category. A new one gets a sub-category "None" with it, for items to stand in.
class frmAddCategory : public NameForm {
    Q_OBJECT
public:
    /// The category to edit, NewRow for a new one. The form puts the id of a category it added here.
    static qint32 CurrentCategoryID;
    static const KeyTable& Table();

    explicit frmAddCategory(QWidget* parent);

protected:
    void Add(const QString& name) override;
};

/// Names a sub-category. A new one goes into SubCategoryParentID; one that exists stays where it is.
class frmAddSubCategory : public NameForm {
    Q_OBJECT
public:
    /// The sub-category to edit, NewRow for a new one. The form puts the id of a sub-category it added here.
    static qint32 CurrentSubCategoryID;
    /// The category that a new sub-category goes into.
    static qint32 SubCategoryParentID;
    static const KeyTable& Table();

    explicit frmAddSubCategory(QWidget* parent);

protected:
    void SetFields(AddRow& row) override;
};

/// Keeps the categories and their sub-categories.
class frmCategories : public KeyGroupForm {
    Q_OBJECT
public:
    explicit frmCategories(QWidget* parent);

protected:
    qint64 ShowGroupDetails(qint64 id) override;
    void ShowEntryDetails(qint64 id, qint64 groupId) override;
};
