#pragma once

#include "chart/chart_data.h"

#include <QColor>
#include <QFrame>

#include <memory>
#include <optional>

class QMenu;
struct ChartScene;

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

    // Points, and the rows and columns of these routines, count from 0.

    /// The value that is drawn at a place of the widget.
    std::optional<ChartPoint> PointAt(QPoint place) const;
    /// Where a value is drawn; empty for a gap.
    QRect PointRect(ChartPoint point) const;
    /// The value that the arrow keys or a click came to.
    std::optional<ChartPoint> MarkedPoint() const { return m_marked; }
    void MarkPoint(std::optional<ChartPoint> point);

    const QString& LabelOf(int row) const { return m_data.RowLabel(row); }
    /// The column's label, or its number where it has none.
    QString SeriesName(int column) const;
    /// A value in the user's number format; "" for a gap.
    QString ValueText(ChartPoint point) const;
    /// What the tip over a value says: row, series where there are several, and value.
    QString PointText(ChartPoint point) const;
    /// The kind of chart and how much it shows, in a sentence.
    QString Summary() const;
    /// All labels and values, a line for each row.
    QString TableText() const;

    /// Puts the picture on the clipboard, on white whatever the colours of the desktop are.
    void Copy();
    /// Asks for a file and saves the picture there as PNG or SVG, by the ending of its name. A failure is told.
    void SaveAs();
    /// Asks for a printer and prints the picture on one page. A failure, and that there is no printer, is told.
    void Print();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void Resize(int rows, int columns);
    void CheckCell() const;
    /// Something that shows has changed: lets the chart be drawn anew when the event loop comes round.
    void Changed();
    void Redraw();
    void SetUpReading();
    void BuildMenu();

    ChartScene BuildSceneFor(QSize size, double pixel) const;
    const ChartScene& Scene() const;
    QFont PictureFont() const;
    QString NoDataText() const;
    /// The picture as it leaves the program: light, and without marks.
    void PaintPicture(QPainter& painter, double pixel) const;

    void Hover(std::optional<ChartPoint> point, QPoint place);
    void ShowTip(ChartPoint point, QPoint place);
    /// From the marked value by so many rows and columns, over gaps; nothing when there is none that way.
    std::optional<ChartPoint> Neighbour(int rows, int columns) const;
    std::optional<ChartPoint> FirstValue(int fromRow, int step) const;
    void WalkTo(std::optional<ChartPoint> point);

    ChartData m_data;
    ChartType m_type = VtChChartType3dBar;
    bool m_showLegend = false;
    int m_row = 1;
    int m_column = 1;

    mutable std::unique_ptr<ChartScene> m_scene; ///< as it was last worked out; none since something changed
    bool m_redrawPending = false;
    std::optional<ChartPoint> m_marked;
    std::optional<ChartPoint> m_hovered;
    QMenu* m_menu;
};
