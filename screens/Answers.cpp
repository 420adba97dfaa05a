#include "screens/Answers.h"

#include "canvas/Format.h"
#include "canvas/qt/Typed.h"

namespace lensbench {
namespace {

QString notANumber(const QString& answer) {
  // As much of it as a box has room for.
  constexpr int most = 60;
  const QString quoted = answer.size() > most ? answer.left(most) + QStringLiteral("…") : answer;
  return QStringLiteral(
             "Η απάντηση «%1» δεν είναι αριθμός· χρειάζεται μία γωνία σε μοίρες, όπως 30 ή -22,5. "
             "The answer “%1” is no number; an angle in degrees was expected, such as 30 or -22.5.")
      .arg(quoted);
}

}  // namespace

double numberFromAnswer(const QString& answer) {
  const auto value = numberFromText(numberTyped(answer));
  if (value) return *value;
  throw RuntimeError(RuntimeError::Code::TypeMismatch, notANumber(answer).toStdString());
}

}  // namespace lensbench
