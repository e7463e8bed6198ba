#include "base/sign_of_life.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection_private.h"
#include "db/engine_errors.h"
#include "db/file_changes.h"
#include "db/file_check.h"
#include "db/index_renewal.h"
#include "db/make_database.h"
#include "support/test.h"

#include <atomic>
#include <QElapsedTimer>
#include <QThread>
#include <sys/wait.h>
#include <unistd.h>

using Reading = DatabaseTest;

TEST_F(Reading, FieldsHaveTheKindOfTheirColumn)
{
    const int item = Item("Screws").Price("2.50").Stock(7.5).Add();
    const int customer = Customer("Ann", "Lee").Add();
    Invoice(customer).Paid(true).SecondTax("$1,234.50").Date(QDateTime(QDate(2026, 3, 1), QTime(9, 30))).Add();

    const Recordset price = gConnection->Execute("SELECT price, pricelistid, itemid FROM itempricelist");
    EXPECT_EQ(price["Price"].Type(), Value::Kind::Money);
    EXPECT_EQ(price.Money(0), Money("2.50"));
    EXPECT_EQ(price.Text(0), "2.5");
    EXPECT_EQ(price.Long(2), item);
    const Recordset rs = gConnection->Execute("SELECT paid, submitteddate, shippeddate, total2ndtax FROM invoice");
    EXPECT_TRUE(rs["paid"].ToBool());
    EXPECT_EQ(rs["submitteddate"].ToDate(), QDateTime(QDate(2026, 3, 1), QTime(9, 30)));
    EXPECT_TRUE(rs["shippeddate"].IsNull());
    EXPECT_EQ(rs.Text(2), "");
    EXPECT_EQ(rs.Money(3), Money("1234.50"));
    EXPECT_THROW(rs.Long(2), RuntimeError);
}

TEST_F(Reading, StatementsOfOneShapeShareOnePreparedStatementAndTheirCursorsDoNotDisturbEachOther)
{
    for (const char* name : {"a", "b", "c"})
        Item(name).Add();
    QStringList pairs;
    for (Recordset outer = gConnection->Execute("SELECT name FROM item WHERE id > 1"); !outer.Eof(); outer.MoveNext())
        for (Recordset inner = gConnection->Execute("SELECT name FROM item WHERE id > 2"); !inner.Eof();
             inner.MoveNext())
            pairs << outer[0].ToText() + inner[0].ToText();
    EXPECT_EQ(pairs, QStringList({"bc", "cc"}));

    StatementCache& cache = gConnection->Private().cache;
    const size_t before = cache.Size();
    for (int id = 1; id <= 10; ++id)
        gConnection->Execute(Sql("SELECT name FROM item WHERE id = {id}").Number("id", id));
    EXPECT_EQ(cache.Size(), before + 1);
    for (int columns = 1; columns <= 300; ++columns)
        gConnection->Execute("SELECT 1" + QStringLiteral(", 1").repeated(columns));
    EXPECT_EQ(cache.Size(), StatementCache::MaximumSize);
}

TEST_F(Reading, ACursorAtItsEndHasNoRowAndAClosedConnectionTakesItsCursorsAlongAndOpensAgain)
{
    Recordset ended = gConnection->Execute("SELECT id FROM warehouse");
    ended.MoveNext();
    EXPECT_TRUE(ended.Eof());
    EXPECT_THROW(ended.MoveNext(), RuntimeError);
    EXPECT_THROW(ended["id"], RuntimeError);
    EXPECT_THROW(gConnection->Execute("UPDATE category SET name = 'x'").Eof(), RuntimeError);

    Recordset rs = gConnection->Execute("SELECT id FROM warehouse");
    gConnection->Close();
    EXPECT_THROW(rs.MoveNext(), RuntimeError);
    EXPECT_THROW(gConnection->Execute("SELECT 1"), RuntimeError);
    gConnection->Open(DatabasePath());
    EXPECT_EQ(gConnection->Execute("SELECT name FROM warehouse")["name"].ToText(), "Default Warehouse");
}

