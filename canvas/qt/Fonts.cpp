#include "canvas/qt/Fonts.h"

#include <algorithm>

#include <QFontDatabase>
#include <QFontInfo>
#include <QGuiApplication>
#include <QStringList>

namespace lensbench {
namespace {

QString firstInstalled(const QStringList& wanted) {
  for (const QString& family : wanted) {
    if (QFontDatabase::hasFamily(family)) return family;
  }
  const QStringList greek = QFontDatabase::families(QFontDatabase::Greek);
  return greek.isEmpty() ? wanted.front() : greek.front();
}

// Who has made the desktop's own text larger needs ours as large.
double desktopText() {
  const QFont font = QGuiApplication::font();
  const double points = font.pointSizeF();
  return points > 0.0 ? points : QFontInfo(font).pointSizeF();
}

}  // namespace

QString installedFamily(const QString& givenName) {
  static const QString serif = firstInstalled({"Liberation Serif", "DejaVu Serif"});
  static const QString sans = firstInstalled({"Liberation Sans", "DejaVu Sans"});
  return givenName.contains("Times", Qt::CaseInsensitive) ? serif : sans;
}

QFont controlFont(const QString& givenName, double points) {
  QFont font(installedFamily(givenName));
  font.setPointSizeF(std::max({points, smallestControlText, desktopText()}));
  return font;
}

}  // namespace lensbench
