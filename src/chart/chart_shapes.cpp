#include "chart/chart_shapes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

constexpr double BarShare = 0.64; ///< of a slot, for all bars in it
constexpr double DeepBarShare = 0.58; ///< leaves room for their sides
constexpr double WidestBar = 110; ///< of which more would be a wall
constexpr double BarFront = 0.15; ///< where in the room's depth bars begin and end
constexpr double BarBack = 0.85;
constexpr double LaneGap = 0.16; ///< of a lane, before and behind its series
constexpr double Reach = 8; ///< how far from a line the mouse still points at it
constexpr double LoneWidth = 0.5; ///< of a slot, for a value between gaps

double Cross(QPointF a, QPointF b)
{
    return a.x() * b.y() - a.y() * b.x();
}

/// The lamp stands at the upper left.
double LightOn(QPointF edge)
{
    const double length = std::hypot(edge.x(), edge.y());
    if (length == 0)
        return 1;
    const QPointF outwards(edge.y() / length, -edge.x() / length);
    return 0.94 - 0.30 * (0.52 * outwards.x() + 0.85 * outwards.y());
}

/// A stretch of a column's values without a gap: rows, and the stroke along them in the front plane of its lane.
struct Run {
    int firstRow = 0;
    int lastRow = 0;
    QList<QPointF> stroke;
};

class ShapeBuilder {
public:
    ShapeBuilder(const ChartData& data, ChartType type, const PlotRoom& room)
        : m_data(data)
        , m_family(FamilyOf(type))
        , m_hasDepth(HasDepth(type))
        , m_room(room)
        , m_base(OnPixel(room.Y(0)))
    {
        m_shapes.columns = data.ColumnCount();
        m_shapes.lanes.resize(size_t(data.ColumnCount()));
        m_shapes.places.resize(size_t(data.RowCount()) * size_t(data.ColumnCount()));
    }

    ChartShapes Build()
    {
        if (m_family == ChartFamily::Bar) {
            AddBars();
        } else {
            const std::vector<int> order = BackToFront(m_data);
            for (size_t i = 0; i < order.size(); ++i)
                AddSeries(order[i], int(order.size() - 1 - i));
            m_shapes.faces.insert(m_shapes.faces.end(), m_ridges.begin(), m_ridges.end());
        }
        return std::move(m_shapes);
    }

private:
    double OnPixel(double place) const { return std::round(place / m_room.pixel) * m_room.pixel; }
    QPointF OnPixel(QPointF place) const { return {OnPixel(place.x()), OnPixel(place.y())}; }
    double ValueY(double value) const { return OnPixel(m_room.Y(value)); }

    /// Bars of one row stand side by side, so that none hides another's height.
    void AddBars()
    {
        const QPointF lane = OnPixel(m_room.depth * BarFront);
        const QPointF extent = m_room.depth * (BarBack - BarFront);
        std::fill(m_shapes.lanes.begin(), m_shapes.lanes.end(), lane);
        const double share = m_hasDepth ? DeepBarShare : BarShare;
        const double width = std::min(WidestBar, m_room.SlotWidth() * share / std::max(1, m_data.ColumnCount()));
        for (int row = 0; row < m_data.RowCount(); ++row) {
            const double start = m_room.RowCentre(row) - width * m_data.ColumnCount() / 2;
            for (int column = 0; column < m_data.ColumnCount(); ++column) {
                const std::optional<double> value = m_data.Value(row, column);
                if (!value)
                    continue;
                const double left = OnPixel(start + column * width);
                const double right = std::max(left + m_room.pixel, OnPixel(start + (column + 1) * width));
                const double y = ValueY(*value);
                SetPlace(row, column, QPointF((left + right) / 2, y) + lane);
                AddSolid({{left, y}, {right, y}}, column, row, row, lane, extent);
            }
        }
    }

    /// A line, area or stair of one column, in lane `lane` of the room's depth, counted from the front.
    void AddSeries(int column, int lane)
    {
        const double laneDepth = 1.0 / m_data.ColumnCount();
        const QPointF offset = OnPixel(m_room.depth * (lane + LaneGap) * laneDepth);
        const QPointF extent = m_room.depth * (1 - 2 * LaneGap) * laneDepth;
        m_shapes.lanes[size_t(column)] = offset;
        for (const Run& run : Runs(column)) {
            for (int row = run.firstRow; row <= run.lastRow; ++row)
                SetPlace(row, column, QPointF(m_room.RowCentre(row), ValueY(*m_data.Value(row, column))) + offset);
            if (m_family == ChartFamily::Line)
                AddLine(run, column, offset, extent);
            else
                AddFilled(run, column, offset, extent);
            if (m_hasDepth && m_family != ChartFamily::Line && lane > 0)
                m_ridges.push_back({FaceKind::Ridge, column, run.firstRow, run.lastRow, Moved(run.stroke, offset), 1});
        }
    }

