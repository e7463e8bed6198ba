#include "base/files.h"

#include "base/runtime_error.h"
#include "base/sign_of_life.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QTemporaryFile>

#include <filesystem>

namespace {

QString gProgramFolder;

bool EndsInSeparator(const QString& folder)
{
    return folder.endsWith(QLatin1Char('/')) || folder.endsWith(QLatin1Char('\\'));
}

/// What an installed program reads, at its place in the system's data; "" when the program is not installed.
QString InstalledFolder()
{
    const QString place = QStringLiteral("/" TAVRIN_DATA_FROM_PROGRAM);
    const QString folder = QDir::cleanPath(QCoreApplication::applicationDirPath() + place);
    return QDir(folder).exists() ? folder : QString();
}

} // namespace

QString ProgramFolder()
{
    if (!gProgramFolder.isEmpty())
        return gProgramFolder;
    const QString installed = InstalledFolder();
    return installed.isEmpty() ? QCoreApplication::applicationDirPath() : installed;
}

bool IsInstalled()
{
    return gProgramFolder.isEmpty() && !InstalledFolder().isEmpty();
}

void SetProgramFolder(const QString& folder)
{
    gProgramFolder = folder;
    // A root keeps its separator.
    while (gProgramFolder.size() > 1 && EndsInSeparator(gProgramFolder))
        gProgramFolder.chop(1);
}

QString NativePath(const QString& folder, const QString& file)
{
    if (folder.isEmpty())
        return file;
    return (EndsInSeparator(folder) ? folder.chopped(1) : folder) + QLatin1Char('/') + file;
}

bool FileExists(const QString& path)
{
    const QFileInfo info(path);
    // A link that leads nowhere is still a name that is taken.
    return info.exists() || info.isSymLink();
}

QString MakeUniqueFileName(const QString& folder, const QString& extension)
{
    constexpr quint32 NameCount = 65535;
    const quint32 start = QRandomGenerator::global()->bounded(NameCount);
    // Going on from a random name instead of drawing again ends also when the folder has all the names.
    for (quint32 step = 0; step < NameCount; ++step) {
        const QString name = QString::number((start + step) % NameCount, 16).toUpper();
        QString path = NativePath(folder, name + extension);
        if (!FileExists(path))
            return path;
    }
    throw PathFileAccessError();
}

QString MakeTempFile(const QString& folder, const QString& prefix)
{
    const QString place = folder.isEmpty() ? QDir::tempPath() : folder;
    QTemporaryFile file(NativePath(place, TrimAtNull(prefix) + QStringLiteral("XXXXXX.tmp")));
    file.setAutoRemove(false);
    return file.open() ? file.fileName() : QString();
}

QString TrimAtNull(const QString& text)
{
    return text.left(text.indexOf(QChar::Null));
}

void DeleteFile(const QString& path)
{
    if (const QFileInfo info(path); info.isFile() || info.isSymLink())
        QFile::remove(path);
}

bool IsSameFile(const QString& one, const QString& other)
{
    std::error_code error;
    return std::filesystem::equivalent(one.toStdString(), other.toStdString(), error);
}

bool WriteWholeFile(const QString& path, const QByteArray& bytes)
{
    QBuffer source;
    source.setData(bytes);
    return source.open(QIODevice::ReadOnly) && WriteWholeFile(path, source);
}

bool WriteWholeFile(const QString& path, QIODevice& source)
{
    constexpr qint64 Piece = 1 << 20;
    // A new file would take the place of a pipe or a device.
    if (const QFileInfo info(path); info.exists() && !info.isFile())
        return false;
    QSaveFile file(path);
    if (!file.open(QFile::WriteOnly) || !source.seek(0))
        return false;
    while (!source.atEnd()) {
        const QByteArray bytes = source.read(Piece);
        if (bytes.isEmpty() || file.write(bytes) != bytes.size())
            return false;
        SignOfLife();
    }
    // The commit does not notice that the disk is full for what lies in the buffer yet.
    return file.flush() && file.commit();
}
