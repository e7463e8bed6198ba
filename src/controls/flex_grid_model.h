#pragma once

#include "controls/cell_align.h"

#include <QAbstractTableModel>

#include <string>
#include <vector>

/// Rows of cells kept close: all texts lie in one arena, and a cell is a place in it.
class FlexGridRows {
public:
    explicit FlexGridRows(int cols)
        : m_cols(cols)
    {
    }

    int Cols() const { return m_cols; }
    int Count() const { return int(m_rowData.size()); }

    /// The next cell of the row being built; further cells than there are columns are an error of the caller.
    void Add(std::string_view utf8);
    /// Ends the row being built.
    void EndRow(qint64 rowData);

    std::string_view Cell(int row, int col) const;
    void SetCell(int row, int col, std::string_view utf8);
    qint64 Data(int row) const { return m_rowData[size_t(row)]; }
    void SetData(int row, qint64 data) { m_rowData[size_t(row)] = data; }

    void Resize(int rows);
    void SetCols(int cols);

private:
    struct Place {
        quint32 start = 0;
        quint32 length = 0;
    };

    Place Append(std::string_view utf8);
    /// Drops the texts that no cell points at any more.
    void Compact();

    int m_cols;
    std::string m_arena;
    size_t m_waste = 0;
    std::vector<Place> m_cells;
    std::vector<qint64> m_rowData;
};

/// The grid's rows as Qt sees them: without the title row, so that model row 0 is grid row 1. The row data is
/// `Qt::UserRole` of column 0.
class FlexGridModel : public QAbstractTableModel {
public:
    explicit FlexGridModel(QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

    /// Model rows; `row` and `col` must be in range.
    QString Text(int row, int col) const;
    void SetText(int row, int col, const QString& text);
    qint64 RowData(int row) const { return m_rows.Data(row); }
    void SetRowData(int row, qint64 data);

    QString Title(int col) const { return m_columns[size_t(col)].title; }
    void SetTitle(int col, const QString& title);
    void SetTitleAlignment(int col, CellAlign alignment);
    void SetAlignment(int col, CellAlign alignment);

    void SetRowCount(int rows);
    void SetColumnCount(int cols);
    /// All rows at once, with one reset.
    void Replace(FlexGridRows rows);

private:
    struct Column {
        QString title;
        CellAlign titleAlignment = CellAlign::General;
        CellAlign alignment = CellAlign::General;
    };

    Qt::Alignment CellAlignment(int row, int col) const;

    FlexGridRows m_rows;
    std::vector<Column> m_columns;
};
