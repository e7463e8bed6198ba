#pragma once

#include <QList>
#include <QString>

class MainWindow;
class QToolBar;

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

/// Makes the buttons, the web orders picture among them, and connects them.
void BuildToolbar(MainWindow& window, QToolBar* toolbar);
