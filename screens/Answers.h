// What was typed into a box that asks for an angle, as a number of degrees.
#pragma once

#include <QString>

namespace lensbench {

// Takes a point or a comma whatever the locale, a hyphen or a typographic minus, blanks around it
// and a degree sign behind it. What is no number is Type mismatch (13), in words.
[[nodiscard]] double numberFromAnswer(const QString& answer);

}  // namespace lensbench
