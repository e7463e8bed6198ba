#include "base/numbers.h"
#include "config/configuration_pages.h"
#include "config/configuration_wizard.h"
#include "config/secondary_tax.h"
#include "support/test.h"

namespace {

const QString SettingsRow = "SELECT BusinessName, Address1, Address2, City, State, PostCode, Country, Phone, Fax, "
                            "Logofilename, SecondaryTaxEnable, SecondaryTaxName FROM settings";
const QString FirstRate = "SELECT name, percentage FROM taxrate WHERE id <> 1 ORDER BY id LIMIT 1";

class ConfigurationWizardTest : public DatabaseTest {
protected:
    void SetUp() override
    {
        DatabaseTest::SetUp();
        ShowAllWelcomePages();
        Run("UPDATE settings SET SecondaryTaxEnable = 0, SecondaryTaxName = 'City Tax', Logofilename = NULL");
        Run("DELETE FROM taxrate WHERE id <> 1");
        LoadSecondaryTax();
    }

    /// A picture of a name that any folder may hold.
    QString Logo(const QString& name) const
    {
        QString path = Folder() + "/" + name;
        QDir().mkpath(QFileInfo(path).path());
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        EXPECT_TRUE(picture.save(path, "BMP"));
        return path;
    }

    /// Through all pages, with what to do on those that ask.
    bool RunWith(std::function<void(frmWizConfig_Logo&)> logo, std::function<void(frmWizConfig_Tax&)> tax = {},
        std::function<void(frmWizConfig_Business&)> business = {})
    {
        NextOn<frmWizConfig_Welcome>();
        AtPage(std::move(business));
        AtPage(std::move(logo));
        AtPage(std::move(tax));
        NextOn<frmWizConfig_Barcode, frmWizConfig_PickingList, frmWizConfig_Cats, frmWizConfig_Complete>();
        return RunConfigurationWizard(nullptr);
    }

    /// All that a finished run may change.
    QStringList Stored() const
    {
        QStringList stored = Rows(SettingsRow).value(0) + Rows(FirstRate).value(0);
        stored << GetConfig("HideTaxOnInvoice", "unset") << SecondaryTax::SecondaryTaxName
               << TruthText(SecondaryTax::SecondaryTaxEnable);
        return stored + QDir(Folder()).entryList(QDir::Files);
    }

    ScriptedAnswers answers;
};

void FillBusiness(frmWizConfig_Business& page)
{
    const QList<QLineEdit*> boxes{page.txtBusinessName, page.txtAddress1, page.txtAddress2, page.txtCity, page.txtState,
        page.txtPostcode, page.txtCountry, page.txtPhone, page.txtFax};
    const QStringList texts{
        "O'Hara's", "1 King's Rd", "\"Top\" floor", "Saint-Malo", "ME", "04133", "Côte d'Ivoire", "555-1", "555-2"};
    for (int i = 0; i < boxes.size(); ++i)
        Type(boxes[i], texts[i]);
}

void FillTax(frmWizConfig_Tax& page)
{
    Type(page.txtName, "Seller's Tax");
    Type(page.txtPercentage, "8.25");
    Click(page.chkHideTaxOnInvoice);
    Click(page.chkEnableTax2);
    Type(page.txtSalesTaxName2, "L'Impôt");
}

} // namespace

