#include "reports/stock_reports.h"

#include "controls/dialogs.h"
#include "controls/hourglass.h"
#include "paper/column_fit.h"
#include "paper/preview_window.h"
#include "records/data_environment.h"
#include "reports/reorder_filter.h"

#include <QCoreApplication>
#include <QObject>
#include <QPrinter>

#include <algorithm>

namespace {

/// The texts that are printed.
struct StockReports {
    Q_DECLARE_TR_FUNCTIONS(StockReports)
};

// What margins of an inch leave of an A4 sheet.
constexpr int Width = 9026;
constexpr int Gap = 150;
constexpr int NameColumn = 1600;
constexpr int StockColumn = 4250;
constexpr int MinStockColumn = 5350;
constexpr int VendorColumn = 6950;
constexpr int NumberWidth = NameColumn - Gap;
constexpr int NameWidth = StockColumn - NameColumn - Gap;

void Register(const char* name, const char* statement)
{
    const QString command = QString::fromLatin1(name);
    if (!DataEnvironment().Has(command))
        DataEnvironment().Register({command, QString::fromLatin1(statement), QString(), QString(), QString(), {}});
}

void AddTitles(ReportSection& header)
{
    header.name = QStringLiteral("PageHeader");
    header.height = 400;
    header.AddLabel(QStringLiteral("Label2"), StockReports::tr("Number"), 0, 0, NumberWidth).Bold();
    header.AddLabel(QStringLiteral("Label3"), StockReports::tr("Name"), NameColumn, 0, NameWidth).Bold();
    header.AddLabel(QStringLiteral("Label4"), StockReports::tr("No In Stock"), StockColumn, 0, 1000)
        .RightAligned()
        .Bold();
    header.AddLabel(QStringLiteral("Label5"), StockReports::tr("Min Stock Level"), MinStockColumn, 0, 1400)
        .RightAligned()
        .Bold();
    header.AddLabel(QStringLiteral("Label6"), StockReports::tr("Vendor"), VendorColumn, 0, Width - VendorColumn).Bold();
    header.AddLine(QStringLiteral("Line1"), 0, 280, Width);
}

void AddDetail(ReportSection& detail, const QString& numberField)
{
    detail.name = QStringLiteral("Detail");
    detail.height = 250;
    detail.AddField(QStringLiteral("Text1"), numberField, 0, 0, NumberWidth).Wraps(2, 2);
    detail.AddField(QStringLiteral("txtName"), QStringLiteral("Name"), NameColumn, 0, NameWidth).Wraps(3, 3);
    detail.AddField(QStringLiteral("txtNoInStock"), QStringLiteral("NoInStock"), StockColumn, 0, 1000).RightAligned();
    detail.AddField(QStringLiteral("txtMinStockLevel"), QStringLiteral("MinStockLevel"), MinStockColumn, 0, 1400)
        .RightAligned();
    detail
        .AddField(
            QStringLiteral("txtBusinessName"), QStringLiteral("BusinessName"), VendorColumn, 0, Width - VendorColumn)
        .Wraps(3, 3);
}

Report StockDesign(const QString& title, const QString& numberField)
{
    Report report(title, Width);
    ReportSection& header = report.Section(ReportSectionKind::ReportHeader);
    header.name = QStringLiteral("ReportHeader");
    header.height = 480;
    header.AddLabel(QStringLiteral("Label1"), title, 0, 0, Width).Bold().Sized(12).height = 300;
    AddTitles(report.Section(ReportSectionKind::PageHeader));
    AddDetail(report.Section(ReportSectionKind::Detail), numberField);
    report.Section(ReportSectionKind::PageFooter).name = QStringLiteral("PageFooter");
    report.Section(ReportSectionKind::ReportFooter).name = QStringLiteral("ReportFooter");
    return report;
}

// Names take what the numbers leave.
void BindRows(Report& report, const QString& command)
{
    DataEnvironment().Bind(report, command);
    const int number =
        std::max(CaptionWidth(report, QStringLiteral("Label2")), NeededWidth(report, QStringLiteral("Text1")));
    for (const char* control : {"Label2", "Text1"})
        report.Control(QLatin1String(control)).width = number;
    for (const char* control : {"Label3", "txtName"}) {
        ReportControl& name = report.Control(QLatin1String(control));
        name.width += name.left - (number + Gap);
        name.left = number + Gap;
    }
}

void WidenToPaper(Report& report)
{
    report.margins.left = 720;
    report.margins.right = 720;
    report.width = PaperOf(CurrentPrinter()).width - 1441;
    report.widthFollowsPaper = true;
}

/// The statement of the filtered report for the filter choice; "" for a kind that there is not.
QString FilteredStatement()
{
    static const char* const Statements[] = {
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel ORDER BY "
        "{sort}",
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND "
        "vendor.id = {value} ORDER BY {sort}",
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND item.id "
        "= {value} ORDER BY {sort}",
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND "
        "item.locationid = {value} ORDER BY {sort}",
    };
    if (frmReorderReportFilter::ReorderFilterKind < 0 || frmReorderReportFilter::ReorderFilterKind > 3)
        return {};
    Sql statement(Statements[frmReorderReportFilter::ReorderFilterKind]);
    if (frmReorderReportFilter::ReorderFilterKind > 0)
        statement.Raw("value", frmReorderReportFilter::ReorderFilterValue);
    return statement.Raw("sort", frmReorderReportFilter::ReorderSortField).Filled();
}

void RewriteFilteredCommand()
{
    Register("repFilteredReorder",
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND "
        "vendor.id = {prmVendorID}");
    const QString statement = FilteredStatement();
    if (!statement.isEmpty())
        DataEnvironment().Command(QStringLiteral("repFilteredReorder")).parentStatement = statement;
}
} // namespace

