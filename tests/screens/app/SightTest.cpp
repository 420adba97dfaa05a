// A screen that nobody sees holds no pixels and draws nothing, whatever is done to it; when it is
// seen again it shows what its value gives, bit for bit.
#include <functional>
#include <gtest/gtest.h>

#include <QBackingStore>
#include <QScreen>
#include <QTest>

#include "screens/ElSahl/ElSahl.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"
#include "tests/screens/support/PictureOf.h"

namespace lensbench {
namespace {

void wait() { QTest::qWait(60); }

// What the display has of a drawing area between the controls, of which the toolkit gives one the
// focus when a window comes back.
QImage displayed(Form& form) {
  const QWidget& area = *form.drawingArea();
  const QRect middle = area.rect().adjusted(0, 125, -30, -110);
  const QPoint at = area.mapTo(&form, middle.topLeft());
  return form.screen()
      ->grabWindow(form.winId(), at.x(), at.y(), middle.width(), middle.height())
      .toImage();
}

// Whether there is nothing on a canvas but its background.
bool isBlank(const RasterCanvas& canvas) {
  QImage blank(canvas.image().size(), QImage::Format_RGB32);
  blank.fill(opaque(painted(canvas.BackColor())));
  return canvas.image() == blank;
}

struct Way {
  const char* name;
  std::function<void(Form&)> leave, comeBack;
};
const Way ways[] = {
    {"hidden", [](Form& form) { form.Hide(); }, [](Form& form) { form.Show(); }},
    {"minimised", [](Form& form) { form.showMinimized(); }, [](Form& form) { form.Show(); }}};

class SightTest : public ::testing::Test {
 protected:
  SightTest() {
    Shell::instance->boxes.answer.reset();
    Main(screens);
    screens.openSingleRay();
    screens.kelmo().Show();
    screens.kelmo().Form_MouseDown(1, 1, -250, 40);
    screens.openIbnSahl();
    screens.drawIbnSahl();
    wait();
  }

  // Away and back in every way, with something done to the screen meanwhile.
  template <class Screen>
  void expectSameAgain(Screen& screen, const std::function<void()>& change) {
    for (const Way& way : ways) {
      SCOPED_TRACE(way.name);
      const QImage before = displayed(screen);
      way.leave(screen);
      wait();
      EXPECT_TRUE(isBlank(screen.canvas()));
      EXPECT_EQ(screen.backingStore()->size(), QSize(1, 1));
      way.comeBack(screen);
      wait();
      EXPECT_EQ(displayed(screen), before);
      EXPECT_TRUE(showsItsValue(screen));

      const auto valueBefore = screen.shown();
      way.leave(screen);
      wait();
      change();
      wait();
      EXPECT_NE(screen.shown(), valueBefore);
      EXPECT_TRUE(isBlank(screen.canvas()));
      way.comeBack(screen);
      wait();
      const QImage after = displayed(screen);
      EXPECT_NE(after, before);
      EXPECT_TRUE(showsItsValue(screen));
      wait();
      EXPECT_EQ(displayed(screen), after);
    }
  }

  Program program;
  Screens& screens = program.screens;
};

TEST_F(SightTest, TheWorkbench) {
  double y = 40;
  expectSameAgain(screens.kelmo(), [&] { screens.kelmo().Form_MouseDown(1, 1, -250, y += 13); });
}

TEST_F(SightTest, TheSingleRayScreen) {
  expectSameAgain(screens.moniaktina(), [&] {
    ScrollBar& bar = screens.moniaktina().controls().aktina1;
    bar.Value(bar.Value() + 20);
  });
}

TEST_F(SightTest, TheIbnSahlScreen) {
  double y = 25;
  expectSameAgain(screens.ElSahl(), [&] { screens.ElSahl().Form_MouseDown(1, 0, 108, y -= 9); });
}

TEST_F(SightTest, WavesGoOnWithoutBeingDrawn) {
  kelmo& screen = screens.kelmo();
  for (const Way& way : ways) {
    SCOPED_TRACE(way.name);
    screen.parallilakymata_Click();
    way.leave(screen);
    wait();
    for (int i = 1; i <= 30; ++i) {
      program.clock.advance(17);
      EXPECT_EQ(screen.state().ticks, i);
      QCoreApplication::processEvents();
    }
    EXPECT_TRUE(isBlank(screen.canvas()));
    way.comeBack(screen);
    wait();
    EXPECT_FALSE(isBlank(screen.canvas()));
    EXPECT_TRUE(showsItsValue(screen));
  }
}

}  // namespace
}  // namespace lensbench
