// Boxes that are set by wheel and keyboard, and the field that opens over them.
#include <gtest/gtest.h>
#include <vector>

#include <QLabel>
#include <QToolTip>

#include "canvas/qt/Contrast.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/TextBox.h"
#include "canvas/qt/ValueBox.h"
#include "tests/support/ByHand.h"

namespace lensbench {
namespace {

class ValueBoxes : public testing::Test {
 protected:
  ValueBoxes() {
    bar.range(0, 500, 40, 100);
    describe(box, "Ακτίνα · Radius", "Η ακτίνα.\nThe radius.");
    Settable settable = valueOfBar(box, bar);
    settable.end = [](double value) {
      return value == 0.0 ? QStringLiteral("Τελειώνει.\nIt ends.") : QString();
    };
    new ValueBox(settable);
    index.range(40, 250, 10, 150);
    describe(label, "Δείκτης · Index", "Ο δείκτης.\nThe index.");
    new ValueBox(valueOfBar(label, index, 0.01));
    form.Show();
    QApplication::processEvents();
    form.activateWindow();
    box.setFocus();
  }
  QString note() { return fieldOn(form)->note().text(); }

  Form form{FormDesign{"kelmo", "", 0, 0, 9000, 6000, white}};
  ScrollBar bar{form, "aktina1", Qt::Horizontal, {0, 0, 2775, 375}};
  TextBox box{form, "Text6", {2775, 0, 1335, 375}};
  ScrollBar index{form, "deiktissahl", Qt::Horizontal, {0, 2280, 2535, 375}};
  Label label{form, "Label1", {3120, 2160, 1575, 735}};
  TextBox elsewhere{form, "Text1", {6000, 0, 1335, 375}};
};

TEST_F(ValueBoxes, MoveTheirBarByArrowAndPageKeys) {
  QTest::keyClick(&box, Qt::Key_Up);
  EXPECT_EQ(bar.Value(), 101);
  QTest::keyClick(&box, Qt::Key_Down);
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(bar.Value(), 99);
  QTest::keyClick(&box, Qt::Key_PageUp);
  EXPECT_EQ(bar.Value(), 139);
  QTest::keyClick(&box, Qt::Key_PageDown);
  EXPECT_EQ(bar.Value(), 99);
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_TRUE(box.isReadOnly());
}

TEST_F(ValueBoxes, MoveTheirBarByTheWheelAsTheBarItselfDoes) {
  for (const int notches : {1, -1, 2, -3}) {
    bar.Value(100);
    turnWheel(bar, notches);
    const int byBar = bar.Value();
    bar.Value(100);
    turnWheel(box, notches);
    EXPECT_EQ(bar.Value(), byBar) << notches;
    EXPECT_NE(bar.Value(), 100) << notches;
  }
  bar.Value(100);
  turnWheel(box, 1, Qt::ControlModifier);
  EXPECT_EQ(bar.Value(), 140);
}

TEST_F(ValueBoxes, TakePartsOfANotchTogether) {
  bar.Value(100);
  for (int i = 0; i < 4; ++i) {
    QWheelEvent part({1, 1}, box.mapToGlobal(QPointF(1, 1)), {}, {0, 30}, Qt::NoButton, {},
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(&box, &part);
    EXPECT_EQ(bar.Value() == 100, i < 3) << i;
  }
}

TEST_F(ValueBoxes, OpenAFieldAtTheFirstDigitAndSetWhatIsEntered) {
  typeInto(form, box, "2");
  ValueField* field = fieldOn(form);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(field->text(), "2");
  EXPECT_TRUE(field->hasFocus());
  EXPECT_EQ(field->mapTo(&form, QPoint()), box.mapTo(&form, QPoint()));
  EXPECT_EQ(field->size(), box.size());
  EXPECT_EQ(note(), "Ακτίνα: 0 έως 500\nRadius: 0 to 500");
  EXPECT_EQ(bar.Value(), 100);
  QTest::keyClicks(field, "50,4");
  EXPECT_EQ(bar.Value(), 100);
  QTest::keyClick(field, Qt::Key_Enter);
  EXPECT_EQ(bar.Value(), 250);
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_TRUE(box.hasFocus());
}

TEST_F(ValueBoxes, MoveTheirBarByTheSidewaysArrowsToo) {
  QTest::keyClick(&box, Qt::Key_Right);
  EXPECT_EQ(bar.Value(), 101);
  QTest::keyClick(&box, Qt::Key_Left);
  QTest::keyClick(&box, Qt::Key_Left);
  EXPECT_EQ(bar.Value(), 99);
  QTest::keyClick(&box, Qt::Key_Right, Qt::ShiftModifier);
  EXPECT_EQ(bar.Value(), 99) << "with Shift they select text";
}

TEST_F(ValueBoxes, OpenAtADigitOrAMinusAndAtNothingElse) {
  for (const char* first : {"-", "−", "0", "9"}) {
    QKeyEvent press(QEvent::KeyPress, 0, {}, QString::fromUtf8(first));
    QApplication::sendEvent(&box, &press);
    ASSERT_NE(fieldOn(form), nullptr) << first;
    EXPECT_EQ(fieldOn(form)->text(), QString::fromUtf8(first));
    QTest::keyClick(fieldOn(form), Qt::Key_Escape);
    EXPECT_EQ(fieldOn(form), nullptr);
  }
  QTest::keyClicks(&box, "a +e.,");
  QTest::keyClick(&box, Qt::Key_1, Qt::ControlModifier);
  QTest::keyClick(&box, Qt::Key_1, Qt::AltModifier);
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_EQ(bar.Value(), 100);
}

TEST_F(ValueBoxes, ReadNumbersAsAnswersAreRead) {
  for (const auto& [typed, value] : std::vector<std::pair<const char*, int>>{{"120", 120},
                                                                             {"1e2", 100},
                                                                             {"0,3e3", 300},
                                                                             {"77°", 77},
                                                                             {"9999", 500},
                                                                             {"1e999", 500}}) {
    enterInto(form, box, typed);
    EXPECT_EQ(bar.Value(), value) << typed;
    EXPECT_EQ(fieldOn(form), nullptr) << typed;
  }
}

TEST_F(ValueBoxes, RefuseWhatIsNoNumberInPlace) {
  typeInto(form, box, "12x");
  ValueField* field = fieldOn(form);
  const QColor calm = field->note().palette().color(QPalette::WindowText);
  QTest::keyClick(field, Qt::Key_Return);
  ASSERT_EQ(fieldOn(form), field);
  EXPECT_EQ(note(),
            "Δεν είναι αριθμός· χρειάζεται ένας από 0 έως 500.\n"
            "Not a number; one from 0 to 500 is needed.");
  EXPECT_EQ(field->accessibleDescription(), note());
  EXPECT_EQ(bar.Value(), 100);
  const QPalette colours = field->note().palette();
  EXPECT_NE(colours.color(QPalette::WindowText), calm);
  EXPECT_GE(contrast(colours.color(QPalette::WindowText), colours.color(QPalette::Base)), 4.5);
  EXPECT_GE(contrast(calm, colours.color(QPalette::Base)), 4.5);
  // The next character takes the place of the text, and the note says the range again.
  QTest::keyClicks(field, "7");
  EXPECT_EQ(field->text(), "7");
  EXPECT_EQ(note(), "Ακτίνα: 0 έως 500\nRadius: 0 to 500");
}

TEST_F(ValueBoxes, ExplainAValueThatEndsTheProgramAndDoNotTakeIt) {
  for (const char* typed : {"0", "-12"}) {
    enterInto(form, box, typed);
    ASSERT_NE(fieldOn(form), nullptr);
    EXPECT_EQ(note(), "Τελειώνει.\nIt ends.");
    EXPECT_EQ(bar.Value(), 100);
    QTest::keyClick(fieldOn(form), Qt::Key_Escape);
  }
  bar.Value(1);
  QTest::keyClick(&box, Qt::Key_Down);
  EXPECT_EQ(bar.Value(), 1);
  EXPECT_EQ(QToolTip::text(), "Τελειώνει.\nIt ends.");
  turnWheel(box, -1);
  EXPECT_EQ(bar.Value(), 1);
}

TEST_F(ValueBoxes, LeaveTheValueAtEscapeAndWhenTheKeyboardGoesElsewhere) {
  typeInto(form, box, "333");
  QTest::keyClick(fieldOn(form), Qt::Key_Escape);
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_TRUE(box.hasFocus());
  typeInto(form, box, "333");
  elsewhere.setFocus();
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_TRUE(elsewhere.hasFocus());
  typeInto(form, box, "333");
  QTest::keyClick(fieldOn(form), Qt::Key_Tab);
  EXPECT_EQ(fieldOn(form), nullptr);
  typeInto(form, box, "333");
  box.move(box.x(), box.y() + 30);
  EXPECT_EQ(fieldOn(form), nullptr);
  EXPECT_EQ(bar.Value(), 100);
}

TEST_F(ValueBoxes, ALabelIsTypedIntoThroughItsBar) {
  typeInto(form, index, "2");
  ValueField* field = fieldOn(form);
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(note(), "Δείκτης: 0.40 έως 2.50\nIndex: 0.40 to 2.50");
  EXPECT_EQ(field->x(), label.mapTo(&form, QPoint()).x());
  EXPECT_LT(field->height(), label.height());
  EXPECT_TRUE(label.rect().translated(label.mapTo(&form, QPoint())).contains(field->geometry()));
  QTest::keyClicks(field, ",03");
  QTest::keyClick(field, Qt::Key_Return);
  EXPECT_EQ(index.Value(), 203);
  EXPECT_TRUE(index.hasFocus());
  // Point and comma belong to the window there.
  QTest::keyClicks(&index, ".,-");
  EXPECT_EQ(fieldOn(form), nullptr);
  turnWheel(label, 1);
  EXPECT_EQ(index.Value(), 206);
}

TEST_F(ValueBoxes, TheNoteStaysInTheWindow) {
  box.move(form.width() - box.width(), form.drawingArea()->height() - box.height());
  typeInto(form, box, "1");
  const QLabel& text = fieldOn(form)->note();
  EXPECT_TRUE(form.rect().contains(text.geometry()));
  EXPECT_FALSE(text.geometry().intersects(fieldOn(form)->geometry()));
}

class Warnings : public ValueBoxes {};

TEST_F(Warnings, AreSaidBelowTheToolTipOfABarAndEdgeIt) {
  describe(bar, "Ακτίνα · Radius", "Αλλάζει.\nChanges.");
  elsewhere.setFocus();
  const QImage calm = bar.grab().toImage();
  bar.Warning("Πρόσεξε.\nMind.", false);
  EXPECT_EQ(bar.toolTip(), "Αλλάζει.\nChanges.\n\nΠρόσεξε.\nMind.");
  EXPECT_EQ(bar.accessibleDescription(), bar.toolTip());
  EXPECT_EQ(bar.grab().toImage(), calm);
  bar.Warning("Κοντά.\nNear.", true);
  EXPECT_EQ(bar.toolTip(), "Αλλάζει.\nChanges.\n\nΚοντά.\nNear.");
  const QColor edge = warningOn(bar.palette().color(QPalette::Window));
  EXPECT_EQ(bar.grab().toImage().pixelColor(0, 5), edge);
  EXPECT_EQ(bar.grab().toImage().pixelColor(bar.width() - 1, bar.height() - 1), edge);
  bar.setFocus();
  EXPECT_EQ(bar.grab().toImage().pixelColor(0, 5), edge);
  elsewhere.setFocus();
  bar.Warning({}, false);
  EXPECT_EQ(bar.toolTip(), "Αλλάζει.\nChanges.");
  EXPECT_EQ(bar.accessibleDescription(), "Αλλάζει.\nChanges.");
  EXPECT_EQ(bar.grab().toImage(), calm);
}

TEST(WarningColour, IsReadOnLightAndDarkBackgrounds) {
  for (const QColor& background : {QColor(Qt::white), QColor(239, 239, 239), QColor(255, 255, 220),
                                   QColor(45, 45, 45), QColor(Qt::black), QColor(27, 30, 32)}) {
    EXPECT_GE(contrast(warningOn(background), background), 4.5) << background.name().toStdString();
  }
  EXPECT_DOUBLE_EQ(contrast(Qt::black, Qt::white), 21.0);
  EXPECT_DOUBLE_EQ(contrast(Qt::white, Qt::black), 21.0);
}

}  // namespace
}  // namespace lensbench
