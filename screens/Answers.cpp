#include "screens/Answers.h"

#include <QLocale>

#include "canvas/Format.h"

namespace lensbench {

double numberFromAnswer(const QString& answer) {
  const QString sign = QLocale().decimalPoint();
  return numberFromText(answer.toStdString(), sign.isEmpty() ? '.' : sign.front().toLatin1());
}

}  // namespace lensbench
