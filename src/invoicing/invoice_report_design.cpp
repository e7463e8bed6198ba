#include "invoicing/invoice_report_design.h"

#include <QObject>

namespace {
// Two centimetres around; the width is what they leave of an A4 sheet.
constexpr int Margin = 1134;
constexpr int Width = 9638;
constexpr int LineStep = 230;
/// That of the date until the user chooses another, so that the references look alike.
constexpr double TextSize = 8.25;

constexpr int AddressTop = 1900;
constexpr int RightColumn = 5600;
constexpr int RightFields = 7300;
constexpr int TitlesTop = 4600;

// The columns of the order lines.
constexpr int NumberColumn = 950;
constexpr int NameColumn = 2450;
constexpr int TaxNameColumn = 5450;
constexpr int TaxRateColumn = 6350;
constexpr int PriceColumn = 7150;
constexpr int TotalColumn = 8350;

constexpr const char* CustomerFields[] = {
    "BusinessName", "Address1", "Address2", "City", "State", "PostCode", "Country", "Phone", "Fax"};

void AddBusiness(ReportSection& header)
{
    constexpr int LogoHeight = 1600;
    header.AddImage("imgLogo", 0, 0, 2800, LogoHeight);
    ReportControl& address = header.AddLabel("lblBusinessAddress", "", 3000, 0, 6638).Wraps(2, 24);
    address.height = LogoHeight;
}

void AddCustomer(ReportSection& header)
{
    constexpr int ColumnWidth = 5300;
    header.AddLabel("Label2", QObject::tr("Invoice / Receipt for"), 0, AddressTop, ColumnWidth).Bold();
    header.AddLabel("lblName", "", 0, AddressTop + LineStep, ColumnWidth).Wraps(2, 2);
    int top = AddressTop + 2 * LineStep;
    for (const char* field : CustomerFields) {
        const QString name = QStringLiteral("txt") + QLatin1String(field);
        header.AddField(name, QLatin1String(field), 0, top, ColumnWidth).Wraps(2, 2).Collapses();
        top += LineStep;
    }
}

void AddReferences(ReportSection& header)
{
    constexpr int LabelWidth = RightFields - RightColumn - 100;
    constexpr int FieldWidth = Width - RightFields;
    const int top = AddressTop;
    header.AddLabel("Label5", QObject::tr("Invoice Number:"), RightColumn, top, LabelWidth);
    // One line each: a wrapped number would push the dates away from their labels.
    header.AddField("txtInvoiceNo", "InvoiceNo", RightFields, top, FieldWidth).overflow = ReportOverflow::Shrink;
    header.AddLabel("Label10", QObject::tr("Your order of"), RightColumn, top + LineStep, LabelWidth);
    header.AddField("txtInvoiceSubmittedDate", "Invoice.SubmittedDate", RightFields, top + LineStep, FieldWidth)
        .Formatted("d/MM/yyyy");
    header.AddLabel("Label8", QObject::tr("Ref."), RightColumn, top + 2 * LineStep, LabelWidth);
    header.AddLabel("lblDate", "", RightFields, top + 2 * LineStep, FieldWidth).overflow = ReportOverflow::Shrink;
}

void AddTitles(ReportSection& header)
{
    constexpr int Top = TitlesTop + 50;
    header.repeatedFrom = TitlesTop;
    header.AddLine("Line1", 0, TitlesTop, Width);
    header.AddLabel("Label4", QObject::tr("Quantity"), 0, Top, 800).RightAligned().Bold();
    header.AddLabel("Label3", QObject::tr("Item"), NumberColumn, Top, 4400).Bold();
    header.AddLabel("Label7", QObject::tr("Tax"), TaxNameColumn, Top, 1600).Bold();
    header.AddLabel("Label9", QObject::tr("Our Price"), PriceColumn, Top, 1150).RightAligned().Bold();
    header.AddLabel("Label11", QObject::tr("Total Price"), TotalColumn, Top, Width - TotalColumn).RightAligned().Bold();
    header.AddLine("Line2", 0, TitlesTop + 300, Width);
    header.height = TitlesTop + 380;
}

void AddDetail(ReportSection& detail)
{
    detail.height = 260;
    detail.AddField("txtQuantity", "Quantity", 0, 0, 800).RightAligned();
    detail.AddField("Text3", "Number", NumberColumn, 0, 1400).Wraps(2, 2);
    detail.AddField("txtName", "Name", NameColumn, 0, 2900).Wraps(4, 6);
    detail.AddField("txtTaxRateName", "TaxRateName", TaxNameColumn, 0, 850).Wraps(2, 2);
    detail.AddField("txtTaxRatePercentage", "TaxRatePercentage", TaxRateColumn, 0, 700)
        .RightAligned()
        .Formatted("00.0\"%\"");
    detail.AddField("txtAmount", "Amount", PriceColumn, 0, 1150).RightAligned();
    detail.AddField("txttaxsubtotal", "taxsubtotal", TotalColumn, 0, Width - TotalColumn).RightAligned();
}

void AddTotals(ReportSection& footer)
{
    constexpr int LabelLeft = 2450;
    constexpr int AmountLeft = 7700;
    constexpr int LabelWidth = AmountLeft - LabelLeft - 200;
    constexpr int AmountWidth = Width - AmountLeft;
    constexpr int Top = 150;
    footer.height = 1250;
    footer.AddLabel("Label12", QObject::tr("Tax Total"), LabelLeft, Top, LabelWidth).RightAligned();
    footer.AddField("Text1", "Aggregate2", AmountLeft, Top, AmountWidth).RightAligned();
    footer.AddLabel("Label1", QObject::tr("Order Total (including tax)"), LabelLeft, Top + LineStep, LabelWidth)
        .RightAligned();
    footer.AddField("Text2", "Aggregate1", AmountLeft, Top + LineStep, AmountWidth).RightAligned();
    footer.AddLabel("TaxName2", QObject::tr("2nd Tax Total"), LabelLeft, Top + 2 * LineStep, LabelWidth)
        .RightAligned()
        .Wraps(2, 2);
    footer.AddField("txtTotal2ndTax", "Total2ndTax", AmountLeft, Top + 2 * LineStep, AmountWidth).RightAligned();
    footer.AddLine("Line3", AmountLeft, Top + 3 * LineStep + 40, AmountWidth);
    ReportControl& total =
        footer.AddLabel("GrandTotal", "", AmountLeft, Top + 3 * LineStep + 90, AmountWidth).RightAligned().Bold();
    total.font.points = 11;
    total.height = 270;
}

void SizeTexts(ReportSection& section)
{
    for (ReportControl& control : section.controls)
        if (control.name != "GrandTotal")
            control.font.points = TextSize;
}
} // namespace

