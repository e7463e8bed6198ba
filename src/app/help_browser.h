#pragma once

#include "app/help_pages.h"

#include <QTextBrowser>

/// Shows the help pages, in the colours of the user's palette.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpBrowser(HelpPages& pages);

    QVariant loadResource(int type, const QUrl& address) override;

protected:
    void changeEvent(QEvent* event) override;

private:
    QByteArray StyleSheet(const QUrl& address) const;

    HelpPages& m_pages;
};
