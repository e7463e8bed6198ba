#include "support/test.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"
#include "web/web_orders_page.h"

namespace {

const QByteArray Old(9000, 'x');

class WebOrdersPage : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        Run("UPDATE settings SET webbookingemail = 'bücher@harbour.example', webbookingproviderindex = 1, "
            "webbookingprovidercustom = 'https://own.example/send'");
        WriteOld();
    }

    QString PagePath() const { return Folder() + "/orders.html"; }
    void WriteOld() const { WriteFile(PagePath(), Old); }
    QByteArray PageFile() const { return ReadFile(PagePath()); }
    int CreateInto(const QString& path)
    {
        answers.ExpectSaveFile(path);
        return ErrorOf(CreateWebOrdersPage);
    }

    ScriptedAnswers answers;
};

} // namespace

TEST_F(WebOrdersPage, ReplacesTheChosenFileWithoutAWordAndBeforeItReadsTheSettings)
{
    EXPECT_EQ(CreateInto(QString()), 0);
    EXPECT_EQ(PageFile(), Old);
    EXPECT_EQ(CreateInto(PagePath()), 0);
    EXPECT_EQ(PageFile(),
        OrderFormPage({"bücher@harbour.example", CustomProvider, "https://own.example/send"}, FormMailService()));

    Run("DELETE FROM settings");
    EXPECT_EQ(CreateInto(PagePath()), 0);
    EXPECT_EQ(PageFile(), "no file");

    WriteOld();
    Run("INSERT INTO settings (webbookingproviderindex) VALUES (40000)");
    EXPECT_EQ(CreateInto(PagePath()), 6);
    EXPECT_EQ(PageFile(), "no file");
}

TEST_F(WebOrdersPage, AFileThatCannotBeWrittenIsARunTimeErrorAndNotHalfAPage)
{
    EXPECT_EQ(CreateInto(Folder() + "/gone/orders.html"), 75);
    QDir(Folder()).mkdir("folder.html");
    EXPECT_EQ(CreateInto(Folder() + "/folder.html"), 75);
    EXPECT_EQ(CreateInto(gConnection->Path()), 75) << "the data file";
    EXPECT_EQ(PageFile(), Old);
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(CreateInto(PagePath()), 75);
    }
    EXPECT_EQ(PageFile(), "no file");
}
