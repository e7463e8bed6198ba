#include "chart/chart_data.h"

#include <algorithm>
#include <cmath>

ChartFamily FamilyOf(ChartType type)
{
    return ChartFamily(type / 2);
}

bool HasDepth(ChartType type)
{
    return type % 2 == 0;
}

void ChartData::Resize(int rows, int columns)
{
    std::vector<std::optional<double>> values(size_t(rows) * size_t(columns));
    for (int row = 0; row < std::min(rows, RowCount()); ++row)
        for (int column = 0; column < std::min(columns, ColumnCount()); ++column)
            values[size_t(row) * size_t(columns) + size_t(column)] = Value(row, column);
    m_rowLabels.resize(rows);
    m_columnLabels.resize(columns);
    m_values = std::move(values);
}

bool ChartData::HasValues() const
{
    return std::any_of(m_values.begin(), m_values.end(), [](const auto& value) { return value.has_value(); });
}

bool ChartData::IsWhole() const
{
    return std::all_of(
        m_values.begin(), m_values.end(), [](const auto& value) { return !value || std::trunc(*value) == *value; });
}

double ChartData::Least() const
{
    double least = 0;
    for (const auto& value : m_values)
        least = std::min(least, value.value_or(0));
    return least;
}

double ChartData::Most() const
{
    double most = 0;
    for (const auto& value : m_values)
        most = std::max(most, value.value_or(0));
    return most;
}

double ChartData::Sum(int column) const
{
    double sum = 0;
    for (int row = 0; row < RowCount(); ++row)
        sum += Value(row, column).value_or(0);
    return sum;
}
