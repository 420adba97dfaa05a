// The picture of the Ibn Sahl screen in words, for those who cannot see it.
#include <cmath>

#include "optics/protosfakos/Paraxial.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/InWords.h"

namespace lensbench {
namespace {

using namespace protosfakos;

void tellLens(InWords& words, const Asked& asked) {
  if (asked.amfikyrtos) {
    words.add("Αμφίκυρτος υπερβολικός φακός με δείκτη διάθλασης %1.",
              "A biconvex hyperbolic lens with the index of refraction %1.", asked.deiktisSahl);
  } else {
    words.add("Επιπεδόκυρτος υπερβολικός φακός με δείκτη διάθλασης %1.",
              "A plano-convex hyperbolic lens with the index of refraction %1.", asked.deiktisSahl);
  }
}

void tellFocus(InWords& words, const Traced& traced, bool amfikyrtos) {
  const double c = std::hypot(traced.a, traced.b);
  if (traced.b == 0.0) {
    words.add("Ο φακός δεν έχει ύψος.", "The lens has no height.");
  } else if (amfikyrtos) {
    words.add("Εστίες στα x = %1 και x = %2: το φως της μίας συγκεντρώνεται στην άλλη.",
              "Focal points at x = %1 and x = %2: light of one is gathered in the other.", -c,
              8.0 * traced.a + c);
  } else {
    words.add(
        "Εστία στο x = %1, εστιακή απόσταση f = %2: εκεί συγκεντρώνεται οριζόντια δέσμη από τα "
        "δεξιά.",
        "Focal point at x = %1, focal length f = %2: a horizontal bundle from the right is "
        "gathered there.",
        -c, traced.a + c);
  }
}

void tellImage(InWords& words, const Scene& scene, Point source) {
  const auto image = paraxialImage(scene.asked, source);
  if (!image) return;
  if (image->real) {
    words.add("Το είδωλο της πηγής κοντά στον άξονα είναι στο (%1, %2), πραγματικό.",
              "The image of the source near the axis is at (%1, %2), real.", image->at.x,
              image->at.y);
  } else {
    words.add("Το είδωλο της πηγής κοντά στον άξονα είναι στο (%1, %2), φανταστικό.",
              "The image of the source near the axis is at (%1, %2), virtual.", image->at.x,
              image->at.y);
  }
}

void tellLight(InWords& words, const Scene& scene) {
  const auto count = static_cast<double>(scene.traced->paths.size());
  if (const auto* fan = std::get_if<Fan>(&scene.asked.rays)) {
    tellSource(words, fan->source);
    tellImage(words, scene, fan->source);
    words.add("Από την πηγή φεύγουν %1 ακτίνες.", "%1 rays leave the source.", count);
  } else if (const auto* bundle = std::get_if<Desmi>(&scene.asked.rays)) {
    words.add("Παράλληλη δέσμη με %1 ακτίνες από τα δεξιά, σε γωνία %2°.",
              "A bundle of %1 parallel rays from the right, at an angle of %2°.", count,
              std::atan(bundle->slope) * 180.0 / std::acos(-1.0));
  }
  tellFates(words, scene.traced->paths);
  if (scene.asked.onlyRays) {
    words.add("Δείχνονται μόνο οι ακτίνες.", "Only the rays are shown.");
  } else if (scene.asked.onlyWaves) {
    words.add("Δείχνονται μόνο τα κύματα.", "Only the waves are shown.");
  } else {
    words.add("Δείχνονται ακτίνες και κύματα.", "Rays and waves are shown.");
  }
}

}  // namespace

QString ElSahl::inWords() const {
  InWords words;
  const Scene* last = nullptr;
  for (const Layer& layer : shown().layers) {
    if (const auto* scene = std::get_if<Scene>(&layer)) last = scene;
  }
  if (last != nullptr) {
    tellLens(words, last->asked);
    tellFocus(words, *last->traced, last->asked.amfikyrtos);
    tellLight(words, *last);
  } else {
    words.add("Η εικόνα είναι κενή.", "The picture is empty.");
  }
  tellDiaphragm(words, diafragma());
  return words.text();
}

}  // namespace lensbench
