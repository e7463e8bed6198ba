#include "controls/fit_grid_columns.h"
#include "controls/flex_grid.h"
#include "controls/flex_grid_model.h"
#include "controls/flex_grid_paint.h"
#include "support/test.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QTextDocumentFragment>

namespace {

class Grid : public testing::Test {
protected:
    void SetUp() override
    {
        grid.setObjectName("gcust");
        grid.resize(400, 200);
        grid.SetCols(3);
        for (int col = 0; col < 3; ++col) {
            grid.SetTitle(col, QString("Title %1").arg(col), CellAlign::CenterTop);
            grid.SetColWidth(col, 1500);
        }
    }
    void Fill(int rows)
    {
        GridFill fill(&grid);
        for (int row = 1; row <= rows; ++row) {
            fill.Add(QString("name %1").arg(row));
            fill.Add("street");
            fill.EndRow(qint64(row) * 10);
        }
    }

    FlexGrid grid;
};

TEST_F(Grid, AFillReplacesAllRowsAndLeavesTheTitles)
{
    Fill(3);
    grid.SelectRow(2);
    EXPECT_EQ(grid.CurrentRowData(), 20);
    {
        GridFill fill(&grid);
        fill.Add(std::string_view("Z\xC3\xBCrich \xF0\x9F\x98\x80"));
        EXPECT_EQ(fill.EndRow(7), 1);
        EXPECT_EQ(fill.EndRow(-1), 2);
        EXPECT_EQ(grid.Rows(), 4) << "the old rows stay until the fill is done";
    }
    EXPECT_EQ(GridTitles(&grid), QStringList({"Title 0", "Title 1", "Title 2"}));
    EXPECT_EQ(GridRows(&grid), QList<QStringList>({{QString::fromUtf8("Zürich 😀"), "", ""}, {"", "", ""}}));
    EXPECT_EQ(grid.RowData(1), 7);
    EXPECT_EQ(grid.RowData(2), -1);
    EXPECT_EQ(grid.model()->index(0, 0).data(Qt::UserRole).toLongLong(), 7);
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(Grid, CuttingRowsMovesTheCurrentOneToTheLastAndTheTitleRowAloneIsNoRecord)
{
    Fill(5);
    grid.SelectRow(5);
    grid.SetRows(4);
    EXPECT_EQ(grid.CurrentRowData(), 30);
    EXPECT_EQ(grid.currentIndex().row(), 2);
    grid.SetRows(1);
    EXPECT_EQ(grid.Row(), 0);
    EXPECT_EQ(grid.CurrentRowData(), 0);
    EXPECT_EQ(GridTitles(&grid).front(), "Title 0");

    grid.SetRows(3);
    EXPECT_EQ(GridRows(&grid), QList<QStringList>({{"", "", ""}, {"", "", ""}})) << "rows that come again are empty";
    EXPECT_EQ(grid.RowData(2), 0);
    EXPECT_EQ(grid.Row(), 0);
}

TEST_F(Grid, CellsKeepWhatTheyAreSetTo)
{
    Fill(3);
    const QString odd = QString::fromUtf8("a\r\nb") + QChar(0) + QString::fromUtf8("'\"😀");
    for (int i = 0; i < 20000; ++i) // far more than the fill's own texts, so that the store tidies itself
        grid.SetTextMatrix(2, 1, QString("%1 %2").arg(i).arg(odd));
    grid.SetTextMatrix(2, 2, odd);
    grid.SetTextMatrix(0, 2, "Phone");
    EXPECT_EQ(grid.TextMatrix(2, 1), "19999 " + odd);
    EXPECT_EQ(grid.TextMatrix(2, 2), odd);
    EXPECT_EQ(grid.TextMatrix(3, 0), "name 3");
    EXPECT_EQ(GridTitles(&grid).back(), "Phone");

    grid.SetCols(4);
    EXPECT_EQ(GridRows(&grid)[1], QStringList({"name 2", "19999 " + odd, odd, ""}));
    grid.SetCols(1);
    EXPECT_EQ(GridRows(&grid)[2], QStringList({"name 3"}));
    EXPECT_EQ(grid.RowData(3), 30);
}

TEST_F(Grid, SettingRowOrColumnResetsTheSelectionToTheCell)
{
    Fill(3);
    grid.SetRow(2);
    grid.SetCol(0);
    grid.SetColSel(2);
    EXPECT_EQ(grid.ColSel(), 2);
    grid.SetCol(1);
    EXPECT_EQ(grid.ColSel(), 1);
    EXPECT_EQ(grid.Text(), "street");
    grid.SelectRow(3);
    EXPECT_EQ(std::make_tuple(grid.Row(), grid.Col(), grid.ColSel()), std::make_tuple(3, 0, 2));
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);
}

TEST_F(Grid, PlacesOutOfRangeAreRunTimeErrors)
{
    Fill(2);
    EXPECT_EQ(ErrorOf([&] { grid.SetRow(3); }), 30009);
    EXPECT_EQ(ErrorOf([&] { grid.SetRow(-1); }), 30009);
    EXPECT_EQ(ErrorOf([&] { grid.SetCol(3); }), 30010);
    EXPECT_EQ(ErrorOf([&] { grid.TextMatrix(1, -1); }), 30010);
    EXPECT_EQ(ErrorOf([&] { grid.RowData(3); }), 381);
    EXPECT_EQ(ErrorOf([&] { grid.SetRows(0); }), 30009);
    EXPECT_EQ(grid.RowData(0), 0);
}

TEST_F(Grid, AFittedColumnHoldsItsWidestTextAndHardlyMore)
{
    const QFontMetricsF metrics(grid.font());
    for (const QStringList& texts : {QStringList{"AVAVAVAVAVAV To", "AVAVAVAVAVAV Tom"}, {"Тютчев", "Иван Тютчев"},
             {"東京", "東京都"}, {"e\u0301e\u0301", "e\u0301e\u0301e\u0301"}, {"مرحبا", "مرحبا بكم"}}) {
        grid.SetCols(1);
        grid.SetTextMatrix(0, 0, QString());
        grid.SetRows(3);
        grid.SetTextMatrix(1, 0, texts[1]);
        grid.SetTextMatrix(2, 0, texts[0]);
        FitGridColumns(&grid);
        const double spare = grid.columnWidth(0) - metrics.horizontalAdvance(texts[1]);
        EXPECT_GT(spare, 4) << texts[1].toStdString();
        EXPECT_LT(spare, 12) << texts[1].toStdString();
    }
}

TEST_F(Grid, ColumnWidthsAreTwips)
{
    grid.SetColWidth(0, 800);
    grid.SetColWidth(1, -1);
    EXPECT_EQ(grid.ColWidth(0), 800) << "a width that is no whole pixel comes back as it was set";
    EXPECT_EQ(grid.columnWidth(0), 53);
    EXPECT_EQ(grid.ColWidth(1), 960);

    grid.SetColWidth(1, 0);
    EXPECT_TRUE(grid.isColumnHidden(1));
    EXPECT_EQ(grid.ColWidth(1), 0);
    grid.SetColWidth(1, 1500);
    EXPECT_FALSE(grid.isColumnHidden(1));
    EXPECT_EQ(grid.ColWidth(1), 1500);

    Shown(&grid);
    QHeaderView* header = grid.horizontalHeader();
    const auto drag = [&](int from, int to) {
        QTest::mousePress(header->viewport(), Qt::LeftButton, {}, QPoint(from, 5));
        QMouseEvent move(QEvent::MouseMove, QPointF(to, 5), header->viewport()->mapToGlobal(QPointF(to, 5)),
            Qt::NoButton, Qt::LeftButton, {});
        QApplication::sendEvent(header->viewport(), &move);
        QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, QPoint(to, 5));
    };
    drag(52, 82);
    EXPECT_EQ(grid.ColWidth(0), 83 * 15);
    drag(82, 0);
    EXPECT_EQ(grid.ColWidth(0), 0) << "dragged shut";
    grid.SetColWidth(0, 600);
    EXPECT_EQ(grid.columnWidth(0), 40);
    EXPECT_FALSE(grid.isColumnHidden(0));