TEST_F(ConfigurationWizardTest, FinishStoresWhatWasTypedInItsColumns)
{
    Run("INSERT INTO taxrate (name, percentage) VALUES ('Old', 5), ('Later', 9)");
    const QString logo = Logo("shop.bmp");
    answers.ExpectOpenFile(logo);
    EXPECT_TRUE(RunWith([](frmWizConfig_Logo& page) { Click(page.cmdBrowse); }, FillTax, FillBusiness));

    const QString copy = Single("SELECT Logofilename FROM settings");
    EXPECT_EQ(Rows(SettingsRow),
        Table({{"O'Hara's", "1 King's Rd", "\"Top\" floor", "Saint-Malo", "ME", "04133", "Côte d'Ivoire", "555-1",
            "555-2", copy, "1", "L'Impôt"}}));
    EXPECT_EQ(Rows("SELECT name, percentage FROM taxrate WHERE id <> 1 ORDER BY id"),
        Table({{"Seller's Tax", "8.25"}, {"Later", "9.0"}}));
    EXPECT_EQ(Stored().mid(14, 3), QStringList({"True", "L'Impôt", "True"}));

    EXPECT_NE(copy, logo);
    EXPECT_EQ(QFileInfo(copy).path(), Folder());
    EXPECT_EQ(QImage(copy), QImage(logo));
    // A further run shows all of it again and copies the copy.
    EXPECT_TRUE(RunWith([&](frmWizConfig_Logo& page) { EXPECT_EQ(page.lblLogofilename->text(), copy); },
        [](frmWizConfig_Tax& page) {
            EXPECT_EQ(page.txtPercentage->text(), "8.25");
            EXPECT_TRUE(page.chkHideTaxOnInvoice->isChecked() && page.picTax2->isVisible());
        },
        [](frmWizConfig_Business& page) {
            Click(page.txtCountry);
            QCoreApplication::processEvents();
            EXPECT_EQ(page.txtCountry->selectedText(), "Côte d'Ivoire") << "entering a box selects its text";
        }));
    EXPECT_NE(Single("SELECT Logofilename FROM settings"), copy);
    EXPECT_EQ(QDir(Folder()).entryList({"*.bmp"}).size(), 3);
}

