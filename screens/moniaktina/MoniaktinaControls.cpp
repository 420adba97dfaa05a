#include "screens/moniaktina/MoniaktinaControls.h"

#include <algorithm>
#include <iterator>

namespace lensbench {
namespace {

void widenFor(TextBox& box, const char* widestText) {
  const int width = box.widthForText(QString::fromUtf8(widestText));
  box.resize(std::max(box.width(), width), box.height());
}

}  // namespace

MoniaktinaControls::MoniaktinaControls(Form& form) : form_(form) {
  setRanges();
  setLooks();
  placeRows();
  makeRoomForTexts();
  describeAll();
  setTabOrder();
}

Point MoniaktinaControls::source() const {
  return {fos.Left() + fos.Width() / 2.0, fos.Top() - fos.Height() / 2.0};
}

void MoniaktinaControls::placeSource(Point source) {
  fos.Left(source.x - fos.Width() / 2.0);
  fos.Top(source.y + fos.Height() / 2.0);
  sourceMark.follow(source);
}

void MoniaktinaControls::setRanges() {
  aktina1.range(50, 500, 40, 90);
  aktina2.range(0, 500, 1, 100);
  kentrokykloy.range(0, 500, 40, 100);
  deiktisdiathlasis.range(40, 250, 10, 150);
}

void MoniaktinaControls::setLooks() {
  Text6.Text("Text6");
  Text5.Text("Text5");
  Text7.Text("Text7");
  Text2.Text("Text2");
  Text7.FontName("Arial Greek");
  Text7.FontSize(8.25);
  Command1.Caption("Πίσω");
  fos.BorderColor(RGB(255, 0, 0));
  fos.FillStyle(FillStyle::Solid);
  fos.FillColor(sourceColour);
  aim.BorderStyle(BorderStyle::Dotted);
  aim.Visible(false);
}

// Flush, one row under the other, and inside the window.
void MoniaktinaControls::placeRows() {
  ScrollBar* const bars[] = {&aktina2, &aktina1, &deiktisdiathlasis, &kentrokykloy};
  TextBox* const boxes[] = {&Text5, &Text6, &Text2, &Text7};
  int step = 24;  // pixels; large texts need more
  for (const TextBox* box : boxes) step = std::max(step, box->sizeHint().height() - 1);
  for (int row = 0; row < 4; ++row) {
    ScrollBar& bar = *bars[row];
    const int left = std::max(bar.x(), 0);
    bar.setGeometry(left, row * step, bar.geometry().right() + 1 - left, step);
    // One pixel into the next row, for neighbours share a border.
    TextBox& box = *boxes[row];
    box.setGeometry(box.x(), row * step, box.width(), step + 1);
  }
}

void MoniaktinaControls::makeRoomForTexts() {
  const int gap = Command1.x() - (Text6.x() + Text6.width());
  widenFor(Text6, "Ακτίνα 1 =500");
  widenFor(Text5, "Ακτίνα 2 =500");
  widenFor(Text7, "Κέντρο δεξιά=500");
  widenFor(Text2, "Index of Refraction n = 2.50");
  const int radiusWidth = std::max(Text6.width(), Text5.width());
  for (TextBox* box : {&Text6, &Text5}) box->resize(radiusWidth, box->height());
  // Neighbours overlap by a pixel, which belongs to the border of the text box.
  for (TextBox* box : {&Text6, &Text5, &Text2, &Text7}) box->raise();
  Command1.move(Text6.x() + radiusWidth + gap, Command1.y());
}

void MoniaktinaControls::describeAll() {
  describe(Text6, "Ακτίνα κύκλου 1 · Radius of circle 1",
           "Η ακτίνα του κύκλου 1.\nThe radius of circle 1.");
  describe(aktina1, "Ακτίνα κύκλου 1 · Radius of circle 1",
           "Αλλάζει την ακτίνα του κύκλου 1, τη δεξιά όψη του φακού.\n"
           "Changes the radius of circle 1, the right face of the lens.");
  describe(Text5, "Ακτίνα κύκλου 2 · Radius of circle 2",
           "Η ακτίνα του κύκλου 2.\nThe radius of circle 2.");
  describe(aktina2, "Ακτίνα κύκλου 2 · Radius of circle 2",
           "Αλλάζει την ακτίνα του κύκλου 2, την αριστερή όψη του φακού. "
           "Με ακτίνα 0 το πρόγραμμα τελειώνει.\n"
           "Changes the radius of circle 2, the left face of the lens. "
           "A radius of 0 ends the program.");
  describe(Text2, "Δείκτης διάθλασης · Index of refraction",
           "Ο δείκτης διάθλασης του φακού.\nThe index of refraction of the lens.");
  describe(deiktisdiathlasis, "Δείκτης διάθλασης · Index of refraction",
           "Αλλάζει τον δείκτη διάθλασης· φαίνεται στην επόμενη ακτίνα.\n"
           "Changes the index of refraction; seen at the next ray.");
  describe(Command1, "Πίσω · Back",
           "Επιστρέφει στους σφαιρικούς φακούς.\nGoes back to the spherical lenses.");
  describe(Text7, "Κέντρο κύκλου 2 · Centre of circle 2",
           "Η τετμημένη του κέντρου του κύκλου 2.\nThe abscissa of the centre of circle 2.");
  describe(kentrokykloy, "Κέντρο κύκλου 2 · Centre of circle 2",
           "Μετακινεί το κέντρο του κύκλου 2 πάνω στον άξονα.\n"
           "Moves the centre of circle 2 along the axis.");
}

void MoniaktinaControls::setTabOrder() {
  QWidget* const order[] = {&Text6,    &aktina1, &Text5,       &aktina2, &Text2, &deiktisdiathlasis,
                            &Command1, &Text7,   &kentrokykloy};
  for (std::size_t i = 1; i < std::size(order); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace lensbench
