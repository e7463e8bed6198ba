#include "fuzz_database.h"

#include "db/connection.h"
#include "db/connection_private.h"
#include "db/make_database.h"

#include <QTemporaryDir>

#include <sqlite3.h>

namespace {

constexpr const char* Rows[] = {
    // Nothing of it has to outlive the process.
    "PRAGMA synchronous = OFF",
    "PRAGMA journal_mode = MEMORY",
    "INSERT INTO PriceList (name) VALUES ('Trade'), ('Été')",
    "INSERT INTO taxrate (name, percentage) VALUES ('Reduced', 7.5)",
    "INSERT INTO item (Number, Name, Description, Barcode, TaxRateID, LocationID, SubCategoryID, VendorID, NoInStock, "
    "ReorderLevel, MinStockLevel, WarrantyReturns) VALUES ('00001', 'Screws M4', 'box of 100', '400638133393', 1, 1, "
    "1, 1, 10, 5, 2, 0), ('00002', 'Écrou', NULL, NULL, 2, 1, 1, 1, 2.5, 0, 0, 1)",
    "INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (1, 1, 2.5), (2, 1, 0.3333)",
    "INSERT INTO customer (FirstName, LastName, BusinessName, Discount, PriceListID, SubmittedDate) VALUES ('Ann', "
    "'O''Brien', 'Zoë & Co', 5, 1, '2003-07-04 00:00:00'), (NULL, 'Lee', '', 0, 1, NULL)",
    "INSERT INTO invoice (CustomerID, InvoiceNo, SubmittedDate, ShippedDate, PaymentMethod, Paid, WarrantyInvoice, "
    "StockReturned, Notes, Total2ndTax) VALUES (1, '00001', '2026-03-01 09:30:00', NULL, 'Cash', 1, 0, 0, '', "
    "'$1.00'), (2, '00002', '1999-12-31 00:00:00', '2000-01-01 00:00:00', 'N/A', 0, 1, 1, 'a' || char(10) || 'b', '')",
    "INSERT INTO invoiceline (InvoiceID, ItemID, Quantity, Amount, Number, Name, Description, TaxRateName, "
    "TaxRatePercentage) VALUES (1, 1, 3, 2.5, '00001', 'Screws M4', '', 'None', 0), (1, 2, 1, 0.3333, '00002', "
    "'Écrou', NULL, 'Reduced', 7.5), (2, 1, 2, 0, '00001', 'Screws M4', '', 'None', 0)",
};

struct Database {
    Database()
    {
        const QString path = folder.filePath(QStringLiteral("db.mdb"));
        MakeDatabase(path);
        connection.Open(path);
        for (const char* row : Rows)
            connection.Private().RunPlain(row);
        gConnection = &connection;
    }

    QTemporaryDir folder;
    Connection connection;
};

} // namespace

Connection& OpenFuzzDatabase()
{
    static Database database;
    return database.connection;
}

UndoneChanges::UndoneChanges(Connection& connection)
    : m_connection(connection)
{
    ConnectionPrivate& d = m_connection.Private();
    d.RunPlain("BEGIN");
    // The batches of the program become parts of this one.
    d.openBatches = 1;
}

UndoneChanges::~UndoneChanges()
{
    ConnectionPrivate& d = m_connection.Private();
    d.openBatches = 0;
    // A failure may have ended it already.
    if (sqlite3_get_autocommit(d.handle) == 0)
        d.RunPlain("ROLLBACK");
}
