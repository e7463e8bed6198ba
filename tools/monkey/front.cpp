#include "front.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QHash>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QWindow>

namespace {

bool IsBlocked(const QWidget* window)
{
    const QWidget* modal = QApplication::activeModalWidget();
    return modal && window != modal
        && !modal->windowHandle()->isAncestorOf(window->windowHandle(), QWindow::IncludeTransients);
}

/// A label with a link, a chart, a list's own viewport: what a click may reach.
bool IsInFront(const QWidget* widget)
{
    return widget->isVisible() && !widget->visibleRegion().isEmpty();
}

template <typename... Kinds>
bool IsAny(const QWidget* widget)
{
    return (qobject_cast<const Kinds*>(widget) || ...);
}

int Weight(const QWidget* widget)
{
    constexpr int Rare = 1;
    constexpr int Usual = 4;
    constexpr int Often = 8;
    if (!widget->isEnabled())
        return Rare;
    if (IsAny<QAbstractButton, QLineEdit, QComboBox>(widget))
        return Often;
    if (IsAny<QAbstractSpinBox, QTabBar, QMenuBar>(widget))
        return Usual;
    // The viewport of a list, not of the page that scrolls.
    if (IsAny<QAbstractItemView, QPlainTextEdit>(widget->parentWidget()))
        return qobject_cast<const QHeaderView*>(widget->parentWidget()) ? Usual : Often;
    return Rare;
}

QList<QWidget*> ControlsOf(QWidget* window)
{
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>())
        if (widget->window() == window && IsInFront(widget))
            controls.append(widget);
    return controls;
}

} // namespace

QList<QWidget*> AllWindows()
{
    // Qt keeps its windows in order, its widgets in none.
    QHash<const QWindow*, QWidget*> widgets;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (widget->windowHandle())
            widgets.insert(widget->windowHandle(), widget);
    QList<QWidget*> windows;
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (QWidget* widget = widgets.value(window))
            windows.append(widget);
    return windows;
}

QList<QWidget*> OpenWindows()
{
    if (QWidget* popup = QApplication::activePopupWidget())
        return {popup};
    QList<QWidget*> windows;
    for (QWidget* window : AllWindows())
        if (window->isVisible() && window->windowType() != Qt::ToolTip && !IsBlocked(window))
            windows.append(window);
    return windows;
}

bool FocusAWindow()
{
    const QWindow* focus = QGuiApplication::focusWindow();
    const QList<QWidget*> windows = OpenWindows();
    if (windows.isEmpty() || QApplication::activePopupWidget())
        return false;
    for (const QWidget* window : windows)
        if (window->windowHandle() == focus)
            return false;
    QWidget* modal = QApplication::activeModalWidget();
    (modal ? modal : windows.constLast())->activateWindow();
    return true;
}

QWidget* PickControl(QWidget* window, Dice& dice)
{
    const QList<QWidget*> controls = ControlsOf(window);
    int weights = 0;
    for (const QWidget* control : controls)
        weights += Weight(control);
    if (weights == 0)
        return nullptr;
    int drawn = dice.Between(1, weights);
    for (QWidget* control : controls)
        if ((drawn -= Weight(control)) <= 0)
            return control;
    return nullptr;
}

QWidget* PickTextBox(QWidget* window, Dice& dice)
{
    QList<QWidget*> boxes;
    for (QWidget* control : ControlsOf(window))
        if (control->isEnabled() && IsAny<QLineEdit, QPlainTextEdit>(control))
            boxes.append(control);
    return boxes.isEmpty() ? nullptr : dice.Pick(boxes);
}

QString Described(const QWidget* widget)
{
    if (!widget)
        return QStringLiteral("nothing");
    const QWidget* named = widget;
    while (named->objectName().isEmpty() && named->parentWidget())
        named = named->parentWidget();
    const QWidget* window = widget->window();
    const auto nameOf = [](const QWidget* of) {
        return of->objectName().isEmpty() ? QString::fromLatin1(of->metaObject()->className()) : of->objectName();
    };
    return QStringLiteral("%1 (%2) of %3")
        .arg(nameOf(named), QString::fromLatin1(widget->metaObject()->className()), nameOf(window));
}
