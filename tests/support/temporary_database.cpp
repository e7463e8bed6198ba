#include "support/temporary_database.h"

#include "base/clock.h"
#include "base/files.h"
#include "db/connection_private.h"
#include "db/make_database.h"

#include <QDir>
#include <QFile>

#include <sqlite3.h>

namespace {

/// Made once a process; each test copies it.
QString TemplatePath()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        QString made = folder.filePath(QStringLiteral("template.mdb"));
        MakeDatabase(made);
        return made;
    }();
    return path;
}

QString Quoted(const QString& text)
{
    return u'\'' + SqlText(text) + u'\'';
}

} // namespace

void PrintTo(const Table& table, std::ostream* out)
{
    *out << "{";
    for (const QStringList& row : table)
        *out << "\n  {\"" << row.join(QStringLiteral("\", \"")).toStdString() << "\"}";
    *out << "}";
}

Currency Money(const char* text)
{
    bool ok = false;
    const double value = QByteArray(text).toDouble(&ok);
    EXPECT_TRUE(ok) << text;
    return CCur(value);
}

Table PlainRows(sqlite3* handle, const QString& sql)
{
    sqlite3_stmt* statement = nullptr;
    const QByteArray text = sql.toUtf8();
    EXPECT_EQ(sqlite3_prepare_v2(handle, text.constData(), -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(handle);
    Table rows;
    int code = SQLITE_DONE;
    while (statement != nullptr && (code = sqlite3_step(statement)) == SQLITE_ROW) {
        QStringList row;
        for (int i = 0; i < sqlite3_column_count(statement); ++i) {
            const auto* field = reinterpret_cast<const char*>(sqlite3_column_text(statement, i));
            row << (field == nullptr ? QStringLiteral("NULL") : QString::fromUtf8(field));
        }
        rows << row;
    }
    EXPECT_EQ(code, SQLITE_DONE) << sqlite3_errmsg(handle);
    sqlite3_finalize(statement);
    return rows;
}

Table PlainRows(const QString& path, const QString& sql)
{
    sqlite3* handle = nullptr;
    sqlite3_open_v2(path.toUtf8().constData(), &handle, SQLITE_OPEN_READONLY, nullptr);
    Table rows = PlainRows(handle, sql);
    sqlite3_close(handle);
    return rows;
}

void DatabaseTest::SetUp()
{
    ASSERT_TRUE(m_folder.isValid());
    ASSERT_TRUE(QFile::copy(TemplatePath(), DatabasePath()));
    SetClock([] { return QDateTime(QDate(2026, 3, 14), QTime(10, 30)); });
    SetProgramFolder(Folder());

    m_connection.Open(DatabasePath());
    // Nothing is lost with a test that outlives the machine's power.
    m_connection.Private().RunPlain("PRAGMA synchronous = OFF");
    gConnection = &m_connection;

    ASSERT_EQ(sqlite3_open(DatabasePath().toUtf8().constData(), &m_plain), SQLITE_OK);
    sqlite3_busy_timeout(m_plain, 5000);
    Run(QStringLiteral("PRAGMA synchronous = OFF"));
}

void DatabaseTest::TearDown()
{
    sqlite3_close(m_plain);
    m_plain = nullptr;
    gConnection = nullptr;
    m_connection.Close();
}

QString DatabaseTest::Folder() const
{
    return m_folder.path();
}

QString DatabaseTest::DatabasePath() const
{
    return m_folder.filePath(QStringLiteral("db.mdb"));
}

QString DatabaseTest::Single(const QString& sql) const
{
    const Table rows = Rows(sql);
    return rows.isEmpty() ? QString() : rows.first().first();
}

qint64 DatabaseTest::Count(const QString& table) const
{
    return Single(QStringLiteral("SELECT count(*) FROM [%1]").arg(table)).toLongLong();
}

void DatabaseTest::Run(const QString& sql) const
{
    EXPECT_EQ(sqlite3_exec(m_plain, sql.toUtf8().constData(), nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(
        m_plain) << "\n" << sql.toStdString();
}

int DatabaseTest::Line(int invoiceId, int itemId, int quantity, const char* amount) const
{
    Run(QStringLiteral("INSERT INTO invoiceline (InvoiceID, ItemID, Quantity, Amount, Number, Name, Description, "
                       "TaxRateName, TaxRatePercentage) "
                       "SELECT %1, item.id, %2, %3, item.Number, item.Name, Description, taxrate.name, percentage "
                       "FROM item JOIN taxrate ON taxrate.id = item.TaxRateID WHERE item.id = %4")
            .arg(QString::number(invoiceId), QString::number(quantity), QString::fromLatin1(amount),
                QString::number(itemId)));
    return int(sqlite3_last_insert_rowid(m_plain));
}

double DatabaseTest::Stock(int itemId) const
{
    return Single(QStringLiteral("SELECT NoInStock FROM item WHERE id = %1").arg(itemId)).toDouble();
}

RowBuilder DatabaseTest::Item(const QString& name) const
{
    RowBuilder row(*this, "item");
    for (const char* column : {"TaxRateID", "LocationID", "SubCategoryID", "VendorID"})
        row.Set(column, 1);
    for (const char* column : {"NoInStock", "ReorderLevel", "MinStockLevel", "WarrantyReturns"})
        row.Set(column, 0);
    return row.Set("Name", name).Number({}).Description({}).Barcode({});
}

RowBuilder DatabaseTest::Customer(const QString& firstName, const QString& lastName) const
{
    return RowBuilder(*this, "customer").Set("FirstName", firstName).Set("LastName", lastName).Discount(0).PriceList(1);
}

RowBuilder DatabaseTest::Invoice(int customerId) const
{
    RowBuilder row(*this, "invoice");
    row.Set("CustomerID", customerId).Date(Now().date()).Paid(false).Warranty(false).Set("StockReturned", 0);
    return row.No({}).PaymentMethod({}).Notes({}).SecondTax({});
}

RowBuilder::RowBuilder(const DatabaseTest& test, const char* table)
    : m_test(test)
    , m_table(table)
{
}

RowBuilder& RowBuilder::SetSql(const QString& column, const QString& value)
{
    if (const qsizetype index = m_columns.indexOf(column); index >= 0) {
        m_values[index] = value;
        return *this;
    }
    m_columns << column;
    m_values << value;
    return *this;
}

RowBuilder& RowBuilder::Set(const QString& column, const QString& text)
{
    return SetSql(column, Quoted(text));
}

RowBuilder& RowBuilder::Set(const QString& column, double number)
{
    return SetSql(column, QString::number(number, 'g', 17));
}

RowBuilder& RowBuilder::SetDate(const QString& column, const QDateTime& date)
{
    return Set(column, date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

RowBuilder& RowBuilder::Price(const QString& priceList, const char* price)
{
    m_prices.append({priceList, QString::fromLatin1(price)});
    return *this;
}

RowBuilder& RowBuilder::Address(const QString& line1, const QString& city, const QString& postCode)
{
    return Set("Address1", line1).Set("City", city).Set("PostCode", postCode);
}

int RowBuilder::Add() const
{
    m_test.Run(QStringLiteral("INSERT INTO [%1] ([%2]) VALUES (%3)")
                   .arg(m_table, m_columns.join(QStringLiteral("], [")), m_values.join(QStringLiteral(", "))));
    const int id = int(sqlite3_last_insert_rowid(m_test.m_plain));
    if (m_table == QLatin1String("item"))
        m_test.Run(QStringLiteral("INSERT INTO ItemPriceList (ItemID, PriceListID, Price) "
                                  "SELECT %1, id, 0 FROM PriceList")
                       .arg(id));
    for (const auto& [list, price] : m_prices)
        m_test.Run(QStringLiteral("UPDATE ItemPriceList SET Price = %1 WHERE ItemID = %2 AND PriceListID = "
                                  "(SELECT id FROM PriceList WHERE name = %3)")
                       .arg(price, QString::number(id), Quoted(list)));
    return id;
}
