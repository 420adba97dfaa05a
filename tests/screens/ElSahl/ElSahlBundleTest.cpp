// The command "PARALLILI  DESMH" and the answers to its question.
#include "canvas/RuntimeError.h"
#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

const double pi = std::atan(1.0) * 4.0;

class ElSahlBundle : public ElSahlFixture, public ::testing::WithParamInterface<bool> {
 protected:
  ElSahlBundle() { shared.amfikyrtosSahl = GetParam(); }

  void ask(const char* answer) {
    dialogs.answer = QString::fromUtf8(answer);
    screen.parallilidesmifotos_Click();
  }
  int errorOf(const char* answer) {
    try {
      ask(answer);
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }
};

TEST_P(ElSahlBundle, AsksForTheAngle) {
  dialogs.answer.reset();
  screen.controls().parallilidesmifotos.trigger();
  EXPECT_EQ(QStringList{"DIRECTION IN  RESPECT TO HORIZONTAL"}, dialogs.prompts);
  EXPECT_EQ(QStringList{"Angle in °"}, dialogs.titles);
  EXPECT_EQ(QStringList{"0"}, dialogs.defaults);
}

TEST_P(ElSahlBundle, ClearsAndDrawsTheBundleAtTheAngle) {
  for (const char* answer : {"0", "30", " -12.5 "}) {
    press(60, 60);
    ask(answer);
    const double m = std::tan(pi * (std::stod(answer) / 180.0));
    EXPECT_TRUE(shows({bundle(m)})) << answer;
  }
  EXPECT_EQ(60, shared.pigiX.value());
}

TEST_P(ElSahlBundle, TheDiaphragmOfTheOpeningScreenStandsAtItsStartAndStopsNothing) {
  ask("0");
  EXPECT_GT(rays(), 40);
}

TEST_P(ElSahlBundle, ADiaphragmBeforeTheLensCutsIt) {
  press(130, 60);
  release(110, 4.5);
  ask("0");
  // From -10 to 4 in steps of 1 or 2, both ends included.
  EXPECT_EQ(GetParam() ? 15 : 8, rays());
}

TEST_P(ElSahlBundle, RightAnglesDrawNoRayThroughTheLensAndRaiseNothing) {
  for (const char* answer : {"90", "-90"}) {
    EXPECT_EQ(0, errorOf(answer));
    EXPECT_EQ(0, rays());
    EXPECT_FALSE(blank());
  }
}

TEST_P(ElSahlBundle, AnAngleIsReadAsPeopleTypeIt) {
  for (const char* answer : {"-12,5", "-12.5°", "−12,5 °", " −12.5"}) {
    press(60, 60);
    ask(answer);
    EXPECT_TRUE(shows({bundle(std::tan(pi * (-12.5 / 180.0)))})) << answer;
  }
}

TEST_P(ElSahlBundle, AnyAngleIsDrawn) {
  for (const char* answer :
       {"89.999", "-60", "120", "180", "-270", "1e6", "1e308", "-1e308", "0.0001"}) {
    EXPECT_EQ(0, errorOf(answer)) << answer;
  }
}

TEST_P(ElSahlBundle, WhatIsNoNumberIsTypeMismatch) {
  press(80, -15);
  const QImage before = picture();
  for (const char* answer : {"", "x", "1,2,3", "inf"}) {
    EXPECT_EQ(13, errorOf(answer)) << answer;
  }
  EXPECT_EQ(before, picture());
}

TEST_P(ElSahlBundle, TheErrorQuotesTheAnswer) {
  try {
    ask("αβγ");
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_NE(error.detail().find("αβγ"), std::string::npos) << error.detail();
  }
}

TEST_P(ElSahlBundle, CancelChangesNothing) {
  press(80, -15);
  const QImage before = picture();
  shared.deiktisSahl = 0.5;
  dialogs.answer.reset();
  screen.parallilidesmifotos_Click();
  EXPECT_EQ(before, picture());
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_P(ElSahlBundle, BelowIndex1ShowsTheMessageAndKeepsThePicture) {
  press(80, -15);
  const QImage before = picture();
  shared.deiktisSahl = 0.99;
  ask("30");
  EXPECT_EQ(QStringList{invalidIndex}, dialogs.messages);
  EXPECT_EQ(before, picture());
}

TEST_P(ElSahlBundle, DrawsAtIndex1And2Point5) {
  for (const double n : {1.0, 2.5}) {
    shared.deiktisSahl = n;
    EXPECT_EQ(0, errorOf("10"));
    EXPECT_TRUE(shows({bundle(std::tan(pi * (10.0 / 180.0)))})) << n;
  }
}

INSTANTIATE_TEST_SUITE_P(BothLenses, ElSahlBundle, ::testing::Bool());

}  // namespace
}  // namespace lensbench
