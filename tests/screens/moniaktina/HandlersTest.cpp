// What the controls of the single-ray screen do.
#include <QSignalBlocker>
#include <QtTest/QTest>

#include "tests/screens/moniaktina/MoniaktinaTest.h"
#include "tests/support/ErrorNumber.h"

namespace lensbench {
namespace {

class MoniaktinaHandlersTest : public MoniaktinaTest {
 protected:
  void SetUp() override { open(); }
  void sendRay() {
    screen.Form_MouseDown(1, 0, -200.0, 30.0);
    screen.Form_MouseUp(1, 0, 0.0, 10.0);
  }
};

TEST_F(MoniaktinaHandlersTest, RadiusOfCircle1) {
  sendRay();
  c.aktina1.Value(130);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα 1 =130");
  EXPECT_EQ(picture(), lensPicture({130, 100, 100, 1.5}));
  EXPECT_EQ(screen.aktinaR1.value(), 130.0);
  EXPECT_EQ(screen.aktinaR2.value(), 100.0);
  EXPECT_FALSE(screen.kentro1.isEmpty());
  EXPECT_EQ(screen.kentro1.value(), 0.0);
  EXPECT_EQ(screen.kentro2.value(), 100.0);
}

TEST_F(MoniaktinaHandlersTest, RadiusOfCircle2) {
  sendRay();
  c.aktina2.Value(70);
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα 2 =70");
  EXPECT_EQ(picture(), lensPicture({90, 70, 100, 1.5}));
  EXPECT_EQ(screen.aktinaR2.value(), 70.0);
}

TEST_F(MoniaktinaHandlersTest, CentreOfCircle2) {
  sendRay();
  c.kentrokykloy.Value(60);
  EXPECT_EQ(c.Text7.Text(), "Κέντρο δεξιά=60");
  EXPECT_EQ(picture(), lensPicture({90, 100, 60, 1.5}));
  EXPECT_EQ(screen.kentro2.value(), 60.0);
}

TEST_F(MoniaktinaHandlersTest, CentreAtZeroWithUnequalRadiiIsDrawn) {
  c.kentrokykloy.Value(0);
  EXPECT_EQ(picture(), lensPicture({90, 100, 0, 1.5}));
}

TEST_F(MoniaktinaHandlersTest, IndexChangesTheTextAndNotThePicture) {
  sendRay();
  const QImage before = picture();
  c.deiktisdiathlasis.Value(173);
  EXPECT_EQ(c.Text2.Text(), "Index of refraction n= 1.73");
  EXPECT_EQ(screen.deiktis.value(), 1.73);
  EXPECT_EQ(picture(), before);

  screen.Form_MouseUp(1, 0, 0.0, 10.0);
  EXPECT_EQ(picture(), rayPicture({90, 100, 100, 1.73}, 0.0, 10.0));
  EXPECT_NE(picture(), before);
}

TEST_F(MoniaktinaHandlersTest, ChangedIndexShowsInTheFocalMarksOfTheNextLens) {
  c.deiktisdiathlasis.Value(200);
  c.aktina1.Value(130);
  EXPECT_EQ(picture(), lensPicture({130, 100, 100, 2.0}));
}

TEST_F(MoniaktinaHandlersTest, IndexIsShownWithTwoDecimals) {
  c.deiktisdiathlasis.Value(200);
  EXPECT_EQ(c.Text2.Text(), "Index of refraction n= 2.00");
  c.deiktisdiathlasis.Value(40);
  EXPECT_EQ(c.Text2.Text(), "Index of refraction n= 0.40");
}

TEST_F(MoniaktinaHandlersTest, KeysMoveAScrollBarInSmallAndLargeSteps) {
  c.aktina1.setFocus();
  QTest::keyClick(&c.aktina1, Qt::Key_Right);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα 1 =91");
  QTest::keyClick(&c.aktina1, Qt::Key_PageUp);
  QTest::keyClick(&c.aktina1, Qt::Key_PageDown);
  QTest::keyClick(&c.aktina1, Qt::Key_PageDown);
  const int away = std::abs(c.aktina1.Value() - 91);
  EXPECT_EQ(away, 40);
}

TEST_F(MoniaktinaHandlersTest, RadiusOfZeroEndsInDivisionByZero) {
  {
    const QSignalBlocker quiet(c.aktina2);
    c.aktina2.Value(0);
  }
  try {
    screen.aktina2_Change();
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 11);
    EXPECT_FALSE(error.detail().empty());
  }
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα 2 =0");
  EXPECT_EQ(errorNumber([&] { screen.miaaktina(-200.0f, 30.0f, 0.0f, 0.0f); }), 11);
}

TEST_F(MoniaktinaHandlersTest, EqualRadiiWithTheCentreAtZeroEndInDivisionByZero) {
  c.aktina2.Value(90);
  const QSignalBlocker quiet(c.kentrokykloy);
  c.kentrokykloy.Value(0);
  EXPECT_EQ(errorNumber([&] { screen.kentrokykloy_Change(); }), 11);
}

TEST_F(MoniaktinaHandlersTest, ButtonAndCloseBoxGoBack) {
  QTest::mouseClick(&c.Command1, Qt::LeftButton);
  EXPECT_EQ(t.moves.made, std::vector<std::string>{"leaveSingleRay"});
  EXPECT_FALSE(screen.close());
  EXPECT_EQ(t.moves.made, (std::vector<std::string>{"leaveSingleRay", "leaveSingleRay"}));
  EXPECT_TRUE(screen.isVisible());
}

TEST_F(MoniaktinaHandlersTest, LensOfGivenCirclesIsDrawnWithTheIndexLastRead) {
  screen.deiktis = 1.8;
  screen.sxediasifakoy(120, 80, 0, 60);
  EXPECT_EQ(picture(), lensPicture({120, 80, 60, 1.8}));
}

}  // namespace
}  // namespace lensbench
