// When a picture is drawn: once before it is shown or read, and not while nobody sees it.
#include <gtest/gtest.h>
#include <stdexcept>

#include <QTest>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

const FormDesign design{"kelmo", "", 0, 0, 3000, 2400, white};

// A form that shows a line of a colour, and counts how often it is drawn.
struct Picture {
  Picture() {
    form.area().drawBy([this] {
      ++drawn;
      form.canvas().Cls();
      form.canvas().Line(0, 0, 2990, 2390, colour);
    });
  }
  void show(Rgb next) {
    colour = next;
    form.area().stale();
  }

  Form form{design};
  Rgb colour = red;
  int drawn = 0;
};

TEST(DrawingArea, DrawsSeveralChangesOnceForAFrame) {
  Picture picture;
  picture.form.Show();
  QTest::qWait(50);
  picture.drawn = 0;
  for (const Rgb colour : {red, green, blue}) picture.show(colour);
  EXPECT_EQ(picture.drawn, 0);
  QTest::qWait(50);
  EXPECT_EQ(picture.drawn, 1);
  EXPECT_GT(count(picture.form.canvas().image(), blue), 100);
  QTest::qWait(50);
  EXPECT_EQ(picture.drawn, 1);
}

TEST(DrawingArea, ReadingDrawsAtOnceAndOnlyWhatIsStale) {
  Picture picture;
  picture.show(green);
  EXPECT_GT(count(picture.form.image(), green), 100);
  EXPECT_EQ(picture.drawn, 1);
  EXPECT_GT(count(picture.form.image(), green), 100);
  EXPECT_EQ(picture.drawn, 1);
  picture.show(red);
  EXPECT_EQ(count(picture.form.canvas().image(), red), 0);
  EXPECT_EQ(count(picture.form.image(), green), 0);
}

TEST(DrawingArea, AHiddenFormHoldsNoPictureAndShowsItAgain) {
  Picture picture;
  picture.form.Show();
  picture.show(blue);
  QTest::qWait(50);
  const QImage before = picture.form.image().copy();
  picture.drawn = 0;
  picture.form.Hide();
  QTest::qWait(50);
  EXPECT_EQ(picture.drawn, 0);
  EXPECT_EQ(count(picture.form.canvas().image(), white), before.width() * before.height());
  // Nobody sees what changes now.
  picture.show(blue);
  QTest::qWait(50);
  EXPECT_EQ(picture.drawn, 0);
  EXPECT_EQ(picture.form.image(), before);
  EXPECT_EQ(picture.drawn, 1);
  picture.form.Show();
  QTest::qWait(50);
  EXPECT_EQ(picture.form.image(), before);
  EXPECT_EQ(picture.form.drawingArea()->grab().toImage().convertToFormat(QImage::Format_RGB32),
            filtered(before, 2));
}

TEST(DrawingArea, AMinimisedFormIsDrawnWhenItIsSeenAgain) {
  Picture picture;
  picture.form.Show();
  QTest::qWait(50);
  picture.form.showMinimized();
  QTest::qWait(50);
  picture.drawn = 0;
  picture.show(green);
  QTest::qWait(50);
  EXPECT_EQ(picture.drawn, 0);
  picture.form.showNormal();
  QTest::qWait(100);
  EXPECT_EQ(picture.drawn, 1);
  EXPECT_GT(count(picture.form.canvas().image(), green), 100);
}

TEST(DrawingArea, ANewSizeIsDrawnAnew) {
  Picture picture;
  picture.form.image();
  picture.drawn = 0;
  picture.form.clientSize(4500, 3000);
  EXPECT_EQ(picture.form.image().size(), QSize(600, 400));
  EXPECT_EQ(picture.drawn, 1);
}

TEST(DrawingArea, IsNeverDrawnWhileItIsDrawn) {
  Form form(design);
  int depth = 0;
  int deepest = 0;
  form.area().drawBy([&] {
    deepest = std::max(deepest, ++depth);
    form.image();
    --depth;
  });
  form.area().stale();
  form.image();
  EXPECT_EQ(deepest, 1);
}

TEST(DrawingArea, ADrawingThatFailsIsTriedAgain) {
  Form form(design);
  int tries = 0;
  form.area().drawBy([&] {
    if (++tries == 1) throw std::runtime_error("once");
  });
  form.area().stale();
  EXPECT_THROW(form.image(), std::runtime_error);
  EXPECT_NO_THROW(form.image());
  EXPECT_EQ(tries, 2);
}

}  // namespace
}  // namespace lensbench