Report InvoiceDesign()
{
    Report report(QObject::tr("Invoice"), Width);
    report.margins = {Margin, Margin, Margin, Margin};
    ReportSection& title = report.Section(ReportSectionKind::ReportHeader);
    title.name = "ReportHeader";
    title.height = 420;
    title.AddLabel("Label6", QObject::tr("Invoice"), 0, 0, Width).RightAligned().Bold();
    report.Section(ReportSectionKind::PageHeader).name = "PageHeader";

    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = "repInvoice_Header";
    AddBusiness(header);
    AddCustomer(header);
    AddReferences(header);
    AddTitles(header);

    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = "cmInvoiceLine_Detail";
    AddDetail(detail);

    ReportSection& footer = report.Section(ReportSectionKind::GroupFooter);
    footer.name = "repInvoice_Footer";
    AddTotals(footer);

    ReportSection& pageFooter = report.Section(ReportSectionKind::PageFooter);
    pageFooter.name = "PageFooter";
    pageFooter.height = 400;
    pageFooter.AddPageNumber("lblPageNumber", 0, 150, Width).alignment = Qt::AlignHCenter;
    report.Section(ReportSectionKind::ReportFooter).name = "ReportFooter";
    for (ReportSection* section : {&title, &header, &detail, &footer, &pageFooter})
        SizeTexts(*section);
    return report;
}
