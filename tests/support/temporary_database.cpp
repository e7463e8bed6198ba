#include "support/temporary_database.h"

#include "base/clock.h"
#include "base/files.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "db/connection_private.h"
#include "db/make_database.h"

#include <QDir>
#include <QFile>
#include <QLocale>

#include <memory>

#include <sqlite3.h>

namespace {

/// Made once a process; each test copies it.
QString TemplatePath()
{
    static const QTemporaryDir folder;
    static const QString path = [] {
        const QString made = folder.filePath(QStringLiteral("template.mdb"));
        MakeDatabase(made);
        return made;
    }();
    return path;
}

QString Quoted(const QString& text)
{
    return u'\'' + SqlText(text) + u'\'';
}

QString DateText(const QDateTime& date)
{
    return Quoted(date.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
}

QString NumberText(double number)
{
    return QString::number(number, 'g', 17);
}

struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

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

DatabaseTest::DatabaseTest() = default;
DatabaseTest::~DatabaseTest() = default;

void DatabaseTest::SetUp()
{
    ASSERT_TRUE(m_folder.isValid());
    ASSERT_TRUE(QFile::copy(TemplatePath(), DatabasePath()));
    SetRegional(QLocale(QLocale::English, QLocale::UnitedStates));
    SetClock([] { return QDateTime(QDate(2026, 3, 14), QTime(10, 30)); });
    SetProgramFolder(Folder());
    SetSettingsFolder(m_folder.filePath(QStringLiteral("settings")));

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
    SetSettingsFolder(QString());
    SetProgramFolder(QString());
    SetClock({});
    SetRegional(QLocale(QLocale::English, QLocale::UnitedStates));
}

QString DatabaseTest::Folder() const
{
    return m_folder.path();
}

QString DatabaseTest::DatabasePath() const
{
    return m_folder.filePath(QStringLiteral("db.mdb"));
}

Table DatabaseTest::Rows(const QString& sql) const
{
    sqlite3_stmt* handle = nullptr;
    const QByteArray text = sql.toUtf8();
    EXPECT_EQ(sqlite3_prepare_v2(m_plain, text.constData(), -1, &handle, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_plain);
    const std::unique_ptr<sqlite3_stmt, StatementCloser> statement(handle);
    Table rows;
    int code = SQLITE_DONE;
    while (handle != nullptr && (code = sqlite3_step(handle)) == SQLITE_ROW) {
        QStringList row;
        for (int i = 0; i < sqlite3_column_count(handle); ++i) {
            const auto* field = reinterpret_cast<const char*>(sqlite3_column_text(handle, i));
            row << (field == nullptr ? QStringLiteral("NULL") : QString::fromUtf8(field));
        }
        rows << row;
    }
    EXPECT_EQ(code, SQLITE_DONE) << sqlite3_errmsg(m_plain);
    return rows;
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

int DatabaseTest::Insert(const QString& table, const QStringList& columns, const QStringList& values) const
{
    Run(QStringLiteral("INSERT INTO [%1] ([%2]) VALUES (%3)")
            .arg(table, columns.join(QStringLiteral("], [")), values.join(QStringLiteral(", "))));
    return int(sqlite3_last_insert_rowid(m_plain));
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

int DatabaseTest::TaxRateRow(const QString& name, double percentage) const
{
    return Insert("taxrate", {"name", "percentage"}, {Quoted(name), NumberText(percentage)});
}

int DatabaseTest::PriceListRow(const QString& name) const
{
    return Insert("PriceList", {"name"}, {Quoted(name)});
}

int DatabaseTest::VendorRow(const QString& businessName) const
{
    return Insert("vendor", {"BusinessName"}, {Quoted(businessName)});
}

int DatabaseTest::CategoryRow(const QString& name) const
{
    return Insert("category", {"name"}, {Quoted(name)});
}

int DatabaseTest::SubCategoryRow(int categoryId, const QString& name) const
{
    return Insert("subcategory", {"name", "CategoryID"}, {Quoted(name), QString::number(categoryId)});
}

int DatabaseTest::WarehouseRow(const QString& name) const
{
    return Insert("warehouse", {"name"}, {Quoted(name)});
}

int DatabaseTest::LocationRow(int warehouseId, const QString& name) const
{
    return Insert("location", {"name", "WarehouseID"}, {Quoted(name), QString::number(warehouseId)});
}

double DatabaseTest::Stock(int itemId) const
{
    return Single(QStringLiteral("SELECT NoInStock FROM item WHERE id = %1").arg(itemId)).toDouble();
}

DatabaseTest::ItemRow DatabaseTest::Item(const QString& name) const
{
    return {*this, name};
}

DatabaseTest::CustomerRow DatabaseTest::Customer(const QString& firstName, const QString& lastName) const
{
    return {*this, firstName, lastName};
}

DatabaseTest::InvoiceRow DatabaseTest::Invoice(int customerId) const
{
    return {*this, customerId};
}

void RowBuilder::SetColumn(const QString& column, const QString& value)
{
    const qsizetype index = m_columns.indexOf(column);
    if (index >= 0) {
        m_values[index] = value;
        return;
    }
    m_columns << column;
    m_values << value;
}

DatabaseTest::ItemRow::ItemRow(const DatabaseTest& test, const QString& name)
    : m_test(test)
{
    Set("Name", Quoted(name));
    for (const char* key : {"TaxRateID", "LocationID", "SubCategoryID", "VendorID"})
        Set(key, "1");
    for (const char* number : {"NoInStock", "ReorderLevel", "MinStockLevel", "WarrantyReturns"})
        Set(number, "0");
    for (const char* text : {"Number", "Description", "Barcode"})
        Set(text, "''");
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Set(const QString& column, const QString& value)
{
    SetColumn(column, value);
    return *this;
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Number(const QString& number)
{
    return Set("Number", Quoted(number));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Description(const QString& description)
{
    return Set("Description", Quoted(description));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Barcode(const QString& barcode)
{
    return Set("Barcode", Quoted(barcode));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Stock(double quantity)
{
    return Set("NoInStock", NumberText(quantity));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::ReorderLevel(double level)
{
    return Set("ReorderLevel", NumberText(level));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::MinStockLevel(double level)
{
    return Set("MinStockLevel", NumberText(level));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Price(const char* price)
{
    return Price("Sale Price", price);
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Price(const QString& priceList, const char* price)
{
    m_prices.append({priceList, QString::fromLatin1(price)});
    return *this;
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::TaxRate(int id)
{
    return Set("TaxRateID", QString::number(id));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::SubCategory(int id)
{
    return Set("SubCategoryID", QString::number(id));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Location(int id)
{
    return Set("LocationID", QString::number(id));
}

DatabaseTest::ItemRow& DatabaseTest::ItemRow::Vendor(int id)
{
    return Set("VendorID", QString::number(id));
}

int DatabaseTest::ItemRow::Add()
{
    const int id = m_test.Insert("item", m_columns, m_values);
    m_test.Run(QStringLiteral("INSERT INTO ItemPriceList (ItemID, PriceListID, Price) SELECT %1, id, 0 FROM PriceList")
                   .arg(id));
    for (const auto& [list, price] : m_prices) {
        m_test.Run(QStringLiteral("UPDATE ItemPriceList SET Price = %1 WHERE ItemID = %2 AND PriceListID = "
                                  "(SELECT id FROM PriceList WHERE name = %3)")
                       .arg(price, QString::number(id), Quoted(list)));
    }
    return id;
}

DatabaseTest::CustomerRow::CustomerRow(const DatabaseTest& test, const QString& firstName, const QString& lastName)
    : m_test(test)
{
    Set("FirstName", firstName).Set("LastName", lastName);
    SetColumn("Discount", "0");
    SetColumn("PriceListID", "1");
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Set(const QString& column, const QString& value)
{
    SetColumn(column, Quoted(value));
    return *this;
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Business(const QString& name)
{
    return Set("BusinessName", name);
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Address(
    const QString& line1, const QString& city, const QString& postCode)
{
    return Set("Address1", line1).Set("City", city).Set("PostCode", postCode);
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Phone(const QString& phone)
{
    return Set("Phone", phone);
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Email(const QString& email)
{
    return Set("Email", email);
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::Discount(double percentage)
{
    SetColumn("Discount", NumberText(percentage));
    return *this;
}

DatabaseTest::CustomerRow& DatabaseTest::CustomerRow::PriceList(int id)
{
    SetColumn("PriceListID", QString::number(id));
    return *this;
}

int DatabaseTest::CustomerRow::Add()
{
    return m_test.Insert("customer", m_columns, m_values);
}

DatabaseTest::InvoiceRow::InvoiceRow(const DatabaseTest& test, int customerId)
    : m_test(test)
{
    Set("CustomerID", QString::number(customerId));
    Date(Now().date());
    for (const char* truth : {"Paid", "WarrantyInvoice", "StockReturned"})
        Set(truth, "0");
    for (const char* text : {"InvoiceNo", "PaymentMethod", "Notes", "Total2ndTax"})
        Set(text, "''");
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Set(const QString& column, const QString& value)
{
    SetColumn(column, value);
    return *this;
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::No(const QString& number)
{
    return Set("InvoiceNo", Quoted(number));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Date(const QDate& date)
{
    return Date(date.startOfDay());
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Date(const QDateTime& date)
{
    return Set("SubmittedDate", DateText(date));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Shipped(const QDate& date)
{
    return Set("ShippedDate", DateText(date.startOfDay()));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Paid(bool paid)
{
    return Set("Paid", QString::number(int(paid)));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Warranty(bool warranty)
{
    return Set("WarrantyInvoice", QString::number(int(warranty)));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::Notes(const QString& notes)
{
    return Set("Notes", Quoted(notes));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::PaymentMethod(const QString& method)
{
    return Set("PaymentMethod", Quoted(method));
}

DatabaseTest::InvoiceRow& DatabaseTest::InvoiceRow::SecondTax(const QString& text)
{
    return Set("Total2ndTax", Quoted(text));
}

int DatabaseTest::InvoiceRow::Add()
{
    return m_test.Insert("invoice", m_columns, m_values);
}
