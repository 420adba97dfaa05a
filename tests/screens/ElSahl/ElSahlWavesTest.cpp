// The command "WAVES".
#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

using protosfakos::FrontsAgain;

class ElSahlWaves : public ElSahlFixture, public ::testing::WithParamInterface<bool> {
 protected:
  ElSahlWaves() { shared.amfikyrtosSahl = GetParam(); }

  int count(Rgb colour) {
    const QImage seen = picture();
    int n = 0;
    for (int y = 0; y < seen.height(); ++y) {
      for (int x = 0; x < seen.width(); ++x) {
        const QRgb pixel = seen.pixel(x, y);
        n += RGB(qRed(pixel), qGreen(pixel), qBlue(pixel)) == colour;
      }
    }
    return n;
  }
};

TEST_P(ElSahlWaves, DrawsTheSceneOfTheSourceAndItsFrontsInForeColor) {
  constexpr Rgb brown = RGB(150, 90, 20);
  screen.canvas().ForeColor(brown);
  c.kymatikosahl.trigger();
  ASSERT_GT(rays(), 1);
  EXPECT_GT(count(brown), 1000);
  EXPECT_TRUE(shows({fan(108, 25), FrontsAgain{fan(108, 25), false}}));
}

TEST_P(ElSahlWaves, DrawsOverThePicture) {
  press(60, 60);
  shared.pigiX = 108;
  shared.pigiY = 25;
  screen.kymatikosahl_Click();
  EXPECT_TRUE(shows({fan(60, 60), fan(108, 25), FrontsAgain{fan(108, 25), false}}));
}

TEST_P(ElSahlWaves, DrawnTwiceItIsOneAndTheSame) {
  screen.kymatikosahl_Click();
  const QImage once = picture();
  const std::size_t layers = screen.shown().layers.size();
  screen.kymatikosahl_Click();
  EXPECT_EQ(once, picture());
  EXPECT_EQ(layers, screen.shown().layers.size());
}

TEST_P(ElSahlWaves, CountsFromTheSourceAfterAFanOnTheWorkbench) {
  shared.desmiMode = false;
  screen.kymatikosahl_Click();
  EXPECT_FALSE(std::get<FrontsAgain>(screen.shown().layers.back()).desmiMode);
  const QImage fromSource = picture();
  shared.desmiMode = true;
  press(108, 25);
  screen.kymatikosahl_Click();
  EXPECT_NE(fromSource, picture());
}

TEST_P(ElSahlWaves, CountsFromEmptyStartsAfterABundleOnTheWorkbench) {
  shared.desmiMode = true;
  screen.kymatikosahl_Click();
  ASSERT_GT(rays(), 1);
  EXPECT_TRUE(std::get<FrontsAgain>(screen.shown().layers.back()).desmiMode);
  EXPECT_TRUE(shows({fan(108, 25), FrontsAgain{fan(108, 25), true}}));
  EXPECT_TRUE(shared.desmiMode);
}

TEST_P(ElSahlWaves, FewerThanTwoRaysGiveNoFronts) {
  press(130, 60);
  release(100, -10);
  screen.kymatikosahl_Click();
  ASSERT_EQ(0, rays());
  EXPECT_TRUE(shows({fan(108, 25)}));
}

TEST_P(ElSahlWaves, BelowIndex1ShowsTheMessageAndKeepsThePicture) {
  press(80, -15);
  const QImage before = picture();
  shared.deiktisSahl = 0.5;
  screen.kymatikosahl_Click();
  EXPECT_EQ(QStringList{biggerIndex}, dialogs.messages);
  EXPECT_EQ(before, picture());
}

INSTANTIATE_TEST_SUITE_P(BothLenses, ElSahlWaves, ::testing::Bool());

}  // namespace
}  // namespace lensbench
