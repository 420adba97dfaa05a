#include "tests/monkey/Monkey.h"

#include <algorithm>
#include <utility>
#include <vector>

#include <QAction>
#include <QApplication>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPrinter>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include "app/Help.h"
#include "app/Screens.h"
#include "canvas/RuntimeError.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/Keys.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/help/Lessons.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/PictureOf.h"
#include "tests/support/ByHand.h"
#include "tests/support/HandClock.h"

namespace lensbench {
namespace {

// Longer than the program waits for a window manager, so that what a window does then does not
// depend on how fast the machine is. Milliseconds.
constexpr int stateSettles = 150;

void send(QWidget& area, QEvent::Type type, QPoint at, Qt::MouseButton button, bool shift) {
  const bool moves = type == QEvent::MouseMove;
  const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, at, area.mapToGlobal(at), moves ? Qt::NoButton : button, held,
                    shift ? Qt::ShiftModifier : Qt::NoModifier);
  QCoreApplication::sendEvent(&area, &event);
}

template <class Screen>
QString faultOf(Screen& screen) {
  if (!screen.isVisible() || showsItsValue(screen)) return {};
  return QStringLiteral("the picture of %1 is not what its value gives").arg(screen.objectName());
}

}  // namespace

struct Monkey::Program {
  Program() { Main(screens); }

  FakeDialogs boxes;
  HandClock clock;
  Actions actions;
  Screens screens{boxes, clock, actions};
};

Monkey::Monkey(unsigned seed, std::function<void(const QString&)> tell)
    : random_(seed), tell_(std::move(tell)), program_(std::make_unique<Program>()) {
  qApp->installEventFilter(this);
}

Monkey::~Monkey() = default;

Screens& Monkey::screens() { return program_->screens; }

void Monkey::startAnew() {
  program_.reset();
  program_ = std::make_unique<Program>();
}

int Monkey::act() {
  try {
    choose();
    QCoreApplication::processEvents();
    // Outside the toolkit's own loop nobody else takes these away.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    if (std::exchange(changesState_, false)) QTest::qWait(stateSettles);
  } catch (const RuntimeError& error) {
    return error.number();
  }
  return 0;
}

QString Monkey::fault() {
  const QString pictures =
      faultOf(screens().kelmo()) + faultOf(screens().moniaktina()) + faultOf(screens().ElSahl());
  if (!pictures.isEmpty()) return pictures;
  const auto all = forms();
  const bool any =
      std::any_of(all.begin(), all.end(), [](const Form* form) { return form->isVisible(); });
  return any ? QString() : QStringLiteral("no screen is in sight");
}

bool Monkey::eventFilter(QObject* /*watched*/, QEvent* event) {
  if (event->type() == QEvent::WindowStateChange) changesState_ = true;
  return false;
}

std::array<Form*, 4> Monkey::forms() {
  return {&screens().kelmo(), &screens().moniaktina(), &screens().eisagogiko(),
          &screens().ElSahl()};
}

Form& Monkey::anyFormInSight() {
  for (;;) {
    Form& form = *anyOf(forms());
    if (form.isVisible()) return form;
  }
}

template <typename Part>
Part* Monkey::anyPart(Form& form) {
  QList<Part*> all = form.findChildren<Part*>();
  // The toolkit's own parts: tool tips come and go with time, and the button of a menu bar that is
  // too short opens a menu that waits for a hand.
  all.removeIf([](const Part* part) {
    return part->objectName().isEmpty() || part->objectName().startsWith("qt");
  });
  return all.isEmpty() ? nullptr : all[below(static_cast<int>(all.size()))];
}

void Monkey::say(const QString& what) {
  last_ = form_ + ' ' + what;
  if (tell_) tell_(last_);
}

void Monkey::prepareAnswers() {
  static const QStringList answers{"0", "45°", "−90", "90", "120", "-35,5", "1e9", "720", "89.999"};
  FakeDialogs& boxes = program_->boxes;
  boxes.answer = below(5) == 0 ? std::nullopt : std::optional(anyOf(answers));
  const char* const kinds[] = {"png", "svg", "pdf"};
  const QString file = folder_.filePath(QStringLiteral("picture.") + anyOf(kinds));
  boxes.fileName = below(2) == 0 ? std::nullopt : std::optional(file);
  const Printing printing[] = {Printing::Wanted, Printing::Cancelled, Printing::NoPrinter};
  boxes.printing = [this, chosen = anyOf(printing)](QPrinter& printer) {
    printer.setOutputFileName(folder_.filePath("page.pdf"));
    return chosen;
  };
  // What the boxes have been told is nobody's to read here.
  for (QStringList* told :
       {&boxes.messages, &boxes.prompts, &boxes.titles, &boxes.defaults, &boxes.proposed}) {
    told->clear();
  }
}

