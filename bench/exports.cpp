#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "exchange/csv_exports.h"

#include <QTemporaryDir>

#include <vector>

namespace {

constexpr double Allowed = 1.5;
constexpr int Rounds = 5;

/// The statements of the inventory's export, in one transaction as the open cursor makes it one for the program. What
/// they give is copied as text and not written.
class ExportFloor {
public:
    explicit ExportFloor(sqlite3* handle)
        : m_begin(handle, EngineSql{"BEGIN"})
        , m_items(handle,
              "SELECT id, MinStockLevel, ReorderLevel, Barcode, LocationID, SubCategoryID, VendorID, NoInStock, name, "
              "description, TaxRateID FROM item")
        , m_lists(handle, "SELECT id, name FROM PriceList")
        , m_price(handle, "SELECT price FROM itemPriceList WHERE priceListID = 1 AND itemID = 1")
        , m_commit(handle, EngineSql{"COMMIT"})
        , m_itemIds(Ids(handle, EngineSql{"SELECT id FROM item WHERE id > ? ORDER BY id LIMIT 1"}))
        , m_listIds(Ids(handle, EngineSql{"SELECT id FROM PriceList WHERE id > ? ORDER BY id LIMIT 1"}))
    {
    }

    void Run()
    {
        m_begin.Run();
        m_items.Run();
        m_lists.Run();
        for (const qint64 item : m_itemIds)
            for (const qint64 list : m_listIds)
                m_price.Run(list, item);
        m_commit.Run();
    }

private:
    static std::vector<qint64> Ids(sqlite3* handle, EngineSql next)
    {
        FloorStatement statement(handle, next);
        std::vector<qint64> ids;
        for (qint64 last = 0; statement.Run(last) > 0; ids.push_back(last))
            last = statement.Number();
        return ids;
    }

    FloorStatement m_begin, m_items, m_lists, m_price, m_commit;
    std::vector<qint64> m_itemIds, m_listIds;
};

} // namespace

void MeasureExports(RunningProgram& program)
{
    const QTemporaryDir folder;
    ExportFloor floor(program.Handle());
    const Pair pair = MeasureInTurn(
        Rounds, [&] { WriteCsv(folder.filePath(QStringLiteral("items.csv")), InventoryCsv()); }, [&] { floor.Run(); });
    PrintFigure("export of the inventory, to the file", pair.program.Median(), pair.floor.Median(),
        Allowed * pair.floor.Median(), "ms");
}
