#include "canvas/qt/CommandButton.h"

#include <algorithm>

#include <QEvent>
#include <QStringList>

namespace lensbench {
namespace {

// Room between the caption and the button's edges, both sides together.
constexpr int margin = 12;

QStringList lines(const QString& text, const QFontMetrics& metrics, int width) {
  QStringList result;
  for (const QString& word : text.split(' ', Qt::SkipEmptyParts)) {
    const QString longer = result.isEmpty() ? word : result.back() + ' ' + word;
    if (result.isEmpty() || metrics.horizontalAdvance(longer) > width) {
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
  setAccessibleName(caption.simplified());
  wrap();
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