TEST_F(ConfigurationWizardTest, CancelOnTheLastPageAppliesNothingAndThePagesStandAlike)
{
    const QStringList before = Stored();
    QString texts;
    QRect size, next;
    const auto check = [&](auto& page, const QStringList& hidden = {}) {
        CheckForm(page, hidden);
        texts += ScreenText(&page);
        if (size.isNull()) {
            size = page.rect();
            next = page.cmdNext->geometry();
        }
        EXPECT_EQ(page.rect(), size) << page.windowTitle().toStdString();
        EXPECT_EQ(page.cmdNext->geometry(), next) << page.windowTitle().toStdString();
    };
    AtPage<frmWizConfig_Welcome>(check);
    AtPage<frmWizConfig_Business>([&](auto& page) {
        check(page);
        FillBusiness(page);
    });
    AtPage<frmWizConfig_Logo>([&](auto& page) {
        check(page);
        answers.ExpectOpenFile(Logo("other/logo.bmp"));
        Click(page.cmdBrowse);
    });
    AtPage<frmWizConfig_Tax>([&](auto& page) {
        check(page, {"picTax2", "txtSalesTaxName2"});
        FillTax(page);
    });
    AtPage<frmWizConfig_Barcode>(check);
    AtPage<frmWizConfig_PickingList>(check);
    AtPage<frmWizConfig_Cats>(check);
    AtPage<frmWizConfig_Complete>([&](auto& page) {
        check(page);
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunConfigurationWizard(nullptr));
    EXPECT_EQ(Stored(), before);
    ExpectGolden(texts, "configuration_wizard.txt");

    Run("DELETE FROM settings");
    EXPECT_FALSE(RunConfigurationWizard(nullptr)) << "without a word";
    EXPECT_EQ(Count("settings"), 0);
}

TEST_F(ConfigurationWizardTest, ATypedRateIsStoredAsTheNumberRulesReadItOrEndsTheProgram)
{
    const struct {
        bool rateExists;
        const char* name;
        const char* percentage;
        QString stored;
        QLocale::Language language = QLocale::English;
    } rates[] = {{true, "VAT's", "abc", "VAT's 0.0"}, {true, "VAT", "", "VAT 0.0"}, {true, "", "5%", " 0.0"},
        {true, "VAT", "1,5", "Old 5.0"}, {false, "VAT's", "abc", "VAT's 0.0"}, {false, "VAT", "1,5", "VAT 15.0"},
        {false, "", "7", ""}, {true, "MwSt", "7,5", "MwSt 7.5", QLocale::German},
        {false, "MwSt", "7,5", "MwSt 7.5", QLocale::German}};
    for (const auto& rate : rates) {
        SCOPED_TRACE(testing::Message() << rate.rateExists << rate.name << ' ' << rate.percentage);
        SetRegional(QLocale(rate.language));
        Run("DELETE FROM taxrate WHERE id <> 1");
        if (rate.rateExists)
            TaxRateRow("Old", 5);
        const ExpectedEnd end;
        Guarded([&] {
            RunWith({}, [&](frmWizConfig_Tax& page) {
                Type(page.txtName, rate.name);
                Type(page.txtPercentage, rate.percentage);
            });
        });
        EXPECT_EQ(end.Ended(), rate.stored.startsWith("Old"));
        EXPECT_EQ(Rows(FirstRate).value(0).join(' '), rate.stored);
        // The second name goes in although its box was never shown.
        EXPECT_EQ(Single("SELECT SecondaryTaxName FROM settings"), "City Tax");
    }
}

TEST_F(ConfigurationWizardTest, ALogoIsStoredUnderANewNameInTheProgramsFolderAlsoWhereItHasGone)
{
    const struct {
        const char* name;
        const char* extension;
        bool removed, replacedByAFolder;
    } logos[] = {{"my.shop/logo", "", false, false}, {"it's/shop.sign.bmp", ".bmp", false, false},
        {"gone.bmp", ".bmp", true, false}, {"folder.bmp", ".bmp", true, true}};
    for (const auto& logo : logos) {
        SCOPED_TRACE(logo.name);
        const QString path = Logo(logo.name);
        answers.ExpectOpenFile(path);
        EXPECT_TRUE(RunWith([](frmWizConfig_Logo& page) { Click(page.cmdBrowse); },
            [&](frmWizConfig_Tax&) {
                if (logo.removed)
                    QFile::remove(path);
                if (logo.replacedByAFolder)
                    QDir().mkpath(path);
            }));
        const QFileInfo stored(Single("SELECT Logofilename FROM settings"));
        EXPECT_EQ(stored.path(), Folder());
        EXPECT_TRUE(stored.fileName().endsWith(logo.extension));
        EXPECT_EQ(stored.fileName().count(u'.'), *logo.extension ? 1 : 0);
        EXPECT_EQ(stored.exists(), !logo.removed);
        Run("UPDATE settings SET Logofilename = NULL");
    }
}

TEST_F(ConfigurationWizardTest, APictureThatCannotBeLoadedIsToldAndTheOneBeforeStaysUntilItIsCleared)
{
    const QString broken = Folder() + "/settings/broken.jpg";
    QDir().mkpath(Folder() + "/settings");
    ASSERT_TRUE(QFile(broken).open(QFile::WriteOnly));
    Run("UPDATE settings SET Logofilename = '/nowhere/old.bmp'");
    answers.ExpectMessage("Unable to load file /nowhere/old.bmp", Icon::Critical);
    EXPECT_TRUE(RunWith([&](frmWizConfig_Logo& page) {
        EXPECT_EQ(page.lblLogofilename->text(), "");
        EXPECT_FALSE(page.cmdClear->isEnabled());
        answers.ExpectOpenFile(Logo("good.bmp"));
        Click(page.cmdBrowse);
        for (const QString& file : {broken, Folder(), QString()}) {
            answers.ExpectOpenFile(file);
            if (!file.isEmpty())
                answers.ExpectMessage("Unable to load file " + file, Icon::Critical);
            Click(page.cmdBrowse);
            EXPECT_EQ(page.lblLogofilename->text(), Folder() + "/good.bmp");
        }
        EXPECT_EQ(page.picPreview->findChild<QLabel*>()->pixmap().size(), QSize(40, 20));
    }));

    // Clear takes the logo away even when the page is left by Back.
    NextOn<frmWizConfig_Welcome, frmWizConfig_Business>();
    AtPage<frmWizConfig_Logo>([](frmWizConfig_Logo& page) {
        Click(page.cmdClear);
        EXPECT_FALSE(page.cmdClear->isEnabled());
        EXPECT_TRUE(page.picPreview->findChild<QLabel*>()->pixmap().isNull());
        Click(page.cmdBack);
    });
    NextOn<frmWizConfig_Business>();
    AtPage<frmWizConfig_Logo>([](frmWizConfig_Logo& page) { EXPECT_EQ(page.lblLogofilename->text(), ""); });
    NextOn<frmWizConfig_Tax, frmWizConfig_Barcode, frmWizConfig_PickingList, frmWizConfig_Cats,
        frmWizConfig_Complete>();
    EXPECT_TRUE(RunConfigurationWizard(nullptr));
    EXPECT_EQ(Single("SELECT Logofilename FROM settings"), "");
}
