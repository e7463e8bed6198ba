#include "help.h"
#include "key_tables.h"
#include "people.h"
#include "road.h"
#include "steps.h"
#include "stockroom.h"
#include "wizards.h"

#include "app/help_desk.h"
#include "app/image_lists.h"
#include "app/start.h"
#include "base/clock.h"
#include "base/files.h"
#include "base/settings_store.h"
#include "make_database/database_maker.h"
#include "sql/schema.h"
#include "support/screen.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <cstdio>

/// usage: tour PROGRAM_FOLDER PICTURE_FOLDER [LANGUAGE]
/// Walks the real windows, from the stock to the printed invoice, and leaves a picture of each station and a page that
/// shows them, in the language of the code, and the rows as they stand then, in rows.txt. It works on a demo shop and a
/// settings store of its own, which it throws away.

namespace {

const QDateTime Morning(QDate(2026, 3, 14), QTime(10, 30));

/// A screen of the smallest size that the program is made for; without a display there is none else.
void DescribeScreen(const QString& file)
{
    QFile description(file);
    if (!description.open(QFile::WriteOnly))
        return;
    description.write(R"({"screens": [{"name": "tour", "x": 0, "y": 0, "width": 1024, "height": 740,
                          "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    description.close();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + file.toUtf8());
}

/// What a screen without a window system cannot do goes without saying.
void Tell(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")))
        std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

void PrepareShop(const QString& folder)
{
    Arguments demo;
    demo.file = folder + QStringLiteral("/db.mdb");
    demo.contents = Contents::DemoShop;
    demo.today = Morning.date();
    MakeDatabaseWith(demo);
    SetSettingsFolder(folder + QStringLiteral("/settings"));
    SaveConfig(QStringLiteral("DBPath"), folder + QLatin1Char('/'));
}

/// All rows as the walk left them, a line each: they are the same in every language.
void WriteRows(const QString& folder, const QString& file)
{
    QFile rows(file);
    if (!rows.open(QFile::WriteOnly))
        throw std::runtime_error("cannot write " + file.toStdString());
    for (const TableDefinition& table : SchemaTables()) {
        rows.write("== " + table.name.toUtf8() + '\n');
        for (Recordset row = gConnection->Execute(QStringLiteral("SELECT * FROM [%1]").arg(table.name)); !row.Eof();
             row.MoveNext()) {
            for (int field = 0; field < row.FieldCount(); ++field) {
                const auto text = QByteArray::fromStdString(std::string(row.StoredText(field)));
                // The copy of the logo has a name of its own each time.
                rows.write((text.startsWith(folder.toUtf8()) ? QByteArray("(a file)") : text) + '|');
            }
            rows.write("\n");
        }
    }
}

void Walk(const QString& folder, const QString& pictureFolder, const QString& language)
{
    // The told English captions use these letters twice.
    Album album(pictureFolder, language.isEmpty() ? QStringLiteral("AERCB") : QString());
    Program program;
    HelpDesk helpDesk;
    album.Chapter("The first start");
    StartForTheFirstTime(program, album);
    album.Chapter("A look around");
    LookAround(program, album);
    album.Chapter("A new item");
    const QString barCode = AddAnItem(program, album);
    album.Chapter("Groups, goods received and price lists");
    KeepTheStock(program, album, barCode);
    album.Chapter("Taxes, locations and categories");
    ConfigureKeyTables(program, album);
    album.Chapter("Dialogs by themselves");
    Look::TakeAll(*program.Window(), album);
    album.Chapter("Customers and vendors");
    KeepPeople(program, album);
    album.Chapter("The wizards");
    RunTheWizards(program, album, folder);
    album.Chapter("An invoice");
    WriteAnInvoice(program, album, barCode);
    album.Chapter("The invoice, found again");
    FindTheInvoice(program, album);
    album.Chapter("Help");
    LookForHelp(program, helpDesk, album);
    program.Window()->close();
    album.WriteIndex();
    WriteRows(folder, pictureFolder + QStringLiteral("/rows.txt"));
}

bool WentWell()
{
    return !testing::UnitTest::GetInstance()->ad_hoc_test_result().Failed();
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3 && argc != 4) {
        std::fputs("usage: tour PROGRAM_FOLDER PICTURE_FOLDER [LANGUAGE]\n", stderr);
        return 2;
    }
    testing::InitGoogleTest();
    qInstallMessageHandler(Tell);
    const QTemporaryDir folder;
    DescribeScreen(folder.filePath(QStringLiteral("screen.json")));
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    QGuiApplication::setWindowIcon(ProgramIcon(QStringLiteral("tavrin")));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    try {
        SetClock([] { return Morning; });
        SetProgramFolder(QString::fromLocal8Bit(argv[1]));
        PrepareShop(folder.path());
        const QString language = argc == 4 ? QString::fromLocal8Bit(argv[3]) : QString();
        SaveConfig(QStringLiteral("Language"), language);
        StartWatchingForms();
        Walk(folder.path(), QString::fromLocal8Bit(argv[2]), language);
        CheckAwaitedForms();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "tour: %s\n", error.what());
        return 1;
    }
    if (!WentWell()) {
        std::fputs("tour: the walk did not go as it should\n", stderr);
        return 1;
    }
    return 0;
}
