#include "base/guard.h"
#include "base/regional.h"
#include "db/engine_errors.h"
#include "sql/dialect.h"
#include "support/temporary_database.h"

#include <QElapsedTimer>
#include <QLocale>

#include <random>

/// What the dialect makes of statements, seen through the rows that they yield.
class Dialect : public DatabaseTest {
protected:
    /// The rows' fields as texts, Null as "NULL".
    static Table Select(const QString& statement)
    {
        Table rows;
        for (Recordset rs = gConnection->Execute(statement); !rs.Eof(); rs.MoveNext()) {
            QStringList row;
            for (int i = 0; i < rs.FieldCount(); ++i)
                row << (rs.IsNull(i) ? QStringLiteral("NULL") : rs[i].ToText());
            rows << row;
        }
        return rows;
    }

    static QStringList FirstColumn(const QString& statement)
    {
        QStringList column;
        for (const QStringList& row : Select(statement))
            column << row.first();
        return column;
    }

    static QStringList FieldNames(const char* statement)
    {
        const Recordset rs = gConnection->Execute(statement);
        QStringList names;
        for (int i = 0; i < rs.FieldCount(); ++i)
            names << rs.FieldName(i);
        return names;
    }

    static std::pair<int, QString> Failure(const QString& statement)
    {
        try {
            gConnection->Execute(statement);
        } catch (const RuntimeError& error) {
            return {error.Number(), error.Description()};
        }
        return {0, QStringLiteral("no failure")};
    }
};

struct TextCase {
    const char* given;
    const char* expected;
};
void PrintTo(const TextCase& text, std::ostream* out)
{
    *out << text.given;
}

class DialectDates : public Dialect, public ::testing::WithParamInterface<TextCase> { };

TEST_P(DialectDates, ReadTheirWay)
{
    EXPECT_EQ(Select(QStringLiteral("SELECT #%1#").arg(GetParam().given)), Table({{GetParam().expected}}));
}

INSTANTIATE_TEST_SUITE_P(Forms, DialectDates,
    ::testing::Values(TextCase{"2003-07-04", "7/4/2003"}, TextCase{"2003-7-4", "7/4/2003"},
        TextCase{"2003-7-4 23:59", "7/4/2003 11:59:00 PM"}, TextCase{"2003-7-4 12:00AM", "7/4/2003"},
        TextCase{"2003-7-4 12:30 AM", "7/4/2003 12:30:00 AM"}, TextCase{"2003-07-04 11:59PM", "7/4/2003 11:59:00 PM"},
        TextCase{"1-Jul-2003 00:00", "7/1/2003"}, TextCase{"31-Jul-2003 23:59", "7/31/2003 11:59:00 PM"},
        TextCase{"7/4/03", "7/4/2003"}, TextCase{"13/1/2003", "1/13/2003"}, TextCase{"July 4, 2003", "7/4/2003"},
        TextCase{"29-Feb-2004", "2/29/2004"}, TextCase{"10:30:15", "10:30:15 AM"}));

TEST_F(Dialect, DatesThatAreNoneAreRefused)
{
    for (const char* text : {"", " 12:00AM", "abc", "2003-2-30", "2004-20-12", "13/13/2003", "2003-7-4 25:00",
             "2003-7-4 13:00 PM", "1-Foo-2003", "2003-7-4 10:30:15:00", "99999-1-1"})
        EXPECT_EQ(Failure(QStringLiteral("SELECT #%1#").arg(text)),
            std::pair(SyntaxFailure, QStringLiteral("Syntax error in date in query expression '#%1#'.").arg(text)));
}

