#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "exchange/csv_reader.h"
#include "exchange/import_reading.h"
#include "exchange/import_records.h"

#include <QFile>
#include <QTemporaryDir>

namespace {

constexpr int Rounds = 5;
constexpr double Megabyte = 1e6;

/// Items as a shop's own list would have them.
QByteArray ItemLines(int count)
{
    QByteArray text("Name,Number,Barcode,Location,Group,Vendor,Tax,Stock,Sale,Trade,Staff,Description\r\n");
    for (int i = 0; i < count; ++i) {
        const QByteArray number = QByteArray::number(i);
        text += "Ship's Lantern Brass No " + number + "," + number + ",2000" + number + ",Bin "
            + QByteArray::number(i % 50) + ",Group " + QByteArray::number(i % 20) + ",Vendor "
            + QByteArray::number(i % 100) + ",GST,24,199.50,149.50,99.95,It burns lamp oil for 12 hours.\r\n";
    }
    return text;
}

QByteArray TextOf(qsizetype bytes)
{
    const QByteArray lines = ItemLines(10'000);
    return lines.repeated(bytes / lines.size() + 1);
}

void MeasureReader(const QByteArray& text)
{
    size_t cells = 0;
    size_t lines = 0;
    const Pair pair = MeasureInTurn(
        Rounds,
        [&] {
            CsvReader reader({text.constData(), size_t(text.size())}, std::nullopt);
            while (reader.ReadRow())
                cells += reader.Cells().size();
        },
        [&] { lines += size_t(text.count('\n')); });
    constexpr double MegabytesAMillisecond = 0.1;
    PrintFigure("CSV reader, 100 MB; floor: count the lines", pair.program.Median(), pair.floor.Median(),
        double(text.size()) / Megabyte / MegabytesAMillisecond, "ms");
}

/// The preview page's own reading, without its pauses; and what the grid keeps.
void MeasurePreview(const QByteArray& text)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("items.csv"));
    QFile file(path);
    if (!file.open(QFile::WriteOnly) || file.write(text) != text.size())
        return;
    file.close();
    FlexGrid grid;
    const double before = MegabytesInUse();
    Times times;
    for (int round = 0; round < Rounds; ++round)
        times.Add(MillisecondsOf([&] {
            ImportReading reading(&grid, path, std::nullopt, ImportReading::FirstLine::Titles);
            while (reading.ReadPiece()) { }
        }));
    constexpr double FloorMs = 0;
    constexpr double AllowedMs = 3000;
    PrintFigure("CSV preview of 100 MB, columns fitted", times.Median(), FloorMs, AllowedMs, "ms");
    const double fileSize = double(text.size()) / Megabyte;
    PrintFigure("memory of its grid; floor: the file", MegabytesInUse() - before, fileSize, 3 * fileSize, "MB");
}

constexpr int Records = 10'000;
constexpr int RecordsABatch = 500;

/// The statements of an import, straight on the engine.
class ImportFloor {
public:
    explicit ImportFloor(sqlite3* handle)
        : m_begin(handle, EngineSql{"BEGIN IMMEDIATE"})
        , m_location(handle, "SELECT id FROM location WHERE name = ''")
        , m_subCategory(handle, "SELECT id FROM SubCategory WHERE name = ''")
        , m_vendor(handle, "SELECT id FROM Vendor WHERE businessname = ''")
        , m_taxRate(handle, "SELECT id FROM TaxRate WHERE name = ''")
        , m_item(handle,
              EngineSql{"INSERT INTO item (Number, Barcode, LocationID, SubCategoryID, VendorID, TaxRateID, NoInStock, "
                        "ReorderLevel, MinStockLevel, Description, Name, WarrantyReturns) "
                        "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"})
        , m_newest(handle, EngineSql{"SELECT last_insert_rowid()"})
        , m_lists(handle, "SELECT id, name FROM PriceList ORDER BY name;")
        , m_price(handle, EngineSql{"INSERT INTO ItemPriceList (Price, PriceListID, ItemID) VALUES (?, ?, ?)"})
        , m_commit(handle, EngineSql{"COMMIT"})
    {
    }

