#pragma once

#include <QString>

class QIODevice;

/// The folder that holds the program and all it reads, without a trailing separator. An installed program reads from
/// the system's folder for data instead, such as /usr/share/tavrin-inventory.
QString ProgramFolder();
/// True for a program whose folder belongs to the system: nothing can be written there.
bool IsInstalled();
/// Tests and tools point it elsewhere; "" brings the program's own folder back.
void SetProgramFolder(const QString& folder);

/// A path whose last separator may be "\" on any platform.
QString NativePath(const QString& folder, const QString& file);

/// True also for a folder.
bool FileExists(const QString& path);
/// A path in `folder` that no file has yet: a random hexadecimal name and `extension` (with its dot).
QString MakeUniqueFileName(const QString& folder, const QString& extension);
/// Makes a temporary file named after `prefix`; in the system's own folder when `folder` is "". Returns its path, or ""
/// on failure.
QString MakeTempFile(const QString& folder, const QString& prefix);
/// The text before the first NUL, or all of it.
QString TrimAtNull(const QString& text);
/// Deletes the file, if there is one. Folders and devices stay, and a failure is not told.
void DeleteFile(const QString& path);
/// True for two names of one file that exists.
bool IsSameFile(const QString& one, const QString& other);

/// Writes a temporary file beside the target and moves it into place when it is whole and on the disk. False when that
/// fails; what stood at the target is still there then. Folders, pipes and devices are never replaced.
bool WriteWholeFile(const QString& path, const QByteArray& bytes);
/// All that `source` holds, which is open.
bool WriteWholeFile(const QString& path, QIODevice& source);
