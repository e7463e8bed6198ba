#include "support/form_check.h"

#include "controls/date_picker.h"
#include "controls/flex_grid.h"
#include "controls/text_box.h"
#include "support/reading_check.h"
#include "support/screen.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>

namespace {
std::string NameOf(const QWidget* control)
{
    return control ? control->objectName().toStdString() : "nothing";
}

QRect AreaIn(const QWidget* screen, const QWidget* control)
{
    return {control->mapTo(screen, QPoint()), control->size()};
}

void CheckPlace(const QWidget* screen, const QWidget* control)
{
    EXPECT_TRUE(control->isVisible()) << NameOf(control) << " is not laid out";
    if (!control->isVisible())
        return;
    EXPECT_TRUE(screen->rect().contains(AreaIn(screen, control))) << NameOf(control) << " reaches out of the form";
    const QSize needed = control->minimumSizeHint();
    EXPECT_TRUE(control->width() >= needed.width() && control->height() >= needed.height())
        << NameOf(control) << " is cut off: " << control->width() << 'x' << control->height() << " for "
        << needed.width() << 'x' << needed.height();
    // CheckReading takes the name of a panel around a control for its own.
    EXPECT_TRUE(
        control->focusPolicy() == Qt::NoFocus || !Caption(control).isEmpty() || !control->accessibleName().isEmpty())
        << NameOf(control) << " has neither a caption nor an accessible name";
}

/// The part of a control that what it scrolls in lets show.
QRect ShownIn(const QWidget* screen, const QWidget* control)
{
    QRect area = AreaIn(screen, control);
    for (const QWidget* holder = control->parentWidget(); holder && holder != screen; holder = holder->parentWidget())
        area &= AreaIn(screen, holder);
    return area;
}

void CheckOverlaps(const QWidget* screen, const QList<QWidget*>& controls)
{
    for (const QWidget* one : controls)
        for (const QWidget* other : controls)
            if (one < other && one->isVisible() && other->isVisible() && !one->isAncestorOf(other)
                && !other->isAncestorOf(one)) {
                EXPECT_FALSE(ShownIn(screen, one).intersects(ShownIn(screen, other)))
                    << NameOf(one) << " and " << NameOf(other) << " overlap";
            }
}

bool TakesTab(const QWidget* control)
{
    return control->isVisible() && control->isEnabled() && control->focusPolicy() & Qt::TabFocus;
}

bool HasOwnParts(const QWidget* control, const QList<QWidget*>& controls)
{
    for (QWidget* part : control->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        if (TakesTab(part) && !controls.contains(part))
            return true;
    return false;
}

/// The declared control that `widget` is, or is a part of.
QWidget* DeclaredAround(QWidget* widget, const QList<QWidget*>& controls)
{
    if (!TakesTab(widget))
        return nullptr;
    while (widget && !controls.contains(widget))
        widget = widget->parentWidget();
    return widget;
}

void CheckTabOrder(QWidget* screen, const QList<QWidget*>& controls)
{
    QStringList declared, walked;
    for (QWidget* control : controls)
        if (TakesTab(control) || HasOwnParts(control, controls))
            declared.append(control->objectName());
    if (declared.isEmpty())
        return;
    QWidget* widget = screen;
    do {
        QWidget* control = DeclaredAround(widget, controls);
        if (control && screen->isAncestorOf(control) && !walked.contains(control->objectName()))
            walked.append(control->objectName());
        widget = widget->nextInFocusChain();
    } while (widget != screen);
    // The chain is a ring: it may be entered anywhere, but its order stands.
    while (walked.contains(declared.front()) && walked.front() != declared.front())
        walked.append(walked.takeFirst());
    EXPECT_EQ(walked.join(u' ').toStdString(), declared.join(u' ').toStdString()) << "tab order";
}
QString ValueOf(const QWidget* control)
{
    if (auto* box = qobject_cast<const QLineEdit*>(control))
        return box->text();
    if (auto* lines = dynamic_cast<const MultiLineTextBox*>(control))
        return lines->Text().replace(u'\r', QStringLiteral("\\r")).replace(u'\n', QStringLiteral("\\n"));
    if (auto* box = qobject_cast<const QAbstractButton*>(control))
        return box->isChecked() ? QStringLiteral("x") : QStringLiteral("-");
    if (auto* combo = qobject_cast<const QComboBox*>(control))
        return combo->currentText() + QStringLiteral(" of ") + Entries(combo).join(QStringLiteral(" | "));
    if (auto* list = qobject_cast<const QListWidget*>(control))
        return Entries(list).join(QStringLiteral(" | "));
    if (auto* date = dynamic_cast<const DatePicker*>(control))
        return date->Value() ? date->Value()->toString(QStringLiteral("yyyy-MM-dd'T'HH:mm:ss"))
                             : QStringLiteral("none");
    auto* grid = dynamic_cast<const FlexGrid*>(control);
    if (!grid)
        return Caption(control);
    QString text = GridTitles(grid).join(QStringLiteral(" | "));
    for (int row = 1; row < grid->Rows(); ++row)
        text += QLatin1String(row == grid->Row() ? "\n  > " : "\n    ")
            + GridRows(grid)[row - 1].join(QStringLiteral(" | "));
    return text;
}

} // namespace

void CheckScreen(
    QWidget* screen, const QList<QWidget*>& controls, const QStringList& leftOut, const QString& sharedMnemonics)
{
    if (!screen->window()->isVisible())
        Shown(screen->window());
    QList<QWidget*> seen;
    for (QWidget* control : controls)
        if (!leftOut.contains(control->objectName()))
            seen.append(control);
    for (const QWidget* control : seen)
        CheckPlace(screen, control);
    CheckOverlaps(screen, seen);
    CheckTabOrder(screen, seen);
    CheckReading(screen, sharedMnemonics);
    CheckLongTexts(screen);
}

QString ScreenText(const QWidget* screen)
{
    QString text = QStringLiteral("== ") + screen->windowTitle() + u'\n';
    for (const QWidget* widget : screen->findChildren<QWidget*>())
        if (const QString caption = Caption(widget); widget->isVisibleTo(screen) && !caption.isEmpty())
            text += caption + u'\n';
    return text;
}

QStringList ControlNames(const QList<QWidget*>& controls)
{
    QStringList names;
    for (const QWidget* control : controls)
        names.append(QStringLiteral("%1 %2").arg(control->objectName(), Caption(control)).trimmed());
    return names;
}

QString ScreenValues(const QList<QWidget*>& controls)
{
    QString text;
    for (const QWidget* control : controls) {
        if (qobject_cast<const QPushButton*>(control))
            continue;
        text += QString(control->objectName() + QStringLiteral(": ") + ValueOf(control)).trimmed();
        text += control->isVisible() ? QString() : QStringLiteral(" (hidden)");
        text += (control->isEnabled() ? QString() : QStringLiteral(" (off)")) + u'\n';
    }
    return text;
}
