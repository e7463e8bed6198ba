#include "inventory/add_price_list.h"
#include "inventory/multiple_pricing.h"
#include "inventory_test.h"

#include <QProgressBar>

namespace {

class PriceListsTest : public FormTest<frmMultiplePricing> {
protected:
    static std::function<void(frmAddPriceList&)> Naming(const QString& name)
    {
        return [name](frmAddPriceList& form) {
            Type(form.txtName, name);
            Press(form.txtName, Qt::Key_Return);
        };
    }
};

TEST_F(PriceListsTest, TheDefaultListIsKnownByItsIdWhateverItsName)
{
    PriceListRow("Sale Price");
    Run("UPDATE PriceList SET name = 'Wholesale' WHERE id = 1");
    Open();
    CheckForm(*form);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Sale Price", "Wholesale (Default)"}));
    EXPECT_EQ(form->lstItems->currentRow(), 0);

    form->lstItems->setCurrentRow(1);
    answers.ExpectMessage(
        "This is the default Price List and so cannot be deleted. However it can be renamed, to rename "
        "press the Edit button.",
        Icon::Critical);
    Click(form->cmdRemove);
    EXPECT_EQ(Count("PriceList"), 2);

    WhenFormShows<frmAddPriceList>([](frmAddPriceList& details) {
        CheckForm(details);
        EXPECT_EQ(details.txtName->text(), "Wholesale");
        Naming("O'Retail \"50%\"")(details);
    });
    Press(form->lstItems, Qt::Key_Return);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"O'Retail \"50%\" (Default)", "Sale Price"}));
}

TEST_F(PriceListsTest, ANewListGetsAPriceOfNothingForEveryItem)
{
    Item("Saw").Price("5").Add();
    Item("Drill").Price("7").Add();
    Open();
    const QString name = QString::fromUtf8(" O'Brien's  Ünïque ");
    WhenFormShows<frmAddPriceList>(Naming(name));
    Click(form->cmdAdd);

    EXPECT_EQ(Rows("SELECT l.name, i.name, p.Price = 0 FROM ItemPriceList p JOIN PriceList l ON l.id = p.PriceListID "
                   "JOIN item i ON i.id = p.ItemID WHERE l.id <> 1 ORDER BY i.name"),
        Table({{name, "Drill", "1"}, {name, "Saw", "1"}}));
}

/// Collects what progress bars show each time one is painted.
class PaintedProgress : public QObject {
public:
    PaintedProgress() { qApp->installEventFilter(this); }
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (auto* bar = qobject_cast<QProgressBar*>(watched); bar && event->type() == QEvent::Paint)
            values.append(bar->value());
        return false;
    }
    QList<int> values{0};
};

TEST_F(PriceListsTest, TheFanOutShowsHowFarItIs)
{
    Run("INSERT INTO item (name) WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 4500) "
        "SELECT 'Item' FROM n");
    frmAddPriceList::gEditPriceListId = NewRow;
    frmAddPriceList details(nullptr);
    Shown(&details);
    const PaintedProgress painted;
    Naming("Trade")(details);
    EXPECT_EQ(Count("ItemPriceList"), 4500);
    EXPECT_GE(painted.values.size(), 3);
    EXPECT_GT(painted.values.back(), 2000);
}

TEST_F(PriceListsTest, RemovingAsksAndTakesThePricesButNotTheCustomersChoice)
{
    const int trade = PriceListRow("Trade");
    Item("Saw").Price("Trade", "4").Add();
    Customer("Ann", "Lee").PriceList(trade).Add();
    Open();
    form->lstItems->setCurrentRow(1);
    const QString question =
        "All pricing for this Price List will be lost. Are you sure you want to delete this Price List?";
    for (const Answer answer : {Answer::No, Answer::Cancel}) {
        answers.Expect(question, Icon::Question, Buttons::YesNoCancel, answer);
        Click(form->cmdRemove);
        EXPECT_EQ(Count("PriceList"), 2);
    }
    answers.Expect(question, Answer::Yes);
    Click(form->cmdRemove);
    EXPECT_EQ(Entries(form->lstItems), QStringList({"Sale Price (Default)"}));
    EXPECT_EQ(Rows("SELECT PriceListID FROM ItemPriceList"), Table({{"1"}}));
    EXPECT_EQ(Single("SELECT PriceListID FROM customer"), QString::number(trade));
}

TEST_F(PriceListsTest, WhatIsMissingOrBeyondSixteenBitsCannotBeEdited)
{
    Run("DELETE FROM PriceList");
    Open();
    answers.ExpectMessage(
        "No Price List has been selected to edit. Please select a Price List and try again.", Icon::Critical);
    Click(form->cmdEdit);
    answers.ExpectMessage("Please select a Price List to remove.", Icon::Critical);
    Click(form->cmdRemove);

    Run("INSERT INTO PriceList (id, name) VALUES (40000, 'Far')");
    Open();
    {
        const ExpectedEnd end;
        Click(form->cmdEdit);
        EXPECT_EQ(end.Number(), 6);
    }

    frmAddPriceList::gEditPriceListId = 77;
    answers.ExpectMessage("Record not found.", Icon::Critical);
    frmAddPriceList details(nullptr);
    Shown(&details);
    answers.ExpectMessage("Please enter a Price List name to continue.", Icon::Critical);
    Click(details.cmdOK);
    EXPECT_TRUE(details.isVisible() && details.txtName->hasFocus());
}

} // namespace
