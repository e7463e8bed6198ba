#include "support/faulty_disk.h"

#include <cstring>
#include <string>

#include <sqlite3.h>
#include <unistd.h>

namespace faulty_disk {
namespace {

bool gCounts = false;
int gPoint = 0;
Fault gFault = Fault::Full;
bool gHasStruck = false;
QList<Operation> gOperations;
std::function<void(const char*)> gCommitted;
sqlite3_vfs* gReal = nullptr;

bool LastsForGood(Fault fault)
{
    return fault == Fault::FullForGood || fault == Fault::ErrorForGood;
}

/// Whether the fault strikes the operation that comes now.
bool StrikesNow(Operation operation)
{
    if (!gCounts)
        return false;
    gOperations.append(operation);
    const qsizetype now = gOperations.size();
    const bool isDue = now == gPoint || (gPoint > 0 && now > gPoint && LastsForGood(gFault));
    return isDue && CanStrike(gFault, operation);
}

/// Does `whole`, or what the fault leaves of it: nothing, or `part`.
template <typename Whole, typename Part>
int Operate(Operation operation, int error, const Whole& whole, const Part& part)
{
    if (!StrikesNow(operation))
        return whole();
    gHasStruck = true;
    if (gFault == Fault::Half || gFault == Fault::EndInside)
        part();
    if (EndsProcess(gFault))
        _exit(EndStatus);
    return gFault == Fault::Full || gFault == Fault::FullForGood ? SQLITE_FULL : error;
}

template <typename Whole>
int Operate(int error, const Whole& whole)
{
    return Operate(Operation::Other, error, whole, [] {});
}

/// An open file; the engine's own one lies behind it in memory.
struct File : sqlite3_file {
    bool counts = false;
};

File* FileOf(sqlite3_file* file)
{
    return static_cast<File*>(file);
}
sqlite3_file* Real(sqlite3_file* file)
{
    return reinterpret_cast<sqlite3_file*>(FileOf(file) + 1);
}

/// Hands a call on as it is.
template <auto Method>
struct Pass;
template <typename... Arguments, int (*sqlite3_io_methods::*Method)(sqlite3_file*, Arguments...)>
struct Pass<Method> {
    static int On(sqlite3_file* file, Arguments... arguments)
    {
        return (Real(file)->pMethods->*Method)(Real(file), arguments...);
    }
};
using Methods = sqlite3_io_methods;

int Write(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 place)
{
    const auto write = [&](int some) { return Pass<&Methods::xWrite>::On(file, bytes, some, place); };
    if (!FileOf(file)->counts)
        return write(count);
    return Operate(
        Operation::Write, SQLITE_IOERR_WRITE, [&] { return write(count); }, [&] { write(count / 2); });
}

int Truncate(sqlite3_file* file, sqlite3_int64 size)
{
    return Operate(SQLITE_IOERR_TRUNCATE, [&] { return Pass<&Methods::xTruncate>::On(file, size); });
}

/// Nothing is forced onto the real disk: here processes end, not machines.
int Sync(sqlite3_file*, int)
{
    return Operate(SQLITE_IOERR_FSYNC, [] { return SQLITE_OK; });
}

constexpr Methods AllMethods{
    .iVersion = 1,
    .xClose = Pass<&Methods::xClose>::On,
    .xRead = Pass<&Methods::xRead>::On,
    .xWrite = Write,
    .xTruncate = Truncate,
    .xSync = Sync,
    .xFileSize = Pass<&Methods::xFileSize>::On,
    .xLock = Pass<&Methods::xLock>::On,
    .xUnlock = Pass<&Methods::xUnlock>::On,
    .xCheckReservedLock = Pass<&Methods::xCheckReservedLock>::On,
    .xFileControl = Pass<&Methods::xFileControl>::On,
    .xSectorSize = Pass<&Methods::xSectorSize>::On,
    .xDeviceCharacteristics = Pass<&Methods::xDeviceCharacteristics>::On,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

int Open(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags)
{
    file->pMethods = nullptr;
    FileOf(file)->counts = (flags & (SQLITE_OPEN_MAIN_DB | SQLITE_OPEN_MAIN_JOURNAL)) != 0;
    const auto open = [&] { return gReal->xOpen(gReal, name, Real(file), flags, outFlags); };
    Real(file)->pMethods = nullptr;
    // A database is opened before anything is done to it.
    const int code = flags & SQLITE_OPEN_MAIN_JOURNAL ? Operate(SQLITE_CANTOPEN, open) : open();
    if (Real(file)->pMethods)
        file->pMethods = &AllMethods;
    return code;
}

int Delete(sqlite3_vfs*, const char* name, int)
{
    const auto remove = [name] { return gReal->xDelete(gReal, name, 0); };
    const int code = Operate(Operation::Delete, SQLITE_IOERR_DELETE, remove, remove);
    if (code == SQLITE_OK && gCommitted)
        gCommitted(std::string(name, std::strlen(name) - std::strlen("-journal")).c_str());
    return code;
}

} // namespace

bool CanStrike(Fault fault, Operation operation)
{
    switch (fault) {
    case Fault::Full:
    case Fault::FullForGood:
        return operation == Operation::Write;
    case Fault::Half:
    case Fault::EndInside:
        return operation != Operation::Other;
    default:
        return true;
    }
}

void Install()
{
    static sqlite3_vfs layer;
    gReal = sqlite3_vfs_find(nullptr);
    layer = *gReal;
    layer.zName = "faulty";
    layer.szOsFile += int(sizeof(File));
    layer.xOpen = Open;
    layer.xDelete = Delete;
    sqlite3_vfs_register(&layer, 1);
}

void Start(int point, Fault fault)
{
    gPoint = point;
    gFault = fault;
    gHasStruck = false;
    gOperations.clear();
    gCounts = true;
}

QList<Operation> Mend()
{
    gCounts = false;
    return gOperations;
}

bool HasStruck()
{
    return gHasStruck;
}

void OnCommit(std::function<void(const char*)> committed)
{
    gCommitted = std::move(committed);
}

} // namespace faulty_disk
