#pragma once

#include "db/sql.h"
#include "platform/form.h"
#include "platform/message_box.h"
#include "platform/text_box.h"

#include <QBoxLayout>
#include <QPushButton>

struct NameFormTexts {
    QString title;
    QString instructions;
    QString nameMissing; ///< what OK says of an empty name
};

/// Asks for the one thing that a row of a key table is edited by: its name. OK refuses an empty name, then stores it
/// and closes.
class NameForm : public Form {
public:
    CONTROL(TextBox, txtName);
    CONTROL(QPushButton, cmdOK);
    CONTROL(QPushButton, cmdCancel);

protected:
    NameForm(const char* name, const NameFormTexts& texts, QWidget* parent);

    /// Shows the first column of the statement's row, or says "Record not found." and leaves the form empty.
    void ShowStoredName(const Sql& sql, Icon notFoundIcon);
    /// Shows `widget` to the left of the buttons at once, also when the event loop stands still from here on. The form
    /// keeps its size: the window system would have to answer first.
    void ShowBesideButtons(QWidget* widget);
    /// Writes the row.
    virtual void Store(const QString& name) = 0;

private:
    void Save();

    QString m_nameMissing;
    QBoxLayout* m_buttons;
};
