#pragma once

#include <QString>

#include <vector>

/// What the demo shop sells: product lines, each in several sizes or kinds that become one item each.

struct ProductLine {
    const char* category;
    const char* subCategory;
    const char* name;
    const char* description;
    const char* taxRate;
    const char* vendor;
    int firstPrice; ///< cents, of the first variant
    int priceStep; ///< cents more for each further one
    std::vector<const char*> variants;
};

const std::vector<ProductLine>& Catalogue();

struct ShopTaxRate {
    const char* name;
    double percentage;
};
extern const ShopTaxRate ShopTaxRates[4];

struct ItemGroupIdea {
    const char* name;
    std::vector<const char*> items; ///< full item names
};
const std::vector<ItemGroupIdea>& ItemGroupIdeas();