    QSignalSpy resized(&grid, &FlexGrid::Resized);
    grid.resize(700, 300);
    EXPECT_EQ(resized.size(), 1);
    EXPECT_EQ(grid.ColWidth(0), 600);
    EXPECT_EQ(grid.WidthInTwips(), 10500);
    grid.SetColWidth(2, 0);
    Fill(4);
    EXPECT_EQ(grid.ColWidth(0), 600) << "a fill keeps the widths";
    EXPECT_EQ(grid.ColWidth(2), 0);
}

TEST_F(Grid, AClickOnATitleLeavesTheCurrentRowAlone)
{
    Fill(5);
    grid.SelectRow(3);
    Shown(&grid);
    QSignalSpy click(&grid, &FlexGrid::Click), dblClick(&grid, &FlexGrid::DblClick);
    ClickTitle(&grid, 2);
    EXPECT_EQ(click.size(), 1);
    EXPECT_EQ(std::make_pair(grid.MouseRow(), grid.MouseCol()), std::make_pair(0, 2));
    EXPECT_EQ(std::make_tuple(grid.Row(), grid.Col(), grid.ColSel()), std::make_tuple(3, 0, 2));
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);

    QHeaderView* header = grid.horizontalHeader();
    QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, QPoint(header->sectionViewportPosition(1) + 40, 5));
    EXPECT_EQ(dblClick.size(), 1);
    EXPECT_EQ(grid.MouseRow(), 0);
    EXPECT_EQ(grid.Row(), 3);
}

