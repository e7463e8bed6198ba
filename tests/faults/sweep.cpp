#include "sweep.h"

#include "support/file_size_limit.h"
#include "support/files.h"
#include "support/temporary_database.h"

#include <gtest/gtest-spi.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <unistd.h>

using namespace faulty_disk;

/// What was seen of an act.
struct Course {
    bool hasStruck = false;
    bool hasEnded = false; ///< with an error box
    bool endsProcess = false;
    QStringList told; ///< the error box last
    QList<Operation> operations;
    QString failures; ///< of the hands on keys and mouse
};

namespace {

const QString Database = "/db.mdb";

/// What the program says of a disk that fails.
const QStringList DiskWords{"There is not enough space on the disk.", "Disk or network error.",
    "Cannot open the database file or the journal beside it."};

QString Joined(const Table& rows)
{
    QStringList texts;
    for (const QStringList& row : rows)
        texts.append(row.join(u' '));
    return texts.join(u'\n');
}

/// All rows of all tables, and what the indexes are.
QString Rows(const QString& path)
{
    QString all;
    for (const QStringList& table : PlainRows(path, "SELECT name FROM sqlite_schema WHERE type = 'table'"))
        for (QStringList row : PlainRows(path, QString("SELECT * FROM [%1] ORDER BY rowid").arg(table.first()))) {
            // A copy gets a new name each time.
            row.replaceInStrings(QRegularExpression('^' + QDir::tempPath() + ".*"), "(a file)");
            all += table.first() + u'|' + row.join(u'|') + u'\n';
        }
    return all + Joined(PlainRows(path, "SELECT sql FROM sqlite_schema WHERE type = 'index' ORDER BY name"));
}

QString BrokenRelations(const QString& path)
{
    QStringList orphans;
    for (const auto& [table, column, owner] : std::initializer_list<std::array<const char*, 3>>{
             {"invoiceline", "InvoiceID", "invoice"}, {"invoiceline", "ItemID", "item"},
             {"invoice", "CustomerID", "customer"}, {"item", "TaxRateID", "taxrate"}, {"item", "VendorID", "vendor"},
             {"item", "LocationID", "location"}, {"item", "SubCategoryID", "subcategory"},
             {"location", "WarehouseID", "warehouse"}, {"subcategory", "CategoryID", "category"},
             {"itemgroup_item", "ItemID", "item"}, {"itemgroup_item", "itemgroupid", "itemgroup"},
             {"ItemPriceList", "PriceListID", "PriceList"}, {"ItemCustomFieldData", "ItemID", "item"}})
        orphans.append(
            QString("SELECT '%1', rowid FROM %1 WHERE %2 NOT IN (SELECT id FROM %3)").arg(table, column, owner));
    const QString prices = "SELECT 'prices of item', item.id FROM item, PriceList WHERE 1 <> (SELECT count(*) "
                           "FROM ItemPriceList WHERE ItemID = item.id AND PriceListID = PriceList.id)";
    return Joined(PlainRows(path, orphans.join(" UNION ALL ") + " UNION ALL " + prices));
}

/// Of each item, what is in stock and what is on invoices.
QString Goods(const QString& path)
{
    return Joined(PlainRows(path,
        "SELECT id, NoInStock + coalesce((SELECT sum(quantity) FROM invoiceline WHERE ItemID = item.id), 0) "
        "FROM item"));
}

template <typename Run>
void Watch(Course& course, const Run& run)
{
    testing::TestPartResultArray failures;
    {
        const testing::ScopedFakeTestPartResultReporter reporter(&failures);
        try {
            run();
        } catch (const std::exception& error) {
            course.failures += error.what() + QString(u'\n');
        }
    }
    for (int i = 0; i < failures.size(); ++i)
        course.failures += failures.GetTestPartResult(i).message() + QString(u'\n');
}

Course Do(const Act& act, Point point, const QString& folder)
{
    Course course;
    Watch(course, [&] {
        Shop shop(folder);
        act.prepare(shop);
        const QStringList before = shop.Told();
        Start(point.number, point.fault);
        act.run(shop);
        course.told = shop.Told().sliced(before.size());
        course.hasEnded = shop.HasEnded();
    });
    course.operations = Mend();
    course.hasStruck = HasStruck();
    return course;
}

Course DoInChild(const QStringList& arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), QStringList{"--end"} + arguments);
    child.waitForFinished(-1);
    Course course;
    course.endsProcess = true;
    course.hasStruck = child.exitStatus() == QProcess::NormalExit && child.exitCode() == EndStatus;
    return course;
}

/// The file opens as at a start of the program, and is whole.
QString NextStart(const QString& folder)
{
    Course start;
    QString check;
    Watch(start, [&] {
        Connection().Open(folder + Database);
        check = Joined(PlainRows(folder + Database, "PRAGMA integrity_check"));
    });
    return start.failures + (check == "ok" ? QString() : check);
}

} // namespace

