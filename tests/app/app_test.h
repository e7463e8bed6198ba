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
    /// Loads the window once more.
    MainWindow& LoadAgain();
    /// The database of the load; `gConnection` from then on.
    Connection& Loaded() { return m_connection; }

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

    void TearDown() override;

private:
    Connection m_connection;
    std::unique_ptr<MainWindow> m_window;
    Connection* m_before = nullptr;
};
