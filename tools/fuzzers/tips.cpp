#include "fuzzing.h"

#include "app/tips.h"

#include <QFile>
#include <QTemporaryDir>

/// Tips: eight bytes are the number of the last tip, the rest is the file.

namespace {

QString WriteFile(QByteArrayView bytes)
{
    static const QTemporaryDir folder;
    QString path = folder.filePath(QLatin1String(TipFileName));
    QFile file(path);
    Expect(
        file.open(QFile::WriteOnly) && file.write(bytes.data(), bytes.size()) == bytes.size(), "the file is written");
    return path;
}

/// The lines of a file without a mark of another encoding.
QStringList PlainLines(QByteArrayView bytes)
{
    QStringList lines = QString::fromUtf8(bytes).split(u'\n');
    for (QString& line : lines)
        if (line.endsWith(u'\r'))
            line.chop(1);
    if (lines.last().isEmpty() && !bytes.endsWith('\r'))
        lines.removeLast();
    return lines;
}

} // namespace

void Fuzz(FuzzInput input)
{
    const int last = int(input.Number());
    const QByteArrayView bytes = input.Rest();
    const std::optional<QStringList> tips = ReadTips(WriteFile(bytes));
    Expect(tips.has_value(), "a file that is there is read");
    if (bytes.isValidUtf8() && !bytes.startsWith("\xEF\xBB\xBF") && !bytes.startsWith('\0'))
        Expect(*tips == PlainLines(bytes), "each line is a tip as it stands");

    const int count = int(tips->size());
    int tip = NextTip(last, count);
    Expect(tip == 1 || (tip > 1 && tip <= count), "the next tip is one of them");
    for (int shown = 1; shown < count; ++shown) {
        const int next = NextTip(tip, count);
        Expect(next == tip % count + 1, "tips come in their order, the first behind the last");
        tip = next;
    }
}
