#include "faults/sweep.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMap>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

/// Does what a user does on a disk that fails, at every point where the program touches the disk, and says what is
/// wrong afterwards.

namespace {

constexpr auto Usage = "usage: faults [--tenth SEED] [ACT...]\n"
                       "Does each act of a user, or those named, once for each write, flush and deletion of the "
                       "database and its journal: on\n"
                       "a disk that is full there, on one that fails there, once or for good, with half of the write "
                       "done, and in a process\n"
                       "that ends there; and writes each file onto a disk that is full. Afterwards the file has to be "
                       "whole, the act done\n"
                       "wholly or not at all, the failure told, and the program has to start. Prints what is not so.\n"
                       "  --tenth SEED   at every tenth operation, by the luck of the number, one of these faults\n"
                       "acts:\n";

void PrintUsage(FILE* out)
{
    std::fputs(Usage, out);
    for (const Act& act : Acts())
        std::fprintf(out, "  %s\n", act.name);
    for (const FileAct& act : FileActs())
        std::fprintf(out, "  %s\n", act.name);
}

class Count {
public:
    void Add(const char* act, const QString& where, const QString& finding)
    {
        ++m_points;
        if (finding.isEmpty())
            return;
        ++m_findings;
        std::printf("%s, %s: %s\n", act, qPrintable(where), qPrintable(finding.trimmed()));
        std::fflush(stdout);
    }
    int Findings() const { return m_findings; }
    /// Behind an act: how many points it had.
    void Print(const char* act)
    {
        std::printf("%s: %d points\n", act, m_points - m_printed);
        std::fflush(stdout);
        m_printed = m_points;
    }
    void PrintAll() const { std::printf("%d points, %d findings\n", m_points, m_findings); }

private:
    int m_points = 0;
    int m_printed = 0;
    int m_findings = 0;
};

const char* NameOf(faulty_disk::Fault fault)
{
    constexpr const char* Names[]{"full disk", "full disk for good", "disk error", "disk error for good", "half of it",
        "end of the process", "end of the process in the middle"};
    return Names[int(fault)];
}

/// All points, or a tenth: one at each tenth operation, by the luck of the seed.
class Choice {
public:
    explicit Choice(const QString& seed)
        : m_all(seed.isEmpty())
        , m_random(seed.toUInt())
    {
    }
    QList<Point> Of(const QList<Point>& points)
    {
        if (m_all)
            return points;
        QMap<int, QList<Point>> byOperation;
        for (const Point& point : points)
            byOperation[point.number].append(point);
        QList<Point> chosen;
        for (const QList<Point>& operation : byOperation)
            if (m_random.bounded(10) == 0)
                chosen.append(operation[m_random.bounded(operation.size())]);
        return chosen;
    }
    QList<FilePoint> Of(const QList<FilePoint>& points)
    {
        return m_all ? points : QList{points[m_random.bounded(points.size())]};
    }

private:
    bool m_all;
    QRandomGenerator m_random;
};

void Run(const Act& act, Choice& choice, Count& count)
{
    const Sweep sweep(act);
    count.Add(act.name, "on a good disk", sweep.Finding());
    for (const Point& point : choice.Of(sweep.Points()))
        count.Add(act.name, QString("%1, %2").arg(point.number).arg(NameOf(point.fault)), sweep.FindingAt(point));
}

void Run(const FileAct& act, Choice& choice, Count& count)
{
    const FileSweep sweep(act);
    count.Add(act.name, "on a good disk", sweep.Finding());
    for (const FilePoint& point : choice.Of(FileSweep::Points()))
        count.Add(act.name,
            QString("full at %1 of the file%2").arg(point.share).arg(point.endsProcess ? ", the process ends" : ""),
            sweep.FindingAt(point));
}

template <typename AnyAct>
const AnyAct* Find(const std::vector<AnyAct>& acts, const QString& name)
{
    const auto found =
        std::find_if(acts.begin(), acts.end(), [&](const AnyAct& act) { return name == QLatin1String(act.name); });
    return found == acts.end() ? nullptr : &*found;
}

/// The child of a sweep: --end FOLDER ACT POINT FAULT, or --end FOLDER ACT BYTES.
int End(const QStringList& arguments)
{
    if (const Act* act = Find(Acts(), arguments[1]))
        EndAt(*act, {arguments[2].toInt(), faulty_disk::Fault(arguments[3].toInt())}, arguments[0]);
    else
        EndAt(*Find(FileActs(), arguments[1]), arguments[2].toLongLong(), arguments[0]);
    return 0;
}

template <typename AnyAct>
void RunAll(const std::vector<AnyAct>& acts, const QStringList& names, Choice& choice, Count& count)
{
    for (const AnyAct& act : acts)
        if (names.isEmpty() || names.contains(QLatin1String(act.name))) {
            Run(act, choice, count);
            count.Print(act.name);
        }
}

} // namespace

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest();
    // What a screen without a window system cannot do goes without saying.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    faulty_disk::Install();

    QStringList names = QApplication::arguments().sliced(1);
    if (names.size() >= 4 && names[0] == "--end")
        return End(names.sliced(1));
    QString seed;
    if (names.size() >= 2 && names[0] == "--tenth") {
        seed = names[1];
        names = names.sliced(2);
    }
    for (const QString& name : names)
        if (!Find(Acts(), name) && !Find(FileActs(), name)) {
            PrintUsage(name == "--help" ? stdout : stderr);
            return name == "--help" ? 0 : 2;
        }
    Choice choice(seed);
    Count count;
    RunAll(Acts(), names, choice, count);
    RunAll(FileActs(), names, choice, count);
    count.PrintAll();
    return count.Findings() == 0 ? 0 : 1;
}
