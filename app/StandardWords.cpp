#include "app/StandardWords.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace lensbench {
namespace {

struct Word {
  std::string_view english;
  const char* greek;
};

// As the toolkit asks for them, with the marks of its keyboard access.
constexpr Word words[] = {
    // Buttons.
    {"OK", "Εντάξει"},
    {"&OK", "&Εντάξει"},
    {"Cancel", "Άκυρο"},
    {"&Cancel", "Ά&κυρο"},
    {"Save", "Αποθήκευση"},
    {"&Save", "Απο&θήκευση"},
    {"Save All", "Αποθήκευση όλων"},
    {"Open", "Άνοιγμα"},
    {"&Open", "Ά&νοιγμα"},
    {"&Yes", "&Ναι"},
    {"Yes to &All", "Ναι σε ό&λα"},
    {"&No", "Ό&χι"},
    {"N&o to All", "Ό&χι σε όλα"},
    {"Abort", "Διακοπή"},
    {"Retry", "Επανάληψη"},
    {"Ignore", "Παράβλεψη"},
    {"Close", "Κλείσιμο"},
    {"&Close", "&Κλείσιμο"},
    {"Discard", "Απόρριψη"},
    {"Help", "Βοήθεια"},
    {"Apply", "Εφαρμογή"},
    {"Reset", "Επαναφορά"},
    {"Restore Defaults", "Επαναφορά προεπιλογών"},
    {"Show Details...", "Εμφάνιση λεπτομερειών..."},
    {"Hide Details...", "Απόκρυψη λεπτομερειών..."},
    // The menu of a text field.
    {"&Undo", "&Αναίρεση"},
    {"&Redo", "Ακύρωση αναί&ρεσης"},
    {"Cu&t", "Απο&κοπή"},
    {"&Copy", "Αντι&γραφή"},
    {"&Paste", "&Επικόλληση"},
    {"Delete", "Διαγραφή"},
    {"Select All", "Επιλογή όλων"},
    {"&Select All", "Επιλογή ό&λων"},
    {"&Step up", "&Περισσότερο"},
    {"Step &down", "&Λιγότερο"},
    // The file dialog.
    {"Save As", "Αποθήκευση ως"},
    {"Look in:", "Θέση:"},
    {"Directory:", "Φάκελος:"},
    {"Folder", "Φάκελος"},
    {"File", "Αρχείο"},
    {"Drive", "Μονάδα δίσκου"},
    {"Unknown", "Άγνωστο"},
    {"Computer", "Υπολογιστής"},
    {"File &name:", "Όνομα &αρχείου:"},
    {"Files of type:", "Τύπος αρχείων:"},
    {"All Files (*)", "Όλα τα αρχεία (*)"},
    {"All files (*)", "Όλα τα αρχεία (*)"},
    {"All Files", "Όλα τα αρχεία"},
    {"Directories", "Φάκελοι"},
    {"&Choose", "Επι&λογή"},
    {"Back", "Πίσω"},
    {"Forward", "Μπροστά"},
    {"Go back", "Πίσω"},
    {"Go forward", "Μπροστά"},
    {"Parent Directory", "Πάνω φάκελος"},
    {"Go to the parent directory", "Στον πάνω φάκελο"},
    {"Create New Folder", "Νέος φάκελος"},
    {"Create a New Folder", "Νέος φάκελος"},
    {"New Folder", "Νέος φάκελος"},
    {"&New Folder", "&Νέος φάκελος"},
    {"List View", "Προβολή λίστας"},
    {"Change to list view mode", "Προβολή λίστας"},
    {"Detail View", "Προβολή λεπτομερειών"},
    {"Change to detail view mode", "Προβολή λεπτομερειών"},
    {"Sidebar", "Πλευρική στήλη"},
    {"List of places and bookmarks", "Θέσεις και σελιδοδείκτες"},
    {"Files", "Αρχεία"},
    {"Recent Places", "Πρόσφατες θέσεις"},
    {"Remove", "Αφαίρεση"},
    {"&Rename", "&Μετονομασία"},
    {"&Delete", "&Διαγραφή"},
    {"Show &hidden files", "Εμφάνιση &κρυφών αρχείων"},
    {"Show ", "Εμφάνιση "},
    {"Find Directory", "Εύρεση φακέλου"},
    {"Name", "Όνομα"},
    {"Size", "Μέγεθος"},
    {"Kind", "Είδος"},
    {"Type", "Τύπος"},
    {"Date Modified", "Τροποποιήθηκε"},
    {"%1 already exists.\nDo you want to replace it?", "Το %1 υπάρχει ήδη.\nΝα αντικατασταθεί;"},
    {"%1\nFile not found.\nPlease verify the correct file name was given.",
     "%1\nΤο αρχείο δεν βρέθηκε.\nΈλεγξε αν το όνομά του είναι σωστό."},
    {"%1\nDirectory not found.\nPlease verify the correct directory name was given.",
     "%1\nΟ φάκελος δεν βρέθηκε.\nΈλεγξε αν το όνομά του είναι σωστό."},
    {"'%1' is write protected.\nDo you want to delete it anyway?",
     "Το «%1» προστατεύεται από εγγραφή.\nΝα διαγραφεί παρ' όλα αυτά;"},
    {"Are you sure you want to delete '%1'?", "Να διαγραφεί το «%1»;"},
    {"Could not delete directory.", "Ο φάκελος δεν διαγράφεται."},
    // The print dialog.
    {"Print", "Εκτύπωση"},
    {"&Print", "&Εκτύπωση"},
    {"Print to File (PDF)", "Εκτύπωση σε αρχείο (PDF)"},
    {"Print To File ...", "Εκτύπωση σε αρχείο ..."},
    {"Local file", "Τοπικό αρχείο"},
    {"Write PDF file", "Εγγραφή αρχείου PDF"},
    {"Printer", "Εκτυπωτής"},
    {"&Name:", "Όνο&μα:"},
    {"Location:", "Θέση:"},
    {"Type:", "Τύπος:"},
    {"Preview", "Προεπισκόπηση"},
    {"P&roperties", "&Ιδιότητες"},
    {"Properties", "Ιδιότητες"},
    {"Printer Properties", "Ιδιότητες εκτυπωτή"},
    {"Output &file:", "Αρ&χείο εξόδου:"},
    {"&Options >>", "Επι&λογές >>"},
    {"&Options <<", "Επι&λογές <<"},
    {"Options", "Επιλογές"},
    {"Copies", "Αντίτυπα"},
    {"Copies:", "Αντίτυπα:"},
    {"Collate", "Συρραφή"},
    {"Reverse", "Αντίστροφα"},
    {"Print range", "Περιοχή εκτύπωσης"},
    {"Print all", "Εκτύπωση όλων"},
    {"Pages from", "Σελίδες από"},
    {"Pages", "Σελίδες"},
    {"Current Page", "Τρέχουσα σελίδα"},
    {"Selection", "Επιλογή"},
    {"to", "έως"},
    {"Output Settings", "Ρυθμίσεις εξόδου"},
    {"Color Mode", "Χρώμα"},
    {"Color", "Έγχρωμα"},
    {"Grayscale", "Αποχρώσεις του γκρι"},
    {"None", "Καμία"},
    {"Off", "Όχι"},
    {"Long side", "Μεγάλη πλευρά"},
    {"Short side", "Μικρή πλευρά"},
    {"Page Setup", "Διαμόρφωση σελίδας"},
    {"Page", "Σελίδα"},
    {"Paper", "Χαρτί"},
    {"Page size:", "Μέγεθος σελίδας:"},
    {"Paper source:", "Πηγή χαρτιού:"},
    {"Width:", "Πλάτος:"},
    {"Height:", "Ύψος:"},
    {"Orientation", "Προσανατολισμός"},
    {"Portrait", "Κατακόρυφα"},
    {"Landscape", "Οριζόντια"},
    {"Reverse portrait", "Ανάποδα κατακόρυφα"},
    {"Reverse landscape", "Ανάποδα οριζόντια"},
    {"Margins", "Περιθώρια"},
    {"top margin", "πάνω περιθώριο"},
    {"left margin", "αριστερό περιθώριο"},
    {"right margin", "δεξιό περιθώριο"},
    {"bottom margin", "κάτω περιθώριο"},
    {"Custom", "Προσαρμοσμένο"},
    {"Advanced", "Για προχωρημένους"},
};

class GreekWords : public QTranslator {
 public:
  using QTranslator::QTranslator;

  bool isEmpty() const override { return false; }
  QString translate(const char* context, const char* english, const char*, int) const override {
    // All of the toolkit's classes begin so; no text of ours asks for a translation.
    if (context == nullptr || context[0] != 'Q' || english == nullptr) return {};
    const auto word = std::ranges::find(words, std::string_view(english), &Word::english);
    return word == std::end(words) ? QString() : QString::fromUtf8(word->greek);
  }
};

}  // namespace

void translateStandardWords(QCoreApplication& application, const QLocale& desktop) {
  const QStringList languages = desktop.uiLanguages();
  if (languages.isEmpty() || QLocale(languages.front()).language() != QLocale::Greek) return;
  auto* toolkitsOwn = new QTranslator(&application);
  if (toolkitsOwn->load(QLocale(QLocale::Greek), QStringLiteral("qtbase"), QStringLiteral("_"),
                        QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(toolkitsOwn);
  }
  QCoreApplication::installTranslator(new GreekWords(&application));
}

}  // namespace lensbench
