#include "tests/golden/Player.h"

#include <array>
#include <cmath>
#include <iterator>
#include <utility>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QMouseEvent>

#include "canvas/Recording.h"
#include "canvas/RuntimeError.h"
#include "canvas/qt/CheckBox.h"
#include "canvas/qt/Label.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/OptionButton.h"
#include "canvas/qt/ScrollBar.h"
#include "canvas/qt/TextBox.h"
#include "canvas/qt/Timer.h"
#include "optics/light/Vector.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {

// The end of the program, which in a test must not end the process.
struct Ended {};
class MortalScreens final : public Screens {
 public:
  using Screens::Screens;
  [[noreturn]] void End() override { throw Ended{}; }
};

namespace {

constexpr int leftMouse = 1;
constexpr int rightMouse = 2;

// A number in ten thousandths. The boundaries between them lie where no number is that a screen
// makes, so that a last bit that differs from machine to machine moves none across.
long long rounded(double value) { return static_cast<long long>(std::floor(value * 1e4 + 0.3217)); }
std::string shown(double value) {
  const long long units = rounded(value);
  const std::string digits = std::to_string(std::llabs(units) % 10000 + 10000).substr(1);
  return (units < 0 ? "-" : "") + std::to_string(std::llabs(units) / 10000) + "." + digits;
}
std::string shown(Point p) { return shown(p.x) + "," + shown(p.y); }

class Hash {
 public:
  void add(std::uint64_t bits) {
    for (int i = 0; i < 64; i += 8) addByte(bits >> i);
  }
  void add(double value) { add(static_cast<std::uint64_t>(rounded(value))); }
  void add(const std::string& text) {
    for (const char c : text) addByte(static_cast<unsigned char>(c));
    addByte(0);
  }
  std::string text() const {
    constexpr const char* digits = "0123456789abcdef";
    std::string out;
    for (int i = 60; i >= 0; i -= 4) out += digits[(state_ >> i) & 15];
    return out;
  }

 private:
  void addByte(std::uint64_t byte) { state_ = (state_ ^ (byte & 255)) * 1099511628211u; }

  std::uint64_t state_ = 14695981039346656037u;
};

// Where a fill starts is a whole pixel, which a last bit can move; its body tells what is filled.
void add(Hash& hash, const Operation& op) {
  hash.add(static_cast<std::uint64_t>(op.kind));
  if (op.kind != Operation::Kind::FloodFill) {
    for (const double value : {op.x1, op.y1, op.x2, op.y2, op.radius}) hash.add(value);
  }
  hash.add(std::uint64_t{op.colour.value});
  hash.add(static_cast<std::uint64_t>(op.width));
  hash.add(static_cast<std::uint64_t>(op.style));
  hash.add(std::uint64_t{op.fill ? op.fill->value + 1u : 0u});
  for (const CircleArc& arc : op.body.outline) {
    for (const double value : {arc.centre.x, arc.centre.y, arc.radius, arc.start, arc.end}) {
      hash.add(value);
    }
  }
  hash.add(op.text);
  if (op.kind == Operation::Kind::Print) {
    hash.add(op.font.name);
    hash.add(op.font.size);
  }
}

// How many operations of each kind, and what all of them amount to.
std::string summary(const std::vector<Operation>& operations) {
  constexpr const char* names[] = {"Cls",  "Line",  "Circle",    "Arc",
                                   "PSet", "Print", "FloodFill", "Scale"};
  std::array<int, std::size(names)> counts{};
  Hash hash;
  for (const Operation& op : operations) {
    ++counts[static_cast<std::size_t>(op.kind)];
    add(hash, op);
  }
  std::string text;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (counts[i] > 0) text += std::string(names[i]) + " " + std::to_string(counts[i]) + ", ";
  }
  return text + hash.text();
}

template <class Kind>
Kind* part(Form& form, const char* name) {
  return form.findChild<Kind*>(QString::fromUtf8(name));
}

}  // namespace

struct Player::World {
  FakeDialogs boxes;
  HandClock clock;
  Actions actions;
  MortalScreens screens{boxes, clock, actions};
};

Player::Player() = default;
Player::~Player() = default;

void Player::start() {
  world_ = std::make_unique<World>();
  Main(world_->screens);
  fixSizes();
}

