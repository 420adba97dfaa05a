// How well a colour is read on another, and the colour of warnings.
#pragma once

#include <QColor>

namespace lensbench {

// 1 for equal colours to 21 for black and white, as the eye weighs them; text needs 4.5.
double contrast(const QColor& a, const QColor& b);

// What warnings are written and edged in on a background: a dark orange or a light one.
QColor warningOn(const QColor& background);

}  // namespace lensbench
