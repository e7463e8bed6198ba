#pragma once

#include "controls/combo_box.h"
#include "controls/text_box.h"

#include <QCheckBox>
#include <QLabel>
#include <QList>

#include <optional>

/// The extra fields of an item, one control each, as the tables define them. Each kind is numbered for itself
/// (chkCustom_0, cboCustom_0, txtCustom_0), the labels are numbered by field. Values are found by walking the fields in
/// their order, never by a control's id.
class CustomFields {
public:
    /// Makes the controls, for a form to lay out; none when no field is defined.
    CustomFields();

    bool IsEmpty() const { return m_lines.isEmpty(); }
    struct Line {
        QLabel* label;
        QWidget* control;
    };
    const QList<Line>& Lines() const { return m_lines; }

    /// Shows the stored values. A field without a stored value does not use up a control: the next value of its kind
    /// shows there instead. That is so for items that are older than the field, until their next save.
    void Load(qint32 itemId);

    /// Writes a row of `ItemCustomFieldData` for each field: adds it, or updates the one there is. An update takes the
    /// text as typed, so that a quote in it throws RuntimeError. A field that was defined since the form was opened has
    /// no control, and its rows stay as they are.
    void Save(qint32 itemId) const;

private:
    enum class Kind { CheckBox, List, TextBox };
    struct Definition {
        qint64 id;
        QString name;
        Kind kind;
    };
    /// How many controls of each kind a walk has passed.
    struct Counters {
        qsizetype checkBoxes = 0;
        qsizetype lists = 0;
        qsizetype textBoxes = 0;
    };

    static QList<Definition> ReadDefinitions();
    QWidget* MakeControl(const Definition& field);
    ComboBox* MakeList(qint64 fieldId);
    void ShowValue(Kind kind, const QString& data, Counters& next);
    /// The value of the next control of a kind; nothing when there is none left.
    std::optional<QString> TakeValue(Kind kind, Counters& next) const;

    QList<Line> m_lines;
    QList<QCheckBox*> m_checkBoxes;
    QList<ComboBox*> m_lists;
    QList<TextBox*> m_textBoxes;
};
