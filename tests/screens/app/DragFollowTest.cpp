// A scroll bar that is dragged as fast as events come: the picture follows it frame by frame.
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <utility>
#include <vector>

#include <QApplication>
#include <QMouseEvent>
#include <QStyle>
#include <QTest>

#include "canvas/qt/DrawingArea.h"
#include "screens/kelmo/kelmo.h"
#include "tests/screens/app/Shell.h"
#include "tests/screens/support/PictureOf.h"

namespace lensbench {
namespace {

// Looks at the picture each time that it has been painted, beside the value that the bar has then.
class PaintedRows : public QObject {
 public:
  PaintedRows(kelmo& screen, ScrollBar& bar) : screen_(screen), bar_(bar) {
    screen_.drawingArea()->installEventFilter(this);
  }
  ~PaintedRows() override { screen_.drawingArea()->removeEventFilter(this); }

  // One row of the display's pixels, above the axis, in which the circles stand at another place
  // for each radius.
  QImage row() const {
    const Point p = screen_.canvas().mapping().toPixel({0.0, 20.0});
    QImage pixels(screen_.canvas().displaySize().width(), 1, QImage::Format_RGB32);
    screen_.canvas().showIn(pixels, {0, static_cast<int>(p.y)});
    return pixels;
  }

  std::vector<std::pair<int, QImage>> seen;

 protected:
  bool eventFilter(QObject* area, QEvent* event) override {
    if (event->type() != QEvent::Paint || painting_) return false;
    painting_ = true;
    QCoreApplication::sendEvent(area, event);
    painting_ = false;
    seen.emplace_back(bar_.Value(), row());
    return true;
  }

 private:
  kelmo& screen_;
  ScrollBar& bar_;
  bool painting_ = false;
};

class DragFollow : public ::testing::Test {
 protected:
  DragFollow() {
    Main(program.screens);
    QTest::qWait(100);
    bar.Value(bar.Min());
    QTest::qWait(100);
  }

  void mouse(QEvent::Type type, int x) {
    const QPointF at(x, bar.height() / 2.0);
    const bool move = type == QEvent::MouseMove;
    QMouseEvent event(type, at, bar.mapToGlobal(at), move ? Qt::NoButton : Qt::LeftButton,
                      type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                      Qt::NoModifier);
    QApplication::sendEvent(&bar, &event);
  }
  // At its least value the thumb stands right behind the arrow.
  int thumb() const { return bar.style()->pixelMetric(QStyle::PM_ScrollBarExtent) + 4; }

  Program program;
  kelmo& screen = program.screens.kelmo();
  ScrollBar& bar = screen.controls().aktina1;
};

TEST_F(DragFollow, EachPictureIsThatOfTheBarWhenItIsPainted) {
  std::mt19937 random(5);
  std::vector<std::pair<int, QImage>> seen;
  int bursts = 0;  // of events that moved the bar
  int last = 0;
  {
    PaintedRows painted(screen, bar);
    int changes = 0;
    int drawn = 0;
    QObject::connect(&bar, &ScrollBar::Change, &painted, [&] { ++changes; });
    QObject::connect(&screen.canvas(), &RasterCanvas::pictureChanged, &painted, [&] { ++drawn; });
    mouse(QEvent::MouseButtonPress, thumb());
    ASSERT_TRUE(bar.isSliderDown());
    // To the end of the bar and back, as many events a frame as happen to come.
    std::vector<int> way;
    for (int x = thumb(); x < bar.width(); ++x) way.push_back(x);
    way.insert(way.end(), way.rbegin(), way.rend() - bar.width() / 3);
    for (std::size_t next = 0; next < way.size();) {
      const int before = bar.Value();
      for (int events = std::uniform_int_distribution(1, 12)(random); events > 0; --events) {
        if (next < way.size()) mouse(QEvent::MouseMove, way[next++]);
      }
      QCoreApplication::processEvents();
      bursts += bar.Value() != before ? 1 : 0;
    }
    last = bar.Value();
    mouse(QEvent::MouseButtonRelease, way.back());
    QCoreApplication::processEvents();
    seen = std::move(painted.seen);
    EXPECT_GT(changes, 2 * bursts);
    // Whatever came together was drawn once.
    EXPECT_EQ(drawn, bursts);
  }
  EXPECT_EQ(bar.Value(), last);
  EXPECT_TRUE(showsItsValue(screen));

  std::map<int, QImage> unhurried;
  const PaintedRows rows(screen, bar);
  for (const auto& [value, row] : seen) {
    if (unhurried.count(value) == 0) {
      bar.Value(value);
      screen.image();
      unhurried[value] = rows.row();
    }
    ASSERT_EQ(row, unhurried[value]) << "with the bar at " << value;
  }
  EXPECT_EQ(unhurried.count(bar.Max()), 1U);
  EXPECT_NE(unhurried.begin()->second, unhurried.rbegin()->second);
}

TEST_F(DragFollow, WhatIsOnTheDisplayIsThatOfTheLastValue) {
  mouse(QEvent::MouseButtonPress, thumb());
  for (int x = thumb(); x < bar.width(); ++x) mouse(QEvent::MouseMove, x);
  mouse(QEvent::MouseButtonRelease, bar.width());
  EXPECT_EQ(bar.Value(), bar.Max());
  QCoreApplication::processEvents();
  const QImage hurried = screen.area().picture();
  const QImage onDisplay = screen.screen()->grabWindow(screen.winId()).toImage();
  bar.Value(bar.Min());
  QTest::qWait(100);
  EXPECT_NE(screen.area().picture(), hurried);
  bar.Value(bar.Max());
  QTest::qWait(100);
  EXPECT_EQ(screen.area().picture(), hurried);
  EXPECT_EQ(screen.screen()->grabWindow(screen.winId()).toImage(), onDisplay);
}

}  // namespace
}  // namespace lensbench
