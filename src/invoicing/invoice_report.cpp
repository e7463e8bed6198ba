#include "invoicing/invoice_report.h"

#include "base/clock.h"
#include "base/dates.h"
#include "base/guard.h"
#include "base/numbers.h"
#include "config/secondary_tax.h"
#include "controls/dialogs.h"
#include "db/connection.h"
#include "invoicing/invoice_report_design.h"
#include "invoicing/invoice_report_style.h"
#include "paper/column_fit.h"
#include "paper/report_band.h"
#include "paper/report_picture.h"
#include "records/data_environment.h"

#include <QCoreApplication>
#include <QPrinter>

namespace {

/// The texts that are printed.
struct InvoiceReport {
    Q_DECLARE_TR_FUNCTIONS(InvoiceReport)
};

const QString RepInvoice = QStringLiteral("repInvoice");

void RegisterRepInvoice()
{
    if (DataEnvironment().Has(RepInvoice))
        return;
    DataEnvironment().Register({
        RepInvoice,
        QStringLiteral("SELECT Customer.*, Invoice.* FROM Customer, Invoice WHERE Invoice.CustomerID = Customer.ID AND "
                       "Invoice.id = {prmInvID}"),
        QStringLiteral("SELECT *, quantity * (taxratepercentage/100*amount+amount) AS taxsubtotal, quantity * "
                       "(taxratepercentage/100*amount) AS taxsubtotal2 FROM invoiceline"),
        QStringLiteral(" WHERE InvoiceID = {parentKey} ORDER BY id"),
        QStringLiteral("Invoice.ID"),
        {{QStringLiteral("Aggregate1"), QStringLiteral("taxsubtotal")},
            {QStringLiteral("Aggregate2"), QStringLiteral("taxsubtotal2")}},
    });
}

/// A statement about one invoice, on the connection of the screens.
Recordset AboutInvoice(const char* statement, qint32 invoiceId)
{
    return gConnection->Execute(Sql(statement).Number("gCurrentInvoiceId", invoiceId));
}

QString CustomerName(qint32 invoiceId)
{
    const Recordset row = AboutInvoice("SELECT firstname, lastname FROM invoice, customer WHERE invoice.customerid = "
                                       "customer.id AND invoice.id = {gCurrentInvoiceId}",
        invoiceId);
    return row.Eof() ? QString() : NullToText(row["firstname"]) + QStringLiteral(" ") + NullToText(row["lastname"]);
}

void SetReportFieldFormat(ReportControl& field, const QString& format)
{
    field.format = format;
}

void FormatAmounts(Report& report)
{
    for (const char* field : {"txtAmount", "txttaxsubtotal", "Text1", "Text2"})
        SetReportFieldFormat(report.Control(QLatin1String(field)), QStringLiteral("Currency"));
}

QString BusinessAddress(const Recordset& settings)
{
    QString address;
    for (const char* field : {"businessname", "Address1", "Address2", "City", "State", "PostCode", "Country"})
        address += GetS(settings[field]);
    return address + GetS(Value(InvoiceReport::tr("Phone: ") + NullToText(settings["Phone"])));
}

// A logo needs no more than what a printer of 600 dots an inch shows of its place.
void ShowLogo(Report& report, const QString& path)
{
    constexpr QSize MostPixels(1167, 667);
    report.Control(QStringLiteral("imgLogo")).picture = OnPaper(ReadPicture(path, MostPixels));
}

void ShowBusiness(Report& report)
{
    const Recordset settings = gConnection->Execute("SELECT businessname, Address1, Address2, City, State, PostCode, "
                                                    "Country, Phone, Email, Logofilename FROM Settings");
    if (settings.Eof())
        return;
    ReportControl& address = report.Control(QStringLiteral("lblBusinessAddress"));
    address.caption = BusinessAddress(settings);
    const QString logo = NullToText(settings["Logofilename"]);
    if (!logo.isEmpty()) {
        ShowLogo(report, logo);
    } else {
        address.width += address.left;
        address.left = 0;
    }
}

void HideColumns(Report& report, const InvoiceStyle& style)
{
    for (const char* control : {"Label7", "txtTaxRatePercentage", "txtTaxRateName", "Label12", "Text1"})
        report.Control(QLatin1String(control)).visible = !style.hideTax;
    if (style.hideOurPrice)
        for (const char* control : {"Label9", "txtAmount"})
            report.Control(QLatin1String(control)).visible = false;
}

// The name begins behind the numbers as they are, and where the tax is hidden it takes that place too.
void FitNameColumn(Report& report)
{
    constexpr int Gap = 150;
    ReportControl& number = report.Control(QStringLiteral("Text3"));
    ReportControl& name = report.Control(QStringLiteral("txtName"));
    const int right = report.Control(QStringLiteral("Label7")).visible ? name.left + name.width
                                                                       : report.Control(QStringLiteral("Label9")).left;
    number.width = NeededWidth(report, number.name);
    name.left = number.left + number.width + (number.width > 0 ? Gap : 0);
    name.width = right - name.left;
}

Currency StoredSecondTax(qint32 invoiceId)
{
    const Recordset row = AboutInvoice("SELECT total2ndTax FROM invoice WHERE id = {gCurrentInvoiceId}", invoiceId);
    const QString text = row.Eof() ? QString() : NullToText(row["total2ndTax"]);
    return text.isEmpty() ? Currency() : CCur(text);
}

void ShowSecondTax(Report& report)
{
    ReportControl& name = report.Control(QStringLiteral("TaxName2"));
    if (SecondaryTax::SecondaryTaxEnable)
        name.caption = SecondaryTax::SecondaryTaxName;
    name.visible = SecondaryTax::SecondaryTaxEnable;
    report.Control(QStringLiteral("txtTotal2ndTax")).visible = SecondaryTax::SecondaryTaxEnable;
}

void ShowGrandTotal(Report& report, qint32 invoiceId, Currency secondTax)
{
    const Recordset row = AboutInvoice("SELECT sum (quantity * (taxratepercentage/100*amount+amount)) AS subtotal FROM "
                                       "invoiceline WHERE invoiceid = {gCurrentInvoiceId}",
        invoiceId);
    if (row.Eof())
        return;
    const Value subtotal = row["subtotal"];
    double total = subtotal.IsNull() ? 0 : subtotal.ToDouble();
    if (SecondaryTax::SecondaryTaxEnable)
        total += secondTax.ToDouble();
    report.Control(QStringLiteral("GrandTotal")).caption = FormatCurrency(total);
}

// The title tells one open preview, and one saved file, from the next.
void SetTitle(Report& report)
{
    const ReportTable& parent = report.rows->parents;
    const QString number = parent.Count() > 0
        ? ReportValueText(parent.At(0, parent.Field(QStringLiteral("InvoiceNo"))), QString())
        : QString();
    report.title = (report.Control(QStringLiteral("Label6")).caption + QStringLiteral(" ") + number).trimmed();
}
} // namespace

