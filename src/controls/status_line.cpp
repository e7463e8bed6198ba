#include "controls/status_line.h"

StatusLine& StatusLine::Get()
{
    static StatusLine line;
    return line;
}

void ShowStatus(const QString& text)
{
    emit StatusLine::Get().Told(text);
}
