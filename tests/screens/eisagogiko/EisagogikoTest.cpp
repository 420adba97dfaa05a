// The lens menu, with the real Ibn Sahl screen behind it.
#include <gtest/gtest.h>
#include <memory>

#include <QCoreApplication>
#include <QImage>
#include <QTest>

#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "tests/screens/support/PictureOf.h"
#include "tests/screens/support/TestContext.h"
#include "tests/support/ByHand.h"

namespace lensbench {
namespace {

// The moves to the Ibn Sahl screen are made; all are written down.
class MovesToIbnSahl : public FakeMoves {
 public:
  explicit MovesToIbnSahl(TestContext& t)
      : context_{*this, t.dialogs, t.clock, t.actions, t.shared} {}

  const Context& context() const { return context_; }
  ElSahl& sahl() {
    if (!sahl_) sahl_ = std::make_unique<ElSahl>(context_);
    return *sahl_;
  }
  void openIbnSahl() override {
    FakeMoves::openIbnSahl();
    sahl().prepare();
  }
  void drawIbnSahl() override {
    FakeMoves::drawIbnSahl();
    sahl().drawFan();
  }

 private:
  Context context_;
  std::unique_ptr<ElSahl> sahl_;
};

const std::vector<std::string> opened{"openIbnSahl", "drawIbnSahl"};

class Eisagogiko : public ::testing::Test {
 protected:
  MenuControls& controls() { return menu.controls(); }
  QString label() { return controls().Label1.Caption(); }
  QImage picture() { return moves.sahl().image().copy(); }
  // Whether the Ibn Sahl screen shows the lens of index n with the fan of its first source, and
  // nothing else.
  bool showsLens(double n, bool biconvex) {
    const protosfakos::Asked asked{.amfikyrtos = biconvex,
                                   .deiktisSahl = n,
                                   .rays = protosfakos::Fan{{108, 25}},
                                   .diafragma = {130, 10, -10}};
    const protosfakos::Shown expected{{protosfakos::sceneOf(asked)}};
    return picture() == pictureOf(moves.sahl(), expected);
  }