TEST_F(Grid, ClicksOnRowsSelectAndDoubleClicksOpen)
{
    Fill(50);
    Shown(&grid);
    EXPECT_EQ(grid.Row(), 0) << "showing and focusing a list selects nothing";
    QStringList events;
    QObject::connect(&grid, &FlexGrid::Click, &grid, [&] { events << QString("click %1").arg(grid.MouseRow()); });
    QObject::connect(
        &grid, &FlexGrid::DblClick, &grid, [&] { events << QString("open %1").arg(grid.RowData(grid.Row())); });
    ClickRow(&grid, 3);
    EXPECT_EQ(grid.Row(), 3);
    EXPECT_EQ(grid.ColSel(), 2);
    DoubleClickRow(&grid, 40);
    EXPECT_EQ(events, QStringList({"click 3", "click 40", "open 400"}));

    // Ctrl takes no row out of the selection, and below the last row there is nothing to pick.
    QTest::mouseClick(
        grid.viewport(), Qt::LeftButton, Qt::ControlModifier, grid.visualRect(grid.currentIndex()).center());
    EXPECT_EQ(grid.selectionModel()->selectedRows().size(), 1);
    Fill(1);
    grid.SelectRow(1);
    events.clear();
    QTest::mouseDClick(grid.viewport(), Qt::LeftButton, {}, QPoint(20, grid.viewport()->height() - 5));
    EXPECT_EQ(events, QStringList());
    EXPECT_EQ(grid.CurrentRowData(), 10);
}

TEST_F(Grid, KeysMoveOverTheRows)
{
    Fill(100);
    Shown(&grid);
    Press(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 1);
    Press(&grid, Qt::Key_Down);
    EXPECT_EQ(grid.Row(), 2);
    Press(&grid, Qt::Key_End);
    EXPECT_EQ(grid.Row(), 100);
    EXPECT_TRUE(grid.RowIsVisible(100));
    EXPECT_FALSE(grid.RowIsVisible(1));
    Press(&grid, Qt::Key_PageUp);
    EXPECT_LT(grid.Row(), 99);
    EXPECT_GT(grid.Row(), 50);
    Press(&grid, Qt::Key_Home);
    EXPECT_EQ(grid.Row(), 1);
    grid.SetTopRow(60);
    EXPECT_EQ(grid.TopRow(), 60);
}

TEST_F(Grid, EnterOpensTheRowAndNotTheDefaultButton)
{
    Form form("frmTest", "Test", nullptr);
    auto* list = new FlexGrid;
    auto* ok = new QPushButton("OK");
    form.setLayout(column({list, ok}));
    SetDefaultButton(ok, true);
    QSignalSpy opened(list, &FlexGrid::DblClick), accepted(ok, &QPushButton::clicked);
    Shown(&form);

    Press(list, Qt::Key_Return);
    EXPECT_EQ(opened.size(), 1);
    EXPECT_EQ(list->MouseRow(), 0) << "no rows";
    list->SetRows(4);
    list->SelectRow(2);
    Press(list, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(opened.size(), 2);
    EXPECT_EQ(list->MouseRow(), 2);
    EXPECT_EQ(accepted.size(), 0);
    Tab();
    EXPECT_TRUE(ok->hasFocus()) << "Tab leaves the list";
}

TEST_F(Grid, TitlesAndColumnsAlignEachByThemselves)
{
    Fill(1);
    grid.SetTextMatrix(1, 2, "$12.50");
    grid.SetTitle(1, "Price", CellAlign::RightCenter);
    grid.SetColAlignment(1, CellAlign::LeftCenter);
    const auto alignment = [&](int col) { return grid.model()->index(0, col).data(Qt::TextAlignmentRole).toInt(); };
    EXPECT_EQ(grid.model()->headerData(1, Qt::Horizontal, Qt::TextAlignmentRole).toInt(),
        int(Qt::AlignRight | Qt::AlignVCenter));
    EXPECT_EQ(alignment(1), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(alignment(0), int(Qt::AlignLeft | Qt::AlignVCenter));
    EXPECT_EQ(alignment(2), int(Qt::AlignRight | Qt::AlignVCenter)) << "numbers stand right where nothing is set";
}

class StylesCells : public CellDelegate {
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index); // NOLINT(bugprone-parent-virtual-call)
    }
};