TEST(Markers, AreFilledByNameWhateverTheValuesHold)
{
    Sql sql("UPDATE item SET name = '{name}', description = '{text}' WHERE id = {id}");
    sql.Number("id", 5).Text("name", "{id} O'Brien").Text("text", "{name}");
    sql.Append(" AND name <> '{name2}'").Text("name2", "x");
    EXPECT_EQ(
        sql.Filled(), "UPDATE item SET name = '{id} O''Brien', description = '{name}' WHERE id = 5 AND name <> 'x'");
    EXPECT_THROW(Sql("DELETE FROM item WHERE id = {id}").Filled(), std::logic_error);
    EXPECT_THROW(Sql("DELETE FROM item").Number("id", 5), std::logic_error);
}

using Writing = DatabaseTest;

/// Adds rows of more bytes than a page.
void AddRows(Connection& connection, int count)
{
    for (AddRow row(connection, "invoice"); count > 0; --count) {
        row.AddNew();
        row.Set("Notes", QString(5000, u'x'));
        row.Update();
    }
}

TEST_F(Writing, AddRowConvertsValuesAndTakesDefaultsAndQuotesArriveUnchanged)
{
    const QString text = "O'Brien \"Bob\" {x} ''";
    AddRow row(*gConnection, "[Customer]");
    row.AddNew();
    row.Set("Discount", QStringLiteral("(2.5)"));
    row.Set("IsYachtClubMember", true);
    row.Set("LastName", text);
    row.Set("firstname", Value());
    row.Update();
    gConnection->Execute(
        Sql("UPDATE Customer SET City = '{city}' WHERE ID={id};").Text("city", text).Number("id", row.Id()));
    EXPECT_EQ(Rows("SELECT id, Discount, IsYachtClubMember, FirstName, LastName, City, "
                   "SubmittedDate = date('now', 'localtime') || ' 00:00:00' FROM customer"),
        Table({{QString::number(row.Id()), "-2.5", "1", "NULL", text, text, "1"}}));
    row.AddNew();
    EXPECT_THROW(row.Set("Discount", QString()), RuntimeError);
    EXPECT_THROW(row.Set("nothing", 1), RuntimeError);
    EXPECT_EQ(Count("customer"), 1);

    gConnection->Execute("DELETE FROM customer");
    const qint64 deleted = row.Id();
    row.AddNew();
    row.Update();
    EXPECT_EQ(row.Id(), deleted + 1) << "the number of a deleted row is not given again";
}

TEST_F(Writing, AnUpdateIsLeftOutWhereTheRowHoldsItToTheLetterAndOnlyThere)
{
    const int ann = Customer("Ann", "O'Brien").Discount(2.5).Add();
    Invoice(ann).Date(QDateTime(QDate(2026, 3, 1), QTime(9, 30))).SecondTax("$1.00").Add();
    Item("Saw").Price("2.50").Stock(5).Add();
    FileChanges changes;
    EXPECT_TRUE(changes.Changed(*gConnection));
    for (const auto& [update, isRun] : {std::pair("customer SET LastName = 'O''Brien', Discount = 2.5", false),
             {"customer SET LastName = 'o''brien'", true}, {"customer SET Discount = '2.50'", false},
             {"customer SET City = '' WHERE id < 0 OR id > 0", true}, {"customer SET City = ''", false},
             {"invoice SET SubmittedDate = #2026-03-01 9:30#, Paid = false", false},
             {"invoice SET SubmittedDate = #2026-03-01#", true}, {"invoice SET ShippedDate = null", false},
             {"ItemPriceList SET Price = '$2.50'", false}, {"item SET noinstock = noinstock + 0", false},
             {"item SET noinstock = noinstock - 1", true}}) {
        gConnection->ExecuteIfItChanges(Sql(QStringLiteral("UPDATE ") + update));
        EXPECT_EQ(changes.Changed(*gConnection), isRun) << update;
    }
    EXPECT_THROW(gConnection->ExecuteIfItChanges(Sql("UPDATE customer SET Discount = 'x'")), RuntimeError);
    EXPECT_EQ(Single("SELECT LastName || City FROM customer") + Single("SELECT NoInStock FROM item"), "o'brien4.0");

    Run("UPDATE customer SET City = 'Rome'");
    EXPECT_TRUE(changes.Changed(*gConnection)) << "by another program";
    gConnection->Open(DatabasePath());
    EXPECT_TRUE(changes.Changed(*gConnection)) << "perhaps another file";
    EXPECT_FALSE(changes.Changed(*gConnection));
}

