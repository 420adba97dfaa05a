#include "optics/poreiaaktinon/Ask.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

#include "canvas/Format.h"
#include "optics/light/AskRays.h"
#include "optics/light/OpticalPath.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Palette.h"
#include "optics/poreiaaktinon/RayDrawing.h"
#include "optics/poreiaaktinon/Scenes.h"

namespace lensbench::poreiaaktinon {
namespace {

using light::coordinates;
using light::Nearest;
using light::Phrase;
using light::Rank;

// "at (x, y)" in either language.
std::string inGreek(Point p) { return std::string(" στο ") + coordinates(p); }
std::string inEnglish(Point p) { return std::string(" at ") + coordinates(p); }

// Both stand on the chord where f is Empty.
void offerThinFoci(Nearest& nearest, double chord, const Variant& f) {
  for (const double side : {-1.0, 1.0}) {
    const Point at{chord + side * f.value(), 0.0};
    nearest.point(Rank::Mark, at, [=] {
      const bool right = f < 0 ? side < 0.0 : side > 0.0;
      const std::string length = std::string(": f = ") + (f.isEmpty() ? "∞" : formatShort(f)) + ",";
      return (right ? "δεξιά" : "αριστερή") + (" εστία του λεπτού φακού" + length) + inGreek(at) +
             "\n" + (right ? "right" : "left") + (" focus of the thin lens" + length) +
             inEnglish(at);
    });
  }
}

std::string rimWords(Point rim, bool crossing) {
  if (!crossing) {
    return "οι κύκλοι δεν τέμνονται σε δύο σημεία: ο φακός δεν έχει χείλος\n"
           "the circles do not cross at two points: the lens has no rim";
  }
  const bool upper = rim.y > 0.0;
  return (upper ? "άνω χείλος του φακού:" : "κάτω χείλος του φακού:") + inGreek(rim) +
         (upper ? "\nupper rim of the lens:" : "\nlower rim of the lens:") + inEnglish(rim);
}

// The points where the faces meet, and the lines along the lens at their height.
void offerRim(Nearest& nearest, Point upper, Point lower) {
  const bool crossing = upper.y > lower.y;
  for (const Point rim : {upper, lower}) {
    const auto words = [rim, crossing] { return rimWords(rim, crossing); };
    nearest.point(Rank::Mark, rim, words);
    nearest.stroke(Rank::Guide, {-palette::rimLineEnd, rim.y}, {palette::rimLineEnd, rim.y}, words);
  }
}

void offerCentre(Nearest& nearest, double x, double radius, const char* number, const Phrase& side,
                 const Phrase& face) {
  const Point at{x, 0.0};
  nearest.point(Rank::Mark, at, [=] {
    const std::string size = std::string(number) + " = " + formatShort(radius) + ",";
    return std::string("κέντρο του ") + side.greek + " κύκλου, της " + face.greek +
           " όψης: " + size + inGreek(at) + "\ncentre of the " + side.english + " circle, of the " +
           face.english + " face: " + size + inEnglish(at);
  });
}

void offerCentres(Nearest& nearest, const Fakos& fakos) {
  offerCentre(nearest, fakos.xc1, fakos.R1, "R1", {"αριστερού", "left"}, {"δεξιάς", "right"});
  offerCentre(nearest, fakos.xc2, fakos.R2, "R2", {"δεξιού", "right"}, {"αριστερής", "left"});
}

// A cardinal point on the axis; paraxial is where it belongs, which is said where that differs.
std::string cardinalWords(const char* label, const Phrase& kind, const Phrase& meet, double f,
                          double marked, double paraxial) {
  const Point at{marked, 0.0};
  const Point exact{paraxial, 0.0};
  const std::string size = std::string(", f = ") + formatShort(f) + ",";
  std::string greek = std::string(label) + ": " + kind.greek + size + inGreek(at);
  std::string english = std::string(label) + ": " + kind.english + size + inEnglish(at);
  if (coordinates(at) != coordinates(exact)) {
    greek += std::string(", ") + meet.greek + inGreek(exact);
    english += std::string(", ") + meet.english + inEnglish(exact);
  }
  return greek + "\n" + english;
}

constexpr Phrase raysMeet{"οι παραξονικές ακτίνες συναντιούνται", "paraxial rays meet"};
constexpr Phrase forRays{"για παραξονικές ακτίνες", "for paraxial rays"};

// The image of a source as marked and as paraxial rays form it.
std::string imageWords(Point source, Point marked, Point paraxial, bool real) {
  const std::string size = formatHundredths(marked.y / source.y) + ",";
  std::string greek = std::string("είδωλο: ") + (real ? "πραγματικό" : "φανταστικό") +
                      ", μεγέθυνση " + size + inGreek(marked);
  std::string english = std::string("image: ") + (real ? "real" : "virtual") + ", magnification " +
                        size + inEnglish(marked);
  if (coordinates(marked) != coordinates(paraxial)) {
    greek += std::string(", ") + raysMeet.greek + inGreek(paraxial);
    english += std::string(", ") + raysMeet.english + inEnglish(paraxial);
  }
  return greek + "\n" + english;
}

void offerImage(Nearest& nearest, const Fakos& fakos, const CardinalPoints& marked,
                const CardinalPoints& paraxial, Point source) {
  const Travel travel = travelFrom(source, fakos);
  if (!canConstruct(marked, source, travel)) return;
  const Point image = imageOf(marked, source, travel);
  const Point exact =
      canConstruct(paraxial, source, travel) ? imageOf(paraxial, source, travel) : image;
  const bool real = isReal(image, fakos, travel);
  nearest.point(Rank::Mark, image, [=] { return imageWords(source, image, exact, real); });
}

void offerCardinalPoints(Nearest& nearest, const Fakos& fakos, double n, Point source) {
  if (!hasCardinalPoints(fakos, n)) return;
  const CardinalPoints marked = cardinalPoints(fakos, n);
  const CardinalPoints paraxial = paraxialPoints(fakos, n);
  const auto offer = [&](const char* label, const Phrase& kind, const Phrase& meet,
                         double CardinalPoints::*place) {
    const double x = marked.*place;
    const auto words = [=, f = marked.f, exact = paraxial.*place] {
      return cardinalWords(label, kind, meet, f, x, exact);
    };
    if (label[0] == 'H') {
      nearest.stroke(Rank::Guide, {x, -planeHalfHeight}, {x, planeHalfHeight}, words);
    } else {
      nearest.point(Rank::Mark, {x, 0.0}, words);
    }
  };
  constexpr Phrase plane{"κύριο επίπεδο", "principal plane"};
  constexpr Phrase focus{"κύρια εστία", "focal point"};
  constexpr Phrase node{"κομβικό σημείο", "nodal point"};
  offer("H1", plane, forRays, &CardinalPoints::H1);
  offer("H2", plane, forRays, &CardinalPoints::H2);
  offer("F1", focus, raysMeet, &CardinalPoints::F1);
  offer("F2", focus, raysMeet, &CardinalPoints::F2);
  offer("N1", node, forRays, &CardinalPoints::N1);
  offer("N2", node, forRays, &CardinalPoints::N2);
  offerImage(nearest, fakos, marked, paraxial, source);
}

// What the optical path of rays is counted from.
Phrase originOf(const Rays& rays) {
  if (std::holds_alternative<Desmi>(rays)) {
    return {"το επίπεδο που περνά από το (-200, 0) κάθετα στις ακτίνες",
            "the plane through (-200, 0) square to the rays"};
  }
  return {"την πηγή", "the source"};
}

// Offers the wave point of a piece that is nearest; before is the optical path of the ray up to it.
void offerWavePoint(Nearest& nearest, const light::RayPath& path, const light::Piece& piece,
                    double before, const Phrase& origin) {
  const double optical = light::opticalLength(path, piece);
  const bool isFirst = &piece == &path.pieces[0];
  // One that stands at a face belongs to the piece that ends there.
  const double first = isFirst ? std::ceil(before / waveStep) : std::floor(before / waveStep) + 1.0;
  const double last = std::floor((before + optical) / waveStep);
  if (first > last) return;
  const double along =
      light::indexOf(path, piece) * dot(nearest.asked() - piece.from, piece.direction);
  const double L = waveStep * std::clamp(std::round((before + along) / waveStep), first, last);
  nearest.point(Rank::Front, light::pointOnPiece(path, piece, L - before),
                [L, origin] { return light::frontWords(L, origin); });
}

void offerWavePoints(Nearest& nearest, const Sent& sent) {
  const Phrase origin = originOf(sent.rays);
  for (const light::RayPath& path : *sent.paths) {
    double before = path.phase;
    const light::Piece* counted = path.way().data();  // up to which before is
    for (const light::Piece& piece : path.way()) {
      if (!nearest.reaches(piece.from, piece.to)) continue;
      for (; counted != &piece; ++counted) before += light::opticalLength(path, *counted);
      offerWavePoint(nearest, path, piece, before, origin);
    }
  }
}

void offerFront(Nearest& nearest, const Sent& sent, double opticalPath) {
  const Phrase origin = originOf(sent.rays);
  const auto words = [=] { return light::frontWords(opticalPath, origin); };
  const Front front = frontAt(sent, opticalPath);
  for (const Front::Piece& piece : front.pieces) {
    nearest.stroke(Rank::Front, piece.from, piece.to, words);
  }
  for (const Point& point : front.points) nearest.point(Rank::Front, point, words);
}

void offerLight(Nearest& nearest, const Sent& sent, Phrase blades = {}) {
  light::offerRays(nearest, *sent.paths);
  if (sent.bench.diafragma) {
    light::offerStops(nearest, *sent.paths, *sent.bench.diafragma, blades);
  }
}

void offer(Nearest& nearest, const LensScene& scene) {
  const Glass glass = glassOf(scene.fakos, scene.n);
  if (!glass.f.isEmpty()) offerThinFoci(nearest, glass.xordi, glass.f);
  if (glass.exists) offerRim(nearest, {glass.xordi, glass.h}, {glass.xordi, -glass.h});
  offerCentres(nearest, scene.fakos);
  offerCardinalPoints(nearest, scene.fakos, scene.n, scene.pigi);
}

void offer(Nearest& nearest, const CardinalMarks& marks) {
  offerCardinalPoints(nearest, marks.fakos, marks.n, marks.pigi);
}

void offer(Nearest& nearest, const Light& light) {
  if (light.provoli.rays) offerLight(nearest, light.sent);
  if (light.provoli.waves) offerWavePoints(nearest, light.sent);
}

void offer(Nearest& nearest, const WaveScene& scene) {
  const Glass glass = glassOf(scene.fakos, scene.n);
  if (!glass.f.isEmpty()) offerThinFoci(nearest, glass.xordi, glass.f);
}

void offer(Nearest& nearest, const Fronts& fronts) {
  offerFront(nearest, fronts.sent, pathPerStep * fronts.step);
  if (fronts.step <= stepsBehind) return;
  offerFront(nearest, fronts.sent, pathPerStep * (fronts.step - stepsBehind));
}

void offer(Nearest&, const single::AimLine&) {}

void offer(Nearest& nearest, const single::LensAlone& lens) {
  offerThinFoci(nearest, lens.outline.x0, lens.outline.f);
}

void offer(Nearest& nearest, const single::LensUnderRay& lens) {
  const single::Outline& o = lens.outline;
  offerThinFoci(nearest, o.x0, o.f);
  offerRim(nearest, {o.x0, o.h}, {o.x0, o.h2});
}

// The blades are dragged on the workbench.
void offer(Nearest& nearest, const single::Ray& ray) {
  offerLight(nearest, ray.sent,
             {" στην οθόνη των σφαιρικών φακών", " on the screen of the spherical lenses"});
}

template <class AnyShown>
std::optional<Answer> askLayers(const AnyShown& shown, Point p, double reach) {
  Nearest nearest(p, reach);
  for (const auto& any : shown.layers) {
    std::visit([&](const auto& layer) { offer(nearest, layer); }, any);
  }
  return nearest.answer();
}

}  // namespace

std::optional<Answer> ask(const Shown& shown, Point p, double reach) {
  return askLayers(shown, p, reach);
}

}  // namespace lensbench::poreiaaktinon

namespace lensbench::poreiaaktinon::single {

std::optional<Answer> ask(const Shown& shown, Point p, double reach) {
  return askLayers(shown, p, reach);
}

}  // namespace lensbench::poreiaaktinon::single
