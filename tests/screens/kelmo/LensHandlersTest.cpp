// The handlers of the lens scroll bars and of the index and count bars: their texts, their redraw
// or its absence.
#include <cmath>
#include <vector>

#include <QLocale>

#include "optics/poreiaaktinon/Numbers.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

using poreiaaktinon::pi;

class LensHandlersTest : public KelmoTest {
 protected:
  // Something that any clearing takes away.
};

TEST_F(LensHandlersTest, LeftRadiusWritesItsTextWithABlankAndRedraws) {
  clutter();
  const QImage before = picture();
  c.aktina1.Value(123);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1 =123");
  EXPECT_EQ(c.Text6.FontName(), "Times New Roman");
  EXPECT_EQ(screen.R1(), 123.0);
  EXPECT_FALSE(picture() == before);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(LensHandlersTest, RightRadiusWritesItsTextWithABlankAndRedraws) {
  clutter();
  const QString font = c.Text5.FontName();
  c.aktina2.Value(200);
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα2 =200");
  EXPECT_EQ(c.Text5.FontName(), font);
  EXPECT_EQ(screen.R2(), 200.0);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(LensHandlersTest, RightCentreWritesItsTextWithoutABlankAndRedraws) {
  clutter();
  c.kentrokykloy.Value(35);
  EXPECT_EQ(c.Text7.Text(), "Κέντρο δεξί κύκλου=35");
  EXPECT_EQ(screen.xc2(), 35.0);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(LensHandlersTest, LeftCentreWritesNoTextAndRedraws) {
  clutter();
  std::vector<QString> before;
  std::vector<QString> after;
  const auto texts = [this](std::vector<QString>& into) {
    for (const TextBox* box :
         {&c.Text1, &c.Text2, &c.Text3, &c.Text4, &c.Text5, &c.Text6, &c.Text7}) {
      into.push_back(box->Text());
    }
    into.push_back(c.Label3.Caption());
  };
  texts(before);
  c.kentrokykloy2.Value(-30);
  texts(after);
  EXPECT_EQ(before, after);
  EXPECT_EQ(screen.xc1(), -30.0);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(LensHandlersTest, EveryLensValueIsThatOfItsScrollBar) {
  for (ScrollBar* bar : {&c.aktina1, &c.aktina2, &c.kentrokykloy, &c.kentrokykloy2}) {
    bar->Value(bar->Value() + 1);
    EXPECT_EQ(screen.R1(), c.aktina1.Value());
    EXPECT_EQ(screen.R2(), c.aktina2.Value());
    EXPECT_EQ(screen.xc1(), c.kentrokykloy2.Value());
    EXPECT_EQ(screen.xc2(), c.kentrokykloy.Value());
    EXPECT_TRUE(showsSceneOnly());
  }
}

TEST_F(LensHandlersTest, IndexWritesItsTextAndLeavesThePictureUntilTheNextDrawing) {
  const QImage before = picture();
  c.Text2.FontName("Arial");
  c.deiktisdiathlasis.Value(175);
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 1.75");
  EXPECT_EQ(c.Text2.FontName(), "Times New Roman Greek");
  EXPECT_EQ(screen.n(), 1.75);
  EXPECT_TRUE(samePicture(picture(), before));
  screen.kentrokykloy2_Change();
  EXPECT_FALSE(picture() == before) << "the focal points have moved";
}

TEST_F(LensHandlersTest, IndexShowsTwoDecimalsWithAPoint) {
  QLocale::setDefault(QLocale(QLocale::Greek, QLocale::Greece));
  c.deiktisdiathlasis.Value(40);
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 0.40");
  c.deiktisdiathlasis.Value(100);
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 1.00");
  c.deiktisdiathlasis.Value(250);
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 2.50");
}

TEST_F(LensHandlersTest, MultiplierWritesItsLabelAndTheStepOnly) {
  const QImage before = picture();
  c.arvimaton.Value(45);
  EXPECT_EQ(c.Label3.Caption(), "Πολλαπλασιαστής ακτίνων45");
  EXPECT_EQ(c.Text1.Text(), "Number of Rays Αριθμός ακτινών= 76.00");
  EXPECT_DOUBLE_EQ(screen.vima(), pi * 45.0 / 20.0);
  EXPECT_TRUE(samePicture(picture(), before));
}

TEST_F(LensHandlersTest, RayNumberWritesTheCountOfTheFanAndTheStepOnly) {
  const QImage before = picture();
  c.Text1.FontName("Arial");
  for (const int rays : {2, 33, 150}) {
    c.desmi1.Value(rays);
    EXPECT_DOUBLE_EQ(screen.vima(), pi * 30.0 / rays);
    const auto count = static_cast<int>(std::floor(360.0 * rays / (pi * 30.0)));
    EXPECT_EQ(c.Text1.Text(), QString("Number of Rays Αριθμός ακτινών= %1.00").arg(count));
  }
  EXPECT_EQ(c.Text1.FontName(), "Times New Roman Greek");
  EXPECT_TRUE(samePicture(picture(), before));
}

TEST_F(LensHandlersTest, TheLargestCountOfRaysIs3437) {
  c.arvimaton.Value(5);
  c.desmi1.Value(150);
  EXPECT_EQ(c.Text1.Text(), "Number of Rays Αριθμός ακτινών= 3437.00");
}

TEST_F(LensHandlersTest, TheScrollBarsBoundTheirValues) {
  c.aktina1.Value(10);
  EXPECT_EQ(c.aktina1.Value(), 50);
  c.kentrokykloy2.Value(20);
  EXPECT_EQ(c.kentrokykloy2.Value(), 0);
  c.kentrokykloy.Value(900);
  EXPECT_EQ(c.kentrokykloy.Value(), 500);
}

// Lenses that are none, or that have no focal length, are drawn as far as they go.
struct OddLens {
  const char* what;
  int R1, R2, xc1, xc2, index;
};
class OddLensTest : public LensHandlersTest, public ::testing::WithParamInterface<OddLens> {};

TEST_P(OddLensTest, IsDrawnAndEverythingGoesOn) {
  const OddLens& lens = GetParam();
  openDiaphragm();
  c.deiktisdiathlasis.Value(lens.index);
  c.kentrokykloy2.Value(lens.xc1);
  c.kentrokykloy.Value(lens.xc2);
  c.aktina1.Value(lens.R1);
  c.aktina2.Value(lens.R2);
  EXPECT_NO_THROW(picture());
  EXPECT_EQ(screen.canvas().DrawWidth(), 1);
  EXPECT_NO_THROW(sendBundle("20"));
  EXPECT_NO_THROW(press(-250.0, 60.0, Qt::ShiftModifier));
  release(-250.0, 60.0);
  EXPECT_NO_THROW(c.parallilakymata.trigger());
  EXPECT_EQ(ticks(c.Timer2, 100), 100);
  EXPECT_NO_THROW(c.kymatachronika.trigger());
  EXPECT_EQ(ticks(c.Timer1, 100), 100);
  EXPECT_TRUE(moves.made.empty());
}

INSTANTIATE_TEST_SUITE_P(All, OddLensTest,
                         ::testing::Values(OddLens{"RadiusZero", 100, 0, -50, 20, 150},
                                           OddLens{"CirclesApart", 50, 50, -200, 200, 150},
                                           OddLens{"CirclesTouch", 100, 100, -100, 100, 150},
                                           OddLens{"OneInTheOther", 500, 50, 0, 0, 150},
                                           OddLens{"TheSameCircle", 100, 100, 0, 0, 150},
                                           OddLens{"TheSameCircleLarge", 500, 500, 0, 0, 250},
                                           OddLens{"NoPower", 100, 90, -50, 20, 100},
                                           OddLens{"ThinInDense", 100, 90, -50, 20, 60},
                                           OddLens{"Thinnest", 100, 90, -50, 20, 40},
                                           OddLens{"Densest", 100, 90, -50, 20, 250},
                                           OddLens{"RadiusOne", 100, 1, -50, 50, 150},
                                           OddLens{"Huge", 500, 500, -10, 10, 150}),
                         [](const auto& named) { return named.param.what; });

TEST_F(LensHandlersTest, WithoutALensNothingIsFilledAndNoPointIsMarked) {
  c.kentrokykloy2.Value(-300);
  c.kentrokykloy.Value(300);
  const QImage shown = picture();
  for (int y = 0; y < shown.height(); ++y) {
    for (int x = 0; x < shown.width(); ++x) {
      const QRgb pixel = shown.pixel(x, y);
      // Black circles and the almost black marks of their centres.
      ASSERT_TRUE(pixel == qRgb(255, 255, 255) || pixel == qRgb(0, 0, 0) || pixel == qRgb(5, 0, 0))
          << x << ", " << y;
    }
  }
}

TEST_F(LensHandlersTest, AtIndexOneThereIsALensBodyButNoFocalPoint) {
  c.deiktisdiathlasis.Value(100);
  screen.kentrokykloy2_Change();
  EXPECT_EQ(pixelAt(-30.0, 20.0), RGB(220, 220, 195));
  const QImage shown = picture();
  for (int x = 0; x < shown.width(); ++x) {
    for (int y = 0; y < shown.height(); ++y) {
      ASSERT_NE(shown.pixel(x, y), qRgb(255, 0, 0));
      ASSERT_NE(shown.pixel(x, y), qRgb(55, 0, 0));
    }
  }
}

}  // namespace
}  // namespace lensbench
