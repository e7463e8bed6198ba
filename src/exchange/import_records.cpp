#include "exchange/import_records.h"

#include "base/guard.h"
#include "base/numbers.h"
#include "base/texts.h"
#include "db/add_row.h"
#include "db/batch.h"
#include "db/connection.h"

#include <algorithm>

namespace {

constexpr int RowsABatch = 500;
constexpr qint64 NoneRow = 1; ///< the row "None" of each table that names are looked up in
constexpr qint64 FirstPriceList = 1;

/// What becomes of one row of the file.
struct Record {
    QString number;
    QString barcode;
    QString description;
    QString name;
    qint64 locationId = NoneRow;
    qint64 subCategoryId = NoneRow;
    qint64 vendorId = NoneRow;
    qint64 taxRateId = NoneRow;
    qint32 noInStock = 0;
    qint32 reorderLevel = 0;
    qint32 minStockLevel = 0;
    qint32 warrantyReturns = 0;
};

struct TextTarget {
    const char* column;
    QString Record::*value;
};
constexpr TextTarget TextTargets[] = {
    {"Name", &Record::name},
    {"Number", &Record::number},
    {"Description", &Record::description},
    {"Barcode", &Record::barcode},
};

struct NumberTarget {
    const char* column;
    qint32 Record::*value;
};
constexpr NumberTarget NumberTargets[] = {
    {"NoInStock", &Record::noInStock},
    {"ReorderLevel", &Record::reorderLevel},
    {"MinStockLevel", &Record::minStockLevel},
    {"WarrantyReturns", &Record::warrantyReturns},
};

/// A name stands for the row of a table that has it, or for a new one.
struct LookupTarget {
    const char* column;
    qint64 Record::*id;
    const char* find;
    const char* table;
    void (*fill)(AddRow& row, const QString& name);
};
constexpr LookupTarget LookupTargets[] = {
    {"LocationID", &Record::locationId, "SELECT id FROM location WHERE name = '{name}'", "[location]",
        [](AddRow& row, const QString& name) {
            row.Set("Name", name);
            row.Set("WarehouseID", NoneRow);
        }},
    {"SubCategoryID", &Record::subCategoryId, "SELECT id FROM SubCategory WHERE name = '{name}'", "[SubCategory]",
        [](AddRow& row, const QString& name) {
            row.Set("Name", name);
            row.Set("CategoryID", NoneRow);
        }},
    {"VendorID", &Record::vendorId, "SELECT id FROM Vendor WHERE businessname = '{name}'", "[Vendor]",
        [](AddRow& row, const QString& name) {
            row.Set("BusinessName", name);
            for (const char* field : {"ContactName", "notes", "Address1", "Address2", "City", "State", "PostCode",
                     "Country", "Phone", "Email", "Fax"})
                row.Set(field, QString());
        }},
    {"TaxRateID", &Record::taxRateId, "SELECT id FROM TaxRate WHERE name = '{name}'", "[TaxRate]",
        [](AddRow& row, const QString& name) {
            row.Set("Name", name);
            row.Set("Percentage", 0);
        }},
};

qint64 LookUpOrCreate(const LookupTarget& target, const QString& name)
{
    {
        const Recordset found = gConnection->Execute(Sql(target.find).Text("name", name));
        if (!found.Eof())
            return found.Long(0);
    }
    AddRow row(*gConnection, target.table);
    row.AddNew();
    target.fill(row, name);
    row.Update();
    return row.Id();
}

/// A field that a column of the file feeds, and where its cell goes: one of the three, or to a price.
struct FedField {
    const ImportField& field;
    const TextTarget* text = nullptr;
    const NumberTarget* number = nullptr;
    const LookupTarget* lookup = nullptr;
};

template <typename Target, size_t Count>
const Target* TargetOf(const ImportField& field, const Target (&targets)[Count])
{
    const auto found = std::find_if(std::begin(targets), std::end(targets),
        [&](const Target& target) { return field.ColumnName == QLatin1String(target.column); });
    return found == std::end(targets) ? nullptr : found;
}

std::vector<FedField> FedFields(const QList<ImportField>& fields)
{
    std::vector<FedField> fed;
    for (const ImportField& field : fields)
        if (field.SourceColumn != ImportField::Ignored)
            fed.push_back(
                {field, TargetOf(field, TextTargets), TargetOf(field, NumberTargets), TargetOf(field, LookupTargets)});
    return fed;
}

class RecordWriter {
public:
    RecordWriter(const ImportRows& rows, const QList<ImportField>& fields)
        : m_rows(rows)
        , m_fields(FedFields(fields))
    {
    }

