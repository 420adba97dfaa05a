#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <vector>

#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QTest>

#include "canvas/qt/CommandButton.h"
#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/ScrollBar.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

const FormDesign design{"kelmo", "SPHERICAL  LENSES", 165, 735, 3000, 2400, white};

QImage shown(const Form& form) {
  return form.drawingArea()->grab().toImage().convertToFormat(QImage::Format_RGB32);
}

TEST(Form, IsCreatedHiddenAtItsDesignedClientSize) {
  const Form form(design);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(form.objectName(), "kelmo");
  EXPECT_EQ(form.Caption(), "SPHERICAL  LENSES");
  EXPECT_EQ(form.drawingArea()->size(), QSize(200, 160));
  EXPECT_EQ(form.canvas().size(), QSize(200, 160));
  EXPECT_EQ(form.canvas().ScaleWidth(), 3000.0);
}

TEST(Form, AMenuBarTakesNothingFromTheClientArea) {
  Form form(design);
  const MenuEntry entry(form, "TELIOMA", "END");
  EXPECT_EQ(form.canvas().size(), QSize(200, 160));
  form.Show();
  QTest::qWait(20);
  EXPECT_EQ(form.drawingArea()->size(), QSize(200, 160));
  EXPECT_EQ(form.canvas().size(), QSize(200, 160));
}

TEST(Form, TakesTheColourOfItsDesign) {
  Form form({"f", "", 0, 0, 1500, 1500, RGB(10, 20, 30)});
  EXPECT_EQ(form.canvas().BackColor(), RGB(10, 20, 30));
  EXPECT_EQ(colourAt(shown(form), 50, 50), RGB(10, 20, 30));
  Form window({"f", "", 0, 0, 1500, 1500, systemColour(5)});
  EXPECT_EQ(colourAt(shown(window), 50, 50), white);
  Form platform({"f", "", 0, 0, 1500, 1500, {}});
  EXPECT_EQ(platform.canvas().BackColor().red(), platform.palette().color(QPalette::Window).red());
}

TEST(Form, OnAnOrdinaryDisplayItShowsTheBoxFilteredImage) {
  Form form(design);
  ASSERT_EQ(form.canvas().oversampling(), 2);
  form.canvas().Scale(-100, 80, 100, -80);
  form.canvas().Circle(0.3, 0.2, 60, red);
  form.canvas().Line(-90, -70, 95, 60, blue);
  EXPECT_EQ(shown(form), filtered(form.canvas().image(), 2));
  form.canvas().PSet(10, 10, green);
  EXPECT_EQ(shown(form), filtered(form.canvas().image(), 2));
}

TEST(Form, WithoutOversamplingItShowsTheImageItself) {
  Form form(design);
  form.canvas().setOversampling(1);
  form.canvas().Line(0, 0, 2500, 2000, red);
  EXPECT_EQ(shown(form), form.canvas().image());
}

TEST(Form, HidingAndShowingRestoresThePictureBitByBit) {
  Form form(design);
  form.Show();
  form.canvas().Scale(-100, 80, 100, -80);
  form.canvas().Circle(0, 0, 60, red);
  form.canvas().Print("Φ");
  const QImage before = shown(form);
  const QImage image = form.canvas().image().copy();
  form.Hide();
  EXPECT_FALSE(form.isVisible());
  form.Show();
  QTest::qWait(20);
  EXPECT_EQ(form.canvas().image(), image);
  EXPECT_EQ(shown(form), before);
}

TEST(Form, AResizeKeepsThePictureAndIsTold) {
  Form form(design);
  form.Show();
  QTest::qWait(20);
  form.canvas().setOversampling(1);
  form.canvas().Scale(-100, 80, 100, -80);
  form.canvas().Circle(0, 0, 60, red);
  const QImage before = form.canvas().image().copy();
  std::vector<QSize> told;
  QObject::connect(&form, &Form::Resized, [&] { told.push_back(form.canvas().size()); });
  form.resize(form.size() + QSize(40, 30));
  QTest::qWait(20);
  ASSERT_EQ(told.size(), 1u);
  EXPECT_EQ(told[0], QSize(240, 190));
  EXPECT_EQ(form.canvas().image().copy(before.rect()), before);
  EXPECT_EQ(colourAt(form.canvas().image(), 230, 180), white);
}

