#include "reports/stock_reports.h"

#include "db/data_environment.h"
#include "platform/dialogs.h"
#include "platform/hourglass.h"
#include "platform/preview_window.h"
#include "reports/reorder_filter.h"

#include <QObject>
#include <QPrinter>

namespace {
// What margins of an inch leave of an A4 sheet.
constexpr int Width = 9026;
constexpr int NameColumn = 1250;
constexpr int StockColumn = 4150;
constexpr int MinStockColumn = 5250;
constexpr int VendorColumn = 6900;
constexpr int NumberWidth = NameColumn - 100;
constexpr int NameWidth = StockColumn - NameColumn - 50;

void Register(const char* name, const char* statement)
{
    if (!DataEnvironment().Has(name))
        DataEnvironment().Register({name, statement, "", "", "", {}});
}

void AddTitles(ReportSection& header)
{
    header.name = "PageHeader";
    header.height = 400;
    header.AddLabel("Label2", QObject::tr("Number"), 0, 0, NumberWidth).Bold();
    header.AddLabel("Label3", QObject::tr("Name"), NameColumn, 0, NameWidth).Bold();
    header.AddLabel("Label4", QObject::tr("No In Stock"), StockColumn, 0, 1050).RightAligned().Bold();
    header.AddLabel("Label5", QObject::tr("Min Stock Level"), MinStockColumn, 0, 1480).RightAligned().Bold();
    header.AddLabel("Label6", QObject::tr("Vendor"), VendorColumn, 0, Width - VendorColumn).Bold();
    header.AddLine("Line1", 0, 280, Width);
}

void AddDetail(ReportSection& detail, const QString& numberField)
{
    detail.name = "Detail";
    detail.height = 250;
    detail.AddField("Text1", numberField, 0, 0, NumberWidth).Wraps(2, 2);
    detail.AddField("txtName", "Name", NameColumn, 0, NameWidth).Wraps(3, 3);
    detail.AddField("txtNoInStock", "NoInStock", StockColumn, 0, 1050).RightAligned();
    detail.AddField("txtMinStockLevel", "MinStockLevel", MinStockColumn, 0, 1480).RightAligned();
    detail.AddField("txtBusinessName", "BusinessName", VendorColumn, 0, Width - VendorColumn).Wraps(2, 2);
}

Report StockDesign(const QString& title, const QString& numberField)
{
    Report report(title, Width);
    ReportSection& header = report.Section(ReportSectionKind::ReportHeader);
    header.name = "ReportHeader";
    header.height = 480;
    header.AddLabel("Label1", title, 0, 0, Width).Bold().Sized(12).height = 300;
    AddTitles(report.Section(ReportSectionKind::PageHeader));
    AddDetail(report.Section(ReportSectionKind::Detail), numberField);
    report.Section(ReportSectionKind::PageFooter).name = "PageFooter";
    report.Section(ReportSectionKind::ReportFooter).name = "ReportFooter";
    return report;
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
    if (ReorderFilterKind < 0 || ReorderFilterKind > 3)
        return {};
    Sql statement(Statements[ReorderFilterKind]);
    if (ReorderFilterKind > 0)
        statement.Raw("value", ReorderFilterValue);
    return statement.Raw("sort", ReorderSortField).Filled();
}

void RewriteFilteredCommand()
{
    Register("repFilteredReorder",
        "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < item.reorderlevel AND "
        "vendor.id = {prmVendorID}");
    const QString statement = FilteredStatement();
    if (!statement.isEmpty())
        DataEnvironment().Command("repFilteredReorder").parentStatement = statement;
}
} // namespace

Report PrepareReorderReport()
{
    Register("repReorder",
        "SELECT item.number, * FROM item, vendor WHERE item.vendorid = vendor.id AND item.noinstock < "
        "item.reorderlevel");
    if (DataEnvironment().IsOpen("repReorder"))
        DataEnvironment().Requery("repReorder");
    Report report = StockDesign(QObject::tr("Reorder Report"), "number");
    WidenToPaper(report);
    DataEnvironment().Bind(report, "repReorder");
    return report;
}

Report PrepareFilteredReorderReport()
{
    if (DataEnvironment().IsOpen("repFilteredReorder"))
        DataEnvironment().Close("repFilteredReorder");
    Report report = StockDesign(QObject::tr("Filtered Reorder Report"), "Number");
    WidenToPaper(report);
    RewriteFilteredCommand();
    if (DataEnvironment().IsOpen("repFilteredReorder"))
        DataEnvironment().Requery("repFilteredReorder");
    DataEnvironment().Bind(report, "repFilteredReorder");
    return report;
}

Report PrepareStockLevelReport()
{
    Register("repStockLevel", "SELECT * FROM item, vendor WHERE item.vendorid = vendor.id ORDER BY item.name");
    if (DataEnvironment().IsOpen("repStockLevel"))
        DataEnvironment().Requery("repStockLevel");
    Report report = StockDesign(QObject::tr("Stock Level Report"), "Number");
    DataEnvironment().Bind(report, "repStockLevel");
    return report;
}

void ShowReorderReport()
{
    Hourglass hourglass;
    ShowPreview(PrepareReorderReport());
}

void ShowFilteredReorderReport(QWidget* parent)
{
    ReorderFilterConfirmed = false;
    frmReorderReportFilter(parent).ShowModal();
    if (!ReorderFilterConfirmed)
        return;
    Hourglass hourglass;
    ShowPreview(PrepareFilteredReorderReport());
    DataEnvironment().Close("repFilteredReorder");
}

void ShowStockLevelReport()
{
    Hourglass hourglass;
    ShowPreview(PrepareStockLevelReport());
}
