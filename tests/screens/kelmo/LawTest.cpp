// Whatever is done on the workbench, in whatever order: after every single action the picture is
// bit for bit what its value gives when it is drawn from nothing.
#include <functional>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {
namespace {

class LawTest : public KelmoTest, public ::testing::WithParamInterface<unsigned> {
 protected:
  LawTest() { giveSize({500, 300}); }

  int upTo(int most) { return std::uniform_int_distribution(0, most)(chance); }
  double between(double a, double b) { return std::uniform_real_distribution(a, b)(chance); }
  Point anywhere() {
    return {between(1.1 * edges().left, 1.1 * edges().right),
            between(1.1 * edges().lower, 1.1 * edges().upper)};
  }
  // Mostly something that can be taken, in sight or by the mark that stands for it.
  Point grip() {
    std::vector<Point> marked;
    for (const EdgeMark* mark : {&c.upperBladeMark, &c.lowerBladeMark, &c.sourceMark}) {
      if (mark->Visible()) marked.push_back(centreOf(*mark));
    }
    if (!marked.empty() && upTo(2) == 0) {
      return marked[static_cast<std::size_t>(upTo(static_cast<int>(marked.size()) - 1))];
    }
    const auto d = blades();
    const Point grips[] = {{d.X, (d.yA + edges().upper) / 2.0},
                           {d.X, (d.yB + edges().lower) / 2.0},
                           {d.X, (d.yA + d.yB) / 2.0},
                           {screen.xc1(), 0.0},
                           {screen.xc2(), 0.0},
                           {screen.xc1() + screen.R1(), 0.0},
                           {screen.xc2() - screen.R2(), 0.0},
                           anywhere()};
    return grips[upTo(7)];
  }
  void moveSome(ScrollBar& bar) { bar.Value(bar.Min() + upTo(bar.Max() - bar.Min())); }

  // A drag through many places, in which waves move on and the window changes its size.
  void dragAbout() {
    const Point from = grip();
    press(from.x, from.y);
    for (int i = 5 + upTo(15); i > 0; --i) {
      const Point p = anywhere();
      drag(p.x, p.y);
      tick(upTo(1) == 0 ? c.Timer1 : c.Timer2);
      if (upTo(9) == 0) giveSize({450 + upTo(200), 250 + upTo(150)});
      ASSERT_TRUE(samePicture(picture(), drawn(screen.shown()))) << "in a long drag";
    }
    const Point to = anywhere();
    if (upTo(1) == 0) return release(to.x, to.y);
    loseRelease();
    drag(to.x, to.y);
  }

  std::vector<std::pair<std::string, std::function<void()>>> actions() {
    std::vector<std::pair<std::string, std::function<void()>>> all;
    for (ScrollBar* bar :
         {&c.aktina1, &c.aktina2, &c.kentrokykloy, &c.kentrokykloy2, &c.deiktisdiathlasis,
          &c.desmi1, &c.arvimaton, &c.HScroll1, &c.VScroll1, &c.VScroll2}) {
      all.emplace_back(bar->objectName().toStdString(), [this, bar] { moveSome(*bar); });
    }
    all.emplace_back("press", [this] { press(grip().x, grip().y); });
    all.emplace_back("Shift press", [this] {
      const Point p = anywhere();
      press(p.x, p.y, Qt::ShiftModifier);
    });
    all.emplace_back("move", [this] { drag(anywhere().x, anywhere().y); });
    all.emplace_back("release", [this] { release(anywhere().x, anywhere().y); });
    all.emplace_back("long drag", [this] { dragAbout(); });
    all.emplace_back("lost release", [this] { loseRelease(); });
    all.emplace_back("bundle",
                     [this] { sendBundle(QString::number(between(-80.0, 80.0), 'f', 2)); });
    all.emplace_back("plane waves", [this] { c.parallilakymata.trigger(); });
    all.emplace_back("waves in time", [this] {
      // More rays than may carry moving waves end the program.
      if (poreiaaktinon::rayCount(screen.vima()) > 1501) c.arvimaton.Value(100);
      c.kymatachronika.trigger();
    });
    for (Timer* timer : {&c.Timer1, &c.Timer2}) {
      all.emplace_back(timer->objectName().toStdString(),
                       [this, timer] { ticks(*timer, 1 + upTo(60)); });
      all.emplace_back("one tick", [this, timer] { tick(*timer); });
    }
    all.emplace_back("rays and waves", [this] { c.Check1.click(); });
    all.emplace_back("only waves", [this] { c.Check2.click(); });
    all.emplace_back("size", [this] { giveSize({450 + upTo(200), 250 + upTo(150)}); });
    all.emplace_back("oversampling", [this] { screen.canvas().setOversampling(1 + upTo(1)); });
    all.emplace_back("pixel ratio", [this] {
      screen.canvas().resize(screen.canvas().size(), 1.0 + 0.5 * upTo(2));
    });
    all.emplace_back("hide and show", [this] {
      screen.Hide();
      screen.Show();
    });
    return all;
  }

  std::mt19937 chance{GetParam()};
};

TEST_P(LawTest, ThePictureIsWhatItsValueGives) {
  c.desmi1.Value(12);
  openDiaphragm();
  std::string done;
  const auto all = actions();
  for (int i = 0; i < 150; ++i) {
    const auto& [name, act] = all[static_cast<std::size_t>(upTo(static_cast<int>(all.size()) - 1))];
    done += name + "; ";
    act();
    if (HasFatalFailure()) FAIL() << done;
    ASSERT_TRUE(samePicture(picture(), drawn(screen.shown()))) << done;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, LawTest, ::testing::Range(1U, 9U));

}  // namespace
}  // namespace lensbench
