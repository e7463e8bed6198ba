#include "support/file_size_limit.h"
#include "support/files.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"
#include "web/web_orders_page.h"

#include <QDir>

namespace {

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
    void WriteOld() const { WriteFile(PagePath(), Old()); }
    static QByteArray Old() { return QByteArray(9000, 'x'); }
    QByteArray PageFile() const { return ReadFile(PagePath()); }
    static QByteArray NewPage()
    {
        return OrderFormPage({"bücher@harbour.example", CustomProvider, "https://own.example/send"}, FormMailService())
            .toUtf8();
    }
    int CreateInto(const QString& path)
    {
        answers.ExpectSaveFile(path);
        try {
            CreateWebOrdersPage();
        } catch (const RuntimeError& error) {
            return error.Number();
        }
        return 0;
    }

    ScriptedAnswers answers;
};

} // namespace

TEST_F(WebOrdersPage, ReplacesTheChosenFileWithoutAWordAndLeavesItWhenNoneIsChosen)
{
    EXPECT_EQ(CreateInto(QString()), 0);
    EXPECT_EQ(PageFile(), Old());
    EXPECT_EQ(CreateInto(PagePath()), 0);
    EXPECT_EQ(PageFile(), NewPage());
}

TEST_F(WebOrdersPage, HasDeletedTheOldFileBeforeItReadsTheSettings)
{
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
    EXPECT_EQ(PageFile(), Old());
    {
        const FileSizeLimit limit(1000);
        EXPECT_EQ(CreateInto(PagePath()), 75);
    }
    EXPECT_EQ(PageFile(), "no file");
}
