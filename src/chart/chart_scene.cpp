#include "chart/chart_scene.h"

#include "chart/category_labels.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double Sine = 0.70710678118654752; ///< of the slant of labels, and its cosine

/// Places the parts from the outside in: the margins and legend, the value axis, the labels below, and in what is left
/// the room of the values. Lengths follow the line height, so that a larger font has the same proportions.
class SceneBuilder {
public:
    SceneBuilder(const ChartData& data, const ChartRequest& request)
        : m_data(data)
        , m_request(request)
        , m_line(request.ruler.lineHeight)
        , m_free(QRectF(QPointF(), request.size).adjusted(m_line, m_line, -m_line, -m_line * 0.8))
    {
        m_scene.type = request.type;
        m_scene.size = request.size;
        m_scene.mirrored = request.rightToLeft;
        m_scene.room.pixel = request.pixel;
        m_scene.room.rows = data.RowCount();
    }

    ChartScene Build()
    {
        if (m_request.showLegend)
            AddLegend();
        PlaceValueAxis();
        PlaceCategoryAxis();
        PlaceRoom();
        AddValueTexts();
        AddCategoryTexts();
        m_scene.shapes = BuildShapes(m_data, m_request.type, m_scene.room);
        return std::move(m_scene);
    }

private:
    double Rows() const { return std::max(1, m_data.RowCount()); }
    double OnPixel(double place) const { return std::round(place / m_request.pixel) * m_request.pixel; }

    /// The names of the series in a line above the plot, centred, each behind its colour.
    void AddLegend()
    {
        const double swatch = m_line * 0.7;
        const double gap = m_line * 0.4;
        const double apart = m_line * 1.4;
        const int columns = m_data.ColumnCount();
        const double most = std::max(0.0, m_free.width() / std::max(1, columns) - swatch - gap - apart);
        QStringList names;
        double width = -apart;
        for (int column = 0; column < columns; ++column) {
            names.append(m_request.ruler.elided(m_data.ColumnLabel(column), most));
            width += swatch + gap + m_request.ruler.width(names.last()) + apart;
        }
        double left = m_free.center().x() - width / 2;
        for (int column = 0; column < columns; ++column) {
            const QRectF colour(left, m_free.top() + (m_line - swatch) / 2, swatch, swatch);
            m_scene.swatches.push_back(m_scene.Mirrored(colour));
            const double textWidth = m_request.ruler.width(names[column]);
            const QRectF box(left + swatch + gap, m_free.top(), textWidth, m_line);
            AddText(TextRole::Legend, names[column], box, box.center(), 0, column);
            left = box.right() + apart;
        }
        m_free.setTop(m_free.top() + 1.8 * m_line);
    }

    void PlaceValueAxis()
    {
        constexpr double LinesAStep = 3;
        constexpr int MostSteps = 8;
        constexpr double MostShare = 0.22; ///< of the width, for the texts of the axis
        const int steps = std::clamp(int(m_free.height() / (LinesAStep * m_line)), 2, MostSteps);
        m_scene.room.axis = NiceAxis(m_data.Least(), m_data.Most(), m_data.IsWhole(), steps);
        m_valueTexts = AxisTexts(m_scene.room.axis, m_request.locale);
        if (Widest(m_valueTexts) > MostShare * m_request.size.width())
            m_valueTexts = ShortAxisTexts(m_scene.room.axis, m_request.locale);
        m_free.setLeft(m_free.left() + Widest(m_valueTexts) + ValueGap());
        // The highest text stands half above its line.
        m_free.setTop(m_free.top() + m_line / 4);
    }

    double ValueGap() const { return m_line * 0.6; }

    double Widest(const QStringList& texts) const
    {
        double widest = 0;
        for (const QString& text : texts)
            widest = std::max(widest, m_request.ruler.width(text));
        return widest;
    }

    /// How far the room goes back: as deep as its bars are, or one lane for each series.
    QPointF Depth() const
    {
        if (!HasDepth(m_request.type))
            return {};
        constexpr double Rise = 0.52;
        const int columns = std::max(1, m_data.ColumnCount());
        double right = columns * std::clamp(m_free.width() * 0.045, 16.0, 36.0);
        if (FamilyOf(m_request.type) == ChartFamily::Bar)
            right = std::clamp(m_free.width() / Rows() / columns * 0.5, 8.0, 30.0);
        right = std::min(right, m_free.width() / 4);
        return {OnPixel(right), -OnPixel(std::min(right * Rise, m_free.height() / 4))};
    }

