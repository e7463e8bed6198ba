#include "config/secondary_tax.h"
#include "config/tax_rates.h"
#include "support/form_test.h"

#include <QCoreApplication>

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
    QStringList texts;
    for (int i = 0; i < form->lstItems->count(); ++i)
        texts.append(form->lstItems->item(i)->text());
    EXPECT_EQ(texts, QStringList({" (%)", "%1 off (5%)", "Standard (8.25%)"}));
    EXPECT_EQ(form->lstItems->currentRow(), 0);
}

namespace {

/// What a typed percentage becomes: a stored value, or the number of the error that ends the program.
struct Percentage {
    const char* typed;
    const char* added;
    const char* updated; ///< null for a statement that the engine cannot read
};
void PrintTo(const Percentage& percentage, std::ostream* out)
{
    *out << percentage.typed;
}

class TaxPercentageTest : public TaxRatesTest, public ::testing::WithParamInterface<Percentage> { };

} // namespace

TEST_P(TaxPercentageTest, IsStoredAsTheNumberRulesReadIt)
{
    const auto added = Details(NewRow);
    Type(added->txtName, "New");
    Type(added->txtPercentage, GetParam().typed);
    Click(added->cmdOK);
    EXPECT_EQ(Single("SELECT percentage FROM taxrate WHERE name = 'New'"), GetParam().added);

    const auto updated = Details(TaxRateRow("Old", 5));
    EXPECT_EQ(updated->txtPercentage->text(), "5");
    Type(updated->txtPercentage, GetParam().typed);
    ExpectedEnd end;
    Click(updated->cmdOK);
    EXPECT_EQ(end.Ended(), GetParam().updated == nullptr);
    EXPECT_EQ(
        Single("SELECT percentage FROM taxrate WHERE name = 'Old'"), GetParam().updated ? GetParam().updated : "5.0");
}

INSTANTIATE_TEST_SUITE_P(Typed, TaxPercentageTest,
    ::testing::Values(Percentage{"8.25", "8.25", "8.25"}, Percentage{"-3", "-3.0", "-3.0"},
        Percentage{"1e2", "100.0", "100.0"}, Percentage{"abc", "0.0", "0.0"}, Percentage{"", "0.0", "0.0"},
        Percentage{"5%", "0.0", "0.0"}, Percentage{"1,5", "15.0", nullptr}, Percentage{"$5", "5.0", nullptr}));

TEST_F(TaxRatesTest, DetailsDraggedTallerKeepTheirBoxesBelowTheInstructions)
{
    const auto details = Details(NewRow);
    const int top = details->txtName->y();
    details->resize(details->width(), 3 * details->height());
    QCoreApplication::processEvents();
    EXPECT_EQ(details->txtName->y(), top);
}

TEST_F(TaxRatesTest, TheSecondaryTaxIsOpenOnlyWhileItIsEnabled)
{
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxName = "City Tax";
    SecondaryTax::SecondaryTaxPercentage = 7.5;
    Open();
    EXPECT_FALSE(form->txtSalesTaxName2->isEnabled() || form->txtSalesTax2->isEnabled());
    EXPECT_EQ(form->txtSalesTaxName2->text(), "City Tax");
    EXPECT_EQ(form->txtSalesTax2->text(), "7.5");
    Click(form->chkEnableTax2);
    EXPECT_TRUE(form->txtSalesTaxName2->isEnabled() && form->txtSalesTax2->isEnabled());
}

TEST_F(TaxRatesTest, AChangeOfTheRatesShowsTheSecondaryTaxAsStored)
{
    SecondaryTax::SecondaryTaxEnable = false;
    SecondaryTax::SecondaryTaxName = "City Tax";
    SecondaryTax::SecondaryTaxPercentage = 7.5;
    Open();
    Click(form->chkEnableTax2);
    Type(form->txtSalesTaxName2, "GST");
    Type(form->txtSalesTax2, "9");
    WhenFormShows<frmAddTaxRate>([](frmAddTaxRate& details) { Click(details.cmdCancel); });
    Click(form->cmdAdd);
    EXPECT_FALSE(form->chkEnableTax2->isChecked() || form->txtSalesTaxName2->isEnabled());
    EXPECT_EQ(form->txtSalesTaxName2->text(), "City Tax");
    EXPECT_EQ(form->txtSalesTax2->text(), "7.5");
}

namespace {

class ClosingTaxRatesTest : public TaxRatesTest, public ::testing::WithParamInterface<void (*)(frmTaxRate&)> { };

} // namespace

TEST_P(ClosingTaxRatesTest, StoresTheSecondaryTaxAndReadsTheTripleAnew)
{
    LoadSecondaryTax();
    Open();
    if (!form->chkEnableTax2->isChecked())
        Click(form->chkEnableTax2);
    Type(form->txtSalesTaxName2, "L'Impôt");
    Type(form->txtSalesTax2, "$7.50");
    GetParam()(*form);
    EXPECT_FALSE(form->isVisible());
    EXPECT_TRUE(SecondaryTax::SecondaryTaxEnable);
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, "L'Impôt");
    EXPECT_EQ(SecondaryTax::SecondaryTaxPercentage, 7.5);
    EXPECT_EQ(Rows("SELECT SecondaryTaxEnable, SecondaryTaxName, SecondaryTaxPercentage FROM settings"),
        Table({{"1", "L'Impôt", "7.5"}}));
}

INSTANTIATE_TEST_SUITE_P(Ways, ClosingTaxRatesTest,
    ::testing::Values([](frmTaxRate& form) { Click(form.cmdCancel); },
        [](frmTaxRate& form) { Press(form.txtSalesTax2, Qt::Key_Escape); }, [](frmTaxRate& form) { form.close(); }));

TEST_F(TaxRatesTest, ASecondaryPercentageThatIsNoNumberEndsTheProgram)
{
    LoadSecondaryTax();
    const QString before = Single("SELECT SecondaryTaxPercentage FROM settings");
    Open();
    if (!form->chkEnableTax2->isChecked())
        Click(form->chkEnableTax2);
    Type(form->txtSalesTax2, "ten");
    ExpectedEnd end;
    Click(form->cmdCancel);
    EXPECT_TRUE(end.Ended());
    EXPECT_EQ(Single("SELECT SecondaryTaxPercentage FROM settings"), before);
}