  TestContext t;
  MovesToIbnSahl moves{t};
  FakeDialogs& dialogs = t.dialogs;
  Shared& shared = t.shared;
  eisagogiko menu{moves.context()};
};

TEST_F(Eisagogiko, StartsAsDesigned) {
  EXPECT_EQ("eisagogiko", menu.objectName());
  EXPECT_EQ("CHOOSE  LENS", menu.Caption());
  EXPECT_EQ(QSize(499, 368), menu.drawingArea()->size());
  const ScrollBar& bar = controls().deiktissahl;
  EXPECT_EQ(100, bar.Min());
  EXPECT_EQ(250, bar.Max());
  EXPECT_EQ(150, bar.Value());
  EXPECT_EQ(20, bar.LargeChange());
  EXPECT_EQ(1, bar.SmallChange());
  EXPECT_EQ("Αμφίκυρτος ΥΠΕΡΒΟΛΙΚΟΣ BICONVEX HYPERBOLIC ", controls().Command1.Caption());
  EXPECT_EQ("Επιπεδόκυρτος ΥΠΕΡΒΟΛΙΚΟΣ PLANE CONVEX HYPERBOLIC", controls().Command2.Caption());
  EXPECT_EQ("ΣΦΑΙΡΙΚΟΙ ΦΑΚΟι SPHERICAL LENSES", controls().Command3.Caption());
}

TEST_F(Eisagogiko, LoadReadsTheIndexAndWritesTheLabel) {
  EXPECT_DOUBLE_EQ(1.5, shared.deiktisSahl.value());
  EXPECT_EQ("INDEX OF REFRACTION Δείκτης Διάθλασης= 1.50", label());
}

TEST_F(Eisagogiko, ChangeWritesTheLabelAndTheIndexAndDrawsNothing) {
  menu.Command1_Click();
  const QImage before = picture();
  controls().deiktissahl.Value(170);
  EXPECT_EQ("INDEX  OF REFRACTION Δείκτης Διάθλασης= 1.70", label());
  EXPECT_DOUBLE_EQ(1.7, shared.deiktisSahl.value());
  EXPECT_EQ(before, picture());
  controls().deiktissahl.Value(1000);
  EXPECT_EQ("INDEX  OF REFRACTION Δείκτης Διάθλασης= 2.50", label());
}

TEST_F(Eisagogiko, TheIndexIsSetByTheWheelOverItsLabelAndByTypingInItsBar) {
  menu.Show();
  menu.activateWindow();
  turnWheel(controls().Label1, 1);
  EXPECT_EQ(153, controls().deiktissahl.Value());
  enterInto(menu, controls().deiktissahl, "1,72");
  EXPECT_EQ(nullptr, fieldOn(menu));
  EXPECT_EQ("INDEX  OF REFRACTION Δείκτης Διάθλασης= 1.72", label());
  EXPECT_DOUBLE_EQ(1.72, shared.deiktisSahl.value());
  enterInto(menu, controls().deiktissahl, "0");
  EXPECT_EQ(100, controls().deiktissahl.Value());
  enterInto(menu, controls().deiktissahl, "2..");
  ASSERT_NE(nullptr, fieldOn(menu));
  EXPECT_TRUE(fieldOn(menu)->note().text().contains("1.00"));
  EXPECT_EQ(100, controls().deiktissahl.Value());
}

TEST_F(Eisagogiko, TheBiconvexButtonOpensAndDrawsTheBiconvexLens) {
  QTest::mouseClick(&controls().Command1, Qt::LeftButton);
  EXPECT_EQ(opened, moves.made);
  EXPECT_TRUE(moves.sahl().isVisible());
  EXPECT_TRUE(shared.amfikyrtosSahl);
  EXPECT_EQ(108, shared.pigiX.value());
  EXPECT_EQ(25, shared.pigiY.value());
  EXPECT_EQ("Αμφίκυρτος φακός του Ιμπν Σαχλ με δύο υπερβολές", moves.sahl().Caption());
  EXPECT_TRUE(showsLens(1.5, true));
}

TEST_F(Eisagogiko, ThePlanoConvexButtonOpensAndDrawsThePlanoConvexLens) {
  shared.amfikyrtosSahl = true;
  shared.onlyWavesAsked = true;
  QTest::mouseClick(&controls().Command2, Qt::LeftButton);
  EXPECT_EQ(opened, moves.made);
  EXPECT_FALSE(shared.amfikyrtosSahl);
  EXPECT_FALSE(shared.onlyWavesAsked);
  EXPECT_EQ("Επιπεδόκυρτος φακός του Ιμπν Σαχλ ", moves.sahl().Caption());
  EXPECT_TRUE(showsLens(1.5, false));
}

TEST_F(Eisagogiko, TheBiconvexButtonLeavesTheWaveOptionFlag) {
  shared.onlyWavesAsked = true;
  menu.Command1_Click();
  EXPECT_TRUE(shared.onlyWavesAsked);
}

TEST_F(Eisagogiko, AButtonClearsThePictureBefore) {
  menu.Command1_Click();
  moves.sahl().Form_MouseDown(1, 0, 60, 80);
  menu.Command2_Click();
  EXPECT_TRUE(showsLens(1.5, false));
}

// Opens the screen, asks for its picture; by then lens and source are settled.
TEST(EisagogikoOrder, TheSourceAndTheLensAreSetBeforeThePictureIsAskedFor) {
  TestContext t;
  class Watching : public FakeMoves {
   public:
    explicit Watching(const Shared& shared) : shared_(shared) {}
    void openIbnSahl() override {
      EXPECT_TRUE(shared_.pigiX.isEmpty());
      FakeMoves::openIbnSahl();
    }
    void drawIbnSahl() override {
      EXPECT_EQ(108, shared_.pigiX.value());
      EXPECT_EQ(25, shared_.pigiY.value());
      EXPECT_TRUE(shared_.amfikyrtosSahl);
      FakeMoves::drawIbnSahl();
    }

   private:
    const Shared& shared_;
  } moves(t.shared);
  eisagogiko menu({moves, t.dialogs, t.clock, t.actions, t.shared});
  menu.Command1_Click();
  EXPECT_EQ(opened, moves.made);
}

TEST_F(Eisagogiko, AButtonResetsAnOpenIbnSahlScreen) {
  menu.Command1_Click();
  ElSahl& sahl = moves.sahl();
  sahl.Form_MouseDown(1, 0, 130, 60);
  sahl.Form_MouseUp(1, 0, 60, 40);
  sahl.Form_MouseDown(1, 0, -50, 60);
  sahl.resize(500, 300);
  QCoreApplication::processEvents();
  menu.Command1_Click();
  EXPECT_EQ(sahl.Width(), sahl.Height());
  EXPECT_EQ(270, sahl.canvas().ScaleWidth());
  EXPECT_EQ(130, sahl.controls().Line1.X1());
  EXPECT_EQ(10, sahl.controls().Line1.Y2());
  EXPECT_EQ(-10, sahl.controls().Line2.Y2());
  EXPECT_EQ(108, shared.pigiX.value());
  EXPECT_TRUE(showsLens(1.5, true));
}

TEST_F(Eisagogiko, TheEndsOfTheScrollBarDrawTheirLenses) {
  for (const int value : {100, 250}) {
    controls().deiktissahl.Value(value);
    for (const bool biconvex : {true, false}) {
      biconvex ? menu.Command1_Click() : menu.Command2_Click();
      EXPECT_TRUE(showsLens(value / 100.0, biconvex)) << value;
    }
  }
  EXPECT_TRUE(dialogs.messages.isEmpty());
}

TEST_F(Eisagogiko, BelowIndex1ShowsTheMessageAndDrawsNothing) {
  menu.Command1_Click();
  const QImage before = picture();
  shared.deiktisSahl = 0.99;
  shared.pigiX = 7;
  for (const auto click : {&eisagogiko::Command1_Click, &eisagogiko::Command2_Click}) {
    dialogs.messages.clear();
    moves.made.clear();
    (menu.*click)();
    EXPECT_EQ(std::vector<std::string>{"openIbnSahl"}, moves.made);
    EXPECT_EQ(QStringList{"`Ακυρος Δείκτης Διάθλασηςgive a bigger value"}, dialogs.messages);
    EXPECT_TRUE(moves.sahl().isVisible());
    EXPECT_EQ(before, picture());
    EXPECT_EQ(7, shared.pigiX.value());
    EXPECT_TRUE(shared.amfikyrtosSahl);
  }
}

TEST_F(Eisagogiko, SphericalLensesLeavesTheMenu) {
  QTest::mouseClick(&controls().Command3, Qt::LeftButton);
  EXPECT_EQ(std::vector<std::string>{"leaveLensMenu"}, moves.made);
}

TEST_F(Eisagogiko, TheCloseBoxLeavesTheMenu) {
  menu.Show();
  menu.close();
  EXPECT_EQ(std::vector<std::string>{"leaveLensMenu"}, moves.made);
  EXPECT_TRUE(menu.isVisible());
}

TEST_F(Eisagogiko, NothingIsClippedOrCovered) {
  MenuControls& c = controls();
  c.deiktissahl.Value(250);
  const QList<QWidget*> all{&c.Command1, &c.Command2, &c.Command3, &c.deiktissahl, &c.Label1};
  EXPECT_TRUE(menu.accessibleName().contains(" · "));
  for (const QWidget* one : all) {
    EXPECT_TRUE(menu.drawingArea()->rect().contains(one->geometry()));
    EXPECT_GE(one->font().pointSizeF(), 9.0);
    EXPECT_TRUE(one->accessibleName().contains(" · "));
    EXPECT_TRUE(one->toolTip().contains('\n'));
    for (const QWidget* other : all) {
      EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()));
    }
  }
  for (const CommandButton* button : {&c.Command1, &c.Command2, &c.Command3}) {
    const QRect text =
        button->fontMetrics().boundingRect(QRect(0, 0, 1000, 1000), 0, button->text());
    EXPECT_LE(text.width(), button->width());
    EXPECT_LE(text.height(), button->height());
  }
  EXPECT_LE(c.Label1.heightForWidth(c.Label1.width()), c.Label1.height());
}

TEST_F(Eisagogiko, TheTabKeyGoesThroughTheControlsInOrder) {
  menu.Show();
  QCoreApplication::processEvents();
  QStringList order;
  const QWidget* widget = &controls().Command1;
  do {
    if ((widget->focusPolicy() & Qt::TabFocus) != 0 && !widget->objectName().isEmpty()) {
      order << widget->objectName();
    }
    widget = widget->nextInFocusChain();
  } while (widget != &controls().Command1);
  EXPECT_EQ((QStringList{"Command1", "Command2", "deiktissahl", "Command3"}), order);
}

}  // namespace
}  // namespace lensbench
