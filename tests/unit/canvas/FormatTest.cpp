#include <gtest/gtest.h>
#include <string>

#include "canvas/Format.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench {
namespace {

TEST(Format, WholeNumbersRoundHalvesAwayFromZero) {
  EXPECT_EQ(formatWhole(90), "90");
  EXPECT_EQ(formatWhole(2.5), "3");
  EXPECT_EQ(formatWhole(-2.5), "-3");
  EXPECT_EQ(formatWhole(2.4999), "2");
  EXPECT_EQ(formatWhole(-0.4), "0");
  EXPECT_EQ(formatWhole(99.5), "100");
  EXPECT_EQ(formatWhole(Variant()), "0");
}

TEST(Format, HundredthsAlwaysShowTwoDecimalsAndAPoint) {
  EXPECT_EQ(formatHundredths(1.5), "1.50");
  EXPECT_EQ(formatHundredths(76), "76.00");
  EXPECT_EQ(formatHundredths(1.005), "1.01");
  EXPECT_EQ(formatHundredths(0.145), "0.15");
  EXPECT_EQ(formatHundredths(-0.005), "-0.01");
  EXPECT_EQ(formatHundredths(-0.001), "0.00");
  EXPECT_EQ(formatHundredths(9.999), "10.00");
  EXPECT_EQ(formatHundredths(Variant()), "0.00");
}

TEST(Format, ShortNumbersHaveNoDecimalsOrTwo) {
  EXPECT_EQ(formatShort(12), "12");
  EXPECT_EQ(formatShort(100), "100");
  EXPECT_EQ(formatShort(2.5), "2.50");
  EXPECT_EQ(formatShort(-2.345), "-2.35");
  EXPECT_EQ(formatShort(-0.004), "0");
  EXPECT_EQ(formatShort(0.999), "1");
  EXPECT_EQ(formatShort(Variant()), "0");
}

TEST(Format, DecimalsAreCountedFromThePoint) {
  EXPECT_EQ(formatDecimals(48.25, 1), "48.3");
  EXPECT_EQ(formatDecimals(-0.00005, 4), "-0.0001");
  EXPECT_EQ(formatDecimals(7, 3), "7.000");
  EXPECT_EQ(formatDecimals(6.5, 0), "7");
  EXPECT_EQ(formatDecimals(6.5, -1), "7");
}

TEST(NumberFromText, ReadsAPointOrAComma) {
  EXPECT_EQ(numberFromText("45"), 45.0);
  EXPECT_EQ(numberFromText("-90"), -90.0);
  EXPECT_EQ(numberFromText("+.5"), 0.5);
  EXPECT_EQ(numberFromText("22,5"), 22.5);
  EXPECT_EQ(numberFromText("22.5"), 22.5);
  EXPECT_EQ(numberFromText("1e2"), 100.0);
  EXPECT_EQ(numberFromText("1e-999"), 0.0);
}

TEST(NumberFromText, WhatIsNoNumberGivesNothing) {
  for (const char* text : {"", "  ", "abc", "4 5", " 45", "45°", "1.2.3", "1.000,5", "inf", "nan",
                           "0x10", "+-5", "+", "-", ","}) {
    EXPECT_EQ(numberFromText(text), std::nullopt) << text;
  }
}

TEST(NumberFromText, TooLargeIsError6) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("1e999"), std::string("-1E+999"), "1" + zeros, "1" + zeros + ".5",
        "1" + zeros + "e-10", "0." + zeros + "1e999", std::string("1e99999999999999999999")}) {
    EXPECT_EQ(errorNumber([&] { static_cast<void>(numberFromText(text)); }), 6) << text;
  }
}

TEST(NumberFromText, TooSmallIsZero) {
  const std::string zeros(400, '0');
  for (const std::string& text :
       {std::string("-1e-999"), "0." + zeros + "1", "." + zeros + "1", "-0." + zeros + "1e+10",
        "1" + zeros + "e-999", std::string("1e-99999999999999999999"), "0" + zeros + "e999"}) {
    EXPECT_EQ(numberFromText(text), 0.0) << text;
  }
}

}  // namespace
}  // namespace lensbench
