#include "inventory/custom_fields.h"

#include "db/add_row.h"
#include "db/connection.h"
#include "inventory/name_label.h"

namespace {

constexpr int LongestValue = 255;

/// A control of the array `name`.
template <typename Control>
Control* MakeMember(const char* name, qsizetype index)
{
    auto* control = new Control;
    control->setObjectName(QStringLiteral("%1_%2").arg(QLatin1String(name)).arg(index));
    return control;
}

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

CustomFields::CustomFields()
{
    if (gConnection->Execute("SELECT COUNT(*) FROM ItemCustomField;")[0].ToLong() == 0)
        return;
    for (const Definition& field : ReadDefinitions()) {
        auto* label = MakeMember<QLabel>("lblCustom", m_lines.size());
        ShowName(label, field.name);
        m_lines.append({label, MakeControl(field)});
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

QWidget* CustomFields::MakeControl(const Definition& field)
{
    switch (field.kind) {
    case Kind::CheckBox:
        m_checkBoxes.append(MakeMember<QCheckBox>("chkCustom", m_checkBoxes.size()));
        return m_checkBoxes.last();
    case Kind::List:
        m_lists.append(MakeList(field.id));
        return m_lists.last();
    case Kind::TextBox:
        break;
    }
    m_textBoxes.append(MakeMember<TextBox>("txtCustom", m_textBoxes.size()));
    m_textBoxes.last()->setMaxLength(LongestValue);
    return m_textBoxes.last();
}

ComboBox* CustomFields::MakeList(qint64 fieldId)
{
    auto* list = MakeMember<ComboBox>("cboCustom", m_lists.size());
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
        if (const std::optional<QString> value = TakeValue(field.kind, next))
            SaveValue(itemId, field.id, *value);
}

std::optional<QString> CustomFields::TakeValue(Kind kind, Counters& next) const
{
    const auto take = [](const auto& controls, qsizetype& counter, auto value) -> std::optional<QString> {
        if (counter == controls.size())
            return std::nullopt;
        return value(controls[counter++]);
    };
    switch (kind) {
    case Kind::CheckBox:
        return take(m_checkBoxes, next.checkBoxes,
            [](const QCheckBox* box) { return box->isChecked() ? QStringLiteral("1") : QStringLiteral("0"); });
    case Kind::List:
        return take(m_lists, next.lists, TextOfList);
    case Kind::TextBox:
        break;
    }
    return take(m_textBoxes, next.textBoxes, [](const TextBox* box) { return box->text(); });
}
