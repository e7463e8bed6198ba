#include "exchange/exchange_test.h"
#include "exchange/import_pages.h"
#include "exchange/import_preview.h"
#include "exchange/import_wizard.h"

#include <map>

namespace {

constexpr auto Goods = "Name,Price,Vendor\r\nNut,1.50,Ann\r\nBolt,2,O'Hara\r\n";

class ImportWizardTest : public ExchangeTest {
protected:
    void SetUp() override
    {
        ExchangeTest::SetUp();
        ShowAllWelcomePages();
        ImportWizard::ImportFileName = File();
        Write(Goods);
    }

    void Write(const QByteArray& text) const { WriteFile(File(), text); }

    /// As AtPage, once the file is read.
    static void AtPreview(const std::function<void(frmWizImport_Preview&)>& visit)
    {
        AtPage<frmWizImport_Preview>([visit](frmWizImport_Preview& page) {
            AwaitReading(page);
            visit(page);
        });
    }
    static void AwaitReading(const frmWizImport_Preview& page)
    {
        // A machine with much else to do takes its time over a large file.
        EXPECT_TRUE(QTest::qWaitFor([&page] { return page.cmdNext->isEnabled(); }, 60'000));
    }
    static ComboBox* Source(frmWizImport_Preview& page, int field)
    {
        return Find<ComboBox>(&page, QStringLiteral("cboImportField_%1").arg(field).toLatin1());
    }
    static void PickSource(frmWizImport_Preview& page, int field, const QString& title)
    {
        ComboBox* source = Source(page, field);
        page.picBack->ensureWidgetVisible(source);
        Pick(source, title);
    }
};

constexpr int Name = 1;
constexpr int Vendor = 7;
constexpr int SalePrice = 13;

} // namespace

TEST_F(ImportWizardTest, AsksWordForWordAndImportsWhatWasChosen)
{
    QString texts;
    const auto check = [&texts](auto& page) {
        CheckForm(page, {}, "B");
        texts += ScreenText(&page);
    };
    AtPage<frmWizImport_Welcome>(check);
    AtPage<frmWizImport_File>([&](frmWizImport_File& page) {
        check(page);
        const QString noFile = "No file has been entered. Please enter a file to continue.";
        const QString noSuchFile = "Cannot open file. Please select a file to continue.";
        for (const auto& [name, message] : std::map<QString, QString>{{"", noFile}, {Folder(), noSuchFile},
                 {Folder() + "/none.csv", noSuchFile}, {File() + "\\", noSuchFile}}) {
            Type(page.txtName, name);
            answers.ExpectMessage(message, Icon::Critical);
            Click(page.cmdNext);
        }
        for (const QString& chosen : {File(), QString()}) {
            answers.ExpectSaveFile(chosen);
            Click(page.cmdAdd);
        }
        EXPECT_EQ(page.txtName->text(), File());
    });
    AtPreview([&](frmWizImport_Preview& page) {
        QStringList scrolled = {"picBack", "picFore"};
        for (int field = 1; field <= SalePrice; ++field)
            scrolled += {QString("lblTableField_%1").arg(field), QString("cboImportField_%1").arg(field)};
        CheckForm(page, scrolled);
        texts += ScreenText(&page);
        texts += Entries(page.cboSep).join(u' ') + u'\n' + Entries(Source(page, SalePrice)).join(u' ') + u'\n';
        PickSource(page, Name, "Name");
        PickSource(page, SalePrice, "Price");
        PickSource(page, Vendor, "Vendor");
    });
    AtPage<frmWizImport_Complete>(check);
    EXPECT_TRUE(RunImportWizard(nullptr));
    ExpectGolden(texts, "import_wizard.txt");
    EXPECT_EQ(Rows("SELECT item.Name, BusinessName, Price FROM item JOIN vendor ON VendorID = vendor.id "
                   "JOIN ItemPriceList ON ItemID = item.id ORDER BY item.id"),
        Table({{"Nut", "Ann", "1.5"}, {"Bolt", "O'Hara", "2"}}));
}

TEST_F(ImportWizardTest, ThePreviewShowsTheFile)
{
    const struct {
        const char* separator;
        bool firstLineHasTitles;
        QByteArray text;
        QStringList titles;
        QList<QStringList> rows;
        const char* count;
    } previews[] = {{"(none)", true, "A, ,B\r\n1,2,3,4\r\n\r\n5\r\n", {"A", "Field0", "B", "Field1"},
                        {{"1", "2", "3", "4"}, {"", "", "", ""}, {"5", "", "", ""}}, "4 records."},
        {"(none)", false, "A,B\r\n1,2\r\n", {"Field0", "Field1"}, {{"A", "B"}, {"1", "2"}}, "3 records."},
        {"(none)", true, "A,B\r\n", {"A", "B"}, {}, "1 records."},
        {"\"", true, "\"A\",B\r\n\"1\", 2\r\n", {"\"A\"", "B"}, {{"1", "2"}}, "2 records."},
        {"'", false, "'1', 2\r\n", {"Field0", "Field1"}, {{"1", "2"}}, "2 records."},
        {"#", true, "A\r\n#1#, 2\r\n", {"A", "Field0"}, {{"1", "2"}}, "2 records."}};
    for (const auto& preview : previews) {
        SCOPED_TRACE(preview.text.constData());
        Write(preview.text);
        NextOn<frmWizImport_Welcome, frmWizImport_File>();
        AtPreview([&preview](frmWizImport_Preview& page) {
            page.chkFirstLine->setChecked(preview.firstLineHasTitles);
            Pick(page.cboSep, preview.separator);
            AwaitReading(page);
            EXPECT_TRUE(page.g->isVisible());
            EXPECT_EQ(GridTitles(page.g), preview.titles);
            EXPECT_EQ(GridRows(page.g), preview.rows);
            EXPECT_EQ(page.lblRows->text(), preview.count);
            Click(page.cmdCancel);
        });
        EXPECT_FALSE(RunImportWizard(nullptr));
    }
}

TEST_F(ImportWizardTest, TheMappingOutlivesNextAlone)
{
    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPreview([](frmWizImport_Preview& page) {
        PickSource(page, Name, "Vendor");
        Pick(page.cboSep, "#");
        AwaitReading(page);
        EXPECT_EQ(Source(page, Name)->Text(), "(ignore)");
        Pick(page.cboSep, "(none)");
        AwaitReading(page);
        PickSource(page, Name, "Vendor");
        Click(page.cmdBack);
    });
    NextOn<frmWizImport_File>();
    AtPreview([](frmWizImport_Preview& page) {
        EXPECT_EQ(Source(page, Name)->Text(), "(ignore)");
        PickSource(page, Name, "Name");
        PickSource(page, Vendor, "Vendor");
    });
    AtPage<frmWizImport_Complete>([this](frmWizImport_Complete& page) {
        EXPECT_EQ(Count("item"), 2);
        Write("Name\r\nNut\r\n");
        Click(page.cmdBack);
    });
    AtPreview([](frmWizImport_Preview& page) {
        EXPECT_EQ(Source(page, Name)->Text(), "Name");
        EXPECT_EQ(Source(page, Vendor)->Text(), "(ignore)"); // its column is gone
    });
    AtPage<frmWizImport_Complete>([](frmWizImport_Complete& page) { Click(page.cmdCancel); });
    EXPECT_FALSE(RunImportWizard(nullptr));
    EXPECT_EQ(Count("item"), 3);

    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPreview([](frmWizImport_Preview& page) {
        EXPECT_EQ(Source(page, Name)->Text(), "(ignore)");
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunImportWizard(nullptr));
}

TEST_F(ImportWizardTest, AFailingRecordIsNamedAndTheWizardGoesOn)
{
    Write("Vendor\r\nAnn\r\n" + QByteArray(256, 'v') + "\r\n");
    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPreview([this](frmWizImport_Preview& page) {
        PickSource(page, Vendor, "Vendor");
        answers.ExpectMessage(
            "Error occured when importing record 2\nThe field is too small to accept the amount of data "
            "you attempted to add. Try inserting or pasting less data.",
            Icon::Critical);
    });
    NextOn<frmWizImport_Complete>();
    EXPECT_TRUE(RunImportWizard(nullptr));
    EXPECT_EQ(Count("item"), 1);
}

TEST_F(ImportWizardTest, ABadFileIsToldAndNotImported)
{
    const std::pair<std::function<void(const QString&)>, const char*> files[] = {
        {[](const QString& path) { WriteFile(path, ""); }, ""},
        {[](const QString& path) { WriteFile(path, "a,b\nc,d\n"); },
            "The first line has no end. Lines must end with CR LF."},
        {[](const QString& path) { WriteFile(path, QByteArray(40'000, ',') + "\r\n"); }, "Overflow"},
        {[](const QString&) {}, "No such file or directory"},
        {[](const QString& path) { QDir().mkpath(path); }, "Path/File access error"},
        {[](const QString& path) { mkfifo(qPrintable(path), 0600); }, "Path/File access error"}};
    for (const auto& [make, reason] : files) {
        SCOPED_TRACE(reason);
        Write(Goods);
        NextOn<frmWizImport_Welcome, frmWizImport_File>();
        AtPage<frmWizImport_Preview>([&, make = make, reason = reason](frmWizImport_Preview& page) {
            AwaitReading(page);
            QFile::remove(File());
            make(File());
            answers.ExpectMessage(QString("Unable to to import CSV file.\n") + reason, Icon::Critical);
            Pick(page.cboSep, "#");
            EXPECT_TRUE(QTest::qWaitFor([this] { return answers.Done(); }));
            EXPECT_FALSE(page.cmdNext->isEnabled());
            Click(page.cmdCancel);
        });
        EXPECT_FALSE(RunImportWizard(nullptr));
        QDir().rmdir(File());
    }
}

TEST_F(ImportWizardTest, AReadingThatIsLeftOrStartedAnewStops)
{
    const QByteArray large = Goods + QByteArray("Nut,1.50,Ann\r\n").repeated(1 << 17);
    Write(large);
    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPage<frmWizImport_Preview>([](frmWizImport_Preview& page) {
        EXPECT_TRUE(QTest::qWaitFor([&page] { return !page.lblRows->text().isEmpty(); }));
        EXPECT_FALSE(page.cmdNext->isEnabled());
        Pick(page.cboSep, "#");
        page.close();
    });
    AtPage<frmWizImport_Preview>([](frmWizImport_Preview& page) {
        AwaitReading(page);
        EXPECT_EQ(page.lblRows->text(), "131075 records.");
        page.chkFirstLine->click();
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunImportWizard(nullptr));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}
