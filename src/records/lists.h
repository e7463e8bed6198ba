#pragma once

#include "controls/combo_box.h"
#include "controls/flex_grid.h"
#include "db/connection.h"

#include <functional>
#include <optional>

/// What lists over the database share.

/// Adds an entry for each row of a statement: its second column's text, its first column as item data. Selects nothing.
void FillCombo(ComboBox* combo, const Sql& sql);
/// Empties `combo` and fills it with the price lists by name.
void FillPriceLists(ComboBox* combo);

/// The skeleton of every list: cuts the grid to its title row, runs `sql`, and for each row lets `cells` add the cells;
/// a row for which it returns nothing is left out, else its id becomes the row data. The row whose id is `selectId` is
/// selected, else row number `row`, pulled back to the last row. Redraw is off meanwhile.
using RowWriter = std::function<std::optional<qint64>(const Recordset& row, GridFill& fill)>;
void LoadList(FlexGrid* grid, const Sql& sql, int row, qint64 selectId, const RowWriter& cells);

/// The statement with " ORDER BY " and the grid's sort expression, or `defaultOrder`; `head` ends in a blank.
Sql Ordered(const QString& head, const FlexGrid* grid, const QString& defaultOrder);

/// A sort by a click on a title: sets the expression of the clicked column (none for a column past the end) and runs
/// `reload`; a click elsewhere does nothing. `expressions` has one entry a column, "" for the default order.
void SortOnTitleClick(FlexGrid* grid, const QStringList& expressions, const std::function<void()>& reload);

/// Column widths between runs, under the grid's own name. Only stored widths above 0 are restored.
void SaveGridColumnWidths(const FlexGrid* grid);
void RestoreGridColumnWidths(FlexGrid* grid);

struct GridColumn {
    const char* title;
    int width; ///< twips
    CellAlign titleAlignment;
};
/// Sets titles, widths and title alignments, then lets column `stretch` take up what the grid's width leaves.
void SetUpColumns(FlexGrid* grid, const QList<GridColumn>& columns, int stretchColumn);
/// Gives column `stretch` the grid's width less the other columns and `margin` twips, if anything is left.
void StretchColumn(FlexGrid* grid, int stretchColumn, int margin);
