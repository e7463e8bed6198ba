#include "steps.h"

#include "support/screen.h"

#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include <map>
#include <string>

namespace {

/// The number of the first row that shows `text` in column `col`, 0 for none.
int RowOf(const FlexGrid* grid, int col, const QString& text)
{
    for (int row = 1; row < grid->Rows(); ++row)
        if (grid->TextMatrix(row, col) == text)
            return row;
    return 0;
}

struct MenuPlace {
    const char* menu;
    const char* entry;
};

/// By the names of their pictures. Each look enters itself before main begins.
std::map<std::string, MenuPlace>& Looks()
{
    static std::map<std::string, MenuPlace> looks;
    return looks;
}

} // namespace

void At(const char* formName, const std::function<void(QDialog&)>& visit)
{
    WhenDialogShows(
        formName, [formName](QDialog* dialog) { return dialog->objectName() == QLatin1String(formName); },
        [visit](QDialog* dialog) { visit(*dialog); });
}

void AnswerBox(Album& album, const char* picture, QMessageBox::StandardButton answer)
{
    At("MsgBox", [&album, picture, answer](QDialog& box) {
        album.Take(picture);
        Click(qobject_cast<QMessageBox*>(&box)->button(answer));
    });
}

void ClickToolbar(MainWindow& window, const char* key)
{
    Click(window.Toolbar->widgetForAction(Find<QAction>(window.Toolbar, key)));
}

void ChooseFromMenu(MainWindow& window, const char* menuName, const char* entryName, Album& album, const char* picture)
{
    auto* menu = Find<QMenu>(&window, menuName);
    auto* entry = Find<QAction>(menu, entryName);
    const QRect title = window.menuBar()->actionGeometry(menu->menuAction());
    QTest::mouseClick(window.menuBar(), Qt::LeftButton, Qt::NoModifier, title.center());
    album.Take(picture);
    QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(entry).center());
}

void ClickRowOf(FlexGrid* grid, int col, const char* text)
{
    ClickRow(grid, RowOf(grid, col, QString::fromUtf8(text)));
}

Look::Look(const char* picture, const char* menuName, const char* entryName)
{
    Looks().insert({picture, {menuName, entryName}});
}

void Look::TakeAll(MainWindow& window, Album& album)
{
    for (const auto& [picture, place] : Looks()) {
        WhenDialogShows(
            place.entry, [](QDialog*) { return true; },
            [&album, name = picture](QDialog* dialog) {
                album.Take(name.c_str());
                Press(dialog, Qt::Key_Escape);
            });
        ChooseFromMenu(window, place.menu, place.entry, album, (picture + "-in-the-menu").c_str());
    }
}
