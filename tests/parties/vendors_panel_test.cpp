#include "parties/vendors_panel.h"
#include "support/screen.h"
#include "support/temporary_database.h"

namespace {

class VendorsPanelTest : public DatabaseTest {
protected:
    static void Show(VendorsPanel& panel)
    {
        panel.resize(900, 500);
        Shown(&panel);
        panel.RefreshVendorList(1, 0);
    }

    static QStringList Names(const VendorsPanel& panel)
    {
        QStringList names;
        for (const QStringList& row : GridRows(panel.gVendors))
            names.append(row.first());
        return names;
    }
};

} // namespace

TEST_F(VendorsPanelTest, LeavesOutTheRowThatStandsForNoVendor)
{
    const int tools = VendorRow("Tools 'R' Here");
    VendorsPanel panel;
    Show(panel);
    EXPECT_EQ(Names(panel), QStringList{"Tools 'R' Here"});
    EXPECT_EQ(panel.gVendors->CurrentRowData(), tools);
}

TEST_F(VendorsPanelTest, TitlesSortTheList)
{
    const int bolts = VendorRow("Bolts");
    const int axes = VendorRow("Axes");
    const int cords = VendorRow("Cords");
    Run(QStringLiteral("UPDATE vendor SET ContactName = 'Zoe', Phone = '1' WHERE id = %1").arg(axes));
    Run(QStringLiteral("UPDATE vendor SET ContactName = 'Ann', Phone = '3' WHERE id = %1").arg(bolts));
    Run(QStringLiteral("UPDATE vendor SET ContactName = NULL, Phone = '2' WHERE id = %1").arg(cords));
    VendorsPanel panel;
    Show(panel);
    EXPECT_EQ(Names(panel), QStringList({"Axes", "Bolts", "Cords"}));
    ClickTitle(panel.gVendors, 1);
    EXPECT_EQ(Names(panel), QStringList({"Cords", "Bolts", "Axes"}));
    ClickTitle(panel.gVendors, 2);
    EXPECT_EQ(Names(panel), QStringList({"Axes", "Cords", "Bolts"}));
    ClickTitle(panel.gVendors, 0);
    EXPECT_EQ(Names(panel), QStringList({"Axes", "Bolts", "Cords"}));
}
