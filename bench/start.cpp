#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

#include <sqlite3.h>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr int Starts = 9;
constexpr double AllowedRatio = 1.5;
constexpr double AllowedMs = 150;
constexpr double AllowedMegabytes = 250;

/// The number that this program prints when it is run for one thing alone.
double NumberFromAnother(const char* what, const QString& folder)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QLatin1String(what), folder});
    if (!process.waitForFinished(120'000) || process.exitCode() != 0) {
        std::fprintf(stderr, "bench: %s failed\n%s", what, process.readAllStandardError().constData());
        std::exit(1);
    }
    return process.readAllStandardOutput().trimmed().toDouble();
}

void PrintNumber(double number)
{
    std::printf("%f\n", number);
}

} // namespace

void MeasureStart(const QString& folder)
{
    const Pair pair = [&folder] {
        Pair starts;
        for (int i = 0; i < Starts; ++i) {
            starts.floor.Add(NumberFromAnother(StartFloorOnceTask, folder));
            starts.program.Add(NumberFromAnother(StartOnceTask, folder));
        }
        return starts;
    }();
    PrintFigure("start until the first screen shows, median", pair.program.Median(), pair.floor.Median(),
        pair.floor.Median() * AllowedRatio + AllowedMs, "ms");
}

void MeasureMemory(const QString& folder)
{
    PrintFigure(
        "peak memory with both lists filled", NumberFromAnother(PeakMemoryTask, folder), 0, AllowedMegabytes, "MB");
}

int StartOnce(const QString& folder, double millisecondsBefore)
{
    const double load = MillisecondsOf([&folder] { static RunningProgram program(folder); });
    PrintNumber(millisecondsBefore + load);
    std::fflush(stdout);
    // The end of the program is no part of its start.
    std::_Exit(0);
}

/// The statements of the load step, on a file that this process has not read before. The history's second fill finds
/// nothing changed, and the inventory list waits until it shows.
int StartFloorOnce(const QString& folder)
{
    Connection functions;
    functions.Open(folder + QStringLiteral("/db.mdb"));
    sqlite3* handle = FloorHandle(functions);
    const double time = MillisecondsOf([handle] {
        for (const char* statement : {
                 "SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings",
                 "SELECT id, name FROM PriceList ORDER BY name",
                 "SELECT count(*) FROM invoice",
                 "SELECT invoice.id, invoiceno, invoice.submitteddate, firstname, lastname, businessname, shippeddate "
                 "FROM customer, invoice WHERE invoice.customerid = customer.id ORDER BY businessname",
             })
            FloorStatement(handle, statement).Run();
    });
    PrintNumber(time);
    return 0;
}

int PeakMemory(const QString& folder)
{
    RunningProgram program(folder);
    program.Window().ViewInventory();
    LetPaint();
    program.Window().ListInvoices();
    LetPaint();
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QFile::ReadOnly))
        return 1;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith("VmHWM:"))
            PrintNumber(line.mid(6).trimmed().split(' ').first().toDouble() / 1024);
    return 0;
}
