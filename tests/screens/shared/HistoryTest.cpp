// Going back and forth among values.
#include <gtest/gtest.h>

#include "screens/History.h"

namespace lensbench {
namespace {

TEST(History, GoesBackAndForth) {
  History<int> history(0);
  EXPECT_FALSE(history.back());
  EXPECT_FALSE(history.forth());
  history.push(1);
  history.push(2);
  EXPECT_TRUE(history.back());
  EXPECT_TRUE(history.back());
  EXPECT_FALSE(history.back());
  EXPECT_EQ(history.present(), 0);
  EXPECT_TRUE(history.forth());
  EXPECT_EQ(history.present(), 1);
  EXPECT_EQ(history.stepsBack(), 1u);
  EXPECT_EQ(history.stepsForth(), 1u);
}

TEST(History, ForgetsWhatWasTakenBackAtTheNextStep) {
  History<int> history(0);
  history.push(1);
  history.push(2);
  history.back();
  history.back();
  history.push(7);
  EXPECT_FALSE(history.forth());
  EXPECT_EQ(history.present(), 7);
  history.back();
  EXPECT_EQ(history.present(), 0);
}

TEST(History, AmendsThePresentAloneAndKeepsWhatCanBeDoneAgain) {
  History<int> history(0);
  history.push(1);
  history.back();
  history.amend(5);
  EXPECT_EQ(history.present(), 5);
  EXPECT_TRUE(history.forth());
  EXPECT_EQ(history.present(), 1);
  history.back();
  EXPECT_EQ(history.present(), 5);
}

TEST(History, HoldsAtLeastAHundredStepsAndForgetsTheOldest) {
  History<int> history(0);
  constexpr int pushed = 1000;
  for (int i = 1; i <= pushed; ++i) history.push(i);
  const auto steps = static_cast<int>(history.stepsBack());
  EXPECT_GE(steps, 100);
  EXPECT_EQ(history.stepsBack(), History<int>::mostSteps);
  while (history.back()) continue;
  EXPECT_EQ(history.present(), pushed - steps);
}

}  // namespace
}  // namespace lensbench