TEST_F(Grid, CellsLookAsTheStyleDrawsThem)
{
    Fill(5);
    grid.SetColAlignment(1, CellAlign::CenterTop);
    grid.SetTextMatrix(3, 0, "the name of a supplier that takes more than its column has");
    grid.SetTextMatrix(4, 1, QString::fromUtf8("שלום 12 नमस्ते"));
    grid.SetTextMatrix(1, 2, "$12.50");
    // The same text with another alignment, then with less room.
    grid.SetTextMatrix(2, 2, "street");
    Shown(&grid);
    grid.SelectRow(2);
    grid.ShowTinted(4);
    StylesCells styles;
    QAbstractItemDelegate* own = grid.itemDelegate();
    for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft})
        for (const bool isEnabled : {true, false}) {
            grid.setLayoutDirection(direction);
            grid.setEnabled(isEnabled);
            grid.SetColWidth(2, isEnabled ? 1500 : 300);
            grid.setFont(QFont("sans", isEnabled ? 9 : 12));
            grid.resize(isEnabled ? 400 : 180, isEnabled ? 200 : 110);
            grid.horizontalScrollBar()->setValue(25);
            grid.verticalScrollBar()->setValue(2);
            const QImage picture = grid.grab().toImage();
            grid.setItemDelegate(&styles);
            grid.setGridStyle(Qt::SolidLine);
            EXPECT_EQ(picture, grid.grab().toImage()) << direction << isEnabled;
            grid.setItemDelegate(own);
            grid.setGridStyle(Qt::NoPen);
        }
}

TEST_F(Grid, TheTitleByWhichItIsSortedBearsAnArrowAndOneTooWideShowsItsStart)
{
    Shown(&grid);
    const auto picture = [this](int sorted, const QString& title) {
        grid.ShowSorted(sorted);
        grid.SetTitle(0, title, CellAlign::CenterTop);
        return grid.horizontalHeader()->grab().toImage();
    };
    EXPECT_NE(picture(1, "Name"), picture(-1, "Name"));
    EXPECT_NE(picture(1, "Name"), picture(2, "Name"));
    EXPECT_NE(picture(-1, "A wholesale customers of the north"), picture(-1, "W wholesale customers of the north"));
}

TEST_F(Grid, ADoubleClickOnABorderFitsTheColumnAndACutTitleIsToldInFull)
{
    Fill(3);
    grid.SetTextMatrix(2, 0, "the name of a supplier that takes more than its column has");
    grid.SetTitle(1, "Wholesale & <b>export</b> price list", CellAlign::CenterTop);
    Shown(&grid);
    QWidget* titles = grid.horizontalHeader()->viewport();
    QTest::mouseDClick(titles, Qt::LeftButton, {}, QPoint(grid.columnWidth(0) - 1, 5));
    EXPECT_GE(grid.columnWidth(0), grid.fontMetrics().horizontalAdvance(grid.TextMatrix(2, 0)));
    const auto tipOf = [&](int col) {
        const QPoint spot(grid.horizontalHeader()->sectionViewportPosition(col) + 5, 5);
        QHelpEvent hover(QEvent::ToolTip, spot, titles->mapToGlobal(spot));
        QApplication::sendEvent(titles, &hover);
        return QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText();
    };
    EXPECT_EQ(tipOf(0), "");
    EXPECT_EQ(tipOf(1), "Wholesale & <b>export</b> price list");
}

TEST_F(Grid, AHundredThousandRowsAreOneResetAndAMomentsWork)
{
    grid.SetCols(5);
    Shown(&grid);
    QSignalSpy reset(grid.model(), &QAbstractItemModel::modelReset);
    QElapsedTimer timer;
    timer.start();
    {
        GridFill fill(&grid);
        for (int row = 0; row < 100000; ++row) {
            for (int col = 0; col < 5; ++col)
                fill.Add(std::string_view("Hexagon screw M4 x 20"));
            fill.EndRow(row);
        }
    }
    grid.SelectRow(100000);
    QApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 2000) << "generous for slow builds; the fill itself takes some 20 ms";
    EXPECT_EQ(reset.size(), 1);
    EXPECT_TRUE(grid.RowIsVisible(100000));
}

} // namespace
