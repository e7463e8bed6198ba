#include "exchange/csv_exports.h"

#include "base/files.h"
#include "base/runtime_error.h"
#include "base/settings_store.h"
#include "base/text_encoding.h"
#include "db/connection.h"

#include <vector>

namespace {

constexpr const char* LineEnd = "\r\n";

struct PriceList {
    std::string name;
    Sql priceOf; ///< an item's price in it
};

void AddField(std::string_view value, std::string& csv)
{
    csv.append(1, '"').append(value).append(1, '"');
}

using FieldText = std::string_view (*)(const Recordset& row, int ordinal);

std::string_view PlainText(const Recordset& row, int ordinal)
{
    return row.Text(ordinal);
}

std::string_view BookingText(const Recordset& row, int ordinal)
{
    constexpr int IsYachtClubMember = 5;
    if (ordinal != IsYachtClubMember)
        return row.Text(ordinal);
    return !row.IsNull(ordinal) && row[ordinal].ToBool() ? "Yes" : "No";
}

/// Adds the fields of a row to its line, separated by commas.
void AddFields(const Recordset& row, FieldText textOf, std::string& csv)
{
    for (int i = 0; i < row.FieldCount(); ++i) {
        if (i > 0)
            csv += ',';
        AddField(textOf(row, i), csv);
    }
}

/// The header and a line for each row of the statement.
std::string TableCsv(const std::string& header, const char* statement, FieldText textOf)
{
    std::string csv = header + LineEnd;
    for (Recordset row = gConnection->Execute(statement); !row.Eof(); row.MoveNext()) {
        AddFields(row, textOf, csv);
        csv += LineEnd;
    }
    return csv;
}

std::vector<PriceList> PriceLists()
{
    std::vector<PriceList> lists;
    const Sql priceOf("SELECT price FROM itemPriceList WHERE priceListID = {listId} AND itemID = {itemId}");
    for (Recordset list = gConnection->Execute("SELECT id, name FROM PriceList"); !list.Eof(); list.MoveNext())
        lists.push_back({std::string(list.Text(1)), Sql(priceOf).Number("listId", list.Long(0))});
    return lists;
}

/// Adds the item's price in each list that has one.
void AddPrices(qint64 itemId, std::vector<PriceList>& lists, std::string& csv)
{
    const QString id = QString::number(itemId);
    for (PriceList& list : lists) {
        const Recordset price = gConnection->Execute(list.priceOf.Raw("itemId", id));
        if (price.Eof())
            continue;
        csv += ',';
        AddField(price.Text(0), csv);
    }
}

} // namespace

std::string QuoteCsvField(std::string_view value)
{
    std::string field;
    AddField(value, field);
    return field;
}

std::string InvoicesCsv()
{
    return TableCsv("id, notes, submitteddate, invoiceno",
        "SELECT id, notes, submitteddate, invoiceno FROM invoice ORDER BY submitteddate", PlainText);
}

std::string InventoryCsv()
{
    Recordset item = gConnection->Execute(
        "SELECT id, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, NoInStock, name, "
        "description, TaxRateID FROM item");
    std::vector<PriceList> lists = PriceLists();
    std::string csv = "id, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, NoInStock, name, "
                      "description, TaxRateID";
    for (const PriceList& list : lists)
        csv += ", " + list.name;
    csv += LineEnd;
    for (; !item.Eof(); item.MoveNext()) {
        AddFields(item, PlainText, csv);
        AddPrices(item.Long(0), lists, csv);
        csv += LineEnd;
    }
    return csv;
}

std::string CustomersCsv()
{
    return TableCsv(R"("FirstName", "LastName", "Address1", "Address2", "City", "State", "PostCode", "Country", )"
                    R"("Phone", "Email", "BusinessName", "SubmittedDate")",
        "SELECT FirstName, LastName, Address1, Address2, City, State, PostCode, Country, Phone, Email, BusinessName, "
        "SubmittedDate FROM Customer;",
        PlainText);
}

std::string TodaysInvoicesCsv()
{
    return TableCsv(R"("First Name", Last Name, Boat Name, Phone, Business Name, Yacht Club Member, Slip, From Date, )"
                    "To Date",
        "SELECT FirstName, LastName, boatname, Phone, BusinessName, IsYachtClubMember, s.name AS sname, fromdate, "
        "todate FROM Customer AS c, Booking AS b, BookingSlip AS bs, Slip AS s WHERE b.customerid = c.id AND "
        "bs.bookingid = b.id AND bs.slipid = s.id;",
        BookingText);
}

void WriteCsv(const QString& fileName, const std::string& csv)
{
    const TextEncoding encoding = TextEncoding::Named(GetConfig(QStringLiteral("Export Encoding"), QString()));
    if (!WriteWholeFile(fileName, encoding.Encode(csv)))
        throw PathFileAccessError();
}
