#include "chart/chart_painter.h"

#include "chart/chart_colors.h"
#include "chart/chart_scene.h"

#include <QLinearGradient>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {
constexpr double LineWidth = 2;
constexpr double MarkerSize = 3.4; ///< from its middle to its edge
constexpr double LeastMarkerSlot = 13; ///< closer together markers would be a string of beads

QLinearGradient Falling(const QRectF& box, const QColor& top, const QColor& bottom)
{
    QLinearGradient gradient(box.topLeft(), box.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, bottom);
    return gradient;
}

QColor Translucent(QColor color, double opacity)
{
    color.setAlphaF(float(opacity));
    return color;
}

class ScenePainter {
public:
    ScenePainter(QPainter& painter, const ChartScene& scene, const ChartColors& colors)
        : m_painter(painter)
        , m_scene(scene)
        , m_room(scene.room)
        , m_colors(colors)
        , m_family(FamilyOf(scene.type))
        , m_hasDepth(HasDepth(scene.type))
    {
    }

    void PaintShapes()
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        if (m_scene.mirrored) {
            m_painter.translate(m_scene.size.width(), 0);
            m_painter.scale(-1, 1);
        }
        if (m_hasDepth)
            PaintWalls();
        PaintGrid();
        for (const Face& face : m_scene.shapes.faces)
            PaintFace(face);
        if (m_family == ChartFamily::Line && !m_hasDepth)
            PaintMarkers();
        m_painter.restore();
    }

    void PaintTexts(const QString& noData)
    {
        m_painter.save();
        for (size_t column = 0; column < m_scene.swatches.size(); ++column)
            m_painter.fillRect(m_scene.swatches[column], m_colors.Series(int(column)));
        m_painter.setPen(m_colors.text);
        for (const ChartText& text : m_scene.texts)
            PaintText(text);
        if (!noData.isEmpty()) {
            m_painter.setPen(m_colors.faint);
            m_painter.drawText(m_scene.Mirrored(m_room.front), Qt::AlignCenter | Qt::TextWordWrap, noData);
        }
        m_painter.restore();
    }

    void PaintMark(const ChartPoint& point)
    {
        const std::optional<QPointF> place = m_scene.Place(point);
        if (!place)
            return;
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
        m_painter.setBrush(Qt::NoBrush);
        const QColor series = m_colors.Series(point.column);
        const double radius = 2 * MarkerSize;
        m_painter.setPen(QPen(m_colors.background, 5));
        m_painter.drawEllipse(*place, radius, radius);
        m_painter.setBrush(series);
        m_painter.setPen(QPen(m_colors.text, 2));
        m_painter.drawEllipse(*place, radius, radius);
        m_painter.restore();
    }

