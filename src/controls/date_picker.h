#pragma once

#include <QCheckBox>
#include <QDateTime>
#include <QWidget>

#include <optional>

class DateField;

/// A date field with a calendar, in the user's short date format, optionally with a tick box in front: unticked means
/// no date. Its parts are children named after it: `<name>_check` and `<name>_date`.
class DatePicker : public QWidget {
    Q_OBJECT
public:
    explicit DatePicker(QWidget* parent = nullptr);

    /// Shows or hides the tick box. Without it there is always a date.
    void SetCheckBox(bool shown);

    /// The date with the time of day it was given; nothing when unticked.
    std::optional<QDateTime> Value() const;
    /// Setting nothing unticks, setting a date ticks. Throws RuntimeError 35787 for nothing without a tick box.
    void SetValue(const std::optional<QDateTime>& value);

signals:
    /// The user changed the date or the tick. Not fired by SetValue.
    void Change();

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void ShowPlainDigits();
    void Tick(bool on);

    QCheckBox* m_check;
    DateField* m_date;
    QTime m_time;
};
