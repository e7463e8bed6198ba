#pragma once

#include <QList>

class MainWindow;

/// A row of the menu table. A menu stands in the menu bar; an entry stands in the menu last begun.
struct MenuRow {
    enum class Kind { Menu, Entry, Separator };
    enum class State { On, SwitchedOff };
    using Action = void (*)(MainWindow&);

    Kind kind;
    const char* name; ///< the control's name; "" for a separator
    const char* caption;
    Action action; ///< null for an entry whose screen is not built: it is greyed
    State state; ///< switched-off rows are greyed and nothing switches them on
};

/// The whole menu, in order.
const QList<MenuRow>& MenuTable();

/// Fills the menu bar from the table. Each entry's action has the control's name and runs guarded.
void BuildMenus(MainWindow& window);
