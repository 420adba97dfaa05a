#include "screens/eisagogiko/MenuControls.h"

#include <algorithm>

namespace lensbench {
namespace {

constexpr int gap = 7;    // between buttons that would touch, pixels
constexpr int spare = 8;  // beside the widest line of the label, pixels

}  // namespace

MenuControls::MenuControls(Form& form) : form_(form) {
  deiktissahl.range(100, 250, 20, 150);
  setTexts();
  makeRoom(form);
  describeAll();
  setTabOrder();
}

void MenuControls::setTexts() {
  for (CommandButton* button : {&Command1, &Command2, &Command3}) {
    button->FontName("Times New Roman");
    button->FontSize(7.5);
  }
  Command1.Caption("Αμφίκυρτος ΥΠΕΡΒΟΛΙΚΟΣ BICONVEX HYPERBOLIC ");
  Command2.Caption("Επιπεδόκυρτος ΥΠΕΡΒΟΛΙΚΟΣ PLANE CONVEX HYPERBOLIC");
  Command3.Caption("ΣΦΑΙΡΙΚΟΙ ΦΑΚΟι SPHERICAL LENSES");
  Label1.FontName("Arial");
  Label1.FontSize(8.25);
}

// The buttons stand side by side and equally high, and the label holds the longest of its lines.
void MenuControls::makeRoom(Form& form) {
  CommandButton* buttons[] = {&Command1, &Command2, &Command3};
  int height = 0;
  for (CommandButton* button : buttons) {
    button->resize(std::max(button->width(), button->leastWidth()), button->height());
    height = std::max(height, button->height());
  }
  int free = 0;
  for (CommandButton* button : buttons) {
    button->setGeometry(std::max(button->x(), free), button->y(), button->width(), height);
    free = button->x() + button->width() + gap;
  }
  // Its texts break between the languages, so that the number stays with its name.
  int widest = Label1.width();
  for (const char* line :
       {"INDEX  OF REFRACTION", "Δείκτης Διάθλασης= 2.50", "Index of Refraction n=2.50"}) {
    widest = std::max(widest, Label1.fontMetrics().horizontalAdvance(QString::fromUtf8(line)));
  }
  Label1.resize(widest + spare, Label1.height());
  const int offMiddle = Label1.geometry().center().y() - deiktissahl.geometry().center().y();
  // Beside the middle of the scroll bar, which is above the middle of the label.
  Label1.setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  Label1.setContentsMargins(0, 0, 0, 2 * offMiddle);
  const int lines = 2 * (Label1.fontMetrics().lineSpacing() + offMiddle);
  const int higher = std::max(0, (lines - Label1.height() + 1) / 2);
  Label1.setGeometry(Label1.geometry().adjusted(0, -higher, 0, higher));
  makeRoomForLargeTexts(form);
}

// Below buttons that large texts make high, and in a window that holds it all.
void MenuControls::makeRoomForLargeTexts(Form& form) {
  const int down = Command1.geometry().bottom() + 1 + gap - Label1.y();
  if (down > 0) {
    for (QWidget* widget : {static_cast<QWidget*>(&deiktissahl), static_cast<QWidget*>(&Label1)}) {
      widget->move(widget->x(), widget->y() + down);
    }
  }
  const QSize client = form.drawingArea()->size();
  const int right = std::max(Command3.geometry().right(), Label1.geometry().right()) + 1;
  const QSize needed = client.expandedTo({right + gap, Label1.geometry().bottom() + 1 + gap});
  if (needed != client) {
    form.clientSize(needed.width() * twipsPerPixel, needed.height() * twipsPerPixel);
  }
}

void MenuControls::describeAll() {
  describe(Command1, "Αμφίκυρτος υπερβολικός φακός · Biconvex hyperbolic lens",
           "Ανοίγει τον αμφίκυρτο φακό του Ιμπν Σαχλ με αυτόν τον δείκτη.\n"
           "Opens Ibn Sahl's biconvex lens with this index.");
  describe(Command2, "Επιπεδόκυρτος υπερβολικός φακός · Plano-convex hyperbolic lens",
           "Ανοίγει τον επιπεδόκυρτο φακό του Ιμπν Σαχλ με αυτόν τον δείκτη.\n"
           "Opens Ibn Sahl's plano-convex lens with this index.");
  describe(deiktissahl, "Δείκτης διάθλασης · Index of refraction",
           "Αλλάζει τον δείκτη διάθλασης των υπερβολικών φακών· φαίνεται στην επόμενη σχεδίαση.\n"
           "Changes the index of refraction of the hyperbolic lenses; seen at the next drawing.");
  describe(Command3, "Σφαιρικοί φακοί · Spherical lenses",
           "Κλείνει τον κατάλογο και γυρίζει στους σφαιρικούς φακούς.\n"
           "Closes the menu and goes back to the spherical lenses.");
  describe(Label1, "Δείκτης διάθλασης · Index of refraction",
           "Ο δείκτης διάθλασης των υπερβολικών φακών.\n"
           "The index of refraction of the hyperbolic lenses.");
}

void MenuControls::setTabOrder() {
  QWidget::setTabOrder(&Command1, &Command2);
  QWidget::setTabOrder(&Command2, &deiktissahl);
  QWidget::setTabOrder(&deiktissahl, &Command3);
}

}  // namespace lensbench