TEST_F(Dialect, MonthNamesMayBeTheUsers)
{
    SetRegional(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(
        Select("SELECT #1-Mai-2003#, #1-Dez-2003#, #1-May-2003#"), Table({{"01.05.2003", "01.12.2003", "01.05.2003"}}));
}

TEST_F(Dialect, TruthIsWrittenAsWordsAndCountsAsMinusOne)
{
    const int customer = Customer("Ann", "Lee").Add();
    Invoice(customer).No("open").Add();
    Invoice(customer).No("paid").Paid(true).Add();

    EXPECT_EQ(FirstColumn("SELECT invoiceno FROM invoice WHERE paid=0 "), QStringList({"open"}));
    EXPECT_EQ(FirstColumn("SELECT invoiceno FROM invoice WHERE paid = true"), QStringList({"paid"}));
    EXPECT_EQ(FirstColumn("SELECT invoiceno FROM invoice WHERE paid = -1"), QStringList({"paid"}));
    EXPECT_EQ(FirstColumn("SELECT invoiceno FROM invoice WHERE paid = 1"), QStringList());
    EXPECT_EQ(FirstColumn("SELECT invoiceno FROM invoice WHERE NOT paid"), QStringList({"open"}));
    gConnection->Execute("UPDATE invoice SET paid = Yes, StockReturned = false WHERE invoiceno = 'OPEN'");
    EXPECT_EQ(Rows("SELECT Paid, StockReturned FROM invoice"), Table({{"1", "0"}, {"1", "0"}}));
    EXPECT_EQ(Select("SELECT TOP 1 paid FROM invoice"), Table({{"True"}}));
}

TEST_F(Dialect, TopKeepsEveryRowThatTies)
{
    const int ann = Customer("Ann", "Lee").Add();
    const int bob = Customer("Bob", "Ray").Add();
    for (const int day : {1, 1, 2, 2, 3})
        Invoice(ann).Date(QDate(2026, 3, day)).Add();
    Invoice(bob).Date(QDate(2026, 4, 9)).Add();

    EXPECT_EQ(
        Select("SELECT TOP 1 submitteddate, count(submitteddate) as tot FROM invoice GROUP BY submitteddate ORDER "
               "BY count(submitteddate) DESC;"),
        Table({{"3/1/2026", "2"}, {"3/2/2026", "2"}}));
    EXPECT_EQ(Select("SELECT TOP 1 month(submitteddate), count(month(submitteddate)) as tot FROM invoice GROUP BY "
                     "month(submitteddate) ORDER BY count(month(submitteddate));"),
        Table({{"4", "1"}}));
    EXPECT_EQ(Select("SELECT TOP 2 id FROM invoice").size(), 2);
    EXPECT_EQ(FirstColumn("SELECT TOP 2 firstname FROM customer ORDER BY firstname DESC"), QStringList({"Bob", "Ann"}));
}

class DialectLike : public Dialect,
                    public ::testing::WithParamInterface<std::tuple<const char*, const char*, bool>> { };

TEST_P(DialectLike, Matches)
{
    const auto [pattern, text, matches] = GetParam();
    Customer(QString::fromUtf8(text), "x").Add();
    const Sql sql = Sql("SELECT id FROM customer WHERE firstname LIKE '{p}'").Text("p", QString::fromUtf8(pattern));
    EXPECT_EQ(!gConnection->Execute(sql).Eof(), matches);
}

INSTANTIATE_TEST_SUITE_P(Patterns, DialectLike,
    ::testing::Values(std::tuple("%smi%", "BLACKSMITH", true), std::tuple("smi*", "Smith", false),
        std::tuple("smi*", "smi*", true), std::tuple("_at", "Cat", true), std::tuple("_at", "chat", false),
        std::tuple("_at", "at", false), std::tuple("50[%]", "50%", true), std::tuple("50[%]", "500", false),
        std::tuple("%%", "", true), std::tuple("[a-c]x", "Bx", true), std::tuple("[!a-c]x", "Bx", false),
        std::tuple("[!a-c]x", "dx", true), std::tuple("a[]b", "ab", true), std::tuple("a]b", "a]b", true),
        std::tuple("%[[]%", "a[1", true), std::tuple("%é%", "CAFÉ", true), std::tuple("%caf%", "Été Café", true),
        std::tuple("%a%b%c", "xaybzbc", true), std::tuple("%a%b%c", "xaybzb", false), std::tuple("%a_", "aab", true),
        std::tuple("%o'b%", "O'Brien", true)));

TEST_F(Dialect, ComparisonsAndOrderAreBlindToCaseAndFollowTheLocale)
{
    for (const char* name :
        {"zebra", "Éclair", "apple", "Banana", "co-op", "coop", "cold", "copy", "10 bolts", "ÉCLAIR"})
        Item(QString::fromUtf8(name)).Add();
    Run("UPDATE item SET Name = NULL WHERE Name = 'zebra'");

    EXPECT_EQ(FirstColumn("SELECT name FROM item ORDER BY name").sliced(0, 8),
        QStringList({"NULL", "10 bolts", "apple", "Banana", "cold", "coop", "co-op", "copy"}));
    EXPECT_EQ(Select("SELECT count(*) FROM item WHERE name = 'BANANA'"), Table({{"1"}}));
    EXPECT_EQ(Select(QStringLiteral("SELECT count(*) FROM item WHERE name = 'éclair'")), Table({{"2"}}));
    EXPECT_EQ(Select(QStringLiteral("SELECT count(*) FROM item WHERE name IN ('éclair', 'APPLE')")), Table({{"3"}}));
}

TEST_F(Dialect, SharedNamesOfAllColumnsCarryTheirTable)
{
    Item("Screws").Number("S4").Add();
    const QStringList names = FieldNames("SELECT item.number, * FROM item, vendor WHERE item.vendorid = vendor.id");
    EXPECT_EQ(names.first(), "item.Number");
    EXPECT_TRUE(names.contains("item.id") && names.contains("vendor.id") && names.contains("BusinessName"));

    const Recordset rs = gConnection->Execute("SELECT * FROM item, vendor WHERE item.vendorid = vendor.id");
    EXPECT_EQ(rs["VENDOR.ID"].ToLong(), 1);
    EXPECT_THROW(rs["id"], RuntimeError);
    EXPECT_EQ(
        FieldNames("SELECT item.id, count(*), name AS n FROM item GROUP BY id"), QStringList({"id", "Expr1001", "n"}));
    EXPECT_EQ(
        FieldNames("SELECT c.name, w.name FROM category AS c, warehouse AS w"), QStringList({"c.name", "w.name"}));
}

class DialectAssigned
    : public Dialect,
      public ::testing::WithParamInterface<std::tuple<const char*, const char*, const char*, const char*>> { };

TEST_P(DialectAssigned, TakesTheKindOfItsColumn)
{
    const auto [literal, money, whole, number] = GetParam();
    const int item = Item("Screws").Price("1").Add();
    Line(1, item, 1, "1");
    gConnection->Execute(QStringLiteral("UPDATE itempricelist SET price = %1").arg(QLatin1String(literal)));
    gConnection->Execute(QStringLiteral("UPDATE invoiceline SET quantity = %1").arg(QLatin1String(literal)));
    gConnection->Execute(QStringLiteral("UPDATE item SET noinstock = %1").arg(QLatin1String(literal)));
    EXPECT_EQ(Rows("SELECT price, quantity, noinstock FROM itempricelist, invoiceline, item"),
        Table({{money, whole, number}}));
}

INSTANTIATE_TEST_SUITE_P(Forms, DialectAssigned,
    ::testing::Values(std::tuple("'12.5'", "12.5", "12", "12.5"), std::tuple("'13.5'", "13.5", "14", "13.5"),
        std::tuple("'$1,234.50'", "1234.5", "1234", "1234.5"), std::tuple("'(1.00)'", "-1", "-1", "-1.0"),
        std::tuple("'1.23456'", "1.2346", "1", "1.23456"), std::tuple("' 5 '", "5", "5", "5.0"),
        std::tuple("1.23456", "1.2346", "1", "1.23456"), std::tuple("-2.5", "-2.5", "-2", "-2.5"),
        std::tuple("(5)", "5", "5", "5.0"), std::tuple("+5", "5", "5", "5.0"), std::tuple("5.", "5", "5", "5.0"),
        std::tuple(".5", "0.5", "0", "0.5"), std::tuple("1e3", "1000", "1000", "1000.0"),
        std::tuple("1/8", "0.125", "0", "0.125"), std::tuple("5--5", "10", "10", "10.0"),
        std::tuple("0.1+0.2", "0.3", "0", "0.3"), std::tuple("Null", "NULL", "NULL", "NULL")));

/// Whatever the locale writes as a number, a statement that assigns it takes it back.
TEST_F(Dialect, AssignedNumbersMayHaveTheUsersDecimalSign)
{
    const int item = Item("Screws").Number("12").Stock(10).Add();
    const auto assigned = [&](const char* locale, const QString& value) {
        SetRegional(QLocale(QLatin1String(locale)));
        Run("UPDATE item SET NoInStock = 10, Number = '12'");
        const auto [number, answer] = Failure(
            QStringLiteral("UPDATE item SET NoInStock = %1, Number = 'n,5' WHERE id IN (0,%2)").arg(value).arg(item));
        return answer + QLatin1Char(' ') + Rows("SELECT NoInStock, Number FROM item").first().join(u' ');
    };
    const QString done = QStringLiteral("no failure ");
    const std::tuple<const char*, const char*, const char*> cases[] = {{"de_DE", "7,5", "7.5"},
        {"de_DE", "-7,25", "-7.25"}, {"de_DE", "1.234,5", "1234.5"}, {"de_DE", ",5", "0.5"},
        {"de_DE", "NoInStock - 2,5", "7.5"}, {"de_DE", "7.5", "7.5"}, {"de_DE", "1,5e1", "15.0"},
        {"fr_FR", "1\u202F234,5", "1234.5"}, {"ar_EG", "7\u066B5", "7.5"}};
    for (const auto& [locale, value, number] : cases)
        EXPECT_EQ(assigned(locale, QString::fromUtf8(value)), done + QLatin1String(number) + " n,5") << locale << value;

    const QString refused = QStringLiteral("Syntax error in UPDATE statement. 10.0 12");
    EXPECT_EQ(assigned("en_US", "7,5"), refused);
    EXPECT_EQ(assigned("de_CH", "7,5"), refused);
    EXPECT_EQ(assigned("de_DE", "7,5,5"), refused);
    EXPECT_EQ(assigned("de_DE", "7, 5"), refused);
    SetRegional(QLocale("de_DE"));
    EXPECT_EQ(Failure("UPDATE item SET NoInStock = 7,5").first, 0) << "the end of the list";
    EXPECT_EQ(Select("SELECT 7,5 FROM item WHERE NoInStock = 7.5"), Table({{"7", "5"}}));
    EXPECT_NE(Failure("UPDATE item SET NoInStock = 1 WHERE id = 7,5").first, 0);
}

TEST_F(Dialect, ArithmeticOnMoneyStaysAtFourDecimals)
{
    const int item = Item("Screws").Price("2.50").Add();
    gConnection->Execute("UPDATE itempricelist SET price = price + 0.00007");
    EXPECT_EQ(Single("SELECT price FROM itempricelist"), "2.5001");
    Line(1, item, 3, "19.99");
    Run("UPDATE invoiceline SET TaxRatePercentage = 8");
    EXPECT_EQ(Select("SELECT sum (quantity * (taxratepercentage/100*amount+amount)) AS subtotal FROM invoiceline"),
        Table({{"64.7676"}}));
    EXPECT_EQ(
        Select("SELECT 8/100, sum(price), count(*) FROM itempricelist WHERE id = 0"), Table({{"0.08", "NULL", "0"}}));
    EXPECT_EQ(Select("SELECT 'a' & Null & 'b' & 5"), Table({{"ab5"}}));
}

struct FailureCase {
    const char* statement;
    int number;
    const char* description;
};
void PrintTo(const FailureCase& failure, std::ostream* out)
{
    *out << failure.statement;
}

class DialectFailures : public Dialect, public ::testing::WithParamInterface<FailureCase> { };

TEST_P(DialectFailures, SayWhatIsWrong)
{
    Item("Screws").Stock(7).Add();
    EXPECT_EQ(Failure(GetParam().statement), std::pair(GetParam().number, QString::fromUtf8(GetParam().description)));
    EXPECT_EQ(Rows("SELECT NoInStock, Name FROM item"), Table({{"7.0", "Screws"}}));
}

constexpr auto Mismatch = "Data type mismatch in criteria expression.";
constexpr auto NoValue = "No value given for one or more required parameters.";
constexpr auto BadUpdate = "Syntax error in UPDATE statement.";

INSTANTIATE_TEST_SUITE_P(Texts, DialectFailures,
    ::testing::Values(FailureCase{"UPDATE item SET noinstock = abc", UnknownNameFailure, NoValue},
        FailureCase{"UPDATE item SET nothing = 5", UnknownNameFailure, NoValue},
        FailureCase{"SELECT name AS n FROM item WHERE n = 'x'", UnknownNameFailure, NoValue},
        FailureCase{"SELECT * FROM nowhere", UnknownTableFailure,
            "The database engine cannot find the input table or query 'nowhere'. Make sure it exists and that its name "
            "is spelled correctly."},
        FailureCase{"SELECT name FROM item, category", SyntaxFailure,
            "The specified field 'name' could refer to more than one table listed in the FROM clause of your SQL "
            "statement."},
        FailureCase{"UPDATE item SET noinstock = ''", TypeMismatchFailure, Mismatch},
        FailureCase{"UPDATE item SET noinstock = '5 items'", TypeMismatchFailure, Mismatch},
        FailureCase{"SELECT id FROM item WHERE id = '5'", TypeMismatchFailure, Mismatch},
        FailureCase{"SELECT id FROM item WHERE name = 5", TypeMismatchFailure, Mismatch},
        FailureCase{"UPDATE item SET VendorID = '3000000000'", SyntaxFailure, "Numeric field overflow."},
        FailureCase{"UPDATE item SET VendorID = 3000000000", SyntaxFailure, "Numeric field overflow."},
        FailureCase{"UPDATE item SET VendorID = VendorID + 3000000000", SyntaxFailure, "Numeric field overflow."},
        FailureCase{"UPDATE item SET noinstock =  WHERE id = 1", SyntaxFailure, BadUpdate},
        FailureCase{"UPDATE item SET noinstock = , name = 'x'", SyntaxFailure, BadUpdate},
        FailureCase{"UPDATE item SET noinstock = 1,234 WHERE id = 1", SyntaxFailure, BadUpdate},
        FailureCase{"UPDATE item SET noinstock = 5 5 WHERE id = 1", SyntaxFailure,
            "Syntax error (missing operator) in query expression '5 5'."},
        FailureCase{"UPDATE item SET noinstock = 1d3 WHERE id = 1", SyntaxFailure,
            "Syntax error (missing operator) in query expression '1d3'."},
        FailureCase{"UPDATE item SET noinstock = noinstock - 5- WHERE id = 1", SyntaxFailure,
            "Syntax error (missing operator) in query expression 'noinstock - 5-'."},
        FailureCase{"UPDATE item SET noinstock = $5", SyntaxFailure,
            "Syntax error (missing operator) in query expression 'noinstock = $5'."},
        FailureCase{"SELECT id FROM item WHERE name = ?", SyntaxFailure,
            "Syntax error (missing operator) in query expression 'name = ?'."},
        FailureCase{"SELECT id FROM item WHERE name = 'O'Brien'", SyntaxFailure,
            "Syntax error (missing operator) in query expression 'name = 'O'Brien''."},
        FailureCase{"SELECT id FROM item WHERE name = 'abc''", SyntaxFailure,
            "Syntax error in string in query expression 'name = 'abc'''."},
        FailureCase{
            "DELETE FROM item; DELETE FROM vendor", SyntaxFailure, "Characters found after end of SQL statement."},
        FailureCase{"INSERT INTO item (name) VALUES ('x')", SyntaxFailure,
            "Invalid SQL statement; expected 'DELETE', 'INSERT', 'PROCEDURE', 'SELECT', or 'UPDATE'."},
        FailureCase{"SELECT id FROM item WHERE ", SyntaxFailure, "Syntax error in WHERE clause."},
        FailureCase{"SELECT id FROM", SyntaxFailure, "Syntax error in FROM clause."},
        FailureCase{"SELECT id FROM item ORDER BY ", SyntaxFailure, "Syntax error in ORDER BY clause."},
        FailureCase{"SELECT soundex(name) FROM item", SyntaxFailure, "Undefined function 'soundex' in expression."}));

TEST_F(Dialect, TextLongerThanItsColumnIsRefusedWhole)
{
    Item("Screws").Add();
    const QString fits = QString(255, u'é');
    gConnection->Execute(Sql("UPDATE item SET name = '{name}'").Text("name", fits));
    const auto [number, description] = Failure(QStringLiteral("UPDATE item SET name = '%1x'").arg(fits));
    EXPECT_EQ(number, TooLongFailure);
    EXPECT_EQ(Single("SELECT Name FROM item"), fits);
}

/// Whatever is typed into a statement, reading it ends, and ends in a shape or in a RuntimeError.
TEST_F(Dialect, SurvivesStatementsMadeOfAnyPieces)
{
    const QStringList pieces{"SELECT ", "UPDATE item SET ", "DELETE FROM item", " FROM ", "item", " WHERE ", "(", ")",
        ",", "'", "\"", "#", "[", "]", "name", " LIKE ", "%", " TOP 1 ", "*", ".", " = ", "-", "/", "&", " NOT ",
        " BETWEEN ", " AND ", " IN ", "5", "1e9", "2003-7-4", " ORDER BY ", " GROUP BY ", "count(", ";", "é",
        QString(QChar(0xD800)), QString(QChar(0)), " INNER JOIN vendor ON ", "((((((((((", " IS NULL", " AS ", "\n",
        "{id}", "true"};
    std::mt19937 random(20260314);
    int understood = 0;
    for (int round = 0; round < 20000; ++round) {
        QString statement = pieces[qsizetype(random() % 3)];
        for (unsigned length = random() % 12; length > 0; --length)
            statement += pieces[qsizetype(random() % size_t(pieces.size()))];
        StatementShape shape;
        Ignoring([&] {
            ReadStatement(statement, shape);
            Translate(shape);
            ++understood;
        });
    }
    EXPECT_GT(understood, 20);
}

/// A statement of any size is answered in time that grows with it: with rows, or with the dialect's own words.
TEST_F(Dialect, LongAndDeepExpressionsAreAnsweredAtOnce)
{
    Item("1").Add();
    const QString tooComplex = "Expression too complex in query expression.";
    for (const char* link : {"id = 1 OR ", "id = 1 AND ", "1 + ", "'x' & ", "1 * "}) {
        const QString chain = QString(link).repeated(300)
            + (link[0] == '1'        ? "1 > 0"
                    : link[0] == 'i' ? "id = 1"
                                     : "'x' <> ''");
        EXPECT_EQ(FirstColumn("SELECT name FROM item WHERE " + chain), QStringList("1")) << link;
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(Failure("SELECT name FROM item WHERE " + QString(link).repeated(20000) + "1").second, tooComplex)
            << link;
        EXPECT_LT(timer.elapsed(), 5000) << link;
    }
    for (const char* nest : {"(", "NOT (", "1 + (", "-("})
        for (const int depth : {20, 150, 5000})
            EXPECT_EQ(Failure("SELECT " + QString(nest).repeated(depth) + "1" + QString(depth, u')')).second,
                depth < 100 ? "no failure" : tooComplex)
                << nest << depth;
    const auto shown = Failure("SELECT name FROM item WHERE name = ?" + QString(5000000, u'x')).second;
    EXPECT_LT(shown.size(), 700) << "a box shows it";
}
