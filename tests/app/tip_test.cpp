#include "app/app_test.h"
#include "app/tip.h"
#include "app/tips.h"

namespace {

class TipTest : public DatabaseTest {
protected:
    void Tips(const QByteArray& text) { WriteFile(NativePath(ProgramFolder(), TipFileName), text); }

    /// What the dialog shows when it opens.
    QString Opened()
    {
        frmTip tip(nullptr);
        Shown(&tip);
        return tip.lblTipText->text();
    }
};

} // namespace

TEST_F(TipTest, EachOpeningAndNextTipMoveOneTipOnStartingWithTheSecondAndThroughBlankLinesToo)
{
    const std::tuple<int, int, int> steps[] = {
        {1, 3, 2}, {2, 3, 3}, {3, 3, 1}, {4, 3, 1}, {1, 1, 1}, {1, 0, 1}, {0, 3, 1}, {-7, 3, 1}, {2147483647, 3, 1}};
    for (const auto& [current, count, next] : steps)
        EXPECT_EQ(NextTip(current, count), next) << current << " of " << count;
    Tips("one\n<b>\xE9t\xE9</b>\r\n\n  four \n");
    EXPECT_EQ(Opened(), "<b>été</b>");
    EXPECT_EQ(Opened(), "");
    frmTip tip(nullptr);
    Shown(&tip);
    EXPECT_EQ(tip.lblTipText->text(), "  four ");
    Click(tip.cmdNextTip);
    EXPECT_EQ(tip.lblTipText->text(), "one");
    EXPECT_EQ(GetOption("Current Tip", ""), "1");
}

TEST_F(TipTest, AMissingFileIsToldAndNextTipShowsNothingNew)
{
    const QString text =
        "That the TipOfTheDay.txt file was not found? \n\nCreate a text file named TipOfTheDay.txt using "
        "NotePad with 1 tip per line. Then place it in the same directory as the application. ";
    frmTip tip(nullptr);
    Shown(&tip);
    EXPECT_EQ(tip.lblTipText->text(), text);
    EXPECT_EQ(GetOption("Current Tip", "unset"), "unset");
    Click(tip.cmdNextTip);
    EXPECT_EQ(tip.lblTipText->text(), text);
    EXPECT_EQ(GetOption("Current Tip", ""), "1");
}

TEST_F(TipTest, GarbageInTheStoreCountsAsOneAndATipOfMegabytesShowsItsBeginning)
{
    Tips("one\n" + QByteArray(10'000'000, 'x') + " \n");
    for (const char* garbage : {"abc", "", "1000000000000"}) {
        SaveOption("Current Tip", garbage);
        SaveOption("Show Tips at Startup", garbage);
        EXPECT_TRUE(frmTip::ShowAtStartup()) << garbage;
        const QString shown = Opened();
        EXPECT_TRUE(shown.startsWith("xxx") && shown.size() <= 20'000) << garbage;
    }
}

TEST_F(TipTest, TheDeliveredTipsAreManyAndAllShowWithoutScrolling)
{
    SetProgramFolder(PROGRAM_FOLDER);
    const std::optional<QStringList> tips = ReadTips(NativePath(ProgramFolder(), TipFileName));
    ASSERT_TRUE(tips);
    EXPECT_GE(tips->size(), 40);
    frmTip tip(nullptr);
    Shown(&tip);
    const QSize room = tip.lblTipText->parentWidget()->size();
    for (const QString& text : *tips) {
        tip.lblTipText->setText(text);
        EXPECT_TRUE(!text.isEmpty() && tip.lblTipText->heightForWidth(room.width()) <= room.height())
            << text.toStdString();
    }
}

TEST_F(TipTest, UntickingTakesEffectAtOnceAndAnEmptyFileShowsNoTip)
{
    Tips("one\n");
    EXPECT_TRUE(frmTip::ShowAtStartup());
    frmTip tip(nullptr);
    CheckForm(tip);
    EXPECT_EQ(tip.windowTitle(), "Tip of the Day");
    EXPECT_TRUE(tip.chkLoadTipsAtStartup->isChecked());
    Click(tip.chkLoadTipsAtStartup);
    EXPECT_EQ(GetOption("Show Tips at Startup", ""), "0");
    EXPECT_FALSE(frmTip::ShowAtStartup());
    EXPECT_FALSE(frmTip(nullptr).chkLoadTipsAtStartup->isChecked());
    Click(tip.chkLoadTipsAtStartup);
    EXPECT_EQ(GetOption("Show Tips at Startup", ""), "1");
    Tips("");
    EXPECT_EQ(Opened(), "");
    EXPECT_EQ(GetOption("Current Tip", ""), "1");
}
