// The value boxes of the workbench by wheel and keyboard, and what its menu says before it ends the
// program.
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>

#include <QMenuBar>

#include "canvas/RuntimeError.h"
#include "tests/screens/kelmo/KelmoTest.h"
#include "tests/support/ByHand.h"

namespace lensbench {
namespace {

class KelmoBoxes : public KelmoTest {
 protected:
  void SetUp() override { screen.activateWindow(); }
  void enter(QWidget& into, const QString& text) { enterInto(screen, into, text); }
  QString note() { return fieldOn(screen)->note().text(); }
};

TEST_F(KelmoBoxes, RadiiCentreAndIndexGoToTheirBars) {
  struct Case {
    QWidget& box;
    ScrollBar& bar;
    const char* typed;
    int value;
  };
  for (const Case& one :
       {Case{c.Text6, c.aktina1, "321", 321}, Case{c.Text6, c.aktina1, "3", 50},
        Case{c.Text5, c.aktina2, "0", 0}, Case{c.Text5, c.aktina2, "999", 500},
        Case{c.Text7, c.kentrokykloy, "44.4", 44}, Case{c.Text7, c.kentrokykloy, "-8", 0},
        Case{c.Text2, c.deiktisdiathlasis, "1,73", 173},
        Case{c.Text2, c.deiktisdiathlasis, "0.2", 40}, Case{c.arvimaton, c.arvimaton, "31", 31}}) {
    enter(one.box, one.typed);
    EXPECT_EQ(one.bar.Value(), one.value) << one.typed;
    EXPECT_EQ(fieldOn(screen), nullptr) << one.typed;
  }
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1 =50");
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 0.40");
  EXPECT_EQ(c.Label3.Caption(), "Πολλαπλασιαστής ακτίνων31");
  enter(c.Text6, "120");
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(KelmoBoxes, AnUnchangedValueLeavesThePicture) {
  clutter();
  const auto before = screen.shown();
  enter(c.Text6, "100");
  EXPECT_TRUE(screen.shown() == before);
}

TEST_F(KelmoBoxes, TheCountGoesToTheNearestThatTheBarGives) {
  const auto count = [&](int spaces) {
    return static_cast<int>(
        std::floor(360.0 / (4.0 * std::atan(1.0) * c.arvimaton.Value() / spaces)));
  };
  for (const int multiplier : {30, 5, 150}) {
    c.arvimaton.Value(multiplier);
    for (const int wanted : {1, 9, 76, 100, 333, 1718, 99999}) {
      enter(c.Text1, QString::number(wanted));
      const int got = count(c.desmi1.Value());
      for (int spaces = 2; spaces <= 150; ++spaces) {
        EXPECT_LE(std::abs(got - wanted), std::abs(count(spaces) - wanted))
            << multiplier << ' ' << wanted << ' ' << spaces;
      }
      EXPECT_EQ(c.Text1.Text(), QString("Number of Rays Αριθμός ακτινών= %1.00").arg(got));
    }
  }
}

TEST_F(KelmoBoxes, ACountThatIsThereStays) {
  c.arvimaton.Value(150);
  // Of the spaces that give as many rays, the ones that were chosen.
  c.desmi1.Value(20);
  enter(c.Text1, "15");
  EXPECT_EQ(c.desmi1.Value(), 20);
}

TEST_F(KelmoBoxes, TheOpeningGoesToBothBladesEvenlyAboutTheirMiddle) {
  enter(c.Text3, "61");
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{0.0, 30.5, -30.5}));
  EXPECT_EQ(c.Text3.Text(), "οπή διαφράγματος =61");
  EXPECT_EQ(c.VScroll1.Value(), -15);
  EXPECT_EQ(c.VScroll2.Value(), 15);
  EXPECT_TRUE(showsSceneOnly());
  // About 50, from where the upper edge is 150 away.
  c.VScroll2.Value(0);
  c.VScroll1.Value(-50);
  enter(c.Text3, "20");
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{0.0, 60.0, 40.0}));
  typeInto(screen, c.Text3, "9");
  EXPECT_TRUE(note().contains("0 έως 300")) << note().toStdString();
  QTest::keyClick(fieldOn(screen), Qt::Key_Escape);
  enter(c.Text3, "1000");
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{0.0, 200.0, -100.0}));
  enter(c.Text3, "-5");
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{0.0, 50.0, 50.0}));
}

