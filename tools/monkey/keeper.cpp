#include "keeper.h"

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <stdexcept>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr qsizetype EventsKept = 25;

/// Ten seconds of computing without an event are a hang, as are minutes of waiting. A busy machine is none.
class Patience {
public:
    explicit Patience(pid_t process) { clock_getcpuclockid(process, &m_clock); }

    void Renew()
    {
        m_waited = 0;
        m_computed = Computed();
    }
    /// True when it has run out, a second later.
    bool IsOut()
    {
        constexpr int MostComputed = 10;
        constexpr int MostWaited = 200;
        return ++m_waited > MostWaited || Computed() - m_computed > MostComputed;
    }

    QString Spent() const
    {
        return QStringLiteral("%1 s waited, %2 s computed").arg(m_waited).arg(Computed() - m_computed);
    }

private:
    time_t Computed() const
    {
        timespec time{};
        clock_gettime(m_clock, &time);
        return time.tv_sec;
    }

    clockid_t m_clock{};
    int m_waited = 0;
    time_t m_computed = 0;
};

class Keeper {
public:
    Keeper(pid_t process, int descriptor, bool showEvents)
        : m_process(process)
        , m_descriptor(descriptor)
        , m_showEvents(showEvents)
    {
    }

    LifeEnd Keep()
    {
        Patience patience(m_process);
        for (bool isOpen = true; isOpen;) {
            pollfd news{m_descriptor, POLLIN, 0};
            if (poll(&news, 1, 1000) > 0) {
                isOpen = Read();
                patience.Renew();
            } else if (patience.IsOut()) {
                Find(QStringLiteral("a hang, %1").arg(patience.Spent()));
                kill(m_process, SIGABRT);
                break;
            }
        }
        int status = 0;
        waitpid(m_process, &status, 0);
        close(m_descriptor);
        if (WIFSIGNALED(status))
            Find(QStringLiteral("a crash: %1").arg(QLatin1String(strsignal(WTERMSIG(status)))));
        else if (!m_hasEnd)
            Find(QStringLiteral("the process ended without a word, with %1").arg(WEXITSTATUS(status)));
        else if (m_end.how == LifeEnd::How::Closed && WEXITSTATUS(status) != 0)
            Find(QStringLiteral("the process ended with %1").arg(WEXITSTATUS(status)));
        return m_end;
    }

private:
    /// False at the end of the process.
    bool Read()
    {
        char bytes[4096];
        const ssize_t size = read(m_descriptor, bytes, sizeof bytes);
        if (size <= 0)
            return false;
        m_rest.append(bytes, size);
        for (qsizetype end = m_rest.indexOf('\n'); end >= 0; end = m_rest.indexOf('\n')) {
            Take(Line(m_rest.front()), QString::fromUtf8(m_rest.mid(1, end - 1)));
            m_rest.remove(0, end + 1);
        }
        return true;
    }

    void Take(Line kind, const QString& text)
    {
        if (kind == Line::Event) {
            m_end.lastEvents.append(text);
            if (m_end.lastEvents.size() > EventsKept)
                m_end.lastEvents.removeFirst();
            m_end.lastEvent = text.section(QLatin1Char(' '), 0, 0).toInt();
            if (m_showEvents)
                std::printf("%s\n", qPrintable(text));
        } else if (kind == Line::Finding) {
            Find(text);
        } else if (!m_hasEnd) {
            m_hasEnd = true;
            m_end.how = kind == Line::Closed ? LifeEnd::How::Closed : LifeEnd::How::RunTimeError;
            m_end.text = text;
        }
    }

    /// The first finding is the one to know of.
    void Find(const QString& text)
    {
        if (m_hasEnd && m_end.how == LifeEnd::How::Finding)
            return;
        m_hasEnd = true;
        m_end.how = LifeEnd::How::Finding;
        m_end.text = text;
    }

    pid_t m_process;
    int m_descriptor;
    bool m_showEvents;
    QByteArray m_rest;
    bool m_hasEnd = false;
    LifeEnd m_end;
};

} // namespace

LifeEnd KeepAlive(const Life& life, bool showEvents)
{
    int ends[2];
    if (pipe(ends) != 0)
        throw std::runtime_error("no pipe");
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process < 0)
        throw std::runtime_error("no further process");
    if (process == 0) {
        close(ends[0]);
        Live(life, Diary(ends[1]));
        std::exit(EXIT_SUCCESS);
    }
    close(ends[1]);
    return Keeper(process, ends[0], showEvents).Keep();
}
