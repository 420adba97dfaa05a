#include "canvas/qt/AnswerLine.h"

#include <algorithm>

#include <QAccessible>
#include <QInputDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QVBoxLayout>

#include "canvas/Format.h"
#include "canvas/qt/Contrast.h"
#include "canvas/qt/Typed.h"

namespace lensbench {
namespace {

QString wordsOf(AnswerKind kind, const AnswerRange& range) {
  switch (kind) {
    case AnswerKind::NoNumber:
      return QStringLiteral(
          "Δεν είναι αριθμός· αν το δώσεις, το πρόγραμμα τελειώνει.\n"
          "Not a number; giving it ends the program.");
    case AnswerKind::TooLarge:
      return QStringLiteral(
          "Πολύ μεγάλος αριθμός· αν τον δώσεις, το πρόγραμμα τελειώνει.\n"
          "Too large a number; giving it ends the program.");
    case AnswerKind::Number:
      return QStringLiteral("✓ Είναι αριθμός.\n✓ It is a number.");
    case AnswerKind::WithinRange:
      return QStringLiteral(
                 "✓ Αριθμός ανάμεσα στο %1 και το %2.\n"
                 "✓ A number between %1 and %2.")
          .arg(range.above)
          .arg(range.below);
    case AnswerKind::OutsideRange:
      return QStringLiteral(
                 "Όχι ανάμεσα στο %1 και το %2, αλλά γίνεται δεκτός.\n"
                 "Not between %1 and %2, but taken all the same.")
          .arg(range.above)
          .arg(range.below);
  }
  return {};
}

}  // namespace

std::optional<AnswerRange> rangeInPrompt(const QString& prompt) {
  static const QRegularExpression named(
      QStringLiteral(R"((-?\d+(?:\.\d+)?)\s*<\s*[^\s<\d]+\s*<\s*(-?\d+(?:\.\d+)?))"));
  const QRegularExpressionMatch match = named.match(prompt);
  if (!match.hasMatch()) return {};
  return AnswerRange{match.captured(1).toDouble(), match.captured(2).toDouble()};
}

AnswerKind judge(const QString& answer, const std::optional<AnswerRange>& range) {
  const NumberRead read = readNumber(numberTyped(answer));
  if (read.kind == NumberRead::Kind::None) return AnswerKind::NoNumber;
  if (read.kind == NumberRead::Kind::TooLarge) return AnswerKind::TooLarge;
  if (!range) return AnswerKind::Number;
  const bool within = range->above < read.value && read.value < range->below;
  return within ? AnswerKind::WithinRange : AnswerKind::OutsideRange;
}

AnswerLine::AnswerLine(QWidget& field, const std::optional<AnswerRange>& range)
    : QLabel(field.parentWidget()), field_(field), range_(range) {
  setObjectName(QStringLiteral("answerLine"));
  setTextFormat(Qt::PlainText);
  int width = 0;
  for (const auto kind : {AnswerKind::NoNumber, AnswerKind::TooLarge, AnswerKind::Number,
                          AnswerKind::WithinRange, AnswerKind::OutsideRange}) {
    setText(wordsOf(kind, range_.value_or(AnswerRange{})));
    width = std::max(width, sizeHint().width());
  }
  setFixedHeight(sizeHint().height());
  setMinimumWidth(width);
}

void AnswerLine::follow(const QString& answer) {
  const AnswerKind kind = judge(answer, range_);
  const bool good = kind == AnswerKind::Number || kind == AnswerKind::WithinRange;
  QPalette colours = parentWidget()->palette();
  if (!good) colours.setColor(QPalette::WindowText, warningOn(colours.color(QPalette::Window)));
  setPalette(colours);
  const QString words = wordsOf(kind, range_.value_or(AnswerRange{}));
  if (words == text()) return;
  setText(words);
  // For who does not see the line: as its name, and as what is said of the field.
  setAccessibleName(words);
  field_.setAccessibleDescription(words);
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
}

void AnswerLine::addTo(QInputDialog& box) {
  // The toolkit puts its widgets into the box when it is asked for its size.
  static_cast<void>(box.sizeHint());
  auto* rows = qobject_cast<QVBoxLayout*>(box.layout());
  auto* field = box.findChild<QLineEdit*>();
  if (rows == nullptr || field == nullptr) return;
  auto* line = new AnswerLine(*field, rangeInPrompt(box.labelText()));
  rows->insertWidget(rows->indexOf(field) + 1, line);
  connect(&box, &QInputDialog::textValueChanged, line, &AnswerLine::follow);
  line->follow(box.textValue());
}

}  // namespace lensbench
