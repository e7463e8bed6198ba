#include "scan_floor.h"

ScanFloor::ScanFloor(sqlite3* handle)
    : m_begin(handle, EngineSql{"BEGIN IMMEDIATE"})
    , m_findItem(handle, "SELECT id FROM item WHERE barcode = 'x'")
    , m_price(handle, "SELECT price FROM itempricelist WHERE itemid = 1 AND pricelistid = 1")
    , m_stock(handle, "SELECT noinstock FROM item WHERE id = 1")
    , m_lineOfItem(handle, "SELECT id, quantity FROM invoiceline WHERE invoiceid = 1 AND itemid = 1")
    , m_item(handle,
          "SELECT item.id, [number], item.name, taxrate.percentage, taxrate.name AS tname, description "
          "FROM item, taxrate WHERE item.taxrateid = taxrate.id AND item.id = 1")
    , m_addLine(handle,
          EngineSql{"INSERT INTO InvoiceLine (ItemID, InvoiceID, Quantity, Amount, Description, Number, Name, "
                    "TaxRateName, TaxRatePercentage) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"})
    , m_takeFromStock(handle, "UPDATE item SET noinstock = noinstock - 1 WHERE id = 1")
    , m_lines(handle,
          "SELECT id, quantity, number, name, amount, taxratename, taxratepercentage FROM invoiceline "
          "WHERE invoiceid = 1;")
    , m_commit(handle, EngineSql{"COMMIT"})
{
}

void ScanFloor::Scan(const std::string& barCode, qint64 invoice)
{
    m_findItem.Run(barCode);
    const qint64 item = m_findItem.Number();
    m_begin.Run();
    m_price.Run(item, 1);
    m_stock.Run(item);
    m_lineOfItem.Run(invoice, item);
    m_item.Run(item);
    AddLine(item, invoice);
    m_lineOfItem.Run(invoice, item);
    m_lines.Run(invoice);
    m_commit.Run();
}

void ScanFloor::Write(qint64 item, qint64 invoice)
{
    m_begin.Run();
    AddLine(item, invoice);
    m_commit.Run();
}

void ScanFloor::AddLine(qint64 item, qint64 invoice)
{
    m_addLine.Run(item, invoice, 1, 12.5, m_noText, m_number, m_name, m_taxRate, 8.25);
    m_takeFromStock.Run(1, item);
}
