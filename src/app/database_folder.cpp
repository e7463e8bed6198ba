#include "app/database_folder.h"

#include "base/files.h"
#include "base/settings_store.h"

QString ResolveDatabaseFolder()
{
    const QString key = QStringLiteral("DBPath");
    QString programFolder = ProgramFolder() + QLatin1Char('\\');
    QString folder = GetConfig(key, programFolder);
    if (folder.isEmpty())
        return programFolder;
    if (!folder.endsWith(QLatin1Char('/')) && !folder.endsWith(QLatin1Char('\\'))) {
        folder += QLatin1Char('/');
        SaveConfig(key, folder);
    }
    return folder;
}
