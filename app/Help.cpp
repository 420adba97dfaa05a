#include "app/Help.h"

#include <QApplication>
#include <QWindow>

#include "screens/DrawingScreen.h"
#include "screens/Keys.h"
#include "screens/help/Lessons.h"

namespace lensbench {
namespace {

struct Scope {
  KeyScope scope;
  const char* heading;
  const char* lead;
};

constexpr Scope scopes[] = {
    {KeyScope::Program, "Πλήκτρα σε κάθε οθόνη · Keys on every screen",
     "Ισχύουν όταν το χειριστήριο με την εστίαση δεν τα χρησιμοποιεί το ίδιο. Με Alt ή F10 "
     "πηγαίνεις στα μενού, με Tab από χειριστήριο σε χειριστήριο.\n"
     "They count where the control with the focus has no use for them itself. Alt or F10 goes to "
     "the menus, Tab from control to control."},
    {KeyScope::Drawing, "Πλήκτρα όπου υπάρχει εικόνα · Keys where there is a picture", ""},
    {KeyScope::DrawingArea, "Πλήκτρα πάνω στην εικόνα · Keys on the picture itself",
     "Η εικόνα έρχεται με Tab μετά το τελευταίο χειριστήριο. Ένα πλαίσιο δείχνει τι μετακινούν τα "
     "βέλη.\n"
     "Tab comes to the picture after the last control. A ring shows what the arrows move."},
    {KeyScope::Waves,
     "Πλήκτρα για τα κύματα των σφαιρικών φακών · Keys for the waves of the spherical lenses", ""},
};

HelpSection thingsOf(const Form& screen) {
  const auto* drawing = dynamic_cast<const DrawingScreen*>(&screen);
  HelpSection section{screen.accessibleName(), {}, {}, {}, {}};
  if (drawing == nullptr) {
    section.lead =
        "Εδώ δεν υπάρχει εικόνα με πράγματα που πιάνονται.\n"
        "There is no picture here with things to be taken.";
    return section;
  }
  section.lead =
      "Τι πιάνεται σε αυτή την οθόνη, με το ποντίκι ή με τα πλήκτρα:\n"
      "What can be taken on this screen, by the mouse or by keys:";
  for (const Thing& thing : drawing->things()) section.rows.push_back({thing.name, thing.words});
  return section;
}

QString text(const lessons::Words& words, const char* between) {
  return QString::fromUtf8(words.greek) + QString::fromUtf8(between) +
         QString::fromUtf8(words.english);
}

// What a lesson is called by the link that sets it up.
QString linkOf(std::size_t lesson) { return QStringLiteral("lesson:%1").arg(lesson); }

std::vector<HelpSection> lessonSections() {
  std::vector<HelpSection> sections;
  for (const lessons::Lesson& lesson : lessons::all()) {
    const std::size_t number = sections.size();
    HelpSection section{
        QStringLiteral("Μάθημα · Lesson %1: ").arg(number + 1) + text(lesson.title, " · "),
        {},
        {},
        linkOf(number),
        QStringLiteral("Στήσε το · Set it up")};
    for (const lessons::Part& part : parts(lesson)) {
      section.rows.push_back({text(part.name, " · "), text(part.words, "\n")});
    }
    sections.push_back(std::move(section));
  }
  return sections;
}

// What is told of every screen.
std::vector<HelpSection> commonSections() {
  std::vector<HelpSection> sections;
  for (const Scope& scope : scopes) {
    HelpSection section{scope.heading, scope.lead, {}, {}, {}};
    for (const Key& key : keys()) {
      if (key.scope != scope.scope) continue;
      section.rows.push_back(
          {key.name, QString::fromUtf8(key.greek) + '\n' + QString::fromUtf8(key.english)});
    }
    sections.push_back(std::move(section));
  }
  for (HelpSection& lesson : lessonSections()) sections.push_back(std::move(lesson));
  return sections;
}

// The screen that keys go to, or else one that is seen.
Form* formInFront() {
  if (auto* active = qobject_cast<Form*>(QApplication::activeWindow())) return active;
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<Form*>(window);
    if (form != nullptr && form->isVisible()) return form;
  }
  return nullptr;
}

}  // namespace

std::vector<HelpSection> helpFor(const Form& screen) {
  static const std::vector<HelpSection> common = commonSections();
  std::vector<HelpSection> sections{thingsOf(screen)};
  sections.insert(sections.end(), common.begin(), common.end());
  return sections;
}

Help::Help(std::function<void(std::size_t)> setUp) : setUp_(std::move(setUp)) {
  connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &Help::focusCameTo);
}

Help::~Help() = default;

void Help::open() {
  Form* screen = formInFront();
  if (screen == nullptr) return;
  if (!window_) {
    window_ = std::make_unique<HelpWindow>();
    window_->onClose = [this] {
      if (front_) front_->activateWindow();
    };
    window_->onLink = [this](const QString& link) {
      for (std::size_t i = 0; i < lessons::all().size(); ++i) {
        if (linkOf(i) == link) setUp_(i);
      }
    };
  }
  tellOf(*screen);
  window_->openBeside(*screen);
}

void Help::focusCameTo(const QWindow* window) {
  if (window == nullptr || !window_ || !window_->isVisible()) return;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    auto* form = qobject_cast<Form*>(widget);
    if (form == nullptr || form == front_ || form->windowHandle() != window) continue;
    tellOf(*form);
    break;
  }
}

void Help::tellOf(Form& screen) {
  if (front_) front_->drawingArea()->removeEventFilter(this);
  front_ = &screen;
  screen.drawingArea()->installEventFilter(this);
  window_->show(helpFor(screen));
  window_->stayAbove(screen);
}

bool Help::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() != QEvent::Paint || stale_ || !window_->isVisible()) return false;
  // Once the painting is over, and once for all that is painted until then.
  stale_ = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        stale_ = false;
        if (front_) window_->show(helpFor(*front_));
      },
      Qt::QueuedConnection);
  return false;
}

}  // namespace lensbench