Report PrepareReorderReport()
{
    Register("repReorder",
        "SELECT item.number, * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < "
        "item.reorderlevel");
    if (DataEnvironment().IsOpen(QStringLiteral("repReorder")))
        DataEnvironment().Requery(QStringLiteral("repReorder"));
    Report report = StockDesign(StockReports::tr("Reorder Report"), QStringLiteral("number"));
    WidenToPaper(report);
    BindRows(report, QStringLiteral("repReorder"));
    return report;
}

Report PrepareFilteredReorderReport()
{
    if (DataEnvironment().IsOpen(QStringLiteral("repFilteredReorder")))
        DataEnvironment().Close(QStringLiteral("repFilteredReorder"));
    Report report = StockDesign(StockReports::tr("Filtered Reorder Report"), QStringLiteral("Number"));
    WidenToPaper(report);
    RewriteFilteredCommand();
    if (DataEnvironment().IsOpen(QStringLiteral("repFilteredReorder")))
        DataEnvironment().Requery(QStringLiteral("repFilteredReorder"));
    BindRows(report, QStringLiteral("repFilteredReorder"));
    return report;
}

Report PrepareStockLevelReport()
{
    Register("repStockLevel", "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id ORDER BY item.name");
    if (DataEnvironment().IsOpen(QStringLiteral("repStockLevel")))
        DataEnvironment().Requery(QStringLiteral("repStockLevel"));
    Report report = StockDesign(StockReports::tr("Stock Level Report"), QStringLiteral("Number"));
    BindRows(report, QStringLiteral("repStockLevel"));
    return report;
}

void ShowReorderReport()
{
    const Hourglass hourglass(StockReports::tr("Preparing the report..."));
    ShowPreview(PrepareReorderReport());
}

void ShowFilteredReorderReport(QWidget* parent)
{
    frmReorderReportFilter::ReorderFilterConfirmed = false;
    frmReorderReportFilter(parent).ShowModal();
    if (!frmReorderReportFilter::ReorderFilterConfirmed)
        return;
    const Hourglass hourglass(StockReports::tr("Preparing the report..."));
    ShowPreview(PrepareFilteredReorderReport());
    DataEnvironment().Close(QStringLiteral("repFilteredReorder"));
}

void ShowStockLevelReport()
{
    const Hourglass hourglass(StockReports::tr("Preparing the report..."));
    ShowPreview(PrepareStockLevelReport());
}
