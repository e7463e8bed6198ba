#include "controls/form.h"

#include "controls/layout.h"
#include "controls/screen_input.h"
#include "controls/window_place.h"

#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace {
bool IsEnter(const QKeyEvent* event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

QPushButton* DefaultButtonOf(const QWidget* screen)
{
    // Each scan asks, and a screen has hundreds of children to look through.
    static QPointer<QPushButton> last;
    const auto isDefault = [](const QPushButton* button) { return button->isDefault() && button->isVisible(); };
    if (last && screen->isAncestorOf(last) && isDefault(last))
        return last;
    const QList<QPushButton*> buttons = screen->findChildren<QPushButton*>();
    const auto found = std::find_if(buttons.begin(), buttons.end(), isDefault);
    last = found == buttons.end() ? nullptr : *found;
    return last;
}

/// The button that has the focus, unless it is one to be ticked; or else the default button.
QAbstractButton* ButtonForEnter(const QWidget* screen)
{
    QWidget* focused = screen->window()->focusWidget();
    const bool isPressed = qobject_cast<QPushButton*>(focused) || qobject_cast<QToolButton*>(focused);
    return isPressed && screen->isAncestorOf(focused) ? static_cast<QAbstractButton*>(focused)
                                                      : DefaultButtonOf(screen);
}

// Qt alone gives Enter to the default button even when another button has the focus.
void RunButtonForEnter(const QWidget* screen, QKeyEvent* event)
{
    event->accept();
    QAbstractButton* button = ButtonForEnter(screen);
    if (button && button->isEnabled())
        button->click();
}

// A button that takes over as default by having the focus would outrank the form's own default button.
void SwitchAutoDefaultOff(QWidget* screen)
{
    for (QPushButton* button : screen->findChildren<QPushButton*>())
        button->setAutoDefault(false);
}
} // namespace

Form::Form(const char* name, const QString& title, QWidget* parent)
    : QDialog(parent)
{
    LetAccessKeysFocus();
    setObjectName(QLatin1String(name));
    setWindowTitle(title);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
}

void Form::ShowModal()
{
    exec();
}

void Form::SetCancelButton(QPushButton* button)
{
    m_cancelButton = button;
    On(button, &QPushButton::clicked, this, [this] {
        if (isVisible())
            reject();
    });
}

void Form::Cancel()
{
    if (!m_cancelButton)
        reject();
    else if (m_cancelButton->isEnabled())
        m_cancelButton->click();
}

void Form::done(int result)
{
    QDialog::done(result);
    // The second click of a double click on OK may be under way; it would save once more.
    setEnabled(false);
}

void Form::setVisible(bool visible)
{
    const bool isFixed = minimumSize() == maximumSize();
    // A page of a wizard opens where the one before was.
    const bool isPlaced = m_prepared || testAttribute(Qt::WA_Moved);
    if (visible && !isFixed && !isPlaced)
        RememberPlace(this);
    QDialog::setVisible(visible);
}

void Form::showEvent(QShowEvent* event)
{
    if (!m_prepared) {
        m_prepared = true;
        SwitchAutoDefaultOff(this);
        ApplyTabOrder(this);
    }
    setEnabled(true);
    QDialog::showEvent(event);
    if (QWidget* first = FirstToFocus(); first && !focusWidget())
        first->setFocus(Qt::ActiveWindowFocusReason);
}

void Form::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(event))
        return RunButtonForEnter(this, event);
    if (event->matches(QKeySequence::Cancel)) {
        Cancel();
        return event->accept();
    }
    QDialog::keyPressEvent(event);
}

Panel::Panel(const char* name, QWidget* parent)
    : QWidget(parent)
    , m_topIcon(new QLabel(this))
    , m_title(heading(QString()))
{
    LetAccessKeysFocus();
    setObjectName(QLatin1String(name));
    m_title->setParent(this);
    m_title->setObjectName(QStringLiteral("lblTitle"));
    m_topIcon->setObjectName(QStringLiteral("picTopIcon"));
    m_topIcon->hide();
    m_title->hide();
}

void Panel::SetTitle(const QString& title)
{
    m_title->setText(title);
}

QString Panel::Title() const
{
    return m_title->text();
}

QLayout* Panel::head(const QString& title, const QString& instructionText)
{
    SetTitle(title);
    m_topIcon->show();
    m_title->show();
    return column({
        row({m_topIcon, m_title, stretch()}),
        instructions(instructionText),
    });
}

void Panel::showEvent(QShowEvent* event)
{
    if (!m_prepared) {
        m_prepared = true;
        SwitchAutoDefaultOff(this);
        ApplyTabOrder(this);
    }
    if (!event->spontaneous())
        KeepGestureOff(this);
    QWidget::showEvent(event);
}

void Panel::keyPressEvent(QKeyEvent* event)
{
    if (IsEnter(event) && !(event->modifiers() & ~Qt::KeypadModifier))
        return RunButtonForEnter(this, event);
    QWidget::keyPressEvent(event);
}

void SetDefaultButton(QPushButton* button, bool on)
{
    const QWidget* screen = button;
    while (screen && !dynamic_cast<const Panel*>(screen) && !screen->isWindow())
        screen = screen->parentWidget();
    if (on && screen)
        for (QPushButton* other : screen->findChildren<QPushButton*>())
            if (other != button)
                other->setDefault(false);
    button->setDefault(on);
}
