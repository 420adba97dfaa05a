// The picture of the workbench in words, for those who cannot see it.

#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Numbers.h"
#include "screens/InWords.h"
#include "screens/kelmo/kelmo.h"

namespace lensbench {
namespace {

using namespace poreiaaktinon;

void tellLens(InWords& words, const Fakos& fakos, double n) {
  if (!hasLens(fakos)) {
    words.add("Οι δύο κύκλοι δεν κλείνουν φακό μεταξύ τους.",
              "The two circles enclose no lens between them.");
    return;
  }
  words.add("Φακός με δείκτη διάθλασης %1.", "A lens with the index of refraction %1.", n);
  words.add("Ο αριστερός κύκλος έχει κέντρο %1 και ακτίνα %2, ο δεξιός κέντρο %3 και ακτίνα %4.",
            "The left circle has its centre at %1 and the radius %2, the right one its centre at "
            "%3 and the radius %4.",
            fakos.xc1, fakos.R1, fakos.xc2, fakos.R2);
  if (!hasCardinalPoints(fakos, n)) {
    words.add("Ο φακός δεν έχει εστίες.", "The lens has no focal points.");
    return;
  }
  const CardinalPoints points = cardinalPoints(fakos, n);
  words.add("Εστιακή απόσταση f = %1, εστίες στα x = %2 και x = %3.",
            "Focal length f = %1, focal points at x = %2 and x = %3.", points.f, points.F1,
            points.F2);
}

void tellImage(InWords& words, const LensScene& scene) {
  if (!hasCardinalPoints(scene.fakos, scene.n)) return;
  const CardinalPoints points = cardinalPoints(scene.fakos, scene.n);
  const Travel travel = travelFrom(scene.pigi, scene.fakos);
  if (!canConstruct(points, scene.pigi, travel)) {
    words.add("Για πηγή σε αυτή τη θέση δεν κατασκευάζεται είδωλο.",
              "For a source at that place no image is constructed.");
    return;
  }
  const Point image = imageOf(points, scene.pigi, travel);
  if (isReal(image, scene.fakos, travel)) {
    words.add("Το είδωλο της πηγής είναι στο (%1, %2), πραγματικό.",
              "The image of the source is at (%1, %2), real.", image.x, image.y);
  } else {
    words.add("Το είδωλο της πηγής είναι στο (%1, %2), φανταστικό.",
              "The image of the source is at (%1, %2), virtual.", image.x, image.y);
  }
}

void tellRays(InWords& words, const Sent& sent) {
  const auto count = static_cast<double>(sent.paths->size());
  if (const auto* bundle = std::get_if<Desmi>(&sent.rays)) {
    words.add("Παράλληλη δέσμη με %1 ακτίνες σε γωνία %2°.",
              "A bundle of %1 parallel rays at an angle of %2°.", count,
              bundle->gonia * 180.0 / pi);
  } else {
    words.add("Από την πηγή φεύγουν %1 ακτίνες.", "%1 rays leave the source.", count);
  }
  tellFates(words, *sent.paths);
}

// What the picture shows of lens, image and light; each thing as it was drawn last.
struct Last {
  const LensScene* scene = nullptr;
  const WaveScene* waveScene = nullptr;
  const Light* light = nullptr;
  const Fronts* fronts = nullptr;
};

Last lastOf(const Shown& shown) {
  Last last;
  for (const Layer& layer : shown.layers) {
    if (const auto* scene = std::get_if<LensScene>(&layer)) last.scene = scene;
    if (const auto* scene = std::get_if<WaveScene>(&layer)) last.waveScene = scene;
    if (const auto* light = std::get_if<Light>(&layer)) last.light = light;
    if (const auto* fronts = std::get_if<Fronts>(&layer)) last.fronts = fronts;
  }
  return last;
}

}  // namespace

QString kelmo::inWords() const {
  InWords words;
  const Last last = lastOf(shown());
  if (last.scene != nullptr) {
    tellLens(words, last.scene->fakos, last.scene->n);
  } else if (last.waveScene != nullptr) {
    tellLens(words, last.waveScene->fakos, last.waveScene->n);
  }
  tellSource(words, pigi());
  if (last.scene != nullptr) tellImage(words, *last.scene);
  if (last.fronts != nullptr) {
    tellRays(words, last.fronts->sent);
    words.add("Δείχνονται τα κύματά τους.", "Their waves are shown.");
  } else if (last.light != nullptr) {
    tellRays(words, last.light->sent);
    if (last.light->provoli.waves)
      words.add("Δείχνονται τα κύματά τους.", "Their waves are shown.");
  } else {
    words.add("Δεν έχουν σταλεί ακτίνες.", "No rays have been sent.");
  }
  tellDiaphragm(words, diafragma());
  return words.text();
}

}  // namespace lensbench
