#include "records/data_environment.h"
#include "reports/reorder_filter.h"
#include "reports/stock_reports.h"
#include "support/test.h"

namespace {
class StockReports : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        CurrentPrinter().setPageSize(QPageSize(QPageSize::A4));
        m_bolts = VendorRow("Bolts & Co");
        m_shelf = LocationRow(WarehouseRow("Back store"), "Shelf 3");
        m_screw = Item("Screw").Number("B2").Stock(3).ReorderLevel(10).MinStockLevel(7).Vendor(m_bolts).Add();
        Item("Nut").Number("C3").Stock(10).ReorderLevel(10).MinStockLevel(99).Add();
        Item("Anchor").Number("D4").Stock(-2).ReorderLevel(0.5).Location(m_shelf).Add();
        Item("Orphan").Number("A1").Stock(0).ReorderLevel(5).Vendor(9999).Add();
    }
    static QStringList Names(PreviewWindow* preview)
    {
        QStringList names;
        const ReportPage page = preview->Layout().Page(0);
        for (const ReportItem& item : page.items)
            if (item.control->name == "txtName")
                names.append(item.lines[0].text);
        return names;
    }
    /// Answers the filter form and returns the names of the report that opens.
    QStringList Filtered(const std::function<void(frmReorderReportFilter&)>& choose)
    {
        ClosePreviews();
        WhenFormShows<frmReorderReportFilter>([choose](frmReorderReportFilter& form) {
            choose(form);
            Click(form.cmdDisplay);
        });
        ShowFilteredReorderReport(nullptr);
        EXPECT_EQ(Previews().size(), 1);
        return Names(Previews().last());
    }

    int m_bolts, m_shelf, m_screw;
};
} // namespace

TEST_F(StockReports, ListItemsBelowTheirReorderLevelOrEveryItemWithAVendorByName)
{
    const Report reorder = PrepareReorderReport();
    ExpectGolden(ReportText(reorder), "reorder.txt");
    EXPECT_EQ(reorder.margins.left, 720);
    EXPECT_EQ(reorder.width, 11906 - 1441);
    const Report level = PrepareStockLevelReport();
    ExpectGolden(ReportText(level), "stock_level.txt");
    EXPECT_EQ(level.margins.left, 1440);
}

TEST_F(StockReports, AReportThatIsOpenedAgainShowsCurrentStock)
{
    ShowReorderReport();
    ShowReorderReport();
    gConnection->Execute("UPDATE item SET noinstock = 50 WHERE name = 'Screw'");
    ShowReorderReport();
    ASSERT_EQ(Previews().size(), 3);
    QList<qsizetype> counts;
    for (PreviewWindow* preview : Previews())
        counts.append(Names(preview).size());
    std::sort(counts.begin(), counts.end());
    EXPECT_EQ(counts, QList<qsizetype>({1, 2, 2}));
}

TEST_F(StockReports, EachFilterNarrowsTheReport)
{
    EXPECT_EQ(Filtered([](frmReorderReportFilter&) {}), QStringList({"Anchor", "Screw"}));
    EXPECT_EQ(frmReorderReportFilter::ReorderFilterValue, "-1");
    EXPECT_EQ(
        Filtered([](frmReorderReportFilter& form) { Pick(form.cboSort, "Number"); }), QStringList({"Screw", "Anchor"}));
    EXPECT_EQ(Filtered([](frmReorderReportFilter& form) { Click(form.optFilter_1); }), QStringList("Screw"));
    EXPECT_EQ(frmReorderReportFilter::ReorderFilterValue, QString::number(m_bolts));
    EXPECT_EQ(Filtered([](frmReorderReportFilter& form) {
        Click(form.optFilter_2);
        Pick(form.cboItem, "Nut");
    }),
        QStringList())
        << "at its reorder level";
    EXPECT_EQ(Filtered([](frmReorderReportFilter& form) { Click(form.optFilter_3); }), QStringList("Anchor"));
    EXPECT_EQ(frmReorderReportFilter::ReorderFilterKind, 3);
    EXPECT_FALSE(DataEnvironment().IsOpen("repFilteredReorder"));
}

TEST_F(StockReports, TheFilterFormEnablesTheListOfTheChosenOptionAndNoOptionWithoutEntries)
{
    WhenFormShows<frmReorderReportFilter>([this](frmReorderReportFilter& form) {
        CheckForm(form);
        EXPECT_EQ(Entries(form.cboVendor), QStringList("Bolts & Co"));
        EXPECT_EQ(Entries(form.cboItem), QStringList({"Anchor", "Nut", "Orphan", "Screw"}));
        EXPECT_EQ(Entries(form.cboSort), QStringList({"Name", "Number"}));
        EXPECT_EQ(form.cboVendor->SelectedData(), m_bolts);
        const QList<ComboBox*> lists{form.cboVendor, form.cboItem, form.cboItemLocation};
        const std::pair<QRadioButton*, ComboBox*> filters[] = {{form.optFilter_1, form.cboVendor},
            {form.optFilter_2, form.cboItem}, {form.optFilter_3, form.cboItemLocation}, {form.optFilter_0, nullptr}};
        for (const auto& [option, list] : filters) {
            Click(option);
            for (const ComboBox* other : lists)
                EXPECT_EQ(other->isEnabled(), other == list);
        }
        Click(form.cmdCancel);
    });
    ShowFilteredReorderReport(nullptr);
    EXPECT_FALSE(frmReorderReportFilter::ReorderFilterConfirmed);
    EXPECT_EQ(Previews().size(), 0);

    Run("DELETE FROM vendor WHERE id <> 1");
    WhenFormShows<frmReorderReportFilter>([](frmReorderReportFilter& form) {
        EXPECT_FALSE(form.optFilter_1->isEnabled());
        EXPECT_EQ(form.cboVendor->ListCount(), 0);
        EXPECT_TRUE(form.optFilter_2->isEnabled());
        Press(form.optFilter_0, Qt::Key_Escape);
    });
    ShowFilteredReorderReport(nullptr);
}
