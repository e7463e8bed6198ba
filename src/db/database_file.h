#pragma once

#include <QString>

struct sqlite3;

enum class FileUse { ReadAndWrite, ReadOnly };

/// Opens an existing database file whole and sound. Throws RuntimeError with the reason when it is missing, is a
/// folder, lacks rights, is no database or is cut short; creates nothing.
sqlite3* OpenDatabaseFile(const QString& path, FileUse use);

/// `giveWay` is called, on any thread, when a connection waits for a file that another one holds.
void SetGiveWay(void (*giveWay)());

/// From now on the engine tells SignOfLife while it runs a statement of the handle. For the screens' thread alone.
void TellSignsOfLife(sqlite3* handle);