// The drawing areas have the same size everywhere, whatever stands around them; the windows fit the
// smallest display, which would make them smaller.
void Player::fixSizes() {
  Screens& s = world_->screens;
  const auto fix = [](Form& form, const QSize& size) {
    const bool ordinary = !(form.windowState() & (Qt::WindowMaximized | Qt::WindowMinimized));
    if (!form.isVisible() || (ordinary && form.drawingArea()->size() == size)) return;
    form.showNormal();
    QCoreApplication::processEvents();
    form.clientSize(size.width() * twipsPerPixel, size.height() * twipsPerPixel);
    QCoreApplication::processEvents();
  };
  fix(s.kelmo(), {720, 560});
  fix(s.moniaktina(), {640, 560});
  fix(s.ElSahl(), {540, 510});
}

template <class Screen>
void Player::addPicture(std::map<std::string, std::string>& all, const std::string& name,
                        Screen& screen) {
  Recording recording(1200.0, 640.0);
  const Canvas& canvas = screen.canvas();
  recording.Scale(canvas.ScaleLeft(), canvas.ScaleTop(), canvas.ScaleLeft() + canvas.ScaleWidth(),
                  canvas.ScaleTop() + canvas.ScaleHeight());
  recording.forget();
  draw(recording, screen.shown());
  all[name + ".picture"] = summary(recording.operations());
}

std::map<std::string, std::string> Player::state() {
  std::map<std::string, std::string> all;
  Screens& s = world_->screens;
  const auto put = [&](Form& form, const std::string& name, const std::string& value) {
    all[form.objectName().toStdString() + "." + name] = value;
  };
  const auto texts = [&](Form& form, std::initializer_list<const char*> bars,
                         std::initializer_list<const char*> boxes,
                         std::initializer_list<const char*> labels,
                         std::initializer_list<const char*> buttons) {
    put(form, "visible", form.isVisible() ? "yes" : "no");
    put(form, "caption", form.Caption().toStdString());
    for (const char* name : bars)
      put(form, name, std::to_string(part<ScrollBar>(form, name)->Value()));
    for (const char* name : boxes) put(form, name, part<TextBox>(form, name)->Text().toStdString());
    for (const char* name : labels) {
      put(form, name, part<Label>(form, name)->Caption().toStdString());
    }
    for (const char* name : buttons) {
      const auto* button = part<QAbstractButton>(form, name);
      put(form, name, button->isChecked() ? "on" : "off");
    }
  };
  kelmo& k = s.kelmo();
  texts(k,
        {"aktina1", "aktina2", "kentrokykloy", "kentrokykloy2", "deiktisdiathlasis", "desmi1",
         "arvimaton", "HScroll1", "VScroll1", "VScroll2"},
        {"Text1", "Text2", "Text3", "Text4", "Text5", "Text6", "Text7"},
        {"Label1", "Label2", "Label3"}, {"Check1", "Check2"});
  for (const char* name :
       {"singleray", "EPANALIPSI", "SAHLIC", "parallilakymata", "kymatachronika", "TELIOMA"}) {
    const auto* action = part<MenuEntry>(k, name);
    put(k, name, action->Caption().toStdString() + (action->Checked() ? " (checked)" : ""));
  }
  for (const char* name : {"Timer1", "Timer2"}) {
    const auto* timer = part<Timer>(k, name);
    put(k, name,
        std::string(timer->Enabled() ? "enabled " : "disabled ") +
            std::to_string(timer->Interval()));
  }
  const auto diaphragm = [&](Form& form, const light::Diafragma& d) {
    put(form, "diafragma", shown(d.X) + " " + shown(d.yA) + " " + shown(d.yB));
  };
  put(k, "pigi", shown(k.pigi()));
  put(k, "gonia", shown(k.gonia.value()));
  put(k, "set", k.set() ? std::to_string(k.set()->paths->size()) : "none");
  diaphragm(k, k.diafragma());
  addPicture(all, "kelmo", k);

  moniaktina& r = s.moniaktina();
  texts(r, {"aktina1", "aktina2", "kentrokykloy", "deiktisdiathlasis"},
        {"Text2", "Text5", "Text6", "Text7"}, {}, {});
  addPicture(all, "moniaktina", r);

  eisagogiko& m = s.eisagogiko();
  texts(m, {"deiktissahl"}, {}, {"Label1"}, {});

  ElSahl& e = s.ElSahl();
  texts(e, {}, {}, {}, {"onlyrays", "RAYSANDWAVES", "kymataYESNO"});
  diaphragm(e, e.diafragma());
  put(e, "dragging",
      std::string(e.syromenigrammi1 ? "upper" : "") + (e.syromenigrammi2 ? "lower" : ""));
  addPicture(all, "ElSahl", e);
  return all;
}