TEST(Form, SizesAndPlacesAreInTwips) {
  Form form(design);
  form.Show();
  QTest::qWait(20);
  form.Left(300);
  form.Top(450);
  form.Width(6000);
  form.Height(4500);
  QTest::qWait(50);
  EXPECT_EQ(form.Left(), 300.0);
  EXPECT_EQ(form.Top(), 450.0);
  EXPECT_EQ(form.Width(), 6000.0);
  EXPECT_EQ(form.Height(), 4500.0);
  form.clientSize(3000, 1500);
  EXPECT_EQ(form.canvas().size(), QSize(200, 100));
}

TEST(Form, ASizeSetWhileHiddenHoldsWhenItIsShown) {
  Form form(design);
  const MenuEntry entry(form, "TELOS", "END");
  form.Width(6000);
  form.Height(6000);
  const QSize hidden = form.canvas().size();
  EXPECT_EQ(hidden.width(), 400);
  form.Show();
  QTest::qWait(50);
  EXPECT_EQ(form.Width(), 6000.0);
  EXPECT_EQ(form.Height(), 6000.0);
}

TEST(Form, FillsTheDisplayWhenAskedTo) {
  Form form(design);
  form.fillDisplay();
  form.Show();
  QTest::qWait(50);
  EXPECT_TRUE(form.isMaximized());
  EXPECT_GT(form.drawingArea()->width(), 400);
  EXPECT_EQ(form.canvas().size(), form.drawingArea()->size());
}

TEST(Form, AMaximisedFormThatIsHiddenComesBackWholeAndKeepsItsOrdinarySize) {
  Form form(design);
  form.Left(300);
  form.Top(450);
  form.Width(6000);
  form.Height(4500);
  form.Show();
  QTest::qWait(20);
  const QRect ordinary = form.geometry();
  form.fillDisplay();
  QTest::qWait(20);
  const QRect whole = form.geometry();
  ASSERT_NE(whole.size(), ordinary.size());
  form.area().drawBy([&] {
    form.canvas().Cls();
    form.canvas().Line(0, 0, form.canvas().ScaleWidth(), form.canvas().ScaleHeight(), red);
  });
  form.area().stale();
  const QImage before = form.image().copy();
  form.Hide();
  form.Show();
  QTest::qWait(20);
  EXPECT_TRUE(form.isMaximized());
  EXPECT_EQ(form.geometry(), whole);
  EXPECT_EQ(form.image(), before);
  form.showNormal();
  QTest::qWait(20);
  EXPECT_EQ(form.geometry(), ordinary);
}

TEST(Form, ShowRestoresAMinimisedForm) {
  Form form(design);
  form.Show();
  form.showMinimized();
  QTest::qWait(20);
  ASSERT_TRUE(form.isMinimized());
  form.Show();
  QTest::qWait(20);
  EXPECT_FALSE(form.isMinimized());
  EXPECT_TRUE(form.isVisible());
  form.showMinimized();
  form.Hide();
  form.Show();
  QTest::qWait(20);
  EXPECT_FALSE(form.isMinimized());
  EXPECT_TRUE(form.isVisible());
}

TEST(Form, AMaximisedFormThatIsMinimisedIsRestoredMaximised) {
  Form form(design);
  form.fillDisplay();
  form.Show();
  form.setWindowState(form.windowState() | Qt::WindowMinimized);
  QTest::qWait(20);
  form.Show();
  QTest::qWait(20);
  EXPECT_TRUE(form.isMaximized());
  EXPECT_FALSE(form.isMinimized());
}

TEST(Form, WritingAPlaceOrASizeMakesAnOrdinaryWindow) {
  for (const Qt::WindowState state : {Qt::WindowMaximized, Qt::WindowMinimized}) {
    Form form(design);
    form.Show();
    form.setWindowState(state);
    QTest::qWait(20);
    form.Top(0);
    form.Left(0);
    form.Height(4500);
    form.Width(4500);
    form.Show();
    QTest::qWait(20);
    EXPECT_EQ(form.windowState() & ~Qt::WindowActive, Qt::WindowNoState);
    EXPECT_EQ(form.Left(), 0.0);
    EXPECT_EQ(form.Top(), 0.0);
    EXPECT_EQ(form.Width(), 4500.0);
    EXPECT_EQ(form.Height(), 4500.0);
  }
}

TEST(Form, HidingKeepsThePlaceAndSizeThatAPersonGave) {
  Form form(design);
  form.Left(0);
  form.Top(0);
  form.Width(4500);
  form.Show();
  QTest::qWait(20);
  EXPECT_FALSE(form.movedByHand());
  form.move(120, 90);
  form.resize(form.size() + QSize(50, 40));
  QTest::qWait(20);
  const QRect byHand = form.geometry();
  EXPECT_TRUE(form.movedByHand());
  form.Hide();
  EXPECT_TRUE(form.movedByHand());
  form.Show();
  QTest::qWait(20);
  EXPECT_EQ(form.geometry(), byHand);
  // Written anew, it stands where it was written.
  form.Left(0);
  form.Top(0);
  EXPECT_EQ(form.Left(), 0.0);
  EXPECT_FALSE(form.movedByHand());
}

