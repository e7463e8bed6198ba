#pragma once

#include "controls/cell_align.h"

#include <QElapsedTimer>
#include <QList>
#include <QTableView>
#include <QTimer>

#include <memory>
#include <string_view>
#include <vector>

class FlexGridModel;
class FlexGridRows;
class TitleHeader;

/// A list of rows under a fixed title row. Row 0 is the title row and shows as the header; data rows start at 1. Each
/// row keeps a 64-bit number out of sight, its row data: the id of its record, 0 for none. Widths are twips.
class FlexGrid : public QTableView {
    Q_OBJECT
public:
    explicit FlexGrid(QWidget* parent = nullptr);

    int Rows() const;
    /// Cuts or adds rows at the end; added rows are empty with row data 0. 1 leaves the title row alone.
    void SetRows(int rows);
    int Cols() const;
    void SetCols(int cols);

    /// The current row; 0 is the title row. Setting it or the column resets the selection to the cell. Throws
    /// RuntimeError 30009 / 30010 out of range.
    int Row() const;
    void SetRow(int row);
    int Col() const;
    void SetCol(int col);
    /// Extends the selection of the current row from Col to this column.
    int ColSel() const;
    void SetColSel(int col);
    /// Selects a whole row, as every list shows it: Row, Col 0, ColSel the last column.
    void SelectRow(int row);

    QString TextMatrix(int row, int col) const;
    void SetTextMatrix(int row, int col, const QString& text);
    /// The current cell.
    QString Text() const { return TextMatrix(Row(), Col()); }
    void SetText(const QString& text) { SetTextMatrix(Row(), Col(), text); }

    /// 0 for the title row and for new rows. Throws RuntimeError 381 out of range.
    qint64 RowData(int row) const;
    void SetRowData(int row, qint64 data);
    /// The last row with this row data; 0 for none.
    int RowOf(qint64 rowData) const;
    /// The row data of the current row.
    qint64 CurrentRowData() const { return RowData(Row()); }

    int ColWidth(int col) const;
    /// -1 is the default width, 0 hides the column until it is set again. A column that the user dragged shut reads 0.
    void SetColWidth(int col, int twips);
    /// The width of the grid itself, frame included, in twips.
    int WidthInTwips() const;
    /// Room for a few rows: a small window scrolls its screen before it takes these away.
    QSize sizeHint() const override;

    /// The title row's cell and all data cells of a column have each their own alignment.
    void SetTitle(int col, const QString& title, CellAlign alignment);
    void SetColAlignment(int col, CellAlign alignment);

    /// The cell of the last click or key that opened a row: 0 is the title row.
    int MouseRow() const { return m_mouseRow; }
    int MouseCol() const { return m_mouseCol; }

    /// False stops painting; what is set meanwhile shows with True.
    void SetRedraw(bool on);
    /// The first data row in view.
    int TopRow() const;
    void SetTopRow(int row);
    /// Whether the whole row is in view.
    bool RowIsVisible(int row) const;
    /// Brings a data row into view and tints it for a second, or until the grid is filled anew. Selects nothing.
    void ShowTinted(int row);
    int TintedRow() const; ///< 0 for none

    /// The list's sort expression; "" for its default order.
    const QString& Tag() const { return m_tag; }
    void SetTag(const QString& tag) { m_tag = tag; }

    /// Shows only the rows that hold all of these words, in any order, over all columns and whatever their case; ""
    /// shows all. Rows, their numbers, data and texts stay those of the whole list. Where the filter hides the current
    /// row, the next row that shows is current, or else the last, or else the title row. A fill keeps the filter; rows
    /// that code adds or changes one by one lift it.
    void SetFilter(const QString& words);
    const QString& Filter() const;
    int ShownRows() const;
    /// Lets this row show also where the filter hides it, until the rows or the filter change.
    void Reveal(int row);
    /// Hides again what was revealed.
    void FilterAnew();