void Player::compare() {
  auto now = state();
  for (const auto& [key, value] : now) {
    if (const auto before = last_.find(key); before != last_.end() && before->second == value) {
      continue;
    }
    log_.push_back("  " + key + " = " + value);
  }
  last_ = std::move(now);
}

void Player::step(const Action& action) {
  FakeDialogs& boxes = world_->boxes;
  boxes.messages.clear();
  boxes.prompts.clear();
  boxes.titles.clear();
  boxes.defaults.clear();
  detail_.clear();
  std::string end;
  try {
    action.run();
    QCoreApplication::processEvents();
  } catch (const Ended&) {
    end = "  the program ends";
  } catch (const RuntimeError& error) {
    end = "  error " + std::to_string(error.number());
  }
  log_.push_back(action.name + detail_);
  for (int i = 0; i < boxes.prompts.size(); ++i) {
    log_.push_back("  asked: " + boxes.titles[i].toStdString() + " | " +
                   boxes.prompts[i].toStdString() + " | " + boxes.defaults[i].toStdString());
  }
  for (const QString& message : boxes.messages) log_.push_back("  told: " + message.toStdString());
  if (!end.empty()) {
    log_.push_back(end);
    world_.reset();
    start();
  } else {
    fixSizes();
  }
  compare();
}

void Player::slide(Form& form, const char* name) {
  auto* bar = part<ScrollBar>(form, name);
  const int where = below(8);
  const int value = where == 0   ? bar->minimum()
                    : where == 1 ? bar->maximum()
                                 : bar->minimum() + below(bar->maximum() - bar->minimum() + 1);
  note(std::to_string(value));
  bar->setValue(value);
}

void Player::click(Form& form, const char* name) { part<QAbstractButton>(form, name)->click(); }
void Player::entry(Form& form, const char* name) { part<QAction>(form, name)->trigger(); }

void Player::ask(Form& form, const char* name) {
  static const std::vector<const char*> answers{"0",   "20",  "-35.5", "75,25",
                                                "120", "45°", "",      "180"};
  const int which = below(static_cast<int>(answers.size()) + 1);
  world_->boxes.answer.reset();
  if (which < static_cast<int>(answers.size())) {
    world_->boxes.answer = QString::fromUtf8(answers[static_cast<std::size_t>(which)]);
    note(std::string("\"") + answers[static_cast<std::size_t>(which)] + "\"");
  } else {
    note("cancelled");
  }
  entry(form, name);
}

void Player::tick(const char* name) {
  auto* timer = part<Timer>(world_->screens.kelmo(), name);
  const int count = 1 + below(60);
  note(std::to_string(count));
  for (int i = 0; i < count && timer->Enabled() && timer->Interval() > 0; ++i) emit timer->Tick();
}

void Player::send(Form& form, int type, Point at, int buttons, bool shift) {
  const Point place = form.canvas().mapping().toPixel(at);
  const QPointF pixel(place.x, place.y);
  const auto held = Qt::MouseButtons::fromInt(static_cast<Qt::MouseButtons::Int>(buttons));
  const auto kind = static_cast<QEvent::Type>(type);
  const auto button = kind == QEvent::MouseMove            ? Qt::NoButton
                      : kind == QEvent::MouseButtonRelease ? Qt::LeftButton
                      : buttons == rightMouse              ? Qt::RightButton
                                                           : Qt::LeftButton;
  QWidget& area = *form.drawingArea();
  QMouseEvent event(kind, pixel, area.mapToGlobal(pixel), button, held,
                    shift ? Qt::ShiftModifier : Qt::NoModifier);
  QCoreApplication::sendEvent(&area, &event);
}

void Player::press(Form& form, Point at, bool shift, int button) {
  note(shown(at));
  send(form, QEvent::MouseButtonPress, at, button, shift);
  send(form, QEvent::MouseButtonRelease, at, 0, shift);
}

// Now and then it is left on the way: the mouse comes back without its button.
void Player::drag(Form& form, Point from, Point to) {
  note(shown(from) + " to " + shown(to));
  const bool left = below(6) == 0;
  if (left) note("left");
  send(form, QEvent::MouseButtonPress, from, leftMouse, false);
  send(form, QEvent::MouseMove, 0.5 * (from + to), leftMouse, false);
  send(form, QEvent::MouseMove, to, left ? 0 : leftMouse, false);
  if (!left) send(form, QEvent::MouseButtonRelease, to, 0, false);
}