TEST(Form, ResizesAreToldAtEverySizeBeforeAndAfterInput) {
  Form form(design);
  int told = 0;
  QObject::connect(&form, &Form::Resized, [&] { ++told; });
  form.resize(400, 300);
  form.Show();
  QTest::qWait(20);
  EXPECT_EQ(told, 1);
  QTest::mouseClick(form.drawingArea(), Qt::LeftButton);
  form.resize(500, 300);
  QTest::qWait(20);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(form.canvas().size(), form.drawingArea()->size());
  form.resize(400, 300);
  form.move(30, 30);
  QTest::qWait(20);
  EXPECT_EQ(told, 3);
}

struct Mouse {
  int button, shift;
  double x, y;
};

TEST(Form, MouseEventsComeInUserUnits) {
  Form form(design);
  form.Show();
  form.canvas().Scale(-100, 80, 100, -80);
  std::vector<Mouse> down, move, up;
  const auto into = [](std::vector<Mouse>& list) {
    return [&list](int b, int s, double x, double y) { list.push_back({b, s, x, y}); };
  };
  QObject::connect(&form, &Form::MouseDown, into(down));
  QObject::connect(&form, &Form::MouseMove, into(move));
  QObject::connect(&form, &Form::MouseUp, into(up));
  QWidget* area = form.drawingArea();
  QTest::mousePress(area, Qt::LeftButton, Qt::ShiftModifier, {150, 40});
  QTest::mouseMove(area, {10, 20});
  QTest::mouseRelease(area, Qt::LeftButton, Qt::ControlModifier, {300, -20});
  QTest::mousePress(area, Qt::RightButton, Qt::AltModifier, {0, 0});
  QTest::mouseRelease(area, Qt::RightButton, {}, {0, 0});
  QTest::mousePress(area, Qt::MiddleButton, {}, {100, 80});
  ASSERT_EQ(down.size(), 3u);
  EXPECT_EQ(down[0].button, 1);
  EXPECT_EQ(down[0].shift, 1);
  EXPECT_DOUBLE_EQ(down[0].x, 50.0);
  EXPECT_DOUBLE_EQ(down[0].y, 40.0);
  EXPECT_EQ(down[1].button, 2);
  EXPECT_EQ(down[1].shift, 4);
  EXPECT_EQ(down[2].button, 4);
  EXPECT_DOUBLE_EQ(down[2].x, 0.0);
  ASSERT_GE(move.size(), 1u);
  EXPECT_DOUBLE_EQ(move[0].x, -90.0);
  ASSERT_EQ(up.size(), 2u);
  EXPECT_EQ(up[0].shift, 2);
  EXPECT_DOUBLE_EQ(up[0].x, 200.0);
  EXPECT_DOUBLE_EQ(up[0].y, 100.0);
}

// What a form tells of the mouse, in order.
struct MouseLog {
  std::vector<QString> told;
  explicit MouseLog(Form& form) {
    const auto tell = [this](const char* what) {
      return [this, what](int button) {
        told.push_back(QStringLiteral("%1 %2").arg(QLatin1String(what)).arg(button));
      };
    };
    QObject::connect(&form, &Form::MouseDown, tell("down"));
    QObject::connect(&form, &Form::MouseMove, tell("move"));
    QObject::connect(&form, &Form::MouseUp, tell("up"));
    QObject::connect(&form, &Form::DragEnded, [this] { told.push_back("ended"); });
  }
};

void mouse(QWidget& area, QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons held) {
  QMouseEvent event(type, {20, 20}, area.mapToGlobal(QPointF(20, 20)), button, held, {});
  QApplication::sendEvent(&area, &event);
}

TEST(Form, ADragThatSeesItsReleaseIsNotToldToHaveEnded) {
  Form form(design);
  MouseLog log(form);
  QWidget& area = *form.drawingArea();
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
  mouse(area, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  form.Show();
  form.Hide();
  EXPECT_THAT(log.told, ::testing::ElementsAre("down 1", "move 1", "up 1", "move 0"));
}

TEST(Form, ADragEndsWhenTheMouseComesWithoutTheLeftButton) {
  Form form(design);
  MouseLog log(form);
  QWidget& area = *form.drawingArea();
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::RightButton);
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  EXPECT_THAT(log.told, ::testing::ElementsAre("down 1", "ended", "move 2", "move 0"));
}

