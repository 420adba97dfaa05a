#include "canvas/qt/CommandButton.h"

#include <algorithm>

#include <QEvent>
#include <QStringList>

namespace lensbench {
namespace {

// Room between the caption and the button's edges, both sides together.
constexpr int margin = 12;

// The words of a text, each with the blanks behind it, so that together they are the text; blanks
// in front of all words are the first one's.
QStringList words(const QString& text) {
  QStringList result{QString()};
  for (const QChar c : text) {
    const QString& word = result.back();
    if (c != ' ' && word.endsWith(' ') && !word.trimmed().isEmpty()) result.push_back({});
    result.back() += c;
  }
  return result;
}

QString withoutBlanksBehind(QString text) {
  while (text.endsWith(' ')) text.chop(1);
  return text;
}

QStringList lines(const QString& text, const QFontMetrics& metrics, int width) {
  QStringList result;
  for (const QString& word : words(text)) {
    const QString longer = (result.isEmpty() ? QString() : result.back()) + word;
    if (result.isEmpty() || metrics.horizontalAdvance(withoutBlanksBehind(longer)) > width) {
      result.push_back(word);
    } else {
      result.back() = longer;
    }
  }
  return result;
}

}  // namespace

CommandButton::CommandButton(Form& form, const QString& name, const Place& place)
    : Control(form, name, place) {
  connect(this, &QPushButton::clicked, this, &CommandButton::Click);
}

void CommandButton::Caption(const QString& caption) {
  caption_ = caption;
  setAccessibleName(caption);
  wrap();
}

int CommandButton::leastWidth() const {
  int widest = 0;
  for (const QString& word : words(caption_)) {
    widest = std::max(widest, fontMetrics().horizontalAdvance(withoutBlanksBehind(word)));
  }
  return widest + margin;
}

void CommandButton::wrap() {
  const QStringList wrapped = lines(caption_, fontMetrics(), width() - margin);
  setText(wrapped.join('\n').replace('&', "&&"));
  const int needed = static_cast<int>(wrapped.size()) * fontMetrics().lineSpacing() + margin;
  if (height() < needed) resize(width(), needed);
}

void CommandButton::resizeEvent(QResizeEvent* event) {
  QPushButton::resizeEvent(event);
  wrap();
}

void CommandButton::changeEvent(QEvent* event) {
  QPushButton::changeEvent(event);
  if (event->type() == QEvent::FontChange) wrap();
}

}  // namespace lensbench
