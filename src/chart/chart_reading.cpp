#include "chart/chart.h"

#include "base/regional.h"
#include "chart/chart_accessible.h"
#include "chart/chart_scene.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

// How the user reads values from the chart: by the mouse, by the arrow keys and as text.

void Chart::SetUpReading()
{
    MakeChartsAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
}

std::optional<ChartPoint> Chart::PointAt(QPoint place) const
{
    return Scene().PointAt(place - contentsRect().topLeft());
}

QRect Chart::PointRect(ChartPoint point) const
{
    constexpr int Reach = 8;
    if (point.row >= RowCount() || point.column >= ColumnCount())
        return {};
    const std::optional<QPointF> place = Scene().Place(point);
    if (!place)
        return {};
    const QPoint middle = place->toPoint() + contentsRect().topLeft();
    return QRect(middle, QSize()).adjusted(-Reach, -Reach, Reach, Reach);
}

QString Chart::SeriesName(int column) const
{
    const QString& label = m_data.ColumnLabel(column);
    return label.isEmpty() ? tr("Series %1").arg(column + 1) : label;
}

QString Chart::ValueText(ChartPoint point) const
{
    constexpr int Digits = 15;
    const std::optional<double> value = m_data.Value(point.row, point.column);
    return value ? Regional().toString(*value, 'g', Digits) : QString();
}

QString Chart::PointText(ChartPoint point) const
{
    const QString value = ValueText(point);
    if (ColumnCount() == 1 && m_data.ColumnLabel(point.column).isEmpty())
        return tr("%1: %2").arg(LabelOf(point.row), value);
    return tr("%1, %2: %3").arg(LabelOf(point.row), SeriesName(point.column), value);
}

QString Chart::Summary() const
{
    static constexpr const char* Kinds[] = {QT_TR_NOOP("3D bar chart"), QT_TR_NOOP("2D bar chart"),
        QT_TR_NOOP("3D line chart"), QT_TR_NOOP("2D line chart"), QT_TR_NOOP("3D area chart"),
        QT_TR_NOOP("2D area chart"), QT_TR_NOOP("3D step chart"), QT_TR_NOOP("2D step chart")};
    const QString kind = tr(Kinds[m_type]);
    if (!m_data.HasValues())
        return tr("%1 without data").arg(kind);
    if (RowCount() == 1)
        return tr("%1, %2").arg(kind, LabelOf(0));
    return tr("%1, %2 to %3").arg(kind, LabelOf(0), LabelOf(RowCount() - 1));
}

QString Chart::TableText() const
{
    QStringList lines;
    for (int row = 0; row < RowCount(); ++row) {
        QStringList values;
        for (int column = 0; column < ColumnCount(); ++column)
            values.append(ColumnCount() == 1 ? ValueText({row, column})
                                             : tr("%1: %2").arg(SeriesName(column), ValueText({row, column})));
        lines.append(tr("%1: %2").arg(LabelOf(row), values.join(QLatin1String("; "))));
    }
    return lines.join(u'\n');
}

void Chart::mouseMoveEvent(QMouseEvent* event)
{
    Hover(PointAt(event->position().toPoint()), event->position().toPoint());
}

void Chart::leaveEvent(QEvent* event)
{
    QFrame::leaveEvent(event);
    Hover(std::nullopt, QPoint());
}

void Chart::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        MarkPoint(PointAt(event->position().toPoint()));
}

void Chart::Hover(std::optional<ChartPoint> point, QPoint place)
{
    if (point == m_hovered)
        return;
    m_hovered = point;
    update();
    if (point)
        ShowTip(*point, place);
    else
        QToolTip::hideText();
}

void Chart::ShowTip(ChartPoint point, QPoint place)
{
    // A label that looks like markup is text all the same.
    const QString text = QStringLiteral("<p style='white-space:pre'>%1</p>").arg(PointText(point).toHtmlEscaped());
    QToolTip::showText(mapToGlobal(place), text, this);
}

void Chart::MarkPoint(std::optional<ChartPoint> point)
{
    m_marked = point;
    update();
    if (!point || !QAccessible::isActive())
        return;
    QAccessibleEvent event(this, QAccessible::Focus);
    event.setChild(point->row * (ColumnCount() + 1) + point->column + 1);
    QAccessible::updateAccessibility(&event);
}

std::optional<ChartPoint> Chart::FirstValue(int fromRow, int step) const
{
    for (int row = fromRow; row >= 0 && row < RowCount(); row += step)
        for (int column = 0; column < ColumnCount(); ++column)
            if (m_data.Value(row, column))
                return ChartPoint{row, column};
    return std::nullopt;
}

std::optional<ChartPoint> Chart::Neighbour(int rows, int columns) const
{
    if (!m_marked)
        return rows < 0 ? FirstValue(RowCount() - 1, -1) : FirstValue(0, 1);
    ChartPoint point = *m_marked;
    do {
        point.row += rows;
        point.column += columns;
        if (point.row < 0 || point.row >= RowCount() || point.column < 0 || point.column >= ColumnCount())
            return std::nullopt;
    } while (!m_data.Value(point.row, point.column));
    return point;
}

void Chart::WalkTo(std::optional<ChartPoint> point)
{
    if (!point)
        return;
    m_hovered.reset();
    MarkPoint(point);
    ShowTip(*point, PointRect(*point).center());
}

void Chart::keyPressEvent(QKeyEvent* event)
{
    const int forward = isRightToLeft() ? -1 : 1;
    if (event->matches(QKeySequence::Copy))
        return Copy();
    switch (event->key()) {
    case Qt::Key_Right:
        return WalkTo(Neighbour(forward, 0));
    case Qt::Key_Left:
        return WalkTo(Neighbour(-forward, 0));
    case Qt::Key_Up:
        return WalkTo(Neighbour(0, -1));
    case Qt::Key_Down:
        return WalkTo(Neighbour(0, 1));
    case Qt::Key_Home:
        return WalkTo(FirstValue(0, 1));
    case Qt::Key_End:
        return WalkTo(FirstValue(RowCount() - 1, -1));
    case Qt::Key_Escape:
        if (m_marked) {
            QToolTip::hideText();
            return MarkPoint(std::nullopt);
        }
        break;
    default:
        break;
    }
    QFrame::keyPressEvent(event);
}

void Chart::focusInEvent(QFocusEvent* event)
{
    QFrame::focusInEvent(event);
    update();
}

void Chart::focusOutEvent(QFocusEvent* event)
{
    QFrame::focusOutEvent(event);
    QToolTip::hideText();
    update();
}
