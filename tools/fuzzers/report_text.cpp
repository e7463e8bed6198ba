#include "fuzzing.h"

#include "base/clock.h"
#include "paper/report_layout.h"
#include "paper/report_text.h"

#include <QGuiApplication>

#include <algorithm>

/// A report of made-up rows: the first byte chooses the locale, the first line is a mask, each further line a row of
/// three fields between tabs: a text that wraps, one that is cut, and a value, whose first character tells its kind.

namespace {

constexpr int Width = 9026;
constexpr int NarrowWidth = 1500;

void StartFonts()
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("FONTCONFIG_FILE", TEST_FONTS);
    static int argc = 1;
    static char name[] = "fuzz";
    static char* argv[] = {name, nullptr};
    static QGuiApplication application(argc, argv);
}

ReportValue ValueOf(QByteArrayView field)
{
    FuzzInput value(field);
    const char kind = char(value.Byte());
    const qint64 number = value.Number();
    switch (kind) {
    case '\0':
    case 'n':
        return {};
    case 'd':
        return double(number) / 1000;
    case 'c':
        return Currency::FromTenThousandths(number);
    case 't':
        return MomentOf(QDate(1900, 1, 1).addDays(number & 0xFFFF), QTime(0, 0).addSecs(int(number >> 16 & 0xFFFF)));
    default:
        return QString::fromUtf8(field);
    }
}

using Row = std::array<ReportValue, 3>;

ReportTable TableOf(const QList<Row>& rows)
{
    ReportTable table({QStringLiteral("long"), QStringLiteral("short"), QStringLiteral("value")});
    for (const Row& row : rows) {
        for (const ReportValue& value : row)
            table.Add(value);
        table.EndRow();
    }
    return table;
}

void CheckTable(const ReportTable& table, const QList<Row>& rows)
{
    Expect(table.Count() == rows.size(), "each row is kept");
    for (int row = 0; row < table.Count(); ++row)
        for (int field = 0; field < 3; ++field)
            Expect(table.At(row, field) == rows[row][size_t(field)], "a field is kept as it was given");
}

Report MakeReport(const QString& mask, std::shared_ptr<const ReportRows> rows)
{
    Report report(QStringLiteral("Report"), Width);
    report.rows = std::move(rows);
    ReportSection& header = report.Section(ReportSectionKind::PageHeader);
    header.height = 300;
    header.AddLabel(QStringLiteral("Title"), QStringLiteral("Title"), 0, 0, Width);
    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = QStringLiteral("Detail");
    detail.height = 500;
    detail.AddLabel(QStringLiteral("Mark"), QStringLiteral("-"), 0, 0, 100);
    detail.AddField(QStringLiteral("Long"), QStringLiteral("long"), 200, 0, 4000).Wraps(3, 6);
    detail.AddField(QStringLiteral("Short"), QStringLiteral("short"), 4300, 0, NarrowWidth);
    detail.AddField(QStringLiteral("Value"), QStringLiteral("value"), 200, 250, NarrowWidth)
        .RightAligned()
        .Formatted(mask);
    return report;
}

bool IsPlain(const QString& text)
{
    return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u' ' && c <= u'~'; });
}

QString WithoutBlanks(QString text)
{
    return text.remove(u' ');
}

/// A text that was not cut has lost nothing but blanks.
void CheckNothingLost(const ReportItem& item, const QString& text)
{
    QString lines;
    for (const ReportLine& line : item.lines)
        lines += line.text;
    if (IsPlain(text) && !lines.contains(QChar(0x2026)))
        Expect(WithoutBlanks(lines) == WithoutBlanks(text), "a text that has room is printed whole");
}

void CheckItem(const ReportItem& item, qreal pageHeight)
{
    Expect(item.place.top() >= 0 && item.place.left() >= 0, "a control stands on its page");
    Expect(item.place.height() < pageHeight, "a control is lower than its page");
    for (const ReportLine& line : item.lines) {
        // A single letter may be all that there is room for.
        Expect(item.typeface->Advance(line.text) <= item.control->width + 1 || line.text.size() <= 2,
            "a line is no wider than its control");
        Expect(std::none_of(
                   line.text.begin(), line.text.end(), [](QChar c) { return c.category() == QChar::Other_Control; }),
            "no control character is printed");
    }
}

void CheckPages(ReportLayout& layout, const QList<Row>& rows)
{
    const ReportPaper paper = layout.Paper();
    const qreal height = paper.height - layout.Design().margins.top - layout.Design().margins.bottom;
    int row = -1;
    for (int index = 0; index < layout.PageCount(); ++index) {
        const ReportPage page = layout.Page(index);
        const QString said = PageText(page);
        for (const ReportItem& item : page.items) {
            CheckItem(item, height);
            row += item.control->name == QLatin1String("Mark");
            if (item.control->name == QLatin1String("Long"))
                CheckNothingLost(item, std::get<QString>(rows[row][0]));
            for (const ReportLine& line : item.lines)
                Expect(said.contains(line.text), "a reader is told what stands on the page");
        }
    }
    Expect(row + 1 == rows.size(), "each row is printed once");
}

} // namespace

void Fuzz(FuzzInput input)
{
    [[maybe_unused]] static const bool once = (StartFonts(), true);
    ChooseLocale(input.Byte());
    constexpr qsizetype MostRows = 60;
    const QString mask = AnyText(input.Line());
    QList<Row> rows;
    while (!input.AtEnd() && rows.size() < MostRows) {
        FuzzInput fields(input.Line());
        const QList<QByteArray> parts = fields.Rest().toByteArray().split('\t');
        rows.append({QString::fromUtf8(parts.value(0)), QString::fromUtf8(parts.value(1)), ValueOf(parts.value(2))});
    }
    auto reportRows = std::make_shared<ReportRows>();
    reportRows->parents = TableOf(rows);
    CheckTable(reportRows->parents, rows);
    ReportLayout layout(MakeReport(mask, reportRows), ReportPaper());
    CheckPages(layout, rows);
}
