#pragma once

#include "controls/form.h"
#include "records/key_list.h"

#include <QPushButton>

/// A dialog over one key table: its rows in a list, with Add, Edit and Remove. The list is read anew after each.
class KeyListForm : public Form {
    Q_OBJECT
public:
    CONTROL(KeyList, lstItems);
    CONTROL(QPushButton, cmdAdd);
    CONTROL(QPushButton, cmdEdit);
    CONTROL(QPushButton, cmdRemove);
    CONTROL(QPushButton, cmdCancel);

protected:
    struct Texts {
        QString title;
        QString instructions;
        QString listLabel;
    };
    KeyListForm(const char* name, const Texts& texts, const KeyTable& table, QWidget* parent);

    /// Puts more controls of the dialog between the list and Close, also in tab order.
    void AddBelowList(QLayout* lines, std::initializer_list<QWidget*> controls);

    /// Shows the table's form for a row, NewRow for a new one.
    virtual void ShowDetails(qint64 id) = 0;
    virtual void DeleteRow(qint64 id);
    /// Shows what is stored; runs after each change.
    virtual void Reload();

private:
    void Edit();
    void Remove();

    const KeyTable& m_table;
};
