#include "keeper.h"
#include "told_ends.h"
#include "watch.h"

#include <QMap>
#include <QStringList>
#include <QTemporaryDir>

#include <cstdio>
#include <optional>
#include <stdexcept>

#include <sys/personality.h>
#include <unistd.h>

/// usage: monkey PROGRAM_FOLDER [--seed N] [--events N] [--show]
/// Plays at random with the real windows of the program, over a demo shop, settings and files of its own, 500 events to
/// a shop; each shop has its own seed, from N on. Whatever ends the program but its user and what is meant to end it,
/// and whatever Qt complains about, is a finding: it is told with the last events, and its seed does the same again.

namespace {

constexpr int EventsAShop = 500;

struct Wishes {
    QString programFolder;
    quint64 seed = 1;
    int events = 2000;
    bool showEvents = false;
};

std::optional<Wishes> ReadWishes(QStringList words)
{
    Wishes wishes;
    wishes.showEvents = words.removeAll(QStringLiteral("--show")) > 0;
    if (words.size() % 2 == 0)
        return {};
    wishes.programFolder = words.takeFirst();
    for (; !words.isEmpty(); words.remove(0, 2)) {
        bool isNumber = false;
        const int number = words[1].toInt(&isNumber);
        if (!isNumber || number < 1)
            return {};
        if (words[0] == QLatin1String("--seed"))
            wishes.seed = quint64(number);
        else if (words[0] == QLatin1String("--events"))
            wishes.events = number;
        else
            return {};
    }
    return wishes;
}

/// Where things lie in memory decides here and there what comes first.
void StartWithFixedAddresses(char* argv[])
{
    const int before = personality(0xffffffff);
    if (before >= 0 && !(before & ADDR_NO_RANDOMIZE) && personality(ulong(before) | ADDR_NO_RANDOMIZE) >= 0)
        execv("/proc/self/exe", argv);
}

class Run {
public:
    explicit Run(Wishes wishes)
        : m_wishes(std::move(wishes))
    {
    }

    /// The number of shops with a finding.
    int PlayAll()
    {
        int findings = 0;
        for (quint64 seed = m_wishes.seed; m_played < m_wishes.events; ++seed)
            if (!Play(seed, qMin(EventsAShop, m_wishes.events - m_played)))
                ++findings;
        std::printf("monkey: %d events, %d findings\n", m_played, findings);
        for (auto end = m_ends.cbegin(); end != m_ends.cend(); ++end)
            std::printf("monkey: ended %d times as it should: %s\n", end.value(), qPrintable(end.key()));
        return findings;
    }

private:
    /// One shop, in as many lives as it takes. False with a finding.
    bool Play(quint64 seed, int events)
    {
        const QTemporaryDir folder;
        MakeShop(folder.path(), m_wishes.programFolder);
        for (int event = 0; event < events;) {
            LifeEnd end = KeepAlive({folder.path(), seed, event, events - event}, m_wishes.showEvents);
            m_played += qMax(1, end.lastEvent - event);
            event = qMax(event + 1, end.lastEvent);
            Judge(end, folder.path());
            if (end.how == LifeEnd::How::Finding) {
                Tell(end, seed, events);
                return false;
            }
        }
        return true;
    }

    void Judge(LifeEnd& end, const QString& folder)
    {
        if (end.how == LifeEnd::How::Finding)
            return;
        const QString reason = end.how == LifeEnd::How::RunTimeError
            ? ReasonToEnd(end.text, end.lastEvents.value(end.lastEvents.size() - 1))
            : QStringLiteral("closed");
        const QString wrong = Watch::WrongInFile(folder + QStringLiteral("/db.mdb"));
        if (reason.isEmpty() || !wrong.isEmpty()) {
            end.how = LifeEnd::How::Finding;
            end.text += wrong;
        } else {
            ++m_ends[reason];
        }
    }

    static void Tell(const LifeEnd& end, quint64 seed, int events)
    {
        std::printf("monkey: FINDING: %s\n", qPrintable(end.text));
        for (const QString& event : end.lastEvents)
            std::printf("    %s\n", qPrintable(event));
        std::printf("monkey: again with --seed %llu --events %d\n", qulonglong(seed), events);
        std::fflush(stdout);
    }

    Wishes m_wishes;
    int m_played = 0;
    QMap<QString, int> m_ends;
};

} // namespace

int main(int argc, char* argv[])
{
    StartWithFixedAddresses(argv);
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QStringList words;
    for (int i = 1; i < argc; ++i)
        words.append(QString::fromLocal8Bit(argv[i]));
    const std::optional<Wishes> wishes = ReadWishes(words);
    if (!wishes) {
        std::fputs("usage: monkey PROGRAM_FOLDER [--seed N] [--events N] [--show]\n", stderr);
        return 2;
    }
    try {
        return Run(*wishes).PlayAll() == 0 ? EXIT_SUCCESS : EXIT_FAILURE;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "monkey: %s\n", error.what());
        return 2;
    }
}
