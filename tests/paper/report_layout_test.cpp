#include "paper/report_layout.h"
#include "paper/report_rows.h"
#include "paper/report_text.h"
#include "support/report_designs.h"
#include "support/test.h"

#include <QPainter>

namespace {
const ReportItem* ItemOf(const ReportPage& page, const QString& control)
{
    for (const ReportItem& item : page.items)
        if (item.control->name == control)
            return &item;
    return nullptr;
}

QStringList LinesOf(const ReportPage& page, const QString& control)
{
    QStringList lines;
    for (const ReportItem& item : page.items)
        if (item.control->name == control)
            for (const ReportLine& line : item.lines)
                lines.append(line.text);
    return lines;
}

/// What every page owes its reader: nothing overlaps, nothing leaves the space between the margins.
void CheckPage(const ReportPage& page, QSizeF space)
{
    const QRectF inside(QPointF(), space + QSizeF(1, 1));
    for (size_t i = 0; i < page.items.size(); ++i) {
        const ReportItem& item = page.items[i];
        EXPECT_TRUE(inside.contains(item.place)) << item.control->name.toStdString();
        for (const ReportLine& line : item.lines) {
            const qreal right = line.baseline.x() + item.typeface->metrics.horizontalAdvance(line.text);
            EXPECT_LE(right, item.place.right() + 1) << line.text.toStdString();
            EXPECT_LE(line.baseline.y(), item.place.bottom()) << line.text.toStdString();
        }
        for (size_t j = 0; j < i; ++j)
            EXPECT_FALSE(page.items[j].place.adjusted(1, 1, -1, -1).intersects(item.place.adjusted(1, 1, -1, -1)))
                << item.control->name.toStdString() << " over " << page.items[j].control->name.toStdString();
    }
}

const ReportPaper A4{11906, 16838};
const QSizeF A4Space(9026, 16838 - 2 * 1440);
} // namespace

TEST(ReportLayout, BreaksBetweenLinesAndRepeatsThePageHeader)
{
    ReportLayout layout(NameList(Numbered(130)), A4);

    QStringList names;
    for (int page = 0; layout.HasPage(page); ++page) {
        const ReportPage sheet = layout.Page(page);
        EXPECT_EQ(LinesOf(sheet, "Title").size(), page == 0 ? 1 : 0);
        EXPECT_EQ(LinesOf(sheet, "Column"), QStringList("Name"));
        CheckPage(sheet, A4Space);
        names += LinesOf(sheet, "Name");
    }

    EXPECT_EQ(names, Numbered(130)) << "each line on one page, none twice";
    EXPECT_EQ(layout.PageCount(), 3);

    // The first page needs no more than its own rows.
    ReportLayout large(NameList(Numbered(5000)), A4);
    large.Page(0);
    EXPECT_FALSE(large.KnownPageCount());
    EXPECT_FALSE(large.CountOn(10));
    EXPECT_EQ(LinesOf(large.Page(3), "Name").size(), 54);
    EXPECT_EQ(large.PageCount(), 93);
    EXPECT_FALSE(large.HasPage(93));
}

TEST(ReportLayout, AReportWithoutRowsPrintsItsHeadersOnOnePage)
{
    ReportLayout list(NameList({}), A4);
    EXPECT_EQ(PageText(list.Page(0)), "ReportHeader\n  Title: All the names\nPageHeader\n  Column: Name\n");
    EXPECT_EQ(list.PageCount(), 1);

    ReportLayout groups(TwoGroups(0), A4);
    EXPECT_EQ(LinesOf(groups.Page(0), "Sum").size(), 2) << "a parent without children has its header and footer";
    EXPECT_EQ(LinesOf(groups.Page(0), "Line"), QStringList());
    EXPECT_EQ(LinesOf(groups.Page(0), "Number"), QStringList()) << "one page needs no number";
}

