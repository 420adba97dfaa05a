#include "screens/kelmo/KelmoControls.h"

#include <iterator>

namespace lensbench {

KelmoControls::KelmoControls(Form& form, Clock& clock) : form_(form), clock_(clock) {
  setRanges();
  setTexts();
  setShapes();
  describeAll();
  setTabOrder();
  // Unmarked, and known as entries that carry a mark.
  for (MenuEntry* entry : {&parallilakymata, &kymatachronika}) entry->Checked(false);
  Timer1.Enabled(true);
  Timer2.Enabled(false);
}

void KelmoControls::setRanges() {
  aktina1.range(50, 500, 40, 100);
  aktina2.range(0, 500, 1, 90);
  kentrokykloy2.range(-500, 0, 40, -50);
  kentrokykloy.range(0, 500, 40, 20);
  deiktisdiathlasis.range(40, 250, 10, 150);
  desmi1.range(2, 150, 10, 20);
  arvimaton.range(5, 150, 1, 30);
  HScroll1.range(-100, 100, 5, 0);
  VScroll1.range(-100, 0, 10, 0);
  VScroll2.range(0, 100, 10, 0);
}

void KelmoControls::setTexts() {
  Check1.Caption("SHOW WAVES AND RAYS");
  Check2.Caption("SHOW ONLY WAVES");
  Label3.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  Label1.Caption(
      "ΜΠΟΡΕΙΣ ΝΑ ΔΗΜΙΟΥΡΓΗΣΕΙΣ ΜΙΑ ΔΕΣΜΗ ΑΚΤΙΝΩΝ ΠΑΤΩΝΤΑΣ ΤΟ SHIFT KAI ΤΟ ΑΡΙΣΤΕΡΟ ΠΛΗΚΤΡΟ ΤΟΥ "
      "ΠΟΝΤΙΚΟΥ PRESS SHIFT AND MOUSE TO HAVE A BUNDLE OF RAYS");
  Label2.Caption(
      "ΜΠΟΡΕΙΣ ΝΑ ΜΕΤΑΚΙΝΗΣΕΙΣ ΤΑ ΔΙΑΦΡΑΓΜΑΤΑ ΚΑΙ ΤΑ ΚΕΝΤΡΑ ΤΩΝ ΚΥΚΛΩΝ ΜΕ ΤΟ ΠΟΝΤΙΚΙ MOVE  THE "
      "DIAPHRAGM WITH MOUSE");
}

void KelmoControls::setShapes() {
  for (LineControl* blade : {&Line1, &Line2}) {
    blade->BorderColor(bladeColour);
    blade->BorderWidth(4);
  }
  for (Shape* marker : {&pigi, &Shape1, &Shape2}) {
    marker->BorderColor(RGB(255, 0, 0));
    marker->FillColor(sourceColour);
    marker->FillStyle(FillStyle::Solid);
    marker->Visible(marker == &pigi);
  }
  draggedEdge.BorderColor(RGB(255, 0, 0));
  draggedEdge.BorderStyle(BorderStyle::Dotted);
  draggedEdge.FillStyle(FillStyle::Transparent);
  draggedEdge.Visible(false);
}

void KelmoControls::describeAll() {
  describe(aktina1, "Ακτίνα αριστερού κύκλου · Radius of the left circle",
           "Αλλάζει την ακτίνα του αριστερού κύκλου, τη δεξιά όψη του φακού.\n"
           "Changes the radius of the left circle, the right face of the lens.");
  describe(Text6, "Ακτίνα αριστερού κύκλου · Radius of the left circle",
           "Η ακτίνα του αριστερού κύκλου.\nThe radius of the left circle.");
  describe(kentrokykloy2, "Κέντρο αριστερού κύκλου · Centre of the left circle",
           "Μετακινεί το κέντρο του αριστερού κύκλου πάνω στον άξονα.\n"
           "Moves the centre of the left circle along the axis.");
  describe(aktina2, "Ακτίνα δεξιού κύκλου · Radius of the right circle",
           "Αλλάζει την ακτίνα του δεξιού κύκλου, την αριστερή όψη του φακού.\n"
           "Changes the radius of the right circle, the left face of the lens.");
  describe(Text5, "Ακτίνα δεξιού κύκλου · Radius of the right circle",
           "Η ακτίνα του δεξιού κύκλου.\nThe radius of the right circle.");
  describe(kentrokykloy, "Κέντρο δεξιού κύκλου · Centre of the right circle",
           "Μετακινεί το κέντρο του δεξιού κύκλου πάνω στον άξονα.\n"
           "Moves the centre of the right circle along the axis.");
  describe(Text7, "Κέντρο δεξιού κύκλου · Centre of the right circle",
           "Η τετμημένη του κέντρου του δεξιού κύκλου.\n"
           "The abscissa of the centre of the right circle.");
  describe(deiktisdiathlasis, "Δείκτης διάθλασης · Index of refraction",
           "Αλλάζει τον δείκτη διάθλασης του φακού· φαίνεται στην επόμενη σχεδίαση.\n"
           "Changes the index of refraction of the lens; seen at the next drawing.");
  describe(Text2, "Δείκτης διάθλασης · Index of refraction",
           "Ο δείκτης διάθλασης του φακού.\nThe index of refraction of the lens.");
  describe(
      desmi1, "Πλήθος ακτίνων δέσμης · Rays of a bundle",
      "Πόσα διαστήματα έχει η παράλληλη δέσμη και πόσο πυκνές είναι οι ακτίνες από το σημείο.\n"
      "How many spaces a bundle has, and how dense the rays of a point source are.");
  describe(Text1, "Πλήθος ακτίνων · Number of rays",
           "Πόσες ακτίνες στέλνει η σημειακή πηγή.\nHow many rays the point source sends.");
  describe(arvimaton, "Πολλαπλασιαστής ακτίνων · Multiplier of the ray step",
           "Μεγαλώνει το βήμα ανάμεσα στις ακτίνες της σημειακής πηγής.\n"
           "Widens the step between the rays of the point source.");
  describe(Label3, "Πολλαπλασιαστής ακτίνων · Multiplier of the ray step",
           "Ο πολλαπλασιαστής του βήματος.\nThe multiplier of the step.");
  describe(Check1, "Κύματα και ακτίνες · Waves and rays",
           "Δείχνει τα κύματα μαζί με τις ακτίνες.\nShows the waves together with the rays.");
  describe(Check2, "Μόνο κύματα · Waves only",
           "Δείχνει μόνο τα κύματα, χωρίς ακτίνες.\nShows the waves only, without rays.");
  describe(VScroll1, "Άνω διάφραγμα · Upper blade",
           "Ανεβάζει το άνω διάφραγμα: στην αρχή η οπή είναι κλειστή.\n"
           "Raises the upper blade: at the start the opening is closed.");
  describe(VScroll2, "Κάτω διάφραγμα · Lower blade",
           "Κατεβάζει το κάτω διάφραγμα: στην αρχή η οπή είναι κλειστή.\n"
           "Lowers the lower blade: at the start the opening is closed.");
  describe(HScroll1, "Θέση διαφράγματος · Place of the diaphragm",
           "Μετακινεί το διάφραγμα δεξιά και αριστερά. Για να περάσει φως, άνοιξέ το με τις "
           "κάθετες μπάρες ή σύρε τα άκρα του με το ποντίκι.\n"
           "Moves the diaphragm left and right. To let light through, open it with the vertical "
           "bars or drag its ends with the mouse.");
  describe(Text3, "Οπή διαφράγματος · Opening of the diaphragm",
           "Το ύψος της οπής.\nThe height of the opening.");
  describe(Text4, "Θέση διαφράγματος · Place of the diaphragm",
           "Η τετμημένη του διαφράγματος.\nThe abscissa of the diaphragm.");
  describe(Label1, "Οδηγία για τις ακτίνες · Hint about rays",
           "Πώς στέλνεις ακτίνες από ένα σημείο.\nHow to send rays from a point.");
  describe(Label2, "Οδηγία για το ποντίκι · Hint about the mouse",
           "Τι μετακινείς με το ποντίκι: διαφράγματα, κέντρα και άκρα των κύκλων.\n"
           "What the mouse moves: blades, centres and edges of the circles.");
  describe(singleray, "Μία ακτίνα · One ray",
           "Ανοίγει την οθόνη με μία ακτίνα.\nOpens the screen of one ray.");
  describe(EPANALIPSI, "Παράλληλη δέσμη · Bundle of parallel rays",
           "Ρωτά τη γωνία και στέλνει παράλληλη δέσμη.\n"
           "Asks for the angle and sends a bundle of parallel rays.");
  describe(SAHLIC, "Φακοί Ιμπν Σαχλ · Lenses of Ibn Sahl",
           "Ανοίγει τον κατάλογο των υπερβολικών φακών.\nOpens the menu of hyperbolic lenses.");
  describe(parallilakymata, "Επίπεδα κύματα · Plane waves",
           "Κινεί τα επίπεδα κύματα της τελευταίας δέσμης.\n"
           "Moves the plane waves of the last bundle.");
  describe(kymatachronika, "Κύματα στον χρόνο · Waves in time",
           "Κινεί τα κύματα της σημειακής πηγής.\nMoves the waves of the point source.");
  describe(TELIOMA, "Τέλος · End", "Τελειώνει το πρόγραμμα.\nEnds the program.");
}

void KelmoControls::setTabOrder() {
  QWidget* order[] = {
      &aktina1,           &Text6,    &kentrokykloy2, &aktina2, &Text5,     &kentrokykloy, &Text7,
      &deiktisdiathlasis, &Text2,    &desmi1,        &Text1,   &arvimaton, &Check1,       &Check2,
      &VScroll1,          &VScroll2, &HScroll1,      &Text3,   &Text4};
  for (std::size_t i = 1; i < std::size(order); ++i) QWidget::setTabOrder(order[i - 1], order[i]);
}

}  // namespace lensbench
