#include "parties/customer_record.h"
#include "parties/find_customer.h"
#include "support/test.h"

namespace {

class FindCustomerTest : public FormTest<frmFindCustomer> {
protected:
    static constexpr auto NoCriteria =
        "No criteria to search by has been entered. Please enter some details and try again.";

    /// The names found; the box is left as it is.
    QStringList Search(TextBox* box, const QString& text)
    {
        Type(box, text);
        Press(box, Qt::Key_Return);
        EXPECT_EQ(form->lblTotalCustomers->text().toInt(), GridRows(form->gcust).size());
        return GridColumn(form->gcust);
    }
};

} // namespace

TEST_F(FindCustomerTest, OpensShortAndGrowsWithTheFirstSearchAlsoWithoutCriteria)
{
    Open();
    CheckForm(*form, {"gcust", "Label1", "lblTotalCustomers", "picSep2"});
    EXPECT_EQ(form->height(), form->picSep->y() + 20);
    EXPECT_FALSE(form->gcust->isVisible());
    const int shortHeight = form->height();
    answers.ExpectMessage(NoCriteria, Icon::Critical);
    Click(form->cmdEditCustomer);
    Click(form->cmdDeleteCustomer);

    Type(form->txtBusinessName, "Lee");
    answers.ExpectMessage(NoCriteria, Icon::Critical);
    Click(form->cmdOk);
    CheckForm(*form);
    EXPECT_EQ(form->height(), form->picSep2->mapTo(form.get(), QPoint()).y() + 20);
    EXPECT_GE(form->height() - shortHeight, 10 * form->gcust->verticalHeader()->defaultSectionSize());
    EXPECT_EQ(GridTitles(form->gcust), QStringList({"Name", "Address", "Postcode", "Phone"}));

    const int address = form->gcust->ColWidth(1);
    form->resize(form->width() + 100, form->height() + 200);
    QCoreApplication::processEvents();
    EXPECT_EQ(form->gcust->ColWidth(1), address + 1500);
    EXPECT_EQ(form->picBut->mapTo(form.get(), QPoint(form->picBut->width(), 0)).x(), form->width() - 6);
    EXPECT_TRUE(form->lblTotalCustomers->isVisible());
}

TEST_F(FindCustomerTest, AnyBoxMatchesAndEachSearchReplacesTheLast)
{
    Customer("Ann", "Lee").Address("1 Quay", "Cork", "T1").Set("Address2", "Dock 4").Phone("555").Add();
    Customer("Bob", "Moss").Email("bob@quay.ie").Add();
    Run("INSERT INTO customer (LastName) VALUES ('Nash')");
    Open();
    EXPECT_EQ(Search(form->txtFirstname, "NN"), QStringList{"Ann Lee"});
    EXPECT_EQ(Search(form->txtEmail, "quay"), QStringList({"Ann Lee", "Bob Moss"})) << "a second box widens";
    EXPECT_EQ(Search(form->txtLastname, "s"), QStringList({"Ann Lee", "Bob Moss", " Nash"}));
    EXPECT_EQ(GridRows(form->gcust).first(), QStringList({"Ann Lee", "1 Quay, Dock 4", "T1", "555"}));
    ClickRow(form->gcust, 3);
    EXPECT_EQ(Search(form->txtLastname, "lee"), QStringList({"Ann Lee", "Bob Moss"}));
    EXPECT_EQ(form->gcust->Row(), 1);
    for (TextBox* box : {form->txtFirstname, form->txtEmail})
        Type(box, "");
    EXPECT_EQ(Search(form->txtLastname, "zz"), QStringList());
    EXPECT_EQ(form->gcust->Row(), 0);
    answers.ExpectMessage(NoCriteria, Icon::Critical);
    EXPECT_EQ(Search(form->txtLastname, ""), QStringList());
}

TEST_F(FindCustomerTest, TextsGoInAsTypedWithTheirWildcardsAndAnApostropheEndsTheProgram)
{
    for (const char* name : {"50% Off", "O Hara", "O[x]", "Oat_x"})
        Customer("", name).Add();
    Run("INSERT INTO customer (FirstName) VALUES ('Null')");
    Open();
    EXPECT_EQ(Search(form->txtLastname, "%").size(), 4) << "all but the Null";
    EXPECT_EQ(Search(form->txtLastname, "a_"), QStringList({" O Hara", " Oat_x"}));
    EXPECT_EQ(Search(form->txtLastname, "o[a ]"), QStringList({" O Hara", " Oat_x"}));
    EXPECT_EQ(Search(form->txtLastname, "[_]"), QStringList{" Oat_x"});

    const ExpectedEnd end;
    Type(form->txtLastname, "O'Hara");
    Press(form->txtLastname, Qt::Key_Return);
    EXPECT_TRUE(end.Description().startsWith("Syntax error")) << qPrintable(end.Description());
}

TEST_F(FindCustomerTest, TheSearchRunsAgainAfterAnEditAnAddAndADeletion)
{
    for (const char* name : {"Ann", "Bob", "Cid"})
        Customer(name, "Lee").Add();
    Open();
    Search(form->txtLastname, "Lee");
    ClickRow(form->gcust, 3);
    answers.Expect("Delete customer?", Icon::Question, Buttons::YesNo, Answer::Yes);
    Press(form->gcust, Qt::Key_Delete);
    EXPECT_EQ(form->lblTotalCustomers->text(), "2");
    EXPECT_EQ(form->gcust->Row(), 2);

    const auto expectNaming = [](const QString& name) {
        WhenFormShows<frmCustomer>([name](frmCustomer& customer) {
            Type(customer.txtLastname, name);
            Press(customer.txtLastname, Qt::Key_Return);
        });
    };
    expectNaming("Moss");
    Press(form->gcust, Qt::Key_Return);
    EXPECT_EQ(GridColumn(form->gcust), QStringList{"Ann Lee"}) << "Bob was the one selected";
    expectNaming("Leeds");
    Click(form->cmdCreateCustomer);
    EXPECT_EQ(GridColumn(form->gcust), QStringList({"Ann Lee", " Leeds"}));

    Type(form->txtLastname, "");
    WhenFormShows<frmCustomer>([](frmCustomer& customer) { Click(customer.cmdCancel); });
    answers.ExpectMessage(NoCriteria, Icon::Critical);
    Click(form->cmdCreateCustomer);
    EXPECT_EQ(GridColumn(form->gcust).size(), 2) << "the list keeps its rows";
}
