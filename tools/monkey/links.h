#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QUrl>

/// A browser or a mail program takes the link, and that is all.
class Links : public QObject {
    Q_OBJECT
public:
    Links()
    {
        for (const char* scheme : Schemes)
            QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "Open");
    }
    ~Links() override
    {
        for (const char* scheme : Schemes)
            QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
    }
    Links(const Links&) = delete;
    Links& operator=(const Links&) = delete;

    Q_SLOT void Open(const QUrl&) { }

private:
    static constexpr const char* Schemes[] = {"http", "https", "mailto", "file"};
};