TEST(Form, AReleaseAfterTheDragEndedIsNotTold) {
  Form form(design);
  MouseLog log(form);
  QWidget& area = *form.drawingArea();
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::NoButton);
  mouse(area, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
  mouse(area, QEvent::MouseButtonRelease, Qt::RightButton, Qt::NoButton);
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  mouse(area, QEvent::MouseButtonRelease, Qt::LeftButton, Qt::NoButton);
  EXPECT_THAT(log.told,
              ::testing::ElementsAre("down 1", "ended", "move 0", "up 2", "down 1", "up 1"));
}

TEST(Form, ASecondPressEndsADragWhoseReleaseWasLost) {
  Form form(design);
  MouseLog log(form);
  QWidget& area = *form.drawingArea();
  mouse(area, QEvent::MouseButtonPress, Qt::RightButton, Qt::RightButton);
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  EXPECT_THAT(log.told, ::testing::ElementsAre("down 2", "down 1", "ended", "down 1"));
}

TEST(Form, ADragEndsWhenABoxOpensOrTheFormIsOutOfSight) {
  Form form(design);
  form.Show();
  MouseLog log(form);
  QWidget& area = *form.drawingArea();
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  QDialog box(&form);
  box.setModal(true);
  box.show();
  EXPECT_THAT(log.told, ::testing::ElementsAre("down 1", "ended"));
  box.hide();
  mouse(area, QEvent::MouseButtonPress, Qt::LeftButton, Qt::LeftButton);
  form.Hide();
  form.Show();
  mouse(area, QEvent::MouseMove, Qt::NoButton, Qt::LeftButton);
  EXPECT_THAT(log.told, ::testing::ElementsAre("down 1", "ended", "down 1", "ended", "move 1"));
}

TEST(Form, APressOnAControlIsNotAPressOnTheDrawing) {
  Form form(design);
  CommandButton button(form, "Command1", {0, 0, 1500, 600});
  form.Show();
  int presses = 0;
  QObject::connect(&form, &Form::MouseDown, [&] { ++presses; });
  QTest::mouseClick(&button, Qt::LeftButton);
  QTest::mouseClick(&button, Qt::RightButton);
  EXPECT_EQ(presses, 0);
}

TEST(Form, TheCloseBoxIsReportedAndClosesNothing) {
  Form form(design);
  form.Show();
  int told = 0;
  QObject::connect(&form, &Form::CloseBox, [&] { ++told; });
  EXPECT_FALSE(form.close());
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(form.isVisible());
}

TEST(Form, HasTheMousePointerThatIsSet) {
  Form form(design);
  form.MousePointer(2);
  EXPECT_EQ(form.MousePointer(), 2);
  EXPECT_EQ(form.drawingArea()->cursor().shape(), Qt::CrossCursor);
  form.MousePointer(1);
  EXPECT_EQ(form.drawingArea()->cursor().shape(), Qt::ArrowCursor);
  form.MousePointer(0);
  EXPECT_FALSE(form.drawingArea()->testAttribute(Qt::WA_SetCursor));
}

TEST(Form, TheMenuBarIsReachedAndWorkedByKeyboard) {
  Form form(design);
  MenuEntry first(form, "first", "FIRST");
  MenuEntry second(form, "second", "SECOND");
  int clicked = 0;
  QObject::connect(&second, &MenuEntry::Click, [&] { ++clicked; });
  form.Show();
  form.activateWindow();
  QTest::qWait(50);
  QTest::keyClick(&form, Qt::Key_F10);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  QTest::qWait(20);
  EXPECT_EQ(clicked, 1);
}

TEST(Form, TheKeyboardReturnsFromTheMenuBarToWhereItWas) {
  Form form(design);
  MenuEntry entry(form, "entry", "END");
  ScrollBar bar(form, "bar", Qt::Horizontal, {0, 0, 3000, 300});
  ScrollBar other(form, "other", Qt::Horizontal, {0, 600, 3000, 300});
  form.Show();
  form.activateWindow();
  QTest::qWait(50);
  other.setFocus();
  QTest::keyClick(&form, Qt::Key_F10);
  ASSERT_TRUE(form.menuBar()->hasFocus());
  QTest::keyClick(form.menuBar(), Qt::Key_Escape);
  EXPECT_EQ(QApplication::focusWidget(), &other);
  QTest::keyClick(&form, Qt::Key_F10);
  QTest::keyClick(form.menuBar(), Qt::Key_Return);
  EXPECT_EQ(QApplication::focusWidget(), &other);
}

}  // namespace
}  // namespace lensbench
