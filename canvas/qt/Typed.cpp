#include "canvas/qt/Typed.h"

namespace lensbench {

std::string numberTyped(const QString& text) {
  QString number = text.trimmed();
  if (number.endsWith(QStringLiteral("°"))) number = number.chopped(1).trimmed();
  number.replace(QStringLiteral("−"), QStringLiteral("-"));
  return number.toStdString();
}

}  // namespace lensbench
