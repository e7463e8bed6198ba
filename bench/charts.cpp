#include "subjects.h"

#include "chart/chart.h"

#include "measure.h"

#include <QDate>
#include <QImage>

namespace {
constexpr int Rounds = 51;
constexpr double Limit = 5;
constexpr int Days = 31;
constexpr QSize PictureSize(900, 500);

void Fill(Chart& chart, int columns)
{
    chart.SetColumnCount(columns);
    chart.SetRowCount(Days);
    for (int day = 1; day <= Days; ++day) {
        chart.SetRow(day);
        chart.SetRowLabel(QDate(2026, 12, day).toString(QStringLiteral("dd.MM.yyyy")));
        for (int column = 1; column <= columns; ++column) {
            // Up and down by turns: the longest edges there are.
            const int value = day % 2 == column % 2 ? day : 3 * Days - day;
            chart.SetColumn(column);
            chart.SetData(QString::number(value));
        }
    }
}

/// Works out and paints the picture as after a change.
double DrawingTime(Chart& chart, ChartType type)
{
    QImage picture(PictureSize, QImage::Format_ARGB32_Premultiplied);
    Times times;
    for (int round = 0; round < Rounds; ++round) {
        chart.SetChartType(type);
        times.Add(MillisecondsOf([&] { chart.render(&picture); }));
    }
    return times.Median();
}
} // namespace

void MeasureCharts(RunningProgram&)
{
    static constexpr const char* Names[] = {
        "3D bar", "2D bar", "3D line", "2D line", "3D area", "2D area", "3D step", "2D step"};
    for (int columns = 1; columns <= 2; ++columns) {
        Chart chart;
        chart.resize(PictureSize);
        Fill(chart, columns);
        for (int type = VtChChartType3dBar; type <= VtChChartType2dStep; ++type) {
            const QByteArray subject =
                QByteArray("drawing 31 rows of ") + QByteArray::number(columns) + " as " + Names[type];
            PrintFigure(subject.constData(), DrawingTime(chart, ChartType(type)), 0, Limit, "ms");
        }
    }
}
