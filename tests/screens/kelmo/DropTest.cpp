// Drags that end without a release: nothing is changed.
#include <functional>
#include <string>

#include <QDialog>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class DropTest : public KelmoTest {
 protected:
  DropTest() {
    c.VScroll1.Value(-30);
    c.VScroll2.Value(30);
    c.HScroll1.Value(50);
  }
  // Takes each thing that can be taken, drags it about and has the drag ended.
  void expectNothingChanged(const std::function<void()>& end) {
    const Point grips[] = {{200.0, 100.0}, {200.0, -100.0}, {200.0, 0.0}, {-50.0, 0.0},
                           {20.0, 0.0},    {-150.0, 0.0},   {110.0, 0.0}};
    for (const Point grip : grips) {
      SCOPED_TRACE(::testing::Message() << grip.x << ", " << grip.y);
      const auto before = state();
      press(grip.x, grip.y);
      drag(grip.x + 31.0, grip.y - 12.5);
      EXPECT_NE(state(), before) << "it is seen moving";
      end();
      EXPECT_EQ(state(), before);
      loseRelease();
      drag(grip.x + 60.0, grip.y);
      EXPECT_EQ(state(), before);
      EXPECT_TRUE(showsSceneOnly());
    }
  }
};

TEST_F(DropTest, AMoveWithoutTheLeftButtonEndsADrag) {
  expectNothingChanged([this] {
    loseRelease();
    drag(0.0, 50.0);
  });
}

TEST_F(DropTest, AnOpenBoxEndsADrag) {
  expectNothingChanged([this] {
    QDialog box(&screen);
    box.setModal(true);
    box.show();
  });
}

TEST_F(DropTest, HidingTheScreenEndsADrag) {
  expectNothingChanged([this] {
    screen.Hide();
    screen.Show();
  });
}

TEST_F(DropTest, AReleaseAfterwardsChangesNothing) {
  const auto before = state();
  press(20.0, 0.0);
  drag(44.0, 0.0);
  screen.Hide();
  screen.Show();
  release(60.0, 0.0);
  EXPECT_EQ(state(), before);
}

TEST_F(DropTest, APressAfterAReleaseThatWasNotSeenTakesAnew) {
  press(20.0, 0.0);
  drag(44.0, 0.0);
  loseRelease();
  press(110.0, 0.0);
  EXPECT_FALSE(c.Shape2.Visible());
  drag(120.0, 0.0);
  release(120.0, 0.0);
  EXPECT_EQ(c.kentrokykloy.Value(), 20);
  EXPECT_EQ(c.aktina2.Value(), 100);
}

TEST_F(DropTest, ADragGoesOnWhileOtherButtonsArePressedWithTheLeft) {
  press(20.0, 0.0);
  press(30.0, 0.0, Qt::NoModifier, Qt::RightButton);
  drag(44.0, 0.0);
  EXPECT_TRUE(c.Shape2.Visible());
  release(44.0, 0.0, Qt::RightButton);
  drag(50.0, 0.0);
  release(60.0, 0.0);
  EXPECT_EQ(c.kentrokykloy.Value(), 60);
}

}  // namespace
}  // namespace lensbench
