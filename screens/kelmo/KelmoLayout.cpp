// Where the controls of the workbench stand: the two circles at the top left, the light at the top
// right, the hints and the diaphragm's texts at the bottom, and its sliders along the edges that
// its blades move against. The middle is left free for the lens and the blades at their start.
#include <algorithm>
#include <initializer_list>

#include "screens/kelmo/KelmoControls.h"

namespace lensbench {
namespace {

// Pixels.
constexpr int barThickness = 18;
constexpr int longSlider = 130;
constexpr int shortSlider = 56;  // shorter, and the thumb has no way to go
constexpr int lowWindow = 500;   // below this height the rows stand closer

struct Row {
  int height;
  int gap;  // between neighbours

  int step() const { return height + gap; }
};

int widest(const TextBox& box, std::initializer_list<const char*> texts) {
  int width = 0;
  for (const char* text : texts) width = std::max(width, box.widthForText(QString::fromUtf8(text)));
  return width;
}

}  // namespace

void KelmoControls::arrange(int width, int height) {
  const Row row{std::max(24, Text6.sizeHint().height()), height < lowWindow ? 2 : 6};
  const int gap = 6;
  const int barLeft = width - barThickness;

  // Each vertical bar spans the half that its blade moves in, so that thumbs stand at blade ends.
  const int axis = height / 2;
  HScroll1.setGeometry(0, height - barThickness, width, barThickness);
  VScroll1.setGeometry(barLeft, 0, barThickness, axis);
  VScroll2.setGeometry(barLeft, axis, barThickness, height - barThickness - axis);

  // The widest text that each column can come to show.
  const int circle1Text = widest(Text6, {"Ακτίνα1 =500"});
  const int circle2Text = widest(Text7, {"Κέντρο δεξί κύκλου=500"});
  const int lightText = std::max(widest(Text2, {"Index of Refraction Δείκτης Διάθλασης= 2.50"}),
                                 widest(Text1, {"Number of Rays Αριθμός ακτινών= 3437.00"}));
  // Side by side where that leaves sliders to be worked, else the light below the circles.
  const int beside =
      (barLeft - circle1Text - circle2Text - lightText - 9 * gap) / 3;  // a slider's share
  const bool threeColumns = beside >= shortSlider;
  const int slider = threeColumns ? std::min(beside, longSlider) : longSlider;

  const int column1 = gap;
  const int column2 = column1 + slider + gap + circle1Text + 2 * gap;
  const int column3 = threeColumns ? barLeft - gap - lightText - gap - slider : column1;
  const auto rowAt = [&](int index) { return row.gap + index * row.step(); };
  const auto placeRow = [&](QWidget& bar, QWidget& text, int x, int index, int textLength) {
    bar.setGeometry(x, rowAt(index) + (row.height - barThickness) / 2, slider, barThickness);
    text.setGeometry(x + slider + gap, rowAt(index), textLength, row.height);
  };
  const int light = threeColumns ? 0 : 2;
  placeRow(aktina1, Text6, column1, 0, circle1Text);
  kentrokykloy2.setGeometry(column1, rowAt(1) + (row.height - barThickness) / 2, slider,
                            barThickness);
  placeRow(aktina2, Text5, column2, 0, circle2Text);
  placeRow(kentrokykloy, Text7, column2, 1, circle2Text);
  placeRow(deiktisdiathlasis, Text2, column3, light, lightText);
  placeRow(desmi1, Text1, column3, light + 1, lightText);
  placeRow(arvimaton, Label3, column3, light + 2, lightText);
  const auto placeCheck = [&](CheckBox& box, int x, int index) {
    box.setGeometry(x, rowAt(index), box.sizeHint().width(), row.height);
  };
  const int besideLight = column3 + slider + gap + lightText + 2 * gap;
  placeCheck(Check1, threeColumns ? column1 : besideLight, 2);
  placeCheck(Check2, threeColumns ? std::max(column2, column1 + Check1.width() + gap) : besideLight,
             threeColumns ? 2 : 3);

  // One hint on each side of the middle, the diaphragm's texts beside or, where that would make the
  // hint high, below the right one.
  const int diaphragmText = std::max(widest(Text3, {"οπή διαφράγματος =1000"}),
                                     widest(Text4, {"Θέση διαφράγματος-1000"}));
  const int bottom = height - barThickness - row.gap;
  const int right = barLeft - gap;
  const int middle = width / 2;
  const bool stacked = row.gap == gap;
  Text4.setGeometry(right - diaphragmText, bottom - row.height, diaphragmText, row.height);
  Text3.setGeometry(stacked ? Text4.x() : Text4.x() - gap - diaphragmText,
                    stacked ? Text4.y() - row.step() : Text4.y(), diaphragmText, row.height);
  const int hintRight = stacked ? Text4.x() - 2 * gap : right;
  const int hintBottom = stacked ? bottom : Text4.y() - row.gap;
  const int hintWidth = std::clamp(hintRight - middle - 2 * gap, 120, 360);
  const auto placeHint = [&](Label& hint, int x, int under) {
    const int needed = hint.heightForWidth(hintWidth);
    hint.setGeometry(x, under - needed, hintWidth, needed);
  };
  placeHint(Label1, column1, bottom);
  placeHint(Label2, hintRight - hintWidth, hintBottom);
}

}  // namespace lensbench
