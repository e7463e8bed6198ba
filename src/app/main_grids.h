#pragma once

#include "records/lists.h"

#include <QList>

class MainWindow;

/// A list grid of the main window: its columns, and the column that takes up spare width, which at load may be another
/// than when the window is resized.
struct MainGrid {
    FlexGrid* grid;
    QList<GridColumn> columns;
    int stretchAtLoad;
    int stretchAtResize;
    int marginAtResize; ///< twips; room for the scroll bar
};

/// The six grids in the order in which the load sets them up.
QList<MainGrid> MainGrids(const MainWindow& window);

void SetUpMainGrids(const MainWindow& window);
/// Lets each grid's stretch column take up what the other columns leave.
void StretchMainGrids(const MainWindow& window);

/// Column widths between runs: stored when the window closes, restored as the last step of the start.
void SaveMainGridWidths(const MainWindow& window);
void RestoreMainGridWidths(const MainWindow& window);
