#pragma once

#include <QColor>
#include <QPalette>

/// The colours of a chart on a light or dark background.
struct ChartColors {
    explicit ChartColors(const QPalette& palette);

    QColor background;
    QColor text;
    QColor faint; ///< for what is said beside the point
    QColor grid;
    QColor baseLine; ///< where the value is 0
    QColor backWall;
    QColor sideWall;
    QColor floor;

    /// The colour of a series, counted from 0: red, green, blue and further ones, over again when they are used up; as
    /// bright or dark as it takes to stand out from the background.
    QColor Series(int column) const;
};

/// As much of `over` on `under` as the share says, 0 to 1.
QColor Blend(const QColor& under, const QColor& over, double share);
/// A colour in more (above 1) or less light.
QColor Lit(const QColor& color, double light);
/// How far two colours differ in brightness: 1 for none, 21 for black and white.
double Contrast(const QColor& a, const QColor& b);
