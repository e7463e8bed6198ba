#include "app/help_browser.h"

#include <QEvent>

HelpBrowser::HelpBrowser(HelpPages& pages)
    : m_pages(pages)
{
    constexpr int Margin = 16;
    constexpr int Indent = 20;
    document()->setDocumentMargin(Margin);
    document()->setIndentWidth(Indent);
}

QVariant HelpBrowser::loadResource(int type, const QUrl& address)
{
    const QUrl resolved = source().resolved(address);
    return type == QTextDocument::StyleSheetResource ? StyleSheet(resolved) : m_pages.Read(resolved);
}

QByteArray HelpBrowser::StyleSheet(const QUrl& address) const
{
    const auto color = [this](QPalette::ColorRole role) { return palette().color(role).name(); };
    const QString colors =
        QStringLiteral("a { color: %1 } th, p.note { background-color: %2 } td, th { border-color: %3 }")
            .arg(color(QPalette::Link), color(QPalette::AlternateBase), color(QPalette::Mid));
    return m_pages.Read(address) + colors.toUtf8();
}

void HelpBrowser::changeEvent(QEvent* event)
{
    QTextBrowser::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !source().isEmpty())
        reload();
}
