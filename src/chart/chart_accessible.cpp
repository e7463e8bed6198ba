#include "chart/chart_accessible.h"

#include "chart/chart.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

namespace {

class ChartAccessible;

/// A cell of the table: the label of a row, or one of its values.
class ChartCell : public QAccessibleInterface, public QAccessibleTableCellInterface {
public:
    ChartCell(ChartAccessible* table, Chart* chart, int row, int column)
        : m_table(table)
        , m_chart(chart)
        , m_row(row)
        , m_column(column)
    {
    }

    bool isValid() const override
    {
        return m_chart && m_row < m_chart->RowCount() && m_column <= m_chart->ColumnCount();
    }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return m_chart ? m_chart->window()->windowHandle() : nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    QAccessibleInterface* parent() const override;
    QAccessibleInterface* child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QAccessible::Role role() const override { return m_column == 0 ? QAccessible::RowHeader : QAccessible::Cell; }
    void setText(QAccessible::Text, const QString&) override { }

    QString text(QAccessible::Text kind) const override
    {
        if (!isValid())
            return {};
        if (kind == QAccessible::Name)
            return m_column == 0 ? m_chart->LabelOf(m_row) : m_chart->ValueText(Point());
        if (kind == QAccessible::Description && m_column > 0)
            return m_chart->PointText(Point());
        return {};
    }
    QRect rect() const override { return isValid() && m_column > 0 ? m_chart->PointRect(Point()) : QRect(); }

    QAccessible::State state() const override
    {
        QAccessible::State state;
        state.readOnly = true;
        state.focusable = true;
        state.selectable = true;
        state.invalid = !isValid();
        state.focused = isSelected() && m_chart->hasFocus();
        state.selected = isSelected();
        return state;
    }
    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::TableCellInterface ? static_cast<QAccessibleTableCellInterface*>(this) : nullptr;
    }

    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    int columnIndex() const override { return m_column; }
    int rowIndex() const override { return m_row; }
    QList<QAccessibleInterface*> columnHeaderCells() const override { return {}; }
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    bool isSelected() const override { return isValid() && m_column > 0 && m_chart->MarkedPoint() == Point(); }
    QAccessibleInterface* table() const override { return parent(); }

private:
    ChartPoint Point() const { return {m_row, m_column - 1}; }

    ChartAccessible* m_table;
    QPointer<Chart> m_chart;
    int m_row;
    int m_column;
};

class ChartAccessible : public QAccessibleWidget, public QAccessibleTableInterface {
public:
    explicit ChartAccessible(Chart* chart)
        : QAccessibleWidget(chart, QAccessible::Table)
    {
    }
    ~ChartAccessible() override { ForgetCells(); }

    Chart* Target() const { return static_cast<Chart*>(widget()); }

    QString text(QAccessible::Text kind) const override
    {
        QString own = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Name && own.isEmpty())
            return Chart::tr("Chart");
        if (kind == QAccessible::Description && own.isEmpty())
            return Target()->Summary();
        if (kind == QAccessible::Value)
            return Target()->TableText();
        return own;
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::TableInterface)
            return static_cast<QAccessibleTableInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    int childCount() const override { return rowCount() * columnCount(); }
    QAccessibleInterface* child(int index) const override
    {
        return index < 0 || index >= childCount() ? nullptr : cellAt(index / columnCount(), index % columnCount());
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
        return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const std::optional<ChartPoint> point = Target()->PointAt(Target()->mapFromGlobal(QPoint(x, y)));
        return point ? cellAt(point->row, point->column + 1) : nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        const std::optional<ChartPoint> point = Target()->MarkedPoint();
        return point && Target()->hasFocus() ? cellAt(point->row, point->column + 1) : nullptr;
    }

    int rowCount() const override { return Target()->RowCount(); }
    int columnCount() const override { return Target()->ColumnCount() + 1; }
    QAccessibleInterface* cellAt(int row, int column) const override
    {
        if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
            return nullptr;
        const std::pair<int, int> place(row, column);
        if (!m_cells.contains(place))
            m_cells.insert(place,
                QAccessible::registerAccessibleInterface(
                    new ChartCell(const_cast<ChartAccessible*>(this), Target(), row, column)));
        return QAccessible::accessibleInterface(m_cells.value(place));
    }
    QString columnDescription(int column) const override
    {
        return column == 0 ? Chart::tr("Label") : Target()->SeriesName(column - 1);
    }
    QString rowDescription(int row) const override { return Target()->LabelOf(row); }
    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }

    // The marked value is the selection; it is moved in the chart and not from here.
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    int selectedCellCount() const override { return Target()->MarkedPoint() ? 1 : 0; }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override
    {
        const std::optional<ChartPoint> point = Target()->MarkedPoint();
        return point ? QList<QAccessibleInterface*>{cellAt(point->row, point->column + 1)}
                     : QList<QAccessibleInterface*>();
    }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override { ForgetCells(); }

private:
    void ForgetCells()
    {
        for (const QAccessible::Id id : std::as_const(m_cells))
            QAccessible::deleteAccessibleInterface(id);
        m_cells.clear();
    }

    mutable QHash<std::pair<int, int>, QAccessible::Id> m_cells;
};

QAccessibleInterface* ChartCell::parent() const
{
    return m_chart ? QAccessible::queryAccessibleInterface(m_chart) : nullptr;
}

QList<QAccessibleInterface*> ChartCell::rowHeaderCells() const
{
    return isValid() ? QList<QAccessibleInterface*>{m_table->cellAt(m_row, 0)} : QList<QAccessibleInterface*>();
}

QAccessibleInterface* MakeInterface(const QString& className, QObject* object)
{
    if (className == QLatin1String("Chart"))
        if (auto* chart = qobject_cast<Chart*>(object))
            return new ChartAccessible(chart);
    return nullptr;
}
} // namespace

void MakeChartsAccessible()
{
    static const bool installed = [] {
        QAccessible::installFactory(MakeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}