    /// The column where what is typed into the list goes to the next row that begins so; -1 for none.
    void SetSearchColumn(int col) { m_searchColumn = col; }
    /// Takes the focus, with the first row selected where none is.
    void EnterRows();
    /// Copies the current row as text, its columns parted by tabs.
    void CopyRow() const;

    /// The column where marked rows bear a sign and a colour, and what these mean.
    void SetMark(int col, const QString& meaning);
    /// The column that bears the arrow; -1 for none.
    void ShowSorted(int col);
    /// What the list says while it has no rows.
    void SetEmptyText(const QString& text);
    const QString& EmptyText() const { return m_emptyText; }

    FlexGridModel* Model() const { return m_model; }

signals:
    /// A click on a title (MouseRow 0) or on a data row.
    void Click();
    /// A double click, or Enter on the current row. Comes after a Click when the mouse made it.
    void DblClick();
    /// The grid has another size: the moment for a list's stretch rule.
    void Resized();

protected:
    /// Draws the frame in the colour of the selection while the grid has the focus.
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void initViewItemOption(QStyleOptionViewItem* option) const override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
    /// Letters that follow each other at once belong together.
    void keyboardSearch(const QString& typed) override;

private:
    void SetUpHeader();
    void MeasureRows();
    void ClickAt(int row, int col);
    void DblClickAt(int row, int col);
    void CheckRow(int row) const;
    void CheckCol(int col) const;
    /// Moves the view's own current cell to where code put it.
    void ShowCurrent();
    /// Gives a row other cells and row data, or adds it at the end, and paints it alone.
    void ReplaceRow(int row, const FlexGridRows& cells);
    void AppendRow(const FlexGridRows& cells);
    /// Paints a row anew, if it is in view.
    void UpdateRow(int row);
    void SetTinted(int row);

    friend class GridFill;

    FlexGridModel* m_model;
    TitleHeader* m_header = nullptr;
    QString m_tag;
    QString m_emptyText;
    std::vector<int> m_twips;
    int m_row = 0;
    int m_col = 0;
    int m_colSel = 0;
    int m_mouseRow = 0;
    int m_mouseCol = 0;
    int m_hiddenRow = 0; ///< was current until the filter hid all rows
    bool m_setByCode = false;
    QTimer m_tintEnd;
    mutable qint64 m_plainPalette = -1; ///< the key of the palette that the striped one was made from
    mutable QPalette m_stripedPalette;
    int m_searchColumn = -1;
    QString m_typed;
    QElapsedTimer m_sinceTyped;
    bool m_foundNone = false;
};

/// Fills a grid with one model reset: rows are gathered out of sight and appear together when it goes out of scope. The
/// title row stays; all data rows are replaced, and Row is 0 until it is set. Or fills a single row, which bears no
/// mark, while no filter is set.
///
///     GridFill fill(grid);
///     while (...) { fill.Add(number); fill.Add(name); fill.EndRow(id); }
class GridFill {
public:
    explicit GridFill(FlexGrid* grid);
    /// For this row alone; a row more than there are comes in at the end.
    GridFill(FlexGrid* grid, int row);
    ~GridFill();
    GridFill(const GridFill&) = delete;
    GridFill& operator=(const GridFill&) = delete;

    /// Lets the rows have this many columns, when that is more than they have; the grid gets them with the rows.
    void Widen(int cols);
    /// The next cell of the row being built; UTF-8 is copied as it is.
    void Add(std::string_view utf8);
    void Add(const QString& text);
    void Add(const char* utf8) { Add(std::string_view(utf8)); }
    /// Lets the row being built bear the mark of the grid.
    void MarkRow();
    /// Ends the row, with missing cells empty. Returns the number of the row, from 1 on.
    int EndRow(qint64 rowData);

private:
    FlexGrid* m_grid;
    std::unique_ptr<FlexGridRows> m_rows;
    int m_row = 0; ///< the only one to fill; 0 for all
};
