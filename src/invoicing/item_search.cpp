#include "invoicing/item_search.h"

namespace {

/// The clause that looks for `text` in a field, as a statement with one marker of that name; "" for an empty text.
QString SearchClause(const char* field, const char* marker, const QString& text)
{
    if (text.isEmpty())
        return {};
    return QStringLiteral("%1 LIKE '%{%2}%'").arg(QLatin1String(field), QLatin1String(marker));
}

} // namespace

Sql ItemSearchStatement(const ItemSearch& search)
{
    Sql sql("SELECT DISTINCT item.id, [number], item.name, description, noinstock FROM item, subcategory, category "
            "WHERE (item.subcategoryid = subcategory.id AND subcategory.categoryid = category.id) ");
    bool first = true;
    const auto addText = [&](const char* field, const char* marker, const QString& text) {
        const QString clause = SearchClause(field, marker, text);
        if (clause.isEmpty())
            return;
        // From the second text on any of them will do. The " OR " stands outside of all brackets, as it always has.
        sql.Append(first ? QStringLiteral(" AND ") : QStringLiteral(" OR ")).Append(clause).Text(marker, text);
        first = false;
    };
    addText("item.name", "name", search.name);
    addText("description", "description", search.description);
    addText("[number]", "number", search.number);
    if (search.subCategoryId != 0) {
        sql.Append(QStringLiteral(" AND  subcategoryid = {subCategoryId}"))
            .Number("subCategoryId", search.subCategoryId);
        first = false;
    } else if (search.categoryId != 0) {
        sql.Append(QStringLiteral(" AND  category.id = {categoryId}")).Number("categoryId", search.categoryId);
        first = false;
    }
    if (first)
        sql.Append(QStringLiteral(" AND item.id = item.id "));
    return sql;
}