TEST(ReportLayout, TotalsTakeTheLastLineAlongAndHiddenLinesVanish)
{
    for (int lines = 20; lines < 60; ++lines) {
        Report report = TwoGroups(lines);
        ReportSection& footer = report.Section(ReportSectionKind::GroupFooter);
        footer.AddLabel("Hidden", "second tax", 0, 300, 4000).Vanishes().visible = false;
        footer.AddLabel("Total", "total", 0, 530, 4000);
        footer.height = 760;
        ReportLayout layout(report, A4);
        for (int page = 0; layout.HasPage(page); ++page) {
            const ReportPage sheet = layout.Page(page);
            if (const ReportItem* total = ItemOf(sheet, "Total")) {
                EXPECT_EQ(total->place.top() - ItemOf(sheet, "Sum")->place.top(), 300);
                EXPECT_NE(ItemOf(sheet, "Line"), nullptr) << lines;
            }
        }
    }
}

TEST(ReportLayout, GroupsRepeatTheirTitlesAndCountTheirPages)
{
    ReportLayout layout(TwoGroups(60), A4);
    ASSERT_EQ(layout.PageCount(), 3);
    EXPECT_EQ(ItemOf(layout.Page(0), "Third")->place.top(), 230) << "an empty field that collapses pulls it up";
    EXPECT_EQ(ItemOf(layout.Page(0), "Titles")->place.top(), 470);

    const ReportPage second = layout.Page(1);
    EXPECT_EQ(second.items.front().control->name, "Titles");
    EXPECT_EQ(second.items.front().place.top(), 0);
    EXPECT_EQ(LinesOf(second, "Group"), QStringList("B")) << "the group's own header comes once";
    EXPECT_EQ(LinesOf(second, "OfGroup").last(), "third of B");
    EXPECT_EQ(LinesOf(second, "Number"), QStringList("Page 2 of 3"));
    for (int page = 0; page < 3; ++page)
        CheckPage(layout.Page(page), A4Space);
}

