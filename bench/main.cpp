#include "measure.h"
#include "running_program.h"
#include "soak.h"
#include "subjects.h"

#include <QApplication>
#include <QElapsedTimer>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>

/// usage: bench_tavrin [SUBJECT] FOLDER, with SUBJECT one of
///     --start --memory --statements --lists --scans --invoices --receiving --reports --fan-out --import --statistics
///     --charts --exports
/// or: bench_tavrin --soak FOLDER [INVOICES]
/// Measures the program over the db.mdb in FOLDER, and beside it its own statements straight on the engine: one
/// subject, or all but the statistics, which take too little time to compare over any but a very large file. Adds lines
/// to that file. The soak plays a shop's day of 1,000 invoices, or of so many. Exit status 1: something was above its
/// limit.

namespace {

struct Subject {
    const char* task;
    void (*measure)(RunningProgram&);
};
constexpr Subject Subjects[] = {
    {"--statements", MeasureStatementOverhead},
    {"--lists", MeasureLists},
    {"--scans", MeasureScans},
    {"--invoices", MeasureInvoices},
    {"--receiving", MeasureReceiving},
    {"--reports", MeasureReports},
    {"--fan-out", MeasureFanOut},
    {"--import", MeasureImport},
    {"--statistics", MeasureStatistics},
    {"--charts", MeasureCharts},
    {"--exports", MeasureExports},
};

constexpr int InvoicesOfADay = 1000;

bool IsAsked(const char* task, const char* subject)
{
    if (*task == '\0')
        return std::strcmp(subject, "--statistics") != 0;
    return std::strcmp(task, subject) == 0;
}

} // namespace

int main(int argc, char* argv[])
{
    QElapsedTimer sinceStart;
    sinceStart.start();
    const bool isSoak = argc > 2 && std::strcmp(argv[1], "--soak") == 0;
    if (argc != 2 && argc != 3 && !(isSoak && argc == 4)) {
        std::fputs("usage: bench_tavrin [--start | --memory | --statements | --lists | --scans | --invoices | "
                   "--receiving | --reports | --fan-out | --import | --statistics | --charts | --exports] FOLDER\n"
                   "       bench_tavrin --soak FOLDER [INVOICES]\n",
            stderr);
        return 2;
    }
    const char* task = argc > 2 ? argv[1] : "";
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    const QString folder = QString::fromLocal8Bit(argv[argc > 2 ? 2 : 1]);

    if (std::strcmp(task, StartOnceTask) == 0)
        return StartOnce(folder, double(sinceStart.nsecsElapsed()) / 1e6);
    if (std::strcmp(task, StartFloorOnceTask) == 0)
        return StartFloorOnce(folder);
    if (std::strcmp(task, PeakMemoryTask) == 0)
        return PeakMemory(folder);

    if (IsAsked(task, "--start"))
        MeasureStart(folder);
    if (IsAsked(task, "--memory"))
        MeasureMemory(folder);
    RunningProgram program(folder);
    if (isSoak) {
        constexpr int FewestInvoices = 10;
        const int invoices = argc == 4 ? std::max(FewestInvoices, std::atoi(argv[3])) : InvoicesOfADay;
        return Soak(program, invoices) && AllWithinLimits() ? 0 : 1;
    }
    for (const Subject& subject : Subjects)
        if (IsAsked(task, subject.task))
            subject.measure(program);
    return AllWithinLimits() ? 0 : 1;
}
