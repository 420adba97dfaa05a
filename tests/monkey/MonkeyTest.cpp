// Thousands of random actions over all four screens. Only the errors that a student's action is
// known to raise may come out of a handler, and after every action the image of each screen is, bit
// for bit, what drawing its value from nothing gives.
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>

#include "app/Screens.h"
#include "canvas/RuntimeError.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/Handlers.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/screens/support/PictureOf.h"
#include "tests/support/HandClock.h"

namespace lensbench {
namespace {

class Monkey {
 public:
  explicit Monkey(unsigned seed) : random_(seed) { Main(screens_); }

  // One action; the number of the error that came out of it, or 0.
  int act() {
    try {
      choose();
      QCoreApplication::processEvents();
    } catch (const RuntimeError& error) {
      return error.number();
    }
    return 0;
  }

  const QString& lastAction() const { return last_; }

  // The law for the screen that was acted on.
  bool lastShowsItsValue() {
    return lastForm_ == &screens_.kelmo()        ? showsItsValue(screens_.kelmo())
           : lastForm_ == &screens_.moniaktina() ? showsItsValue(screens_.moniaktina())
           : lastForm_ == &screens_.ElSahl()     ? showsItsValue(screens_.ElSahl())
                                                 : true;
  }
  bool allShowTheirValues() {
    return showsItsValue(screens_.kelmo()) && showsItsValue(screens_.moniaktina()) &&
           showsItsValue(screens_.ElSahl());
  }
  bool anyWindowInSight() {
    const auto all = forms();
    return std::any_of(all.begin(), all.end(), [](const Form* form) { return form->isVisible(); });
  }

 private:
  int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

  std::array<Form*, 4> forms() {
    return {&screens_.kelmo(), &screens_.moniaktina(), &screens_.eisagogiko(), &screens_.ElSahl()};
  }

  Form& anyVisibleForm() {
    for (;;) {
      Form& form = *forms()[static_cast<std::size_t>(below(4))];
      if (form.isVisible()) return form;
    }
  }

  template <typename Widget>
  Widget* anyOf(Form& form) {
    QList<Widget*> all = form.findChildren<Widget*>();
    // The toolkit's own parts, such as the button of a menu bar that is too short, open menus that
    // wait for a hand.
    all.removeIf([](const Widget* part) {
      return part->objectName().isEmpty() || part->objectName().startsWith("qt_");
    });
    return all.isEmpty() ? nullptr : all[below(static_cast<int>(all.size()))];
  }

  void choose() {
    static const QStringList answers{"0",     "45°", "−90", "90",    "120",
                                     "-35,5", "1e9", "720", "89.999"};
    Form& form = anyVisibleForm();
    lastForm_ = &form;
    boxes_.answer = below(5) == 0 ? std::optional<QString>() : answers[below(9)];
    switch (below(12)) {
      case 0:
      case 1:
      case 2:
        return slide(form);
      case 3:
      case 4:
      case 5:
        return drag(form);
      case 6:
        return trigger(form);
      case 7:
        return press(form);
      case 8:
      case 9:
        return tick();
      case 10:
        last_ = form.objectName() + " resize";
        return form.resize(200 + below(900), 150 + below(600));
      default:
        return window(form);
    }
  }

  void window(Form& form) {
    const int what = below(8);
    last_ = form.objectName() + QStringLiteral(" window %1").arg(what);
    switch (what) {
      case 0:
        return form.showMinimized();
      case 1:
        return form.showMaximized();
      case 2:
        return form.showNormal();
      case 3:
        return form.move(below(300) - 100, below(300) - 100);
      case 4:
        return form.Show();
      case 5:
        return form.canvas().setOversampling(1 + below(2));
      case 6:
        return form.canvas().resize(form.canvas().size(), 1.0 + 0.5 * below(3));
      default:
        // The close box of the workbench ends the program.
        if (&form != &screens_.kelmo()) form.close();
    }
  }

  void slide(Form& form) {
    auto* bar = anyOf<QScrollBar>(form);
    if (bar == nullptr) return;
    last_ = form.objectName() + ' ' + bar->objectName();
    const int range = bar->maximum() - bar->minimum();
    const int where = below(8);
    // The ends of a range are where things happen.
    bar->setValue(where == 0   ? bar->minimum()
                  : where == 1 ? bar->maximum()
                               : bar->minimum() + below(range + 1));
  }

