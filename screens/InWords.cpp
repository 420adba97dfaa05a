#include "screens/InWords.h"

#include "canvas/Format.h"

namespace lensbench {

void InWords::add(const QString& greek, const QString& english) {
  for (QString* text : {&greek_, &english_}) {
    if (!text->isEmpty()) *text += QLatin1Char(' ');
  }
  greek_ += greek;
  english_ += english;
}

QString InWords::number(double value) { return QString::fromStdString(formatShort(value)); }

void tellSource(InWords& words, Point source) {
  words.add("Η φωτεινή πηγή είναι στο (%1, %2).", "The light source is at (%1, %2).", source.x,
            source.y);
}

void tellDiaphragm(InWords& words, const light::Diafragma& diafragma) {
  const double opening = diafragma.yA - diafragma.yB;
  if (opening > 0.0) {
    words.add("Το διάφραγμα είναι στο x = %1, ανοιχτό από %2 έως %3.",
              "The diaphragm is at x = %1, open from %2 to %3.", diafragma.X, diafragma.yB,
              diafragma.yA);
  } else {
    words.add("Το διάφραγμα είναι στο x = %1, κλειστό.", "The diaphragm is at x = %1, closed.",
              diafragma.X);
  }
}

void tellFates(InWords& words, std::span<const light::RayPath> paths) {
  int missed = 0;
  int through = 0;
  int stopped = 0;
  int reflected = 0;
  int trapped = 0;
  for (const light::RayPath& path : paths) {
    switch (path.ending) {
      case light::Ending::Open:
        ++(path.missed() ? missed : through);
        break;
      case light::Ending::Diaphragm:
        ++stopped;
        break;
      case light::Ending::TotalReflection:
        ++reflected;
        break;
      case light::Ending::Trapped:
        ++trapped;
        break;
    }
  }
  words.add("Ακτίνες που περνούν από τον φακό: %1.", "Rays that go through the lens: %1.", through);
  const auto tell = [&words](int count, const char* greek, const char* english) {
    if (count > 0) words.add(greek, english, count);
  };
  tell(missed, "Ακτίνες που δεν συναντούν τον φακό: %1.", "Rays that miss the lens: %1.");
  tell(stopped, "Ακτίνες που σταματά το διάφραγμα: %1.", "Rays that the diaphragm stops: %1.");
  tell(reflected, "Ακτίνες που ανακλώνται ολικά: %1.", "Rays that are totally reflected: %1.");
  tell(trapped, "Ακτίνες που τελειώνουν μέσα στο γυαλί: %1.", "Rays that end in the glass: %1.");
}

}  // namespace lensbench
