#include "chart/chart.h"

#include "base/numbers.h"
#include "base/regional.h"
#include "base/runtime_error.h"
#include "chart/chart_colors.h"
#include "chart/chart_painter.h"
#include "chart/chart_scene.h"

#include <QAccessible>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QMenu>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

Chart::Chart(QWidget* parent)
    : QFrame(parent)
    , m_menu(new QMenu(this))
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
    SetUpReading();
    BuildMenu();
}

Chart::~Chart() = default;

void Chart::SetShowLegend(bool show)
{
    m_showLegend = show;
    Changed();
}

void Chart::SetChartType(ChartType type)
{
    if (type < VtChChartType3dBar || type > VtChChartType2dStep)
        throw InvalidPropertyValue();
    m_type = type;
    Changed();
}

void Chart::SetColumnCount(int columns)
{
    Resize(RowCount(), columns);
}

void Chart::SetRowCount(int rows)
{
    Resize(rows, ColumnCount());
}

void Chart::Resize(int rows, int columns)
{
    if (rows < 0 || columns < 0)
        throw InvalidPropertyValue();
    m_data.Resize(rows, columns);
    m_row = std::clamp(m_row, 1, std::max(1, rows));
    m_column = std::clamp(m_column, 1, std::max(1, columns));
    Changed();
}

void Chart::SetColumn(int column)
{
    if (column < 1 || column > ColumnCount())
        throw InvalidPropertyValue();
    m_column = column;
}

void Chart::SetRow(int row)
{
    if (row < 1 || row > RowCount())
        throw InvalidPropertyValue();
    m_row = row;
}

void Chart::CheckCell() const
{
    if (m_row > RowCount() || m_column > ColumnCount())
        throw InvalidPropertyValue();
}

QString Chart::Data() const
{
    CheckCell();
    const std::optional<double> value = m_data.Value(m_row - 1, m_column - 1);
    return value ? CStr(*value) : QString();
}

void Chart::SetData(const QString& text)
{
    CheckCell();
    m_data.SetValue(m_row - 1, m_column - 1, text.isEmpty() ? std::optional<double>() : CDbl(text));
    Changed();
}

QString Chart::RowLabel() const
{
    CheckCell();
    return m_data.RowLabel(m_row - 1);
}

void Chart::SetRowLabel(const QString& label)
{
    CheckCell();
    m_data.SetRowLabel(m_row - 1, label);
    Changed();
}

QString Chart::ColumnLabel() const
{
    CheckCell();
    return m_data.ColumnLabel(m_column - 1);
}

void Chart::SetColumnLabel(const QString& label)
{
    CheckCell();
    m_data.SetColumnLabel(m_column - 1, label);
    Changed();
}

QColor Chart::SeriesColor(int column) const
{
    return ChartColors(palette()).Series(column - 1);
}

QSize Chart::sizeHint() const
{
    return {480, 320};
}

QSize Chart::minimumSizeHint() const
{
    const int line = fontMetrics().height();
    return {12 * line, 9 * line};
}

void Chart::Changed()
{
    m_scene.reset();
    if (m_redrawPending)
        return;
    m_redrawPending = true;
    QMetaObject::invokeMethod(this, &Chart::Redraw, Qt::QueuedConnection);
}

void Chart::Redraw()
{
    m_redrawPending = false;
    Hover(std::nullopt, QPoint());
    if (m_marked && PointRect(*m_marked).isEmpty())
        m_marked.reset();
    update();
    QAccessibleTableModelChangeEvent tableEvent(this, QAccessibleTableModelChangeEvent::ModelReset);
    QAccessible::updateAccessibility(&tableEvent);
    if (QAccessible::isActive()) {
        QAccessibleValueChangeEvent valueEvent(this, TableText());
        QAccessible::updateAccessibility(&valueEvent);
    }
}

QFont Chart::PictureFont() const
{
    // In pixels, so that the texts keep their proportion to the picture on every device.
    QFont font = this->font();
    font.setPixelSize(QFontInfo(font).pixelSize());
    return font;
}

ChartScene Chart::BuildSceneFor(QSize size, double pixel) const
{
    const QFontMetricsF metrics(PictureFont());
    ChartRequest request;
    request.type = m_type;
    request.size = size;
    request.pixel = pixel;
    request.showLegend = m_showLegend;
    request.rightToLeft = isRightToLeft();
    request.locale = Regional();
    request.ruler.lineHeight = metrics.height();
    request.ruler.width = [&](const QString& text) { return metrics.horizontalAdvance(text); };
    request.ruler.elided = [&](const QString& text, double width) {
        return metrics.elidedText(text, Qt::ElideRight, width);
    };
    if (!m_showLegend)
        return BuildScene(m_data, request);
    ChartData named = m_data;
    for (int column = 0; column < ColumnCount(); ++column)
        named.SetColumnLabel(column, SeriesName(column));
    return BuildScene(named, request);
}

const ChartScene& Chart::Scene() const
{
    const double pixel = 1 / devicePixelRatioF();
    if (!m_scene || m_scene->room.pixel != pixel)
        m_scene = std::make_unique<ChartScene>(BuildSceneFor(contentsRect().size(), pixel));
    return *m_scene;
}

QString Chart::NoDataText() const
{
    return m_data.HasValues() ? QString() : tr("No data");
}

void Chart::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.save();
    painter.translate(contentsRect().topLeft());
    painter.setFont(PictureFont());
    const ChartColors colors(palette());
    PaintChart(painter, Scene(), colors, NoDataText());
    const std::optional<ChartPoint> shown = m_hovered ? m_hovered : hasFocus() ? m_marked : std::nullopt;
    if (shown)
        PaintMark(painter, Scene(), colors, *shown);
    painter.restore();
    drawFrame(&painter);
    if (hasFocus()) {
        constexpr int Inset = 2;
        QStyleOptionFocusRect option;
        option.initFrom(this);
        option.rect = contentsRect().adjusted(Inset, Inset, -Inset, -Inset);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

void Chart::resizeEvent(QResizeEvent* event)
{
    QFrame::resizeEvent(event);
    m_scene.reset();
}

void Chart::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    m_scene.reset();
    update();
}