    /// Returns the id of the new item.
    qint64 Write(int row)
    {
        const qint64 itemId = AddItem(Read(row));
        AddPrices(row, itemId);
        return itemId;
    }

private:
    QString CellOf(const FedField& fed, int row) const { return m_rows.cell(row, fed.field.SourceColumn); }
    Record Read(int row) const;
    qint64 AddItem(const Record& record);
    void AddPrices(int row, qint64 itemId);
    void AddPrice(Currency price, qint64 priceListId, qint64 itemId);

    const ImportRows& m_rows;
    std::vector<FedField> m_fields;
    AddRow m_item{*gConnection, "Item"};
    AddRow m_price{*gConnection, "ItemPriceList"};
};

Record RecordWriter::Read(int row) const
{
    Record record;
    for (const FedField& fed : m_fields) {
        const QString cell = CellOf(fed, row);
        if (cell.isEmpty())
            continue;
        const QStringView start = Shortened(cell, fed.field.Limit);
        if (fed.text)
            record.*fed.text->value = start.toString();
        else if (fed.lookup)
            record.*fed.lookup->id = LookUpOrCreate(*fed.lookup, cell);
        else if (fed.number && IsNumeric(start))
            record.*fed.number->value = CLng(start);
    }
    return record;
}

qint64 RecordWriter::AddItem(const Record& record)
{
    m_item.AddNew();
    m_item.Set("Number", record.number);
    m_item.Set("Barcode", record.barcode);
    m_item.Set("LocationID", record.locationId);
    m_item.Set("SubCategoryID", record.subCategoryId);
    m_item.Set("VendorID", record.vendorId);
    m_item.Set("TaxRateID", record.taxRateId);
    m_item.Set("NoInStock", record.noInStock);
    m_item.Set("ReorderLevel", record.reorderLevel);
    m_item.Set("MinStockLevel", record.minStockLevel);
    m_item.Set("Description", record.description);
    m_item.Set("Name", record.name.isEmpty() ? QStringLiteral("No Name") : record.name);
    m_item.Set("WarrantyReturns", record.warrantyReturns);
    m_item.Update();
    return m_item.Id();
}

void RecordWriter::AddPrices(int row, qint64 itemId)
{
    for (Recordset list = gConnection->Execute("SELECT id, name FROM PriceList ORDER BY name;"); !list.Eof();
         list.MoveNext()) {
        const qint64 listId = list.Long(0);
        const QString column = PriceOf(NullToText(list[1]));
        bool found = false;
        for (const FedField& fed : m_fields) {
            if (fed.field.ColumnName != column)
                continue;
            const QString cell = CellOf(fed, row);
            if (cell.isEmpty())
                continue;
            found = true;
            if (IsNumeric(cell))
                AddPrice(CCur(cell), listId, itemId);
            else
                AddPrice(Currency(), FirstPriceList, itemId);
        }
        if (!found)
            AddPrice(Currency(), listId, itemId);
    }
}

void RecordWriter::AddPrice(Currency price, qint64 priceListId, qint64 itemId)
{
    m_price.AddNew();
    m_price.Set("Price", price);
    m_price.Set("PriceListID", priceListId);
    m_price.Set("ItemID", itemId);
    m_price.Update();
}

bool ItemIsThere(qint64 id)
{
    bool there = false;
    Ignoring([&] { there = !gConnection->Execute(Sql("SELECT id FROM Item WHERE id = {id}").Number("id", id)).Eof(); });
    return there;
}

/// Writes the rows from `first` to before `end` in one batch.
std::optional<ImportFailure> WriteBatch(RecordWriter& writer, int first, int end)
{
    int row = first;
    qint64 firstItem = 0;
    try {
        InBatch(*gConnection, [&] {
            for (; row < end; ++row) {
                const qint64 item = writer.Write(row);
                if (row == first)
                    firstItem = item;
            }
        });
        return std::nullopt;
    } catch (...) {
        const ImportFailure failure{std::min(row, end - 1), CaughtError().Description()};
        if (end - first == 1 || firstItem == 0 || ItemIsThere(firstItem))
            return failure;
    }
    // A full disk takes the whole batch back. Row by row those come in that there is room for.
    for (row = first; row < end; ++row)
        if (std::optional<ImportFailure> failure = WriteBatch(writer, row, row + 1))
            return failure;
    return std::nullopt;
}

} // namespace

std::optional<ImportFailure> ImportRecords(
    const ImportRows& rows, const QList<ImportField>& fields, const ImportProgress& progress)
{
    std::optional<ImportFailure> failure;
    RecordWriter writer(rows, fields);
    for (int first = 1; first <= rows.count && !failure; first += RowsABatch) {
        progress(first - 1, rows.count);
        failure = WriteBatch(writer, first, std::min(first + RowsABatch, rows.count + 1));
    }
    return failure;
}
