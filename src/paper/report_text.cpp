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

/// A section that comes again, as a detail does, starts with its first control.
bool StartsBand(const ReportItem& item, const ReportSection* before)
{
    return item.section != before || item.control == &item.section->controls.front();
}
} // namespace

QString PageText(const ReportPage& page)
{
    QString text;
    const ReportSection* section = nullptr;
    for (const ReportItem& item : page.items) {
        if (StartsBand(item, section))
            text += item.section->name + QLatin1Char('\n');
        section = item.section;
        text += QStringLiteral("  %1: %2\n").arg(item.control->name, ItemText(item));
    }
    return text;
}

QString SpokenText(const ReportPage& page)
{
    QStringList bands;
    const ReportSection* section = nullptr;
    for (const ReportItem& item : page.items) {
        if (StartsBand(item, section))
            bands.append(QString());
        section = item.section;
        for (const ReportLine& line : item.lines)
            bands.back() += bands.back().isEmpty() ? line.text : u' ' + line.text;
    }
    bands.removeAll(QString());
    return bands.join(u'\n');
}
