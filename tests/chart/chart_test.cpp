#include "base/runtime_error.h"
#include "chart/chart.h"
#include "support/printing.h"

#include <gtest/gtest.h>

namespace {

Chart& Cell(Chart& chart, int row, int column)
{
    chart.SetRow(row);
    chart.SetColumn(column);
    return chart;
}

TEST(ChartCells, KeepWhatTheyHoldWhenTheCountsAndTheTypeChange)
{
    Chart chart;
    chart.SetColumnCount(1);
    chart.SetRowCount(3);
    Cell(chart, 2, 1).SetData(QStringLiteral("1,234.5"));
    chart.SetRowLabel(QStringLiteral("Feb-2026"));

    chart.SetColumnCount(2);
    chart.SetRowCount(2);
    chart.SetChartType(VtChChartType2dStep);

    EXPECT_EQ(Cell(chart, 2, 1).Data(), QStringLiteral("1234.5"));
    EXPECT_EQ(chart.RowLabel(), QStringLiteral("Feb-2026"));
    EXPECT_EQ(Cell(chart, 2, 2).Data(), QString());
    EXPECT_THROW(chart.SetRow(3), RuntimeError);
    EXPECT_THROW(chart.SetColumn(0), RuntimeError);
    EXPECT_THROW(chart.SetData(QStringLiteral("many")), RuntimeError);
    EXPECT_EQ(chart.Data(), QString());
}

} // namespace
