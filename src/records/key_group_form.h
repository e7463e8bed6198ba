#pragma once

#include "controls/combo_box.h"
#include "controls/form.h"
#include "records/key_list.h"

#include <QPushButton>

/// A dialog over two key tables, one above the other: the rows of the upper one in a drop-down list, and below it those
/// of the lower one that belong to the row chosen there. Each has its Add, Edit and Remove.
class KeyGroupForm : public Form {
    Q_OBJECT
public:
    /// The drop-down list; each dialog has its own name for it.
    ComboBox* const cboGroups;
    CONTROL(QPushButton, cmdCatAdd);
    CONTROL(QPushButton, cmdCatEdit);
    CONTROL(QPushButton, cmdCatRemove);
    CONTROL(KeyList, lstItems);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(QPushButton, cmdEdit);
    CONTROL(QPushButton, cmdRemove);
    CONTROL(QPushButton, cmdCancel);

protected:
    struct Texts {
        QString title;
        QString instructions;
        QString groupsLabel, entriesLabel;
        QString addEntry, editEntry, removeEntry; ///< the captions of the lower buttons
        QString noGroupToAddTo; ///< what adding an entry says while no group is chosen
    };
    KeyGroupForm(const char* name, const char* comboName, const Texts& texts, const KeyTable& groups,
        const KeyTable& entries, QWidget* parent);

    /// Shows the upper table's form for a row, NewRow for a new one, and returns the row that it edited or added.
    virtual qint64 ShowGroupDetails(qint64 id) = 0;
    /// Shows the lower table's form for a row of the chosen group.
    virtual void ShowEntryDetails(qint64 id, qint64 groupId) = 0;

private:
    std::optional<qint64> ChosenGroup() const;
    /// Chooses the group of this id, else the first.
    void Reload(std::optional<qint64> groupId);
    void ShowEntriesOfGroup();

    void EditGroup();
    void RemoveGroup();
    void AddEntry();
    void EditEntry();
    void RemoveEntry();

    QString m_noGroupToAddTo;
    const KeyTable& m_groups;
    const KeyTable& m_entries;
};
