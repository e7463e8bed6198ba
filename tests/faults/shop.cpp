#include "shop.h"

#include "app/load_step.h"
#include "base/clock.h"
#include "base/files.h"
#include "base/regional.h"
#include "base/settings_store.h"
#include "paper/preview_window.h"
#include "support/screen.h"
#include "support/temporary_database.h"

#include <QApplication>
#include <QFile>
#include <QLocale>

namespace {

/// The rows of the shop, written once a process.
class Stockroom : public DatabaseTest {
public:
    Stockroom()
    {
        DatabaseTest::SetUp();
        FillKeyTables();
        const int rope = FillItems();
        FillPeople(rope);
        bytes = [this] {
            QFile file(DatabasePath());
            return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
        }();
        DatabaseTest::TearDown();
    }

    QByteArray bytes;

private:
    void TestBody() override { }

    void FillKeyTables() const
    {
        PriceListRow("Bulk");
        PriceListRow("Trade");
        TaxRateRow("A rate", 5);
        for (const char* name : {"Art", "Boats"})
            SubCategoryRow(CategoryRow(name), QString("%1 goods").arg(name));
        for (const char* name : {"Attic", "Barn"})
            LocationRow(WarehouseRow(name), QString("%1 shelf").arg(name));
        for (const char* type : {"TextBox", "CheckBox"})
            Row("ItemCustomField", QString("Own %1").arg(type)).Set("type", type).Set("pos", 1).Add();
    }

    int FillItems() const
    {
        VendorRow("Abel");
        const int vendor = VendorRow("Boatwright");
        Item("Anchor").Stock(3).Price("80").Add();
        const int rope = Item("Rope").Number("12").Barcode(RopeCode).Stock(50).Price("2.50").Vendor(vendor).Add();
        for (int i = 1; i <= 40; ++i)
            Item(QString("Shackle %1").arg(i)).Stock(i).Price("1.25").Vendor(vendor).Add();
        Row("itemgroup", "A group").Add();
        const int set = Row("itemgroup", "Set").Add();
        for (const int item : {rope, rope + 1, rope + 2})
            Run(QString("INSERT INTO itemgroup_item VALUES (%1, %2)").arg(set).arg(item));
        return rope;
    }

    void FillPeople(int rope) const
    {
        Customer("Ada", "Abel").Business("A").Email("ada@shop.example").Add();
        const int buyer = Customer("Bo", "Byron").Business("B").Discount(5).Add();
        const int invoice = Invoice(buyer).No("00007").Add();
        Line(invoice, rope, 3, "2.50");
        Line(invoice, rope + 1, 1, "1.25");
    }
};

} // namespace

Agreement::Agreement(QString file)
    : m_file(std::move(file))
    , m_before(CurrentDialogDoor())
{
    SetDialogDoor(this);
}

Agreement::~Agreement()
{
    SetDialogDoor(m_before);
}

Answer Agreement::Message(const QString& text, Icon, Buttons buttons, const QString&)
{
    m_told.append(text);
    return buttons == Buttons::Ok || buttons == Buttons::OkCancel ? Answer::Ok : Answer::Yes;
}

void Shop::Stock(const QString& folder)
{
    static const QByteArray bytes = Stockroom().bytes;
    QFile file(folder + "/db.mdb");
    if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size())
        throw std::runtime_error("no room for the shop");
}

Shop::Shop(const QString& folder)
    : m_file(FileIn(folder))
    , m_agreement(m_file)
{
    SetRegional(QLocale(QLocale::English, QLocale::UnitedStates));
    SetClock([] { return QDateTime(QDate(2026, 3, 14), QTime(10, 30)); });
    SetProgramFolder(folder);
    SetSettingsFolder(folder + "/settings");
    StartWatchingForms();
    m_window = std::make_unique<MainWindow>();
    if (!LoadStep(*m_window, m_connection))
        throw std::runtime_error("the shop does not open");
    m_window->setWindowState(Qt::WindowNoState);
    Shown(m_window.get());
}

Shop::~Shop()
{
    StartWatchingForms();
    ClosePreviews();
    m_window.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    gConnection = nullptr;
}

QStringList Shop::Told() const
{
    return HasEnded() ? m_agreement.Told() + QStringList{m_end.Description()} : m_agreement.Told();
}