void Monkey::choose() {
  prepareAnswers();
  Form& form = anyFormInSight();
  form_ = form.objectName();
  switch (below(32)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
      return slide(form);
    case 6:
    case 7:
    case 8:
    case 9:
    case 10:
    case 11:
      return drag(form);
    case 12:
    case 13:
      return trigger(form);
    case 14:
    case 15:
      return press(form);
    case 16:
    case 17:
    case 18:
      return tick();
    case 19: {
      const QSize size{200 + below(600), 150 + below(450)};
      say(QStringLiteral("size %1 x %2").arg(size.width()).arg(size.height()));
      return form.resize(size);
    }
    case 20:
    case 21:
      return window(form);
    case 22:
    case 23:
    case 24:
      return key(form);
    case 25:
      return wheel(form);
    case 26:
    case 27:
      return type(form);
    case 28:
      return hover(form);
    case 29:
      return goBackAndForth();
    case 30:
      return help();
    default:
      return lesson();
  }
}

void Monkey::slide(Form& form) {
  auto* bar = anyPart<QScrollBar>(form);
  if (bar == nullptr) return say("nothing");
  const int where = below(8);
  // The ends of a range are where things happen.
  const int to = where == 0   ? bar->minimum()
                 : where == 1 ? bar->maximum()
                              : bar->minimum() + below(bar->maximum() - bar->minimum() + 1);
  say(QStringLiteral("%1 to %2").arg(bar->objectName()).arg(to));
  bar->setValue(to);
}

QPoint Monkey::anywhere(const QWidget& area) {
  return {below(area.width() + 100) - 50, below(area.height() + 100) - 50};
}

void Monkey::drag(Form& form) {
  QWidget& area = *form.drawingArea();
  const Qt::MouseButton button = below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
  const bool shift = below(3) == 0;
  QPoint from = anywhere(area);
  if (below(2) == 0) from.setY(area.height() / 2 + below(21) - 10);  // near the axis
  if (below(3) == 0) from.setX(area.width() / 2 + below(21) - 10);   // near the blades
  // Now and then only a part of a drag, so that other things happen in its middle.
  const bool pressed = below(5) != 0;
  const bool released = below(5) != 0;
  std::vector<QPoint> way{below(4) == 0 ? from : anywhere(area)};
  for (int more = below(3); more > 0; --more) way.push_back(anywhere(area));
  QString told = QStringLiteral("%1 button%2")
                     .arg(button == Qt::LeftButton ? "left" : "right", shift ? " with Shift" : "");
  if (pressed) told += QStringLiteral(", pressed at %1,%2").arg(from.x()).arg(from.y());
  for (const QPoint& at : way) told += QStringLiteral(", moved to %1,%2").arg(at.x()).arg(at.y());
  if (released) told += ", released";
  say(told);
  if (pressed) send(area, QEvent::MouseButtonPress, from, button, shift);
  for (const QPoint& at : way) send(area, QEvent::MouseMove, at, button, shift);
  if (released) send(area, QEvent::MouseButtonRelease, way.back(), button, shift);
}

// The pointer comes there without a button, and rests.
void Monkey::hover(Form& form) {
  QWidget& area = *form.drawingArea();
  const QPoint at = anywhere(area);
  say(QStringLiteral("pointer at %1,%2").arg(at.x()).arg(at.y()));
  send(area, QEvent::MouseMove, at, Qt::NoButton, false);
  QHelpEvent rest(QEvent::ToolTip, at, area.mapToGlobal(at));
  QCoreApplication::sendEvent(&area, &rest);
}

void Monkey::trigger(Form& form) {
  auto* entry = anyPart<QAction>(form);
  // These end the program.
  if (entry == nullptr || entry->objectName() == "TELIOMA" || entry->objectName() == "TELOS")
    return say("nothing");
  say(entry->objectName());
  entry->trigger();
}

void Monkey::press(Form& form) {
  auto* button = anyPart<QAbstractButton>(form);
  if (button == nullptr) return say("nothing");
  say(button->objectName());
  button->click();
}

