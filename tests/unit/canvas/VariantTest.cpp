#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "canvas/Variant.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench {
namespace {

TEST(Variant, EmptyCountsAsZeroButIsNotZero) {
  const Variant empty;
  EXPECT_TRUE(empty.isEmpty());
  EXPECT_FALSE(Variant(0).isEmpty());
  EXPECT_EQ((empty + 3).value(), 3.0);
  EXPECT_EQ((empty * 3).value(), 0.0);
  EXPECT_TRUE(empty == Variant(0));
  EXPECT_FALSE((empty + 0).isEmpty());
}

TEST(Variant, DivisionByZeroIsError11) {
  EXPECT_EQ(errorNumber([] { static_cast<void>(Variant(1) / Variant(0)); }), 11);
  EXPECT_EQ(errorNumber([] { static_cast<void>(Variant(0) / Variant()); }), 11);
  EXPECT_EQ((Variant(1) / Variant(4)).value(), 0.25);
}

TEST(Variant, SquareRootOfANegativeNumberIsError5) {
  EXPECT_EQ(errorNumber([] { static_cast<void>(Sqr(-1e-300)); }), 5);
  EXPECT_EQ(Sqr(Variant()).value(), 0.0);
  EXPECT_EQ(Sqr(-0.0).value(), 0.0);
}

TEST(Variant, NothingInfiniteOrUndefinedIsEverHeld) {
  const double huge = std::numeric_limits<double>::max();
  EXPECT_EQ(errorNumber([=] { static_cast<void>(Variant(huge) + Variant(huge)); }), 6);
  EXPECT_EQ(errorNumber([=] { static_cast<void>(Variant(huge) * Variant(-2)); }), 6);
  EXPECT_EQ(errorNumber([=] { static_cast<void>(Variant(huge) / Variant(1e-10)); }), 6);
  EXPECT_EQ(
      errorNumber([] { static_cast<void>(Variant{std::numeric_limits<double>::infinity()}); }), 6);
  EXPECT_EQ(errorNumber([] { static_cast<void>(Variant{std::nan("")}); }), 6);
}

TEST(Variant, ComparesAsNumbers) {
  EXPECT_TRUE(Variant() < Variant(0.5));
  EXPECT_TRUE(Variant(2) >= Variant(2.0));
  EXPECT_TRUE(Variant(2) != Variant(2.5));
  EXPECT_TRUE(Variant(-1) <= Variant());
  EXPECT_TRUE(Variant(1) > Variant());
}

TEST(Variant, IntRoundsDownAndSgnTellsTheSign) {
  EXPECT_EQ(Int(-2.1).value(), -3.0);
  EXPECT_EQ(Int(76.39).value(), 76.0);
  EXPECT_EQ(Sgn(-0.001).value(), -1.0);
  EXPECT_EQ(Sgn(Variant()).value(), 0.0);
  EXPECT_EQ(Sgn(7).value(), 1.0);
}

TEST(RuntimeError, CarriesNumberAndWordsInBothLanguages) {
  const RuntimeError error(RuntimeError::Code::DivisionByZero);
  EXPECT_EQ(error.number(), 11);
  EXPECT_STREQ(error.english(), "Division by zero");
  EXPECT_STREQ(error.greek(), "διαίρεση με το μηδέν");
  EXPECT_STREQ(error.what(), "Error 11: Division by zero");
  EXPECT_STREQ(RuntimeError(RuntimeError::Code::SubscriptOutOfRange).what(),
               "Error 9: Subscript out of range");
  EXPECT_STREQ(RuntimeError(RuntimeError::Code::TypeMismatch).what(), "Error 13: Type mismatch");
  EXPECT_STREQ(RuntimeError(RuntimeError::Code::InvalidArgument).what(),
               "Error 5: Invalid argument");
  EXPECT_STREQ(RuntimeError(RuntimeError::Code::Overflow).what(), "Error 6: Overflow");
}

}  // namespace
}  // namespace lensbench
