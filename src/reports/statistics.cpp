#include "reports/statistics.h"

#include "base/clock.h"
#include "base/dates.h"
#include "db/connection.h"

namespace {

QString FirstFigure(const Sql& statement)
{
    return NullToText(gConnection->Execute(statement)[0]);
}

QString FirstDate(const char* statement)
{
    const Value date = gConnection->Execute(statement)[0];
    return date.IsNull() ? QString() : FormatDate(date.ToDate(), QStringLiteral("dd-mmm-yyyy"));
}

QString FirstMonth(const char* statement)
{
    return MonthAbbreviation(int(gConnection->Execute(statement)[0].ToLong()));
}

} // namespace

QString InvoicesToday()
{
    return FirstFigure(Sql("SELECT count(*) FROM invoice WHERE submitteddate >= #{today} 12:00 AM# "
                           "AND submitteddate <= #{today} 11:59 PM#")
                           .Raw("today", DateToYmd(Now().date())));
}

QString DateOfMostInvoices()
{
    return FirstDate("SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice "
                     "GROUP BY submitteddate ORDER BY count(submitteddate) DESC;");
}

QString DateOfLeastInvoices()
{
    return FirstDate("SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice "
                     "GROUP BY submitteddate ORDER BY count(submitteddate);");
}

QString MostPopularMonth()
{
    return FirstMonth("SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice "
                      "GROUP BY month(submitteddate) ORDER BY count(month(submitteddate)) DESC;");
}

QString LeastPopularMonth()
{
    return FirstMonth("SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice "
                      "GROUP BY month(submitteddate) ORDER BY count(month(submitteddate));");
}

QString MostRepeatingCustomer()
{
    const qint64 customerId = gConnection
                                  ->Execute("SELECT TOP 1 COUNT(*) AS tot, customerid FROM invoice "
                                            "GROUP BY customerid ORDER BY COUNT(*) DESC;")["customerid"]
                                  .ToLong();
    const Recordset customer = gConnection->Execute(
        Sql("SELECT firstname, lastname FROM customer WHERE id = {customerid}").Number("customerid", customerId));
    return NullToText(customer["firstname"]) + u' ' + NullToText(customer["lastname"]);
}

QString InvoicesInMonthOf(const QDateTime& moment)
{
    return FirstFigure(Sql("SELECT count(*) FROM invoice WHERE submitteddate BETWEEN #1-{month} 00:00# "
                           "AND #{last}-{month} 23:59#")
                           .Raw("month", FormatDate(moment, QStringLiteral("mmm-yyyy")))
                           .Number("last", LastDayOfMonth(moment.date())));
}

QString TotalInvoices()
{
    return FirstFigure(Sql("SELECT count(*) FROM invoice"));
}

QString InvoicesBetween(const QDate& first, const QDate& last)
{
    return FirstFigure(Sql("SELECT count(*) FROM invoice WHERE submitteddate BETWEEN #{from} 00:00# AND #{to} 23:59#")
                           .Raw("from", DateToYmd(first))
                           .Raw("to", DateToYmd(last)));
}

QDate StartOfWeek()
{
    const QDateTime now = Now();
    return now.date().addDays(1 - WeekdayNumber(FormatDate(now, QStringLiteral("dddd"))));
}
