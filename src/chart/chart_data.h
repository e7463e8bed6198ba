#pragma once

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// The eight ways to draw the same data.
enum ChartType {
    VtChChartType3dBar = 0,
    VtChChartType2dBar,
    VtChChartType3dLine,
    VtChChartType2dLine,
    VtChChartType3dArea,
    VtChChartType2dArea,
    VtChChartType3dStep,
    VtChChartType2dStep,
};

enum class ChartFamily { Bar, Line, Area, Step };
ChartFamily FamilyOf(ChartType type);
bool HasDepth(ChartType type);

/// What a chart shows: a value for each row (a category) and column (a series), counted from 0, and their labels. A
/// cell without a value is a gap.
class ChartData {
public:
    int RowCount() const { return int(m_rowLabels.size()); }
    int ColumnCount() const { return int(m_columnLabels.size()); }
    /// Cells that are in both the old and the new size keep their values; new ones are gaps.
    void Resize(int rows, int columns);

    std::optional<double> Value(int row, int column) const { return m_values[Index(row, column)]; }
    void SetValue(int row, int column, std::optional<double> value) { m_values[Index(row, column)] = value; }
    const QString& RowLabel(int row) const { return m_rowLabels.at(row); }
    void SetRowLabel(int row, const QString& label) { m_rowLabels[row] = label; }
    const QString& ColumnLabel(int column) const { return m_columnLabels.at(column); }
    void SetColumnLabel(int column, const QString& label) { m_columnLabels[column] = label; }

    bool HasValues() const;
    /// Whether no value has a fraction, as counts have none.
    bool IsWhole() const;
    /// The least and the most of all values and 0, on which every chart stands.
    double Least() const;
    double Most() const;
    /// The sum of a column's values.
    double Sum(int column) const;

private:
    size_t Index(int row, int column) const { return size_t(row) * m_columnLabels.size() + size_t(column); }

    QStringList m_rowLabels;
    QStringList m_columnLabels;
    std::vector<std::optional<double>> m_values;
};

/// One value of a chart, counted from 0.
struct ChartPoint {
    int row = 0;
    int column = 0;
    bool operator==(const ChartPoint&) const = default;
};
