#include "base/numbers.h"
#include "base/settings_store.h"
#include "config/configuration_pages.h"
#include "config/configuration_wizard.h"
#include "config/secondary_tax.h"
#include "support/form_test.h"
#include "support/golden.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

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
        const QString path = Folder() + "/" + name;
        QDir().mkpath(QFileInfo(path).path());
        QImage picture(40, 20, QImage::Format_RGB32);
        picture.fill(Qt::darkGreen);
        EXPECT_TRUE(picture.save(path, "BMP"));
        return path;
    }

    /// Lets `visit` fill the page, then clicks Next.
    template <typename Page>
    static void At(std::function<void(Page&)> visit = {})
    {
        WhenFormShows<Page>([visit](Page& page) {
            if (visit)
                visit(page);
            Click(page.cmdNext);
        });
    }
    /// Through all pages, with what to do on those that ask.
    bool RunWith(std::function<void(frmWizConfig_Logo&)> logo, std::function<void(frmWizConfig_Tax&)> tax = {},
        std::function<void(frmWizConfig_Business&)> business = {})
    {
        At<frmWizConfig_Welcome>();
        At<frmWizConfig_Business>(std::move(business));
        At<frmWizConfig_Logo>(std::move(logo));
        At<frmWizConfig_Tax>(std::move(tax));
        At<frmWizConfig_Barcode>();
        At<frmWizConfig_PickingList>();
        At<frmWizConfig_Cats>();
        At<frmWizConfig_Complete>();
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
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, "L'Impôt");
    EXPECT_TRUE(SecondaryTax::SecondaryTaxEnable);
    EXPECT_EQ(GetConfig("HideTaxOnInvoice", "unset"), "True");

    EXPECT_NE(copy, logo);
    EXPECT_EQ(QFileInfo(copy).path(), Folder());
    EXPECT_EQ(QImage(copy), QImage(logo));
    // A further run shows all of it again and copies the copy.
    EXPECT_TRUE(RunWith([&](frmWizConfig_Logo& page) { EXPECT_EQ(page.lblLogofilename->text(), copy); },
        [](frmWizConfig_Tax& page) {
            EXPECT_EQ(page.txtPercentage->text(), "8.25");
            EXPECT_TRUE(page.chkHideTaxOnInvoice->isChecked() && page.picTax2->isVisible());
        },
        [](frmWizConfig_Business& page) { EXPECT_EQ(page.txtCountry->text(), "Côte d'Ivoire"); }));
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
    At<frmWizConfig_Welcome>(check);
    At<frmWizConfig_Business>([&](auto& page) {
        check(page);
        FillBusiness(page);
    });
    At<frmWizConfig_Logo>([&](auto& page) {
        check(page);
        answers.ExpectOpenFile(Folder() + "/other/logo.bmp");
        Logo("other/logo.bmp");
        Click(page.cmdBrowse);
    });
    At<frmWizConfig_Tax>([&](auto& page) {
        check(page, {"picTax2", "txtSalesTaxName2"});
        FillTax(page);
    });
    At<frmWizConfig_Barcode>(check);
    At<frmWizConfig_PickingList>(check);
    At<frmWizConfig_Cats>(check);
    WhenFormShows<frmWizConfig_Complete>([&](auto& page) {
        check(page);
        Click(page.cmdCancel);
    });
    EXPECT_FALSE(RunConfigurationWizard(nullptr));
    EXPECT_EQ(Stored(), before);
    ExpectGolden(texts, "configuration_wizard.txt");
}

TEST_F(ConfigurationWizardTest, WithoutASettingsRowItEndsWithoutAWord)
{
    Run("DELETE FROM settings");
    EXPECT_FALSE(RunConfigurationWizard(nullptr));
    EXPECT_EQ(Count("settings"), 0);
}

TEST_F(ConfigurationWizardTest, EnteringABoxSelectsItsText)
{
    Run("UPDATE settings SET City = 'Saint-Malo'");
    EXPECT_TRUE(RunWith({}, {}, [](frmWizConfig_Business& page) {
        Click(page.txtCity);
        QCoreApplication::processEvents();
        EXPECT_EQ(page.txtCity->selectedText(), "Saint-Malo");
    }));
}

namespace {

/// What the tax page makes of a typed rate: the rate's row, "" for none, or the end of the program for a statement
/// that the engine cannot read.
struct TypedRate {
    bool rateExists;
    const char* name;
    const char* percentage;
    const char* stored; ///< null for the end
};
void PrintTo(const TypedRate& rate, std::ostream* out)
{
    *out << (rate.rateExists ? "update " : "add ") << rate.name << ' ' << rate.percentage;
}

class TypedRateTest : public ConfigurationWizardTest, public ::testing::WithParamInterface<TypedRate> { };

} // namespace

