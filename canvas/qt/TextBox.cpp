#include "canvas/qt/TextBox.h"

#include <QKeyEvent>
#include <QStyleOptionFrame>

namespace lensbench {

TextBox::TextBox(Form& form, const QString& name, const Place& place) : Control(form, name, place) {
  setReadOnly(true);
}

void TextBox::Text(const QString& text) {
  setText(text);
  setCursorPosition(0);
}

// The toolkit's box swallows what it can do nothing with: there is nothing to undo, and as a rule
// nothing selected to copy.
void TextBox::keyPressEvent(QKeyEvent* event) {
  const bool idle = event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo) ||
                    (event->matches(QKeySequence::Copy) && !hasSelectedText());
  if (idle) {
    event->ignore();
  } else {
    QLineEdit::keyPressEvent(event);
  }
}

int TextBox::widthForText(const QString& text) const {
  // The toolkit's margin beside the text, and a pixel for the cursor behind it.
  constexpr int beside = 2 * 2 + 1;
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QMargins margins = textMargins();
  const QSize contents(
      fontMetrics().horizontalAdvance(text) + beside + margins.left() + margins.right(),
      fontMetrics().height());
  return style()->sizeFromContents(QStyle::CT_LineEdit, &option, contents, this).width();
}

}  // namespace lensbench
