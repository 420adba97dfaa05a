// The pictures in words: what they say, alike in both languages.
#include <gtest/gtest.h>

#include <QRegularExpression>

#include "canvas/Format.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "tests/screens/app/Desktops.h"

namespace lensbench {
namespace {

QStringList numbersIn(const QString& line) {
  static const QRegularExpression number("-?\\d+(\\.\\d+)?");
  QStringList found;
  for (auto all = number.globalMatch(line); all.hasNext();) found << all.next().captured();
  found.sort();
  return found;
}

// A Greek line, and an English line with the same numbers.
void expectBilingual(const QString& words) {
  const QStringList lines = words.split('\n');
  ASSERT_EQ(lines.size(), 2) << words.toStdString();
  EXPECT_EQ(lines[0].front().script(), QChar::Script_Greek);
  EXPECT_EQ(lines[1].front().script(), QChar::Script_Latin);
  EXPECT_EQ(numbersIn(lines[0]), numbersIn(lines[1])) << words.toStdString();
}

class Words : public ::testing::Test {
 protected:
  Program program;
  kelmo& bench = program.screens.kelmo();
};

TEST_F(Words, OfTheWorkbenchTellLensSourceAndDiaphragm) {
  const QString words = bench.inWords();
  expectBilingual(words);
  EXPECT_TRUE(words.contains("index of refraction 1.50."));
  EXPECT_TRUE(words.contains("left circle has its centre at -50 and the radius 100"));
  EXPECT_TRUE(words.contains("Focal length f = 120,")) << words.toStdString();
  EXPECT_TRUE(words.contains("light source is at (-200, 0)"));
  EXPECT_TRUE(words.contains("no image is constructed"));
  EXPECT_TRUE(words.contains("No rays have been sent."));
  EXPECT_TRUE(words.contains("The diaphragm is at x = 0, closed."));
}

TEST_F(Words, OfTheWorkbenchTellTheFanAndTheImage) {
  bench.controls().VScroll1.Value(-100);
  bench.controls().VScroll2.Value(100);
  bench.Form_MouseDown(1, 1, -300.0, 20.0);
  const QString words = bench.inWords();
  expectBilingual(words);
  EXPECT_TRUE(words.contains("light source is at (-300, 20)"));
  EXPECT_TRUE(words.contains("76 rays leave the source.")) << words.toStdString();
  EXPECT_TRUE(words.contains("Rays that go through the lens: "));
  const Point image = poreiaaktinon::imageOf(poreiaaktinon::cardinalPoints(bench.fakos(), 1.5),
                                             {-300.0, 20.0}, poreiaaktinon::Travel::Right);
  EXPECT_TRUE(words.contains(QStringLiteral("image of the source is at (%1, %2), real")
                                 .arg(QString::fromStdString(formatShort(image.x)),
                                      QString::fromStdString(formatShort(image.y)))))
      << words.toStdString();
}

TEST_F(Words, FollowEveryBar) {
  const QString before = bench.inWords();
  bench.controls().aktina1.Value(140);
  EXPECT_NE(bench.inWords(), before);
  EXPECT_TRUE(bench.inWords().contains("the radius 140"));
  bench.controls().HScroll1.Value(50);
  expectBilingual(bench.inWords());
  EXPECT_FALSE(bench.inWords().contains("diaphragm is at x = 0"));
}

TEST_F(Words, TellOfCirclesWithoutALens) {
  bench.controls().kentrokykloy2.Value(-500);
  bench.controls().kentrokykloy.Value(500);
  expectBilingual(bench.inWords());
  EXPECT_TRUE(bench.inWords().contains("enclose no lens"));
}

TEST_F(Words, OfTheSingleRayScreenTellItsFate) {
  moniaktina& screen = program.screens.moniaktina();
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("diaphragm stops it")) << screen.inWords().toStdString();
  bench.controls().VScroll1.Value(-100);
  bench.controls().VScroll2.Value(100);
  program.screens.openSingleRay();
  screen.Form_MouseDown(1, 0, -200.0, 20.0);
  screen.Form_MouseUp(1, 0, 0.0, 25.0);
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("goes through the lens and on at an angle of "))
      << screen.inWords().toStdString();
  screen.controls().aktina1.Value(120);
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("No ray has been sent."));
  EXPECT_TRUE(screen.inWords().contains("radius 120"));
}

TEST_F(Words, OfTheIbnSahlScreenTellLensFociAndImage) {
  ElSahl& screen = program.screens.ElSahl();
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("The picture is empty."));
  program.screens.eisagogiko().Command1_Click();
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("A biconvex hyperbolic lens"));
  EXPECT_TRUE(screen.inWords().contains("Focal points at x = -18 and x = 114"));
  EXPECT_TRUE(screen.inWords().contains("61 rays leave the source."));
  screen.Form_MouseDown(1, 0, 114.0, 0.0);
  EXPECT_TRUE(screen.inWords().contains("image of the source near the axis is at (-18, 0), real"))
      << screen.inWords().toStdString();
  program.screens.eisagogiko().Command2_Click();
  expectBilingual(screen.inWords());
  EXPECT_TRUE(screen.inWords().contains("focal length f = 30"));
}

}  // namespace
}  // namespace lensbench
