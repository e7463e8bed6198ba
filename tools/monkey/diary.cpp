#include "diary.h"

#include <unistd.h>

void Diary::Write(Line kind, const QString& text) const
{
    QByteArray line = char(kind) + text.toUtf8().replace('\n', ' ') + '\n';
    while (!line.isEmpty()) {
        const ssize_t written = write(m_descriptor, line.constData(), size_t(line.size()));
        if (written <= 0)
            return;
        line.remove(0, written);
    }
}
