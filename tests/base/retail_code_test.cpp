#include "base/retail_code.h"

#include <gtest/gtest.h>

namespace {

TEST(RetailCode, IsTheDigitsOfAnEanOrUpcWithTheRightCheckDigit)
{
    for (const char* code : {"4006381333931", "036000291452", "96385074", "0000000000000"})
        EXPECT_TRUE(IsRetailCode(code)) << code;
    for (const char* text :
        {"", "4006381333932", "36000291452", "1234567", "40063813339310", "400638133393A", "-4006381333931", "100000"})
        EXPECT_FALSE(IsRetailCode(text)) << text;
}

} // namespace
