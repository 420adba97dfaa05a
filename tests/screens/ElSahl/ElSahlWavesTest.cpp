// The command "WAVES".
#include "optics/protosfakos/Fronts.h"
#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlWaves : public ElSahlFixture, public ::testing::WithParamInterface<bool> {
 protected:
  ElSahlWaves() { state.amfikyrtosSahl = GetParam(); }

  int rays() const { return static_cast<int>(state.plithosaktinon.value()); }
};

TEST_P(ElSahlWaves, DrawsTheSceneOfTheSourceAndItsFrontsInForeColor) {
  constexpr Rgb brown = RGB(150, 90, 20);
  screen.canvas().ForeColor(brown);
  screen.canvas().Cls();
  screen.controls().kymatikosahl.trigger();
  ASSERT_GT(rays(), 1);
  EXPECT_TRUE(shows([&] {
    fan(108, 25);
    protosfakos::drawFronts(screen.canvas(), brown);
  }));
}

TEST_P(ElSahlWaves, DrawsOverThePicture) {
  press(60, 60);
  state.pigiX = 108;
  state.pigiY = 25;
  screen.kymatikosahl_Click();
  EXPECT_TRUE(shows([&] {
    fan(60, 60);
    fan(108, 25);
    protosfakos::drawFronts(screen.canvas());
  }));
}

TEST_P(ElSahlWaves, CountsFromTheSourceAfterAFanOnTheWorkbench) {
  state.desmiMode = false;
  screen.kymatikosahl_Click();
  for (int k = 0; k < rays(); ++k) {
    EXPECT_EQ(108, state.kymataX[k][0].value());
    EXPECT_EQ(25, state.kymataY[k][0].value());
  }
}

TEST_P(ElSahlWaves, CountsFromEmptyStartsAfterABundleOnTheWorkbench) {
  state.desmiMode = true;
  screen.kymatikosahl_Click();
  ASSERT_GT(rays(), 1);
  EXPECT_EQ(108, state.kymataX[0][0].value());
  for (int k = 1; k < rays(); ++k) {
    EXPECT_EQ(0, state.kymataX[k][0].value());
    EXPECT_EQ(0, state.kymataY[k][0].value());
  }
  EXPECT_TRUE(state.desmiMode);
}

TEST_P(ElSahlWaves, FewerThanTwoRaysGiveNoFronts) {
  press(130, 60);
  release(100, -10);
  screen.canvas().Cls();
  screen.kymatikosahl_Click();
  ASSERT_EQ(0, rays());
  EXPECT_TRUE(shows([&] { fan(108, 25); }));
}

TEST_P(ElSahlWaves, BelowIndex1ShowsTheMessageAndKeepsThePicture) {
  press(80, -15);
  const QImage before = picture();
  state.deiktisSahl = 0.5;
  screen.kymatikosahl_Click();
  EXPECT_EQ(QStringList{biggerIndex}, dialogs.messages);
  EXPECT_EQ(before, picture());
}

INSTANTIATE_TEST_SUITE_P(BothLenses, ElSahlWaves, ::testing::Bool());

}  // namespace
}  // namespace lensbench
