// Plays a seeded sequence of input over the handlers of all four screens, through the real forms,
// and logs what changes: drawing operations of each picture, texts, values, timers, windows, boxes.
//
// Nothing that is logged depends on installed fonts, the display or the toolkit's version: the
// drawing areas have fixed sizes, the mouse acts at places in user units, and numbers are rounded.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "app/Screens.h"
#include "canvas/qt/Form.h"
#include "screens/Handlers.h"
#include "tests/screens/support/FakeDialogs.h"
#include "tests/support/HandClock.h"

namespace lensbench {

class Player {
 public:
  Player();
  ~Player();

  // Every action once, screen by screen, and then so many at random.
  void play(int random);

  const std::vector<std::string>& log() const { return log_; }

 private:
  struct World;
  struct Action {
    std::string name;
    std::function<void()> run;
  };

  void start();
  void step(const Action& action);
  void compare();
  std::map<std::string, std::string> state();
  template <class Screen>
  void addPicture(std::map<std::string, std::string>& all, const std::string& name, Screen& screen);
  void fixSizes();

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  void note(const std::string& detail) { detail_ += " " + detail; }
  void slide(Form& form, const char* name);
  void click(Form& form, const char* name);
  void entry(Form& form, const char* name);
  void ask(Form& form, const char* name);
  void tick(const char* timer);
  void send(Form& form, int type, Point at, int buttons, bool shift);
  void press(Form& form, Point at, bool shift, int button = 1);
  void drag(Form& form, Point from, Point to);
  Point anywhere(double halfWidth, double halfHeight);

  std::vector<Action> workbench();
  std::vector<Action> singleRay();
  std::vector<Action> lensMenu();
  std::vector<Action> ibnSahl();
  std::vector<Action> possible();

  std::mt19937 random_{20260101u};
  std::unique_ptr<World> world_;
  std::map<std::string, std::string> last_;
  std::string detail_;
  std::vector<std::string> log_;
};

}  // namespace lensbench
