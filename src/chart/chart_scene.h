#pragma once

#include "chart/chart_data.h"
#include "chart/chart_shapes.h"

#include <QLocale>
#include <QRectF>
#include <QSizeF>

#include <functional>
#include <optional>
#include <vector>

/// How wide the chart's texts are in its font.
struct TextRuler {
    std::function<double(const QString& text)> width;
    /// The text, cut short with an ellipsis where it is wider than that.
    std::function<QString(const QString& text, double width)> elided;
    double lineHeight = 0;
};

/// What a picture of a chart is made for.
struct ChartRequest {
    ChartType type = VtChChartType3dBar;
    QSizeF size;
    double pixel = 1; ///< the size of a dot of the device
    bool showLegend = false;
    bool rightToLeft = false;
    TextRuler ruler;
    QLocale locale;
};

enum class TextRole { Value, Category, Legend };

/// A text in its place: it fills `box`, which is turned by `degrees` about `pivot`.
struct ChartText {
    TextRole role = TextRole::Value;
    QString text;
    QRectF box;
    QPointF pivot;
    double degrees = 0;
    int index = 0; ///< the axis line, row or column that it names
};

/// A whole picture, worked out: where the room, its texts and the shapes stand. `room` and `shapes` are for a reader
/// from left to right and mirrored when painted; texts, swatches and points stand where they are seen.
struct ChartScene {
    ChartType type = VtChChartType3dBar;
    QSizeF size;
    bool mirrored = false;
    PlotRoom room;
    ChartShapes shapes;
    std::vector<ChartText> texts;
    std::vector<QRectF> swatches; ///< the legend's colours, one for each column

    QPointF Mirrored(QPointF place) const { return mirrored ? QPointF(size.width() - place.x(), place.y()) : place; }
    QRectF Mirrored(const QRectF& box) const;
    /// The value under the mouse.
    std::optional<ChartPoint> PointAt(QPointF place) const;
    /// Where a value is marked; nothing for a gap.
    std::optional<QPointF> Place(ChartPoint point) const;
};

ChartScene BuildScene(const ChartData& data, const ChartRequest& request);