Sweep::Sweep(const Act& act)
    : m_act(act)
{
    const QTemporaryDir folder;
    Shop::Stock(folder.path());
    QStringList copies;
    // Nothing else reads the file in the middle of the act: the engine holds it.
    const auto keep = [&] {
        copies.append(folder.filePath(QString::number(copies.size())));
        QFile::copy(folder.path() + Database, copies.last());
    };
    const Act watched{act.name, act.commits,
        [&](Shop& shop) {
            keep();
            OnCommit([&](const char*) { keep(); });
            act.run(shop);
            OnCommit({});
        },
        act.prepare};
    const Course course = Do(watched, {0, Fault::Full}, folder.path());
    m_failures = course.failures;
    m_told = course.told;
    m_operations = course.operations;
    for (const QString& copy : copies) {
        m_states.append(Rows(copy));
        m_broken.append(BrokenRelations(copy));
        m_goods.append(Goods(copy));
    }
}

QString Sweep::Finding() const
{
    if (!m_failures.isEmpty())
        return m_failures;
    const qsizetype commits = m_states.size() - 1;
    if (commits < 1 || commits > m_act.commits || m_states.first() == m_states.last())
        return QString("%1 commits; told: %2").arg(commits).arg(m_told.join(u'\n'));
    if (m_broken.count(QString()) != m_broken.size())
        return m_broken.join(u'\n');
    for (const QString& goods : m_goods)
        if (goods != m_goods.first() && (goods != m_goods.last() || !m_act.movesGoods))
            return "goods are lost";
    return {};
}

QList<Point> Sweep::Points() const
{
    QList<Point> points;
    for (int i = 0; i < m_operations.size(); ++i)
        for (const Fault fault : Faults)
            if (CanStrike(fault, m_operations[i]))
                points.append({i + 1, fault});
    return points;
}

QString Sweep::FindingAt(Point point) const
{
    const QTemporaryDir folder;
    Shop::Stock(folder.path());
    if (!EndsProcess(point.fault))
        return Judge(folder.path(), Do(m_act, point, folder.path()));
    return Judge(folder.path(),
        DoInChild({folder.path(), m_act.name, QString::number(point.number), QString::number(int(point.fault))}));
}

QString Sweep::Judge(const QString& folder, const Course& course) const
{
    if (!course.hasStruck)
        return "the act did not come to this point\n" + course.failures;
    const QString next = NextStart(folder);
    if (!next.isEmpty())
        return "after the next start: " + next;
    const QString rows = Rows(folder + Database);
    if (!m_states.contains(rows))
        return "the act is half done";
    if (course.endsProcess)
        return {};
    if (course.hasEnded)
        return DiskWords.contains(course.told.last()) ? QString() : "told: " + course.told.last();
    if (m_act.isSilent)
        return course.told == m_told ? course.failures : "told: " + course.told.last();
    return course.told == m_told && rows != m_states.last() ? "the failure is not told" : course.failures;
}

void EndAt(const Act& act, Point point, const QString& folder)
{
    Do(act, point, folder);
}

namespace {

const QByteArray OldFile = "old file";
const QByteArray NoFile = "no file";

Course Do(const FileAct& act, const QString& folder)
{
    Course course;
    Watch(course, [&] {
        Shop shop(folder);
        WriteFile(shop.File(), OldFile);
        act.run(shop);
        course.told = shop.Told();
    });
    return course;
}

} // namespace

FileSweep::FileSweep(const FileAct& act)
    : m_act(act)
{
    const QTemporaryDir folder;
    Shop::Stock(folder.path());
    m_finding = Do(act, folder.path()).failures;
    const QByteArray file = ReadFile(Shop::FileIn(folder.path()));
    m_size = file.size();
    if (file == OldFile || file == NoFile)
        m_finding += "nothing is written";
}

QString FileSweep::Finding() const
{
    return m_finding;
}

QList<FilePoint> FileSweep::Points()
{
    QList<FilePoint> points;
    for (const double share : {0.0, 0.1, 0.5, 0.99})
        points += {{share, false}, {share, true}};
    return points;
}

QString FileSweep::FindingAt(FilePoint point) const
{
    const QTemporaryDir folder;
    Shop::Stock(folder.path());
    const auto bytes = qint64(double(m_size) * point.share);
    if (point.endsProcess)
        return Judge(folder.path(), DoInChild({folder.path(), m_act.name, QString::number(bytes)}));
    const FileAct onFullDisk{m_act.name, m_act.deletesFirst, [&](Shop& shop) {
                                 const FileSizeLimit limit{rlim_t(bytes)};
                                 m_act.run(shop);
                             }};
    return Judge(folder.path(), Do(onFullDisk, folder.path()));
}

QString FileSweep::Judge(const QString& folder, const Course& course) const
{
    const QByteArray file = ReadFile(Shop::FileIn(folder));
    if (file != OldFile && !(m_act.deletesFirst && file == NoFile))
        return "half a file: " + file.left(100);
    if (course.endsProcess)
        return course.hasStruck ? NextStart(folder) : "the process did not end here";
    const QStringList left = QDir(folder).entryList(QDir::Files);
    if (left.size() > 1 + int(file == OldFile))
        return "left behind: " + left.join(u' ');
    return course.told.isEmpty() ? "the failure is not told" : NextStart(folder);
}

void EndAt(const FileAct& act, qint64 bytes, const QString& folder)
{
    const FileAct ending{act.name, act.deletesFirst, [&](Shop& shop) {
                             const FileSizeLimit limit{rlim_t(bytes)};
                             std::signal(SIGXFSZ, [](int) { _exit(EndStatus); });
                             act.run(shop);
                         }};
    Do(ending, folder);
}
