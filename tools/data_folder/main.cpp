#include "base/settings_store.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdio>

/// usage: data-folder [FOLDER]
/// Prints the folder in which the program looks for db.mdb, as the user's settings name it, and nothing when they name
/// none. With FOLDER, an absolute path, has the settings name that one from now on.

namespace {

const QString Key = QStringLiteral("DBPath");

int Complain(int status, const QString& message)
{
    std::fprintf(stderr, "data-folder: %s\n", qPrintable(message));
    return status;
}

int Store(const QString& folder)
{
    if (!QDir::isAbsolutePath(folder))
        return Complain(2, QStringLiteral("Name a folder by its whole path, not \"%1\".").arg(folder));
    const QString stored = folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    SaveConfig(Key, stored);
    if (GetConfig(Key, QString()) != stored)
        return Complain(1,
            QStringLiteral(
                "The settings in ~/.config/Tavrin cannot be written: may you write there, and is there room?"));
    return 0;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments().mid(1);
    if (words.size() > 1)
        return Complain(2, QStringLiteral("usage: data-folder [FOLDER]"));
    if (words.size() == 1)
        return Store(words.first());
    const QString folder = GetConfig(Key, QString());
    if (!folder.isEmpty())
        std::puts(QFile::encodeName(folder).constData());
    return 0;
}
