#include "exchange/exchange_test.h"
#include "exchange/mailing_list.h"
#include "exchange/mailing_list_wizard.h"

namespace {

class MailingListTest : public ExchangeTest {
protected:
    void SetUp() override
    {
        ExchangeTest::SetUp();
        ShowAllWelcomePages();
        MailingListWizard::MailListFileName.clear();
        Run("DELETE FROM customer");
    }

    void RunTo(const QString& file)
    {
        NextOn<frmWizMailList_Welcome>();
        AtPage<frmWizMailList_File>([file](frmWizMailList_File& page) { Type(page.txtName, file); });
        NextOn<frmWizMailList_Complete>();
        RunMailingListWizard(nullptr);
    }
};

} // namespace

TEST_F(MailingListTest, ListsTheAddressesInOrderEachAsOftenAsItIsStored)
{
    for (const char* email : {"zoe@shop.example", "bob@shop.example", "Ann@shop.example", "", "bob@shop.example",
             "Côté, Léa <lea@shop.example>", "two\r\nlines@shop.example"})
        Customer("A", "B").Email(email).Add();
    Customer("No", "Address").Add();
    RunTo(File());
    EXPECT_EQ(Text(),
        "Ann@shop.example, bob@shop.example, bob@shop.example, Côté, Léa <lea@shop.example>, "
        "two\r\nlines@shop.example, zoe@shop.example");
    Run("UPDATE customer SET Email = NULL");
    QString told;
    QObject receiver;
    QObject::connect(&StatusLine::Get(), &StatusLine::Told, &receiver, [&told](const QString& text) { told = text; });
    RunTo(File());
    EXPECT_EQ(Text(), "") << "without addresses";
    EXPECT_EQ(told, "Saved as " + File());
}

TEST_F(MailingListTest, AsksForTheFileWordForWordAndOffersItAgain)
{
    QString texts;
    const auto check = [&texts](auto& page) {
        CheckForm(page);
        texts += ScreenText(&page);
    };
    AtPage<frmWizMailList_Welcome>([&](frmWizMailList_Welcome& page) {
        check(page);
        EXPECT_FALSE(page.cmdBack->isEnabled());
        Click(page.chkDisplayNext);
        page.setGeometry(90, 70, 800, 600);
    });
    AtPage<frmWizMailList_File>([&](frmWizMailList_File& page) {
        EXPECT_EQ(page.geometry(), QRect(90, 70, 800, 600)) << "a page hands its place to the next";
        check(page);
        answers.ExpectMessage(
            "No mailing list filename has been entered. Please enter a filename to continue.", Icon::Critical);
        Click(page.cmdNext);
        EXPECT_TRUE(page.isVisible());
        for (const QString& chosen : {File(), QString()}) {
            answers.ExpectSaveFile(chosen);
            Click(page.cmdBrowse);
        }
    });
    AtPage<frmWizMailList_Complete>([&](frmWizMailList_Complete& page) {
        check(page);
        Click(page.cmdCancel);
    });
    RunMailingListWizard(nullptr);
    EXPECT_EQ(Text(), "old file");
    ExpectGolden(texts, "mailing_list_wizard.txt");

    // The page that was switched off is passed over, but Back still leads there.
    AtPage<frmWizMailList_File>([](frmWizMailList_File& page) {
        Type(page.txtName, "gone");
        Click(page.cmdBack);
    });
    AtPage<frmWizMailList_Welcome>([](frmWizMailList_Welcome& page) {
        EXPECT_FALSE(page.chkDisplayNext->isChecked());
        page.chkDisplayNext->click();
        Press(page.focusWidget(), Qt::Key_Return);
    });
    AtPage<frmWizMailList_File>([this](frmWizMailList_File& page) {
        EXPECT_EQ(page.txtName->text(), File());
        Press(page.txtName, Qt::Key_Escape);
    });
    RunMailingListWizard(nullptr);
    EXPECT_TRUE(WizardState::MailingList.ShowWelcome);
}

TEST_F(MailingListTest, ABadTargetIsToldAndNothingElseIsTouchedAndAFullDiskLeavesNothing)
{
    ForBadTargets([this](const QString& path) {
        answers.ExpectMessage("Unable to write to file " + path + ".", Icon::Critical);
        RunTo(path);
        EXPECT_EQ(Text(), "old file");
    });

    Customer("A", "B").Email(QString(5000, u'a') + "@shop.example").Add();
    answers.ExpectMessage("Unable to write to file " + File() + ".", Icon::Critical);
    const FileSizeLimit limit(1000);
    RunTo(File());
    EXPECT_EQ(Text(), "no file");
}
