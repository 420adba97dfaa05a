// The installed faces that stand for the given font names.
#pragma once

#include <QFont>
#include <QString>

namespace lensbench {

// Text of controls is never smaller than this, in points, nor smaller than the desktop's own text.
constexpr double smallestControlText = 9.0;

// A face with Greek letters: a serif face for a name with "Times", else one without serifs. The
// symbol font has no letters of ours, so it is never taken.
QString installedFamily(const QString& givenName);

QFont controlFont(const QString& givenName, double points);

}  // namespace lensbench
