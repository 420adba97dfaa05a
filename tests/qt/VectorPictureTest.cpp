// Every picture, recorded as vectors, looks like what the screen shows: text apart, a coloured
// pixel of the one has its colour within a pixel and a half in the other, both ways.
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <numbers>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include <QPainter>
#include <QPicture>

#include "canvas/Recording.h"
#include "canvas/qt/PainterCanvas.h"
#include "optics/light/Edges.h"
#include "optics/poreiaaktinon/Picture.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"
#include "optics/protosfakos/Lens.h"
#include "optics/protosfakos/Picture.h"
#include "tests/qt/Alike.h"
#include "tests/qt/Pictures.h"

namespace lensbench {
namespace {

constexpr View wide{{600, 300}, -400, 200, 400, -200};
constexpr View square{{405, 360}, -120, 120, 150, -120};

// What a drawing puts on a vector device, rendered in hard pixels, as those of the screen are.
template <class Drawing>
QImage vectors(const View& view, Drawing&& drawing, std::optional<Rgb> colour = {}) {
  QPicture device;
  QPainter recorder(&device);
  {
    PainterCanvas canvas(recorder, QRectF(QPointF(0, 0), view.size * fine), view.size);
    recorder.setRenderHint(QPainter::Antialiasing, false);
    canvas.Scale(view.left, view.top, view.right, view.bottom);
    Chosen chosen(canvas, view, colour);
    drawing(chosen);
  }
  recorder.end();
  QImage image(view.size * fine, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  device.play(&painter);
  return image;
}

template <class Drawing>
void expectAlike(const std::string& what, const View& view, Drawing&& drawing) {
  SCOPED_TRACE(what);
  Recording recording(view.size.width(), view.size.height());
  drawing(recording);
  std::set<std::uint32_t> colours;
  for (const Operation& op : recording.operations()) colours.insert(op.colour.value);
  // Colour by colour nothing hides anything else, so every single pixel has its like.
  for (const std::uint32_t value : colours) {
    const Rgb colour{value};
    SCOPED_TRACE(value);
    const QImage onScreen = screen(view, drawing, colour);
    const QImage inVectors = vectors(view, drawing, colour);
    EXPECT_TRUE(hasAllOf(onScreen, inVectors, 0.0)) << "missing in vectors";
    EXPECT_TRUE(hasAllOf(inVectors, onScreen, 0.0)) << "missing on the screen";
  }
  // Together, the same lies above, but for specks that the rounding to pixels leaves.
  EXPECT_TRUE(hasAllOf(screen(view, drawing), vectors(view, drawing), 0.01)) << "hidden in vectors";
}

template <class Shown>
void expectShownAlike(const std::string& what, const View& view, const Shown& shown) {
  expectAlike(what, view, [&](Canvas& canvas) { draw(canvas, shown); });
}

namespace spherical {

using namespace poreiaaktinon;

constexpr light::Edges edges{-400, 400, -200, 200};
constexpr Fakos usual{-50, 100, 20, 90};
constexpr Fakos thick{-120, 200, 110, 170};
constexpr Fakos none{-150, 100, 100, 90};
constexpr Fakos partlyOut{0, 450, 500, 600};
constexpr Point onAxis{-250, 0};
constexpr Point offAxis{-250, 40};
const Diafragma narrow{-150, 25, -35};

Sent sent(const Rays& rays, double n = 1.5, std::optional<Diafragma> diafragma = {}) {
  return send({usual, n, diafragma}, rays, edges);
}
double radians(double degrees) { return degrees * std::numbers::pi / 180.0; }

TEST(VectorPicture, OfTheLensScene) {
  const auto expect = [](const char* what, const LensScene& scene) {
    expectShownAlike(what, wide, Shown{{scene}});
  };
  expect("source on the axis", {usual, 1.5, onAxis});
  expect("source off the axis", {usual, 1.5, offAxis});
  expect("source at the right", {usual, 1.5, {260, -30}});
  expect("thin glass", {usual, 0.7, offAxis});
  expect("no power", {usual, 1.0, offAxis});
  expect("thick lens", {thick, 1.8, offAxis});
  expect("no lens", {none, 1.5, offAxis});
  expect("lens partly out of sight", {partlyOut, 1.5, offAxis});
  expect("more than half a circle", {{0, 60, 20, 150}, 1.5, offAxis});
}

TEST(VectorPicture, OfLightThroughTheLens) {
  const LensScene scene{usual, 1.5, offAxis};
  const auto expect = [&](const std::string& what, const Sent& rays) {
    expectShownAlike(what + ", rays", wide, Shown{{scene, Light{rays, {true, false}}}});
    expectShownAlike(what + ", rays and waves", wide, Shown{{Light{rays, {true, true}}}});
    expectShownAlike(what + ", waves only", wide, Shown{{Light{rays, {false, true}}}});
  };
  expect("fan", sent(Fan{offAxis, 5}));
  expect("stopped fan", sent(Fan{offAxis, 5}, 1.5, narrow));
  for (const double degrees : {0.0, 20.0, -75.0}) {
    expect("bundle at " + std::to_string(degrees), sent(Desmi{radians(degrees), 20}));
  }
  expect("stopped bundle", sent(Desmi{radians(20), 20}, 1.5, narrow));
}

TEST(VectorPicture, OfCardinalMarksOverLight) {
  expectShownAlike("marks", wide,
                   Shown{{LensScene{usual, 1.5, offAxis}, Light{sent(Fan{offAxis, 5}), {}},
                          CardinalMarks{usual, 1.5, offAxis}}});
}

TEST(VectorPicture, OfMovingWaves) {
  const WaveScene scene{usual, 1.5};
  for (const Fakos& fakos : {usual, thick, none, partlyOut}) {
    expectShownAlike("white scene", wide, Shown{{WaveScene{fakos, 1.5}}});
  }
  for (const int step : {1, 39, 80, 120, 200}) {
    for (const Rays& rays : {Rays{Fan{offAxis, 1}}, Rays{Desmi{radians(20), 60}}}) {
      expectShownAlike("step " + std::to_string(step), wide,
                       Shown{{scene, Fronts{sent(rays), step}}});
    }
  }
}

TEST(VectorPicture, OfTheSingleRay) {
  const auto outline = single::outlineOf(90, 100, 0, 100, 1.5);
  const single::AimLine aim{{-100, 20}, {50, 10}};
  const single::Ray ray{send({{0, 90, 100, 100}, 1.5, {}},
                             SingleRay{aim.from, single::aimedDirection(-100, 20, 50, 10)}, edges)};
  expectShownAlike("lens", wide, single::Shown{{single::LensAlone{outline}}});
  expectShownAlike("aim", wide, single::Shown{{single::LensAlone{outline}, aim}});
  expectShownAlike("ray", wide, single::Shown{{aim, single::LensUnderRay{outline}, ray}});
}

}  // namespace spherical

namespace hyperbolic {

using namespace protosfakos;

constexpr Diafragma open{130, 1e9, -1e9};

void expect(const std::string& what, const Scene& scene) {
  expectShownAlike(what, square, Shown{{scene}});
}

TEST(VectorPicture, OfIbnSahlsLenses) {
  for (const bool biconvex : {false, true}) {
    const std::string lens = biconvex ? "biconvex" : "plano-convex";
    for (const Rays& rays : {Rays{Fan{{108, 25}}}, Rays{Desmi{0.2}}}) {
      const std::string what = lens + (rays.index() == 0 ? ", fan" : ", bundle");
      Asked asked{.amfikyrtos = biconvex, .rays = rays, .diafragma = open};
      expect(what, sceneOf(asked));
      asked.onlyRays = true;
      expect(what + ", rays", sceneOf(asked));
      asked.onlyRays = false;
      asked.onlyWaves = true;
      expect(what + ", waves", sceneOf(asked));
    }
    for (const Rays& rays : {Rays{Fan{{-60, 20}}}, Rays{Desmi{0.0}}}) {
      expect(lens, sceneOf({.amfikyrtos = biconvex, .rays = rays, .diafragma = open}));
    }
  }
}

TEST(VectorPicture, OfIbnSahlsLensesOfAnyIndex) {
  for (const bool biconvex : {false, true}) {
    for (const double n : {1.0, 2.5}) {
      const Asked asked{
          .amfikyrtos = biconvex, .deiktisSahl = n, .rays = Fan{{108, 25}}, .diafragma = open};
      expect("index " + std::to_string(n), sceneOf(asked));
    }
  }
}

TEST(VectorPicture, OfStoppedRaysAtIbnSahlsLenses) {
  for (const Rays& rays : {Rays{Fan{{108, 25}}}, Rays{Desmi{0.2}}}) {
    for (const bool onlyWaves : {false, true}) {
      expect("stopped",
             sceneOf({.rays = rays, .diafragma = {80, 30, -10}, .onlyWaves = onlyWaves}));
    }
  }
}

TEST(VectorPicture, OfFrontsOnceMore) {
  const Scene scene = sceneOf({.rays = Fan{{108, 25}}, .diafragma = open});
  for (const bool bundle : {false, true}) {
    expectShownAlike("fronts", square, Shown{{scene, FrontsAgain{scene, bundle}}});
  }
}

}  // namespace hyperbolic

TEST(VectorPicture, OfAFilledBodyKeepsTheOrderOfWhatIsDrawn) {
  const double half = std::acos(0.5);
  constexpr double pi = std::numbers::pi;
  const Body lens{{{{-60, 0}, 120, -half, half}, {{60, 0}, 120, pi - half, pi + half}}, 2};
  const auto drawing = [&](Canvas& canvas) {
    canvas.DrawWidth(2);
    for (const CircleArc& arc : lens.outline) {
      canvas.Circle(arc.centre.x, 0, arc.radius, black, arc.start, arc.end);
    }
    canvas.Line(-20, -30, 20, -30, red);
    canvas.Line(-300, 50, -200, 50, red);
    canvas.FillStyle(FillStyle::Solid);
    canvas.FillColor(green);
    canvas.FillBody(300, 150, black, lens);
    canvas.FillStyle(FillStyle::Transparent);
    canvas.Line(-300, 30, 300, 30, blue);
    canvas.DrawWidth(8);
    canvas.PSet(-20, 0, red);
  };
  expectAlike("body", wide, drawing);
  for (const QImage& image : {screen(wide, drawing), vectors(wide, drawing)}) {
    const auto at = [&](double x, double y) {
      const double scale = image.width() / 800.0;
      return colourAt(image, static_cast<int>((x + 400) * scale),
                      static_cast<int>((200 - y) * scale));
    };
    EXPECT_EQ(at(0, -30), green);
    EXPECT_EQ(at(-250, 50), red);
    EXPECT_EQ(at(0, 30), blue);
    EXPECT_EQ(at(-20, 0), red);
  }
}

}  // namespace
}  // namespace lensbench
