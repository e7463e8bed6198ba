#include "running_program.h"

#include "app/load_step.h"
#include "base/files.h"
#include "base/settings_store.h"
#include "db/connection_private.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

RunningProgram::RunningProgram(const QString& folder)
{
    SetSettingsFolder(folder + QStringLiteral("/settings"));
    SaveConfig(QStringLiteral("DBPath"), folder + QLatin1Char('/'));
    m_window = std::make_unique<MainWindow>();
    if (!LoadStep(*m_window, m_connection)) {
        std::fputs("bench: the file cannot be opened\n", stderr);
        std::exit(1);
    }
    m_window->show();
    LetPaint();
}

RunningProgram::~RunningProgram()
{
    m_window.reset();
    gConnection = nullptr;
}

sqlite3* RunningProgram::Handle()
{
    return FloorHandle(m_connection);
}

sqlite3* FloorHandle(Connection& connection)
{
    return connection.Private().handle;
}

void LetPaint()
{
    QApplication::processEvents();
    QApplication::sendPostedEvents();
}
