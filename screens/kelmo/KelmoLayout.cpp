// Where the controls of the workbench stand: the two circles at the top left, the light at the top
// right, the hints and the diaphragm's texts at the bottom, and its sliders along the edges that
// its blades move against. The middle is left free for the blades at their start.
#include <algorithm>
#include <initializer_list>

#include "screens/kelmo/KelmoControls.h"

namespace lensbench {
namespace {

constexpr int gap = 6;  // between neighbours, pixels
constexpr int barThickness = 18;
constexpr int sliderLength = 130;
constexpr int rowHeight = 24;

void placeRow(QWidget& slider, QWidget& text, int x, int y, int textLength) {
  slider.setGeometry(x, y + (rowHeight - barThickness) / 2, sliderLength, barThickness);
  text.setGeometry(x + sliderLength + gap, y, textLength, rowHeight);
}

}  // namespace

void KelmoControls::arrange(int width, int height) {
  const int row = rowHeight + gap;
  const int top = gap;

  // The widest text each column can come to show.
  const int circle1Text = Text6.widthForText(QStringLiteral("Ακτίνα1 =500"));
  const int circle2Text = Text7.widthForText(QStringLiteral("Κέντρο δεξί κύκλου=500"));
  const int lightText =
      std::max(Text2.widthForText(QStringLiteral("Index of Refraction Δείκτης Διάθλασης= 2.50")),
               Text1.widthForText(QStringLiteral("Number of Rays Αριθμός ακτινών= 3437.00")));

  const int barLeft = width - barThickness;
  const int column1 = gap;
  const int column2 = column1 + sliderLength + gap + circle1Text + 2 * gap;
  const int column2Right = column2 + sliderLength + gap + circle2Text;
  // On a window too narrow for all three, the light goes below the circles.
  const int lightLeft = barLeft - gap - lightText - gap - sliderLength;
  const bool narrow = lightLeft < column2Right + gap;
  const int column3 = narrow ? column1 : lightLeft;
  const int lightTop = narrow ? top + 3 * row : top;

  placeRow(aktina1, Text6, column1, top, circle1Text);
  kentrokykloy2.setGeometry(column1, top + row + (rowHeight - barThickness) / 2, sliderLength,
                            barThickness);
  placeRow(aktina2, Text5, column2, top, circle2Text);
  placeRow(kentrokykloy, Text7, column2, top + row, circle2Text);
  placeRow(deiktisdiathlasis, Text2, column3, lightTop, lightText);
  placeRow(desmi1, Text1, column3, lightTop + row, lightText);
  placeRow(arvimaton, Label3, column3, lightTop + 2 * row, lightText);
  Check1.setGeometry(column1, top + 2 * row, Check1.sizeHint().width(), rowHeight);
  Check2.setGeometry(column2, top + 2 * row, Check2.sizeHint().width(), rowHeight);

  // Each vertical bar spans the half that its blade moves in, so that thumbs stand at blade ends.
  const int axis = height / 2;
  HScroll1.setGeometry(0, height - barThickness, width, barThickness);
  VScroll1.setGeometry(barLeft, 0, barThickness, axis);
  VScroll2.setGeometry(barLeft, axis, barThickness, height - barThickness - axis);

  const int diaphragmText = std::max(Text3.widthForText(QStringLiteral("οπή διαφράγματος =1000")),
                                     Text4.widthForText(QStringLiteral("Θέση διαφράγματος-1000")));
  const int bottom = height - barThickness - gap;
  const int diaphragmLeft = barLeft - gap - diaphragmText;
  Text4.setGeometry(diaphragmLeft, bottom - rowHeight, diaphragmText, rowHeight);
  Text3.setGeometry(diaphragmLeft, bottom - rowHeight - row, diaphragmText, rowHeight);

  // One hint on each side of the middle.
  const int middle = width / 2;
  const int hintWidth = std::clamp(diaphragmLeft - middle - 4 * gap, 120, 360);
  const auto placeHint = [&](Label& hint, int x) {
    const int needed = hint.heightForWidth(hintWidth);
    hint.setGeometry(x, bottom - needed, hintWidth, needed);
  };
  placeHint(Label1, column1);
  placeHint(Label2, diaphragmLeft - 2 * gap - hintWidth);
}

}  // namespace lensbench
