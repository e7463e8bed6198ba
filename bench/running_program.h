#pragma once

#include "app/main_window.h"
#include "db/connection.h"

#include <memory>

struct sqlite3;

/// The program after its load step, without splash and prompts, over the file in `folder`: the first screen shows.
class RunningProgram {
public:
    explicit RunningProgram(const QString& folder);
    ~RunningProgram();

    MainWindow& Window() { return *m_window; }
    /// Of its data file.
    QString Path() const { return m_connection.Path(); }
    /// The engine's handle of the program's own connection, so that a floor has the same cache and functions.
    sqlite3* Handle();

private:
    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
};

/// The engine's handle of a connection.
sqlite3* FloorHandle(Connection& connection);

/// Lets all events of the window run, painting among them.
void LetPaint();