private:
    void PaintWalls()
    {
        const QRectF& front = m_room.front;
        const QPointF& depth = m_room.depth;
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(m_colors.backWall);
        m_painter.drawRect(front.translated(depth));
        m_painter.setBrush(m_colors.sideWall);
        m_painter.drawPolygon(
            QPolygonF({front.bottomLeft(), front.topLeft(), front.topLeft() + depth, front.bottomLeft() + depth}));
        m_painter.setBrush(m_colors.floor);
        m_painter.drawPolygon(QPolygonF(
            {front.bottomLeft(), front.bottomRight(), front.bottomRight() + depth, front.bottomLeft() + depth}));
    }

    void PaintGrid()
    {
        for (int i = 0; i < m_room.axis.LineCount(); ++i) {
            const int line = m_room.axis.first + i;
            PaintLevel(m_room.Y(m_room.axis.ValueAt(line)), line == 0 ? m_colors.baseLine : m_colors.grid);
        }
    }

    /// A line of the grid: up the side wall and along the back one, on whole dots of the device.
    void PaintLevel(double height, const QColor& color)
    {
        const double y = std::round(height / m_room.pixel) * m_room.pixel;
        const QPointF start = QPointF(m_room.front.left(), y) + m_room.depth;
        const double thickness = std::max(1.0, m_room.pixel);
        m_painter.fillRect(QRectF(start.x(), start.y(), m_room.front.width(), thickness), color);
        if (!m_hasDepth)
            return;
        const QPointF half(0, thickness / 2);
        m_painter.setPen(QPen(color, thickness));
        m_painter.drawLine(QPointF(m_room.front.left(), y) + half, start + half);
    }

    void PaintFace(const Face& face)
    {
        const QColor color = m_colors.Series(face.column);
        switch (face.kind) {
        case FaceKind::Front:
            return PaintFront(face, color);
        case FaceKind::Side:
            return PaintSide(face, Lit(color, face.light));
        case FaceKind::Line:
            return PaintStroke(face.outline, m_hasDepth ? Lit(color, 0.72) : color, m_hasDepth ? 1.4 : LineWidth);
        case FaceKind::Ridge:
            return PaintRidge(face, Lit(color, 1.2));
        }
    }

    /// Fills without smooth edges, which takes a tenth of the time and less; the strokes along the edges are smooth.
    void Fill(const QList<QPointF>& outline, const QBrush& brush)
    {
        m_painter.setRenderHint(QPainter::Antialiasing, false);
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(brush);
        m_painter.drawPolygon(QPolygonF(outline));
        m_painter.setRenderHint(QPainter::Antialiasing);
    }

    void PaintSide(const Face& face, const QColor& color)
    {
        Fill(face.outline, color);
        m_painter.setPen(QPen(color, m_room.pixel));
        // The edge in front has a stroke of its own, or is upright.
        for (qsizetype i = 1; i < face.outline.size(); ++i)
            m_painter.drawLine(face.outline[i], face.outline[(i + 1) % face.outline.size()]);
    }

    void PaintFront(const Face& face, const QColor& color)
    {
        const QRectF box = QPolygonF(face.outline).boundingRect();
        if (m_family != ChartFamily::Bar && !m_hasDepth) // What stands behind shows through.
            return Fill(face.outline, Falling(box, Translucent(color, 0.42), Translucent(color, 0.16)));
        Fill(face.outline, Falling(box, Lit(color, 1.05), Lit(color, 0.94)));
        if (m_hasDepth)
            PaintFrontEdges(face.outline, color);
    }

    /// Light catches the edge between front and top, which is the base of what hangs from it.
    void PaintFrontEdges(const QList<QPointF>& outline, const QColor& color)
    {
        const QList<QPointF> stroke = outline.first(outline.size() - 2);
        const double base = outline.last().y();
        const bool hangs =
            std::any_of(stroke.begin(), stroke.end(), [base](const QPointF& point) { return point.y() > base; });
        PaintStroke(stroke, Lit(color, hangs ? 0.94 : 1.28), 1);
        if (hangs)
            PaintStroke(outline.last(2), Lit(color, 1.28), 1);
    }

    /// Piece by piece: as a whole a zigzag of 31 corners takes a hundred times as long.
    void PaintStroke(const QList<QPointF>& stroke, const QColor& color, double width)
    {
        const bool isStair = m_family == ChartFamily::Step;
        m_painter.setPen(QPen(color, width, Qt::SolidLine, isStair ? Qt::SquareCap : Qt::FlatCap));
        for (qsizetype i = 0; i + 1 < stroke.size(); ++i)
            m_painter.drawLine(stroke[i], stroke[i + 1]);
        if (isStair || width < LineWidth)
            return;
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(color);
        for (const QPointF& join : stroke)
            m_painter.drawEllipse(join, width / 2, width / 2);
    }

    void PaintRidge(const Face& face, const QColor& color)
    {
        m_painter.setPen(QPen(color, 1.2));
        for (qsizetype i = 0; i + 1 < face.outline.size(); ++i)
            m_painter.drawLine(face.outline[i], face.outline[i + 1]);
    }

    /// Round for the first series and every other one, square for those between: colour is not all that tells them
    /// apart.
    void PaintMarkers()
    {
        if (m_room.SlotWidth() < LeastMarkerSlot)
            return;
        for (int column = 0; column < m_scene.shapes.columns; ++column) {
            m_painter.setPen(QPen(m_colors.background, 1.4));
            m_painter.setBrush(m_colors.Series(column));
            for (int row = 0; row < m_room.rows; ++row) {
                const std::optional<QPointF> place = m_scene.shapes.Place({row, column});
                if (!place)
                    continue;
                if (column % 2 == 0)
                    m_painter.drawEllipse(*place, MarkerSize, MarkerSize);
                else
                    m_painter.drawRect(
                        QRectF(place->x() - MarkerSize, place->y() - MarkerSize, 2 * MarkerSize, 2 * MarkerSize));
            }
        }
    }

    void PaintText(const ChartText& text)
    {
        constexpr int Flags = Qt::AlignCenter | Qt::TextDontClip | Qt::TextSingleLine;
        if (text.degrees == 0)
            return m_painter.drawText(text.box, Flags, text.text);
        m_painter.save();
        m_painter.translate(text.pivot);
        m_painter.rotate(text.degrees);
        m_painter.drawText(text.box.translated(-text.pivot), Flags, text.text);
        m_painter.restore();
    }

    QPainter& m_painter;
    const ChartScene& m_scene;
    const PlotRoom& m_room;
    const ChartColors& m_colors;
    ChartFamily m_family;
    bool m_hasDepth;
};
} // namespace

void PaintChart(QPainter& painter, const ChartScene& scene, const ChartColors& colors, const QString& noData)
{
    painter.fillRect(QRectF(QPointF(), scene.size), colors.background);
    ScenePainter parts(painter, scene, colors);
    parts.PaintShapes();
    parts.PaintTexts(noData);
}

void PaintMark(QPainter& painter, const ChartScene& scene, const ChartColors& colors, const ChartPoint& point)
{
    ScenePainter(painter, scene, colors).PaintMark(point);
}
