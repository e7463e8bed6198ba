#include "reports/reports_panel.h"
#include "support/test.h"

namespace {

class ReportsView : public PanelTest<ReportsPanel> {
protected:
    QString Text(const char* label) const { return panel->findChild<QLabel*>(QLatin1String(label))->text(); }
    QStringList Figures() const
    {
        QStringList figures;
        for (const char* name : {"lblTotalResToday", "lblMostResDate", "lblLeastResDate", "lblMostPopMonth",
                 "lblLeastPopMonth", "lblRecCust", "lblResThisMonth", "lblResThisMonthYTD", "lblTotRes"})
            figures.append(Text(name));
        return figures;
    }
    QString Week() const
    {
        QStringList week;
        for (const QLabel* day : panel->Frame2->lblGuestDOW)
            week.append(day->text());
        return week.join(u' ');
    }
    /// The values of the last row of the graph, this month's.
    QString LastRow() const
    {
        QStringList values;
        panel->c->SetRow(panel->c->RowCount());
        for (int column = 1; column <= panel->c->ColumnCount(); ++column) {
            panel->c->SetColumn(column);
            values.append(panel->c->Data());
        }
        return values.join(u' ');
    }
};

} // namespace

TEST_F(ReportsView, AnEmptyShopKeepsThePlaceholders)
{
    panel->Frame2->ShowWeekdays(WeekdayNames(), Regional().firstDayOfWeek());
    ShowPanel();
    const QLabel* monday = Find<QLabel>(panel, "lblLabels_53"); // the week of the United States starts on Sunday
    EXPECT_EQ(monday->text(), "Monday");
    EXPECT_EQ(monday->buddy(), panel->Frame2->lblGuestDOW[0]);
    EXPECT_EQ(monday->geometry().center().y(), panel->Frame2->lblGuestDOW[0]->geometry().center().y());
    EXPECT_EQ(Figures().join(u'|'), "0|1-Sep-2002|1-Sep-2002|Sep|Oct|Joe Bloggs|123|123|0");
    panel->SelectFirstGraph();
    panel->ShowReports();
    EXPECT_EQ(Figures().join(u'|'), "0|1-Sep-2002|1-Sep-2002|Sep|Oct|Joe Bloggs|0|0|0");
    EXPECT_EQ(Week(), "0 0 0 0 0 0 -") << "a Saturday";
    EXPECT_EQ(panel->cboReportFirstProduct->ListCount(), 0);
    EXPECT_EQ(panel->cboReportSecondProduct->ListIndex(), -1);
    for (const char* leftOver : {"lblMostCustsDate", "lblLeastCustsDate"}) {
        EXPECT_EQ(Text(leftOver), "1-Sep-2002");
        EXPECT_FALSE(Find<QLabel>(panel, leftOver)->isVisible());
    }
}

TEST_F(ReportsView, AFigureThatCannotBeTakenKeepsItsTextAndTheOthersGoOn)
{
    const int ann = Customer("Ann", "Lee").Add();
    Invoice(ann).Date(QDate(2026, 3, 11)).Add();
    Item("Screws").Add();
    ShowPanel();
    panel->SelectFirstGraph();
    panel->ShowReports();
    const QString before = "0|11-Mar-2026|11-Mar-2026|Mar|Mar|Ann Lee|1|0|1";
    EXPECT_EQ(Figures().join(u'|'), before);
    EXPECT_EQ(Week(), "0 0 1 0 0 0 -");

    Run("DELETE FROM customer");
    Invoice(ann).Date(QDate(2026, 3, 14)).Add();
    panel->ShowReports();
    EXPECT_EQ(Figures().join(u'|'), "1|11-Mar-2026|11-Mar-2026|Mar|Mar|Ann Lee|2|0|2");

    Run("ALTER TABLE invoice RENAME TO lost");
    panel->ShowReports();
    EXPECT_EQ(Figures().join(u'|'), "1|11-Mar-2026|11-Mar-2026|Mar|Mar|Ann Lee|2|0|2");
    EXPECT_EQ(panel->cboReportFirstProduct->Text(), "Screws");

    Run("ALTER TABLE lost RENAME TO invoice");
    Invoice(ann).Add();
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    panel->ShowReports();
    EXPECT_EQ(Week(), "- - - - - - -") << "with other day names the week is not known";
    EXPECT_EQ(Text("lblResThisMonth"), "3") << "the month's name goes into the statement in the user's language";
}

TEST_F(ReportsView, TheItemListsStartOnTheFirstTwoItems)
{
    ShowPanel();
    Item("Screws").Add();
    panel->ShowReports();
    EXPECT_EQ(panel->cboReportFirstProduct->Text(), "Screws");
    EXPECT_EQ(panel->cboReportSecondProduct->Text(), "Screws");
    Item("Anchors <b>").Add();
    panel->ShowReports();
    EXPECT_EQ(Entries(panel->cboReportFirstProduct), QStringList({"Anchors <b>", "Screws"}));
    EXPECT_EQ(Entries(panel->cboReportSecondProduct), QStringList({"Anchors <b>", "Screws"}));
    EXPECT_EQ(panel->cboReportFirstProduct->ListIndex(), 0);
    EXPECT_EQ(panel->cboReportSecondProduct->ListIndex(), 1);
    EXPECT_EQ(panel->cboReportSecondProduct->toolTip(), "Screws");
    EXPECT_TRUE(panel->cboReportFirstProduct->toolTip().contains("&lt;b&gt;")) << "no markup";
}

TEST_F(ReportsView, ComparedItemsStayOnTheScreen)
{
    ShowPanel();
    panel->SelectFirstGraph();
    EXPECT_EQ(panel->c->RowCount(), 31);
    EXPECT_FALSE(panel->picCompareProducts->isVisible());

    Pick(panel->cboGraphType, "Compare Item Sales!");
    EXPECT_TRUE(panel->picCompareProducts->isVisible());
    EXPECT_EQ(panel->c->RowCount(), 31) << "nothing to compare: the graph is what it was";

    const int screws = Item("Screws").Add();
    const int nuts = Item("Nuts").Add();
    const int invoice = Invoice(Customer("Ann", "Lee").Add()).Add();
    Line(invoice, screws, 3, "1");
    Line(invoice, nuts, 5, "1");
    panel->ShowReports();
    EXPECT_EQ(panel->c->RowCount(), 12);
    EXPECT_EQ(LastRow(), "5 3");
    Pick(panel->cboReportFirstProduct, "Screws");
    EXPECT_EQ(LastRow(), "3 3");
    EXPECT_EQ(panel->cboReportFirstProduct->toolTip(), "Screws");

    Pick(panel->cboGraphType, "Invoices per month");
    EXPECT_EQ(LastRow(), "1");
    EXPECT_TRUE(panel->picCompareProducts->isVisible());
    CheckScreen(panel, panel->Controls(), {});
}

TEST_F(ReportsView, AChoiceOfStyleTakesTheValuesAnew)
{
    ShowPanel();
    panel->SelectFirstGraph();
    Pick(panel->cboGraphType, "Invoices per month");
    EXPECT_EQ(LastRow(), "0");
    Invoice(Customer("Ann", "Lee").Add()).Add();
    EXPECT_EQ(LastRow(), "0");
    Pick(panel->cboGraphStyle, "2D Area");
    EXPECT_EQ(LastRow(), "1");
    EXPECT_EQ(panel->c->Type(), VtChChartType2dArea);
    EXPECT_FALSE(panel->c->ShowLegend());

    Run("ALTER TABLE invoice RENAME TO lost");
    const ExpectedEnd end;
    Pick(panel->cboGraphStyle, "3D Step");
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}
