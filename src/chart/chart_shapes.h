#pragma once

#include "chart/chart_data.h"
#include "chart/value_axis.h"

#include <QList>
#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

/// Where the values stand. In a style with depth it is a room seen from the right and above: `front` is its open side,
/// and what lies deeper moves by up to `depth`, to the right and up. All is worked out for a reader from left to right;
/// a chart for the other direction is its mirror image.
struct PlotRoom {
    QRectF front;
    QPointF depth; ///< none in flat styles
    ValueAxis axis;
    int rows = 0;
    double pixel = 1; ///< the size of a dot of the device, on whose borders upright edges come to lie

    double SlotWidth() const { return front.width() / std::max(1, rows); }
    double SlotLeft(int row) const { return front.left() + row * SlotWidth(); }
    double RowCentre(int row) const { return front.left() + (row + 0.5) * SlotWidth(); }
    double Y(double value) const { return front.bottom() - axis.Share(value) * front.height(); }
    /// The row at a place along the front.
    int RowAt(double x) const;
};

enum class FaceKind {
    Front, ///< closed, towards the reader
    Side, ///< a front edge drawn out into the depth: its corners are the edge's two ends and then those further back
    Line, ///< open: the stroke along a series' values
    Ridge, ///< open: the upper edge of a series, seen through what stands before it
};

/// One painted piece of a series.
struct Face {
    FaceKind kind = FaceKind::Front;
    int column = 0;
    int firstRow = 0; ///< the rows whose values it shows
    int lastRow = 0;
    QList<QPointF> outline;
    double light = 1; ///< what the lamp at the upper left leaves of the series' colour; above 1 is brighter
};

/// What is painted of the data, in the order of painting: from the back to the front.
struct ChartShapes {
    std::vector<Face> faces;
    /// For each column the offset of its front from that of the room.
    std::vector<QPointF> lanes;
    /// The place of each value, row by row: the top of its bar, the point of its line.
    std::vector<std::optional<QPointF>> places;
    int columns = 0;

    /// Where a value stands in `places`.
    size_t PlaceNumber(int row, int column) const { return size_t(row) * size_t(columns) + size_t(column); }
    std::optional<QPointF> Place(ChartPoint point) const { return places[PlaceNumber(point.row, point.column)]; }
};

/// Which of two series stand before the other so that both can be read: the columns from the back to the front.
std::vector<int> BackToFront(const ChartData& data);

ChartShapes BuildShapes(const ChartData& data, ChartType type, const PlotRoom& room);

/// The value whose shape is seen at a place, or whose line passes close by.
std::optional<ChartPoint> PointAt(const ChartShapes& shapes, const PlotRoom& room, QPointF place);
