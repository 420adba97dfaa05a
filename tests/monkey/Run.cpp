#include "tests/monkey/Run.h"

#include <QCryptographicHash>

#include "tests/monkey/Monkey.h"

namespace lensbench {
namespace {

// Which errors an action of a student is known to raise: a radius of 0 on the single-ray screen and
// an aim straight above or below the source there (11), and waves asked for more rays than their
// tables hold (9).
bool isNamed(int error, const QString& action) {
  if (error == 11) return action.startsWith("moniaktina");
  if (error == 9) return action == "kelmo kymatachronika";
  return false;
}

}  // namespace

Outcome runMonkey(unsigned seed, int actions, const std::function<void(const QString&)>& tell) {
  Outcome outcome;
  QCryptographicHash all(QCryptographicHash::Sha1);
  Monkey monkey(seed, [&](const QString& action) {
    all.addData(action.toUtf8());
    tell(action);
  });
  for (; outcome.done < actions && outcome.failure.isEmpty(); ++outcome.done) {
    const int error = monkey.act();
    QString wrong;
    if (error == 0) {
      wrong = monkey.fault();
    } else if (isNamed(error, monkey.lastAction())) {
      ++outcome.ended;
      monkey.startAnew();
    } else {
      wrong = QStringLiteral("error %1").arg(error);
    }
    if (!wrong.isEmpty()) outcome.failure = monkey.lastAction() + ": " + wrong;
  }
  outcome.digest = QString::fromLatin1(all.result().toHex().left(8));
  return outcome;
}

}  // namespace lensbench
