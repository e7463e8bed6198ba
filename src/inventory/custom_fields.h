#pragma once

#include "controls/combo_box.h"
#include "controls/text_box.h"

#include <QCheckBox>
#include <QLabel>
#include <QList>

class frmItemDetails;

/// The extra fields of an item, one control each, as the tables define them. Each kind is numbered for itself
/// (chkCustom_0, cboCustom_0, txtCustom_0), the labels are numbered by field. Values are found by walking the fields in
/// their order, never by a control's id.
class CustomFields {
public:
    /// Makes the controls on `form`; none when no field is defined.
    explicit CustomFields(frmItemDetails* form);

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
    /// text as typed, so that a quote in it throws RuntimeError.
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
        int checkBoxes = 0;
        int lists = 0;
        int textBoxes = 0;
    };

    static QList<Definition> ReadDefinitions();
    QWidget* MakeControl(frmItemDetails* form, const Definition& field);
    ComboBox* MakeList(frmItemDetails* form, qint64 fieldId);
    void ShowValue(Kind kind, const QString& data, Counters& next);
    QString TakeValue(Kind kind, Counters& next) const;

    QList<Line> m_lines;
    QList<QCheckBox*> m_checkBoxes;
    QList<ComboBox*> m_lists;
    QList<TextBox*> m_textBoxes;
};