// Off the round numbers, where a last bit would decide what a place is rounded to.
Point Player::anywhere(double halfWidth, double halfHeight) {
  const double x = halfWidth * (below(2001) - 1000) / 1000.0 + 0.0137;
  return {x, halfHeight * (below(2001) - 1000) / 1000.0 + 0.0137};
}

std::vector<Player::Action> Player::workbench() {
  kelmo& k = world_->screens.kelmo();
  std::vector<Action> all;
  const auto add = [&](const char* name, std::function<void()> run) {
    all.push_back({std::string("kelmo ") + name, std::move(run)});
  };
  for (const char* name :
       {"aktina1", "aktina2", "kentrokykloy", "kentrokykloy2", "deiktisdiathlasis", "desmi1",
        "arvimaton", "HScroll1", "VScroll1", "VScroll2"}) {
    add(name, [this, &k, name] { slide(k, name); });
  }
  for (const char* name : {"Check1", "Check2"}) add(name, [this, &k, name] { click(k, name); });
  for (const char* name : {"singleray", "SAHLIC", "parallilakymata", "kymatachronika", "TELIOMA"}) {
    add(name, [this, &k, name] { entry(k, name); });
  }
  add("EPANALIPSI", [this, &k] { ask(k, "EPANALIPSI"); });
  add("close box", [&k] { emit k.CloseBox(); });
  for (const char* name : {"Timer1", "Timer2"}) add(name, [this, name] { tick(name); });
  for (const int times : {1, 2}) {
    add(times == 1 ? "shift press" : "shift press inside",
        [this, &k, times] { press(k, anywhere(380.0 / (times * times), 200.0 / times), true); });
  }
  add("press", [this, &k] { press(k, anywhere(380.0, 200.0), false); });
  add("right press", [this, &k] { press(k, anywhere(380.0, 200.0), true, rightMouse); });
  const auto dragFrom = [&](const char* name, std::function<Point()> from) {
    add(name, [this, &k, from] {
      const Point to = anywhere(200.0, 50.0);
      drag(k, from(), to);
    });
  };
  dragFrom("drag of the upper blade", [&k] {
    return Point{k.diafragma().X, k.diafragma().yA + 4.0};
  });
  dragFrom("drag of the lower blade", [&k] {
    return Point{k.diafragma().X, k.diafragma().yB - 4.0};
  });
  dragFrom("drag of the diaphragm", [&k] {
    return Point{k.diafragma().X, 0.5 * (k.diafragma().yA + k.diafragma().yB)};
  });
  dragFrom("drag of the left centre", [&k] { return Point{k.xc1() - 1.5, 2.0}; });
  dragFrom("drag of the right centre", [&k] { return Point{k.xc2() + 1.5, -2.0}; });
  dragFrom("drag of the left edge", [&k] { return Point{k.xc1() + k.R1() - 0.93, 1.0}; });
  dragFrom("drag of the right edge", [&k] { return Point{k.xc2() - k.R2() + 0.93, -1.0}; });
  dragFrom("drag of nothing", [this] { return anywhere(380.0, 200.0); });
  add("Form_Click", [&k] { k.Form_Click(); });
  add("arxinizo", [&k] { k.arxinizo(); });
  add("drawBundle", [this, &k] { k.drawBundle((below(21) - 10) / 10.0); });
  add("drawWaveScene", [&k] { k.drawWaveScene(); });
  add("desmiMinusOne", [&k] { k.desmiMinusOne(); });
  add("desmiPlusOne", [&k] { k.desmiPlusOne(); });
  add("flipCheck1", [&k] { k.flipCheck1(); });
  return all;
}

