#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"
#include "controls/text_box.h"
#include "records/record_list.h"

#include <QPushButton>

/// Edits one item group. Its members are kept in the list until OK, which writes them all anew.
class frmItemGroup : public Form {
    Q_OBJECT
public:
    /// The item group to edit, NewRow for a new one. The form puts the id of a group it added here.
    static qint32 gEditItemGroupId;

    explicit frmItemGroup(QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(ComboBox, cboItems);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(RecordList, gItems);
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
