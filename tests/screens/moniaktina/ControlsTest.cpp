// The controls of the single-ray screen: design data, looks, words and order.
#include <QApplication>
#include <QRegularExpression>
#include <QtTest/QTest>

#include "tests/screens/moniaktina/MoniaktinaTest.h"

namespace lensbench {
namespace {

class MoniaktinaControlsTest : public MoniaktinaTest {};

void expectPlace(const Place& actual, const Place& expected) {
  const QRect pixels = inPixels(expected);
  EXPECT_EQ(inPixels(actual).topLeft(), pixels.topLeft());
  EXPECT_EQ(inPixels(actual).size(), pixels.size());
}

// A control may be wider than designed, for its text.
void expectAtLeast(const Place& actual, const Place& designed) {
  EXPECT_EQ(actual.left, designed.left);
  EXPECT_EQ(actual.top, designed.top);
  EXPECT_GE(actual.width, designed.width);
  EXPECT_EQ(actual.height, designed.height);
}

TEST_F(MoniaktinaControlsTest, Form) {
  EXPECT_EQ(screen.objectName(), "moniaktina");
  EXPECT_EQ(screen.Caption(), "ΜΙΑ ΑΚΤΙΝΑ");
  EXPECT_EQ(screen.canvas().BackColor(), white);
  EXPECT_EQ(screen.drawingArea()->size(), QSize(442, 215));
  EXPECT_TRUE(screen.AutoRedraw());
  EXPECT_FALSE(screen.canvas().hasUserScale());
  EXPECT_FALSE(screen.isVisible());
}

TEST_F(MoniaktinaControlsTest, ScrollBars) {
  const auto expectBar = [](const ScrollBar& bar, const char* name, Place place, int least,
                            int most, int value, int largeStep) {
    EXPECT_EQ(bar.objectName(), name);
    expectPlace(bar.place(), place);
    EXPECT_EQ(bar.Min(), least) << name;
    EXPECT_EQ(bar.Max(), most) << name;
    EXPECT_EQ(bar.Value(), value) << name;
    EXPECT_EQ(bar.LargeChange(), largeStep) << name;
    EXPECT_EQ(bar.SmallChange(), 1) << name;
    EXPECT_EQ(bar.orientation(), Qt::Horizontal) << name;
  };
  // Flush in rows of 24 pixels, the lowest cut to the window at its left end.
  expectBar(c.aktina1, "aktina1", {0, 360, 2775, 360}, 50, 500, 90, 40);
  expectBar(c.aktina2, "aktina2", {0, 0, 2775, 360}, 0, 500, 100, 1);
  expectBar(c.kentrokykloy, "kentrokykloy", {0, 1080, 2535, 360}, 0, 500, 100, 40);
  expectBar(c.deiktisdiathlasis, "deiktisdiathlasis", {0, 720, 2415, 360}, 40, 250, 150, 10);
}

TEST_F(MoniaktinaControlsTest, TextBoxesShowTheWholeOfTheirTexts) {
  const auto expectBox = [](const TextBox& box, const char* name, Place place, const char* text,
                            const char* widest) {
    EXPECT_EQ(box.objectName(), name);
    expectAtLeast(box.place(), place);
    EXPECT_EQ(box.Text(), text);
    EXPECT_GE(box.width(), box.widthForText(widest)) << name;
    EXPECT_TRUE(box.isReadOnly()) << name;
    EXPECT_GE(box.font().pointSizeF(), 9.0) << name;
  };
  expectBox(c.Text6, "Text6", {2760, 360, 1335, 375}, "Ακτίνα 1 =90", "Ακτίνα 1 =500");
  expectBox(c.Text5, "Text5", {2760, 0, 1335, 375}, "Ακτίνα 2 =100", "Ακτίνα 2 =500");
  expectBox(c.Text7, "Text7", {2520, 1080, 3135, 375}, "Κέντρο δεξιά=100", "Κέντρο δεξιά=500");
  expectBox(c.Text2, "Text2", {2520, 720, 2175, 375}, "Index of Refraction n = 1.50",
            "Index of Refraction n = 2.50");
  EXPECT_EQ(c.Text7.FontName(), "Arial Greek");
  EXPECT_EQ(c.Text7.FontSize(), 8.25);
}

TEST_F(MoniaktinaControlsTest, ButtonStandsClearOfTheTextBoxes) {
  EXPECT_EQ(c.Command1.objectName(), "Command1");
  EXPECT_EQ(c.Command1.Caption(), "Πίσω");
  EXPECT_GE(c.Command1.place().left, 4200.0);
  EXPECT_EQ(c.Command1.place().top, 120.0);
  EXPECT_EQ(c.Command1.place().width, 1335.0);
  EXPECT_EQ(c.Command1.place().height, 495.0);
  for (const QWidget* box : {static_cast<QWidget*>(&c.Text5), static_cast<QWidget*>(&c.Text6),
                             static_cast<QWidget*>(&c.Text2)}) {
    EXPECT_FALSE(box->geometry().intersects(c.Command1.geometry()))
        << box->objectName().toStdString();
  }
}

TEST_F(MoniaktinaControlsTest, SourceAndAim) {
  EXPECT_EQ(c.fos.objectName(), "fos");
  EXPECT_EQ(c.fos.Left(), 1080.0);
  EXPECT_EQ(c.fos.Top(), 2160.0);
  EXPECT_EQ(c.fos.Width(), 135.0);
  EXPECT_EQ(c.fos.Height(), 135.0);
  EXPECT_EQ(c.fos.BorderColor(), RGB(255, 0, 0));
  EXPECT_EQ(c.fos.FillColor(), RGB(255, 128, 0));
  EXPECT_EQ(c.fos.FillStyle(), FillStyle::Solid);
  EXPECT_TRUE(c.fos.Visible());
  EXPECT_FALSE(c.aim.Visible());
}

TEST_F(MoniaktinaControlsTest, TabOrder) {
  open();
  screen.activateWindow();
  c.Text6.setFocus();
  for (const char* name : {"aktina1", "Text5", "aktina2", "Text2", "deiktisdiathlasis", "Command1",
                           "Text7", "kentrokykloy"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
  }
  // What can be taken on the picture, and on to the first control.
  for (const Thing& thing : screen.things()) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), screen.drawingArea());
    ASSERT_TRUE(screen.thingFocus().thing());
    EXPECT_EQ(screen.thingFocus().thing()->id, thing.id);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &c.Text6);
}

TEST_F(MoniaktinaControlsTest, EveryControlSaysInTwoLanguagesWhatItIsAndDoes) {
  const QRegularExpression greek("[\\x{0370}-\\x{03FF}]{3}");
  const QRegularExpression english("[a-z]{3}");
  int described = 0;
  for (const QWidget* control :
       screen.drawingArea()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
    const std::string name = control->objectName().toStdString();
    for (const QString& words : {control->accessibleName(), control->toolTip()}) {
      EXPECT_TRUE(words.contains(greek)) << name;
      EXPECT_TRUE(words.contains(english)) << name;
    }
    ++described;
  }
  EXPECT_EQ(described, 9);
  EXPECT_TRUE(screen.accessibleName().contains(greek));
  EXPECT_TRUE(screen.accessibleName().contains(english));
}

}  // namespace
}  // namespace lensbench
