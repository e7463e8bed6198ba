#include "app/start.h"

#include "app/language.h"
#include "app/load_step.h"
#include "app/splash.h"
#include "app/tip.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "base/settings_store.h"
#include "controls/message_box.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QWindow>

namespace {

/// A window system gives a maximised window its size some time after it was told to show it.
void WaitUntilPlaced(const QWidget& window)
{
    constexpr int PatienceMs = 1000;
    constexpr int StepMs = 20;
    const QDeadlineTimer patience(PatienceMs);
    while (!window.windowHandle()->isExposed() && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, StepMs);
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QString DamagedText(const QString& path)
{
    return MainWindow::tr(
        "The database file %1 is damaged. Close the program and restore a backup of the file: what is "
        "entered from now on may be lost.")
        .arg(QDir::toNativeSeparators(path));
}

} // namespace

Program::Program() = default;

Program::~Program()
{
    m_fileCheck.reset();
    m_window.reset();
    if (gConnection == &m_connection)
        gConnection = nullptr;
}

bool Program::Main()
{
    SetLanguage(GetConfig(QStringLiteral("Language"), QString()));
    frmSplash([this] { return LoadMainWindow(); }).ShowModal();
    if (!LoadMainWindow())
        return false;
    m_window->show();
    WaitUntilPlaced(*m_window);
    CheckFile();
    if (frmTip::ShowAtStartup())
        frmTip(m_window.get()).ShowModal();
    RunFirstRunPrompts();
    m_window->Grids().RestoreWidths();
    return true;
}

void Program::CheckFile()
{
    const QString path = m_connection.Path();
    m_fileCheck = std::make_unique<FileCheck>(path, [path, window = m_window.get()] {
        QMetaObject::invokeMethod(
            window, [path] { Guarded([&] { MsgBox(DamagedText(path), Icon::Critical); }); }, Qt::QueuedConnection);
    });
}

bool Program::LoadMainWindow()
{
    if (m_load != Load::NotYet)
        return m_load == Load::Done;
    // A message of the load runs the splash's timers, which would load again.
    m_load = Load::Failed;
    auto window = std::make_unique<MainWindow>();
    if (!LoadStep(*window, m_connection))
        return false;
    m_window = std::move(window);
    m_load = Load::Done;
    return true;
}

void Program::RunFirstRunPrompts()
{
    const QString key = QStringLiteral("FirstRun");
    const bool firstRun = CBool(GetConfig(key, TruthText(true)));
    SaveConfig(key, TruthText(false));
    if (firstRun)
        m_window->FirstRun();
}
