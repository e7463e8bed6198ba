#include "large_file.h"

#include "ean13.h"
#include "people.h"

#include "base/numbers.h"
#include "sql/schema.h"

#include <vector>

namespace {

constexpr int PriceLists = 3;
constexpr int LinesOfAnInvoice = 5;
constexpr int UnitsInStock = 1'000'000;
constexpr const char* TaxRateName = "Standard";
constexpr double TaxRatePercentage = 8.25;

const char* const Materials[] = {"Ash", "Brass", "Ceramic", "Copper", "Enamel", "Glass", "Iron", "Linen", "Oak",
    "Pewter", "Porcelain", "Slate", "Steel", "Terracotta", "Walnut", "Zinc"};
const char* const Goods[] = {"Bowl", "Bracket", "Bucket", "Café Table", "Candlestick", "Door Handle", "Funnel", "Hinge",
    "Hook", "Jug", "Kettle", "Ladle", "Lantern", "Mug", "Pail", "Plate", "Ship's Bell", "Tray", "Trowel", "Vase"};

struct PlainItem {
    qint64 id;
    QString number, name;
    int cents;
};

void AddKeyRows(DataFile& file)
{
    file.Run("INSERT INTO taxrate (id, name, percentage) VALUES (2, 'Standard', 8.25)");
    file.Run("INSERT INTO PriceList (id, name) VALUES (2, 'Trade'), (3, 'Staff')");
}

std::vector<PlainItem> AddItems(DataFile& file, Dice& dice, int count)
{
    Statement addItem(file,
        "INSERT INTO item (Number, Name, Description, Barcode, TaxRateID, LocationID, SubCategoryID, "
        "VendorID, NoInStock, ReorderLevel, MinStockLevel, WarrantyReturns) "
        "VALUES (?, ?, '', ?, 2, 1, 1, 1, ?, 10, 2, 0)");
    Statement addPrice(file, "INSERT INTO ItemPriceList (ItemID, PriceListID, Price) VALUES (?, ?, ?)");
    std::vector<PlainItem> items;
    items.reserve(size_t(count));
    for (int i = 1; i <= count; ++i) {
        PlainItem item;
        item.number = QString::number(i);
        item.name = QStringLiteral("%1 %2 %3")
                        .arg(QString::fromUtf8(dice.Pick(Materials)), QString::fromUtf8(dice.Pick(Goods)))
                        .arg(i);
        item.cents = dice.Between(50, 19'999);
        item.id = addItem.Run(item.number, item.name, ShopEan13(i), UnitsInStock);
        for (int list = 0; list < PriceLists; ++list)
            addPrice.Run(item.id, list + 1, Currency::FromTenThousandths(qint64(item.cents) * (100 - 15 * list)));
        items.push_back(item);
    }
    return items;
}

std::vector<qint64> AddCustomers(DataFile& file, Dice& dice, int count, const QDate& today)
{
    Statement add(file,
        "INSERT INTO customer (FirstName, LastName, BusinessName, Address1, City, State, PostCode, Phone, "
        "Email, Discount, PriceListID, SubmittedDate) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, 0, ?, ?)");
    std::vector<qint64> customers;
    for (int i = 0; i < count; ++i) {
        const Party party = InventCustomer(dice);
        customers.push_back(add.Run(party.firstName, party.lastName, party.businessName, party.address1, party.city,
            party.state, party.postCode, party.phone, party.email, dice.Between(1, PriceLists),
            today.addDays(-dice.Between(365, 1500))));
    }
    return customers;
}

void AddInvoices(DataFile& file, Dice& dice, int count, const std::vector<PlainItem>& items,
    const std::vector<qint64>& customers, const QDate& today)
{
    Statement addInvoice(file,
        "INSERT INTO invoice (CustomerID, InvoiceNo, SubmittedDate, ShippedDate, PaymentMethod, Paid, "
        "WarrantyInvoice, StockReturned, Notes, Total2ndTax) "
        "VALUES (?, ?, ?, ?, 'Cash', ?, 0, 0, '', ?)");
    Statement addLine(file,
        "INSERT INTO invoiceline (InvoiceID, ItemID, Quantity, Amount, Number, Name, Description, "
        "TaxRateName, TaxRatePercentage) VALUES (?, ?, ?, ?, ?, ?, '', ?, ?)");
    const QString noTax = FormatCurrency(Currency());
    for (qint64 i = 0; i < count; ++i) {
        const QDate day = today.addDays(-364 + i * 364 / count);
        const qint64 invoice = addInvoice.Run(dice.Pick(customers),
            QStringLiteral("%1").arg(i + 1, 5, 10, QLatin1Char('0')), day, day, dice.Chance(90), noTax);
        for (int line = 0; line < LinesOfAnInvoice; ++line) {
            const PlainItem& item = dice.Pick(items);
            addLine.Run(invoice, item.id, dice.Between(1, 9), Currency::FromTenThousandths(qint64(item.cents) * 100),
                item.number, item.name, TaxRateName, TaxRatePercentage);
        }
    }
}

/// Indexes made of whole tables take a fraction of the time that keeping them row by row does.
QStringList DropIndexes(DataFile& file)
{
    QStringList indexes = SchemaStatements();
    indexes.removeIf([](const QString& statement) { return !statement.startsWith(QLatin1String("CREATE INDEX ")); });
    for (const QString& index : indexes)
        file.Run(qPrintable(QStringLiteral("DROP INDEX ") + index.section(u' ', 2, 2)));
    return indexes;
}

} // namespace

void FillLargeFile(DataFile& file, Dice& dice, const LargeFileSize& size, const QDate& today)
{
    const QStringList indexes = DropIndexes(file);
    AddKeyRows(file);
    const std::vector<PlainItem> items = AddItems(file, dice, size.items);
    const std::vector<qint64> customers = AddCustomers(file, dice, size.customers, today);
    AddInvoices(file, dice, size.invoices, items, customers, today);
    Statement(file, "UPDATE nextitemno SET itemnumber = ?").Run(size.items + 1);
    Statement(file, "UPDATE nextinvoiceno SET invoiceno = ?").Run(size.invoices + 1);
    for (const QString& index : indexes)
        file.Run(qPrintable(index));
}
