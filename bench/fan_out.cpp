#include "subjects.h"

#include "floor.h"
#include "measure.h"
#include "running_program.h"

#include "inventory/price_fan_out.h"

#include <vector>

namespace {

constexpr double Allowed = 1.5;
constexpr int Rounds = 5;

/// A new price list with a price of 0 for every item, as raw inserts in one transaction.
class FanOutFloor {
public:
    explicit FanOutFloor(sqlite3* handle)
        : m_begin(handle, EngineSql{"BEGIN IMMEDIATE"})
        , m_addList(handle, EngineSql{"INSERT INTO PriceList (name) VALUES (?)"})
        , m_newest(handle, EngineSql{"SELECT max(id) FROM PriceList"})
        , m_nextItem(handle, EngineSql{"SELECT id FROM item WHERE id > ? ORDER BY id LIMIT 1"})
        , m_items(handle, EngineSql{"SELECT count(*) FROM item"})
        , m_addPrice(handle, EngineSql{"INSERT INTO ItemPriceList (Price, PriceListID, ItemID) VALUES (?, ?, ?)"})
        , m_commit(handle, EngineSql{"COMMIT"})
    {
        m_items.Run();
        for (qint64 last = 0; qint64(m_ids.size()) < m_items.Number(); m_ids.push_back(last)) {
            m_nextItem.Run(last);
            last = m_nextItem.Number();
        }
    }

    void Add()
    {
        m_begin.Run();
        m_addList.Run(std::string("Floor"));
        m_newest.Run();
        for (const qint64 item : m_ids)
            m_addPrice.Run(0, m_newest.Number(), item);
        m_commit.Run();
    }

    /// The id of the list that was added last.
    qint64 Newest()
    {
        m_newest.Run();
        return m_newest.Number();
    }

private:
    FloorStatement m_begin, m_addList, m_newest, m_nextItem, m_items, m_addPrice, m_commit;
    std::vector<qint64> m_ids;
};

} // namespace

void MeasureFanOut(RunningProgram& program)
{
    FanOutFloor floor(program.Handle());
    Pair pair;
    for (int round = 0; round < Rounds; ++round) {
        pair.program.Add(MillisecondsOf([] { AddPriceListForEveryItem(QStringLiteral("Measured"), [](int, int) {}); }));
        DeletePriceList(floor.Newest());
        pair.floor.Add(MillisecondsOf([&] { floor.Add(); }));
        DeletePriceList(floor.Newest());
    }
    PrintFigure("new price list for every item", pair.program.Median(), pair.floor.Median(),
        Allowed * pair.floor.Median(), "ms");
}
