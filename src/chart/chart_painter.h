#pragma once

#include <QFont>
#include <QStringList>

#include <optional>

class QPainter;
struct ChartColors;
struct ChartPoint;
struct ChartScene;

/// Paints a worked-out chart with its background; `noData` is what it says when there is no value to show.
void PaintChart(QPainter& painter, const ChartScene& scene, const ChartColors& colors, const QString& noData);

/// Marks one value: a frame around its bar, a ring around its place on a line.
void PaintMark(QPainter& painter, const ChartScene& scene, const ChartColors& colors, const ChartPoint& point);
