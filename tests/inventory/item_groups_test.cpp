#include "inventory/item_group_form.h"
#include "inventory/item_groups.h"
#include "inventory_test.h"

namespace {

class ItemGroupsTest : public PanelTest<ItemGroups> {
protected:
    void OpenList()
    {
        panel->RefreshItemGroupList(1, 0);
        ShowPanel();
    }
    void OpenForm(qint32 group)
    {
        frmItemGroup::gEditItemGroupId = group;
        form = std::make_unique<frmItemGroup>(nullptr);
        Shown(form.get());
    }
    int Group(const QString& name, const QList<int>& items)
    {
        Run(QString("INSERT INTO itemgroup (name) VALUES ('%1')").arg(name));
        const int id = Single("SELECT MAX(id) FROM itemgroup").toInt();
        for (const int item : items)
            Run(QString("INSERT INTO itemgroup_item (itemgroupid, ItemID) VALUES (%1, %2)").arg(id).arg(item));
        return id;
    }
    /// "group:item" in the order of the rows.
    QString Members() const
    {
        return Single("SELECT group_concat(itemgroupid || ':' || ItemID, ' ') FROM itemgroup_item");
    }
    static QString Member(int group, int item) { return QString("%1:%2").arg(group).arg(item); }

    std::unique_ptr<frmItemGroup> form;
};

TEST_F(ItemGroupsTest, ANewGroupIsStoredWithItsMembersOnOkAlone)
{
    const int saw = Item("Saw").Add();
    const int drill = Item("Drill").Add();
    OpenForm(NewRow);
    CheckForm(*form);
    EXPECT_EQ(form->cboItems->Text(), "Drill");
    Type(form->txtName, "Builder's kit");
    Click(form->cmdAdd);
    Pick(form->cboItems, "Saw");
    Click(form->cmdAdd);
    Click(form->cmdAdd);
    EXPECT_EQ(GridRows(form->gItems), Table({{"Drill"}, {"Saw"}, {"Saw"}}));
    EXPECT_EQ(form->gItems->Row(), 3);
    EXPECT_EQ(Count("itemgroup_item") + Count("itemgroup"), 0);

    Click(form->cmdOk);
    const int group = frmItemGroup::gEditItemGroupId;
    EXPECT_EQ(Rows("SELECT id, name FROM itemgroup"), Table({{QString::number(group), "Builder's kit"}}));
    EXPECT_EQ(Members(), QStringList({Member(group, drill), Member(group, saw), Member(group, saw)}).join(' '));
}

TEST_F(ItemGroupsTest, RemovingMovesTheRestUpAndSelectsTheLast)
{
    const int group = Group("Kit", {Item("A").Add(), Item("B").Add(), Item("C").Add()});
    OpenForm(group);
    ClickRow(form->gItems, 1);
    Click(form->cmdRemove);
    EXPECT_EQ(GridRows(form->gItems), Table({{"B"}, {"C"}}));
    EXPECT_EQ(form->gItems->Row(), 2);
    Press(form->gItems, Qt::Key_Delete);
    Click(form->cmdRemove);
    EXPECT_EQ(form->gItems->Row(), 0);
    answers.ExpectMessage("No item has been selected. Please select an item to remove and try again.", Icon::Critical);
    Click(form->cmdRemove);
    Click(form->cmdCancel);
    EXPECT_EQ(Count("itemgroup_item"), 3) << "Cancel writes nothing";
}

TEST_F(ItemGroupsTest, AGroupOfDeletedItemsIsEmptiedByOkAndOnlyThenDeleted)
{
    const int other = Group("Other", {Item("Saw").Add()});
    Group("kit", {998, 999});
    OpenList();
    WhenFormShows<frmItemGroup>([](frmItemGroup& shown) {
        EXPECT_EQ(shown.txtName->text(), "kit");
        EXPECT_EQ(shown.gItems->Rows(), 1);
        Type(shown.txtName, "O'Kit");
        Click(shown.cmdOk);
    });
    DoubleClickRow(panel->gItemGroups, 1);
    EXPECT_EQ(Members(), Member(other, 1));
    EXPECT_EQ(GridRows(panel->gItemGroups), Table({{"O'Kit"}, {"Other"}}));
    answers.Expect("Delete Item Group?", Answer::Yes);
    Click(panel->cmdItemGroupDelete);
    EXPECT_EQ(GridRows(panel->gItemGroups), Table({{"Other"}}));
}

TEST_F(ItemGroupsTest, EnterInTheListOfItemsAddsTheItemAndElsewhereSavesAlsoForGroupZero)
{
    const int saw = Item("Saw").Add();
    OpenForm(0);
    Press(form->cboItems, Qt::Key_Return);
    EXPECT_EQ(GridRows(form->gItems), Table({{"Saw"}}));
    EXPECT_TRUE(form->isVisible());
    Press(form->txtName, Qt::Key_Return);
    EXPECT_EQ(Count("itemgroup"), 0) << "zero is no group";
    EXPECT_EQ(Members(), Member(0, saw));
}

} // namespace
