#pragma once

#include "app/load_step.h"
#include "app/main_window.h"
#include "support/test.h"

/// A main window over the test's own file, loaded as the program loads it, in a size of its own.
class MainWindowTest : public DatabaseTest {
protected:
    /// Loads the window and shows it in this size.
    MainWindow& Window(QSize size = {1024, 700})
    {
        if (!m_window) {
            m_window = std::make_unique<MainWindow>();
            EXPECT_TRUE(LoadStep(*m_window, m_connection));
            m_window->setWindowState(Qt::WindowNoState);
            m_window->resize(size);
            Shown(m_window.get());
        }
        return *m_window;
    }
    /// Loads the window once more.
    MainWindow& LoadAgain()
    {
        m_window.reset();
        gConnection = m_before;
        m_connection.Close();
        return Window();
    }

    /// The label of the second tax on the invoice page; "" while it is hidden, with the amount beside it.
    static QString SecondTaxShown(const MainWindow& window)
    {
        const InvoicePage* page = window.picNewInvoice;
        EXPECT_EQ(page->lblLabels_26->isVisible(), page->lblSecondTax->isVisible());
        return page->lblLabels_26->isVisible() ? page->lblLabels_26->text() : QString();
    }

    /// The panels that share the window's area.
    static QList<Panel*> Panels(const MainWindow& window)
    {
        QList<Panel*> panels;
        for (QWidget* widget : window.picBack->findChildren<QWidget*>())
            if (auto* panel = dynamic_cast<Panel*>(widget))
                panels.append(panel);
        return panels;
    }

    void SetUp() override
    {
        DatabaseTest::SetUp();
        m_before = gConnection;
    }
    void TearDown() override
    {
        m_window.reset();
        DatabaseTest::TearDown();
    }

private:
    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
    Connection* m_before = nullptr;
};
