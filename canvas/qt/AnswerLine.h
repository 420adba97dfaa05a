// Says under the field of an input box whether what stands there is a number, and where the prompt
// names a range, whether it is within it.
#pragma once

#include <optional>

#include <QLabel>
#include <QString>

class QInputDialog;

namespace lensbench {

// What can be said of an answer. NoNumber and TooLarge are those that end the program.
enum class AnswerKind { NoNumber, TooLarge, Number, WithinRange, OutsideRange };

// Both ends stand outside.
struct AnswerRange {
  double above;
  double below;
};
// The range that a prompt names, as "-90<φ<90" does.
std::optional<AnswerRange> rangeInPrompt(const QString& prompt);

AnswerKind judge(const QString& answer, const std::optional<AnswerRange>& range);

// Two lines high whatever it says, and as wide as the longest that it can come to say, so that the
// box stands still while one types.
class AnswerLine : public QLabel {
  Q_OBJECT

 public:
  // Puts a line that follows the field into a box that asks for a text.
  static void addTo(QInputDialog& box);

 private:
  AnswerLine(QWidget& field, const std::optional<AnswerRange>& range);
  void follow(const QString& answer);

  QWidget& field_;
  const std::optional<AnswerRange> range_;
};

}  // namespace lensbench
