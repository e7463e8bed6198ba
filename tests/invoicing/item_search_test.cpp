#include "invoicing/item_search.h"

#include "support/printing.h"

#include <gtest/gtest.h>

TEST(ItemSearchStatements, EndInTheClausesOfTheFieldsThatAreFilled)
{
    const QString head =
        "SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category "
        "WHERE (item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id) ";
    const std::pair<ItemSearch, QString> searches[] = {{{}, " AND item.id = item.id "},
        {{"screw", "", ""}, " AND item.name LIKE '%screw%'"}, {{"", "", "A-1"}, " AND [number] LIKE '%A-1%'"},
        {{"screw", "brass", ""}, " AND item.name LIKE '%screw%' OR description LIKE '%brass%'"},
        {{"a", "b", "c", 5, 2},
            " AND item.name LIKE '%a%' OR description LIKE '%b%' OR [number] LIKE '%c%' AND  subcategoryid = 5"},
        {{"", "", "", 0, 2}, " AND  category.id = 2"}, {{"O'Brien's", "", ""}, " AND item.name LIKE '%O''Brien''s%'"},
        {{"{description}", "{name}", ""}, " AND item.name LIKE '%{description}%' OR description LIKE '%{name}%'"}};
    for (const auto& [search, clauses] : searches)
        EXPECT_EQ(ItemSearchStatement(search).Filled(), head + clauses);
}
