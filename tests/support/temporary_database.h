#pragma once

#include "base/currency.h"
#include "db/connection.h"
#include "support/printing.h"

#include <gtest/gtest.h>
#include <QDate>
#include <QList>
#include <QStringList>
#include <QTemporaryDir>

#include <utility>

struct sqlite3;

/// Rows of texts, as `Rows` reads them and as tests write them: `Table({{"7", "2.5"}})`.
struct Table : QList<QStringList> {
    using QList<QStringList>::QList;
};
void PrintTo(const Table& table, std::ostream* out);

/// The amount that a decimal text with a point names, whatever the locale.
Currency Money(const char* text);

/// The columns and values of a row to be, in plain SQL.
class RowBuilder {
protected:
    void SetColumn(const QString& column, const QString& value);

    QStringList m_columns;
    QStringList m_values;
};

/// A fresh db.mdb with its seed rows in a folder of its own, a settings store beside it, United States formats and the
/// time fixed at 14 March 2026, 10:30. gConnection is open.
class DatabaseTest : public ::testing::Test {
protected:
    class ItemRow;
    class CustomerRow;
    class InvoiceRow;

    DatabaseTest();
    ~DatabaseTest() override;
    void SetUp() override;
    void TearDown() override;

    /// The folder of the database, the settings and the program, without a trailing separator.
    QString Folder() const;
    QString DatabasePath() const;

    /// Plain SQL on a handle of its own, past the dialect. Null reads as "NULL".
    Table Rows(const QString& sql) const;
    QString Single(const QString& sql) const; ///< the first field of the first row; "" when there is none
    qint64 Count(const QString& table) const;
    void Run(const QString& sql) const;

    /// Rows as a test needs them; `Add()` writes the row and returns its id.
    ItemRow Item(const QString& name) const;
    CustomerRow Customer(const QString& firstName, const QString& lastName) const;
    InvoiceRow Invoice(int customerId) const;
    int Line(int invoiceId, int itemId, int quantity, const char* amount) const; ///< copies number, name and tax rate
    int TaxRateRow(const QString& name, double percentage) const;
    int PriceListRow(const QString& name) const;
    int VendorRow(const QString& businessName) const;
    int CategoryRow(const QString& name) const;
    int SubCategoryRow(int categoryId, const QString& name) const;
    int WarehouseRow(const QString& name) const;
    int LocationRow(int warehouseId, const QString& name) const;

    /// Stock on hand.
    double Stock(int itemId) const;

private:
    friend class ItemRow;
    friend class CustomerRow;
    friend class InvoiceRow;
    int Insert(const QString& table, const QStringList& columns, const QStringList& values) const;

    QTemporaryDir m_folder;
    Connection m_connection;
    sqlite3* m_plain = nullptr;
};

/// An item that points at the "None" rows, with a price of 0 in every price list, until told otherwise.
class DatabaseTest::ItemRow : RowBuilder {
public:
    ItemRow(const DatabaseTest& test, const QString& name);
    ItemRow& Number(const QString& number);
    ItemRow& Description(const QString& description);
    ItemRow& Barcode(const QString& barcode);
    ItemRow& Stock(double quantity);
    ItemRow& ReorderLevel(double level);
    ItemRow& MinStockLevel(double level);
    ItemRow& Price(const char* price); ///< in the default price list
    ItemRow& Price(const QString& priceList, const char* price);
    ItemRow& TaxRate(int id);
    ItemRow& SubCategory(int id);
    ItemRow& Location(int id);
    ItemRow& Vendor(int id);
    int Add();

private:
    ItemRow& Set(const QString& column, const QString& value);

    const DatabaseTest& m_test;
    QList<std::pair<QString, QString>> m_prices;
};

class DatabaseTest::CustomerRow : RowBuilder {
public:
    CustomerRow(const DatabaseTest& test, const QString& firstName, const QString& lastName);
    CustomerRow& Business(const QString& name);
    CustomerRow& Address(const QString& line1, const QString& city, const QString& postCode);
    CustomerRow& Phone(const QString& phone);
    CustomerRow& Email(const QString& email);
    CustomerRow& Discount(double percentage);
    CustomerRow& PriceList(int id);
    CustomerRow& Set(const QString& column, const QString& value); ///< any other column
    int Add();

private:
    const DatabaseTest& m_test;
};

/// An unpaid invoice of the fixed day, until told otherwise.
class DatabaseTest::InvoiceRow : RowBuilder {
public:
    InvoiceRow(const DatabaseTest& test, int customerId);
    InvoiceRow& No(const QString& number);
    InvoiceRow& Date(const QDate& date);
    InvoiceRow& Date(const QDateTime& date);
    InvoiceRow& Shipped(const QDate& date);
    InvoiceRow& Paid(bool paid);
    InvoiceRow& Warranty(bool warranty);
    InvoiceRow& Notes(const QString& notes);
    InvoiceRow& PaymentMethod(const QString& method);
    InvoiceRow& SecondTax(const QString& text);
    int Add();

private:
    InvoiceRow& Set(const QString& column, const QString& value);

    const DatabaseTest& m_test;
};
