#include "inventory/custom_fields.h"

#include "db/add_row.h"
#include "db/connection.h"
#include "inventory/item_details.h"

namespace {

constexpr int LongestValue = 255;

QString TextOfList(const ComboBox* list)
{
    return list->ListCount() > 0 ? list->Text() : QString();
}

void SaveValue(qint32 itemId, qint64 fieldId, const QString& value)
{
    const Recordset stored = gConnection->Execute(
        Sql("SELECT id FROM ItemCustomFieldData WHERE itemid = {gEditItemId} AND ItemCustomFieldID = {fieldId}")
            .Number("gEditItemId", itemId)
            .Number("fieldId", fieldId));
    if (!stored.Eof()) {
        gConnection->Execute(Sql("UPDATE ItemCustomFieldData SET data = '{value}' WHERE id = {rowId}")
                                 .Raw("value", value)
                                 .Number("rowId", stored["id"].ToLong()));
        return;
    }
    AddRow row(*gConnection, "ItemCustomFieldData");
    row.AddNew();
    row.Set("ItemID", itemId);
    row.Set("Data", value);
    row.Set("ItemCustomFieldID", fieldId);
    row.Update();
}

} // namespace

CustomFields::CustomFields(frmItemDetails* form)
{
    if (gConnection->Execute("SELECT COUNT(*) FROM ItemCustomField;")[0].ToLong() == 0)
        return;
    for (const Definition& field : ReadDefinitions()) {
        QLabel* label = form->MakeNameLabel("lblCustom", int(m_lines.size()), field.name);
        m_lines.append({label, MakeControl(form, field)});
    }
}

QList<CustomFields::Definition> CustomFields::ReadDefinitions()
{
    QList<Definition> fields;
    for (Recordset rs = gConnection->Execute("SELECT id, name, type FROM ItemCustomField ORDER BY pos;"); !rs.Eof();
         rs.MoveNext()) {
        const QString type = NullToText(rs["type"]).toLower();
        const Kind kind = type == QLatin1String("checkbox") ? Kind::CheckBox
            : type == QLatin1String("combobox")             ? Kind::List
                                                            : Kind::TextBox;
        fields.append({rs["id"].ToLong(), NullToText(rs["name"]), kind});
    }
    return fields;
}

QWidget* CustomFields::MakeControl(frmItemDetails* form, const Definition& field)
{
    switch (field.kind) {
    case Kind::CheckBox:
        m_checkBoxes.append(form->MakeMember<QCheckBox>("chkCustom", int(m_checkBoxes.size())));
        return m_checkBoxes.last();
    case Kind::List:
        m_lists.append(MakeList(form, field.id));
        return m_lists.last();
    case Kind::TextBox:
        break;
    }
    m_textBoxes.append(form->MakeMember<TextBox>("txtCustom", int(m_textBoxes.size())));
    m_textBoxes.last()->setMaxLength(LongestValue);
    return m_textBoxes.last();
}

ComboBox* CustomFields::MakeList(frmItemDetails* form, qint64 fieldId)
{
    auto* list = form->MakeMember<ComboBox>("cboCustom", int(m_lists.size()));
    for (Recordset rs = gConnection->Execute(
             Sql("SELECT option FROM itemCustomFieldOption WHERE itemCustomFieldID = {id} ORDER BY option")
                 .Number("id", fieldId));
         !rs.Eof(); rs.MoveNext())
        list->AddItem(NullToText(rs["option"]), 0);
    if (list->ListCount() > 0)
        list->SetListIndex(0);
    return list;
}

void CustomFields::Load(qint32 itemId)
{
    Counters next;
    for (const Definition& field : ReadDefinitions()) {
        const Recordset stored = gConnection->Execute(
            Sql("SELECT data FROM ItemCustomFieldData WHERE itemid = {gEditItemId} AND ItemCustomFieldID = {fieldId}")
                .Number("gEditItemId", itemId)
                .Number("fieldId", field.id));
        if (!stored.Eof())
            ShowValue(field.kind, NullToText(stored["data"]), next);
    }
}

void CustomFields::ShowValue(Kind kind, const QString& data, Counters& next)
{
    switch (kind) {
    case Kind::CheckBox:
        m_checkBoxes[next.checkBoxes++]->setChecked(data == QLatin1String("1"));
        break;
    case Kind::List:
        SelectComboByText(m_lists[next.lists++], data);
        break;
    case Kind::TextBox:
        m_textBoxes[next.textBoxes++]->setText(data);
        break;
    }
}

void CustomFields::Save(qint32 itemId) const
{
    Counters next;
    for (const Definition& field : ReadDefinitions())
        SaveValue(itemId, field.id, TakeValue(field.kind, next));
}

QString CustomFields::TakeValue(Kind kind, Counters& next) const
{
    switch (kind) {
    case Kind::CheckBox:
        return m_checkBoxes[next.checkBoxes++]->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
    case Kind::List:
        return TextOfList(m_lists[next.lists++]);
    case Kind::TextBox:
        break;
    }
    return m_textBoxes[next.textBoxes++]->text();
}
