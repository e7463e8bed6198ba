#include "parties/vendor_record.h"
#include "parties/vendors_panel.h"
#include "parties_test.h"

namespace {

class VendorsPanelTest : public DatabaseTest {
protected:
    void Show()
    {
        panel.resize(900, 500);
        Shown(&panel);
        panel.RefreshVendorList(1, 0);
    }
    QStringList Names() const { return FirstColumn(panel.gVendors); }

    VendorsPanel panel;
    ScriptedAnswers answers;
};

} // namespace

TEST_F(VendorsPanelTest, LeavesOutTheRowThatStandsForNoVendor)
{
    const int tools = VendorRow("Tools 'R' Here");
    Show();
    EXPECT_EQ(Names(), QStringList{"Tools 'R' Here"});
    EXPECT_EQ(panel.gVendors->CurrentRowData(), tools);
}

TEST_F(VendorsPanelTest, TitlesSortTheList)
{
    Run("INSERT INTO vendor (BusinessName, ContactName, Phone) VALUES ('Bolts', 'Ann', '3'), ('Axes', 'Zoe', '1'), "
        "('Cords', NULL, '2')");
    Show();
    const QStringList orders[] = {{"Axes", "Bolts", "Cords"}, {"Cords", "Bolts", "Axes"}, {"Axes", "Cords", "Bolts"}};
    for (const int col : {1, 2, 0}) {
        ClickTitle(panel.gVendors, col);
        EXPECT_EQ(Names(), orders[col]);
    }
}

TEST_F(VendorsPanelTest, AVendorOfItemsStaysAndOthersGoOnYes)
{
    const int axes = VendorRow("Axes");
    VendorRow("Bolts");
    Item("Hatchet").Vendor(axes).Add();
    Show();
    CheckScreen(&panel, panel.Controls(), {});
    answers.ExpectMessage("This vendor has existing items and cannot be deleted. To delete this vendor first delete "
                          "all items they supply.",
        Icon::Critical, "Cannot delete vendor.");
    Click(panel.cmdVendorDelete);
    ClickRow(panel.gVendors, 2);
    answers.Expect("Delete vendor?", Icon::Question, Buttons::YesNo, Answer::No);
    Click(panel.cmdVendorDelete);
    EXPECT_EQ(Names(), QStringList({"Axes", "Bolts"}));
    answers.Expect("Delete vendor?", Answer::Yes);
    Click(panel.cmdVendorDelete);
    EXPECT_EQ(Names(), QStringList({"Axes"}));
    EXPECT_EQ(panel.gVendors->Row(), 1);
}

TEST_F(VendorsPanelTest, OnlyMinusOneIsRefusedAndAnEmptyListOpensAnEmptyRecord)
{
    Show();
    Click(panel.cmdVendorDelete);
    WhenFormShows<frmVendor>([](frmVendor& form) {
        EXPECT_EQ(gEditVendorId, 0);
        Type(form.txtBusinessName, "Axes");
        Press(form.txtBusinessName, Qt::Key_Return);
    });
    Click(panel.cmdVendorEdit);
    EXPECT_EQ(Count("vendor"), 1) << "the update hits no row";

    WhenFormShows<frmVendor>([](frmVendor& form) { Click(form.cmdOk); });
    Click(panel.cmdVendorNew);
    EXPECT_EQ(GridRows(panel.gVendors), QList<QStringList>({{"", "", ""}}));
    panel.gVendors->SetRowData(1, -1);
    answers.ExpectMessage(
        "No vendor has been selected. Select a vendor from the list and try again.", Icon::Information);
    DoubleClickRow(panel.gVendors, 1);
}