TEST_F(KelmoBoxes, TheAbscissaGoesToTheDiaphragmInUnits) {
  openDiaphragm();
  enter(c.Text4, "-123.4");
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{-123.4, 200.0, -200.0}));
  EXPECT_EQ(c.Text4.Text(), "Θέση διαφράγματος-123");
  EXPECT_EQ(c.HScroll1.Value(), -31);
  enter(c.Text4, "4000");
  EXPECT_EQ(blades().X, 400.0);
  EXPECT_TRUE(showsSceneOnly());
}

TEST_F(KelmoBoxes, WheelAndArrowsMoveTheBars) {
  QTest::keyClick(&c.Text5, Qt::Key_Down);
  EXPECT_EQ(c.aktina2.Value(), 89);
  turnWheel(c.Text5, 1);
  EXPECT_EQ(c.aktina2.Value(), 90);
  QTest::keyClick(&c.Text4, Qt::Key_PageUp);
  EXPECT_EQ(c.HScroll1.Value(), 5);
  QTest::keyClick(&c.Text3, Qt::Key_Up);
  EXPECT_EQ(c.VScroll1.Value(), -1);
  EXPECT_EQ(c.VScroll2.Value(), 1);
  QTest::keyClick(&c.Text3, Qt::Key_PageUp);
  EXPECT_EQ(blades(), (poreiaaktinon::Diafragma{20.0, 22.0, -22.0}));
  QTest::keyClick(&c.Text1, Qt::Key_PageDown);
  EXPECT_EQ(c.desmi1.Value(), 10);
  turnWheel(c.Label3, -1);
  EXPECT_EQ(c.arvimaton.Value(), 29);
}

TEST_F(KelmoBoxes, AFieldIsNoControlOfTheDrawingArea) {
  const auto controls = [&] {
    return screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly).size();
  };
  const auto before = controls();
  typeInto(screen, c.Text4, "12");
  EXPECT_EQ(controls(), before);
  giveSize({1500, 1000});
  EXPECT_EQ(fieldOn(screen), nullptr);
}

TEST_F(KelmoBoxes, TheEntryOfTheWavesInTimeWarnsOfTooManyRays) {
  const QString calm = c.kymatachronika.toolTip();
  c.desmi1.Value(150);
  c.arvimaton.Value(12);
  EXPECT_TRUE(c.kymatachronika.toolTip() == calm);
  EXPECT_FALSE(c.kymatachronika.warned());
  c.arvimaton.Value(10);
  EXPECT_TRUE(c.kymatachronika.warned());
  EXPECT_EQ(c.kymatachronika.toolTip(),
            calm +
                "\n\nΤα κύματα στον χρόνο χωρούν 1501 ακτίνες, τώρα είναι 1718: με αυτές το "
                "πρόγραμμα τελειώνει.\n"
                "Waves in time hold 1501 rays, now 1718: with these the program ends.");
  EXPECT_THROW(screen.kymatachronika_Click(), RuntimeError);
  const QImage warned = screen.menuBar()->grab().toImage();
  c.desmi1.Value(131);
  EXPECT_FALSE(c.kymatachronika.warned());
  EXPECT_EQ(c.kymatachronika.toolTip(), calm);
  EXPECT_NO_THROW(screen.kymatachronika_Click());
  c.kymatachronika.Checked(false);
  EXPECT_NE(screen.menuBar()->grab().toImage(), warned);
  EXPECT_FALSE(c.parallilakymata.warned());
}

}  // namespace
}  // namespace lensbench
