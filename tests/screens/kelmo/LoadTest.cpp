// The workbench as it opens: texts, ranges, names, order of the controls, shapes and timers.
#include <QMenuBar>
#include <QTest>

#include "optics/poreiaaktinon/Numbers.h"
#include "tests/docs/Workbench.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class LoadTest : public KelmoTest {
 protected:
  struct Range {
    const ScrollBar& bar;
    int least, most, largeStep, value;
    Qt::Orientation orientation;
  };
};

TEST_F(LoadTest, TheFormHasItsNameCaptionAndWhiteBackground) {
  EXPECT_EQ(screen.objectName(), "kelmo");
  EXPECT_EQ(screen.Caption(), "SPHERICAL  LENSES");
  EXPECT_EQ(painted(screen.canvas().BackColor()), white);
  EXPECT_TRUE(screen.AutoRedraw());
}

TEST_F(LoadTest, TheLensIsThatOfThePageOnPhysics) {
  EXPECT_EQ(screen.fakos(), poreiaaktinon::openingLens);
  EXPECT_EQ(screen.n(), poreiaaktinon::openingIndex);
  EXPECT_DOUBLE_EQ(screen.vima(), poreiaaktinon::openingStep);
}

TEST_F(LoadTest, TextsAreThoseOfTheLoad) {
  EXPECT_EQ(c.Text1.Text(), "Number of Rays Αριθμός ακτινών= 76.00");
  EXPECT_EQ(c.Text2.Text(), "Index of Refraction Δείκτης Διάθλασης= 1.50");
  EXPECT_EQ(c.Text3.Text(), "οπή διαφράγματος =0");
  EXPECT_EQ(c.Text4.Text(), "Θέση διαφράγματος0");
  EXPECT_EQ(c.Text5.Text(), "Ακτίνα2=90");
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1=100");
  EXPECT_EQ(c.Text7.Text(), "Κέντρο δεξί κύκλου=20");
  EXPECT_EQ(c.Label3.Caption(), "Πολλαπλασιαστής ακτίνων30");
  EXPECT_EQ(c.Check1.Caption(), "SHOW WAVES AND RAYS");
  EXPECT_EQ(c.Check2.Caption(), "SHOW ONLY WAVES");
  EXPECT_EQ(c.Label1.Caption(),
            "ΜΠΟΡΕΙΣ ΝΑ ΔΗΜΙΟΥΡΓΗΣΕΙΣ ΜΙΑ ΔΕΣΜΗ ΑΚΤΙΝΩΝ ΠΑΤΩΝΤΑΣ ΤΟ SHIFT KAI ΤΟ ΑΡΙΣΤΕΡΟ "
            "ΠΛΗΚΤΡΟ ΤΟΥ ΠΟΝΤΙΚΟΥ PRESS SHIFT AND MOUSE TO HAVE A BUNDLE OF RAYS");
  EXPECT_EQ(c.Label2.Caption(),
            "ΜΠΟΡΕΙΣ ΝΑ ΜΕΤΑΚΙΝΗΣΕΙΣ ΤΑ ΔΙΑΦΡΑΓΜΑΤΑ ΚΑΙ ΤΑ ΚΕΝΤΡΑ ΤΩΝ ΚΥΚΛΩΝ ΜΕ ΤΟ ΠΟΝΤΙΚΙ MOVE  "
            "THE DIAPHRAGM WITH MOUSE");
}

TEST_F(LoadTest, ScrollBarsHaveTheirRangesStepsAndValues) {
  const Range ranges[] = {
      {c.aktina1, 50, 500, 40, 100, Qt::Horizontal},
      {c.aktina2, 0, 500, 1, 90, Qt::Horizontal},
      {c.kentrokykloy2, -500, 0, 40, -50, Qt::Horizontal},
      {c.kentrokykloy, 0, 500, 40, 20, Qt::Horizontal},
      {c.deiktisdiathlasis, 40, 250, 10, 150, Qt::Horizontal},
      {c.desmi1, 2, 150, 10, 20, Qt::Horizontal},
      {c.arvimaton, 5, 150, 1, 30, Qt::Horizontal},
      {c.HScroll1, -100, 100, 5, 0, Qt::Horizontal},
      {c.VScroll1, -100, 0, 10, 0, Qt::Vertical},
      {c.VScroll2, 0, 100, 10, 0, Qt::Vertical},
  };
  for (const Range& r : ranges) {
    SCOPED_TRACE(r.bar.objectName().toStdString());
    EXPECT_EQ(r.bar.Min(), r.least);
    EXPECT_EQ(r.bar.Max(), r.most);
    EXPECT_EQ(r.bar.LargeChange(), r.largeStep);
    EXPECT_EQ(r.bar.SmallChange(), 1);
    EXPECT_EQ(r.bar.Value(), r.value);
    EXPECT_EQ(r.bar.orientation(), r.orientation);
  }
}

