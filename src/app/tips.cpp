#include "app/tips.h"

#include "base/text_encoding.h"

#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

std::optional<QStringList> ReadTips(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    QStringList tips;
    QTextStream lines(TextAsUtf8(file.readAll()));
    QString line;
    while (lines.readLineInto(&line))
        tips.append(line);
    return tips;
}

int NextTip(int current, int count)
{
    // The stored number may be anything: a store edited by hand must not keep the tips from showing.
    return current >= 0 && current < count ? current + 1 : 1;
}

QString TipFileMissingText()
{
    const QString file = QLatin1String(TipFileName);
    return QCoreApplication::translate("frmTip", "That the ") + file
        + QCoreApplication::translate("frmTip", " file was not found? ") + QStringLiteral("\n\n")
        + QCoreApplication::translate("frmTip", "Create a text file named ") + file
        + QCoreApplication::translate("frmTip", " using NotePad with 1 tip per line. ")
        + QCoreApplication::translate("frmTip", "Then place it in the same directory as the application. ");
}
