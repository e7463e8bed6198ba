#include "config/secondary_tax.h"
#include "config/tax_rates.h"
#include "support/test.h"

namespace {

class TaxRatesTest : public FormTest<frmTaxRate> {
protected:
    /// Opens the details of a stored rate, or those of a new one.
    std::unique_ptr<frmAddTaxRate> Details(qint32 id)
    {
        frmAddTaxRate::CurrentTaxRateID = id;
        auto details = std::make_unique<frmAddTaxRate>(nullptr);
        Shown(details.get());
        return details;
    }
};

} // namespace

TEST_F(TaxRatesTest, ListsNamesWithPercentagesButNotTheRowForNone)
{
    Run("DELETE FROM taxrate WHERE id <> 1");
    TaxRateRow("Standard", 8.25);
    TaxRateRow("%1 off", 5);
    Run("INSERT INTO taxrate (name) VALUES (NULL)");
    Open();
    CheckForm(*form);
    EXPECT_EQ(Entries(form->lstItems), QStringList({" (%)", "%1 off (5%)", "Standard (8.25%)"}));
    EXPECT_EQ(form->lstItems->currentRow(), 0);

    const auto details = Details(NewRow);
    const int top = details->txtName->y();
    details->resize(details->width(), 3 * details->height());
    QCoreApplication::processEvents();
    EXPECT_EQ(details->txtName->y(), top) << "details dragged taller keep their boxes below the instructions";
}

TEST_F(TaxRatesTest, ATypedPercentageIsStoredAsTheNumberRulesReadItOrEndsTheProgram)
{
    const struct {
        const char* typed;
        const char* added;
        const char* updated;
    } percentages[] = {{"8.25", "8.25", "8.25"}, {"-3", "-3.0", "-3.0"}, {"1e2", "100.0", "100.0"},
        {"abc", "0.0", "0.0"}, {"", "0.0", "0.0"}, {"5%", "0.0", "0.0"}, {"1,5", "15.0", "the end"},
        {"$5", "5.0", "the end"}};
    for (const auto& [typed, addedAs, updatedTo] : percentages) {
        SCOPED_TRACE(typed);
        Run("DELETE FROM taxrate");
        const auto added = Details(NewRow);
        Type(added->txtName, "New");
        Type(added->txtPercentage, typed);
        Click(added->cmdOK);
        EXPECT_EQ(Single("SELECT percentage FROM taxrate WHERE name = 'New'"), addedAs);

        const auto updated = Details(TaxRateRow("Old", 5));
        EXPECT_EQ(updated->txtPercentage->text(), "5");
        Type(updated->txtPercentage, typed);
        const ExpectedEnd end;
        Click(updated->cmdOK);
        EXPECT_EQ(end.Ended() ? "the end" : Single("SELECT percentage FROM taxrate WHERE name = 'Old'"), updatedTo);
        EXPECT_TRUE(!end.Ended() || Single("SELECT percentage FROM taxrate WHERE name = 'Old'") == "5.0");
    }
}

TEST_F(TaxRatesTest, TheSecondaryTaxIsOpenWhileItIsEnabledAndAsStoredAfterAChangeOfTheRates)
{
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxName = "City Tax";
    SecondaryTax::SecondaryTaxPercentage = 7.5;
    Open();
    const auto expectAsStored = [this] {
        EXPECT_FALSE(
            form->chkEnableTax2->isChecked() || form->txtSalesTaxName2->isEnabled() || form->txtSalesTax2->isEnabled());
        EXPECT_EQ(form->txtSalesTaxName2->text() + form->txtSalesTax2->text(), "City Tax7.5");
    };
    expectAsStored();
    Click(form->chkEnableTax2);
    Type(form->txtSalesTaxName2, "GST");
    Type(form->txtSalesTax2, "9");
    WhenFormShows<frmAddTaxRate>([](frmAddTaxRate& details) { Click(details.cmdCancel); });
    Click(form->cmdAdd);
    expectAsStored();
}

TEST_F(TaxRatesTest, ClosingThemStoresTheSecondaryTaxAndReadsTheTripleAnew)
{
    const std::function<void()> ways[] = {[this] { Click(form->cmdCancel); },
        [this] { Press(form->txtSalesTax2, Qt::Key_Escape); }, [this] { form->close(); }};
    const auto openAndType = [this](const char* percentage) {
        Run("UPDATE settings SET SecondaryTaxEnable = 0, SecondaryTaxName = '', SecondaryTaxPercentage = 3");
        LoadSecondaryTax();
        Open();
        Click(form->chkEnableTax2);
        Type(form->txtSalesTaxName2, "L'Impôt");
        Type(form->txtSalesTax2, percentage);
    };
    for (const auto& close : ways) {
        openAndType("$7.50");
        close();
        EXPECT_FALSE(form->isVisible());
        EXPECT_TRUE(SecondaryTax::SecondaryTaxEnable);
        EXPECT_EQ(SecondaryTax::SecondaryTaxName, "L'Impôt");
        EXPECT_EQ(SecondaryTax::SecondaryTaxPercentage, 7.5);
        EXPECT_EQ(Rows("SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings"),
            Table({{"1", "L'Impôt", "7.5"}}));
    }
    openAndType("ten");
    const ExpectedEnd end;
    Click(form->cmdCancel);
    EXPECT_TRUE(end.Ended()) << "no number";
    EXPECT_EQ(Single("SELECT SecondaryTaxPercentage FROM settings").toDouble(), 3);
}

TEST_F(TaxRatesTest, TheSecondaryTaxComesFromTheSettingsRow)
{
    const auto loaded = [this](const char* statement) {
        Run(statement);
        LoadSecondaryTax();
        return QStringLiteral("%1 %2 %3")
            .arg(SecondaryTax::SecondaryTaxEnable)
            .arg(SecondaryTax::SecondaryTaxName)
            .arg(SecondaryTax::SecondaryTaxPercentage);
    };
    EXPECT_EQ(loaded("UPDATE settings SET SecondaryTaxEnable = NULL, SecondaryTaxName = NULL, "
                     "SecondaryTaxPercentage = NULL"),
        "0  0");
    EXPECT_EQ(loaded("UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'City Tax', "
                     "SecondaryTaxPercentage = 7.5"),
        "1 City Tax 7.5");
    EXPECT_EQ(loaded("DELETE FROM settings"), "0 2nd Sales Tax 10");
    Run("DROP TABLE settings");
    EXPECT_THROW(LoadSecondaryTax(), RuntimeError);
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, "2nd Sales Tax") << "a failure leaves the triple";
}
