#pragma once

#include "paper/report_design.h"

/// A plain list of names: a title, a page header, a line for each of `names`.
inline Report NameList(const QStringList& names)
{
    Report report("Names", 9026);
    ReportSection& title = report.Section(ReportSectionKind::ReportHeader);
    title.name = "ReportHeader";
    title.height = 400;
    title.AddLabel("Title", "All the names", 0, 0, 9026);
    ReportSection& header = report.Section(ReportSectionKind::PageHeader);
    header.name = "PageHeader";
    header.height = 300;
    header.AddLabel("Column", "Name", 0, 0, 4000);
    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = "Detail";
    detail.height = 250;
    detail.AddField("Name", "name", 0, 0, 4000).Wraps(3, 3);
    detail.AddField("Amount", "amount", 4100, 0, 1500).RightAligned().Formatted("Currency");

    auto rows = std::make_shared<ReportRows>();
    rows->parents = ReportTable({"name", "amount"});
    for (const QString& name : names) {
        rows->parents.Add(name);
        rows->parents.Add(Currency::FromWhole(rows->parents.Count()));
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
    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = "Header";
    header.height = 1000;
    header.repeatedFrom = 700;
    header.AddField("Group", "group", 0, 0, 4000).Wraps(2, 8);
    header.AddField("Second", "second", 0, 230, 4000).Collapses().Wraps(2, 2);
    header.AddField("Third", "third", 0, 460, 4000);
    header.AddLabel("Titles", "Line", 0, 700, 4000);
    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = "Detail";
    detail.height = 250;
    detail.AddField("OfGroup", "third", 4100, 0, 1000).OfParent();
    detail.AddField("Line", "line", 0, 0, 4000);
    ReportSection& footer = report.Section(ReportSectionKind::GroupFooter);
    footer.name = "Footer";
    footer.height = 300;
    footer.AddLabel("Sum", "end of the group", 0, 0, 4000);
    ReportSection& pageFooter = report.Section(ReportSectionKind::PageFooter);
    pageFooter.name = "PageFooter";
    pageFooter.height = 300;
    pageFooter.AddPageNumber("Number", 0, 0, 4000);

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
