#include "app/status_bar.h"

#include "base/guard.h"

StatusBar::StatusBar(QWidget* parent)
    : QStatusBar(parent)
    , m_counted(new SteadyLabel)
{
    constexpr int GapBehind = 6;
    setContentsMargins(0, 0, GapBehind, 0);
    addPermanentWidget(m_counted);
    On(this, &QStatusBar::messageChanged, this, &StatusBar::ShowIfNeeded);
    hide();
}

void StatusBar::ShowNotice(const QString& text)
{
    constexpr int LongEnoughToRead = 30'000;
    showMessage(text, LongEnoughToRead);
}

void StatusBar::ShowCounted(const QString& text)
{
    m_counted->Show(text);
    ShowIfNeeded();
}

void StatusBar::ShowIfNeeded()
{
    if (!currentMessage().isEmpty() || !m_counted->text().isEmpty())
        show();
}
