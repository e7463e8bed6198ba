#include "records/name_form.h"

#include "controls/layout.h"
#include "sql/schema.h"

NameForm::NameForm(const KeyTable& table, qint32& currentId, QWidget* parent)
    : Form(table.form, table.formTitle, parent)
    , m_table(table)
    , m_currentId(currentId)
    , m_fields(fields({{tr("Name:"), txtName}}))
    , m_buttons(row({stretch(), cmdOK, cmdCancel}))
{
    txtName->setMaxLength(LongestName);
    cmdOK->setText(tr("OK"));
    cmdCancel->setText(tr("&Cancel"));
    setLayout(column({
        instructions(table.formInstructions),
        m_fields,
        stretch(),
        m_buttons,
    }));
    cmdOK->setDefault(true);
    SetCancelButton(cmdCancel);

    On(cmdOK, &QPushButton::clicked, this, &NameForm::Save);
}

void NameForm::ShowStoredRow()
{
    if (m_currentId == NewRow)
        return;
    const Recordset stored = gConnection->Execute(Sql(m_table.storedRow).Number("id", m_currentId));
    if (stored.Eof())
        MsgBox(tr("Record not found."), m_table.notFoundIcon);
    else
        ShowRow(stored);
}

void NameForm::ShowRow(const Recordset& row)
{
    txtName->ShowWhole(NullToText(row["name"]));
}

void NameForm::AddField(const QString& label, QWidget* field)
{
    AddFieldLine(m_fields, {label, field});
    PutInTabOrderBefore(cmdOK, field);
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
        MsgBox(m_table.nameMissing, Icon::Critical);
        txtName->setFocus();
        return;
    }
    if (m_currentId == NewRow)
        Add(txtName->text());
    else
        Update(txtName->text());
    accept();
}

void NameForm::Add(const QString& name)
{
    AddRow row(*gConnection, m_table.name);
    row.AddNew();
    row.Set("Name", name);
    SetFields(row);
    row.Update();
    m_currentId = qint32(row.Id());
}

void NameForm::SetFields(AddRow& /*row*/) { }

void NameForm::Update(const QString& name)
{
    gConnection->Execute(Sql(m_table.update).Text("name", name).Number("id", m_currentId));
}
