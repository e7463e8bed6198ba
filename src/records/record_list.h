#pragma once

#include "controls/filter_line.h"
#include "controls/flex_grid.h"
#include "db/connection.h"
#include "db/file_changes.h"

#include <QPushButton>

#include <functional>

class QMenu;

/// Writes the cell of a column from a row of the list's statement, with one `fill.Add`. `field` is the ordinal of the
/// column's field. What a writer remembers from row to row starts anew with each load.
using CellWriter = std::function<void(const Recordset& row, int field, GridFill& fill)>;

/// Whether a column takes up the width that the others leave: when the list is set up, when it gets another size.
enum class Spare { No, AtLoad, AtResize, Always };

/// The sort expression of a column whose title brings back the list's default order, and of one without an expression.
inline constexpr const char* DefaultOrder = "";
inline constexpr const char* NoOrder = nullptr;

/// All that is to be told of one column of a list.
struct ListColumn {
    const char* field; ///< of the list's statement
    QString title;
    int width; ///< twips
    CellAlign titleAlignment;
    CellAlign alignment; ///< of the cells
    const char* order; ///< sort expression for a click on the title
    Spare spare = Spare::No;
    CellWriter cell = {}; ///< none: the text of the field, "" for Null
};

/// A list over the rows of a statement, which knows its columns: their order is told once, where they are told.
class RecordList : public FlexGrid {
    Q_OBJECT
public:
    explicit RecordList(QWidget* parent = nullptr);

    /// Tells the columns and sets them up.
    void SetColumns(const QList<ListColumn>& columns);
    /// What a stretched list leaves free, in twips; 400 unless another is told.
    void SetScrollBarRoom(int twips) { m_scrollBarRoom = twips; }
    /// Gives the columns their titles and told widths; the column for spare width at load then takes what is left.
    void SetUpColumns();
    /// Gives the column for spare width at a resize what the others and the scroll bar leave, if anything is left.
    void Stretch();
    /// Lets the list stretch by itself whenever it gets another size.
    void StretchWithSize();

    /// The title over a field's column, and the cell of it in a row.
    void SetTitleOf(const char* field, const QString& title);
    QString CellText(int row, const char* field) const { return TextMatrix(row, ColumnOf(field)); }

    /// The field's column where rows that `GridFill::MarkRow` marked bear a sign, and what it means.
    void SetMarkOf(const char* field, const QString& meaning) { SetMark(ColumnOf(field), meaning); }

    /// The buttons that a right click on a row offers beside Copy, Filter and Sort By; the keys in their tooltips stand
    /// there too.
    void OfferOnRows(const QList<QPushButton*>& buttons) { m_buttons = buttons; }
    /// Down in one of the boxes by which the list is searched goes into the rows.
    void LetDownEnter(std::initializer_list<QWidget*> boxes);
    /// Opens the line under the list that filters it.
    void OpenFilter();
    /// Closes it, so that all rows show.
    void CloseFilter();
    /// Runs `add`, which may add a record and then loads the list: a filter that could hide that record closes.
    void ShowAdded(const std::function<void()>& add);
    /// There are rows, but none that the filter shows: then none is current.
    bool HidesAllRows() const { return Rows() > 1 && ShownRows() == 0; }

    /// Column widths between runs, under the list's own name. Only stored widths above 0 are restored.
    void SaveWidths() const;
    void RestoreWidths();

    /// The statement with " ORDER BY " and the sort expression, or `defaultOrder`; `head` ends in a blank.
    Sql Ordered(const QString& head, const char* defaultOrder) const;

    /// Cuts the list to its title row and fills it from `sql`, whose first column is the row data, the id. Selects the
    /// row of `selectId`, else row number `row`, pulled back to the last row. Redraw is off meanwhile. A list that
    /// holds the rows of this statement already, with nothing written to the file since, keeps them. Throws
    /// RuntimeError when the statement fails.
    void Load(const Sql& sql, int row, qint64 selectId);
    /// As Load, leaving out the rows for which `isShown` is false. `choice` tells what it chooses by: with another one
    /// the list is filled anew.
    using RowFilter = std::function<bool(const Recordset& row)>;
    void LoadSome(const Sql& sql, int row, qint64 selectId, const RowFilter& isShown, const QString& choice);
    /// As Load, with all cells of a row added by `cells`, and always filled anew.
    using RowWriter = std::function<void(const Recordset& row, GridFill& fill)>;
    void LoadRows(const Sql& sql, int row, qint64 selectId, const RowWriter& cells);

    /// Selects as Load does, in the rows that there are.
    void SelectRecord(int row, qint64 selectId);

    /// Fills anew the row of the one record that `sql` selects, or adds it as the last row, and paints it alone.
    /// Selects nothing. False, having done nothing, while a filter hides rows. Throws RuntimeError when the statement
    /// fails.
    bool LoadRow(const Sql& sql, const RowWriter& cells);

    /// After a load a selected row that was out of view comes to the top, in place of the nearest edge.
    void ShowFoundRowOnTop() { m_foundRowOnTop = true; }

signals:
    /// A title of a list that sorts was clicked or chosen from the menu, and has set the order: the moment to load.
    void Sorted();
    /// A double click or Enter on a row that is not the title row.
    void Opened();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    int ColumnOf(const char* field) const;
    /// The column by which the list is sorted; -1 for none.
    int SortedColumn() const;
    void ShowOrder();
    void ShowMenu(const QPoint& where);
    /// The titles that sort the list, with the sorted one checked.
    void AddOrders(QMenu* menu);
    int SumOfWidths() const;
    /// What the cells come from, apart from the rows of the file.
    struct Source {
        QString statement;
        QString choice;
        int formats = 0; ///< of numbers and dates
        int rowChanges = 0; ///< of the grid, after the fill
        bool operator==(const Source&) const = default;
    };
    Source SourceNow(const Sql& sql, const QString& choice) const;
    /// Whether the list holds what `source` and the file would fill it with.
    bool Holds(const Source& source);
    /// Returns the row that `selectId` has come to, the last one where there are more; 0 for none.
    int Fill(const Sql& sql, qint64 selectId, const RowFilter& isShown, const RowWriter& cells);
    void SelectLoaded(int row, int foundRow);
    void GiveSpareWidth(Spare when, int room);
    void SortByTitle();
    void SortBy(int col);

    QList<ListColumn> m_columns;
    int m_scrollBarRoom = 400;
    bool m_sorts = false;
    bool m_foundRowOnTop = false;
    Source m_source;
    FileChanges m_file;
    QList<QPushButton*> m_buttons;
    FilterLine* m_filterLine = nullptr;
};
