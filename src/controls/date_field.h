#pragma once

#include <QDateTimeEdit>
#include <QHash>

/// A date edit in which a date can be typed straight through, in the order of its display format, with or without
/// separators. Qt's own refuses a day that the month shown does not have, though the month typed next may, and takes
/// the digits after a separator for another part of the date. Tab leaves the field; the arrow keys go from part to
/// part.
class DateField : public QDateEdit {
public:
    explicit DateField(QWidget* parent);

    /// Takes what was typed so far as it stands, with the century of a two-digit year filled in. Does nothing for one
    /// who asks because the typing just changed the date: the typing goes on.
    void FinishTyping();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    /// A date changes by typing and by the calendar only: the wheel is there to scroll.
    void wheelEvent(QWheelEvent* event) override;

private:
    void TypeDigit(QKeyEvent* event);
    void TypeSeparator();
    /// Shows the date that stood here with the parts typed so far in place of its own.
    void ShowTyped(int year);
    void SelectPart(Section section);
    void OpenCalendar();
    void GoToNextPart();

    QHash<Section, QString> m_typed;
    QDate m_before;
    int m_part = -1;
    bool m_wentOn = false;
    bool m_isShowing = false;
};