TEST_P(TypedRateTest, IsStoredAsTheNumberRulesReadIt)
{
    const TypedRate& rate = GetParam();
    if (rate.rateExists)
        TaxRateRow("Old", 5);
    ExpectedEnd end;
    Guarded([&] {
        RunWith({}, [&](frmWizConfig_Tax& page) {
            Type(page.txtName, rate.name);
            Type(page.txtPercentage, rate.percentage);
        });
    });
    EXPECT_EQ(end.Ended(), rate.stored == nullptr);
    EXPECT_EQ(Rows(FirstRate).value(0).join(' '), rate.stored ? rate.stored : "Old 5.0");
    // The second name goes in although its box was never shown.
    EXPECT_EQ(Single("SELECT SecondaryTaxName FROM settings"), "City Tax");
}

INSTANTIATE_TEST_SUITE_P(Rates, TypedRateTest,
    ::testing::Values(TypedRate{true, "VAT's", "abc", "VAT's 0.0"}, TypedRate{true, "VAT", "", "VAT 0.0"},
        TypedRate{true, "", "5%", " 0.0"}, TypedRate{true, "VAT", "1,5", nullptr},
        TypedRate{false, "VAT's", "abc", "VAT's 0.0"}, TypedRate{false, "VAT", "1,5", "VAT 15.0"},
        TypedRate{false, "", "7", ""}));

namespace {

/// A logo that is chosen, and what becomes of it before Finish.
struct ChosenLogo {
    const char* name;
    void (*meanwhile)(const QString& path);
    const char* extension;
    bool copied;
};
void PrintTo(const ChosenLogo& logo, std::ostream* out)
{
    *out << logo.name;
}

class ChosenLogoTest : public ConfigurationWizardTest, public ::testing::WithParamInterface<ChosenLogo> { };

} // namespace

TEST_P(ChosenLogoTest, IsStoredUnderANewNameInTheProgramsFolder)
{
    const QString logo = Logo(GetParam().name);
    answers.ExpectOpenFile(logo);
    EXPECT_TRUE(RunWith([](frmWizConfig_Logo& page) { Click(page.cmdBrowse); },
        [&](frmWizConfig_Tax&) { GetParam().meanwhile(logo); }));
    const QFileInfo stored(Single("SELECT Logofilename FROM settings"));
    EXPECT_EQ(stored.path(), Folder());
    EXPECT_TRUE(stored.fileName().endsWith(GetParam().extension));
    EXPECT_EQ(stored.fileName().count(u'.'), *GetParam().extension ? 1 : 0);
    EXPECT_EQ(stored.exists(), GetParam().copied);
}

INSTANTIATE_TEST_SUITE_P(Logos, ChosenLogoTest,
    ::testing::Values(ChosenLogo{"my.shop/logo", [](const QString&) {}, "", true},
        ChosenLogo{"it's/shop.sign.bmp", [](const QString&) {}, ".bmp", true},
        ChosenLogo{"gone.bmp", [](const QString& path) { QFile::remove(path); }, ".bmp", false},
        ChosenLogo{"folder.bmp",
            [](const QString& path) {
                QFile::remove(path);
                QDir().mkpath(path);
            },
            ".bmp", false}));

TEST_F(ConfigurationWizardTest, APictureThatCannotBeLoadedIsToldAndTheOneBeforeStays)
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
}

TEST_F(ConfigurationWizardTest, ClearTakesTheLogoAwayEvenWhenThePageIsLeftByBack)
{
    Run(QStringLiteral("UPDATE settings SET Logofilename = '%1'").arg(Logo("shop.bmp")));
    At<frmWizConfig_Welcome>();
    At<frmWizConfig_Business>();
    WhenFormShows<frmWizConfig_Logo>([](frmWizConfig_Logo& page) {
        Click(page.cmdClear);
        EXPECT_FALSE(page.cmdClear->isEnabled());
        EXPECT_TRUE(page.picPreview->findChild<QLabel*>()->pixmap().isNull());
        Click(page.cmdBack);
    });
    At<frmWizConfig_Business>();
    At<frmWizConfig_Logo>([](frmWizConfig_Logo& page) { EXPECT_EQ(page.lblLogofilename->text(), ""); });
    At<frmWizConfig_Tax>();
    At<frmWizConfig_Barcode>();
    At<frmWizConfig_PickingList>();
    At<frmWizConfig_Cats>();
    At<frmWizConfig_Complete>();
    EXPECT_TRUE(RunConfigurationWizard(nullptr));
    EXPECT_EQ(Single("SELECT Logofilename FROM settings"), "");
}
