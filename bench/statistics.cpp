#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "base/clock.h"

#include <memory>

namespace {

constexpr int Rounds = 9;
constexpr int RoundsOfAGraph = 51;
constexpr double Allowed = 1.3;

std::string Bound(const QDate& day, const char* time)
{
    return day.toString(Qt::ISODate).toStdString() + time;
}

/// The statements of the graphs, one run a value.
class GraphFloor {
public:
    GraphFloor(sqlite3* handle, const QDate& today)
        : m_count(
            handle, "SELECT count(*) FROM invoice WHERE submitteddate BETWEEN #2024-1-1 00:00# AND #2024-1-1 23:59#")
        , m_sum(handle,
              "SELECT sum(quantity) FROM invoice, invoiceline WHERE invoiceline.itemid = 1 "
              "AND invoice.id = invoiceline.invoiceid AND submitteddate BETWEEN #2024-1-1 00:00# AND #2024-1-1 23:59#")
        , m_month(today.year(), today.month(), 1)
    {
    }

    void Days()
    {
        for (int day = 0; day < m_month.daysInMonth(); ++day)
            Count(m_month.addDays(day), m_month.addDays(day));
    }
    void Months()
    {
        for (int month = -11; month <= 0; ++month)
            Count(m_month.addMonths(month), m_month.addMonths(month + 1).addDays(-1));
    }
    void Sales(qint64 first, qint64 second)
    {
        for (int month = -11; month <= 0; ++month)
            for (const qint64 item : {first, second})
                m_sum.Run(item, Bound(m_month.addMonths(month), " 00:00:00"),
                    Bound(m_month.addMonths(month + 1).addDays(-1), " 23:59:00"));
    }
    void Count(const QDate& first, const QDate& last)
    {
        m_count.Run(Bound(first, " 00:00:00"), Bound(last, " 23:59:00"));
    }

private:
    FloorStatement m_count;
    FloorStatement m_sum;
    QDate m_month;
};

/// The statements of the whole panel, the graph of the month among them, which is drawn for each of the two items.
class PanelFloor {
public:
    PanelFloor(sqlite3* handle, const QDate& today)
        : m_graphs(handle, today)
        , m_today(today)
    {
        for (const char* statement : {"SELECT id, name FROM item ORDER BY name",
                 "SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice GROUP BY submitteddate "
                 "ORDER BY count(submitteddate) DESC;",
                 "SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice GROUP BY submitteddate "
                 "ORDER BY count(submitteddate);",
                 "SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice "
                 "GROUP BY month(submitteddate) ORDER BY count(month(submitteddate)) DESC;",
                 "SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice "
                 "GROUP BY month(submitteddate) ORDER BY count(month(submitteddate));",
                 "SELECT TOP 1 COUNT(*) AS tot, customerid FROM invoice GROUP BY customerid ORDER BY COUNT(*) DESC;",
                 "SELECT firstname, lastname FROM customer WHERE id = 1", "SELECT count(*) FROM invoice"})
            m_statements.push_back(std::make_unique<FloorStatement>(handle, statement));
    }

    void Run()
    {
        m_graphs.Days();
        m_graphs.Days();
        for (const auto& statement : m_statements)
            statement->Run();
        const QDate month(m_today.year(), m_today.month(), 1);
        m_graphs.Count(m_today, m_today);
        m_graphs.Count(month, month.addMonths(1).addDays(-1));
        m_graphs.Count(month.addYears(-1), month.addYears(-1).addMonths(1).addDays(-1));
        for (QDate day = m_today.addDays(1 - m_today.dayOfWeek()); day <= m_today; day = day.addDays(1))
            m_graphs.Count(day, day);
    }

private:
    GraphFloor m_graphs;
    QDate m_today;
    std::vector<std::unique_ptr<FloorStatement>> m_statements;
};

void MeasureAgainst(
    const char* subject, int rounds, const std::function<void()>& program, const std::function<void()>& floor)
{
    const Pair pair = MeasureInTurn(rounds, program, floor);
    PrintFigure(subject, pair.program.Median(), pair.floor.Median(), pair.floor.Median() * Allowed, "ms");
}

/// The day of the latest invoice, so that the present month has invoices.
QDate LastDay()
{
    return gConnection->Execute("SELECT max(submitteddate) FROM invoice")[0].ToDate().date();
}

} // namespace

void MeasureStatistics(RunningProgram& program)
{
    const QDate today = LastDay();
    SetClock([today] { return QDateTime(today, QTime(10, 30)); });
    MainWindow& window = program.Window();
    window.ViewReports();
    ReportsPanel* reports = window.picReports;
    GraphFloor graphs(program.Handle(), today);
    MeasureAgainst(
        "graph, invoices this month", RoundsOfAGraph, [&] { reports->RefreshGraph(0); }, [&] { graphs.Days(); });
    MeasureAgainst(
        "graph, invoices per month", RoundsOfAGraph, [&] { reports->RefreshGraph(1); }, [&] { graphs.Months(); });
    const qint64 first = reports->cboReportFirstProduct->SelectedData();
    const qint64 second = reports->cboReportSecondProduct->SelectedData();
    MeasureAgainst(
        "graph, sales of two items", RoundsOfAGraph, [&] { reports->RefreshGraph(2); },
        [&] { graphs.Sales(first, second); });
    PanelFloor panel(program.Handle(), today);
    MeasureAgainst(
        "statistics, all figures, lists and graph", Rounds,
        [&] {
            window.ViewReports();
            LetPaint();
        },
        [&] { panel.Run(); });
    SetClock({});
}
