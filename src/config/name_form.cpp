#include "config/name_form.h"

#include "db/connection.h"
#include "platform/layout.h"

NameForm::NameForm(const char* name, const NameFormTexts& texts, QWidget* parent)
    : Form(name, texts.title, parent)
    , m_nameMissing(texts.nameMissing)
    , m_buttons(row({stretch(), cmdOK, cmdCancel}))
{
    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    setLayout(column({
        instructions(texts.instructions),
        fields({{tr("Name:"), txtName}}),
        m_buttons,
    }));
    cmdOK->setDefault(true);
    SetCancelButton(cmdCancel);

    On(cmdOK, &QPushButton::clicked, [this] { Save(); });
}

void NameForm::ShowStoredName(const Sql& sql, Icon notFoundIcon)
{
    const Recordset stored = gConnection->Execute(sql);
    if (stored.Eof())
        MsgBox(tr("Record not found."), notFoundIcon);
    else
        txtName->setText(NullToText(stored[0]));
}

void NameForm::ShowBesideButtons(QWidget* widget)
{
    m_buttons->insertWidget(0, widget);
    // Left to the layout, it would show with the next turn of the event loop.
    widget->show();
    layout()->activate();
}

void NameForm::Save()
{
    if (txtName->text().isEmpty()) {
        MsgBox(m_nameMissing, Icon::Critical);
        txtName->setFocus();
        return;
    }
    Store(txtName->text());
    accept();
}
