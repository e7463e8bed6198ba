#include "db/file_check.h"

#include "base/runtime_error.h"
#include "db/database_file.h"

#include <QList>
#include <QStringList>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>

#include <sqlite3.h>

namespace {

/// How long the check stays away when it was in somebody's way, and how often it tries the same table.
constexpr std::chrono::seconds Rest(2);
constexpr int Tries = 30;

enum class Verdict { Sound, Damaged, Interrupted, Unknown };

struct Result {
    Verdict verdict = Verdict::Unknown;
    QStringList texts;
};

int ReadText(void* out, int, char** fields, char**)
{
    static_cast<QStringList*>(out)->append(QString::fromUtf8(fields[0]));
    return 0;
}

Result Ask(sqlite3* handle, const QString& sql)
{
    Result result;
    switch (sqlite3_exec(handle, sql.toUtf8().constData(), ReadText, &result.texts, nullptr) & 0xff) {
    case SQLITE_OK:
        result.verdict = Verdict::Sound;
        break;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        result.verdict = Verdict::Damaged;
        break;
    case SQLITE_INTERRUPT:
    case SQLITE_BUSY:
        result.verdict = Verdict::Interrupted;
        break;
    default:
        break;
    }
    return result;
}

/// One table at a time, so that the file is free for writers in between.
Verdict CheckTable(sqlite3* handle, const QString& table)
{
    const Result result = Ask(handle, QStringLiteral("PRAGMA quick_check('%1')").arg(table));
    if (result.verdict != Verdict::Sound)
        return result.verdict;
    return result.texts == QStringList{QStringLiteral("ok")} ? Verdict::Sound : Verdict::Damaged;
}

} // namespace

class FileCheck::Run {
public:
    Run(const QString& path, std::function<void()> damaged)
        : m_path(path)
        , m_damaged(std::move(damaged))
    {
        SetGiveWay(InterruptAll);
        const std::lock_guard lock(AllMutex());
        All().insert(this);
        m_thread = std::thread([this] { Work(); });
    }
    ~Run()
    {
        {
            const std::lock_guard lock(AllMutex());
            All().erase(this);
        }
        {
            const std::lock_guard lock(m_mutex);
            m_stop = true;
            InterruptNow();
        }
        m_wake.notify_all();
        m_thread.join();
    }
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;

    /// Lets the running checks off the file for a while: somebody waits to write.
    static void InterruptAll()
    {
        const std::lock_guard lock(AllMutex());
        for (Run* run : All()) {
            const std::lock_guard own(run->m_mutex);
            run->InterruptNow();
        }
    }

private:
    static std::mutex& AllMutex()
    {
        static std::mutex mutex;
        return mutex;
    }
    static std::set<Run*>& All()
    {
        static std::set<Run*> all;
        return all;
    }

    void InterruptNow() const
    {
        if (m_handle)
            sqlite3_interrupt(m_handle);
    }

    /// False when the check is to end.
    bool RestAWhile()
    {
        std::unique_lock lock(m_mutex);
        return !m_wake.wait_for(lock, Rest, [this] { return m_stop; });
    }

    void SetHandle(sqlite3* handle)
    {
        const std::lock_guard lock(m_mutex);
        m_handle = handle;
    }

    /// While it lives, other threads may interrupt the handle.
    class Interruptible {
    public:
        Interruptible(Run& run, sqlite3* handle)
            : m_run(run)
        {
            m_run.SetHandle(handle);
        }
        ~Interruptible() { m_run.SetHandle(nullptr); }
        Interruptible(const Interruptible&) = delete;
        Interruptible& operator=(const Interruptible&) = delete;

    private:
        Run& m_run;
    };

    Verdict AskAgainAndAgain(const std::function<Verdict()>& ask)
    {
        for (int i = 0; i < Tries; ++i) {
            const Verdict verdict = ask();
            if (verdict != Verdict::Interrupted)
                return verdict;
            if (!RestAWhile())
                break;
        }
        return Verdict::Unknown;
    }

    Verdict Check(sqlite3* handle)
    {
        // A row that another program made too long is no damage.
        Ask(handle, QStringLiteral("PRAGMA ignore_check_constraints = ON"));
        QStringList tables;
        const Verdict listed = AskAgainAndAgain([&] {
            const Result result = Ask(handle, QStringLiteral("SELECT name FROM sqlite_schema WHERE type = 'table'"));
            tables = result.texts;
            return result.verdict;
        });
        if (listed != Verdict::Sound)
            return listed;
        for (QString table : std::as_const(tables)) {
            table.replace(QLatin1String("'"), QLatin1String("''"));
            const Verdict verdict = AskAgainAndAgain([&] { return CheckTable(handle, table); });
            if (verdict != Verdict::Sound)
                return verdict;
        }
        return Verdict::Sound;
    }

    void Work()
    {
        try {
            const std::unique_ptr<sqlite3, int (*)(sqlite3*)> handle(
                OpenDatabaseFile(m_path, FileUse::ReadOnly), sqlite3_close);
            const Interruptible interruptible(*this, handle.get());
            if (Check(handle.get()) == Verdict::Damaged)
                m_damaged();
        } catch (const std::exception&) {
            // The screens' own connection tells what keeps the file from being read.
            return;
        }
    }

    QString m_path;
    std::function<void()> m_damaged;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    sqlite3* m_handle = nullptr;
    bool m_stop = false;
    std::thread m_thread;
};

FileCheck::FileCheck(const QString& path, std::function<void()> damaged)
    : m_run(std::make_unique<Run>(path, std::move(damaged)))
{
}

FileCheck::~FileCheck() = default;
