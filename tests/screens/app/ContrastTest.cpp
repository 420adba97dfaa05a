// How well texts of controls are told from what they stand on, as they are drawn, on desktops of
// several colours.
#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include <QImage>
#include <QMenuBar>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>

#include "tests/screens/app/Desktops.h"

namespace lensbench {
namespace {

struct Colours {
  const char* name;
  const char* background;
  const char* words;
  const char* button;
};
void PrintTo(const Colours& colours, std::ostream* out) { *out << colours.name; }

// Relative luminance of sRGB: 0 black, 1 white.
double luminance(QRgb pixel) {
  const auto linear = [](int byte) {
    const double v = byte / 255.0;
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(qRed(pixel)) + 0.7152 * linear(qGreen(pixel)) +
         0.0722 * linear(qBlue(pixel));
}

// Of the colour that most of the part has and the one that differs most from it: that of strokes
// which fill a pixel.
double contrastIn(const QImage& image, const QRect& part) {
  std::map<QRgb, int> pixels;
  for (int y = part.top(); y <= part.bottom(); ++y) {
    for (int x = part.left(); x <= part.right(); ++x) ++pixels[image.pixel(x, y)];
  }
  const auto most = std::ranges::max_element(
      pixels, {}, [](const std::pair<const QRgb, int>& pixel) { return pixel.second; });
  const double ground = luminance(most->first);
  double best = 1.0;
  for (const auto& [pixel, count] : pixels) {
    const double words = luminance(pixel);
    best = std::max(best, (std::max(ground, words) + 0.05) / (std::min(ground, words) + 0.05));
  }
  return best;
}

// Where the text of a widget stands; nothing where it has none.
QRect textOf(const QWidget& widget) {
  const QStyle& style = *widget.style();
  QStyleOptionButton button;
  button.initFrom(&widget);
  if (qobject_cast<const ScrollBar*>(&widget) != nullptr) return {};
  if (qobject_cast<const CheckBox*>(&widget) != nullptr) {
    return style.subElementRect(QStyle::SE_CheckBoxContents, &button, &widget);
  }
  if (qobject_cast<const OptionButton*>(&widget) != nullptr) {
    return style.subElementRect(QStyle::SE_RadioButtonContents, &button, &widget);
  }
  // Without the frame, which may be darker than the words.
  return widget.rect().adjusted(4, 4, -4, -4);
}

class Contrast : public ::testing::TestWithParam<Colours> {};

TEST_P(Contrast, OfAllTextsIsEnoughForWeakEyes) {
  const auto& [name, background, words, button] = GetParam();
  const DesktopColours colours(background, words, button);
  ShownProgram program;
  int texts = 0;
  for (Form* form : program.forms()) {
    QImage image = form->grab().toImage();
    image.setDevicePixelRatio(1.0);
    for (const QWidget* control : controlsOf(*form)) {
      const QRect text = textOf(*control);
      if (text.isEmpty()) continue;
      ++texts;
      EXPECT_GE(contrastIn(image, text.translated(control->mapTo(form, QPoint()))), 4.5)
          << form->objectName().toStdString() << '.' << control->objectName().toStdString();
    }
    for (QAction* entry : form->menuBar()->actions()) {
      ++texts;
      const QRect text = form->menuBar()->actionGeometry(entry).adjusted(2, 2, -2, -2);
      EXPECT_GE(contrastIn(image, text.translated(form->menuBar()->pos())), 4.5)
          << entry->text().toStdString();
    }
  }
  EXPECT_GE(texts, 30);
}

// Arrows, thumbs and marks say what they are by their shape; for shapes 3 to 1 is enough.
TEST_P(Contrast, OfArrowsAndMarksIsEnoughForWeakEyes) {
  const auto& [name, background, words, button] = GetParam();
  const DesktopColours colours(background, words, button);
  ShownProgram program;
  auto& bench = program.screens.kelmo();
  bench.controls().Check1.Value(true);
  bench.controls().Check2.Value(true);
  QImage image = bench.grab().toImage();
  image.setDevicePixelRatio(1.0);
  const auto at = [&](const QWidget& widget, const QRect& part) {
    return contrastIn(image, part.translated(widget.mapTo(&bench, QPoint())));
  };
  for (const ScrollBar* bar : {&bench.controls().aktina1, &bench.controls().HScroll1}) {
    const QRect arrow(3, 3, bar->height() - 6, bar->height() - 6);
    EXPECT_GE(at(*bar, arrow), 3.0) << bar->objectName().toStdString();
  }
  for (const CheckBox* box : {&bench.controls().Check1, &bench.controls().Check2}) {
    QStyleOptionButton option;
    option.initFrom(box);
    const QRect mark = box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box);
    EXPECT_GE(at(*box, mark.adjusted(2, 2, -2, -2)), 3.0) << box->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Desktops, Contrast,
                         ::testing::Values(Colours{"light", "#efefef", "#000000", "#efefef"},
                                           Colours{"dark", "#2a2e32", "#fcfcfc", "#31363b"},
                                           Colours{"black", "#000000", "#ffffff", "#000000"},
                                           Colours{"yellow", "#000000", "#ffff00", "#000000"},
                                           Colours{"white", "#ffffff", "#000000", "#ffffff"}));

}  // namespace
}  // namespace lensbench
