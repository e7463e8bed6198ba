#include "paper/report_output.h"

#include "base/files.h"
#include "base/regional.h"

#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QRegularExpression>
#include <QTemporaryFile>

namespace {
constexpr int TwipsAnInch = 1440;

struct PageRange {
    int first, last; ///< from 0
};

PageRange ChosenPages(const QPrinter& printer, ReportLayout& layout)
{
    const int last = layout.PageCount() - 1;
    if (printer.printRange() != QPrinter::PageRange || printer.fromPage() < 1)
        return {0, last};
    return {std::min(printer.fromPage() - 1, last), std::min(std::max(printer.toPage(), printer.fromPage()) - 1, last)};
}

bool PaintPages(ReportLayout& layout, QPagedPaintDevice& device, PageRange pages, bool backwards)
{
    QPainter painter;
    if (!painter.begin(&device))
        return false;
    const double scale = device.logicalDpiX() / double(TwipsAnInch);
    painter.scale(scale, scale);
    for (int i = pages.first; i <= pages.last; ++i) {
        if (i > pages.first)
            device.newPage();
        layout.Paint(painter, layout.Page(backwards ? pages.first + pages.last - i : i));
    }
    return painter.end();
}

bool PrintLayout(ReportLayout& layout, QPrinter& printer)
{
    printer.setDocName(layout.Design().title);
    // The report's margins count from the edge of the sheet.
    const bool wasFullPage = printer.fullPage();
    printer.setFullPage(true);
    const bool backwards = printer.pageOrder() == QPrinter::LastPageFirst;
    const bool taken = PaintPages(layout, printer, ChosenPages(printer, layout), backwards);
    printer.setFullPage(wasFullPage);
    return taken;
}

QPageLayout PdfPage(ReportPaper paper)
{
    const QSizeF points(paper.width / 20.0, paper.height / 20.0);
    return QPageLayout(
        QPageSize(points, QPageSize::Point, QString(), QPageSize::FuzzyMatch), QPageLayout::Portrait, QMarginsF());
}

bool WritePdf(ReportLayout& layout, QIODevice& device)
{
    QPdfWriter writer(&device);
    writer.setTitle(layout.Design().title);
    writer.setCreator(QStringLiteral("Tavrin Inventory"));
    writer.setPageLayout(PdfPage(layout.Paper()));
    writer.setResolution(TwipsAnInch);
    return PaintPages(layout, writer, {0, layout.PageCount() - 1}, false);
}

QByteArray NumberBehind(const QByteArray& text, const QByteArray& word)
{
    const qsizetype found = text.lastIndexOf(word);
    return found < 0 ? QByteArray() : text.mid(found + word.size()).trimmed().split('\n').front().split(' ').front();
}

/// The bytes of object `number`, up to the end of its dictionary.
QByteArray ObjectText(QIODevice& pdf, qint64 crossReferences, qint64 number)
{
    constexpr int EntrySize = 20;
    pdf.seek(crossReferences);
    pdf.readLine();
    pdf.readLine();
    pdf.seek(pdf.pos() + number * EntrySize);
    const qint64 place = pdf.read(10).toLongLong();
    pdf.seek(place);
    return pdf.read(4096);
}

// The writer has no word for the language, so the catalog is written again behind the end, as the format provides for.
bool AddLanguage(QIODevice& pdf)
{
    pdf.seek(std::max<qint64>(0, pdf.size() - 1024));
    const QByteArray tail = pdf.readAll();
    const QByteArray root = NumberBehind(tail, "/Root ");
    const QByteArray start = NumberBehind(tail, "startxref\n");
    const QByteArray size = NumberBehind(tail, "/Size ");
    const QByteArray info = NumberBehind(tail, "/Info ");
    if (root.isEmpty() || start.isEmpty() || size.isEmpty())
        return false;
    QByteArray catalog = ObjectText(pdf, start.toLongLong(), root.toLongLong());
    const qsizetype type = catalog.indexOf("/Type /Catalog");
    const qsizetype end = catalog.indexOf("endobj");
    if (type < 0 || end < 0)
        return false;
    //: The code of the language that this is a translation to: a PDF tells it to screen readers.
    const QString language = ReportLayout::tr("en");
    catalog.truncate(end);
    catalog.insert(type, "/Lang (" + language.toLatin1() + ")\n");
    const qint64 place = pdf.size();
    pdf.seek(place);
    pdf.write(catalog + "endobj\n");
    const qint64 table = pdf.pos();
    pdf.write("xref\n" + root + " 1\n" + QByteArray::number(place).rightJustified(10, '0') + " 00000 n \n");
    pdf.write("trailer\n<<\n/Size " + size + "\n/Info " + info + " 0 R\n/Root " + root + " 0 R\n/Prev " + start
        + "\n>>\nstartxref\n" + QByteArray::number(table) + "\n%%EOF\n");
    return true;
}
} // namespace

bool PrintReport(ReportLayout& layout, QPrinter& printer)
{
    const ReportPaper paper = PaperOf(printer);
    if (paper == layout.Paper())
        return PrintLayout(layout, printer);
    ReportLayout printed(layout.Design(), layout.Paper());
    printed.SetPaper(paper, layout.Design().margins);
    return PrintLayout(printed, printer);
}

bool SaveReportAsPdf(ReportLayout& layout, const QString& path)
{
    QTemporaryFile pdf;
    if (!pdf.open() || !WritePdf(layout, pdf))
        return false;
    return pdf.flush() && AddLanguage(pdf) && pdf.flush() && WriteWholeFile(path, pdf);
}
