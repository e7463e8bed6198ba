#pragma once

#include "records/list_panel.h"

#include <QPushButton>

/// The view of the item groups, always in order of name.
class ItemGroups : public ListPanel {
    Q_OBJECT
public:
    explicit ItemGroups(QWidget* parent = nullptr);

    CONTROL(RecordList, gItemGroups);
    CONTROL(QPushButton, cmdItemGroupEdit);
    CONTROL(QPushButton, cmdItemGroupNew);
    CONTROL(QPushButton, cmdItemGroupDelete);

    /// Reloads the list. Selects the row whose group is `selectId`, else row number `row`, pulled back to the last row.
    void RefreshItemGroupList(int row, qint64 selectId);

private:
    void EditGroup();
    void NewGroup();
    void DeleteGroup();
};
