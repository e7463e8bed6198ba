#include "chart/category_labels.h"

#include <algorithm>
#include <cmath>

namespace {
constexpr double Sine = 0.70710678118654752; ///< of the slant, and its cosine
constexpr double GapInLines = 0.7; ///< between two labels along the axis
constexpr int MostSlantedCategories = 16; ///< more of them are a thicket
constexpr int FewLabels = 4; ///< with fewer along the axis a reader is lost

/// Whether every such label keeps its distance from the next one.
bool FitAlong(const std::vector<double>& widths, double gap, double slot, size_t every)
{
    for (size_t i = 0; i + every < widths.size(); i += every)
        if ((widths[i] + widths[i + every]) / 2 + gap > slot * double(every))
            return false;
    return true;
}
} // namespace

CategoryLabels PlanCategoryLabels(const std::vector<double>& widths, double lineHeight, double slot)
{
    const auto count = int(widths.size());
    CategoryLabels along;
    while (along.every < count && !FitAlong(widths, GapInLines * lineHeight, slot, size_t(along.every)))
        ++along.every;
    if (along.every == 1)
        return along;

    // Slanting lines stand apart by the slot's share across them.
    const double lineApart = 1.15 * lineHeight / Sine;
    const CategoryLabels slanted{std::max(1, int(std::ceil(lineApart / slot))), true};
    const bool keepsAll = slanted.every == 1 && count <= MostSlantedCategories;
    const bool alongIsPoor = count / along.every < FewLabels && slanted.every < along.every;
    return keepsAll || alongIsPoor ? slanted : along;
}
