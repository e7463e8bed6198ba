#pragma once

#include <QtGlobal>

#include <string>
#include <string_view>
#include <vector>

/// Rows of cells kept close: all texts lie in one arena, and a cell is a place in it. Cells behind the last one that a
/// row was given are empty and take no room, so that one wide row costs the others nothing.
class FlexGridRows {
public:
    explicit FlexGridRows(int cols)
        : m_cols(cols)
    {
    }

    int Cols() const { return m_cols; }
    int Count() const { return int(m_rows.size()); }
    /// How many cells the row was given; those behind them are empty.
    int CellsOf(int row) const { return int(m_rows[size_t(row)].count); }

    /// The next cell of the row being built; further cells than there are columns are an error of the caller.
    void Add(std::string_view utf8);
    /// Marks the row being built.
    void Mark();
    /// Ends the row being built.
    void EndRow(qint64 rowData);

    bool IsMarked(int row) const { return size_t(row) < m_marks.size() && m_marks[size_t(row)]; }
    std::string_view Cell(int row, int col) const;
    void SetCell(int row, int col, std::string_view utf8);
    qint64 Data(int row) const { return m_rows[size_t(row)].data; }
    void SetData(int row, qint64 data) { m_rows[size_t(row)].data = data; }

    void Resize(int rows);
    void SetCols(int cols);

private:
    struct Place {
        quint32 start = 0;
        quint32 length = 0;
    };
    struct Row {
        qint64 data = 0;
        quint32 first = 0; ///< of its cells
        quint32 count = 0;
    };

    Place Append(std::string_view utf8);
    /// Gives the row cells up to this number of them.
    void Widen(Row& row, quint32 count);
    /// Drops the texts that no cell points at any more, and the cells of no row.
    void Compact();

    int m_cols;
    std::string m_arena;
    size_t m_waste = 0;
    std::vector<Place> m_cells;
    std::vector<Row> m_rows;
    std::vector<bool> m_marks; ///< as far as the last marked row
    quint32 m_building = 0; ///< the first cell of the row being built
};
