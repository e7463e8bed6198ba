#include "chart/chart.h"
#include "chart/chart_colors.h"
#include "support/test.h"

#include <QAccessible>
#include <QImage>
#include <QSvgRenderer>

namespace {

Chart& Cell(Chart& chart, int row, int column)
{
    chart.SetRow(row);
    chart.SetColumn(column);
    return chart;
}

/// Two series over January to March; the second has nothing for February.
void Fill(Chart& chart)
{
    chart.SetColumnCount(2);
    chart.SetRowCount(3);
    const QStringList labels{"Jan-2026", "<b>Feb</b>", "Mar-2026"};
    const QStringList first{"12", "1,234.5", "7"};
    const QStringList second{"3", QString(), "0"};
    for (int row = 1; row <= 3; ++row) {
        Cell(chart, row, 1).SetData(first[row - 1]);
        Cell(chart, row, 2).SetData(second[row - 1]);
        chart.SetRowLabel(labels[row - 1]);
    }
    Cell(chart, 1, 2).SetColumnLabel("Screws");
}

TEST(ChartCells, KeepWhatTheyHoldWhenTheCountsAndTheTypeChange)
{
    Chart chart;
    Fill(chart);
    chart.SetColumnCount(1);
    chart.SetRowCount(2);
    chart.SetColumnCount(2);
    chart.SetChartType(VtChChartType2dStep);

    EXPECT_EQ(Cell(chart, 2, 1).Data(), "1234.5");
    EXPECT_EQ(chart.RowLabel(), "<b>Feb</b>");
    EXPECT_EQ(Cell(chart, 1, 2).Data(), QString());
    EXPECT_THROW(chart.SetRow(3), RuntimeError);
    EXPECT_THROW(chart.SetColumn(0), RuntimeError);
    EXPECT_THROW(chart.SetRowCount(-1), RuntimeError);
    EXPECT_THROW(chart.SetData("many"), RuntimeError);
    EXPECT_EQ(chart.Data(), QString());
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    chart.SetData("7,5");
    EXPECT_EQ(chart.Data(), "7,5");
}

/// Counts how often a widget is painted.
class PaintCount : public QObject {
public:
    int paints = 0;
    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint;
        return false;
    }
};

TEST(ChartDrawing, HappensOnceHoweverManyCellsAreSet)
{
    Chart chart;
    Fill(chart);
    Shown(&chart);
    QCoreApplication::processEvents();
    PaintCount count;
    chart.installEventFilter(&count);
    chart.SetRowCount(31);
    for (int row = 1; row <= 31; ++row)
        Cell(chart, row, 1).SetData(QString::number(row));
    EXPECT_EQ(count.paints, 0);
    QTest::qWait(50);
    EXPECT_EQ(count.paints, 1);
}

TEST(ChartDrawing, SeriesStandOutFromLightAndDarkBackgrounds)
{
    for (const QColor background : {QColor(Qt::white), QColor(0xf0f0f0), QColor(0x777777), QColor(0x202020)}) {
        Chart chart;
        QPalette palette;
        palette.setColor(QPalette::Base, background);
        chart.setPalette(palette);
        const QColor red = chart.SeriesColor(1), green = chart.SeriesColor(2);
        EXPECT_GE(std::min(Contrast(red, background), Contrast(green, background)), 3);
        EXPECT_TRUE(red.red() > red.green() && green.green() > green.red());
    }
}

TEST(ChartReading, ArrowKeysAndTheMouseLeadOverTheValuesAndTellThem)
{
    Chart chart;
    Fill(chart);
    Shown(&chart);
    const auto tipAfter = [&](Qt::Key key) {
        Press(&chart, key);
        return QToolTip::text();
    };
    const std::pair<Qt::Key, const char*> walk[] = {{Qt::Key_Right, "Jan-2026, Series 1: 12"},
        {Qt::Key_Right, "&lt;b&gt;Feb&lt;/b&gt;, Series 1: 1,234.5"}, {Qt::Key_Home, "Jan-2026, Series 1: 12"},
        {Qt::Key_Down, "Jan-2026, Screws: 3"}, {Qt::Key_Right, "Mar-2026, Screws: 0"},
        {Qt::Key_Right, "Mar-2026, Screws: 0"}};
    for (const auto& [key, tip] : walk)
        EXPECT_TRUE(tipAfter(key).contains(tip)) << tip;
    EXPECT_EQ(chart.MarkedPoint(), ChartPoint({2, 1}));
    chart.setLayoutDirection(Qt::RightToLeft);
    EXPECT_TRUE(tipAfter(Qt::Key_Right).contains("Jan-2026, Screws: 3"));
    chart.setLayoutDirection(Qt::LeftToRight);
    QTest::mouseMove(&chart, chart.PointRect({1, 0}).center() + QPoint(0, 30));
    EXPECT_TRUE(QToolTip::text().contains("1,234.5")) << "the mouse tells it, too";
    QTest::mouseClick(&chart, Qt::LeftButton, {}, chart.PointRect({0, 0}).center());
    EXPECT_EQ(chart.MarkedPoint(), ChartPoint({0, 0}));
    chart.SetRowCount(0);
    QCoreApplication::processEvents();
    EXPECT_FALSE(chart.MarkedPoint());
    tipAfter(Qt::Key_Right);
}