TEST_F(Writing, ABatchKeepsWhatRanBeforeAFailure)
{
    const int item = Item("Screws").Stock(10).Add();
    const auto act = [&] {
        InBatch(*gConnection, [&] {
            InBatch(*gConnection, [&] { gConnection->Execute("UPDATE item SET noinstock = 7"); });

            EXPECT_EQ(Stock(item), 10) << "the inner batch must not commit";
            gConnection->Execute("UPDATE item SET noinstock = abc");
        });
    };
    EXPECT_THROW(act(), RuntimeError);
    EXPECT_EQ(Stock(item), 7);
}

TEST_F(Writing, AKilledProcessLeavesTheOldRows)
{
    const int item = Item("Screws").Stock(10).Add();
    const QString path = DatabasePath();
    const pid_t child = fork();
    if (child == 0) {
        Connection connection;
        connection.Open(path);
        connection.Private().RunPlain("PRAGMA cache_size = 1");
        InBatch(connection, [&] {
            connection.Execute("UPDATE item SET noinstock = 1");
            AddRows(connection, 200);
            kill(getpid(), SIGKILL);
        });
    }
    int status = 0;
    waitpid(child, &status, 0);
    ASSERT_TRUE(WIFSIGNALED(status));
    gConnection->Close();
    gConnection->Open(path);
    EXPECT_EQ(Stock(item), 10);
    EXPECT_EQ(Count("invoice"), 0);
    EXPECT_EQ(Single("PRAGMA integrity_check"), "ok");
}

TEST_F(Writing, AFullDiskUndoesTheActAndLeavesTheFileUsable)
{
    const int item = Item("Screws").Stock(10).Add();
    gConnection->Private().RunPlain("PRAGMA max_page_count = 100");
    const QString text(1000000, u'x');
    const auto fill = [&] {
        InBatch(*gConnection, [&] {
            gConnection->Execute("UPDATE item SET noinstock = 7");
            gConnection->Execute(Sql("UPDATE item SET description = '{text}'").Text("text", text));
        });
    };
    EXPECT_THROW(fill(), RuntimeError);
    EXPECT_EQ(Stock(item), 10);
    gConnection->Execute("UPDATE item SET noinstock = 3");
    EXPECT_EQ(Stock(item), 3);
    EXPECT_EQ(Single("PRAGMA integrity_check"), "ok");
}

TEST_F(Writing, NothingIsWrittenOnceTheProgramHasEndedOrTheFileWasTakenAway)
{
    SetProgramEnd([](const RuntimeError&) {});
    EndProgram(TypeMismatch());
    EXPECT_THROW(gConnection->Execute("UPDATE warehouse SET name = 'x'"), RuntimeError);
    EXPECT_THROW(InBatch(*gConnection, [] {}), RuntimeError);
    EXPECT_THROW(AddRow(*gConnection, "warehouse"), RuntimeError);
    SetProgramEnd({});
    EXPECT_EQ(Single("SELECT name FROM warehouse"), "Default Warehouse");
    QFile::remove(DatabasePath());
    EXPECT_THROW(gConnection->Execute("UPDATE warehouse SET name = 'x'"), RuntimeError);
}

