// What was typed into an input box, as a number.
#pragma once

#include <QString>

namespace lensbench {

// Takes a point or the decimal sign of the user's locale; what is no number is Type mismatch (13).
double numberFromAnswer(const QString& answer);

}  // namespace lensbench
