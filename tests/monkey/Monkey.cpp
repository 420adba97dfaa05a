#include "tests/monkey/Monkey.h"

#include <algorithm>
#include <utility>

#include <QApplication>
#include <QPrinter>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>

#include "app/Help.h"
#include "app/Screens.h"
#include "canvas/RuntimeError.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/help/Lessons.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/PictureOf.h"
#include "tests/support/HandClock.h"

namespace lensbench {
namespace {

// Longer than the program waits for a window manager, so that what a window does then does not
// depend on how fast the machine is. Milliseconds.
constexpr int stateSettles = 150;

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
