#include "optics/protosfakos/Ask.h"

#include <cmath>
#include <cstddef>
#include <string>
#include <variant>
#include <vector>

#include "canvas/Format.h"
#include "optics/light/AskRays.h"
#include "optics/protosfakos/Hyperbola.h"

namespace lensbench::protosfakos {
namespace {

using light::coordinates;
using light::Nearest;
using light::Phrase;
using light::Rank;

// The mark at the vertex, the far focus where the ideal bundle meets, the rim and the source.
void offerMarks(Nearest& nearest, const Scene& scene) {
  const auto& [asked, traced] = scene;
  const double a = traced->a;
  const double b = traced->b;
  if (!asked.onlyWaves && b != 0.0) {
    const double c = std::hypot(a, b);
    const Point focus{-c, 0.0};
    nearest.point(Rank::Mark, focus, [=] {
      const std::string size = std::string("c = ") + formatShort(c) + ", ";
      return "εστία της υπερβολής: " + size + "στο " + coordinates(focus) +
             ", εδώ συναντιούνται οι ακτίνες που μέσα στο γυαλί είναι παράλληλες στον άξονα\n" +
             "focus of the hyperbola: " + size + "at " + coordinates(focus) +
             ", where rays meet that are parallel to the axis in the glass";
    });
  }
  // At n = 1 the rim has no height.
  for (const double h : {rimHalfHeight(b), -rimHalfHeight(b)}) {
    if (h == 0.0) continue;
    const Point rim{rimX(a), h};
    nearest.point(Rank::Mark, rim, [rim] {
      const bool upper = rim.y > 0.0;
      return std::string(upper ? "άνω" : "κάτω") + " χείλος του φακού: στο " + coordinates(rim) +
             (upper ? "\nupper" : "\nlower") + " rim of the lens: at " + coordinates(rim);
    });
  }
  if (const auto* fan = std::get_if<Fan>(&asked.rays)) {
    nearest.point(Rank::Mark, fan->source, [source = fan->source] {
      return std::string("πηγή των ακτίνων: στο ") + coordinates(source) +
             "\nsource of the rays: at " + coordinates(source);
    });
  }
  nearest.point(Rank::Mark, {a, 0.0}, [a] {
    const std::string size = std::string("a = ") + formatShort(a) + ", ";
    const std::string place = coordinates({a, 0.0});
    return "κορυφή της υπερβολής: " + size + "στο " + place + "\nvertex of the hyperbola: " + size +
           "at " + place;
  });
}

void offerFronts(Nearest& nearest, const std::vector<Recorded>& rays, Phrase origin) {
  for (std::size_t j = 1; j <= lastFront; ++j) {
    const double opticalPath = frontSpacing * static_cast<double>(j - 1);
    const auto words = [=] { return light::frontWords(opticalPath, origin); };
    for (std::size_t i = 1; i < rays.size(); ++i) {
      nearest.stroke(Rank::Front, rays[i - 1].kymata[j], rays[i].kymata[j], words);
    }
  }
}

// What the optical paths of a scene's fronts are counted from.
Phrase originOf(const Rays& rays) {
  if (std::holds_alternative<Fan>(rays)) return {"την πηγή", "the source"};
  return {"το επίπεδο που περνά από το (130, 0) κάθετα στις ακτίνες",
          "the plane through (130, 0) square to the rays"};
}

void offer(Nearest& nearest, const Scene& scene) {
  const auto& [asked, traced] = scene;
  offerMarks(nearest, scene);
  if (!asked.onlyWaves) light::offerRays(nearest, traced->paths);
  light::offerStops(nearest, traced->paths, asked.diafragma);
  if (!asked.onlyRays) offerFronts(nearest, traced->recorded, originOf(asked.rays));
}

void offer(Nearest& nearest, const FrontsAgain& again) {
  constexpr Phrase centre{"το (0, 0)", "(0, 0)"};
  offerFronts(nearest, raysOf(again), again.desmiMode ? centre : originOf(again.scene.asked.rays));
}

}  // namespace

std::optional<Answer> ask(const Shown& shown, Point p, double reach) {
  Nearest nearest(p, reach);
  for (const Layer& any : shown.layers) {
    std::visit([&](const auto& layer) { offer(nearest, layer); }, any);
  }
  return nearest.answer();
}

}  // namespace lensbench::protosfakos
