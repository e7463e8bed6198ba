#pragma once

#include "paper/report_design.h"

/// A section of the report with its name and height.
inline ReportSection& Section(Report& report, ReportSectionKind kind, const char* name, int height)
{
    ReportSection& section = report.Section(kind);
    section.name = QLatin1String(name);
    section.height = height;
    return section;
}

/// A plain list of names: a title, a page header, a line for each of `names`, with amounts from `first` on.
inline Report NameList(const QStringList& names, Currency first = {})
{
    Report report("Names", 9026);
    Section(report, ReportSectionKind::ReportHeader, "ReportHeader", 400)
        .AddLabel("Title", "All the names", 0, 0, 9026);
    Section(report, ReportSectionKind::PageHeader, "PageHeader", 300).AddLabel("Column", "Name", 0, 0, 4000);
    ReportSection& detail = Section(report, ReportSectionKind::Detail, "Detail", 250);
    detail.AddField("Name", "name", 0, 0, 4000).Wraps(3, 3);
    detail.AddField("Amount", "amount", 4100, 0, 1500).RightAligned().Formatted("Currency");

    auto rows = std::make_shared<ReportRows>();
    rows->parents = ReportTable({"name", "amount"});
    for (const QString& name : names) {
        rows->parents.Add(name);
        rows->parents.Add(first + Currency::FromWhole(rows->parents.Count()));
        rows->parents.EndRow();
    }
    report.rows = rows;
    return report;
}

inline QStringList Numbered(int count)
{
    QStringList names;
    for (int i = 1; i <= count; ++i)
        names.append(QString("Name %1").arg(i));
    return names;
}

/// Two groups of `linesEach` lines under titles that are repeated, with a page number.
inline Report TwoGroups(int linesEach)
{
    Report report("Groups", 9026);
    ReportSection& header = Section(report, ReportSectionKind::GroupHeader, "Header", 1000);
    header.repeatedFrom = 700;
    header.AddField("Group", "group", 0, 0, 4000).Wraps(2, 8);
    header.AddField("Second", "second", 0, 230, 4000).Collapses().Wraps(2, 2);
    header.AddField("Third", "third", 0, 460, 4000);
    header.AddLabel("Titles", "Line", 0, 700, 4000);
    ReportSection& detail = Section(report, ReportSectionKind::Detail, "Detail", 250);
    detail.AddField("OfGroup", "third", 4100, 0, 1000).OfParent();
    detail.AddField("Line", "line", 0, 0, 4000);
    Section(report, ReportSectionKind::GroupFooter, "Footer", 300).AddLabel("Sum", "end of the group", 0, 0, 4000);
    Section(report, ReportSectionKind::PageFooter, "PageFooter", 300).AddPageNumber("Number", 0, 0, 4000);

    auto rows = std::make_shared<ReportRows>();
    rows->parents = ReportTable({"group", "second", "third"});
    rows->children = ReportTable({"line"});
    for (const char* group : {"A", "B"}) {
        rows->firstChild.push_back(rows->children.Count());
        for (const QString& text : {QString(group), QString(), QString("third of ") + group})
            rows->parents.Add(text);
        rows->parents.EndRow();
        for (int i = 1; i <= linesEach; ++i) {
            rows->children.Add(QString("%1 %2").arg(group).arg(i));
            rows->children.EndRow();
        }
    }
    report.rows = rows;
    return report;
}
