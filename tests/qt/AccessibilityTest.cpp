// What screen readers are told of a form; and fingers, which take what the mouse can.
#include <gtest/gtest.h>
#include <vector>

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QPointingDevice>
#include <QTest>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/MenuEntry.h"

namespace lensbench {
namespace {

struct Picture : Form {
  Picture() : Form(FormDesign{}) {
    area().describeBy([this] {
      ++asked;
      return words;
    });
    show();
    QApplication::processEvents();
  }

  // Draws for so long, with a change at each frame.
  void draw(int milliseconds) {
    for (int spent = 0; spent < milliseconds; spent += 20) {
      area().update();
      QTest::qWait(20);
    }
  }

  QString words = "μία\none";
  int asked = 0;
};

TEST(PictureInWords, IsNotMadeWhileNobodyListens) {
  Picture picture;
  picture.draw(700);
  EXPECT_EQ(picture.asked, 0);
}

TEST(PictureInWords, IsTheDescriptionOfACanvas) {
  Picture picture;
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&picture.area());
  ASSERT_NE(spoken, nullptr);
  EXPECT_EQ(spoken->role(), QAccessible::Canvas);
  EXPECT_EQ(spoken->text(QAccessible::Description), picture.words);
  Form plain{FormDesign{}};
  EXPECT_NE(QAccessible::queryAccessibleInterface(&plain.area())->role(), QAccessible::Canvas);
}

TEST(SpokenLabel, TellsItsTextBesideItsName) {
  Form form{FormDesign{}};
  Label label(form, "Label3", {0, 0, 1500, 300});
  label.Caption("λόγος 7");
  describe(label, "Όνομα · Name", "Γραμμή.\nLine.");
  QAccessibleInterface* spoken = QAccessible::queryAccessibleInterface(&label);
  EXPECT_EQ(spoken->role(), QAccessible::StaticText);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Όνομα · Name");
  EXPECT_EQ(spoken->text(QAccessible::Value), "λόγος 7");
  EXPECT_EQ(spoken->text(QAccessible::Description), "λόγος 7\nΓραμμή.\nLine.");
}

TEST(SpokenEntry, IsNamedInBothLanguagesAndPressed) {
  Form form{FormDesign{}};
  MenuEntry entry(form, "TELIOMA", "END");
  describe(entry, "Τέλος · End", "Τελειώνει.\nEnds.");
  int clicks = 0;
  QObject::connect(&entry, &MenuEntry::Click, [&clicks] { ++clicks; });
  form.show();
  QApplication::processEvents();
  QAccessibleInterface* bar = QAccessible::queryAccessibleInterface(form.menuBar());
  ASSERT_EQ(bar->childCount(), 1);
  QAccessibleInterface* spoken = bar->child(0);
  EXPECT_EQ(spoken->role(), QAccessible::MenuItem);
  EXPECT_EQ(spoken->text(QAccessible::Name), "Τέλος · End");
  EXPECT_EQ(spoken->text(QAccessible::Description), "Τελειώνει.\nEnds.");
  EXPECT_EQ(spoken->parent(), bar);
  EXPECT_FALSE(spoken->state().checkable);
  entry.Checked(true);
  EXPECT_TRUE(spoken->state().checkable);
  EXPECT_TRUE(spoken->state().checked);
  spoken->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  QApplication::processEvents();
  EXPECT_EQ(clicks, 1);
}

TEST(Touch, TakesAndDragsAsTheMouseDoes) {
  Form form{FormDesign{}};
  form.show();
  QApplication::processEvents();
  std::vector<Point> down;
  std::vector<Point> moved;
  std::vector<Point> up;
  const auto note = [](std::vector<Point>& points) {
    return [&points](int button, int, double x, double y) {
      if (button == leftButton) points.push_back({x, y});
    };
  };
  QObject::connect(&form, &Form::MouseDown, note(down));
  QObject::connect(&form, &Form::MouseMove, note(moved));
  QObject::connect(&form, &Form::MouseUp, note(up));
  // The toolkit keeps it in its list of devices for good.
  static QPointingDevice* const finger = QTest::createTouchDevice();
  QTest::touchEvent(&form.area(), finger).press(0, QPoint(40, 50), &form.area());
  QTest::touchEvent(&form.area(), finger).move(0, QPoint(90, 60), &form.area());
  QTest::touchEvent(&form.area(), finger).release(0, QPoint(90, 60), &form.area());
  QApplication::processEvents();
  const auto user = [&form](double x, double y) { return form.canvas().mapping().toUser({x, y}); };
  ASSERT_EQ(down.size(), 1u);
  EXPECT_EQ(down[0].x, user(40, 50).x);
  EXPECT_EQ(down[0].y, user(40, 50).y);
  ASSERT_FALSE(moved.empty());
  EXPECT_EQ(moved.back().x, user(90, 60).x);
  ASSERT_EQ(up.size(), 1u);
  EXPECT_EQ(up[0].x, user(90, 60).x);
}

}  // namespace
}  // namespace lensbench