class Opening : public DatabaseTest {
protected:
    QString File(const QByteArray& content) const
    {
        WriteFile(Folder() + "/other.mdb", content);
        return Folder() + "/other.mdb";
    }
    QByteArray DatabaseBytes() const { return ReadFile(DatabasePath()); }
    QString FileWithJournal(const QString& name, const QByteArray& content, const QByteArray& journal) const
    {
        WriteFile(Folder() + name, content);
        WriteFile(Folder() + name + "-journal", journal);
        return Folder() + name;
    }
    void ExpectRefused(const QString& path) const
    {
        const QStringList before = QDir(Folder()).entryList(QDir::Files);
        Connection connection;
        EXPECT_THROW(connection.Open(path), RuntimeError);
        EXPECT_FALSE(connection.IsOpen());
        EXPECT_EQ(QDir(Folder()).entryList(QDir::Files), before);
    }
};

TEST_F(Opening, WhatIsNoWholeDatabaseIsRefusedAndMakingOneOverwritesNone)
{
    ExpectRefused(Folder() + "/missing.mdb");
    ExpectRefused(Folder());
    for (const QByteArray& content :
        {QByteArray(), QByteArray("x"), QByteArray("S"), QByteArray("This is a letter, not a database. ").repeated(50),
            DatabaseBytes().left(20'480), DatabaseBytes().left(50)})
        ExpectRefused(File(content));

    const QByteArray before = DatabaseBytes();
    EXPECT_THROW(MakeDatabase(DatabasePath()), RuntimeError);
    EXPECT_EQ(DatabaseBytes(), before);
    EXPECT_THROW(MakeDatabase(Folder() + "/no such folder/db.mdb"), RuntimeError);
    MakeDatabase(Folder() + "/new.mdb");
    EXPECT_EQ(QDir(Folder()).entryList({"*.mdb*"}, QDir::Files), QStringList({"db.mdb", "new.mdb", "other.mdb"}));
}

/// The journal of a crash, kept while a backup came over the file: rolling it back would put foreign pages into the
/// backup.
TEST_F(Opening, AJournalOfAnotherFileIsSetAside)
{
    const QByteArray backup = DatabaseBytes();
    Run("UPDATE warehouse SET name = 'moved'");
    Run("UPDATE warehouse SET name = 'moved again'");
    QByteArray crashedFile, crashedJournal;
    InBatch(*gConnection, [&] {
        gConnection->Private().RunPlain("PRAGMA cache_size = 1");
        AddRows(*gConnection, 50);
        crashedFile = ReadFile(DatabasePath());
        crashedJournal = ReadFile(DatabasePath() + "-journal");
    });
    ASSERT_GT(crashedJournal.size(), 0);

    const QString own = FileWithJournal("/own.mdb", crashedFile, crashedJournal);
    Connection connection;
    connection.Open(own);
    EXPECT_EQ(connection.Execute("SELECT name FROM warehouse").Text(0), "moved again");
    EXPECT_EQ(connection.Execute("SELECT COUNT(*) FROM invoice").Long(0), 0) << "its own journal rolls back";
    EXPECT_FALSE(QFile::exists(own + "-journal-of-another-file"));

    const QString restored = FileWithJournal("/restored.mdb", backup, crashedJournal);
    ASSERT_TRUE(QDir(Folder()).mkdir("of links") && QFile::link(restored, Folder() + "/of links/db.mdb"));
    connection.Open(Folder() + "/of links/db.mdb");
    EXPECT_EQ(connection.Execute("SELECT name FROM warehouse").Text(0), "Default Warehouse");
    connection.Close();
    EXPECT_EQ(ReadFile(restored), backup);
    EXPECT_EQ(ReadFile(restored + "-journal-of-another-file"), crashedJournal);
}

TEST_F(Opening, ACheckInTheBackgroundFindsDamageAndLetsWritersPass)
{
    for (int i = 0; i < 200; ++i)
        Item(QStringLiteral("Screws %1").arg(i)).Description(QString(3000, u'x')).Add();
    std::atomic<int> found = 0;
    const auto damaged = [&] { ++found; };
    const auto checked = [&](const QString& path) {
        const FileCheck check(path, damaged);
        for (int i = 0; i < 200 && found == 0; ++i) {
            gConnection->Execute("UPDATE warehouse SET name = 'x'");
            QThread::msleep(1);
        }
        return found.load();
    };
    EXPECT_EQ(checked(DatabasePath()), 0);
    QByteArray bytes = DatabaseBytes();
    for (qsizetype page = bytes.size() / 2; page < bytes.size() - 4096; page += 4096)
        bytes.replace(page - page % 4096, 100, QByteArray(100, '\x77'));
    EXPECT_EQ(checked(File(bytes)), 1);
}

TEST_F(Opening, AReadOnlyFileOpensForReadingAlone)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "the superuser may write any file";
    const QString path = File(DatabaseBytes());
    QFile::setPermissions(path, QFile::ReadOwner);
    ExpectRefused(path);
    Connection connection;
    connection.OpenReadOnly(path);
    EXPECT_EQ(connection.Execute("SELECT id FROM warehouse").Long(0), 1);
}

TEST_F(Reading, ALongStatementGivesSignsOfLife)
{
    static int signs;
    for (int i = 0; i < 500; ++i)
        Item("Screws").Add();
    SetSignOfLife([] { ++signs; });
    gConnection->Execute("SELECT count(*) FROM item, item AS other");
    EXPECT_GT(signs, 1);

    Run("INSERT INTO category (name) SELECT 'Tools' FROM item");
    Run("INSERT INTO subcategory (name, categoryid) SELECT 'Hammers', 1 FROM item");
    signs = 0;
    gConnection->Execute("SELECT DISTINCT item.id FROM item, subcategory, category WHERE (item.subcategoryid = "
                         "subcategory.id AND subcategory.categoryid = category.id) AND item.name LIKE 'x' OR [number] "
                         "LIKE 'x'");
    SetSignOfLife(nullptr);
    EXPECT_LT(signs, 10) << "a search goes through no table for each row of another";
}

TEST_F(Reading, AWaitForAnotherProgramIsToldAndOneInVainIsForAllThatComeRightBehindIt)
{
    static int signs;
    SetSignOfFileWait([] { ++signs; });
    Connection other;
    other.Open(DatabasePath());
    other.Private().RunPlain("BEGIN EXCLUSIVE");
    QElapsedTimer clock;
    clock.start();
    for (int statement = 0; statement < 5; ++statement)
        EXPECT_THROW(gConnection->Execute("SELECT id FROM warehouse"), RuntimeError);
    EXPECT_LT(clock.elapsed(), 9000);
    EXPECT_GT(signs, 1);
    other.Private().RunPlain("ROLLBACK");
    EXPECT_EQ(gConnection->Execute("SELECT id FROM warehouse").Long(0), 1);
    SetSignOfFileWait(nullptr);
    QThread::msleep(200);
}

TEST_F(Reading, TheIndexesOfAnEarlierVersionAreRenewedUnlessSomebodyHoldsTheFile)
{
    const QString definitions = "SELECT sql FROM sqlite_schema WHERE name <> 'item_number' ORDER BY name";
    const Table now = Rows(definitions);
    Run("DROP INDEX item_name; DROP INDEX itempricelist_item; DROP INDEX item_number;"
        "CREATE INDEX itempricelist_item ON ItemPriceList(ItemID, PriceListID);"
        "CREATE UNIQUE INDEX item_number ON item(Number)");
    const Table old = Rows(definitions);
    Run("BEGIN IMMEDIATE");
    RenewIndexes(DatabasePath());
    EXPECT_EQ(Rows(definitions), old);
    Run("ROLLBACK");
    RenewIndexes(DatabasePath());
    EXPECT_EQ(Rows(definitions), now);
    EXPECT_EQ(Single("SELECT sql FROM sqlite_schema WHERE name = 'item_number'"),
        "CREATE UNIQUE INDEX item_number ON item(Number)");
}
