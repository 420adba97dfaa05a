// Pictures in words: sentences in Greek and the same in English, gathered side by side.
#pragma once

#include <span>

#include <QString>

#include "canvas/Canvas.h"
#include "optics/light/RayPath.h"
#include "optics/light/Stop.h"

namespace lensbench {

class InWords {
 public:
  void add(const QString& greek, const QString& english);
  // With numbers in the places of %1, %2 ... of both sentences.
  template <typename... Numbers>
  void add(const char* greek, const char* english, Numbers... numbers) {
    if constexpr (sizeof...(numbers) == 0) {
      add(QString::fromUtf8(greek), QString::fromUtf8(english));
    } else {
      add(QString::fromUtf8(greek).arg(number(numbers)...),
          QString::fromUtf8(english).arg(number(numbers)...));
    }
  }
  // A Greek line and an English line.
  QString text() const { return greek_ + QLatin1Char('\n') + english_; }

 private:
  // Whole numbers without decimals, others with two.
  static QString number(double value);

  QString greek_;
  QString english_;
};

// Where a source stands, and how the diaphragm does; user units.
void tellSource(InWords& words, Point source);
void tellDiaphragm(InWords& words, const light::Diafragma& diafragma);
// What becomes of rays, each fate with its number of them.
void tellFates(InWords& words, std::span<const light::RayPath> paths);

}  // namespace lensbench
