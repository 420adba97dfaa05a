#include "screens/ElSahl/SahlControls.h"

#include <algorithm>
#include <iterator>

namespace lensbench {
namespace {

constexpr int edgeWidth = 3;  // pixels

}  // namespace

SahlControls::SahlControls(Form& form) : form_(form) {
  setTexts();
  placeOptions(form.drawingArea()->width());
  QWidget::setTabOrder(&kymataYESNO, &RAYSANDWAVES);
  QWidget::setTabOrder(&RAYSANDWAVES, &onlyrays);
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

// In rows from left to right; an option whose text needs more room pushes its neighbours on, and
// one that would be cut begins a new row.
void SahlControls::placeOptions(int width) {
  constexpr Place designed[] = {onlyWavesPlace, raysWavesPlace, onlyRaysPlace};
  OptionButton* const options[] = {&kymataYESNO, &RAYSANDWAVES, &onlyrays};
  const int left = inPixels(designed[0]).x();
  int free = left;
  int top = 0;
  for (std::size_t i = 0; i < std::size(options); ++i) {
    const QRect place = inPixels(designed[i]);
    const QSize needed = options[i]->sizeHint().expandedTo(place.size());
    int x = top == 0 ? std::max(place.x(), free) : free;
    if (x > left && x + needed.width() > width) {
      x = left;
      top += needed.height();
    }
    options[i]->setGeometry({{x, top}, needed});
    free = x + needed.width();
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
