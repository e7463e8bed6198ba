#include "measure.h"

#include <QFile>

#include <algorithm>
#include <chrono>
#include <cstdio>

#include <malloc.h>
#include <unistd.h>

namespace {
bool gAllWithinLimits = true;
bool gHeadPrinted = false;
} // namespace

double Times::Share(double share) const
{
    std::vector<double> sorted = m_times;
    std::sort(sorted.begin(), sorted.end());
    return sorted[std::min(sorted.size() - 1, size_t(double(sorted.size()) * share))];
}

double MillisecondsOf(const std::function<void()>& act)
{
    const auto start = std::chrono::steady_clock::now();
    act();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

Pair MeasureInTurn(int rounds, const std::function<void()>& program, const std::function<void()>& floor)
{
    Pair pair;
    for (int round = 0; round < rounds; ++round) {
        pair.floor.Add(MillisecondsOf(floor));
        pair.program.Add(MillisecondsOf(program));
    }
    return pair;
}

double MegabytesInUse()
{
    malloc_trim(0);
    QFile status(QStringLiteral("/proc/self/statm"));
    if (!status.open(QFile::ReadOnly))
        return 0;
    return status.readAll().split(' ').at(1).toDouble() * double(sysconf(_SC_PAGESIZE)) / 1e6;
}

void PrintFigure(const char* subject, double measured, double floor, double limit, const char* unit)
{
    if (!gHeadPrinted)
        std::printf("%-52s %10s %10s %7s %10s\n", "", "measured", "floor", "ratio", "limit");
    gHeadPrinted = true;
    const bool within = measured <= limit;
    gAllWithinLimits &= within;
    char floorText[32] = "";
    char ratioText[32] = "";
    if (floor > 0) {
        std::snprintf(floorText, sizeof floorText, "%.3f", floor);
        std::snprintf(ratioText, sizeof ratioText, "%.2f", measured / floor);
    }
    std::printf("%-52s %10.3f %10s %7s %10.3f %s%s\n", subject, measured, floorText, ratioText, limit, unit,
        within ? "" : "   ABOVE ITS LIMIT");
    std::fflush(stdout);
}

bool AllWithinLimits()
{
    return gAllWithinLimits;
}
