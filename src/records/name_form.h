#pragma once

#include "controls/form.h"
#include "controls/text_box.h"
#include "db/add_row.h"
#include "db/new_row.h"
#include "records/key_table.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QPushButton>

/// Asks for what a row of a key table is edited by, above all its name. OK refuses an empty name, then adds or updates
/// the row and closes. A derived form calls ShowStoredRow at the end of its constructor.
class NameForm : public Form {
    Q_OBJECT
public:
    CONTROL(TextBox, txtName);
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdCancel);

protected:
    /// `currentId` is the row to edit, NewRow for a new one, and takes the id of a row that the form adds.
    NameForm(const KeyTable& table, qint32& currentId, QWidget* parent);

    /// Shows the row to edit, or says "Record not found." and leaves the form empty. Does nothing for a new row.
    void ShowStoredRow();
    virtual void ShowRow(const Recordset& row);

    /// A further box of the row, below the name.
    void AddField(const QString& label, QWidget* field);
    /// Shows `widget` to the left of the buttons at once, also when the event loop stands still from here on. The form
    /// keeps its size: the window system would have to answer first.
    void ShowBesideButtons(QWidget* widget);

    /// Adds a row of the name and what SetFields sets.
    virtual void Add(const QString& name);
    virtual void SetFields(AddRow& row);
    virtual void Update(const QString& name);

    qint32 CurrentId() const { return m_currentId; }

private:
    void Save();

    const KeyTable& m_table;
    qint32& m_currentId;
    QGridLayout* m_fields;
    QBoxLayout* m_buttons;
};
