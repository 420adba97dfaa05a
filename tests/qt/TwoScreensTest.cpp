// A form that is moved between two displays of different pixel ratios; two_screens.json says which.
#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

struct TwoScreens : ::testing::Test {
  Form form{{"f", "", 0, 0, 3000, 2400, white}};
  int told = 0;

  TwoScreens() {
    // As a screen does: its value is drawn from nothing when the pixels are lost.
    form.area().drawBy([this] {
      form.canvas().Cls();
      form.canvas().Line(0, 0, 3000, 2400, red);
    });
    QObject::connect(&form.canvas(), &RasterCanvas::pictureLost, &form,
                     [this] { form.area().stale(); });
    QObject::connect(&form, &Form::Resized, [this] { ++told; });
    form.area().stale();
  }
  ~TwoScreens() override {
    form.canvas().disconnect(&form);
    form.area().drawBy({});
  }
};

TEST_F(TwoScreens, ThePictureFollowsTheFormToAnotherPixelRatioAndBack) {
  form.move(30, 30);
  form.Show();
  QTest::qWait(20);
  const QImage ordinary = form.image().copy();
  ASSERT_EQ(form.canvas().devicePixelRatio(), 1.0);
  ASSERT_EQ(form.canvas().oversampling(), 2);
  told = 0;
  form.move(1000, 100);
  QTest::qWait(20);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(form.canvas().devicePixelRatio(), 2.0);
  EXPECT_EQ(form.canvas().oversampling(), 1);
  EXPECT_EQ(form.canvas().size(), QSize(200, 160));
  EXPECT_EQ(colourAt(form.image(), 200, 160), red);
  form.move(30, 30);
  QTest::qWait(20);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(form.canvas().devicePixelRatio(), 1.0);
  EXPECT_EQ(form.image(), ordinary);
}

// Which of the two is the primary one is the platform's choice.
TEST_F(TwoScreens, AFormThatFillsTheDisplayDoesSoOnThePrimaryOne) {
  const QScreen& primary = *QGuiApplication::primaryScreen();
  const QList<QScreen*> screens = QGuiApplication::screens();
  ASSERT_EQ(screens.size(), 2);
  const QScreen& other = *screens[screens[0] == &primary ? 1 : 0];
  form.Show();
  QTest::qWait(20);
  form.move(other.geometry().topLeft() + QPoint(200, 100));
  QTest::qWait(20);
  ASSERT_EQ(form.canvas().devicePixelRatio(), other.devicePixelRatio());
  form.Hide();
  form.fillDisplay();
  form.Show();
  QTest::qWait(20);
  EXPECT_TRUE(form.isMaximized());
  EXPECT_TRUE(primary.geometry().contains(form.geometry()));
  EXPECT_EQ(form.canvas().devicePixelRatio(), primary.devicePixelRatio());
}

}  // namespace
}  // namespace lensbench