    void Add(const std::vector<std::vector<std::string>>& records)
    {
        for (size_t i = 0; i < records.size(); ++i) {
            if (i % RecordsABatch == 0)
                m_begin.Run();
            AddOne(records[i]);
            if ((i + 1) % RecordsABatch == 0)
                m_commit.Run();
        }
    }

private:
    static qint64 IdOf(FloorStatement& find, const std::string& name)
    {
        find.Run(name);
        return find.Number();
    }

    void AddOne(const std::vector<std::string>& cells)
    {
        const qint64 location = IdOf(m_location, cells[3]);
        const qint64 subCategory = IdOf(m_subCategory, cells[4]);
        const qint64 vendor = IdOf(m_vendor, cells[5]);
        const qint64 taxRate = IdOf(m_taxRate, cells[6]);
        m_item.Run(cells[1], cells[2], location, subCategory, vendor, taxRate, 24, 0, 0, cells[11], cells[0], 0);
        m_newest.Run();
        m_lists.Run();
        for (int list = 1; list <= 3; ++list)
            m_price.Run(199.5, list, m_newest.Number());
    }

    FloorStatement m_begin, m_location, m_subCategory, m_vendor, m_taxRate, m_item, m_newest, m_lists, m_price,
        m_commit;
};

std::vector<std::vector<std::string>> CellsOf(const FlexGrid& grid)
{
    std::vector<std::vector<std::string>> records;
    for (int row = 1; row < grid.Rows(); ++row) {
        records.emplace_back();
        for (int col = 0; col < grid.Cols(); ++col)
            records.back().push_back(grid.TextMatrix(row, col).toStdString());
    }
    return records;
}

QList<ImportField> FedFields(const FlexGrid& grid)
{
    QList<ImportField> fields = BuildImportFields();
    const QStringList columns = {QStringLiteral("Name"), QStringLiteral("Number"), QStringLiteral("Barcode"),
        QStringLiteral("LocationID"), QStringLiteral("SubCategoryID"), QStringLiteral("VendorID"),
        QStringLiteral("TaxRateID"), QStringLiteral("NoInStock")};
    auto price = qint16(columns.size());
    for (ImportField& field : fields)
        field.SourceColumn = field.Kind == ImportField::Price ? price++ : qint16(columns.indexOf(field.ColumnName));
    fields[2].SourceColumn = qint16(grid.Cols() - 1);
    return fields;
}

qint64 NewestItem()
{
    return gConnection->Execute("SELECT max(id) FROM item").Long(0);
}

void DeleteItemsAfter(qint64 id)
{
    gConnection->Execute(Sql("DELETE FROM ItemPriceList WHERE ItemID > {id}").Number("id", id));
    gConnection->Execute(Sql("DELETE FROM item WHERE id > {id}").Number("id", id));
}

void MeasureRecords(RunningProgram& program)
{
    FlexGrid grid;
    {
        const QByteArray text = ItemLines(Records);
        CsvReader reader({text.constData(), size_t(text.size())}, std::nullopt);
        reader.ReadTitles();
        grid.SetCols(int(reader.Cells().size()));
        GridFill fill(&grid);
        while (reader.ReadRow()) {
            for (const std::string_view cell : reader.Cells())
                fill.Add(cell);
            fill.EndRow(0);
        }
    }
    const QList<ImportField> fields = FedFields(grid);
    const auto import = [&] {
        ImportRecords({grid.Rows() - 1, [&grid](int row, int col) { return grid.TextMatrix(row, col); }}, fields,
            [](int, int) {});
    };
    const qint64 newest = NewestItem();
    // The first one makes the names that are looked up.
    import();
    DeleteItemsAfter(newest);
    ImportFloor floor(program.Handle());
    const std::vector<std::vector<std::string>> records = CellsOf(grid);
    Pair pair;
    for (int round = 0; round < Rounds; ++round) {
        pair.floor.Add(MillisecondsOf([&] { floor.Add(records); }));
        DeleteItemsAfter(newest);
        pair.program.Add(MillisecondsOf(import));
        DeleteItemsAfter(newest);
    }
    constexpr double Allowed = 2;
    PrintFigure("import of 10,000 items in three price lists", pair.program.Median(), pair.floor.Median(),
        Allowed * pair.floor.Median(), "ms");
}

} // namespace

void MeasureImport(RunningProgram& program)
{
    const QByteArray text = TextOf(qsizetype(100 * Megabyte));
    MeasureReader(text);
    MeasurePreview(text);
    MeasureRecords(program);
}
