#include "controls/date_field.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QStyleOption>
#include <QWheelEvent>

namespace {
constexpr int CenturyTurn = 30;

bool IsComplete(QDateTimeEdit::Section part, const QString& digits)
{
    if (part == QDateTimeEdit::YearSection)
        return digits.size() == 4;
    const int largestFirst = part == QDateTimeEdit::MonthSection ? 1 : 3;
    return digits.size() == 2 || (digits.size() == 1 && digits.toInt() > largestFirst);
}
} // namespace

DateField::DateField(QWidget* parent)
    : QDateEdit(parent)
{
}

bool DateField::focusNextPrevChild(bool next)
{
    FinishTyping();
    // The date edit of Qt would step to its next part.
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

void DateField::focusOutEvent(QFocusEvent* event)
{
    FinishTyping();
    QDateEdit::focusOutEvent(event);
}

void DateField::keyPressEvent(QKeyEvent* event)
{
    const QString text = event->text();
    const bool isTyping = text.size() == 1 && text.front().isPrint() && !text.front().isLetter()
        && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    if (event->key() == Qt::Key_F4 || (event->key() == Qt::Key_Down && event->modifiers() & Qt::AltModifier)) {
        event->accept();
        return OpenCalendar();
    }
    const bool namesMonths = displayFormat().contains(QLatin1String("MMM"));
    if (!isTyping || namesMonths) {
        FinishTyping();
        QDateEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    if (text.front().isDigit())
        TypeDigit(event);
    else
        TypeSeparator();
}

void DateField::wheelEvent(QWheelEvent* event)
{
    event->ignore();
}

// Qt opens the calendar for a press on the arrow only.
void DateField::OpenCalendar()
{
    FinishTyping();
    QStyleOptionSpinBox whole;
    initStyleOption(&whole);
    QStyleOptionComboBox option;
    option.initFrom(this);
    option.editable = true;
    option.frame = whole.frame;
    option.subControls = QStyle::SC_All;
    const QPoint arrow = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, this).center();
    QMouseEvent press(
        QEvent::MouseButtonPress, arrow, mapToGlobal(arrow), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
    QDateEdit::mousePressEvent(&press);
}

void DateField::TypeDigit(QKeyEvent* event)
{
    const bool replacesAll = lineEdit()->selectedText().size() == this->text().size();
    const int part = replacesAll ? 0 : currentSectionIndex();
    if (part != m_part) {
        FinishTyping();
        m_before = date();
        m_part = part;
        SelectPart(sectionAt(part));
    }
    m_wentOn = false;
    const Section section = sectionAt(part);
    QString& digits = m_typed[section];
    if (IsComplete(section, digits))
        digits.clear();
    digits += event->text();
    // A year shows half typed, which a day or month never has to.
    if (section == YearSection) {
        const QScopedValueRollback showing(m_isShowing, true);
        QDateEdit::keyPressEvent(event);
    }
    if (section != YearSection || IsComplete(section, digits))
        ShowTyped(m_typed[YearSection].size() == 4 ? m_typed[YearSection].toInt() : m_before.year());
    if (IsComplete(section, digits))
        GoToNextPart();
    else if (section != YearSection)
        SelectPart(section);
}

void DateField::TypeSeparator()
{
    // The digit before it may have gone on to the next part by itself.
    if (!m_wentOn && m_part >= 0 && m_part == currentSectionIndex())
        GoToNextPart();
    m_wentOn = false;
}

void DateField::ShowTyped(int year)
{
    const int typedMonth = m_typed[MonthSection].toInt();
    const int typedDay = m_typed[DaySection].toInt();
    const int month = typedMonth >= 1 && typedMonth <= 12 ? typedMonth : m_before.month();
    const int day = typedDay >= 1 && typedDay <= 31 ? typedDay : m_before.day();
    const QScopedValueRollback showing(m_isShowing, true);
    setDate(QDate(year, month, qMin(day, QDate(year, month, 1).daysInMonth())));
}

void DateField::SelectPart(Section section)
{
    // A date that got shorter may have moved the part to where the cursor stands, and Qt follows only a moving cursor.
    lineEdit()->setCursorPosition(int(text().size()));
    setSelectedSection(section);
}

void DateField::GoToNextPart()
{
    if (m_part + 1 >= sectionCount())
        return;
    SelectPart(sectionAt(++m_part));
    m_wentOn = true;
}

void DateField::FinishTyping()
{
    if (m_part < 0 || m_isShowing)
        return;
    const QString year = m_typed[YearSection];
    int complete = m_before.year();
    if (year.size() == 4)
        complete = year.toInt();
    else if (year.size() == 2)
        complete = year.toInt() + (year.toInt() < CenturyTurn ? 2000 : 1900);
    ShowTyped(complete);
    m_typed.clear();
    m_part = -1;
    m_wentOn = false;
}
