#include "app/app_test.h"

MainWindow& MainWindowTest::Window(QSize size)
{
    if (!m_window) {
        m_before = gConnection;
        m_window = std::make_unique<MainWindow>();
        EXPECT_TRUE(LoadStep(*m_window, m_connection));
        m_window->setWindowState(Qt::WindowNoState);
        m_window->resize(size);
        Shown(m_window.get());
    }
    return *m_window;
}

MainWindow& MainWindowTest::LoadAgain()
{
    m_window.reset();
    if (m_before)
        gConnection = m_before;
    m_connection.Close();
    return Window();
}

void MainWindowTest::TearDown()
{
    m_window.reset();
    if (m_before)
        gConnection = m_before;
    DatabaseTest::TearDown();
}