TEST_F(LoadTest, ArrowAndPageKeysMoveBySmallAndLargeStep) {
  QTest::keyClick(&c.aktina1, Qt::Key_Right);
  EXPECT_EQ(c.aktina1.Value(), 101);
  QTest::keyClick(&c.aktina1, Qt::Key_PageUp);
  EXPECT_EQ(c.aktina1.Value(), 141);
  EXPECT_EQ(c.Text6.Text(), "Ακτίνα1 =141");
}

TEST_F(LoadTest, EveryObjectGoesByItsName) {
  for (const char* name :
       {"aktina1",    "aktina2",   "kentrokykloy",    "kentrokykloy2",  "deiktisdiathlasis",
        "desmi1",     "arvimaton", "HScroll1",        "VScroll1",       "VScroll2",
        "Check1",     "Check2",    "Text1",           "Text2",          "Text3",
        "Text4",      "Text5",     "Text6",           "Text7",          "Label1",
        "Label2",     "Label3",    "Line1",           "Line2",          "pigi",
        "Shape1",     "Shape2",    "Timer1",          "Timer2",         "singleray",
        "EPANALIPSI", "SAHLIC",    "parallilakymata", "kymatachronika", "TELIOMA"}) {
    EXPECT_EQ(screen.findChildren<QObject*>(name).size(), 1) << name;
  }
}

TEST_F(LoadTest, MenuEntriesStandInTheirOrderWithTheirCaptions) {
  const QList<QAction*> entries = screen.menuBar()->actions();
  const std::pair<const char*, const char*> expected[] = {
      {"singleray", "AKTINA RAY"},
      {"EPANALIPSI", "// BUNDLE  DESMH"},
      {"SAHLIC", "IBN SAHL"},
      {"parallilakymata", "// WAVES  KYMATA"},
      {"kymatachronika", "WAVES IN  TIME  XPONIKA"},
      {"TELIOMA", "END"}};
  ASSERT_EQ(entries.size(), 6);
  for (qsizetype i = 0; i < entries.size(); ++i) {
    EXPECT_EQ(entries[i]->objectName(), expected[i].first);
    EXPECT_EQ(entries[i]->text(), expected[i].second);
    EXPECT_TRUE(entries[i]->isEnabled());
  }
  EXPECT_FALSE(c.parallilakymata.Checked());
  EXPECT_FALSE(c.kymatachronika.Checked());
}

TEST_F(LoadTest, FontsAreGivenByName) {
  for (const TextBox* box : {&c.Text1, &c.Text2, &c.Text3, &c.Text4}) {
    EXPECT_EQ(box->FontName(), "Times New Roman Greek") << box->objectName().toStdString();
  }
  picture();
  EXPECT_EQ(screen.canvas().FontName(), "Arial");
}

TEST_F(LoadTest, NoControlTextIsTooSmallAndNoTextBoxClipsItsText) {
  for (const TextBox* box :
       {&c.Text1, &c.Text2, &c.Text3, &c.Text4, &c.Text5, &c.Text6, &c.Text7}) {
    SCOPED_TRACE(box->objectName().toStdString());
    EXPECT_TRUE(box->isReadOnly());
    EXPECT_GE(box->font().pointSizeF(), 9.0);
    EXPECT_GE(box->width(), box->widthForText(box->Text()));
  }
}

TEST_F(LoadTest, EveryControlSaysInTwoLanguagesWhatItIsAndDoes) {
  const auto greek = [](const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.script() == QChar::Script_Greek; });
  };
  const auto latin = [](const QString& text) {
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.script() == QChar::Script_Latin; });
  };
  std::vector<const QWidget*> controls;
  for (const QWidget* w :
       screen.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly)) {
    if (w->focusPolicy() & Qt::TabFocus) controls.push_back(w);
  }
  EXPECT_EQ(controls.size(), 19U);  // ten scroll bars, seven text boxes, two check boxes
  for (const QWidget* w : controls) {
    SCOPED_TRACE(w->objectName().toStdString());
    EXPECT_TRUE(greek(w->accessibleName()) && latin(w->accessibleName()));
    EXPECT_TRUE(greek(w->toolTip()) && latin(w->toolTip()));
  }
  for (const QAction* entry : screen.menuBar()->actions()) {
    EXPECT_TRUE(greek(entry->toolTip()) && latin(entry->toolTip()))
        << entry->objectName().toStdString();
  }
}

