#include "invoicing/invoice_report_design.h"

#include <QCoreApplication>

namespace {

/// The texts that are printed.
struct InvoiceReport {
    Q_DECLARE_TR_FUNCTIONS(InvoiceReport)
};

// Two centimetres around; the width is what they leave of an A4 sheet.
constexpr int Margin = 1134;
constexpr int Width = 9638;
constexpr int LineStep = 230;
/// Less than a line of the text needs.
constexpr int AddressStep = 190;
/// That of the date until the user chooses another, so that the references look alike.
constexpr double TextSize = 8.25;

constexpr int AddressTop = 1900;
constexpr int RightColumn = 5600;
constexpr int RightFields = 7300;
constexpr int TitlesTop = 4250;

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
    header.AddImage(QStringLiteral("imgLogo"), 0, 0, 2800, LogoHeight);
    ReportControl& address =
        header.AddLabel(QStringLiteral("lblBusinessAddress"), QString(), 3000, 0, 6638).Wraps(2, 24);
    address.height = LogoHeight;
}

void AddCustomer(ReportSection& header)
{
    constexpr int ColumnWidth = 5300;
    header.AddLabel(QStringLiteral("Label2"), InvoiceReport::tr("Invoice / Receipt for"), 0, AddressTop, ColumnWidth)
        .Bold();
    header.AddLabel(QStringLiteral("lblName"), QString(), 0, AddressTop + AddressStep, ColumnWidth).Wraps(2, 2);
    int top = AddressTop + 2 * AddressStep;
    for (const char* field : CustomerFields) {
        const QString name = QStringLiteral("txt") + QLatin1String(field);
        header.AddField(name, QLatin1String(field), 0, top, ColumnWidth).Wraps(2, 6).Collapses();
        top += AddressStep;
    }
}

void AddReferences(ReportSection& header)
{
    constexpr int LabelWidth = RightFields - RightColumn - 100;
    constexpr int FieldWidth = Width - RightFields;
    int top = AddressTop;
    header.AddLabel(QStringLiteral("Label5"), InvoiceReport::tr("Invoice Number:"), RightColumn, top, LabelWidth);
    // One line each: a wrapped number would push the dates away from their labels.
    header.AddField(QStringLiteral("txtInvoiceNo"), QStringLiteral("InvoiceNo"), RightFields, top, FieldWidth)
        .overflow = ReportOverflow::Shrink;
    top += AddressStep;
    header.AddLabel(QStringLiteral("Label10"), InvoiceReport::tr("Your order of"), RightColumn, top, LabelWidth);
    header
        .AddField(QStringLiteral("txtInvoiceSubmittedDate"), QStringLiteral("Invoice.SubmittedDate"), RightFields, top,
            FieldWidth)
        .Formatted(QStringLiteral("d/MM/yyyy"));
    top += AddressStep;
    header.AddLabel(QStringLiteral("Label8"), InvoiceReport::tr("Ref."), RightColumn, top, LabelWidth);
    header.AddLabel(QStringLiteral("lblDate"), QString(), RightFields, top, FieldWidth).overflow =
        ReportOverflow::Shrink;
}

// The lines of the addresses and of the references follow each other as the font tells, like those of the business.
void SetSolid(ReportSection& header)
{
    for (ReportControl& control : header.controls)
        if (control.top >= AddressTop)
            control.height = AddressStep;
}

void AddTitles(ReportSection& header)
{
    constexpr int Top = TitlesTop + 50;
    header.repeatedFrom = TitlesTop;
    header.AddLine(QStringLiteral("Line1"), 0, TitlesTop, Width);
    header.AddLabel(QStringLiteral("Label4"), InvoiceReport::tr("Quantity"), 0, Top, 800).RightAligned().Bold();
    header.AddLabel(QStringLiteral("Label3"), InvoiceReport::tr("Item"), NumberColumn, Top, 4400).Bold();
    header.AddLabel(QStringLiteral("Label7"), InvoiceReport::tr("Tax"), TaxNameColumn, Top, 1600).Bold();
    header.AddLabel(QStringLiteral("Label9"), InvoiceReport::tr("Our Price"), PriceColumn, Top, 1150)
        .RightAligned()
        .Bold();
    header.AddLabel(QStringLiteral("Label11"), InvoiceReport::tr("Total Price"), TotalColumn, Top, Width - TotalColumn)
        .RightAligned()
        .Bold();
    header.AddLine(QStringLiteral("Line2"), 0, TitlesTop + 300, Width);
    header.height = TitlesTop + 380;
}

