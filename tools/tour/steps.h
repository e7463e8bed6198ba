#pragma once

#include "album.h"

#include "app/main_window.h"

#include <QDialog>
#include <QMessageBox>

#include <functional>

/// The steps that the walks through the windows are made of.

/// Does `visit` at the next modal form of this name.
void At(const char* formName, const std::function<void(QDialog&)>& visit);
/// Takes a picture of the next message box and presses the button.
void AnswerBox(Album& album, const char* picture, QMessageBox::StandardButton answer);
void ClickToolbar(MainWindow& window, const char* key);
/// Drops the menu down, takes a picture of it and chooses the entry.
void ChooseFromMenu(MainWindow& window, const char* menuName, const char* entryName, Album& album, const char* picture);
/// Clicks the first row that shows `text` in column `col`.
void ClickRowOf(FlexGrid* grid, int col, const char* text);

/// A look at a dialog, in a source of its own that no other names: opened from the menu, and closed by Esc once its
/// picture is taken.
class Look {
public:
    Look(const char* picture, const char* menuName, const char* entryName);

    /// Takes all that there are, in the order of their names.
    static void TakeAll(MainWindow& window, Album& album);
};
