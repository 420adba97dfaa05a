#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

#include <QAccessible>
#include <QApplication>
#include <QMenuBar>
#include <QStyleHints>
#include <QTest>

#include "canvas/qt/CheckBox.h"
#include "canvas/qt/CommandButton.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/OptionButton.h"
#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/TextBox.h"

namespace lensbench {
namespace {

const FormDesign design{"kelmo", "", 0, 0, 9000, 6000, white};

class Controls : public testing::Test {
 protected:
  Form form{design};
};

TEST_F(Controls, StandAtTheirDesignedPlacesUnderTheirNames) {
  const ScrollBar bar(form, "aktina1", Qt::Horizontal, {0, 360, 2775, 375});
  const TextBox text(form, "Text6", {2760, 360, 1335, 375});
  EXPECT_EQ(bar.objectName(), "aktina1");
  EXPECT_EQ(bar.geometry(), QRect(0, 24, 185, 25));
  EXPECT_EQ(bar.parentWidget(), form.drawingArea());
  EXPECT_EQ(text.geometry(), QRect(184, 24, 89, 25));
  EXPECT_EQ(form.findChild<QWidget*>("Text6"), &text);
}

TEST_F(Controls, AScrollBarFiresChangeOncePerNewValue) {
  ScrollBar bar(form, "deiktissahl", Qt::Horizontal, {0, 0, 2535, 375});
  std::vector<int> told;
  bar.Min(100);
  bar.Max(250);
  QObject::connect(&bar, &ScrollBar::Change, [&] { told.push_back(bar.Value()); });
  bar.Value(150);
  bar.Value(150);
  bar.Value(400);
  EXPECT_EQ(told, (std::vector<int>{150, 250}));
  bar.LargeChange(20);
  bar.SmallChange(1);
  EXPECT_EQ(bar.LargeChange(), 20);
  QTest::keyClick(&bar, Qt::Key_PageDown);
  EXPECT_EQ(bar.Value(), 230);
  QTest::keyClick(&bar, Qt::Key_Left);
  EXPECT_EQ(bar.Value(), 229);
  EXPECT_EQ(told.size(), 4u);
  EXPECT_EQ(bar.Min(), 100);
  EXPECT_EQ(bar.Max(), 250);
}

TEST_F(Controls, AScrollBarReportsWhileItIsDragged) {
  ScrollBar bar(form, "HScroll1", Qt::Horizontal, {0, 0, 9000, 300});
  bar.Min(-100);
  bar.Max(100);
  form.Show();
  int told = 0;
  QObject::connect(&bar, &ScrollBar::Change, [&] { ++told; });
  const QPoint thumb = bar.rect().center();
  QTest::mousePress(&bar, Qt::LeftButton, {}, thumb);
  for (int i = 1; i <= 5; ++i) QTest::mouseMove(&bar, thumb + QPoint(20 * i, 0));
  EXPECT_GE(told, 4);
  EXPECT_GT(bar.Value(), 0);
  QTest::mouseRelease(&bar, Qt::LeftButton, {}, thumb + QPoint(100, 0));
}

TEST_F(Controls, AVerticalScrollBarGrowsDownwards) {
  ScrollBar bar(form, "VScroll1", Qt::Vertical, {0, 0, 300, 3000});
  bar.Min(-100);
  bar.Max(0);
  bar.Value(-50);
  QTest::keyClick(&bar, Qt::Key_Down);
  EXPECT_EQ(bar.Value(), -49);
}

TEST_F(Controls, ATextBoxShowsItsTextAndCannotBeWrittenIn) {
  TextBox box(form, "Text2", {0, 0, 2175, 375});
  box.Text("Index of Refraction n = 1.50");
  QTest::keyClicks(&box, "99");
  EXPECT_EQ(box.Text(), "Index of Refraction n = 1.50");
  EXPECT_EQ(box.cursorPosition(), 0);
  EXPECT_GT(box.widthForText("Index of Refraction n = 1.50"),
            box.fontMetrics().horizontalAdvance("Index of Refraction n = 1.50"));
}

TEST_F(Controls, AWidthForATextShowsTheWholeOfIt) {
  TextBox box(form, "Text2", {0, 0, 300, 375});
  for (const char* words : {"Text2 =", "Index of Refraction Δείκτης Διάθλασης= 1.50"}) {
    box.Text(words);
    box.resize(box.widthForText(words), box.height());
    // A text that does not fit is scrolled when the cursor goes to its end.
    const auto firstSeen = [&] {
      box.end(false);
      box.grab();
      return box.cursorPositionAt({4, box.height() / 2});
    };
    EXPECT_EQ(firstSeen(), 0);
    box.resize(box.width() - 12, box.height());
    EXPECT_GT(firstSeen(), 0);
  }
}

TEST_F(Controls, ALabelWrapsItsCaption) {
  Label label(form, "Label1", {0, 0, 1575, 735});
  label.Caption("Index of Refraction n=1.50");
  EXPECT_EQ(label.Caption(), "Index of Refraction n=1.50");
  EXPECT_TRUE(label.wordWrap());
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
}

TEST_F(Controls, ACommandButtonClicksByMouseAndKeyboard) {
  CommandButton button(form, "Command1", {4200, 120, 1335, 495});
  button.Caption("Πίσω");
  form.Show();
  int clicks = 0;
  QObject::connect(&button, &CommandButton::Click, [&] { ++clicks; });
  QTest::mouseClick(&button, Qt::LeftButton);
  QTest::keyClick(&button, Qt::Key_Space);
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(button.Caption(), "Πίσω");
  EXPECT_EQ(button.text(), "Πίσω");
}

TEST_F(Controls, ALongCaptionWrapsAndTheButtonGrowsUntilNothingIsClipped) {
  CommandButton button(form, "Command2", {0, 0, 1500, 300});
  button.FontName("Times New Roman");
  button.Caption("Επιπεδόκυρτος ΥΠΕΡΒΟΛΙΚΟΣ & PLANE CONVEX HYPERBOLIC ");
  EXPECT_EQ(button.Caption(), "Επιπεδόκυρτος ΥΠΕΡΒΟΛΙΚΟΣ & PLANE CONVEX HYPERBOLIC ");
  const QStringList lines = button.text().split('\n');
  EXPECT_GT(lines.size(), 2);
  for (const QString& line : lines) {
    EXPECT_LE(button.fontMetrics().horizontalAdvance(line.trimmed()), 100);
  }
  EXPECT_EQ(button.width(), 100);
  EXPECT_GE(button.height(), lines.size() * button.fontMetrics().lineSpacing());
}

TEST_F(Controls, ACaptionKeepsEveryBlankAndItsWordsStayWhole) {
  CommandButton button(form, "Command1", {0, 0, 2220, 855});
  for (const char* caption :
       {"Αμφίκυρτος ΥΠΕΡΒΟΛΙΚΟΣ BICONVEX HYPERBOLIC ", "SPHERICAL  LENSES", "  A  B & C   ", " ",
        "WAVES IN  TIME  XPONIKA AND  A  LONG  CAPTION  MORE"}) {
    button.Caption(caption);
    EXPECT_EQ(button.Caption(), caption);
    EXPECT_EQ(button.accessibleName(), caption);
    const QString shown = button.text().replace("&&", "&");
    EXPECT_EQ(QString(shown).remove('\n'), caption);
    const QStringList lines = shown.split('\n');
    for (const QString& line : lines.mid(1)) {
      EXPECT_FALSE(line.startsWith(' ')) << shown.toStdString();
    }
    for (const QString& line : lines.mid(0, lines.size() - 1)) {
      EXPECT_TRUE(line.endsWith(' ')) << shown.toStdString();
    }
  }
}

TEST_F(Controls, ACheckBoxFiresClickByHandOnly) {
  CheckBox box(form, "Check1", {0, 0, 3000, 375});
  box.Caption("SHOW WAVES AND RAYS");
  form.Show();
  int clicks = 0;
  QObject::connect(&box, &CheckBox::Click, [&] { ++clicks; });
  EXPECT_FALSE(box.Value());
  box.Value(true);
  EXPECT_TRUE(box.Value());
  EXPECT_EQ(clicks, 0);
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_FALSE(box.Value());
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(box.Caption(), "SHOW WAVES AND RAYS");
}

TEST_F(Controls, OneOptionAtMostIsSelectedAndCodeMayClearIt) {
  OptionButton rays(form, "onlyrays", {0, 0, 1500, 375});
  OptionButton both(form, "RAYSANDWAVES", {1500, 0, 1500, 375});
  rays.Caption("Only Rays");
  form.Show();
  int clicks = 0;
  QObject::connect(&rays, &OptionButton::Click, [&] { ++clicks; });
  both.Value(true);
  QTest::mouseClick(&rays, Qt::LeftButton, {}, {8, 12});
  EXPECT_TRUE(rays.Value());
  EXPECT_FALSE(both.Value());
  EXPECT_EQ(clicks, 1);
  rays.Value(false);
  EXPECT_FALSE(rays.Value());
  both.Value(true);
  rays.Value(true);
  EXPECT_FALSE(both.Value());
  EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, AMenuEntryStandsInTheBarAndClicks) {
  MenuEntry waves(form, "parallilakymata", "// WAVES & KYMATA");
  int clicks = 0;
  QObject::connect(&waves, &MenuEntry::Click, [&] { ++clicks; });
  form.Show();
  QTest::qWait(20);
  ASSERT_EQ(form.menuBar()->actions().size(), 1);
  EXPECT_EQ(waves.objectName(), "parallilakymata");
  EXPECT_EQ(waves.text(), "// WAVES && KYMATA");
  EXPECT_EQ(waves.Caption(), "// WAVES & KYMATA");
  QTest::mouseClick(form.menuBar(), Qt::LeftButton, {},
                    form.menuBar()->actionGeometry(&waves).center());
  EXPECT_EQ(clicks, 1);
}

TEST_F(Controls, TheCheckMarkOfAMenuEntryIsSeenAndOnlyCodeSetsIt) {
  MenuEntry waves(form, "parallilakymata", "WAVES");
  EXPECT_FALSE(waves.Checked());
  waves.Checked(true);
  EXPECT_TRUE(waves.Checked());
  EXPECT_EQ(waves.Caption(), "WAVES");
  waves.trigger();
  EXPECT_TRUE(waves.Checked());
}

TEST_F(Controls, TheCheckMarkOfAMenuEntryHasRoomOfItsOwn) {
  MenuEntry before(form, "singleray", "AKTINA RAY");
  MenuEntry waves(form, "parallilakymata", "// WAVES  KYMATA");
  MenuEntry after(form, "TELIOMA", "END");
  waves.Checked(false);
  form.Show();
  QMenuBar& bar = *form.menuBar();
  const auto places = [&] {
    QList<QRect> all;
    for (QAction* entry : bar.actions()) all << bar.actionGeometry(entry);
    return all;
  };
  const auto captionOf = [&] {
    // What lies right of the room for the mark.
    const int room = bar.fontMetrics().horizontalAdvance("✓ ");
    return bar.grab(bar.actionGeometry(&waves).adjusted(room + 3, 0, 0, 0)).toImage();
  };
  const QList<QRect> free = places();
  const QImage unmarked = bar.grab().toImage();
  const QImage caption = captionOf();
  waves.Checked(true);
  EXPECT_EQ(places(), free);
  EXPECT_EQ(waves.text(), "// WAVES  KYMATA");
  EXPECT_EQ(captionOf(), caption);
  EXPECT_NE(bar.grab().toImage(), unmarked);
  waves.Checked(false);
  EXPECT_EQ(bar.grab().toImage(), unmarked);
  EXPECT_GT(bar.actionGeometry(&waves).width() - bar.fontMetrics().horizontalAdvance(waves.text()),
            bar.actionGeometry(&after).width() - bar.fontMetrics().horizontalAdvance("END"));
}

TEST_F(Controls, AltAndF10ShowWhereTheKeyboardIsInTheMenuBar) {
  MenuEntry waves(form, "parallilakymata", "WAVES");
  MenuEntry end(form, "TELIOMA", "END");
  waves.Checked(true);
  ScrollBar bar(form, "aktina1", Qt::Horizontal, {0, 0, 1500, 300});
  form.Show();
  form.activateWindow();
  bar.setFocus();
  QApplication::processEvents();
  QMenuBar& menu = *form.menuBar();
  const auto highlighted = [&](QAction& entry) {
    const QImage seen = menu.grab(menu.actionGeometry(&entry)).toImage();
    return seen.pixelColor(2, seen.height() / 2) == menu.palette().color(QPalette::Highlight);
  };
  EXPECT_FALSE(highlighted(waves));
  for (const Qt::Key key : {Qt::Key_Alt, Qt::Key_F10}) {
    QTest::keyClick(&bar, key);
    ASSERT_TRUE(menu.hasFocus()) << key;
    EXPECT_TRUE(highlighted(waves)) << key;
    EXPECT_FALSE(highlighted(end)) << key;
    QTest::keyClick(&menu, Qt::Key_Right);
    EXPECT_FALSE(highlighted(waves)) << key;
    EXPECT_TRUE(highlighted(end)) << key;
    QTest::keyClick(&menu, Qt::Key_Escape);
    EXPECT_TRUE(bar.hasFocus()) << key;
    EXPECT_FALSE(highlighted(end)) << key;
    // A command gives the keyboard back too.
    QTest::keyClick(&bar, key);
    QTest::keyClick(&menu, Qt::Key_Return);
    EXPECT_TRUE(bar.hasFocus()) << key;
  }
}

TEST_F(Controls, TheCheckMarkOfAMenuEntryIsToldToThoseWhoCannotSeeIt) {
  MenuEntry waves(form, "parallilakymata", "WAVES");
  MenuEntry end(form, "TELIOMA", "END");
  const auto told = [&](int entry) {
    const auto* bar = QAccessible::queryAccessibleInterface(form.menuBar());
    return bar->child(entry)->state();
  };
  waves.Checked(false);
  EXPECT_TRUE(told(0).checkable);
  EXPECT_FALSE(told(0).checked);
  EXPECT_FALSE(told(1).checkable);

  bool seenByHandler = true;
  QObject::connect(&waves, &MenuEntry::Click, [&] { seenByHandler = waves.isChecked(); });
  waves.trigger();
  EXPECT_FALSE(seenByHandler);
  EXPECT_FALSE(told(0).checked);
  waves.Checked(true);
  EXPECT_TRUE(told(0).checked);
  waves.trigger();
  EXPECT_TRUE(seenByHandler);
  EXPECT_TRUE(told(0).checked);

  QObject::connect(&waves, &MenuEntry::Click, [&] { waves.Checked(false); });
  waves.trigger();
  EXPECT_FALSE(told(0).checked);
}

TEST_F(Controls, FontNamesResolveToInstalledFacesAndTextIsNeverTiny) {
  TextBox box(form, "Text7", {0, 0, 3135, 375});
  box.FontName("Times New Roman Greek");
  box.FontSize(7.5);
  EXPECT_EQ(box.FontName(), "Times New Roman Greek");
  EXPECT_EQ(box.FontSize(), 7.5);
  EXPECT_GE(box.font().pointSizeF(), 9.0);
  EXPECT_TRUE(box.font().family().contains("Serif"));
  box.FontName("Symbol");
  EXPECT_FALSE(box.font().family().contains("Symbol"));
  box.FontSize(13);
  EXPECT_EQ(box.font().pointSizeF(), 13.0);
  for (const char* name : {"Arial", "Arial Greek", "Times New Roman", "Symbol", ""}) {
    const QFontMetrics metrics(controlFont(name, 10));
    for (const QChar letter : QStringLiteral("ΑΩάώίϊσςφF1")) {
      EXPECT_TRUE(metrics.inFont(letter)) << name;
    }
  }
}

TEST_F(Controls, TextStandsOnTheBackgroundOfTheForm) {
  Label label(form, "label", {0, 0, 3000, 375});
  CheckBox check(form, "check", {0, 375, 3000, 375});
  OptionButton option(form, "option", {0, 750, 3000, 375});
  form.canvas().DrawWidth(100);
  form.canvas().Line(0, 0, 9000, 6000, RGB(255, 0, 0));
  const QImage seen = form.drawingArea()->grab().toImage();
  for (const QWidget* control : std::initializer_list<QWidget*>{&label, &check, &option}) {
    EXPECT_EQ(seen.pixelColor(control->geometry().bottomRight()), QColor(Qt::white))
        << control->objectName().toStdString();
  }
}

// The desktop's colours, for as long as it lives.
class Desktop {
 public:
  Desktop(const QColor& plates, const QColor& window, const QColor& text) {
    QPalette colours(plates, window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      colours.setColor(role, text);
    }
    QApplication::setPalette(colours);
  }
  ~Desktop() { QApplication::setPalette(before_); }
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

