#include "base/database_path.h"

#include "base/files.h"
#include "base/settings_store.h"

#include <QFileInfo>

QString DatabasePath()
{
    QString folder = GetConfig(QStringLiteral("DBPath"), QString());
    if (folder.isEmpty())
        folder = ProgramFolder() + QLatin1Char('\\');
    return NativePath(folder, QLatin1String(DatabaseFileName));
}

QString LogoFolder()
{
    return IsInstalled() ? QFileInfo(DatabasePath()).path() : ProgramFolder();
}
