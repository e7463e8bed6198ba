#pragma once

#include "controls/combo_box.h"
#include "controls/flex_grid.h"

#include <QDialog>
#include <QListWidget>
#include <QWidget>

#include <functional>
#include <stdexcept>
#include <typeinfo>

/// Driving screens as a user does: real key and mouse events. A control that cannot be reached (hidden, switched off,
/// behind a modal form) fails the test.

void FailToFind(const QObject* root, const char* name);

/// The control or action of this name below `root`, or `root` itself.
template <typename T>
T* Find(QObject* root, const char* name)
{
    if (auto* self = dynamic_cast<T*>(root); self && root->objectName() == QLatin1String(name))
        return self;
    if (T* found = root->findChild<T*>(QLatin1String(name)))
        return found;
    FailToFind(root, name);
    throw std::runtime_error(std::string("no control ") + name);
}

/// Shows a top-level widget (without running it modally) and waits until it is active, so that focus events work.
void Shown(QWidget* window);

/// A click of the left button in the middle (of a check box or option: on its box).
void Click(QWidget* control);
/// Focuses the control, selects its text and types over it. "" deletes it.
void Type(QWidget* control, const QString& text);
/// A key press and release, to the control (or its focus part) when one is given.
void Press(QWidget* control, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
/// Tab and Shift+Tab from the control that has the focus.
void Tab(Qt::Key key = Qt::Key_Tab, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
inline void BackTab()
{
    Tab(Qt::Key_Backtab, Qt::ShiftModifier);
}
/// Drops the list down and picks the entry of this text.
void Pick(QComboBox* combo, const QString& entry);

/// Mouse on a grid. Rows count from 1; the row is scrolled into view first.
void ClickRow(FlexGrid* grid, int row, bool twice = false);
inline void DoubleClickRow(FlexGrid* grid, int row)
{
    ClickRow(grid, row, true);
}
void ClickTitle(FlexGrid* grid, int col);
/// The texts of all data rows, and of the title row.
QList<QStringList> GridRows(const FlexGrid* grid);
QStringList GridTitles(const FlexGrid* grid);
/// The texts of one column of the data rows.
QStringList GridColumn(const FlexGrid* grid, int col = 0);
/// The texts of a list, of a drop-down list or any other.
QStringList Entries(const QAbstractItemModel* list);
template <typename List>
QStringList Entries(const List* list)
{
    return Entries(list->model());
}

/// Queues `visit` for the next modal form that `matches`; null lets the program itself close it. Use WhenFormShows.
void WhenDialogShows(const char* what, std::function<bool(QDialog*)> matches, std::function<void(QDialog*)> visit);

/// Runs `visit` once, as soon as a modal form of this class is up. `visit` must close it. The test fails when it is
/// left open, when no such form shows before the test ends, and when a modal form shows that nobody awaits.
template <typename FormClass>
void WhenFormShows(std::function<void(FormClass&)> visit)
{
    WhenDialogShows(
        typeid(FormClass).name(), [](QDialog* dialog) { return dynamic_cast<FormClass*>(dialog) != nullptr; },
        [visit](QDialog* dialog) { visit(*dynamic_cast<FormClass*>(dialog)); });
}

/// Called by the test program before and after each test.
void StartWatchingForms();
void CheckAwaitedForms();
