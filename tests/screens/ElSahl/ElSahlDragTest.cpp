// Dragging the edges of the diaphragm.
#include "tests/screens/ElSahl/ElSahlFixture.h"

namespace lensbench {
namespace {

class ElSahlDrag : public ElSahlFixture {
 protected:
  void move(double x, double y) { screen.Form_MouseMove(1, 0, x, y); }
  void drag(Point from, Point to) {
    press(from.x, from.y);
    move((from.x + to.x) / 2, (from.y + to.y) / 2);
    move(to.x, to.y);
    release(to.x, to.y);
  }
};

TEST_F(ElSahlDrag, APressOnAnEdgeTakesItAndDrawsNothing) {
  const QImage before = picture();
  press(130, 10);
  EXPECT_TRUE(screen.syromenigrammi1);
  EXPECT_FALSE(screen.syromenigrammi2);
  EXPECT_EQ(before, picture());
  release(130, 10);
  const QImage released = picture();
  press(127, -60);
  EXPECT_FALSE(screen.syromenigrammi1);
  EXPECT_TRUE(screen.syromenigrammi2);
  EXPECT_EQ(released, picture());
  EXPECT_EQ(108, shared.pigiX.value());
}

TEST_F(ElSahlDrag, OpeningTheScreenAnewLetsAHeldEdgeGo) {
  for (const double y : {60.0, -60.0}) {
    press(130, y);
    ASSERT_TRUE(screen.syromenigrammi1 || screen.syromenigrammi2);
    move(100, y / 2);
    screen.prepare();
    EXPECT_FALSE(screen.syromenigrammi1 || screen.syromenigrammi2);
    expectEdges(130, 10, -10);
    move(90, y / 2);
    release(80, y / 2);
    expectEdges(130, 10, -10);
  }
}

TEST_F(ElSahlDrag, BesideAnEdgeAndInTheOpeningAPressPlacesTheSource) {
  for (const Point p : {Point{126.9, 60}, Point{133.1, 60}, Point{130, 9.9}, Point{130, -9.9}}) {
    press(p.x, p.y);
    EXPECT_FALSE(screen.syromenigrammi1 || screen.syromenigrammi2);
    EXPECT_EQ(p.x, shared.pigiX.value());
    EXPECT_EQ(p.y, shared.pigiY.value());
  }
}

TEST_F(ElSahlDrag, BothEdgesTakeTheAbscissaAndTheDraggedEndTheOrdinate) {
  drag({130, 60}, {100, 30});
  expectEdges(100, 30, -10);
  drag({100, -60}, {95, -5});
  expectEdges(95, 30, -5);
}

TEST_F(ElSahlDrag, TheReleaseClearsTheFlagsAndDrawsTheStoredSceneAnew) {
  for (const bool biconvex : {false, true}) {
    shared.amfikyrtosSahl = biconvex;
    const double x = c.Line1.X1();
    drag({x, 60}, {100, 24});
    EXPECT_FALSE(screen.syromenigrammi1 || screen.syromenigrammi2);
    EXPECT_TRUE(shows({fan(108, 25)}));
  }
}

TEST_F(ElSahlDrag, TheUpperEndPushesTheLowerOneATenthBeyond) {
  drag({130, 60}, {100, -50});
  expectEdges(100, -50, -55);
}

TEST_F(ElSahlDrag, TheLowerEndPushesTheUpperOneATenthBeyond) {
  drag({130, -60}, {100, 40});
  expectEdges(100, 44, 40);
}

TEST_F(ElSahlDrag, OnlyWhereTheReleaseCrossesIsTheOtherEndPushed) {
  press(130, 60);
  move(110, -80);
  expectEdges(110, -80, -88);
  move(110, 20);
  release(110, 20);
  expectEdges(110, 20, -10);
}

TEST_F(ElSahlDrag, EndsThatMeetCloseTheDiaphragm) {
  drag({130, 60}, {100, -10});
  expectEdges(100, -10, -10);
  drag({100, -60}, {100, -60});
  expectEdges(100, -10, -60);
}

TEST_F(ElSahlDrag, TheAbscissaGoesToTheVerySides) {
  drag({130, 60}, {149, 30});
  expectEdges(149, 30, -10);
  drag({149, 60}, {-119, 30});
  expectEdges(-119, 30, -10);
  drag({-119, 60}, {-500, 30});
  expectEdges(-120, 30, -10);
}

TEST_F(ElSahlDrag, AnEdgeDraggedUnderTheOptionsStaysBelowThem) {
  drag({130, 60}, {-60, 119});
  const Point end{c.Line1.X2(), c.Line1.Y2()};
  EXPECT_EQ(-60, end.x);
  EXPECT_EQ(-10, c.Line2.Y2());
  EXPECT_EQ(nullptr, screen.drawingArea()->childAt(pixel(end.x, end.y)));
  EXPECT_GT(end.y, 100);
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixel(end.x, end.y + 1));
  EXPECT_TRUE(screen.syromenigrammi1);
  QTest::mouseRelease(screen.drawingArea(), Qt::LeftButton, {}, pixel(-60, 30));
  EXPECT_NEAR(30, c.Line1.Y2(), 0.5);
}

TEST_F(ElSahlDrag, InAWindowOfOptionsAloneAnEdgeStaysInsideTheWindow) {
  press(130, 60);
  resizeTo(screen.width(), screen.menuWidget()->height() + 10);
  ASSERT_LT(screen.drawingArea()->height(), c.onlyrays.height());
  const Point middle = screen.canvas().mapping().toUser({100.0, 5.0});
  release(middle.x, middle.y);
  const double bottom = screen.canvas().ScaleTop() + screen.canvas().ScaleHeight();
  EXPECT_DOUBLE_EQ(bottom + 3, c.Line1.Y2());
  EXPECT_DOUBLE_EQ(bottom + 3, c.Line2.Y2());
}

TEST_F(ElSahlDrag, AnEdgeDraggedOutOfTheWindowCanBeTakenAgain) {
  drag({130, 60}, {400, 500});
  const Point upper{c.Line1.X2(), c.Line1.Y2()};
  EXPECT_EQ(150, upper.x);
  const QPoint beside = pixel(upper.x, upper.y + 1) - QPoint(1, 0);
  EXPECT_TRUE(screen.drawingArea()->rect().contains(beside));
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, beside);
  EXPECT_TRUE(screen.syromenigrammi1);
  release(100, -300);
  EXPECT_TRUE(screen.drawingArea()->rect().contains(pixel(c.Line2.X2(), c.Line2.Y2())));
  EXPECT_LE(c.Line2.Y2(), c.Line1.Y2());
}

