#include "config/secondary_tax.h"

#include "base/runtime_error.h"
#include "support/temporary_database.h"

#include <gtest/gtest.h>

namespace {

class SecondaryTaxTest : public DatabaseTest { };

TEST_F(SecondaryTaxTest, ComesFromTheSettingsRow)
{
    Run("UPDATE settings SET SecondaryTaxEnable = 1, SecondaryTaxName = 'City Tax', SecondaryTaxPercentage = 7.5");
    LoadSecondaryTax();
    EXPECT_TRUE(SecondaryTaxEnable);
    EXPECT_EQ(SecondaryTaxName, "City Tax");
    EXPECT_EQ(SecondaryTaxPercentage, 7.5);
}

TEST_F(SecondaryTaxTest, AnEmptyTableGivesTheDefaultsSwitchedOff)
{
    Run("DELETE FROM settings");
    LoadSecondaryTax();
    EXPECT_FALSE(SecondaryTaxEnable);
    EXPECT_EQ(SecondaryTaxName, "2nd Sales Tax");
    EXPECT_EQ(SecondaryTaxPercentage, 10);
}

TEST_F(SecondaryTaxTest, NullsReadAsNothing)
{
    Run("UPDATE settings SET SecondaryTaxEnable = NULL, SecondaryTaxName = NULL, SecondaryTaxPercentage = NULL");
    LoadSecondaryTax();
    EXPECT_FALSE(SecondaryTaxEnable);
    EXPECT_EQ(SecondaryTaxName, "");
    EXPECT_EQ(SecondaryTaxPercentage, 0);
}

TEST_F(SecondaryTaxTest, AMissingTableLeavesTheTripleAndThrows)
{
    SecondaryTaxName = "kept";
    Run("DROP TABLE settings");
    EXPECT_THROW(LoadSecondaryTax(), RuntimeError);
    EXPECT_EQ(SecondaryTaxName, "kept");
}

} // namespace
