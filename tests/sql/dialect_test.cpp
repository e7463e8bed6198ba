#include "db/connection_private.h"
#include "sql/dialect.h"
#include "support/test.h"

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

    static QString Failure(const QString& statement)
    {
        try {
            gConnection->Execute(statement);
        } catch (const RuntimeError& error) {
            return error.Description();
        }
        return QStringLiteral("no failure");
    }

    static QStringList FieldNames(const QString& statement)
    {
        const Recordset rs = gConnection->Execute(statement);
        QStringList names;
        for (int i = 0; i < rs.FieldCount(); ++i)
            names << rs.FieldName(i);
        return names;
    }

    QString Answered(const QString& act, const QString& given) const;
};

QString Joined(const Table& rows)
{
    QStringList joined;
    for (const QStringList& row : rows)
        joined.append(row.join('|'));
    return joined.join("; ");
}

QString Dialect::Answered(const QString& act, const QString& given) const
{
    try {
        if (act == "file")
            return Joined(Rows(given));
        if (act == "date")
            return Joined(Select("SELECT #" + given + "#"));
        if (act == "like")
            return Joined(Select(Sql("SELECT firstname FROM customer WHERE firstname LIKE '{p}' ORDER BY id")
                                     .Text("p", given)
                                     .Filled()));
        if (act == "names")
            return FieldNames(given).join('|');
        if (act == "assigned") {
            for (const char* column : {"itempricelist SET price", "invoiceline SET quantity", "item SET noinstock"})
                gConnection->Execute(QStringLiteral("UPDATE %1 = %2").arg(column, given));
            return Joined(Rows("SELECT price, quantity, noinstock FROM itempricelist, invoiceline, item"));
        }
        if (act == "stock") {
            Run("UPDATE item SET NoInStock = 10, Number = '12'");
            gConnection->Execute(
                QStringLiteral("UPDATE item SET NoInStock = %1, Number = 'n,5' WHERE id IN (0,1)").arg(given));
            return Joined(Rows("SELECT NoInStock, Number FROM item WHERE id = 1"));
        }
        if (given.startsWith("SELECT"))
            return Joined(Select(given));
        gConnection->Execute(given);
        return QString();
    } catch (const RuntimeError& error) {
        return QStringLiteral("%1: %2").arg(error.Number()).arg(error.Description());
    }
}

TEST_F(Dialect, AnswersStatementsAsToldInTheFile)
{
    ExpectCases("dialect.txt", [this](const QString& act, const QString& given) { return Answered(act, given); });
}

TEST_F(Dialect, SharedNamesOfAllColumnsCarryTheirTableAndTextLongerThanItsColumnIsRefusedWhole)
{
    Item("Screws").Number("S4").Add();
    const Recordset rs =
        gConnection->Execute("SELECT item.number, * FROM item, vendor WHERE item.vendorid = vendor.id");
    EXPECT_EQ(rs.FieldName(0), "item.Number");
    EXPECT_EQ(rs["VENDOR.ID"].ToLong(), 1);
    EXPECT_EQ(rs["BusinessName"].ToText(), "None");
    EXPECT_THROW(rs["id"], RuntimeError);

    const QString fits = QString(255, u'é');
    gConnection->Execute(Sql("UPDATE item SET name = '{name}'").Text("name", fits));
    EXPECT_NE(Failure(QStringLiteral("UPDATE item SET name = '%1x'").arg(fits)), "no failure");
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
        EXPECT_EQ(Select("SELECT name FROM item WHERE " + chain), Table({{"1"}})) << link;
        QElapsedTimer timer;
        timer.start();
        EXPECT_EQ(Failure("SELECT name FROM item WHERE " + QString(link).repeated(20000) + "1"), tooComplex) << link;
        EXPECT_LT(timer.elapsed(), 5000) << link;
    }
    for (const char* nest : {"(", "NOT (", "1 + (", "-("})
        for (const int depth : {20, 150, 5000})
            EXPECT_EQ(Failure("SELECT " + QString(nest).repeated(depth) + "1" + QString(depth, u')')),
                depth < 100 ? "no failure" : tooComplex)
                << nest << depth;
    const auto shown = Failure("SELECT name FROM item WHERE name = ?" + QString(5000000, u'x'));
    EXPECT_LT(shown.size(), 700) << "a box shows it";
}

/// An index finds the texts that a reading of the whole table finds, whatever letters they are made of.
TEST_F(Dialect, ATextWithAnyLettersIsFoundThroughTheIndexAsWithoutIt)
{
    const QStringList letters{"a", "A", "s", "S", "ſ", "ß", "ẞ", "k", "K", "\u212A", "å", "Å", "\u212B", "σ", "ς", "Σ",
        "Д", "д", "i", "İ", "i\u0307", "ŉ", "ﬀ", "f", "F", "ΐ", "\u1FD3", "𐐀", "𐐨", "語", "-", "\uFFFF"};
    std::mt19937 random(20260314);
    const auto text = [&] {
        QString made;
        for (unsigned length = 1 + random() % 4; length > 0; --length)
            made += letters[qsizetype(random() % size_t(letters.size()))];
        return made;
    };
    Run("INSERT INTO item (Name) VALUES (NULL)");
    for (int i = 0; i < 300; ++i)
        Item(text()).Add();
    int found = 0;
    for (int i = 0; i < 300; ++i) {
        const auto rows = [name = text()](const char* condition) {
            return Select(Sql("SELECT name FROM item WHERE ").Append(condition).Text("name", name).Filled());
        };
        const Table plain = rows("name & '' = '{name}' ORDER BY id");
        EXPECT_EQ(rows("'{name}' = item.name ORDER BY id"), plain);
        EXPECT_EQ(rows("NOT (item.name = '{name}')").size() + plain.size(), 300);
        found += int(plain.size());
    }
    EXPECT_GT(found, 300);
    StatementShape shape;
    ReadStatement("SELECT id FROM item WHERE name = 'Größe'", shape);
    const Table plan =
        PlainRows(gConnection->Private().handle, "EXPLAIN QUERY PLAN " + QString::fromStdString(Translate(shape).sql));
    EXPECT_EQ(plan.first().last(), "SEARCH item USING COVERING INDEX item_name (Name=?)");
}
