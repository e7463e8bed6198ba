#include "config/secondary_tax.h"

#include "base/runtime_error.h"
#include "support/temporary_database.h"

using SecondaryTaxTest = DatabaseTest;

TEST_F(SecondaryTaxTest, ComesFromTheSettingsRow)
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
