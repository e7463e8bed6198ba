#include "controls/status_line.h"

#include <QDir>
#include <QFileInfo>

StatusLine& StatusLine::Get()
{
    static StatusLine line;
    return line;
}

void ShowStatus(const QString& text)
{
    emit StatusLine::Get().Told(text);
}

void ShowSavedAs(const QString& path)
{
    ShowStatus(StatusLine::tr("Saved as %1").arg(QDir::toNativeSeparators(QFileInfo(path).absoluteFilePath())));
}
