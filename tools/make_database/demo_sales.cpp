#include "demo_sales.h"

#include "people.h"

#include "base/numbers.h"

namespace {

constexpr int Customers = 150;
constexpr qint64 FirstInvoiceNumber = 1201;

struct Customer {
    qint64 id;
    QDate since;
    double discount;
    int priceList; ///< 0 sale, 1 trade, 2 staff
};

double InventDiscount(Dice& dice)
{
    if (!dice.Chance(20))
        return 0;
    static constexpr double Discounts[] = {2.5, 5, 5, 10};
    return dice.Pick(Discounts);
}

int InventPriceList(const Party& party, Dice& dice)
{
    if (!party.businessName.isEmpty())
        return dice.Chance(60) ? 1 : 0;
    return dice.Chance(5) ? 2 : 0;
}

std::vector<Customer> AddCustomers(DataFile& file, Dice& dice, const QDate& today)
{
    Statement add(file,
        "INSERT INTO customer (FirstName, LastName, BusinessName, Address1, Address2, City, State, PostCode, "
        "Country, Phone, Fax, Email, Discount, PriceListID, SubmittedDate) "
        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    std::vector<Customer> customers;
    for (int i = 0; i < Customers; ++i) {
        const Party party = InventCustomer(dice);
        Customer customer;
        // The first came long ago, so that every day of the year finds somebody to sell to.
        customer.since = today.addDays(i < Customers / 2 ? -dice.Between(366, 1100) : -dice.Between(1, 365));
        customer.discount = InventDiscount(dice);
        customer.priceList = InventPriceList(party, dice);
        customer.id = add.Run(party.firstName, party.lastName, party.businessName, party.address1, party.address2,
            party.city, party.state, party.postCode, party.country, party.phone, party.fax, party.email,
            customer.discount, customer.priceList + 1, customer.since);
        customers.push_back(customer);
    }
    return customers;
}

struct Payment {
    bool paid;
    const char* method;
    QDate shipped;
};

Payment InventPayment(Dice& dice, const QDate& day, const QDate& today)
{
    static constexpr const char* Methods[] = {"Check", "Cash", "Cash", "Credit Card", "Credit Card", "Bank Transfer"};
    Payment payment;
    payment.paid = dice.Chance(day.daysTo(today) > 30 ? 96 : 65);
    payment.method = payment.paid ? dice.Pick(Methods) : (dice.Chance(50) ? "Charge to Account" : "N/A");
    const QDate shipped = day.addDays(dice.Between(0, 4));
    if (shipped <= today && !dice.Chance(4))
        payment.shipped = shipped;
    return payment;
}

/// The unit price as a line stores it: the discount is taken off once, rounded to currency before the subtraction.
Currency Discounted(Currency price, double percent)
{
    return price - CCur(price.ToDouble() * percent / 100);
}

class Till {
public:
    Till(DataFile& file, Dice& dice, const std::vector<StockedItem>& items, const QDate& today)
        : m_dice(dice)
        , m_items(items)
        , m_today(today)
        , m_addInvoice(file,
              "INSERT INTO invoice (CustomerID, InvoiceNo, SubmittedDate, ShippedDate, PaymentMethod, Paid, "
              "WarrantyInvoice, StockReturned, Notes, Total2ndTax) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)")
        , m_addLine(file,
              "INSERT INTO invoiceline (InvoiceID, ItemID, Quantity, Amount, Number, Name, Description, "
              "TaxRateName, TaxRatePercentage) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)")
    {
    }

    void Sell(const Customer& customer, const QDate& day)
    {
        static constexpr const char* Notes[] = {"Deliver to the side door.", "Customer's own bags.",
            "Collect on Saturday;\nask for Renée.", "Gift wrap, please - it's a surprise.", "Account nº 7, 30 days."};
        const bool isWarranty = m_dice.Chance(1);
        const Payment payment = InventPayment(m_dice, day, m_today);
        const QString number = QStringLiteral("%1").arg(m_nextNumber++, 5, 10, QLatin1Char('0'));
        const qint64 invoice = m_addInvoice.Run(customer.id, number, day, payment.shipped, payment.method, payment.paid,
            isWarranty, false, m_dice.Chance(12) ? m_dice.Pick(Notes) : "", FormatCurrency(Currency()));
        AddLines(invoice, customer, isWarranty);
    }

    qint64 NextNumber() const { return m_nextNumber; }

private:
    /// An invoice holds an item once, so the lines come from different parts of the shop.
    void AddLines(qint64 invoice, const Customer& customer, bool isWarranty)
    {
        const int lines = isWarranty ? 1 : m_dice.Between(1, 8);
        const auto stretch = m_items.size() / size_t(lines);
        for (int line = 0; line < lines; ++line) {
            const StockedItem& item = m_items[size_t(line) * stretch + size_t(m_dice.Between(0, int(stretch) - 1))];
            const Currency price = Discounted(item.prices[size_t(customer.priceList)], customer.discount);
            m_addLine.Run(invoice, item.id, Quantity(isWarranty), isWarranty ? Currency() : price, item.number,
                item.name, item.description, item.taxRateName, item.taxRatePercentage);
        }
    }

    int Quantity(bool isWarranty)
    {
        if (isWarranty || m_dice.Chance(55))
            return 1;
        return m_dice.Chance(90) ? m_dice.Between(2, 6) : m_dice.Between(10, 48);
    }

    Dice& m_dice;
    const std::vector<StockedItem>& m_items;
    QDate m_today;
    Statement m_addInvoice, m_addLine;
    qint64 m_nextNumber = FirstInvoiceNumber;
};

/// Closed on Sundays, busier on Saturdays, and busiest before the holidays.
int SalesOf(const QDate& day, Dice& dice)
{
    if (day.dayOfWeek() == Qt::Sunday)
        return 0;
    return dice.Between(0, 4) + (day.dayOfWeek() == Qt::Saturday ? 1 : 0) + (day.month() == 12 ? 2 : 0);
}

const Customer& SomebodyKnownBy(const QDate& day, const std::vector<Customer>& customers, Dice& dice)
{
    for (;;) {
        const Customer& customer = dice.Pick(customers);
        if (customer.since <= day)
            return customer;
    }
}

} // namespace

void SellForAYear(DataFile& file, Dice& dice, const std::vector<StockedItem>& items, const QDate& today)
{
    const std::vector<Customer> customers = AddCustomers(file, dice, today);
    Till till(file, dice, items, today);
    for (QDate day = today.addDays(-364); day <= today; day = day.addDays(1))
        for (int sales = SalesOf(day, dice); sales > 0; --sales)
            till.Sell(SomebodyKnownBy(day, customers, dice), day);
    Statement(file, "UPDATE nextinvoiceno SET invoiceno = ?").Run(till.NextNumber());
}