    void PlaceCategoryAxis()
    {
        constexpr double MostAlong = 0.3; ///< of the width, for one label
        constexpr double MostDown = 0.3; ///< of the height, for slanting ones
        m_depth = Depth();
        m_labels.reserve(size_t(m_data.RowCount()));
        std::vector<double> widths;
        for (int row = 0; row < m_data.RowCount(); ++row) {
            m_labels.push_back(m_request.ruler.elided(m_data.RowLabel(row), MostAlong * m_request.size.width()));
            widths.push_back(m_request.ruler.width(m_labels.back()));
        }
        const double widest = widths.empty() ? 0 : *std::max_element(widths.begin(), widths.end());
        m_plan = PlanCategoryLabels(widths, m_line, (m_free.width() - m_depth.x()) / Rows());
        if (!m_plan.slanted) {
            MakeRoomBeside(widest);
            m_plan = PlanCategoryLabels(widths, m_line, (m_free.width() - m_depth.x()) / Rows());
        }
        if (!m_plan.slanted) {
            m_free.setBottom(m_free.bottom() - LabelGap() - m_line);
            return;
        }
        const double longest = std::min(widest, MostDown * m_request.size.height() / Sine);
        for (QString& label : m_labels)
            label = m_request.ruler.elided(label, longest);
        const double before = longest * Sine - (m_free.width() / Rows() / 2 + m_free.left() - EdgeGap());
        m_free.setLeft(m_free.left() + std::clamp(before, 0.0, m_free.width() / 6));
        m_free.setBottom(m_free.bottom() - LabelGap() - (longest + m_line) * Sine);
    }

    /// What the first and the last label reach beyond their slots still lies in the picture. Where not all labels
    /// stand, the last one that would reach beyond is left out instead.
    void MakeRoomBeside(double widest)
    {
        const double beyond = widest / 2 - m_free.width() / Rows() / 2 + EdgeGap();
        const double most = m_free.width() / 5;
        m_free.setLeft(m_free.left() + std::clamp(beyond - m_free.left(), 0.0, most));
        const double behind = m_request.size.width() - m_free.right() + m_depth.x();
        if (m_plan.every == 1)
            m_free.setRight(m_free.right() - std::clamp(beyond - behind, 0.0, most));
    }

    double EdgeGap() const { return m_line * 0.7; }
    double LabelGap() const { return m_line * 0.6; }

    void PlaceRoom()
    {
        const QRectF front = m_free.adjusted(0, -m_depth.y(), -m_depth.x(), 0);
        const QPointF topLeft(OnPixel(front.left()), OnPixel(front.top()));
        const QPointF bottomRight(std::max(topLeft.x() + m_line, OnPixel(front.right())),
            std::max(topLeft.y() + m_line, OnPixel(front.bottom())));
        m_scene.room.front = QRectF(topLeft, bottomRight);
        m_scene.room.depth = m_depth;
    }

    void AddValueTexts()
    {
        const PlotRoom& room = m_scene.room;
        for (int i = 0; i < room.axis.LineCount(); ++i) {
            const double width = m_request.ruler.width(m_valueTexts[i]);
            const double y = room.Y(room.axis.ValueAt(room.axis.first + i));
            const QRectF box(room.front.left() - ValueGap() - width, y - m_line / 2, width, m_line);
            AddText(TextRole::Value, m_valueTexts[i], box, box.center(), 0, i);
        }
    }

    void AddCategoryTexts()
    {
        const PlotRoom& room = m_scene.room;
        for (int row = 0; row < m_data.RowCount(); row += m_plan.every) {
            const double centre = room.RowCentre(row);
            const double top = room.front.bottom() + LabelGap();
            if (m_plan.slanted) {
                const QString text = m_request.ruler.elided(m_labels[size_t(row)], (centre - m_line / 2) / Sine);
                const double width = m_request.ruler.width(text);
                const QPointF end(centre, top + m_line * Sine / 2);
                const QRectF box(end.x() - width, end.y() - m_line / 2, width, m_line);
                AddText(TextRole::Category, text, box, end, -SlantDegrees, row);
            } else {
                const double width = m_request.ruler.width(m_labels[size_t(row)]);
                const QRectF box(centre - width / 2, top, width, m_line);
                if (m_plan.every == 1 || box.right() + EdgeGap() / 2 <= m_request.size.width())
                    AddText(TextRole::Category, m_labels[size_t(row)], box, box.center(), 0, row);
            }
        }
    }

    void AddText(TextRole role, const QString& text, const QRectF& box, QPointF pivot, double degrees, int index)
    {
        if (!text.isEmpty())
            m_scene.texts.push_back({role, text, m_scene.Mirrored(box), m_scene.Mirrored(pivot),
                m_scene.mirrored ? -degrees : degrees, index});
    }

    const ChartData& m_data;
    const ChartRequest& m_request;
    double m_line;
    QRectF m_free; ///< what is not yet taken
    QStringList m_valueTexts;
    QPointF m_depth;
    std::vector<QString> m_labels;
    CategoryLabels m_plan;
    ChartScene m_scene;
};
} // namespace

QRectF ChartScene::Mirrored(const QRectF& box) const
{
    return mirrored ? QRectF(size.width() - box.right(), box.top(), box.width(), box.height()) : box;
}

std::optional<ChartPoint> ChartScene::PointAt(QPointF place) const
{
    return ::PointAt(shapes, room, Mirrored(place));
}

std::optional<QPointF> ChartScene::Place(ChartPoint point) const
{
    const std::optional<QPointF> place = shapes.Place(point);
    return place ? Mirrored(*place) : place;
}

ChartScene BuildScene(const ChartData& data, const ChartRequest& request)
{
    return SceneBuilder(data, request).Build();
}
