#include "invoicing/item_search.h"

#include <gtest/gtest.h>

namespace {

const QString Head = QStringLiteral(
    "SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category "
    "WHERE (item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id) ");

struct SearchCase {
    ItemSearch search;
    const char* clauses;
};
class ItemSearchStatements : public ::testing::TestWithParam<SearchCase> { };

TEST_P(ItemSearchStatements, EndInTheClausesOfTheFieldsThatAreFilled)
{
    EXPECT_EQ(ItemSearchStatement(GetParam().search).Filled().toStdString(),
        (Head + QString::fromUtf8(GetParam().clauses)).toStdString());
}

INSTANTIATE_TEST_SUITE_P(Fields, ItemSearchStatements,
    ::testing::Values(SearchCase{{}, " AND item.id = item.id "},
        SearchCase{{"screw", "", ""}, " AND item.name LIKE '%screw%'"},
        SearchCase{{"", "", "A-1"}, " AND [number] LIKE '%A-1%'"},
        SearchCase{{"screw", "brass", ""}, " AND item.name LIKE '%screw%' OR description LIKE '%brass%'"},
        SearchCase{{"a", "b", "c", 5, 2},
            " AND item.name LIKE '%a%' OR description LIKE '%b%' OR [number] LIKE '%c%' AND  subcategoryid = 5"},
        SearchCase{{"", "", "", 0, 2}, " AND  category.id = 2"},
        SearchCase{{"O'Brien's", "", ""}, " AND item.name LIKE '%O''Brien''s%'"},
        SearchCase{
            {"{description}", "{name}", ""}, " AND item.name LIKE '%{description}%' OR description LIKE '%{name}%'"}));

} // namespace