std::vector<Player::Action> Player::singleRay() {
  moniaktina& r = world_->screens.moniaktina();
  std::vector<Action> all;
  const auto add = [&](const char* name, std::function<void()> run) {
    all.push_back({std::string("moniaktina ") + name, std::move(run)});
  };
  for (const char* name : {"aktina1", "aktina2", "kentrokykloy", "deiktisdiathlasis"}) {
    add(name, [this, &r, name] { slide(r, name); });
  }
  for (const char* name : {"a ray", "another ray", "a third ray"}) {
    add(name, [this, &r] {
      const Point to = anywhere(350.0, 150.0);
      drag(r, anywhere(350.0, 150.0), to);
    });
  }
  add("right press", [this, &r] { press(r, anywhere(350.0, 150.0), false, rightMouse); });
  add("a ray straight up", [this, &r] {
    const Point from = anywhere(350.0, 100.0);
    drag(r, from, {from.x, from.y + 20.0});
  });
  add("drawLens", [&r] { r.drawLens(); });
  add("close box", [&r] { emit r.CloseBox(); });
  add("Command1", [this, &r] { click(r, "Command1"); });
  return all;
}

std::vector<Player::Action> Player::lensMenu() {
  eisagogiko& m = world_->screens.eisagogiko();
  std::vector<Action> all;
  all.push_back({"eisagogiko deiktissahl", [this, &m] { slide(m, "deiktissahl"); }});
  for (const char* name : {"Command1", "Command2", "Command3"}) {
    all.push_back({std::string("eisagogiko ") + name, [this, &m, name] { click(m, name); }});
  }
  all.push_back({"eisagogiko close box", [&m] { emit m.CloseBox(); }});
  return all;
}

std::vector<Player::Action> Player::ibnSahl() {
  ElSahl& e = world_->screens.ElSahl();
  std::vector<Action> all;
  const auto add = [&](const char* name, std::function<void()> run) {
    all.push_back({std::string("ElSahl ") + name, std::move(run)});
  };
  for (const char* name : {"onlyrays", "kymataYESNO", "RAYSANDWAVES"}) {
    add(name, [this, &e, name] { click(e, name); });
  }
  add("parallilidesmifotos", [this, &e] { ask(e, "parallilidesmifotos"); });
  add("kymatikosahl", [this, &e] { entry(e, "kymatikosahl"); });
  for (const char* name : {"press", "another press"}) {
    add(name, [this, &e] { press(e, anywhere(110.0, 100.0), false); });
  }
  add("right press", [this, &e] { press(e, anywhere(110.0, 100.0), false, rightMouse); });
  const auto dragFrom = [&](const char* name, std::function<Point()> from) {
    add(name, [this, &e, from] {
      const Point to = anywhere(100.0, 40.0);
      drag(e, from(), to);
    });
  };
  dragFrom("drag of the upper edge", [&e] {
    return Point{e.diafragma().X, e.diafragma().yA + 3.0};
  });
  dragFrom("drag of the lower edge", [&e] {
    return Point{e.diafragma().X, e.diafragma().yB - 3.0};
  });
  add("drawFan", [&e] { e.drawFan(); });
  add("TELOS", [this, &e] { entry(e, "TELOS"); });
  add("close box", [&e] { emit e.CloseBox(); });
  add("BACKKELMO", [this, &e] { entry(e, "BACKKELMO"); });
  return all;
}

// What a person can do now: what the windows in sight offer.
std::vector<Player::Action> Player::possible() {
  Screens& s = world_->screens;
  std::vector<Action> all;
  const auto take = [&all](std::vector<Action> some) {
    std::move(some.begin(), some.end(), std::back_inserter(all));
  };
  if (s.kelmo().isVisible()) take(workbench());
  if (s.moniaktina().isVisible()) take(singleRay());
  if (s.eisagogiko().isVisible()) take(lensMenu());
  if (s.ElSahl().isVisible()) take(ibnSahl());
  return all;
}

void Player::play(int random) {
  start();
  compare();
  // Names first: what an action leads to may take the others out of sight or end the program.
  std::set<std::string> left;
  const auto learn = [&](const std::vector<Action>& actions) {
    for (const Action& action : actions) left.insert(action.name);
  };
  learn(workbench());
  learn(singleRay());
  learn(lensMenu());
  learn(ibnSahl());
  for (int i = 0; i < random || !left.empty(); ++i) {
    const auto all = possible();
    // What has not been done yet comes first, every other time.
    std::vector<const Action*> fresh;
    for (const Action& action : all) {
      if (left.contains(action.name)) fresh.push_back(&action);
    }
    const Action& next =
        i % 2 == 0 && !fresh.empty()
            ? *fresh[static_cast<std::size_t>(below(static_cast<int>(fresh.size())))]
            : all[static_cast<std::size_t>(below(static_cast<int>(all.size())))];
    left.erase(next.name);
    const std::string name = next.name;
    step({name, next.run});
  }
}

}  // namespace lensbench
