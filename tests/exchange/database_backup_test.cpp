#include "exchange/database_backup.h"
#include "exchange/exchange_test.h"

namespace {

class BackupTest : public ExchangeTest {
protected:
    /// The backup to this file fails, is told, and leaves a connection that works.
    void ExpectFailure(const QString& path)
    {
        answers.ExpectSaveFile(path);
        answers.ExpectMessage("Unable to write to file " + path, Icon::Critical);
        BackupDatabase();
        gConnection->Execute("UPDATE settings SET City = 'Cork'");
        EXPECT_EQ(Single("SELECT City FROM settings"), "Cork");
    }
};

} // namespace

TEST_F(BackupTest, TheCopyIsSoundAndHoldsTheOpenInvoice)
{
    const int invoice = Invoice(Customer("Ann", "Lee").Add()).No("00007").Add();
    Line(invoice, Item("Rope").Add(), 3, "2.50");
    const Recordset stillOpen = gConnection->Execute("SELECT id FROM customer");
    answers.ExpectSaveFile("");
    BackupDatabase();
    EXPECT_FALSE(stillOpen.Eof()) << "a cancel closes nothing";

    answers.ExpectSaveFile(File());
    answers.ExpectMessage("Successfully backed up database file.", Icon::Information);
    BackupDatabase();
    EXPECT_EQ(Text(), ReadFile(DatabasePath()));
    ASSERT_TRUE(QDir().mkpath(Folder() + "/restored"));
    ASSERT_TRUE(QFile::rename(File(), Folder() + "/restored/db.mdb"));
    Connection restored;
    restored.Open(Folder() + "/restored/db.mdb");
    EXPECT_EQ(restored.Execute("SELECT quantity FROM invoiceline").Long(0), 3);
    gConnection->Execute("UPDATE invoiceline SET quantity = 4");
    EXPECT_EQ(Single("SELECT quantity FROM invoiceline"), "4");
    Run(QString("ATTACH '%1/restored/db.mdb' AS copy").arg(Folder()));
    EXPECT_EQ(Single("PRAGMA copy.integrity_check"), "ok");
}

TEST_F(BackupTest, ABadTargetIsToldAndTheConnectionIsBackAndLinksToTheDatabaseAreTheDatabase)
{
    ForBadTargets([this](const QString& path) { ExpectFailure(path); });
    const QString link = Folder() + "/link.mdb", hardLink = Folder() + "/hard link.mdb";
    ASSERT_TRUE(QFile::link(DatabasePath(), link));
    ASSERT_EQ(::link(qPrintable(DatabasePath()), qPrintable(hardLink)), 0);
    ExpectFailure(link);
    ExpectFailure(hardLink);
}

TEST_F(BackupTest, AFullDiskLeavesTheOldBackupAndWithoutTheDatabaseTheProgramEnds)
{
    const QStringList files = QDir(Folder()).entryList(QDir::Files);
    {
        const FileSizeLimit limit(20'000);
        answers.ExpectSaveFile(File());
        answers.ExpectMessage("Unable to write to file " + File(), Icon::Critical);
        BackupDatabase();
    }
    EXPECT_EQ(Text(), "old file");
    EXPECT_EQ(QDir(Folder()).entryList(QDir::Files), files);
    EXPECT_TRUE(gConnection->IsOpen());

    ASSERT_TRUE(QFile::remove(DatabasePath()));
    answers.ExpectSaveFile(File());
    answers.ExpectMessage("Unable to write to file " + File(), Icon::Critical);
    EXPECT_THROW(BackupDatabase(), RuntimeError);
    EXPECT_EQ(Text(), "old file");
}
