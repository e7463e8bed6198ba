#pragma once

#include <QList>
#include <QString>

class MainWindow;

/// A button of the toolbar. Positions 2, 7 and 9 are separators.
struct ToolbarButton {
    int position;
    const char* key; ///< caption and key are the same text
    int imageInImToolbar;
    int imageInImageListXP;
};
const QList<ToolbarButton>& ToolbarButtons();

/// The menu entry that a click on the button with this key runs; "" when the click does nothing.
QString EntryOfToolbarKey(const QString& key);

/// Makes the buttons, the web orders picture among them, and connects them. The menus must stand.
void BuildToolbar(MainWindow& window);
/// Gives the other buttons, and on the classic look the panels' heads, their pictures.
void SetupToolbar(MainWindow& window);