    std::vector<Run> Runs(int column) const
    {
        std::vector<Run> runs;
        for (int row = 0; row < m_data.RowCount(); ++row) {
            if (!m_data.Value(row, column))
                continue;
            if (runs.empty() || runs.back().lastRow != row - 1)
                runs.push_back({row, row, {}});
            runs.back().lastRow = row;
        }
        for (Run& run : runs)
            run.stroke = m_family == ChartFamily::Step ? Stair(run, column) : Slopes(run, column);
        return runs;
    }

    QList<QPointF> Slopes(const Run& run, int column) const
    {
        QList<QPointF> stroke;
        for (int row = run.firstRow; row <= run.lastRow; ++row)
            stroke.append({OnPixel(m_room.RowCentre(row)), ValueY(*m_data.Value(row, column))});
        if (stroke.size() > 1)
            return stroke;
        const QPointF half(m_room.SlotWidth() * LoneWidth / 2, 0);
        return {stroke.first() - half, stroke.first() + half};
    }

    QList<QPointF> Stair(const Run& run, int column) const
    {
        QList<QPointF> stroke;
        for (int row = run.firstRow; row <= run.lastRow; ++row) {
            const double y = ValueY(*m_data.Value(row, column));
            stroke.append({OnPixel(m_room.SlotLeft(row)), y});
            stroke.append({OnPixel(m_room.SlotLeft(row + 1)), y});
        }
        return stroke;
    }

    /// A flat line, or a ribbon seen from above or below.
    void AddLine(const Run& run, int column, QPointF offset, QPointF extent)
    {
        for (qsizetype i = 0; m_hasDepth && i + 1 < run.stroke.size(); ++i)
            AddSide(run.stroke[i] + offset, run.stroke[i + 1] + offset, extent, column, run);
        AddStroke(run, column, offset);
    }

    void AddStroke(const Run& run, int column, QPointF offset)
    {
        m_shapes.faces.push_back({FaceKind::Line, column, run.firstRow, run.lastRow, Moved(run.stroke, offset), 1});
    }

    static QList<QPointF> Moved(QList<QPointF> points, QPointF offset)
    {
        for (QPointF& point : points)
            point += offset;
        return points;
    }

    /// The area between the stroke and the base, one piece for each stretch on one side of the base.
    void AddFilled(const Run& run, int column, QPointF offset, QPointF extent)
    {
        QList<QPointF> piece{run.stroke.first()};
        const auto endPieceAt = [&](QPointF crossing) {
            piece.append(crossing);
            AddSolid(piece, column, run.firstRow, run.lastRow, offset, extent);
            piece = {crossing};
        };
        for (qsizetype i = 1; i < run.stroke.size(); ++i) {
            const QPointF from = run.stroke[i - 1];
            const QPointF to = run.stroke[i];
            if ((from.y() - m_base) * (to.y() - m_base) < 0) {
                const double share = (m_base - from.y()) / (to.y() - from.y());
                endPieceAt({from.x() + share * (to.x() - from.x()), m_base});
            }
            if (to.y() == m_base && i + 1 < run.stroke.size())
                endPieceAt(to);
            else
                piece.append(to);
        }
        AddSolid(piece, column, run.firstRow, run.lastRow, offset, extent);
        if (!m_hasDepth)
            AddStroke(run, column, offset);
    }

    /// What stands between a stroke and the base, from `offset` on back by `extent`: the sides that are seen, and the
    /// front over them.
    void AddSolid(const QList<QPointF>& stroke, int column, int firstRow, int lastRow, QPointF offset, QPointF extent)
    {
        const QPointF startOfBase = QPointF(stroke.first().x(), m_base) + offset;
        const QPointF endOfBase = QPointF(stroke.last().x(), m_base) + offset;
        const bool below =
            std::any_of(stroke.begin(), stroke.end(), [this](const QPointF& point) { return point.y() > m_base; });
        Face front{FaceKind::Front, column, firstRow, lastRow, Moved(stroke, offset), 1};
        // Clockwise either way, which is what tells the outside of an edge from its inside.
        if (below)
            std::reverse(front.outline.begin(), front.outline.end());
        front.outline.append(below ? startOfBase : endOfBase);
        front.outline.append(below ? endOfBase : startOfBase);
        if (m_hasDepth)
            AddVisibleSides(front, extent, below);
        m_shapes.faces.push_back(std::move(front));
    }

    void AddVisibleSides(const Face& front, QPointF extent, bool below)
    {
        struct Edge {
            QPointF from, to;
            bool isCap;
        };
        std::vector<Edge> edges;
        for (qsizetype i = 0; i < front.outline.size(); ++i) {
            const QPointF from = front.outline[i];
            const QPointF to = front.outline[(i + 1) % front.outline.size()];
            if (Cross(to - from, extent) < 0)
                edges.push_back({from, to, below && i + 2 == front.outline.size()});
        }
        // Seen from the right: what lies further right is nearer. Nothing below hides the cap of a piece that hangs.
        std::stable_sort(edges.begin(), edges.end(), [](const Edge& a, const Edge& b) {
            if (a.isCap != b.isCap)
                return b.isCap;
            return std::min(a.from.x(), a.to.x()) < std::min(b.from.x(), b.to.x());
        });
        for (const Edge& edge : edges)
            AddSide(edge.from, edge.to, extent, front.column, {front.firstRow, front.lastRow, {}});
    }

