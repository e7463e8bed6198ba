#include "exchange/exchange_test.h"
#include "exchange/import_pages.h"
#include "exchange/import_preview.h"
#include "exchange/import_wizard.h"
#include "support/files.h"
#include "support/form_check.h"
#include "support/golden.h"
#include "support/wizard_walk.h"

#include <QTest>

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
        EXPECT_TRUE(QTest::qWaitFor([&page] { return page.cmdNext->isEnabled(); }));
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

namespace {

/// What the preview shows of a text: the titles, the rows, and how many there are.
struct Preview {
    const char* separator;
    bool titles;
    QByteArray text;
    QStringList shownTitles;
    QList<QStringList> rows;
    const char* count;
};
void PrintTo(const Preview& shown, std::ostream* out)
{
    *out << shown.separator << ' ' << shown.text.constData();
}

class ImportPreviewTest : public ImportWizardTest, public ::testing::WithParamInterface<Preview> { };

} // namespace

TEST_P(ImportPreviewTest, ShowsTheFile)
{
    Write(GetParam().text);
    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPreview([](frmWizImport_Preview& page) {
        page.chkFirstLine->setChecked(GetParam().titles);
        Pick(page.cboSep, GetParam().separator);
        AwaitReading(page);
        EXPECT_TRUE(page.g->isVisible());
        EXPECT_EQ(GridTitles(page.g), GetParam().shownTitles);
        EXPECT_EQ(GridRows(page.g), GetParam().rows);
        EXPECT_EQ(page.lblRows->text(), GetParam().count);
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunImportWizard(nullptr));
}

INSTANTIATE_TEST_SUITE_P(Files, ImportPreviewTest,
    ::testing::Values(Preview{"(none)", true, "A, ,B\r\n1,2,3,4\r\n\r\n5\r\n", {"A", "Field0", "B", "Field1"},
                          {{"1", "2", "3", "4"}, {"", "", "", ""}, {"5", "", "", ""}}, "4 records."},
        Preview{"(none)", false, "A,B\r\n1,2\r\n", {"Field0", "Field1"}, {{"A", "B"}, {"1", "2"}}, "3 records."},
        Preview{"(none)", true, "A,B\r\n", {"A", "B"}, {}, "1 records."},
        Preview{"\"", true, "\"A\",B\r\n\"1\", 2\r\n", {"\"A\"", "B"}, {{"1", "2"}}, "2 records."},
        Preview{"'", false, "'1', 2\r\n", {"Field0", "Field1"}, {{"1", "2"}}, "2 records."},
        Preview{"#", true, "A\r\n#1#, 2\r\n", {"A", "Field0"}, {{"1", "2"}}, "2 records."}));

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

namespace {

/// A file that cannot be read, made at the path, and the reason that is given.
struct BadFile {
    void (*make)(const QString& path);
    const char* reason;
};
void PrintTo(const BadFile& file, std::ostream* out)
{
    *out << file.reason;
}

class BadImportFileTest : public ImportWizardTest, public ::testing::WithParamInterface<BadFile> { };

} // namespace

TEST_P(BadImportFileTest, IsToldAndNotImported)
{
    NextOn<frmWizImport_Welcome, frmWizImport_File>();
    AtPage<frmWizImport_Preview>([this](frmWizImport_Preview& page) {
        AwaitReading(page);
        QFile::remove(File());
        GetParam().make(File());
        answers.ExpectMessage(QString("Unable to to import CSV file.\n") + GetParam().reason, Icon::Critical);
        Pick(page.cboSep, "#");
        EXPECT_TRUE(QTest::qWaitFor([this] { return answers.Done(); }));
        EXPECT_FALSE(page.cmdNext->isEnabled());
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunImportWizard(nullptr));
}

INSTANTIATE_TEST_SUITE_P(Files, BadImportFileTest,
    ::testing::Values(BadFile{[](const QString& path) { WriteFile(path, ""); }, ""},
        BadFile{[](const QString& path) { WriteFile(path, "a,b\nc,d\n"); },
            "The first line has no end. Lines must end with CR LF."},
        BadFile{[](const QString& path) { WriteFile(path, QByteArray(40'000, ',') + "\r\n"); }, "Overflow"},
        BadFile{[](const QString&) {}, "No such file or directory"},
        BadFile{[](const QString& path) { QDir().mkpath(path); }, "Path/File access error"},
        BadFile{[](const QString& path) { mkfifo(qPrintable(path), 0600); }, "Path/File access error"}));

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
