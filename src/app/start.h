#pragma once

#include "app/main_window.h"
#include "db/connection.h"
#include "db/file_check.h"

#include <memory>

/// The running program: its connection, its main window and the sequence that starts it.
class Program {
public:
    Program();
    ~Program();

    /// The start: splash, main window, tip of the day, first-run prompts, column widths. False when the database could
    /// not be opened and the process is to end. Throws RuntimeError for a stored value of the wrong kind.
    bool Main();

    /// The main window once it is loaded, else null.
    MainWindow* Window() const { return m_window.get(); }

private:
    bool LoadMainWindow();
    /// Looks through the file in the background and says so when it is damaged.
    void CheckFile();
    void RunFirstRunPrompts();

    enum class Load { NotYet, Done, Failed };

    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<FileCheck> m_fileCheck;
    Load m_load = Load::NotYet;
};
