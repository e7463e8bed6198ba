#include "chart/chart.h"

#include "base/numbers.h"
#include "base/runtime_error.h"

#include <QPainter>

#include <algorithm>

Chart::Chart(QWidget* parent)
    : QFrame(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setAutoFillBackground(true);
    setBackgroundRole(QPalette::Base);
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
    return column == 1 ? QColor(0xc6, 0x28, 0x28) : QColor(0x43, 0xa0, 0x47);
}

QString Chart::TableText() const
{
    QStringList lines;
    for (int row = 0; row < RowCount(); ++row) {
        QStringList values;
        for (int column = 0; column < ColumnCount(); ++column)
            values.append(m_data.Value(row, column) ? CStr(*m_data.Value(row, column)) : QString());
        lines.append(m_data.RowLabel(row) + QLatin1String(": ") + values.join(QLatin1String(", ")));
    }
    return lines.join(u'\n');
}

QSize Chart::sizeHint() const
{
    return {480, 320};
}

QSize Chart::minimumSizeHint() const
{
    return {200, 140};
}

void Chart::Changed()
{
    update();
}

void Chart::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    const QRectF plot = contentsRect();
    const double slot = plot.width() / std::max(1, RowCount() * ColumnCount());
    const double range = std::max(1e-300, m_data.Most());
    for (int row = 0; row < RowCount(); ++row)
        for (int column = 0; column < ColumnCount(); ++column) {
            const double height = plot.height() * m_data.Value(row, column).value_or(0) / range;
            const double left = plot.left() + (row * ColumnCount() + column) * slot;
            painter.fillRect(QRectF(left, plot.bottom() - height, slot * 0.7, height), SeriesColor(column + 1));
        }
}
