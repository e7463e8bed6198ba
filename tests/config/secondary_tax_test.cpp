#include "config/secondary_tax.h"

#include "base/runtime_error.h"
#include "support/temporary_database.h"

namespace {

struct Stored {
    const char* statement;
    bool enable;
    const char* name;
    double percentage;
};

class SecondaryTaxTest : public DatabaseTest, public ::testing::WithParamInterface<Stored> { };

} // namespace

TEST_P(SecondaryTaxTest, ComesFromTheSettingsRow)
{
    Run(GetParam().statement);
    LoadSecondaryTax();
    EXPECT_EQ(SecondaryTax::SecondaryTaxEnable, GetParam().enable);
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, GetParam().name);
    EXPECT_EQ(SecondaryTax::SecondaryTaxPercentage, GetParam().percentage);

    Run("DROP TABLE settings");
    EXPECT_THROW(LoadSecondaryTax(), RuntimeError);
    EXPECT_EQ(SecondaryTax::SecondaryTaxName, GetParam().name) << "a failure leaves the triple";
}

INSTANTIATE_TEST_SUITE_P(Rows, SecondaryTaxTest,
    ::testing::Values(Stored{"UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'City Tax', "
                             "SecondaryTaxPercentage = 7.5",
                          true, "City Tax", 7.5},
        Stored{"DELETE FROM settings", false, "2nd Sales Tax", 10},
        Stored{"UPDATE settings SET SecondaryTaxEnable = NULL, SecondaryTaxName = NULL, SecondaryTaxPercentage = NULL",
            false, "", 0}));
