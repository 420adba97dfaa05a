// Random actions over all screens: only the errors that a student's action is known to raise may
// come out of a handler, and after every action the image of each screen in sight is, bit for bit,
// what drawing its value from nothing gives. monkey.sh does the same for as long as one likes.
#include <gtest/gtest.h>

#include "tests/monkey/Run.h"

namespace lensbench {
namespace {

class MonkeyTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(MonkeyTest, OnlyNamedErrorsComeOutAndEveryImageIsThatOfItsValue) {
  constexpr int actions = 200;
  const Outcome outcome = runMonkey(GetParam() * 1000, actions);
  EXPECT_EQ(outcome.failure.toStdString(), "") << "at action " << outcome.done;
  EXPECT_LT(outcome.ended, actions / 3);
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, ::testing::Range(1u, 9u));

TEST(MonkeyRun, IsTheSameEveryTime) {
  const Outcome once = runMonkey(17, 100);
  EXPECT_EQ(runMonkey(17, 100).digest, once.digest);
  EXPECT_NE(runMonkey(18, 100).digest, once.digest);
}

}  // namespace
}  // namespace lensbench
