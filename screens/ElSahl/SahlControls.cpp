#include "screens/ElSahl/SahlControls.h"

#include <algorithm>

namespace lensbench {
namespace {

constexpr Rgb edgeColour{0x00C00000};
constexpr int edgeWidth = 3;  // pixels
constexpr Rgb sourceColour = RGB(255, 128, 0);

}  // namespace

SahlControls::SahlControls(Form& form)
    : onlyrays(form, "onlyrays", {2880, 0, 1215, 375}),
      RAYSANDWAVES(form, "RAYSANDWAVES", {1560, 0, 1335, 375}),
      kymataYESNO(form, "kymataYESNO", {120, 0, 1455, 375}),
      Line2(form, "Line2", {1800, 1320, 1920, 2640}),
      Line1(form, "Line1", {360, 0, 360, 1200}),
      mark2(form, "mark2", edgeColour),
      mark1(form, "mark1", edgeColour),
      sourceMark(form, "sourceMark", sourceColour),
      parallilidesmifotos(form, "parallilidesmifotos", "PARALLILI  DESMH"),
      TELOS(form, "TELOS", "END"),
      kymatikosahl(form, "kymatikosahl", "WAVES"),
      BACKKELMO(form, "BACKKELMO", "BACK TO MENU") {
  setTexts();
  placeOptions();
  describeAll();
  for (DiaphragmEdge* edge : {&Line1, &Line2}) {
    edge->BorderColor(edgeColour);
    edge->BorderWidth(edgeWidth);
  }
}

double SahlControls::optionsBottom() const {
  return std::max({onlyrays.geometry().bottom(), RAYSANDWAVES.geometry().bottom(),
                   kymataYESNO.geometry().bottom()}) +
         1;
}

void SahlControls::setTexts() {
  onlyrays.Caption("Only Rays");
  RAYSANDWAVES.Caption("RAYS WAVES");
  kymataYESNO.Caption("ONLY WAVES");
  RAYSANDWAVES.Value(true);
}

// One row from left to right; an option whose text needs more room pushes its neighbours on.
void SahlControls::placeOptions() {
  int free = 0;
  QWidget* previous = nullptr;
  for (QWidget* option : {static_cast<QWidget*>(&kymataYESNO), static_cast<QWidget*>(&RAYSANDWAVES),
                          static_cast<QWidget*>(&onlyrays)}) {
    const QSize needed = option->sizeHint().expandedTo(option->size());
    option->setGeometry(std::max(option->x(), free), option->y(), needed.width(), needed.height());
    free = option->x() + option->width();
    if (previous != nullptr) QWidget::setTabOrder(previous, option);
    previous = option;
  }
}

void SahlControls::describeAll() {
  describe(kymataYESNO, "Μόνο κύματα · Waves only",
           "Η επόμενη σχεδίαση δείχνει μόνο τα κύματα, χωρίς ακτίνες.\n"
           "The next drawing shows the waves only, without rays.");
  describe(RAYSANDWAVES, "Ακτίνες και κύματα · Rays and waves",
           "Η επόμενη σχεδίαση δείχνει ακτίνες και κύματα.\n"
           "The next drawing shows rays and waves.");
  describe(onlyrays, "Μόνο ακτίνες · Rays only",
           "Η επόμενη σχεδίαση δείχνει μόνο τις ακτίνες, χωρίς κύματα.\n"
           "The next drawing shows the rays only, without waves.");
  describe(parallilidesmifotos, "Παράλληλη δέσμη · Bundle of parallel rays",
           "Ρωτά τη γωνία και στέλνει παράλληλη δέσμη από τα δεξιά.\n"
           "Asks for the angle and sends a bundle of parallel rays from the right.");
  describe(kymatikosahl, "Κύματα · Waves",
           "Σχεδιάζει ακτίνες και κύματα της πηγής πάνω στην εικόνα.\n"
           "Draws the rays and waves of the source over the picture.");
  describe(BACKKELMO, "Πίσω στον κατάλογο · Back to the lens menu",
           "Σβήνει την εικόνα και γυρίζει στον κατάλογο των φακών.\n"
           "Clears the picture and goes back to the lens menu.");
  describe(TELOS, "Τέλος · End", "Τελειώνει το πρόγραμμα.\nEnds the program.");
}

}  // namespace lensbench
