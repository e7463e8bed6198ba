#include "paper/report_text.h"

#include <QStringList>

namespace {
QString ItemText(const ReportItem& item)
{
    switch (item.control->kind) {
    case ReportControlKind::Line:
        return QStringLiteral("-----");
    case ReportControlKind::Image:
        return QStringLiteral("[picture]");
    default:
        break;
    }
    QStringList lines;
    for (const ReportLine& line : item.lines)
        lines.append(line.text);
    return lines.join(QLatin1String(" / "));
}
} // namespace

QString PageText(const ReportPage& page)
{
    QString text;
    const ReportSection* section = nullptr;
    for (const ReportItem& item : page.items) {
        // A section that comes again, as a detail does, starts with its first control.
        const bool again = section == item.section && item.control == &item.section->controls.front();
        if (section != item.section || again)
            text += item.section->name + QLatin1Char('\n');
        section = item.section;
        text += QStringLiteral("  %1: %2\n").arg(item.control->name, ItemText(item));
    }
    return text;
}
