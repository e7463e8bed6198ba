#pragma once

#include "floor.h"

/// The statements of one scan on an invoice without a line of that item, in their order.
class ScanFloor {
public:
    explicit ScanFloor(sqlite3* handle);

    /// All of them, with those that read the whole invoice.
    void Scan(const std::string& barCode, qint64 invoice);
    /// Those alone that write.
    void Write(qint64 item, qint64 invoice);

private:
    void AddLine(qint64 item, qint64 invoice);

    FloorStatement m_begin, m_findItem, m_price, m_stock, m_lineOfItem, m_item, m_addLine, m_takeFromStock, m_lines,
        m_commit;
    const std::string m_noText, m_number = "12345", m_name = "Pewter Candlestick 12345", m_taxRate = "Standard";
};
