#pragma once

#include <vector>

/// How the labels below a category axis are written so that they do not touch: every how many a label stands, and
/// whether along the axis or slanting down from it.
struct CategoryLabels {
    int every = 1;
    bool slanted = false;
};

/// `widths` are those of all labels, `slot` is the room of one category along the axis, in the same unit. Labels slant
/// where that lets a few categories keep every label, and thin out where there are many.
CategoryLabels PlanCategoryLabels(const std::vector<double>& widths, double lineHeight, double slot);

/// Slanting labels stand at this angle.
constexpr double SlantDegrees = 45;
