#include "paper/report_output.h"
#include "paper/report_picture.h"
#include "support/report_designs.h"
#include "support/test.h"

#include <algorithm>

namespace {
const ReportPaper Letter{12240, 15840};

/// What a PDF shows: its pages and fonts, without the frame around them.
QList<QByteArray> Streams(const QByteArray& pdf)
{
    QList<QByteArray> streams;
    for (qsizetype at = pdf.indexOf("stream\n"); at >= 0; at = pdf.indexOf("stream\n", at)) {
        const qsizetype end = pdf.indexOf("endstream", at);
        streams.append(pdf.mid(at, end - at));
        at = end + 9;
    }
    std::ranges::sort(streams);
    return streams;
}

QByteArray Utf16(const QString& text)
{
    QByteArray bytes("\xFE\xFF");
    for (const QChar character : text)
        bytes.append(static_cast<char>(character.unicode() >> 8)).append(static_cast<char>(character.unicode()));
    return bytes;
}

class ReportOutput : public testing::Test {
protected:
    QString Path(const QString& name) const { return m_folder.filePath(name); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files); }
    QTemporaryDir m_folder;
};
} // namespace

TEST_F(ReportOutput, APdfHasItsPagesItsTitleItsLanguageAndReadableText)
{
    ReportLayout layout(NameList(Numbered(200)), Letter);
    EXPECT_FALSE(SaveReportAsPdf(layout, Path("missing/names.pdf")));
    EXPECT_FALSE(SaveReportAsPdf(layout, m_folder.path())) << "a folder";
    EXPECT_EQ(Files(), QStringList()) << "nothing is left behind";
    ASSERT_TRUE(SaveReportAsPdf(layout, Path("names.pdf")));

    const QByteArray pdf = ReadFile(Path("names.pdf"));
    EXPECT_TRUE(pdf.startsWith("%PDF-1."));
    EXPECT_TRUE(pdf.endsWith("%%EOF\n"));
    EXPECT_TRUE(pdf.contains("/Count " + QByteArray::number(layout.PageCount())));
    EXPECT_TRUE(pdf.contains("/MediaBox [0 0 612 792]") || pdf.contains("612.000000 792.000000")) << "Letter";
    EXPECT_TRUE(pdf.contains("/ToUnicode")) << "the text can be searched";
    EXPECT_TRUE(pdf.contains("/Title (" + Utf16("Names")));
    EXPECT_EQ(pdf.count("/Lang (en"), 1);

    // The last cross reference leads to the catalog that has the language.
    const qsizetype place = pdf.mid(pdf.lastIndexOf("startxref\n") + 10).split('\n').front().toLongLong();
    EXPECT_TRUE(pdf.mid(place).startsWith("xref\n"));
    const qint64 catalog = pdf.mid(place).split('\n').at(2).left(10).toLongLong();
    EXPECT_TRUE(pdf.mid(catalog, 60).contains("/Lang (en"));
}

TEST_F(ReportOutput, PrintsThePagesThatWereChosenOnThePrintersPaper)
{
    ReportLayout layout(NameList(Numbered(200)), {});
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(Path("printed.pdf"));
    printer.setPageSize(QPageSize(QPageSize::Letter));
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    ASSERT_TRUE(PrintReport(layout, printer));
    EXPECT_TRUE(ReadFile(Path("printed.pdf")).contains("/Count 2"));
    EXPECT_EQ(layout.Paper(), ReportPaper()) << "the preview stays as it was";
    EXPECT_FALSE(printer.fullPage());
}

TEST_F(ReportOutput, PreviewPrinterAndPdfBreakTheSamePages)
{
    for (const int lines : {1, 36, 60})
        for (const double points : {9.0, 14.0, 72.0}) {
            Report report = TwoGroups(lines);
            report.Control("Sum").Sized(points).overflow = ReportOverflow::Shrink;
            report.Control("Line").Sized(points).overflow = ReportOverflow::Shrink;
            ReportLayout preview(report, Letter);
            int shown = 0;
            for (int page = 0; preview.HasPage(page); ++page)
                for (const ReportItem& item : preview.Page(page).items) {
                    shown += item.control->name == "Line";
                    EXPECT_LE(item.place.bottom(), Letter.height - 2 * 1440);
                }
            EXPECT_EQ(shown, 2 * lines);

            QPrinter printer;
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(Path("printed.pdf"));
            printer.setPageSize(QPageSize(QPageSize::Letter));
            printer.setResolution(1440);
            ReportLayout fresh(report, Letter);
            ASSERT_TRUE(PrintReport(fresh, printer) && SaveReportAsPdf(preview, Path("saved.pdf")));
            EXPECT_EQ(fresh.PageCount(), preview.PageCount());
            EXPECT_EQ(Streams(ReadFile(Path("printed.pdf"))), Streams(ReadFile(Path("saved.pdf"))));
        }
}

TEST_F(ReportOutput, PicturesThatCannotBeReadAreLeftOut)
{
    QImage picture(300, 100, QImage::Format_RGB32);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(Path("logo.png")));
    WriteFile(Path("text.png"), "");
    WriteFile(Path("cut.png"), ReadFile(Path("logo.png")).left(40));

    EXPECT_EQ(ReadPicture(Path("logo.png"), {1000, 1000}).size(), QSize(300, 100));
    EXPECT_EQ(ReadPicture(Path("logo.png"), {150, 150}).size(), QSize(150, 50)) << "in its own shape";
    for (const QString& bad : {Path("missing.png"), Path("text.png"), Path("cut.png"), m_folder.path()})
        EXPECT_TRUE(ReadPicture(bad, {150, 150}).isNull()) << bad.toStdString();
}