    void AddSide(QPointF from, QPointF to, QPointF extent, int column, const Run& run)
    {
        // The underside of a ribbon is lit as what it turns its back to the lamp.
        const bool isUnderside = Cross(to - from, extent) >= 0;
        const double light = isUnderside ? LightOn(from - to) * 0.8 : LightOn(to - from);
        m_shapes.faces.push_back(
            {FaceKind::Side, column, run.firstRow, run.lastRow, {from, to, to + extent, from + extent}, light});
    }

    void SetPlace(int row, int column, QPointF place) { m_shapes.places[m_shapes.PlaceNumber(row, column)] = place; }

    const ChartData& m_data;
    ChartFamily m_family;
    bool m_hasDepth;
    const PlotRoom& m_room;
    double m_base;
    ChartShapes m_shapes;
    std::vector<Face> m_ridges;
};

bool Contains(const QList<QPointF>& outline, QPointF place)
{
    bool inside = false;
    for (qsizetype i = 0, j = outline.size() - 1; i < outline.size(); j = i++) {
        const QPointF a = outline[i];
        const QPointF b = outline[j];
        if ((a.y() > place.y()) != (b.y() > place.y())
            && place.x() < (b.x() - a.x()) * (place.y() - a.y()) / (b.y() - a.y()) + a.x())
            inside = !inside;
    }
    return inside;
}

double DistanceToEdge(QPointF from, QPointF to, QPointF place)
{
    const QPointF edge = to - from;
    const double length = QPointF::dotProduct(edge, edge);
    const double share = length == 0 ? 0 : std::clamp(QPointF::dotProduct(place - from, edge) / length, 0.0, 1.0);
    const QPointF apart = place - (from + share * edge);
    return std::hypot(apart.x(), apart.y());
}

bool IsOpen(FaceKind kind)
{
    return kind == FaceKind::Line || kind == FaceKind::Ridge;
}

bool PassesBy(const QList<QPointF>& line, QPointF place)
{
    for (qsizetype i = 0; i + 1 < line.size(); ++i)
        if (DistanceToEdge(line[i], line[i + 1], place) <= Reach)
            return true;
    return false;
}

/// For what has no height to point at.
std::optional<ChartPoint> NearestPlace(const ChartShapes& shapes, QPointF place)
{
    std::optional<ChartPoint> nearest;
    double least = Reach;
    for (size_t i = 0; i < shapes.places.size(); ++i) {
        const QPointF apart = shapes.places[i].value_or(QPointF(INFINITY, INFINITY)) - place;
        const double distance = std::hypot(apart.x(), apart.y());
        if (distance > least)
            continue;
        least = distance;
        nearest = ChartPoint{int(i) / shapes.columns, int(i) % shapes.columns};
    }
    return nearest;
}

/// Where on the front edge that was drawn out into this side the place belongs.
double AlongFrontEdge(const Face& side, QPointF place)
{
    const QPointF edge = side.outline[1] - side.outline[0];
    const QPointF extent = side.outline[3] - side.outline[0];
    const double area = Cross(edge, extent);
    const double share = area == 0 ? 0.5 : Cross(place - side.outline[0], extent) / area;
    return side.outline[0].x() + share * edge.x();
}
} // namespace

int PlotRoom::RowAt(double x) const
{
    return std::clamp(int(std::floor((x - front.left()) / SlotWidth())), 0, std::max(0, rows - 1));
}

std::vector<int> BackToFront(const ChartData& data)
{
    std::vector<int> order(size_t(data.ColumnCount()));
    std::iota(order.rbegin(), order.rend(), 0);
    // The larger one behind: then it rises above the one before it.
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return data.Sum(a) > data.Sum(b); });
    return order;
}

ChartShapes BuildShapes(const ChartData& data, ChartType type, const PlotRoom& room)
{
    return ShapeBuilder(data, type, room).Build();
}

std::optional<ChartPoint> PointAt(const ChartShapes& shapes, const PlotRoom& room, QPointF place)
{
    for (auto face = shapes.faces.rbegin(); face != shapes.faces.rend(); ++face) {
        if (!(IsOpen(face->kind) ? PassesBy(face->outline, place) : Contains(face->outline, place)))
            continue;
        const double x = face->kind == FaceKind::Side ? AlongFrontEdge(*face, place) : place.x();
        const int row = room.RowAt(x - shapes.lanes[size_t(face->column)].x());
        return ChartPoint{std::clamp(row, face->firstRow, face->lastRow), face->column};
    }
    return NearestPlace(shapes, place);
}
