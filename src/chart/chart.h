#pragma once

#include "chart/chart_data.h"

#include <QColor>
#include <QFrame>

#include <optional>

/// A chart of series over labelled rows, in one of eight styles. It has a current cell, (Row, Column), to which data
/// and labels are written; rows and columns count from 1. However many cells are set, it is drawn once when the handler
/// that set them has ended.
///
/// The user reads values by the mouse or the arrow keys, and copies, saves or prints the picture from its menu.
class Chart : public QFrame {
    Q_OBJECT
public:
    explicit Chart(QWidget* parent = nullptr);
    ~Chart() override;

    bool ShowLegend() const { return m_showLegend; }
    void SetShowLegend(bool show);
    ChartType Type() const { return m_type; }
    /// Data and labels stay. Throws RuntimeError 380 for a type that there is not.
    void SetChartType(ChartType type);

    /// The number of series and of categories. Cells that remain keep what they hold, new ones are empty. Throws
    /// RuntimeError 380 below 0.
    int ColumnCount() const { return m_data.ColumnCount(); }
    void SetColumnCount(int columns);
    int RowCount() const { return m_data.RowCount(); }
    void SetRowCount(int rows);

    /// The current cell. Throws RuntimeError 380 outside of the counts.
    int Column() const { return m_column; }
    void SetColumn(int column);
    int Row() const { return m_row; }
    void SetRow(int row);

    /// The current cell's value as text, read by the number rules; "" is a gap in the series. Throws RuntimeError 13
    /// for a text that is no number, 380 while there is no cell.
    QString Data() const;
    void SetData(const QString& text);
    /// The label of the current row, below the category axis.
    QString RowLabel() const;
    void SetRowLabel(const QString& label);
    /// The name of the current column, in the legend and beside its values.
    QString ColumnLabel() const;
    void SetColumnLabel(const QString& label);

    /// The colour of a series (from 1) on this widget's background: red for the first, green for the second.
    QColor SeriesColor(int column) const;
    /// Everything the chart shows as lines of text.
    QString TableText() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void Resize(int rows, int columns);
    void CheckCell() const;
    /// Something that shows has changed: lets the chart be drawn anew when the event loop comes round.
    void Changed();

    ChartData m_data;
    ChartType m_type = VtChChartType3dBar;
    bool m_showLegend = false;
    int m_row = 1;
    int m_column = 1;
};
