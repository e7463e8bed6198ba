#include "life.h"

#include "links.h"
#include "monkey.h"
#include "virtual_time.h"
#include "watch.h"
#include "words.h"

#include "app/help_desk.h"
#include "app/help_key.h"
#include "app/image_lists.h"
#include "app/start.h"
#include "base/clock.h"
#include "base/files.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "make_database/database_maker.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>

#include <stdexcept>

namespace {

const QDateTime Morning(QDate(2026, 3, 14), QTime(10, 30));

const Diary* gDiary = nullptr;
const Watch* gWatch = nullptr;

/// What a screen without a window system cannot do goes without saying; all else is a finding.
void TellMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support")) && gWatch)
        gWatch->Found(QStringLiteral("Qt says: %1").arg(message));
}

void TellError(const QString& text)
{
    gDiary->Write(Line::RunTimeError, text);
}

/// Nothing outside the folder is read for its settings, and no other program is found.
void Shut(const QString& folder)
{
    const QByteArray home = folder.toLocal8Bit();
    // A name that is typed where a file is to be written stays here too.
    QDir::setCurrent(folder);
    for (const char* name : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME", "XDG_RUNTIME_DIR", "TMPDIR"})
        qputenv(name, home);
    qputenv("PATH", home + "/none");
    qputenv("CUPS_SERVER", home + "/none");
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + home + "/none");
    qputenv("FONTCONFIG_FILE", TEST_FONTS);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("TZ", "UTC");
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The other dispatcher does not tell when it blocks.
    qputenv("QT_NO_GLIB", "1");
    qputenv("QT_HASH_SEED", "0");
}

void SpeakLanguageOf(quint64 seed)
{
    struct Country {
        QLocale locale;
        QString language;
    };
    static const Country countries[] = {
        {QLocale(QLocale::English, QLocale::UnitedStates), {}},
        {QLocale(QLocale::German, QLocale::Germany), QStringLiteral("de")},
        {QLocale(QLocale::English, QLocale::UnitedKingdom), {}},
        {QLocale(QLocale::French, QLocale::France), QStringLiteral("fr")},
    };
    const Country& country = countries[(seed - 1) % std::size(countries)];
    SetRegional(country.locale);
    SaveConfig(QStringLiteral("Language"), country.language);
}

} // namespace

void MakeShop(const QString& folder, const QString& programFolder)
{
    Arguments demo;
    demo.file = folder + QStringLiteral("/db.mdb");
    demo.contents = Contents::DemoShop;
    demo.today = Morning.date();
    MakeDatabaseWith(demo);
    PutFiles(folder);
    // The program keeps copies of pictures in its folder.
    const QString program = folder + QStringLiteral("/program/");
    if (!QDir().mkpath(program) || !QDir().mkpath(folder + QStringLiteral("/a folder")))
        throw std::runtime_error("cannot write to " + folder.toStdString());
    for (const QFileInfo& file : QDir(programFolder).entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot))
        QFile::link(file.absoluteFilePath(), program + file.fileName());
}

void Live(const Life& life, const Diary& diary)
{
    gDiary = &diary;
    Shut(life.folder);
    StopTime();
    int argc = 1;
    char name[] = "monkey";
    char* argv[] = {name, nullptr};
    qInstallMessageHandler(TellMessage);
    QApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("TavrinInventory"));
    QGuiApplication::setWindowIcon(ProgramIcon(QStringLiteral("tavrin")));
    QGuiApplication::setQuitOnLastWindowClosed(false);
    SetErrorBox(TellError);
    SetClock([] { return Morning; });
    SetProgramFolder(life.folder + QStringLiteral("/program"));
    SetSettingsFolder(life.folder + QStringLiteral("/settings"));
    SaveConfig(QStringLiteral("DBPath"), life.folder + QLatin1Char('/'));
    SaveConfig(QStringLiteral("Scan Sound"), TruthText(false));
    SpeakLanguageOf(life.seed);

    const Links links;
    Watch watch(diary, life.folder);
    gWatch = &watch;
    // Each start of the same shop goes its own way.
    const Monkey monkey(life.seed * 1'000'003 + quint64(life.firstEvent), life.firstEvent, life.events, diary, watch);
    const HelpKey helpKey(&application);
    const HelpDesk helpDesk;
    Program program;
    Guarded([&] {
        if (!program.Main())
            watch.Found(QStringLiteral("the program does not start"));
        On(program.Window(), &MainWindow::Closed, program.Window(), [] { QCoreApplication::exit(EXIT_SUCCESS); });
        QApplication::exec();
    });
    diary.Write(Line::Closed, {});
}
