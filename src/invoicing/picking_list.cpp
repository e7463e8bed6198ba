#include "invoicing/picking_list.h"

#include "db/data_environment.h"
#include "platform/dialogs.h"
#include "platform/report_band.h"

#include <QObject>
#include <QPrinter>

namespace {
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
        "SELECT InvoiceNo, ID FROM Invoice WHERE id = {paramInvoiceID}",
        "SELECT InvoiceLine.Quantity, Item.Name, Location.Name AS LocationName, InvoiceLine.InvoiceID, Warehouse.name "
        "AS WarehouseName FROM InvoiceLine, Item, Location, Warehouse WHERE InvoiceLine.ItemID = Item.ID AND "
        "Item.LocationID = Location.ID AND Location.WarehouseID = Warehouse.ID",
        " AND InvoiceLine.InvoiceID = {parentKey} ORDER BY InvoiceLine.ID",
        "ID",
        {},
    });
}

void AddTitles(ReportSection& header)
{
    header.repeatedFrom = 0;
    header.height = 330;
    header.AddLabel("Label1", QObject::tr("Invoice No:"), 0, 0, 1300).Bold();
    header.AddLabel("Label2", QObject::tr("Quantity"), QuantityColumn, 0, 850).RightAligned().Bold();
    header.AddLabel("Label3", QObject::tr("Name"), NameColumn, 0, 3400).Bold();
    header.AddLabel("Label4", QObject::tr("Location:"), LocationColumn, 0, 1900).Bold();
    header.AddLabel("Label5", QObject::tr("Warehouse:"), WarehouseColumn, 0, Width - WarehouseColumn).Bold();
}

void AddDetail(ReportSection& detail)
{
    detail.height = 270;
    detail.AddField("txtInvoiceID", "InvoiceNo", 0, 0, 1300).OfParent().Wraps(2, 2);
    detail.AddField("txtQuantity", "Quantity", QuantityColumn, 0, 850).RightAligned();
    detail.AddField("txtName", "Name", NameColumn, 0, 3400).Wraps(4, 6);
    detail.AddField("txtLocationName", "LocationName", LocationColumn, 0, 1900).Wraps(3, 3);
    detail.AddField("Text1", "WarehouseName", WarehouseColumn, 0, Width - WarehouseColumn).Wraps(3, 3);
}

Report PickingListDesign()
{
    Report report(QObject::tr("Picking List"), Width);
    report.margins = {Margin, Margin, Margin, Margin};
    ReportSection& title = report.Section(ReportSectionKind::ReportHeader);
    title.name = "ReportHeader";
    title.height = 480;
    title.AddLabel("Label6", QObject::tr("Picking List"), 0, 0, Width).Bold().Sized(12).height = 300;

    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = "repPickingList_Header";
    AddTitles(header);
    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = "cmdPickingLine_Detail";
    AddDetail(detail);
    report.Section(ReportSectionKind::GroupFooter).name = "repPickingList_Footer";
    report.Section(ReportSectionKind::PageFooter).name = "PageFooter";
    report.Section(ReportSectionKind::ReportFooter).name = "ReportFooter";
    return report;
}
} // namespace

Report PreparePickingList(qint32 invoiceId)
{
    RegisterRepPickingList();
    if (DataEnvironment().IsOpen(RepPickingList))
        DataEnvironment().Close(RepPickingList);
    DataEnvironment().SetParameter(RepPickingList, "paramInvoiceID", invoiceId);
    Report report = PickingListDesign();
    DataEnvironment().Bind(report, RepPickingList);
    const ReportTable& parent = report.rows->parents;
    if (parent.Count() > 0)
        report.title += " " + ReportValueText(parent.At(0, parent.Field("InvoiceNo")), QString());
    report.FillPaper(PaperOf(CurrentPrinter()));
    return report;
}
