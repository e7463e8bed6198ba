#pragma once

#include "controls/steady_label.h"

#include <QStatusBar>

/// The line at the bottom of the main window: at the left what was done last, at the right what the open invoice
/// has come to. It comes with the first it has to say, and stays: what lies above it moves when it comes or goes.
class StatusBar : public QStatusBar {
    Q_OBJECT
public:
    explicit StatusBar(QWidget* parent);

    void ShowNotice(const QString& text);
    /// "" for nothing.
    void ShowCounted(const QString& text);

private:
    void ShowIfNeeded();

    SteadyLabel* m_counted;
};
