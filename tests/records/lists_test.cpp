#include "records/lists.h"
#include "records/record_list.h"
#include "support/test.h"

namespace {

class Lists : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        list.setObjectName("gVendors");
        list.resize(100, 200);
        list.SetColumns({
            {"name", "Name", 800, CellAlign::CenterTop, CellAlign::LeftCenter, DefaultOrder, Spare::AtResize},
            {"id", "Id", 1600, CellAlign::LeftCenter, CellAlign::RightCenter, NoOrder, Spare::No,
                [](const Recordset& row, int id, GridFill& fill) { fill.Add(QString::number(row.Long(id))); }},
        });
    }

    /// Fills the list with the price lists but the one that `leaveOut` names.
    void Load(int row, qint64 selectId, const QString& leaveOut = {})
    {
        list.LoadSome(
            list.Ordered("SELECT id, name FROM PriceList ", "ORDER BY name"), row, selectId,
            [&](const Recordset& rs) { return NullToText(rs["name"]) != leaveOut; }, leaveOut);
    }

    RecordList list;
};

TEST_F(Lists, TheRowLookedForIsSelectedAndARowPastTheEndFallsBackToTheLast)
{
    const qint64 trade = PriceListRow("Trade");
    Load(1, trade);
    EXPECT_EQ(list.CurrentRowData(), trade);
    Load(7, 0);
    EXPECT_EQ(list.Row(), 2);

    Load(2, 0, "Sale Price");
    EXPECT_EQ(list.Row(), 1) << "a row left out does not count";
    EXPECT_EQ(list.TextMatrix(1, 0), "Trade");

    Run("DELETE FROM PriceList");
    Load(1, 5);
    EXPECT_EQ(list.Row(), 0) << "an empty list leaves the title row";
    EXPECT_EQ(list.CurrentRowData(), 0);
    EXPECT_THROW(list.Load(Sql("SELECT id FROM nowhere"), 1, 0), RuntimeError);
    EXPECT_TRUE(list.updatesEnabled()) << "a failing statement leaves the grid painting";
}

TEST_F(Lists, AReloadReadsOnlyWhatMayHaveChanged)
{
    const qint64 trade = PriceListRow("Trade");
    int fills = 0;
    QObject::connect(list.model(), &QAbstractItemModel::modelReset, [&fills] { ++fills; });
    const auto load = [&](const QString& leaveOut = {}, qint64 selectId = 0) {
        fills = 0;
        Load(1, selectId, leaveOut);
        return fills > 0;
    };
    EXPECT_TRUE(load());
    EXPECT_FALSE(load({}, trade));
    EXPECT_EQ(list.CurrentRowData(), trade);
    EXPECT_TRUE(load("Trade")) << "another choice of rows";
    gConnection->Execute("UPDATE PriceList SET name = 'Retail' WHERE name = 'Trade'");
    EXPECT_TRUE(load("Trade")) << "written by the program";
    Run("UPDATE PriceList SET name = 'Trade' WHERE name = 'Retail'");
    EXPECT_TRUE(load("Trade")) << "written by another program";
    list.SetTextMatrix(1, 0, "typed over");
    EXPECT_TRUE(load("Trade"));
    list.SetTag("id");
    EXPECT_TRUE(load("Trade")) << "in another order";
    SetRegional(QLocale("de_DE"));
    EXPECT_TRUE(load("Trade")) << "with other formats";
    EXPECT_FALSE(load("Trade"));
}

TEST_F(Lists, ATitleClickSortsUpwardsAndAColumnWithoutAnOrderOnlyRefills)
{
    PriceListRow("Antique");
    list.SetColumns({
        {"id", "Id", 800, CellAlign::LeftCenter, CellAlign::LeftCenter, "id"},
        {"name", "Name", 800, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder},
    });
    Shown(&list);
    int loads = 0;
    QObject::connect(&list, &RecordList::Sorted, &list, [&] {
        ++loads;
        Load(list.Row(), 0);
    });
    Load(1, 0);
    EXPECT_EQ(list.CellText(1, "name"), "Antique");

    ClickTitle(&list, 0);
    EXPECT_EQ(list.CellText(1, "name"), "Sale Price");
    ClickTitle(&list, 1);
    EXPECT_EQ(list.Tag(), "id");
    EXPECT_EQ(loads, 2);
    ClickRow(&list, 2);
    EXPECT_EQ(loads, 2);
    EXPECT_EQ(list.Row(), 2);

    list.SetColumns({{"name", "Name", 800, CellAlign::LeftCenter, CellAlign::LeftCenter, NoOrder}});
    ClickTitle(&list, 0);
    EXPECT_EQ(loads, 2) << "this list does not sort";
}

TEST_F(Lists, WidthsComeBackUnlessTheyAreNoWidths)
{
    list.SetColWidth(0, 1500);
    list.SetColWidth(1, 0);
    list.SaveWidths();
    EXPECT_EQ(GetConfig("gVendorsColWidth0", ""), "1500");
    EXPECT_EQ(GetConfig("gVendorsColWidth1", ""), "0");

    list.SetColWidth(0, 900);
    list.SetColWidth(1, 900);
    list.RestoreWidths();
    EXPECT_EQ(list.ColWidth(0), 1500);
    EXPECT_EQ(list.ColWidth(1), 900);
    for (const char* odd : {"", "-1", "-30", "wide", "99999999999999", "1e300"}) {
        SaveConfig("gVendorsColWidth1", odd);
        list.RestoreWidths();
        EXPECT_EQ(list.ColWidth(1), 900) << odd;
    }
}

TEST_F(Lists, AFoundRowOutOfViewComesToTheTopWhereTheListSaysSo)
{
    Run("INSERT INTO PriceList (name) WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 200) "
        "SELECT printf('List %03d', x) FROM n");
    Shown(&list);
    const qint64 far = Single("SELECT id FROM PriceList WHERE name = 'List 100'").toLongLong();
    Load(1, far);
    EXPECT_NE(list.TopRow(), list.Row()) << "at the nearest edge";
    Load(1, 0);
    list.ShowFoundRowOnTop();
    Load(1, far);
    EXPECT_EQ(list.TopRow(), list.Row());
    Load(1, 0);
    list.SelectRecord(1, far);
    EXPECT_EQ(list.TopRow(), list.Row());
    Load(list.Row() + 1, 0);
    EXPECT_EQ(list.TopRow(), list.Row() - 1) << "in view already";
}

} // namespace
