#pragma once

#include "app/load_step.h"
#include "app/main_window.h"
#include "base/settings_store.h"
#include "support/files.h"
#include "support/screen.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"

/// A main window over the test's own file, loaded as the program loads it, in a size of its own.
class MainWindowTest : public DatabaseTest {
protected:
    /// Loads the window and shows it in this size.
    MainWindow& Window(QSize size = {1024, 700});
    /// The database of the load; `gConnection` from then on.
    Connection& Loaded() { return m_connection; }

    void TearDown() override;

private:
    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
    Connection* m_before = nullptr;
};