// A key of the program, or one that controls wait for, where the keyboard is.
void Monkey::key(Form& form) {
  static const std::vector<QKeyCombination> ofControls{
      Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_End, Qt::Key_Up, Qt::Key_7, Qt::Key_Minus};
  QWidget* at = form.focusWidget();
  if (at == nullptr || below(2) == 0) at = form.drawingArea();
  const int enters = below(6);
  const auto& combinations = below(4) == 0 ? ofControls : anyOf(keys()).combinations;
  const QKeyCombination pressed = anyOf(combinations);
  say(QStringLiteral("key %1 at %2")
          .arg(QKeySequence(pressed).toString(QKeySequence::PortableText), at->objectName()));
  if (enters == 0) at->setFocus(Qt::TabFocusReason);
  QTest::keyClick(at, pressed.key(), pressed.keyboardModifiers());
}

void Monkey::wheel(Form& form) {
  QWidget* over = anyPart<QWidget>(form);
  if (over == nullptr) return say("nothing");
  const int notches = below(9) - 4;
  const Qt::KeyboardModifiers held = below(3) == 0 ? Qt::ControlModifier : Qt::NoModifier;
  say(QStringLiteral("wheel by %1 over %2%3")
          .arg(notches)
          .arg(over->objectName(), held ? " with Ctrl" : ""));
  turnWheel(*over, notches, held);
}

// A number into a box, right or wrong, entered, given up or left standing.
void Monkey::type(Form& form) {
  static const QStringList numbers{"0", "1", "57", "120,5", "-12.25", "1.7", "1e9", "500", "9x"};
  QWidget* box = anyPart<QWidget>(form);
  if (box == nullptr) return say("nothing");
  const QString number = anyOf(numbers);
  const int then = below(4);
  say(QStringLiteral("%1 typed into %2, %3")
          .arg(number, box->objectName(),
               then == 0   ? "given up"
               : then == 1 ? "left"
                           : "entered"));
  typeInto(form, *box, number);
  ValueField* field = fieldOn(form);
  if (field == nullptr || then == 1) return;
  QTest::keyClick(field, then == 0 ? Qt::Key_Escape : Qt::Key_Return);
}

void Monkey::window(Form& form) {
  switch (below(8)) {
    case 0:
      say("minimised");
      return form.showMinimized();
    case 1:
      say("maximised");
      return form.showMaximized();
    case 2:
      say("ordinary");
      return form.showNormal();
    case 3: {
      const QPoint to{below(300) - 100, below(300) - 100};
      say(QStringLiteral("moved to %1,%2").arg(to.x()).arg(to.y()));
      return form.move(to);
    }
    case 4:
      say("in front");
      return form.Show();
    case 5: {
      const int k = 1 + below(2);
      say(QStringLiteral("oversampling %1").arg(k));
      return form.canvas().setOversampling(k);
    }
    case 6: {
      const double ratio = 1.0 + 0.5 * below(3);
      say(QStringLiteral("pixel ratio %1").arg(ratio));
      return form.canvas().resize(form.canvas().size(), ratio);
    }
    default:
      say("close box");
      // That of the workbench ends the program.
      if (&form != &screens().kelmo()) form.close();
  }
}

void Monkey::goBackAndForth() {
  form_ = "program";
  const int steps = 1 + below(6);
  const bool back = below(3) != 0;
  say(QStringLiteral("%1 %2 times").arg(back ? "undo" : "redo").arg(steps));
  for (int i = 0; i < steps; ++i) back ? screens().undo() : screens().redo();
}

void Monkey::help() {
  form_ = "program";
  const HelpWindow* window = screens().helpWindow().window();
  const int what = below(3);
  if (window == nullptr || !window->isVisible()) {
    say("help");
    return screens().help();
  }
  auto* text = window->findChild<QTextBrowser*>();
  if (what == 0) {
    // How long the text is comes out while it is laid out bit by bit.
    const int tenth = below(11);
    say(QStringLiteral("help read at %1 tenths").arg(tenth));
    QScrollBar& bar = *text->verticalScrollBar();
    return bar.setValue(bar.maximum() * tenth / 10);
  }
  say("help closed");
  QTest::keyClick(text, Qt::Key_Escape);
}

void Monkey::lesson() {
  form_ = "program";
  const int number = below(static_cast<int>(lessons::all().size()));
  say(QStringLiteral("lesson %1").arg(number));
  screens().startLesson(static_cast<std::size_t>(number));
}

void Monkey::tick() {
  form_ = "program";
  const int ticks = below(4) == 0 ? 1 + below(60) : 1;
  say(QStringLiteral("%1 ticks").arg(ticks));
  for (int i = 0; i < ticks; ++i) {
    for (HandTicks* source : program_->clock.made) {
      if (source->running) source->onTick();
    }
  }
}

}  // namespace lensbench
