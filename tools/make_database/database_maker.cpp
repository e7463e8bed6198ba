#include "database_maker.h"

#include "data_file.h"
#include "demo_shop.h"

#include "db/make_database.h"

#include <QFile>
#include <QFileInfo>

#include <stdexcept>

namespace {

void Refuse(const QString& reason)
{
    throw std::runtime_error(reason.toStdString());
}

void Fill(const QString& path, const Arguments& arguments)
{
    if (arguments.contents == Contents::SeedRows)
        return;
    DataFile file(path);
    Dice dice(arguments.seed);
    if (arguments.contents == Contents::DemoShop)
        FillDemoShop(file, dice, arguments.today);
    else
        FillLargeFile(file, dice, arguments.size, arguments.today);
    file.Finish();
}

} // namespace

void MakeDatabaseWith(const Arguments& arguments)
{
    const QFileInfo target(arguments.file);
    if (target.exists() || target.isSymLink())
        Refuse(QStringLiteral("\"%1\" exists and is not overwritten.").arg(arguments.file));

    const QString unfinished = arguments.file + QStringLiteral(".unfinished");
    QFile::remove(unfinished);
    try {
        MakeDatabase(unfinished);
        Fill(unfinished, arguments);
    } catch (...) {
        QFile::remove(unfinished);
        throw;
    }
    if (!QFile::rename(unfinished, arguments.file)) {
        QFile::remove(unfinished);
        Refuse(QStringLiteral("\"%1\" cannot be written.").arg(arguments.file));
    }
}
