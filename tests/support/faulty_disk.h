#pragma once

#include <QList>

#include <functional>

/// A layer over the disk as the engine sees it, under every file that the engine opens once it is installed. It counts
/// what is done to databases and their journals, and lets one of these operations go wrong.
namespace faulty_disk {

enum class Operation { Write, Delete, Other };

enum class Fault {
    Full, ///< the disk is full: the write fails
    FullForGood, ///< and so does every later one
    Error, ///< an input/output error
    ErrorForGood,
    Half, ///< an error, but half of the write is on the disk, or the whole deletion
    End, ///< the process ends before the operation
    EndInside, ///< or with half of the write on the disk, or the whole deletion
};
inline constexpr Fault Faults[]{
    Fault::Full, Fault::FullForGood, Fault::Error, Fault::ErrorForGood, Fault::Half, Fault::End, Fault::EndInside};
bool CanStrike(Fault fault, Operation operation);
constexpr bool EndsProcess(Fault fault)
{
    return fault == Fault::End || fault == Fault::EndInside;
}
/// The exit status of a process that ended so.
inline constexpr int EndStatus = 77;

void Install();
/// Counts from here on. `fault` strikes at the operation `point`, from 1; 0 is none.
void Start(int point, Fault fault);
/// The disk is as it should be again. Returns the operations since the start.
QList<Operation> Mend();
bool HasStruck();
/// `committed` is called whenever the deletion of a journal has ended a transaction, with the database's path.
void OnCommit(std::function<void(const char* path)> committed);

} // namespace faulty_disk