TEST(ReportLayout, LongTextsWrapAndPushDownWhatStandsBelow)
{
    ReportLayout layout(NameList({"Short", QString("long words in a row ").repeated(500), QString(10'000, 'W'),
                            "First\r\nSecond\n\nlost", "Last"}),
        A4);
    const ReportPage page = layout.Page(0);
    CheckPage(page, A4Space);

    const QStringList lines = LinesOf(page, "Name");
    ASSERT_EQ(lines.size(), 1 + 3 + 3 + 3 + 1);
    EXPECT_TRUE(lines[3].endsWith(QChar(0x2026))) << "what does not fit is marked";
    EXPECT_EQ(lines.mid(7), QStringList({"First", "Second", QChar(0x2026), "Last"}));
}

TEST(ReportLayout, RulesAreSeenHoweverSmallThePageIsShown)
{
    Report report = NameList({});
    report.Section(ReportSectionKind::PageHeader).controls.clear();
    for (int i = 0; i < 10; ++i)
        report.Section(ReportSectionKind::PageHeader).AddLine("Rule", 0, 33 * i, 4000);
    report.Control("Title").visible = false;
    ReportLayout layout(report, A4);
    QImage picture(A4.width / 60, A4.height / 60, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(1 / 60.0, 1 / 60.0);
    layout.Paint(painter, layout.Page(0));
    painter.end();
    int dark = 0;
    for (int y = 0; y < picture.height(); ++y)
        dark += qGray(picture.pixel(40, y)) < 128;
    EXPECT_GE(dark, 5) << "ten rules, each half a pixel from the next";
}

TEST(ReportLayout, TextsThatCannotBeShownAreMarkedAndNeverShrinkOutOfSightAndAmountsAreNeverCut)
{
    Report report = NameList({QString("Tea \U000F0000\u0301 caf\u0065\u0301")});
    report.Control("Name").overflow = ReportOverflow::Shrink;
    report.Control("Title").caption = QString(2000, 'W');
    report.Control("Title").overflow = ReportOverflow::Shrink;
    ReportLayout layout(report, A4);
    const ReportPage page = layout.Page(0);
    const QString name = LinesOf(page, "Name").value(0);
    EXPECT_TRUE(name.contains("? caf\u0065\u0301")) << "no font has a character of the private planes";
    EXPECT_GE(ItemOf(page, "Title")->typeface->key.points, 4);
    CheckPage(page, A4Space);

    ReportLayout amounts(NameList({"Much"}, Currency::FromTenThousandths(std::numeric_limits<qint64>::max())), A4);
    const ReportPage sheet = amounts.Page(0);
    CheckPage(sheet, A4Space);
    EXPECT_EQ(LinesOf(sheet, "Amount"), QStringList("$922,337,203,685,477.58"));
    EXPECT_LT(ItemOf(sheet, "Amount")->typeface->key.points, 9);
}

TEST(ReportLayout, ColumnsSpreadOverAWiderPageAndShrinkWithANarrowOneAndUseTheWholeWidthOfAnotherPaper)
{
    Report wide = NameList(Numbered(100));
    wide.width = 2 * 9026;
    ReportLayout spread(wide, {30000, 16838});
    EXPECT_NEAR(ItemOf(spread.Page(0), "Amount")->place.left(), 8200, 1);

    // A6: all of the design is there, smaller, on more pages.
    const ReportPaper postcard{5953, 8391};
    ReportLayout narrow(wide, postcard);
    CheckPage(narrow.Page(0), QSizeF(9026, 1e9));
    EXPECT_LE(ReportLayout(NameList(Numbered(7)), {2900, 2900}).PageCount(), 7) << "however small, it ends";
    Report report = NameList(Numbered(3));
    report.FillPaper(A4);
    ReportLayout layout(report, A4);
    layout.SetPaper({16838, 11906}, {720, 720, 720, 720});
    EXPECT_EQ(layout.Design().width, 16838 - 1440);
    report.FillPaper({1644, 5000});
    ReportLayout label(report, {1644, 5000});
    label.SetPaper(A4, {1134, 1134, 1134, 1134});
    EXPECT_EQ(label.Design().width, A4.width - 2 * 1134) << "after a label printer's paper";
    EXPECT_EQ(layout.PageCount(), 1);
}

TEST(ReportValues, ReadByTheirMask)
{
    const std::tuple<ReportValue, const char*, const char*> values[] = {{{}, "Currency", ""},
        {2.675, "Currency", "$2.68"}, {-1234.5, "Currency", "($1,234.50)"}, {8.25, "00.0\"%\"", "08.3%"},
        {12.5, "", "12.5"}, {Currency::FromTenThousandths(15000), "", "$1.50"},
        {QDateTime(QDate(2003, 7, 4), QTime(9, 0)), "d/MM/yyyy", "4/07/2003"}, {QString("$1.50"), "", "$1.50"},
        {QString("n/a"), "Currency", "n/a"}};
    for (const auto& [value, mask, text] : values)
        EXPECT_EQ(ReportValueText(value, mask).toStdString(), text);
}

TEST(ReportRows, EveryKindOfValueComesBackAsItWasAdded)
{
    const std::vector<ReportValue> values{{}, -2.5, Currency::FromTenThousandths(-12345),
        QDateTime(QDate(1899, 12, 30), QTime(23, 59, 59)), QString(), QString("Käse 日本"), QString(255, 'x'),
        QString(256, 'y'), QString(200'000, 'z')};
    ReportTable table(QStringList(static_cast<qsizetype>(values.size()), "f"));
    for (int row = 0; row < 3; ++row) {
        for (const ReportValue& value : values)
            table.Add(value);
        table.EndRow();
    }
    ASSERT_EQ(table.Count(), 3);
    for (int row = 0; row < 3; ++row)
        for (size_t field = 0; field < values.size(); ++field)
            EXPECT_TRUE(table.At(row, static_cast<int>(field)) == values[field]) << row << ", " << field;
    EXPECT_TRUE(table.At(0, -1) == ReportValue());
}

TEST(ReportRows, AFieldIsFoundWithoutItsTableAndWithoutRegardToCase)
{
    const ReportTable table({"Customer.id", "Invoice.id", "InvoiceNo"});
    EXPECT_EQ(table.Field("invoiceno"), 2);
    EXPECT_EQ(table.Field("Invoice.ID"), 1);
    EXPECT_EQ(table.Field("id"), 0);
    EXPECT_EQ(table.Field("no"), -1);
}