TEST_F(ElSahlDrag, ADraggedEdgeIsSeenMovingWhileThePictureStands) {
  press(108, 25);
  release(108, 25);
  const QImage before = picture();
  const QPoint newPlace = pixel(20, 100);
  QCoreApplication::processEvents();
  const auto seen = [&] { return screen.drawingArea()->grab().toImage().pixelColor(newPlace); };
  EXPECT_EQ(QColor(Qt::white), seen());
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixel(130, 60));
  QTest::mouseMove(screen.drawingArea(), pixel(20, 60));
  QCoreApplication::processEvents();
  EXPECT_EQ(QColor(0, 0, 192), seen());
  EXPECT_EQ(before, picture());
  QTest::mouseRelease(screen.drawingArea(), Qt::LeftButton, {}, pixel(20, 60));
  EXPECT_NEAR(20, c.Line1.X1(), 0.5);
  EXPECT_NEAR(60, c.Line1.Y2(), 0.5);
}

TEST_F(ElSahlDrag, AnotherButtonDoesNotEndADrag) {
  press(130, 60);
  screen.Form_MouseUp(2, 0, 60, 40);
  EXPECT_TRUE(screen.syromenigrammi1);
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlDrag, HidingTheScreenEndsADragAndChangesNothing) {
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixel(130, 60));
  move(100, 30);
  ASSERT_TRUE(screen.syromenigrammi1);
  screen.Hide();
  EXPECT_FALSE(screen.syromenigrammi1);
  expectEdges(130, 10, -10);
  screen.Show();
  move(0, 0);
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlDrag, ADragThatIsLostChangesNothing) {
  press(90, 0);
  const QImage before = picture();
  for (const double edge : {60.0, -60.0}) {
    press(130, edge);
    move(100, edge / 2);
    emit screen.DragEnded();
    EXPECT_FALSE(screen.syromenigrammi1 || screen.syromenigrammi2);
    expectEdges(130, 10, -10);
    release(80, 30);
    expectEdges(130, 10, -10);
  }
  EXPECT_EQ(before, picture());
}

TEST_F(ElSahlDrag, ABoxInFrontOfTheScreenEndsADragAndChangesNothing) {
  QTest::mousePress(screen.drawingArea(), Qt::LeftButton, {}, pixel(130, 60));
  move(100, 30);
  dialogs.whileOpen = [&] {
    QEvent blocked(QEvent::WindowBlocked);
    QCoreApplication::sendEvent(&screen, &blocked);
    expectEdges(130, 10, -10);
  };
  screen.parallilidesmifotos_Click();
  EXPECT_EQ(1, dialogs.prompts.size());
  EXPECT_FALSE(screen.syromenigrammi1);
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlDrag, ReleaseWithoutADragChangesNothing) {
  press(90, 0);
  const QImage before = picture();
  release(20, 60);
  EXPECT_EQ(before, picture());
  expectEdges(130, 10, -10);
}

TEST_F(ElSahlDrag, BelowIndex1TheEdgesMoveAndThePictureStays) {
  press(90, 0);
  const QImage before = picture();
  shared.deiktisSahl = 0.5;
  drag({130, 60}, {100, 30});
  expectEdges(100, 30, -10);
  EXPECT_EQ(before, picture());
}

TEST_F(ElSahlDrag, ThePointerIsACrossOverAnEdgeAndWhileOneIsDragged) {
  move(0, 0);
  EXPECT_EQ(1, screen.MousePointer());
  EXPECT_EQ(Qt::ArrowCursor, screen.drawingArea()->cursor().shape());
  move(130, 60);
  EXPECT_EQ(2, screen.MousePointer());
  EXPECT_EQ(Qt::CrossCursor, screen.drawingArea()->cursor().shape());
  move(130, 0);
  EXPECT_EQ(1, screen.MousePointer());
  move(128, -11);
  EXPECT_EQ(2, screen.MousePointer());
  press(130, 60);
  move(300, 300);
  EXPECT_EQ(2, screen.MousePointer());
  release(130, 10);
  for (const double edge : {60.0, -60.0}) {
    press(c.Line1.X1(), edge);
    move(50, edge / 2);
    EXPECT_EQ(2, screen.MousePointer());
    release(50, edge / 2);
    move(0, 0);
    EXPECT_EQ(1, screen.MousePointer());
  }
}

TEST_F(ElSahlDrag, AClosedDiaphragmBeforeTheLensStopsEveryRay) {
  drag({130, 60}, {100, -10});
  EXPECT_EQ(0, rays());
  drag({100, -60}, {100, -110});
  drag({100, 60}, {100, 110});
  EXPECT_GT(rays(), 30);
}

}  // namespace
}  // namespace lensbench
