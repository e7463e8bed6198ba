#include "watch.h"

#include "front.h"

#include "db/connection.h"
#include "db/connection_private.h"
#include "support/temporary_database.h"

#include <QApplication>
#include <QWidget>

#include <sqlite3.h>

#include <cmath>
#include <cstdlib>

namespace {

constexpr int LooksBetweenChecks = 250;

/// The statements that ran since the last look.
QStringList gStatements;

bool HasRun(const char* words)
{
    for (const QString& statement : gStatements)
        if (statement.contains(QLatin1String(words), Qt::CaseInsensitive))
            return true;
    return false;
}

/// What a line takes from the stock it gives back. Otherwise the figure is set, goods come in, or an invoice that
/// leaves the history takes its goods with it.
bool MayChangeSum()
{
    return HasRun("UPDATE Item SET [Number]") || HasRun("DELETE FROM invoiceline WHERE invoiceid")
        || (HasRun("SET noinstock = noinstock +") && !HasRun("FROM invoiceline"));
}

} // namespace

Watch::Watch(const Diary& diary, const QString& folder)
    : m_diary(diary)
    , m_folder(folder)
{
    ConnectionPrivate::StatementListener = [](const QString& statement) { gStatements.append(statement); };
}

void Watch::Found(const QString& what) const
{
    m_diary.Write(Line::Finding, what);
    std::_Exit(EXIT_FAILURE);
}

void Watch::Look()
{
    if (gConnection && gConnection->IsOpen()) {
        if (!sqlite3_get_autocommit(gConnection->Private().handle))
            Found(QStringLiteral("a batch is open while the program waits for its user"));
        LookAtStock();
    }
    gStatements.clear();
    if (++m_looks % LooksBetweenChecks == 0) {
        LookAtFile();
        LookAtWidgets();
    }
}

void Watch::LookAtStock()
{
    sqlite3* handle = gConnection->Private().handle;
    const int changes = sqlite3_total_changes(handle);
    if (std::exchange(m_changes, changes) == changes)
        return;
    Stock stock;
    for (const QStringList& item : PlainRows(handle,
             QStringLiteral("SELECT id, COALESCE(NoInStock, 0) + COALESCE((SELECT SUM(Quantity) FROM invoiceline WHERE "
                            "ItemID = item.id), 0) FROM item")))
        stock.insert(item[0], item[1].toDouble());
    if (!MayChangeSum())
        for (auto item = stock.cbegin(); item != stock.cend(); ++item)
            if (const double before = m_stock.value(item.key(), item.value());
                std::abs(before - item.value()) > 1e-9 * (1 + std::abs(before)))
                Found(QStringLiteral("stock and lines of item %1 were %2 and are %3 after %4")
                          .arg(item.key())
                          .arg(before)
                          .arg(item.value())
                          .arg(gStatements.join(QStringLiteral("; "))));
    m_stock = stock;
}

void Watch::LookAtFile() const
{
    if (const QString wrong = WrongInFile(m_folder + QStringLiteral("/db.mdb")); !wrong.isEmpty())
        Found(wrong);
}

QString Watch::WrongInFile(const QString& path)
{
    if (const Table answer = PlainRows(path, QStringLiteral("PRAGMA integrity_check")); answer != Table({{"ok"}}))
        return QStringLiteral("the file is not whole: %1").arg(answer.value(0).value(0));
    struct Relation {
        const char* table;
        const char* column;
        const char* parent;
    };
    // An item, a customer or a group may go while rows of other tables still name it; so may an invoice, from the
    // history, that is open on its page, where lines can be added to it still.
    constexpr Relation relations[] = {
        {"item", "TaxRateID", "taxrate"},
        {"item", "LocationID", "location"},
        {"item", "SubCategoryID", "subcategory"},
        {"item", "VendorID", "vendor"},
        {"location", "WarehouseID", "warehouse"},
        {"subcategory", "CategoryID", "category"},
        {"ItemPriceList", "PriceListID", "PriceList"},
    };
    for (const auto& [table, column, parent] : relations)
        if (const Table lost = PlainRows(path,
                QStringLiteral("SELECT id, %2 FROM %1 WHERE %2 NOT IN (SELECT id FROM %3)")
                    .arg(QLatin1String(table), QLatin1String(column), QLatin1String(parent)));
            !lost.isEmpty())
            return QStringLiteral("%1 %2 names the %3 %4, which is not there")
                .arg(QLatin1String(table), lost[0][0], QLatin1String(parent), lost[0][1]);
    return {};
}

void Watch::LookAtWidgets()
{
    constexpr int MostAlike = 12;
    constexpr qsizetype Slack = 400;
    QHash<QString, int> alike;
    for (const QWidget* window : AllWindows())
        if (const int count = ++alike[Described(window) + QString::number(quintptr(window->parentWidget()))];
            count > MostAlike)
            Found(QStringLiteral("%1 windows are left over: %2").arg(count).arg(Described(window)));
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget() || OpenWindows().size() > 1)
        return;
    const qsizetype widgets = QApplication::allWidgets().size();
    if (m_widgets == 0)
        m_widgets = widgets;
    if (widgets > m_widgets + Slack)
        Found(QStringLiteral("there were %1 widgets and are %2").arg(m_widgets).arg(widgets));
}

QStringList Watch::BarCodes() const
{
    QStringList codes;
    for (const QStringList& item : PlainRows(m_folder + QStringLiteral("/db.mdb"),
             QStringLiteral("SELECT Barcode FROM item WHERE Barcode <> '' ORDER BY id")))
        codes.append(item[0]);
    return codes;
}
