#include "support/file_size_limit.h"
#include "support/scripted_answers.h"
#include "support/temporary_database.h"
#include "web/order_form.h"
#include "web/web_order_settings.h"
#include "web/web_orders_page.h"

#include <QDir>
#include <QFile>

#include <optional>

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
    void WriteOld() const
    {
        QFile file(PagePath());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(Old());
    }
    static QByteArray Old() { return QByteArray(9000, 'x'); }
    std::optional<QByteArray> PageFile() const
    {
        QFile file(PagePath());
        return file.open(QIODevice::ReadOnly) ? std::optional(file.readAll()) : std::nullopt;
    }
    static QByteArray NewPage()
    {
        return OrderFormPage({QString::fromUtf8("bücher@harbour.example"), CustomProvider, "https://own.example/send"},
            FormMailService())
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

TEST_F(WebOrdersPage, ReplacesTheChosenFileWithoutAWord)
{
    EXPECT_EQ(CreateInto(PagePath()), 0);
    EXPECT_EQ(PageFile(), NewPage());
}

TEST_F(WebOrdersPage, LeavesTheFileWhenNoneIsChosen)
{
    EXPECT_EQ(CreateInto(QString()), 0);
    EXPECT_EQ(PageFile(), Old());
}

TEST_F(WebOrdersPage, HasDeletedTheOldFileBeforeItReadsTheSettings)
{
    Run("DELETE FROM settings");
    EXPECT_EQ(CreateInto(PagePath()), 0);
    EXPECT_EQ(PageFile(), std::nullopt);

    WriteOld();
    Run("INSERT INTO settings (webbookingproviderindex) VALUES (40000)");
    EXPECT_EQ(CreateInto(PagePath()), 6);
    EXPECT_EQ(PageFile(), std::nullopt);
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
    EXPECT_EQ(PageFile(), std::nullopt);
}