QString GetS(const Value& value)
{
    QString lineBreak = QStringLiteral("\r\n");
    if (value.IsNull())
        return lineBreak;
    const QString text = value.ToText();
    return text.isEmpty() ? text : text + lineBreak;
}

Report PrepareInvoice(qint32 invoiceId, bool isWarranty)
{
    RegisterRepInvoice();
    Report report = InvoiceDesign();
    if (DataEnvironment().IsOpen(RepInvoice))
        DataEnvironment().Requery(RepInvoice);
    if (isWarranty)
        report.Control(QStringLiteral("Label6")).caption = InvoiceReport::tr("Warranty Invoice");
    DataEnvironment().SetParameter(RepInvoice, QStringLiteral("prmInvID"), invoiceId);
    report.Control(QStringLiteral("lblName")).caption = CustomerName(invoiceId);
    report.Control(QStringLiteral("lblDate")).caption = ShortDate(Now());
    const InvoiceStyle style = ReadInvoiceStyle();
    report.Control(QStringLiteral("Label6")).font.points = style.fontSize;
    report.Control(QStringLiteral("lblDate")).font.points = style.fontSize;
    FormatAmounts(report);
    ShowBusiness(report);
    HideColumns(report, style);
    const Currency secondTax = StoredSecondTax(invoiceId);
    ShowSecondTax(report);
    ShowGrandTotal(report, invoiceId, secondTax);
    DataEnvironment().Bind(report, RepInvoice);
    FitNameColumn(report);
    SetTitle(report);
    report.FillPaper(PaperOf(CurrentPrinter()));
    return report;
}