void AddDetail(ReportSection& detail)
{
    detail.height = 260;
    detail.AddField(QStringLiteral("txtQuantity"), QStringLiteral("Quantity"), 0, 0, 800).RightAligned();
    detail.AddField(QStringLiteral("Text3"), QStringLiteral("Number"), NumberColumn, 0, 1400).Wraps(2, 2);
    detail.AddField(QStringLiteral("txtName"), QStringLiteral("Name"), NameColumn, 0, 2900).Wraps(4, 6);
    detail.AddField(QStringLiteral("txtTaxRateName"), QStringLiteral("TaxRateName"), TaxNameColumn, 0, 850).Wraps(2, 2);
    detail.AddField(QStringLiteral("txtTaxRatePercentage"), QStringLiteral("TaxRatePercentage"), TaxRateColumn, 0, 700)
        .RightAligned()
        .Formatted(QStringLiteral("00.0\"%\""));
    detail.AddField(QStringLiteral("txtAmount"), QStringLiteral("Amount"), PriceColumn, 0, 1150).RightAligned();
    detail
        .AddField(QStringLiteral("txttaxsubtotal"), QStringLiteral("taxsubtotal"), TotalColumn, 0, Width - TotalColumn)
        .RightAligned();
}

void AddTotals(ReportSection& footer)
{
    constexpr int LabelLeft = 2450;
    constexpr int AmountLeft = 7700;
    constexpr int LabelWidth = AmountLeft - LabelLeft - 200;
    constexpr int AmountWidth = Width - AmountLeft;
    constexpr int Top = 150;
    footer.height = 1250;
    footer.AddLabel(QStringLiteral("Label12"), InvoiceReport::tr("Tax Total"), LabelLeft, Top, LabelWidth)
        .RightAligned()
        .Vanishes();
    footer.AddField(QStringLiteral("Text1"), QStringLiteral("Aggregate2"), AmountLeft, Top, AmountWidth)
        .RightAligned()
        .Vanishes();
    footer
        .AddLabel(QStringLiteral("Label1"), InvoiceReport::tr("Order Total (including tax)"), LabelLeft, Top + LineStep,
            LabelWidth)
        .RightAligned();
    footer.AddField(QStringLiteral("Text2"), QStringLiteral("Aggregate1"), AmountLeft, Top + LineStep, AmountWidth)
        .RightAligned();
    footer
        .AddLabel(
            QStringLiteral("TaxName2"), InvoiceReport::tr("2nd Tax Total"), LabelLeft, Top + 2 * LineStep, LabelWidth)
        .RightAligned()
        .Wraps(2, 2)
        .Vanishes();
    footer
        .AddField(QStringLiteral("txtTotal2ndTax"), QStringLiteral("Total2ndTax"), AmountLeft, Top + 2 * LineStep,
            AmountWidth)
        .RightAligned()
        .Vanishes();
    footer.AddLine(QStringLiteral("Line3"), AmountLeft, Top + 3 * LineStep + 40, AmountWidth);
    ReportControl& total =
        footer.AddLabel(QStringLiteral("GrandTotal"), QString(), AmountLeft, Top + 3 * LineStep + 90, AmountWidth)
            .RightAligned()
            .Bold();
    total.font.points = 11;
    total.height = 270;
}

void SizeTexts(ReportSection& section)
{
    for (ReportControl& control : section.controls)
        if (control.name != QLatin1String("GrandTotal"))
            control.font.points = TextSize;
}
} // namespace

Report InvoiceDesign()
{
    Report report(InvoiceReport::tr("Invoice"), Width);
    report.margins = {Margin, Margin, Margin, Margin};
    ReportSection& title = report.Section(ReportSectionKind::ReportHeader);
    title.name = QStringLiteral("ReportHeader");
    title.height = 420;
    title.AddLabel(QStringLiteral("Label6"), InvoiceReport::tr("Invoice"), 0, 0, Width).RightAligned().Bold();
    report.Section(ReportSectionKind::PageHeader).name = QStringLiteral("PageHeader");

    ReportSection& header = report.Section(ReportSectionKind::GroupHeader);
    header.name = QStringLiteral("repInvoice_Header");
    AddBusiness(header);
    AddCustomer(header);
    AddReferences(header);
    SetSolid(header);
    AddTitles(header);

    ReportSection& detail = report.Section(ReportSectionKind::Detail);
    detail.name = QStringLiteral("cmInvoiceLine_Detail");
    AddDetail(detail);

    ReportSection& footer = report.Section(ReportSectionKind::GroupFooter);
    footer.name = QStringLiteral("repInvoice_Footer");
    AddTotals(footer);

    ReportSection& pageFooter = report.Section(ReportSectionKind::PageFooter);
    pageFooter.name = QStringLiteral("PageFooter");
    pageFooter.height = 400;
    pageFooter.AddPageNumber(QStringLiteral("lblPageNumber"), 0, 150, Width).alignment = Qt::AlignHCenter;
    report.Section(ReportSectionKind::ReportFooter).name = QStringLiteral("ReportFooter");
    for (ReportSection* section : {&title, &header, &detail, &footer, &pageFooter})
        SizeTexts(*section);
    return report;
}
