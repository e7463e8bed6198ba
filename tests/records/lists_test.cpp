#include "records/lists.h"

#include "base/runtime_error.h"
#include "base/settings_store.h"
#include "support/screen.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

namespace {

class Lists : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        grid.setObjectName("gVendors");
        SetUpColumns(&grid, {{"Name", 800, CellAlign::CenterTop}, {"Id", 1600, CellAlign::LeftCenter}}, 0);
    }

    /// Fills the grid with the price lists but the one that `leaveOut` names.
    void Load(int row, qint64 selectId, const QString& leaveOut = {})
    {
        LoadList(&grid, Ordered("SELECT id, name FROM PriceList ", &grid, "ORDER BY name"), row, selectId,
            [&](const Recordset& rs, GridFill& fill) -> std::optional<qint64> {
                if (NullToText(rs["name"]) == leaveOut)
                    return std::nullopt;
                fill.Add(rs.Text(1));
                fill.Add(QString::number(rs.Long(0)));
                return rs.Long(0);
            });
    }

    FlexGrid grid;
};

TEST_F(Lists, AFillShowsRowsInOrderWithTheirIds)
{
    const qint64 trade = PriceListRow("Trade");
    const qint64 antique = PriceListRow("antique");

    Load(1, 0);

    EXPECT_EQ(GridRows(&grid),
        (QList<QStringList>{
            {"antique", QString::number(antique)}, {"Sale Price", "1"}, {"Trade", QString::number(trade)}}));
    EXPECT_EQ(grid.RowData(0), 0);
    EXPECT_EQ(grid.RowData(3), trade);
    EXPECT_EQ(grid.Row(), 1);
    EXPECT_EQ(grid.ColSel(), 1);
}

TEST_F(Lists, TheRowLookedForIsSelectedAndARowPastTheEndFallsBackToTheLast)
{
    const qint64 trade = PriceListRow("Trade");
    Load(1, trade);
    EXPECT_EQ(grid.CurrentRowData(), trade);
    Load(7, 0);
    EXPECT_EQ(grid.Row(), 2);

    Load(2, 0, "Sale Price");
    EXPECT_EQ(grid.Row(), 1) << "a row left out does not count";
    EXPECT_EQ(grid.TextMatrix(1, 0), "Trade");

    Run("DELETE FROM PriceList");
    Load(1, 5);
    EXPECT_EQ(grid.Row(), 0) << "an empty list leaves the title row";
    EXPECT_EQ(grid.CurrentRowData(), 0);
}

TEST_F(Lists, AFailingStatementLeavesTheGridPainting)
{
    EXPECT_THROW(LoadList(&grid, Sql("SELECT id FROM nowhere"), 1, 0,
                     [](const Recordset&, GridFill&) -> std::optional<qint64> { return std::nullopt; }),
        RuntimeError);
    EXPECT_TRUE(grid.updatesEnabled());
}

TEST_F(Lists, ATitleClickSortsUpwardsAndAColumnWithoutAnEntryOnlyRefills)
{
    PriceListRow("Antique");
    Shown(&grid);
    int reloads = 0;
    QObject::connect(&grid, &FlexGrid::Click, &grid, [&] {
        SortOnTitleClick(&grid, {"id"}, [&] {
            ++reloads;
            Load(grid.Row(), 0);
        });
    });
    Load(1, 0);

    ClickTitle(&grid, 0);
    EXPECT_EQ(grid.TextMatrix(1, 0), "Sale Price");
    ClickTitle(&grid, 1);
    EXPECT_EQ(grid.Tag(), "id");
    EXPECT_EQ(reloads, 2);
    ClickRow(&grid, 2);
    EXPECT_EQ(reloads, 2);
    EXPECT_EQ(grid.Row(), 2);
}

TEST_F(Lists, WidthsComeBackUnlessTheyAreNoWidths)
{
    grid.SetColWidth(0, 1500);
    grid.SetColWidth(1, 0);
    SaveGridColumnWidths(&grid);
    EXPECT_EQ(GetConfig("gVendorsColWidth0", ""), "1500");
    EXPECT_EQ(GetConfig("gVendorsColWidth1", ""), "0");

    grid.SetColWidth(0, 900);
    grid.SetColWidth(1, 900);
    RestoreGridColumnWidths(&grid);
    EXPECT_EQ(grid.ColWidth(0), 1500);
    EXPECT_EQ(grid.ColWidth(1), 900);
    for (const char* odd : {"", "-1", "-30", "wide", "99999999999999", "1e300"}) {
        SaveConfig("gVendorsColWidth1", odd);
        RestoreGridColumnWidths(&grid);
        EXPECT_EQ(grid.ColWidth(1), 900) << odd;
    }
}

TEST_F(Lists, TheStretchColumnTakesWhatTheOthersAndTheMarginLeave)
{
    grid.resize(400, 200); // 6000 twips
    grid.SetColWidth(1, 1600);
    StretchColumn(&grid, 0, 400);
    EXPECT_EQ(grid.ColWidth(0), 6000 - 1600 - 400);

    grid.SetColWidth(1, 5900);
    StretchColumn(&grid, 0, 400);
    EXPECT_EQ(grid.ColWidth(0), 4000) << "a rest within the margin leaves the column";
}

TEST_F(Lists, SetUpFillsTheGridExactly)
{
    FlexGrid wide;
    wide.resize(400, 200);
    SetUpColumns(&wide, {{"A", 800, CellAlign::CenterTop}, {"B", 1600, CellAlign::CenterTop}}, 1);
    EXPECT_EQ(wide.ColWidth(0), 800);
    EXPECT_EQ(wide.ColWidth(1), 5200);
}

TEST_F(Lists, AComboFilledFromAStatementSelectsNothing)
{
    PriceListRow("Änne's");
    ComboBox combo;
    FillPriceLists(&combo);
    EXPECT_EQ(combo.ListCount(), 2);
    EXPECT_EQ(combo.ListIndex(), -1);
    EXPECT_EQ(combo.List(0), "Änne's");
    EXPECT_EQ(combo.ItemData(1), 1);
}

} // namespace
