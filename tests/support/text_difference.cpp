#include "support/text_difference.h"

#include <QRegularExpression>

std::string Difference(const QString& expected, const QString& found)
{
    QStringList missing = expected.split(QLatin1Char('\n'));
    QStringList extra = found.split(QLatin1Char('\n'));
    while (!missing.isEmpty() && !extra.isEmpty() && missing.first() == extra.first()) {
        missing.removeFirst();
        extra.removeFirst();
    }
    while (!missing.isEmpty() && !extra.isEmpty() && missing.last() == extra.last()) {
        missing.removeLast();
        extra.removeLast();
    }
    const QRegularExpression lineStart(QStringLiteral("^"));
    missing.replaceInStrings(lineStart, QStringLiteral("- "));
    extra.replaceInStrings(lineStart, QStringLiteral("+ "));
    return (missing + extra).join(QLatin1Char('\n')).toStdString();
}