TEST_F(LoadTest, TheTabKeyWalksThroughTheControlsOnceEach) {
  QStringList order;
  for (const QWidget* w = &c.aktina1; order.isEmpty() || w != &c.aktina1;
       w = w->nextInFocusChain()) {
    if (w->parentWidget() == screen.drawingArea() && (w->focusPolicy() & Qt::TabFocus)) {
      order << w->objectName();
    }
  }
  EXPECT_EQ(order.join(' '),
            "aktina1 Text6 kentrokykloy2 aktina2 Text5 kentrokykloy Text7 deiktisdiathlasis Text2 "
            "desmi1 Text1 arvimaton Check1 Check2 VScroll1 VScroll2 HScroll1 Text3 Text4");
}

TEST_F(LoadTest, TheScreenStateIsReadFromTheControls) {
  EXPECT_EQ(screen.R1(), 100.0);
  EXPECT_EQ(screen.R2(), 90.0);
  EXPECT_EQ(screen.xc1(), -50.0);
  EXPECT_EQ(screen.xc2(), 20.0);
  EXPECT_EQ(screen.n(), 1.5);
  EXPECT_DOUBLE_EQ(screen.vima(), poreiaaktinon::pi * 30.0 / 20.0);
  EXPECT_EQ(screen.xpigi(), -200.0);
  EXPECT_EQ(screen.ypigi(), 0.0);
  EXPECT_EQ(screen.gonia.value(), 0.0);
  EXPECT_FALSE(shared.desmiMode);
}

TEST_F(LoadTest, TheSourceMarkerStandsWithItsCornerOnTheSource) {
  EXPECT_EQ(c.pigi.Left(), -200.0);
  EXPECT_EQ(c.pigi.Top(), 0.0);
  EXPECT_TRUE(c.pigi.Visible());
  EXPECT_FALSE(c.Shape1.Visible());
  EXPECT_FALSE(c.Shape2.Visible());
  // 135 twips are 9 pixels, 4.5 units here.
  for (const Shape* marker : {&c.Shape1, &c.Shape2}) {
    EXPECT_NEAR(marker->Width(), 4.5, 1e-9);
    EXPECT_NEAR(marker->Height(), 4.5, 1e-9);
  }
}

TEST_F(LoadTest, TheDiaphragmStandsClosedOnTheVerticalThroughTheCentre) {
  for (const LineControl* blade : {&c.Line1, &c.Line2}) {
    EXPECT_EQ(blade->BorderColor(), RGB(100, 100, 0));
    EXPECT_EQ(blade->BorderWidth(), 4);
    EXPECT_NEAR(blade->X1(), 0.0, 1e-9);
    EXPECT_NEAR(blade->X2(), 0.0, 1e-9);
    EXPECT_NEAR(blade->Y2(), 0.0, 1e-9);
  }
  EXPECT_NEAR(c.Line1.Y1(), 200.0, 1e-9);
  EXPECT_NEAR(c.Line2.Y1(), -200.0, 1e-9);
}

TEST_F(LoadTest, NoTimerTicks) {
  EXPECT_TRUE(c.Timer1.Enabled());
  EXPECT_FALSE(c.Timer2.Enabled());
  EXPECT_EQ(c.Timer1.Interval(), 0);
  EXPECT_EQ(c.Timer2.Interval(), 0);
  EXPECT_FALSE(tick(c.Timer1));
  EXPECT_FALSE(tick(c.Timer2));
}

TEST_F(LoadTest, TheLensSceneIsDrawn) {
  EXPECT_TRUE(showsSceneOnly());
  EXPECT_EQ(pixelAt(-30.0, 20.0), RGB(220, 220, 195));  // glass
  EXPECT_EQ(pixelAt(300.0, 150.0), white);
}

TEST_F(LoadTest, NothingIsShownAsAMessageAndNoMoveIsMade) {
  EXPECT_TRUE(dialogs.messages.isEmpty());
  EXPECT_TRUE(moves.made.empty());
}

}  // namespace
}  // namespace lensbench
