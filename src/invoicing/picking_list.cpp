#include "invoicing/picking_list.h"

#include "controls/dialogs.h"
#include "paper/report_band.h"
#include "records/data_environment.h"

#include <QCoreApplication>
#include <QPrinter>

namespace {

/// The texts that are printed.
struct PickingList {
    Q_DECLARE_TR_FUNCTIONS(PickingList)
};

const QString RepPickingList = QStringLiteral("repPickingList");

constexpr int Margin = 1134;
constexpr int Width = 9638;
constexpr int QuantityColumn = 1400;
constexpr int NameColumn = 2400;
constexpr int LocationColumn = 5900;
constexpr int WarehouseColumn = 7900;

void RegisterRepPickingList()
{
    if (DataEnvironment().Has(RepPickingList))
        return;
    DataEnvironment().Register({
        RepPickingList,
        QStringLiteral("SELECT InvoiceNo, ID FROM Invoice WHERE id = {paramInvoiceID}"),
        QStringLiteral(
            "SELECT InvoiceLine.Quantity, Item.Name, Location.Name AS LocationName, InvoiceLine.InvoiceID, "
            "Warehouse.name AS WarehouseName FROM InvoiceLine, Item, Location, Warehouse WHERE InvoiceLine.ItemID = "
            "Item.ID AND Item.LocationID = Location.ID AND Location.WarehouseID = Warehouse.ID"),
        QStringLiteral(" AND InvoiceLine.InvoiceID = {parentKey} ORDER BY InvoiceLine.ID"),
        QStringLiteral("ID"),
        {},
    });
}

void AddTitles(ReportSection& header)
{
    header.repeatedFrom = 0;
    header.height = 330;
    header.AddLabel(QStringLiteral("Label1"), PickingList::tr("Invoice No:"), 0, 0, 1300).Bold();
    header.AddLabel(QStringLiteral("Label2"), PickingList::tr("Quantity"), QuantityColumn, 0, 850)
        .RightAligned()
        .Bold();
    header.AddLabel(QStringLiteral("Label3"), PickingList::tr("Name"), NameColumn, 0, 3400).Bold();
    header.AddLabel(QStringLiteral("Label4"), PickingList::tr("Location:"), LocationColumn, 0, 1900).Bold();
    header
        .AddLabel(QStringLiteral("Label5"), PickingList::tr("Warehouse:"), WarehouseColumn, 0, Width - WarehouseColumn)
        .Bold();
}

void AddDetail(ReportSection& detail)
{
    detail.height = 270;
    detail.AddField(QStringLiteral("txtInvoiceID"), QStringLiteral("InvoiceNo"), 0, 0, 1300).OfParent().Wraps(2, 2);
    detail.AddField(QStringLiteral("txtQuantity"), QStringLiteral("Quantity"), QuantityColumn, 0, 850).RightAligned();
    detail.AddField(QStringLiteral("txtName"), QStringLiteral("Name"), NameColumn, 0, 3400).Wraps(4, 6);
    detail.AddField(QStringLiteral("txtLocationName"), QStringLiteral("LocationName"), LocationColumn, 0, 1900)
        .Wraps(3, 3);
    detail
        .AddField(QStringLiteral("Text1"), QStringLiteral("WarehouseName"), WarehouseColumn, 0, Width - WarehouseColumn)
        .Wraps(3, 3);
}

Report PickingListDesign()
{
    Report report(PickingList::tr("Picking List"), Width);
    report.margins = {Margin, Margin, Margin, Margin};
    ReportSection& title = report.Section(ReportSectionKind::ReportHeader);
    title.name = QStringLiteral("ReportHeader");
    title.height = 480;
    title.AddLabel(QStringLiteral("Label6"), PickingList::tr("Picking List"), 0, 0, Width).Bold().Sized(12).height =
        300;

    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = QStringLiteral("repPickingList_Header");
    AddTitles(header);
    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = QStringLiteral("cmdPickingLine_Detail");
    AddDetail(detail);
    report.Section(ReportSectionKind::GroupFooter).name = QStringLiteral("repPickingList_Footer");
    report.Section(ReportSectionKind::PageFooter).name = QStringLiteral("PageFooter");
    report.Section(ReportSectionKind::ReportFooter).name = QStringLiteral("ReportFooter");
    return report;
}
} // namespace

Report PreparePickingList(qint32 invoiceId)
{
    RegisterRepPickingList();
    if (DataEnvironment().IsOpen(RepPickingList))
        DataEnvironment().Close(RepPickingList);
    DataEnvironment().SetParameter(RepPickingList, QStringLiteral("paramInvoiceID"), invoiceId);
    Report report = PickingListDesign();
    DataEnvironment().Bind(report, RepPickingList);
    const ReportTable& parent = report.rows->parents;
    if (parent.Count() > 0)
        report.title +=
            QStringLiteral(" ") + ReportValueText(parent.At(0, parent.Field(QStringLiteral("InvoiceNo"))), QString());
    report.FillPaper(PaperOf(CurrentPrinter()));
    return report;
}