  QPoint anywhere(const QWidget& area) {
    return {below(area.width() + 100) - 50, below(area.height() + 100) - 50};
  }

  void send(QWidget& area, QEvent::Type type, QPoint at, Qt::MouseButton button, bool shift) {
    const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, at, area.mapToGlobal(at),
                      type == QEvent::MouseMove ? Qt::NoButton : button, held,
                      shift ? Qt::ShiftModifier : Qt::NoModifier);
    QCoreApplication::sendEvent(&area, &event);
  }

  void drag(Form& form) {
    QWidget& area = *form.drawingArea();
    const Qt::MouseButton button = below(5) == 0 ? Qt::RightButton : Qt::LeftButton;
    const bool shift = below(3) == 0;
    QPoint from = anywhere(area);
    if (below(2) == 0) from.setY(area.height() / 2 + below(21) - 10);  // near the axis
    if (below(3) == 0) from.setX(area.width() / 2 + below(21) - 10);   // near the blades
    const QPoint to = below(4) == 0 ? from : anywhere(area);
    // Now and then only a part of a drag, so that other things happen in its middle.
    const bool press = below(5) != 0;
    const bool release = below(5) != 0;
    last_ = form.objectName() + QStringLiteral(" drag %1,%2 to %3,%4 (%5%6)")
                                    .arg(from.x())
                                    .arg(from.y())
                                    .arg(to.x())
                                    .arg(to.y())
                                    .arg(press)
                                    .arg(release);
    if (press) send(area, QEvent::MouseButtonPress, from, button, shift);
    send(area, QEvent::MouseMove, to, button, shift);
    if (release) send(area, QEvent::MouseButtonRelease, to, button, shift);
  }

  void trigger(Form& form) {
    auto* entry = anyOf<QAction>(form);
    if (entry == nullptr || entry->objectName() == "TELIOMA" || entry->objectName() == "TELOS")
      return;
    last_ = form.objectName() + ' ' + entry->objectName();
    entry->trigger();
  }

  void press(Form& form) {
    auto* button = anyOf<QAbstractButton>(form);
    if (button == nullptr) return;
    last_ = form.objectName() + ' ' + button->objectName();
    button->click();
  }

  void tick() {
    last_ = "tick";
    lastForm_ = &screens_.kelmo();
    for (HandTicks* ticks : clock_.made) {
      if (ticks->running) ticks->onTick();
    }
  }

  FakeDialogs boxes_;
  HandClock clock_;
  Actions actions_;
  Screens screens_{boxes_, clock_, actions_};
  std::mt19937 random_;
  QString last_;
  Form* lastForm_ = nullptr;
};

// Which errors an action of a student is known to raise: a radius of 0 on the single-ray screen and
// an aim straight above or below the source there (11), and waves asked for more rays than their
// tables hold (9).
bool isNamed(int error, const QString& action) {
  if (error == 11) return action.startsWith("moniaktina");
  if (error == 9) return action == "kelmo kymatachronika";
  return false;
}

class MonkeyTest : public ::testing::TestWithParam<unsigned> {};

TEST_P(MonkeyTest, OnlyNamedErrorsComeOutAndEveryImageIsThatOfItsValue) {
  unsigned seed = GetParam() * 1000;
  auto monkey = std::make_unique<Monkey>(seed);
  int survived = 0;
  constexpr int actions = 600;
  for (int i = 0; i < actions; ++i) {
    const int error = monkey->act();
    if (error == 0) {
      ++survived;
      // What one screen does reaches no other; now and then that is looked at too.
      ASSERT_TRUE(i % 20 == 0 ? monkey->allShowTheirValues() : monkey->lastShowsItsValue())
          << "after action " << i << ": " << monkey->lastAction().toStdString();
      ASSERT_TRUE(monkey->anyWindowInSight()) << monkey->lastAction().toStdString();
      continue;
    }
    ASSERT_TRUE(isNamed(error, monkey->lastAction()))
        << "error " << error << " at action " << i << ": " << monkey->lastAction().toStdString();
    // The program has ended; the student starts it again.
    monkey.reset();
    monkey = std::make_unique<Monkey>(++seed);
  }
  EXPECT_GT(survived, actions * 2 / 3);
}

INSTANTIATE_TEST_SUITE_P(Seeds, MonkeyTest, ::testing::Range(1u, 9u));

}  // namespace
}  // namespace lensbench
