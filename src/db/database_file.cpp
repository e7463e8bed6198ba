#include "db/database_file.h"

#include "base/sign_of_life.h"
#include "db/engine_errors.h"
#include "db/left_journal.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <memory>
#include <thread>

#include <sqlite3.h>

namespace {

using namespace std::chrono_literals;

/// A file in use is asked for again and again, for five seconds.
constexpr std::array WaitsForAFile{1ms, 2ms, 5ms, 10ms, 15ms, 20ms, 25ms, 50ms, 100ms};
constexpr std::chrono::milliseconds LongestWait = 5s;
constexpr std::chrono::milliseconds UntilTold = 300ms;
/// What comes right behind a wait in vain does not wait again: a view of many figures would take a minute.
constexpr std::chrono::milliseconds InVainForAll = 100ms;

std::atomic<void (*)()> gGiveWay = nullptr;

/// The engine's question whether to try once more; `tries` were in vain. A check of the file is asked to give way.
/// `screens` is null but for a connection of the screens' thread.
int WaitForFile(void* screens, int tries)
{
    using Clock = std::chrono::steady_clock;
    static thread_local Clock::time_point gaveUp;
    std::chrono::milliseconds waited{};
    for (int i = 0; i < tries; ++i)
        waited += WaitsForAFile[std::min(size_t(i), WaitsForAFile.size() - 1)];
    if (waited >= LongestWait || Clock::now() < gaveUp + InVainForAll) {
        gaveUp = Clock::now();
        return 0;
    }
    if (const auto giveWay = gGiveWay.load())
        giveWay();
    if (screens && waited >= UntilTold) {
        SignOfFileWait();
        SignOfLife();
    }
    std::this_thread::sleep_for(WaitsForAFile[std::min(size_t(tries), WaitsForAFile.size() - 1)]);
    return 1;
}

struct HandleCloser {
    void operator()(sqlite3* handle) const { sqlite3_close(handle); }
};
using Handle = std::unique_ptr<sqlite3, HandleCloser>;

void RequireFile(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        throw RuntimeError(GeneralFailure, QStringLiteral("Could not find file '%1'.").arg(path));
    if (!file.isFile())
        throw CannotOpen(path, QStringLiteral("It is not a file."));
    // The engine would take a file shorter than its first page's head for a new database.
    constexpr QByteArrayView Head("SQLite format 3", 16);
    QFile bytes(path);
    if (bytes.open(QIODevice::ReadOnly) && bytes.read(Head.size()) != Head.toByteArray())
        throw CannotOpen(path, QStringLiteral("Unrecognized database format."));
}

Handle OpenHandle(const QString& path, FileUse use)
{
    // The program has one thread: the engine's locks would cost a sixth of a list's fill.
    const int flags = SQLITE_OPEN_NOMUTEX | (use == FileUse::ReadOnly ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE);
    sqlite3* handle = nullptr;
    const int code = sqlite3_open_v2(path.toUtf8().constData(), &handle, flags, nullptr);
    Handle owner(handle);
    if (code != SQLITE_OK)
        throw CannotOpen(path, QStringLiteral("You may lack the rights to read or write it."));
    // Without the right to write the engine opens for reading without a word.
    if (use == FileUse::ReadAndWrite && sqlite3_db_readonly(handle, "main") == 1)
        throw CannotOpen(path, QStringLiteral("It is read-only."));
    // Each write makes a journal beside the file, where a link leads, for its time.
    if (use == FileUse::ReadAndWrite && !QFileInfo(QFileInfo(QFileInfo(path).canonicalFilePath()).path()).isWritable())
        throw CannotOpen(path, QStringLiteral("Its folder is read-only."));
    return owner;
}

void Run(const QString& path, sqlite3* handle, const char* sql)
{
    if (sqlite3_exec(handle, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
        throw CannotOpen(path, EngineError(handle).Description());
}

qint64 Number(const QString& path, sqlite3* handle, const char* sql)
{
    qint64 number = 0;
    const auto read = [](void* out, int, char** fields, char**) {
        *static_cast<qint64*>(out) = QByteArray(fields[0]).toLongLong();
        return 0;
    };
    if (sqlite3_exec(handle, sql, read, &number, nullptr) != SQLITE_OK)
        throw CannotOpen(path, EngineError(handle).Description());
    return number;
}

/// Reading a page count rolls back what a killed process left, so that the sizes tell the truth.
void RequireWhole(const QString& path, sqlite3* handle)
{
    Number(path, handle, "SELECT count(*) FROM sqlite_schema");
    const qint64 size = Number(path, handle, "PRAGMA page_count") * Number(path, handle, "PRAGMA page_size");
    if (QFileInfo(path).size() < size)
        throw CannotOpen(path, QStringLiteral("The file is cut short."));
}

} // namespace

sqlite3* OpenDatabaseFile(const QString& path, FileUse use)
{
    RequireFile(path);
    if (use == FileUse::ReadAndWrite)
        SetAsideForeignJournal(path);
    Handle handle = OpenHandle(path, use);
    sqlite3_extended_result_codes(handle.get(), 1);
    sqlite3_busy_handler(handle.get(), WaitForFile, nullptr);
    // A name in double quotes that is no column is a mistake, not a text.
    sqlite3_db_config(handle.get(), SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    RequireWhole(path, handle.get());
    if (use == FileUse::ReadAndWrite)
        Run(path, handle.get(), "PRAGMA journal_mode = DELETE");
    // The removal of the journal is what commits: it has to be on the disk, too, before an act counts as done.
    Run(path, handle.get(), "PRAGMA synchronous = EXTRA");
    Run(path, handle.get(), "PRAGMA temp_store = MEMORY");
    Run(path, handle.get(), "PRAGMA cache_size = -32000");
    return handle.release();
}

void SetGiveWay(void (*giveWay)())
{
    gGiveWay = giveWay;
}

void TellSignsOfLife(sqlite3* handle)
{
    // Of the engine's steps, some hundred times a second; it counts them in any case.
    constexpr int StepsToASign = 100'000;
    const auto tell = [](void*) {
        SignOfLife();
        return 0;
    };
    sqlite3_progress_handler(handle, StepsToASign, tell, nullptr);
    sqlite3_busy_handler(handle, WaitForFile, handle);
}
