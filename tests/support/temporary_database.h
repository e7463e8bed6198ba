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

class DatabaseTest;

/// A row to be, in plain SQL: `Item("Screws").Stock(10).Price("2.50").Add()`. Each table has its own setters, and `Set`
/// for any other column.
class RowBuilder {
public:
    RowBuilder(const DatabaseTest& test, const char* table);
    RowBuilder& Set(const QString& column, const QString& text);
    RowBuilder& Set(const QString& column, double number);
    /// Writes the row and returns its id. An item gets a price of 0 in every price list that has none.
    int Add() const;

    RowBuilder& Number(const QString& number) { return Set("Number", number); }
    RowBuilder& Description(const QString& description) { return Set("Description", description); }
    RowBuilder& Barcode(const QString& barcode) { return Set("Barcode", barcode); }
    RowBuilder& Stock(double quantity) { return Set("NoInStock", quantity); }
    RowBuilder& ReorderLevel(double level) { return Set("ReorderLevel", level); }
    RowBuilder& MinStockLevel(double level) { return Set("MinStockLevel", level); }
    RowBuilder& Price(const char* price) { return Price("Sale Price", price); } ///< in the default price list
    RowBuilder& Price(const QString& priceList, const char* price);
    RowBuilder& TaxRate(int id) { return Set("TaxRateID", id); }
    RowBuilder& SubCategory(int id) { return Set("SubCategoryID", id); }
    RowBuilder& Location(int id) { return Set("LocationID", id); }
    RowBuilder& Vendor(int id) { return Set("VendorID", id); }

    RowBuilder& Business(const QString& name) { return Set("BusinessName", name); }
    RowBuilder& Address(const QString& line1, const QString& city, const QString& postCode);
    RowBuilder& Phone(const QString& phone) { return Set("Phone", phone); }
    RowBuilder& Email(const QString& email) { return Set("Email", email); }
    RowBuilder& Discount(double percentage) { return Set("Discount", percentage); }
    RowBuilder& PriceList(int id) { return Set("PriceListID", id); }

    RowBuilder& No(const QString& number) { return Set("InvoiceNo", number); }
    RowBuilder& Date(const QDateTime& date) { return SetDate("SubmittedDate", date); }
    RowBuilder& Date(const QDate& date) { return Date(date.startOfDay()); }
    RowBuilder& Shipped(const QDate& date) { return SetDate("ShippedDate", date.startOfDay()); }
    RowBuilder& Paid(bool paid) { return Set("Paid", paid); }
    RowBuilder& Warranty(bool warranty) { return Set("WarrantyInvoice", warranty); }
    RowBuilder& Notes(const QString& notes) { return Set("Notes", notes); }
    RowBuilder& PaymentMethod(const QString& method) { return Set("PaymentMethod", method); }
    RowBuilder& SecondTax(const QString& text) { return Set("Total2ndTax", text); }

private:
    RowBuilder& SetSql(const QString& column, const QString& value);
    RowBuilder& SetDate(const QString& column, const QDateTime& date);

    const DatabaseTest& m_test;
    QString m_table;
    QStringList m_columns;
    QStringList m_values;
    QList<std::pair<QString, QString>> m_prices;
};

/// Plain SQL on a handle or a file of the engine, past the dialect. Null reads as "NULL".
Table PlainRows(sqlite3* handle, const QString& sql);
Table PlainRows(const QString& path, const QString& sql);

/// A fresh db.mdb with its seed rows in a folder of its own, and the time fixed at 14 March 2026, 10:30. gConnection is
/// open.
class DatabaseTest : public ::testing::Test {
protected:
    void SetUp() override;
    void TearDown() override;

    /// The folder of the database and the program, without a trailing separator.
    QString Folder() const;
    QString DatabasePath() const;

    /// Plain SQL on a handle of its own.
    Table Rows(const QString& sql) const { return PlainRows(m_plain, sql); }
    QString Single(const QString& sql) const; ///< the first field of the first row; "" when there is none
    qint64 Count(const QString& table) const;
    void Run(const QString& sql) const;

    /// An item that points at the "None" rows, a customer, an unpaid invoice of the fixed day, until told otherwise.
    RowBuilder Item(const QString& name) const;
    RowBuilder Customer(const QString& firstName, const QString& lastName) const;
    RowBuilder Invoice(int customerId) const;
    int Line(int invoiceId, int itemId, int quantity, const char* amount) const; ///< copies number, name and tax rate
    RowBuilder Row(const char* table, const QString& name) const { return RowBuilder(*this, table).Set("name", name); }
    int TaxRateRow(const QString& name, double rate) const
    {
        return Row("taxrate", name).Set("percentage", rate).Add();
    }
    int PriceListRow(const QString& name) const { return Row("PriceList", name).Add(); }
    int VendorRow(const QString& name) const { return RowBuilder(*this, "vendor").Business(name).Add(); }
    int CategoryRow(const QString& name) const { return Row("category", name).Add(); }
    int SubCategoryRow(int category, const QString& name) const
    {
        return Row("subcategory", name).Set("CategoryID", category).Add();
    }
    int WarehouseRow(const QString& name) const { return Row("warehouse", name).Add(); }
    int LocationRow(int warehouse, const QString& name) const
    {
        return Row("location", name).Set("WarehouseID", warehouse).Add();
    }

    /// Stock on hand.
    double Stock(int itemId) const;

private:
    friend class RowBuilder;

    QTemporaryDir m_folder;
    Connection m_connection;
    sqlite3* m_plain = nullptr;
};
