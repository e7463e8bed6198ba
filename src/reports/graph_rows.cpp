#include "reports/graph_rows.h"

#include "base/clock.h"
#include "base/dates.h"
#include "db/connection.h"
#include "reports/statistics.h"

#include <functional>

namespace {

constexpr int MonthsShown = 12;

QDate FirstOfThisMonth()
{
    const QDate today = Now().date();
    return {today.year(), today.month(), 1};
}

/// Only its date counts: a midnight of the local zone would have to be looked up in the system's tables.
QDateTime MidnightOf(const QDate& day)
{
    return QDateTime(day, QTime(0, 0), Qt::UTC);
}

QList<GraphRow> RowsByMonth(const std::function<QStringList(const QDate& first, const QDate& last)>& values)
{
    QList<GraphRow> rows;
    QDate first = FirstOfThisMonth().addMonths(1 - MonthsShown);
    for (int row = 0; row < MonthsShown; ++row, first = first.addMonths(1)) {
        const QDate last = first.addDays(LastDayOfMonth(first) - 1);
        rows.append({FormatDate(MidnightOf(first), QStringLiteral("mmm-yyyy")), values(first, last)});
    }
    return rows;
}

QString UnitsSold(qint64 itemId, const QDate& first, const QDate& last)
{
    const Recordset sum = gConnection->Execute(
        Sql("SELECT sum(quantity) FROM invoice, invoiceline WHERE invoiceline.itemid = {itemid} "
            "AND invoice.id = invoiceline.invoiceid AND submitteddate BETWEEN #{from} 00:00# AND #{to} 23:59#")
            .Number("itemid", itemId)
            .Raw("from", DateToYmd(first))
            .Raw("to", DateToYmd(last)));
    return sum.IsNull(0) ? QStringLiteral("0") : sum[0].ToText();
}

} // namespace

QList<GraphRow> InvoicesThisMonth()
{
    QList<GraphRow> rows;
    QDate day = FirstOfThisMonth();
    for (const int days = LastDayOfMonth(day); rows.size() < days; day = day.addDays(1))
        rows.append({ShortDate(MidnightOf(day)), {InvoicesBetween(day, day)}});
    return rows;
}

QList<GraphRow> InvoicesPerMonth()
{
    return RowsByMonth([](const QDate& first, const QDate& last) { return QStringList{InvoicesBetween(first, last)}; });
}

QList<GraphRow> ItemSales(qint64 firstItem, qint64 secondItem)
{
    return RowsByMonth([=](const QDate& first, const QDate& last) {
        return QStringList{UnitsSold(firstItem, first, last), UnitsSold(secondItem, first, last)};
    });
}
