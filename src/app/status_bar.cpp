#include "app/status_bar.h"

#include "base/guard.h"

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent)
    , m_scanned(new SteadyLabel)
{
    constexpr int GapBehind = 6;
    setContentsMargins(0, 0, GapBehind, 0);
    addPermanentWidget(m_scanned);
    On(this, &QStatusBar::messageChanged, this, &StatusBar::ShowIfNeeded);
    hide();
}

void StatusBar::ShowNotice(const QString& text)
{
    constexpr int LongEnoughToRead = 30'000;
    showMessage(text, LongEnoughToRead);
}

void StatusBar::ShowScanned(const QString& text)
{
    // The scan has been taken now that the last message may have been about.
    if (!text.isEmpty() && text != m_scanned->text())
        clearMessage();
    m_scanned->Show(text);
    ShowIfNeeded();
}

void StatusBar::ShowIfNeeded()
{
    setVisible(!currentMessage().isEmpty() || !m_scanned->text().isEmpty());
}
