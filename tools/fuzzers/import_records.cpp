#include "fuzz_database.h"
#include "fuzzing.h"

#include "base/numbers.h"
#include "base/text_encoding.h"
#include "base/texts.h"
#include "db/connection.h"
#include "exchange/csv_reader.h"
#include "exchange/import_records.h"
#include "sql/schema.h"

#include <QStringList>

#include <algorithm>

/// An import as the wizard does it: the first byte chooses the locale, the first line tells for each field the column
/// that feeds it ('a' is the first, anything but a small letter none), the rest is the file.

namespace {

using Records = QList<QStringList>;

Records RecordsOf(const QByteArray& text)
{
    constexpr qsizetype Most = 12;
    Records records{QStringList()};
    CsvReader reader(std::string_view(text.constData(), size_t(text.size())), std::nullopt);
    while (records.size() <= Most && reader.ReadRow()) {
        QStringList record;
        for (const std::string_view cell : reader.Cells())
            record.append(QString::fromUtf8(cell.data(), qsizetype(cell.size())));
        records.append(record);
    }
    return records;
}

QList<ImportField> FieldsFedBy(QByteArrayView choices)
{
    QList<ImportField> fields = BuildImportFields();
    for (qsizetype i = 0; i < std::min(fields.size(), choices.size()); ++i)
        if (const char choice = choices[i]; choice >= 'a' && choice <= 'z')
            fields[i].SourceColumn = qint16(choice - 'a');
    return fields;
}

qint64 Count(const char* statement)
{
    return gConnection->Execute(statement).Long(0);
}

/// The cell that a field of a name takes from a record.
QString CellFor(const char* columnName, const QList<ImportField>& fields, const QStringList& record)
{
    for (const ImportField& field : fields)
        if (field.ColumnName == QLatin1String(columnName) && field.SourceColumn != ImportField::Ignored)
            return record.value(field.SourceColumn);
    return {};
}

void CheckItem(const Recordset& item, const QList<ImportField>& fields, const QStringList& record)
{
    const QString name = CellFor("Name", fields, record);
    Expect(NullToText(item["Name"])
            == (name.isEmpty() ? QStringLiteral("No Name") : Shortened(name, LongestName).toString()),
        "an item has the name that its record gives");
    Expect(NullToText(item["Number"]) == Shortened(CellFor("Number", fields, record), 50), "and the number");
    const QStringView stock = Shortened(CellFor("NoInStock", fields, record), 4);
    Expect(item["NoInStock"].ToDouble() == (IsNumeric(stock) ? CLng(stock) : 0), "and the stock");
}

void CheckRelations(qint64 itemsBefore)
{
    Expect(Count("SELECT count(*) FROM item") - itemsBefore
            == Count("SELECT count(*) FROM item, location, subcategory, vendor, taxrate WHERE item.LocationID = "
                     "location.id AND item.SubCategoryID = subcategory.id AND item.VendorID = vendor.id AND "
                     "item.TaxRateID = taxrate.id AND item.id > 2"),
        "an item's place, kind, vendor and tax are there");
}

void CheckItems(const Records& records, int written, const QList<ImportField>& fields)
{
    const qint64 lists = Count("SELECT count(*) FROM PriceList");
    Recordset item = gConnection->Execute("SELECT * FROM item WHERE id > 2 ORDER BY id");
    for (int record = 1; record <= written; ++record, item.MoveNext()) {
        Expect(!item.Eof(), "each record is an item");
        CheckItem(item, fields, records[record]);
        const Recordset prices = gConnection->Execute(
            Sql("SELECT count(*) FROM ItemPriceList WHERE itemid = {id}").Number("id", item["id"].ToLong()));
        Expect(prices.Long(0) == lists, "an item has as many prices as there are lists");
    }
}

} // namespace

void Fuzz(FuzzInput input)
{
    ChooseLocale(input.Byte());
    Connection& connection = OpenFuzzDatabase();
    const UndoneChanges changes(connection);
    const QList<ImportField> fields = FieldsFedBy(input.Line());
    const Records records = RecordsOf(TextAsUtf8(input.Rest().toByteArray()));
    const int count = int(records.size()) - 1;
    const qint64 before = Count("SELECT count(*) FROM item");
    const auto failure = ImportRecords(
        {count, [&](int row, int column) { return records[row].value(column); }}, fields, [](int, int) {});
    Expect(!failure || (failure->record >= 1 && failure->record <= count), "a failure names a record of the file");
    Expect(!failure || !failure->description.isEmpty(), "a failure tells why");
    const int written = failure ? failure->record - 1 : count;
    const qint64 items = Count("SELECT count(*) FROM item") - before;
    Expect(items == written || (failure && items == written + 1), "the records before a failure are items");
    CheckRelations(before);
    CheckItems(records, written, fields);
}
