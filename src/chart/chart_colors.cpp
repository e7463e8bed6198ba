#include "chart/chart_colors.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace {
constexpr std::array<QRgb, 6> House{0xffc62828, 0xff3f9a45, 0xff2563c4, 0xffe08e00, 0xff7d45b4, 0xff008c99};
constexpr double LeastContrast = 3.3;

double Luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}
} // namespace

QColor Blend(const QColor& under, const QColor& over, double share)
{
    const auto mix = [share](int a, int b) { return int(std::lround(a + (b - a) * share)); };
    return QColor(
        mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue()), under.alpha());
}

QColor Lit(const QColor& color, double light)
{
    return light >= 1 ? Blend(color, Qt::white, std::min(1.0, (light - 1) * 1.6)) : Blend(Qt::black, color, light);
}

double Contrast(const QColor& a, const QColor& b)
{
    const double first = Luminance(a) + 0.05;
    const double second = Luminance(b) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

ChartColors::ChartColors(const QPalette& palette)
    : background(palette.color(QPalette::Base))
    , text(Blend(background, palette.color(QPalette::Text), 0.85))
    , faint(Blend(background, text, 0.65))
    , grid(Blend(background, palette.color(QPalette::Text), 0.14))
    , baseLine(Blend(background, palette.color(QPalette::Text), 0.5))
    , backWall(Blend(background, palette.color(QPalette::Text), 0.025))
    , sideWall(Blend(background, palette.color(QPalette::Text), 0.06))
    , floor(Blend(background, palette.color(QPalette::Text), 0.11))
{
}

QColor ChartColors::Series(int column) const
{
    constexpr double Step = 0.06;
    QColor color(House[size_t(column) % House.size()]);
    const QColor away = Luminance(background) < 0.18 ? Qt::white : Qt::black;
    while (Contrast(color, background) < LeastContrast && color != away)
        color = Blend(color, away, Step);
    return color;
}