 private:
  QPalette before_ = QApplication::palette();
};

const QColor grey(239, 239, 239);
const QColor darkGrey(50, 50, 50);

// The controls that stand on the background of their form.
struct PlainControls {
  explicit PlainControls(const FormDesign& formDesign) : form(formDesign) {
    label.Caption("Πολλαπλασιαστής");
    check.Caption("SHOW ONLY WAVES");
    check.Value(true);
    option.Caption("Only Rays");
    option.Value(true);
  }
  QImage picture() { return form.drawingArea()->grab(QRect(0, 0, 250, 80)).toImage(); }

  Form form;
  Label label{form, "label", {0, 0, 3000, 375}};
  CheckBox check{form, "check", {0, 375, 3000, 375}};
  OptionButton option{form, "option", {0, 750, 3000, 375}};
};

TEST(DesktopColours, OnAWhiteAreaWordsAndMarksLookTheSameWhateverTheDesktop) {
  const auto seen = [](const Desktop&) { return PlainControls(design).picture(); };
  const QImage light = seen({grey, grey, Qt::black});
  EXPECT_EQ(light.pixelColor(249, 40), QColor(Qt::white));
  EXPECT_EQ(seen({darkGrey, darkGrey, Qt::white}), light);
  EXPECT_EQ(seen({QColor(49, 54, 59), QColor(35, 38, 41), QColor(239, 240, 241)}), light);
}

TEST(DesktopColours, OfHighContrastStandOnPlates) {
  const Desktop desktop(Qt::black, Qt::black, Qt::white);
  PlainControls controls(design);
  const QImage seen = controls.picture();
  for (const QWidget* control :
       std::initializer_list<QWidget*>{&controls.label, &controls.check, &controls.option}) {
    EXPECT_EQ(seen.pixelColor(control->geometry().bottomRight()), QColor(Qt::black));
    EXPECT_EQ(control->palette().color(QPalette::WindowText), QColor(Qt::white));
  }
  EXPECT_EQ(seen.pixelColor(240, 78), QColor(Qt::white));
  // Whether a box is checked is seen, and that it is there.
  const auto box = [&] { return controls.check.grab(QRect(3, 8, 8, 8)).toImage(); };
  const QImage checked = box();
  controls.check.Value(false);
  EXPECT_NE(box(), checked);
  EXPECT_EQ(box().pixelColor(4, 4), QColor(Qt::white));
}

TEST(DesktopColours, AreFollowedWhenTheyChange) {
  PlainControls controls(design);
  const QImage before = controls.picture();
  {
    const Desktop desktop(Qt::black, Qt::black, Qt::yellow);
    QApplication::processEvents();
    EXPECT_EQ(controls.check.palette().color(QPalette::WindowText), QColor(Qt::yellow));
  }
  QApplication::processEvents();
  EXPECT_EQ(controls.picture(), before);
}

TEST(DesktopColours, AreTakenByAFormWithoutABackgroundOfItsOwn) {
  const Desktop desktop(darkGrey, darkGrey, Qt::white);
  FormDesign plain = design;
  plain.background.reset();
  PlainControls controls(plain);
  EXPECT_EQ(controls.label.palette().color(QPalette::WindowText), QColor(Qt::white));
  EXPECT_EQ(controls.picture().pixelColor(249, 40), darkGrey);
}

TEST(DesktopColours, LeaveTheArrowsOfAScrollBarInSight) {
  for (const QColor& plates : {grey, darkGrey}) {
    const Desktop desktop(plates, plates, plates == grey ? Qt::black : Qt::white);
    Form form(design);
    ScrollBar bar(form, "aktina1", Qt::Horizontal, {0, 0, 3000, 300});
    const QImage arrow = bar.grab(QRect(3, 4, 10, 12)).toImage();
    int darkest = 255;
    int lightest = 0;
    for (int y = 0; y < arrow.height(); ++y) {
      for (int x = 0; x < arrow.width(); ++x) {
        const int here = qGray(arrow.pixel(x, y));
        darkest = std::min(darkest, here);
        lightest = std::max(lightest, here);
      }
    }
    EXPECT_GT(lightest - darkest, 90) << plates.name().toStdString();
  }
}

TEST_F(Controls, WordsForThoseWhoCannotSeeThem) {
  ScrollBar bar(form, "aktina1", Qt::Horizontal, {0, 0, 1500, 300});
  describe(bar, "Ακτίνα · Radius", "Αλλάζει την ακτίνα. Changes the radius.");
  EXPECT_EQ(bar.accessibleName(), "Ακτίνα · Radius");
  EXPECT_EQ(bar.toolTip(), "Αλλάζει την ακτίνα. Changes the radius.");
  MenuEntry entry(form, "TELIOMA", "END");
  describe(entry, "Τέλος · End", "Τελειώνει. Ends.");
  EXPECT_EQ(entry.toolTip(), "Τελειώνει. Ends.");
}

TEST_F(Controls, EveryKindThatTakesInputIsReachedByTab) {
  ScrollBar bar(form, "bar", Qt::Horizontal, {0, 0, 1500, 300});
  TextBox text(form, "text", {0, 300, 1500, 300});
  CommandButton button(form, "button", {0, 600, 1500, 300});
  CheckBox check(form, "check", {0, 900, 1500, 300});
  OptionButton option(form, "option", {0, 1200, 1500, 300});
  for (const QWidget* control :
       std::initializer_list<QWidget*>{&bar, &text, &button, &check, &option}) {
    EXPECT_TRUE(control->focusPolicy() & Qt::TabFocus) << control->objectName().toStdString();
  }
}

}  // namespace
}  // namespace lensbench