TEST(ChartReading, AScreenReaderGetsATableOfTheData)
{
    Chart chart;
    Fill(chart);
    QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(&chart);
    ASSERT_TRUE(reader && reader->tableInterface());
    QAccessibleTableInterface* table = reader->tableInterface();
    const auto text = [&](int row, int column) { return table->cellAt(row, column)->text(QAccessible::Name); };
    EXPECT_EQ(table->columnDescription(2), "Screws");
    EXPECT_EQ(text(1, 0) + text(1, 1) + text(1, 2), "<b>Feb</b>1,234.5");
    EXPECT_EQ(reader->indexOfChild(reader->child(5)), 5);
    EXPECT_EQ(reader->text(QAccessible::Value).split(u'\n').at(2), "Mar-2026: Series 1: 7; Screws: 0");
    EXPECT_EQ(reader->text(QAccessible::Description), "3D bar chart, Jan-2026 to Mar-2026");

    Cell(chart, 2, 1).SetData("5");
    chart.SetRowCount(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(text(1, 1), "5");
    EXPECT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->cellAt(2, 0), nullptr);
}

TEST(ChartPicture, IsSavedAsPngOrSvgByTheNameAndNothingIsLeftOfAFailure)
{
    Chart chart;
    Fill(chart);
    chart.resize(400, 250);
    const QTemporaryDir folder;
    const auto saveAs = [&](const char* name) {
        ScriptedAnswers answers;
        QString path = folder.filePath(QLatin1String(name));
        answers.ExpectSaveFile(path);
        if (path.contains("gone"))
            answers.ExpectMessage(QStringLiteral("The chart could not be saved as %1.").arg(path), Icon::Critical);
        chart.SaveAs();
        return path;
    };
    EXPECT_EQ(QImage(saveAs("a.png")).size(), QSize(800, 500));
    EXPECT_FALSE(QImage(saveAs("b") + ".png").isNull());
    QFile svg(saveAs("c.SVG"));
    ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
    const QByteArray drawing = svg.readAll();
    EXPECT_TRUE(drawing.contains("Mar-2026"));
    QSvgRenderer renderer(drawing);
    EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 400, 250));
    saveAs("gone/d.svg");
    saveAs("gone/e.png");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList({"a.png", "b.png", "c.SVG"}));
}

TEST(ChartPicture, IsCopiedAndPrintedFromTheMenu)
{
    Chart chart;
    Fill(chart);
    chart.resize(400, 250);
    Shown(&chart);
    QContextMenuEvent byKey(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&chart, &byKey);
    auto* menu = Find<QMenu>(&chart, "mnuChart");
    EXPECT_TRUE(menu->isVisible());
    menu->actions().first()->trigger();
    EXPECT_EQ(QGuiApplication::clipboard()->image().size(), QSize(400, 250));
    menu->close();

    const QTemporaryDir folder;
    const QString file = folder.filePath("chart.pdf");
    CurrentPrinter().setOutputFormat(QPrinter::PdfFormat);
    CurrentPrinter().setOutputFileName(file);
    {
        ScriptedAnswers answers;
        answers.ExpectPrint(false);
        answers.ExpectPrint(true);
        chart.Print();
        EXPECT_FALSE(QFile::exists(file));
        menu->actions().last()->trigger();
        EXPECT_GT(QFile(file).size(), 1000);
        CurrentPrinter().setOutputFileName(folder.filePath("gone/chart.pdf"));
        answers.ExpectPrint(true);
        answers.ExpectMessage("The chart could not be printed.", Icon::Critical);
        chart.Print();
    }
    CurrentPrinter().setOutputFileName(QString());
    if (!QPrinterInfo::availablePrinterNames().isEmpty())
        return;
    WhenFormShows<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().startsWith("No printer is installed."));
        QTest::keyClick(&box, Qt::Key_Return);
    });
    chart.Print();
}

} // namespace
