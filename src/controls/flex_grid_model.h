#pragma once

#include "controls/cell_align.h"
#include "controls/flex_grid_rows.h"
#include "controls/row_search.h"

#include <QAbstractTableModel>

#include <vector>

/// A cell as it is painted.
struct CellLook {
    QString text; ///< or as much of it as can be seen
    Qt::Alignment alignment;
    bool isMarked = false;
    bool isTinted = false;
};

/// The grid's rows as Qt sees them: without the title row, so that list row 0 is grid row 1. The row data is
/// `Qt::UserRole` of column 0. A filter hides rows from the views alone: `place` is a row's number among those that
/// show, which is Qt's row, `row` its number in the whole list.
class FlexGridModel : public QAbstractTableModel {
public:
    explicit FlexGridModel(QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// All that a cell's painter asks for, which takes a fifth of asking role by role.
    CellLook Look(const QModelIndex& cell) const;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// The row that is tinted; -1 for none.
    void SetTinted(int row) { m_tinted = row; }
    int Tinted() const { return m_tinted; }

    /// Of the whole list; `row` and `col` must be in range.
    int Count() const { return m_rows.Count(); }
    QString Text(int row, int col) const;
    std::string_view Utf8(int row, int col) const { return m_rows.Cell(row, col); }
    /// The cells of the row behind this many are empty.
    int CellsOf(int row) const { return m_rows.CellsOf(row); }
    /// While no filter hides rows.
    void SetText(int row, int col, const QString& text);
    qint64 RowData(int row) const { return m_rows.Data(row); }
    void SetRowData(int row, qint64 data);

    QString Title(int col) const { return m_columns[size_t(col)].title; }
    void SetTitle(int col, const QString& title);
    void SetTitleAlignment(int col, CellAlign alignment);
    void SetAlignment(int col, CellAlign alignment);
    /// The column where marked rows bear the mark, and what it means.
    void SetMark(int col, const QString& meaning);

    /// More rows only while no filter hides any.
    void SetRowCount(int rows);
    void SetColumnCount(int cols);
    /// The first of `cells` in place of a row, and as a row at the end, while no filter hides any.
    void ReplaceRow(int row, const FlexGridRows& cells);
    void AppendRow(const FlexGridRows& cells);
    /// All rows at once, with one reset.
    void Replace(FlexGridRows rows);
    /// Another number after each change of the rows.
    int RowChanges() const { return m_rowChanges; }

    /// With one reset; "" lets all rows show.
    void SetFilter(const QString& words);
    const QString& Filter() const { return m_filter; }
    bool IsFiltered() const { return !m_words.isEmpty(); }
    /// Lets a row show that the filter hides, until the rows or the filter change.
    void Reveal(int row);
    /// Hides again what was revealed.
    void FilterAnew();
    int RowAt(int place) const { return IsFiltered() ? m_shown[size_t(place)] : place; }
    /// The place of the row, or where it is hidden of the next that shows, or else the last; -1 when none shows.
    int NearestPlace(int row) const;
    /// The row, from a place on and around, whose shown text in a column begins with `start`, whatever its case; -1 for
    /// none.
    int FindStart(int col, const QString& start, int fromPlace) const;

    /// A text as a cell shows it: on one line, and no longer than a screen could hold.
    static QString OnOneLine(QString text);

private:
    struct Column {
        QString title;
        CellAlign titleAlignment = CellAlign::General;
        CellAlign alignment = CellAlign::General;
    };

    Qt::Alignment CellAlignment(int row, int col) const;
    /// The text, or as much of it as can be seen.
    QString ShownText(int row, int col) const;
    bool IsMarked(int row, int col) const { return col == m_markedColumn && m_rows.IsMarked(row); }
    /// How many of the first `rows` rows show.
    int ShownAmong(int rows) const;
    void FindShown();

    FlexGridRows m_rows;
    int m_rowChanges = 0;
    std::vector<Column> m_columns;
    int m_tinted = -1;
    int m_markedColumn = -1;
    QString m_markMeaning;

    QString m_filter;
    QStringList m_words;
    RowSearch m_search;
    std::vector<int> m_shown; ///< the rows that show while there is a filter
};
