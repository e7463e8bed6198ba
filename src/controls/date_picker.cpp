#include "controls/date_picker.h"

#include "base/clock.h"
#include "base/dates.h"
#include "base/regional.h"
#include "base/runtime_error.h"
#include "controls/date_field.h"

#include <QCalendarWidget>
#include <QFocusEvent>
#include <QHBoxLayout>

namespace {
// The platform's date range starts in the year 100.
const QDate FirstDate(100, 1, 1);
const QDate LastDate(9999, 12, 31);

/// The user's mask as Qt takes it, with single quotes around words.
QString QtDisplayFormat()
{
    return ShortDateMask().replace(u'"', u'\'');
}
} // namespace

DatePicker::DatePicker(QWidget* parent)
    : QWidget(parent)
    , m_check(new QCheckBox(this))
    , m_date(new DateField(this))
{
    auto* parts = new QHBoxLayout(this);
    parts->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(m_check);
    parts->addWidget(m_date, 1);
    // Tab stops at the parts alone; the focus that a label or code gives to the whole goes to the first of them.
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);

    m_date->setCalendarPopup(true);
    m_date->setDisplayFormat(QtDisplayFormat());
    // Digits and separators run from left to right.
    m_date->setLayoutDirection(Qt::LeftToRight);
    ShowPlainDigits();
    m_date->setDateRange(FirstDate, LastDate);
    m_check->setChecked(true);
    m_check->setToolTip(tr("Tick to give a date"));
    SetCheckBox(false);
    SetValue(Now());

    QObject::connect(this, &QObject::objectNameChanged, this, [this](const QString& name) {
        m_check->setObjectName(name + QLatin1String("_check"));
        m_date->setObjectName(name + QLatin1String("_date"));
    });
    QObject::connect(m_check, &QCheckBox::toggled, m_date, &QWidget::setEnabled);
    QObject::connect(m_check, &QCheckBox::clicked, this, &DatePicker::Change);
    QObject::connect(m_date, &QDateEdit::userDateChanged, this, &DatePicker::Change);
}

/// All texts of the program have the same digits. Qt writes a date with its locale's own; the calendar keeps the
/// language of the user.
void DatePicker::ShowPlainDigits()
{
    if (Regional().zeroDigit() == QLatin1String("0"))
        return;
    m_date->setLocale(QLocale(QLocale::English, QLocale::UnitedKingdom));
    m_date->calendarWidget()->setLocale(Regional());
}

void DatePicker::SetCheckBox(bool shown)
{
    m_check->setVisible(shown);
    if (!shown)
        Tick(true);
}

std::optional<QDateTime> DatePicker::Value() const
{
    if (!m_check->isChecked())
        return std::nullopt;
    m_date->FinishTyping();
    return MomentOf(m_date->date(), m_time);
}

void DatePicker::SetValue(const std::optional<QDateTime>& value)
{
    if (!value && m_check->isHidden())
        throw RuntimeError(35787, QStringLiteral("Can't set Value to NULL when CheckBox property = FALSE"));
    Tick(value.has_value());
    if (!value)
        return;
    const QSignalBlocker silent(m_date);
    m_date->FinishTyping();
    m_date->setDate(value->date());
    m_time = value->time();
}

void DatePicker::focusInEvent(QFocusEvent* event)
{
    QWidget* first = m_check->isHidden() ? static_cast<QWidget*>(m_date) : m_check;
    first->setFocus(event->reason());
}

void DatePicker::Tick(bool on)
{
    const QSignalBlocker silent(m_check);
    m_check->setChecked(on);
    m_date->setEnabled(on);
}
