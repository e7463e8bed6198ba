#pragma once

#include "controls/combo_box.h"
#include "controls/flex_grid.h"
#include "controls/form.h"
#include "controls/text_box.h"

#include <QPushButton>

/// The item group that the form edits, NewRow for a new one. The form puts the id of a group it added here.
extern qint32 gEditItemGroupId;

/// Edits one item group. Its members are kept in the list until OK, which writes them all anew.
class frmItemGroup : public Form {
public:
    explicit frmItemGroup(QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(ComboBox, cboItems);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(FlexGrid, gItems);
    CONTROL(QPushButton, cmdRemove);
    CONTROL(QPushButton, cmdOk);
    CONTROL(QPushButton, cmdCancel);

private:
    void FillItems();
    void ShowStoredGroup();
    void RefreshItemGroupList(int row, qint64 selectId);
    void AddMember();
    void RemoveMember();
    void Save();
    void ReplaceGroup() const;
    void AddGroup() const;
    void AddMembers() const;
};
