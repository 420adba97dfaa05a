// Captions followed by numbers, and what more than one handler says.
#pragma once

#include <string>

#include <QString>

#include "canvas/Canvas.h"
#include "canvas/Format.h"

namespace lensbench {

// A caption in UTF-8 with a formatted number right behind it.
inline QString labelled(const char* caption, const std::string& number) {
  return QString::fromUtf8(caption) + QString::fromStdString(number);
}

// Numbers inside a sentence, whole ones without decimals; a point as its coordinates.
inline QString number(double value) { return QString::fromStdString(formatShort(value)); }
inline QString coordinates(Point p) {
  return QStringLiteral("(%1, %2)").arg(number(p.x), number(p.y));
}

// Of a source that a press alone takes elsewhere.
inline QString pressedSourceWords(Point source) {
  return QStringLiteral(
             "Φωτεινή πηγή στο %1. Πάτησε αλλού για να τη βάλεις εκεί.\n"
             "Light source at %1. Press elsewhere to place it there.")
      .arg(coordinates(source));
}

// Said of an index of refraction below 1: when a lens is opened or a bundle asked for, and when the
// source is placed or the waves asked for.
inline const QString lensRefused = QStringLiteral("`Ακυρος Δείκτης Διάθλασηςgive a bigger value");
inline const QString sceneRefused = QStringLiteral("δώσε μεγαλύτερο δείκτη");

}  // namespace lensbench
