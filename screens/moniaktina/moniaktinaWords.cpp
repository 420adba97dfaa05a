// The picture of the single-ray screen in words, for those who cannot see it.
#include <cmath>

#include "optics/poreiaaktinon/Numbers.h"
#include "screens/InWords.h"
#include "screens/Moves.h"
#include "screens/moniaktina/moniaktina.h"

namespace lensbench {

namespace single = poreiaaktinon::single;

namespace {

void tellLens(InWords& words, const single::Outline& o, double n) {
  if (o.h == 0.0) {
    words.add("Οι δύο κύκλοι δεν κλείνουν φακό μεταξύ τους.",
              "The two circles enclose no lens between them.");
    return;
  }
  words.add("Φακός με δείκτη διάθλασης %1.", "A lens with the index of refraction %1.", n);
  words.add(
      "Ο κύκλος 1 έχει κέντρο %1 και ακτίνα %2, ο κύκλος 2 κέντρο %3 και ακτίνα %4.",
      "Circle 1 has its centre at %1 and the radius %2, circle 2 its centre at %3 and the radius "
      "%4.",
      o.xc1, o.R1, o.xc2, o.R2);
  if (o.f.isEmpty()) {
    words.add("Ο φακός δεν έχει εστίες.", "The lens has no focal points.");
    return;
  }
  words.add("Εστιακή απόσταση f = %1, εστίες στα x = %2 και x = %3.",
            "Focal length f = %1, focal points at x = %2 and x = %3.", o.f.value(),
            o.x0 - o.f.value(), o.x0 + o.f.value());
}

double degrees(Point direction) {
  return std::atan2(direction.y, direction.x) * 180.0 / poreiaaktinon::pi;
}

void tellRay(InWords& words, const light::RayPath& path) {
  words.add("Μία ακτίνα φεύγει από το (%1, %2) με γωνία %3°.",
            "One ray leaves (%1, %2) at an angle of %3°.", path.start().x, path.start().y,
            degrees(path.way().front().direction));
  const Point end = path.end();
  switch (path.ending) {
    case light::Ending::Open:
      if (path.missed()) {
        words.add("Δεν συναντά τον φακό.", "It misses the lens.");
      } else {
        words.add("Περνά από τον φακό και συνεχίζει με γωνία %1°.",
                  "It goes through the lens and on at an angle of %1°.",
                  degrees(path.way().back().direction));
      }
      break;
    case light::Ending::Diaphragm:
      words.add("Τη σταματά το διάφραγμα στο (%1, %2).", "The diaphragm stops it at (%1, %2).",
                end.x, end.y);
      break;
    case light::Ending::TotalReflection:
      words.add("Ανακλάται ολικά στο (%1, %2).", "It is totally reflected at (%1, %2).", end.x,
                end.y);
      break;
    case light::Ending::Trapped:
      words.add("Τελειώνει μέσα στο γυαλί στο (%1, %2).", "It ends in the glass at (%1, %2).",
                end.x, end.y);
      break;
  }
}

}  // namespace

QString moniaktina::inWords() const {
  InWords words;
  const single::Outline* outline = nullptr;
  const single::Ray* ray = nullptr;
  for (const single::Layer& layer : shown().layers) {
    if (const auto* lens = std::get_if<single::LensAlone>(&layer)) outline = &lens->outline;
    if (const auto* lens = std::get_if<single::LensUnderRay>(&layer)) outline = &lens->outline;
    if (const auto* sent = std::get_if<single::Ray>(&layer)) ray = sent;
  }
  const double n = ray != nullptr ? ray->sent.bench.n : deiktis.value();
  if (outline != nullptr) tellLens(words, *outline, n);
  tellSource(words, controls_.source());
  if (ray != nullptr) {
    tellRay(words, ray->sent.paths->front());
  } else {
    words.add("Δεν έχει σταλεί ακτίνα.", "No ray has been sent.");
  }
  tellDiaphragm(words, context_.moves.diafragma());
  return words.text();
}

}  // namespace lensbench
