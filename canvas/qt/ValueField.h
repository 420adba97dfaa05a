// A small field that opens over a box to take a new value for it.
#pragma once

#include <QLineEdit>

class QLabel;

namespace lensbench {

// Stands where the box stands, with a note of two lines beneath it, or above where the window ends.
// It closes by itself, and is gone, when it loses the keyboard or the box moves or hides.
class ValueField : public QLineEdit {
  Q_OBJECT

 public:
  // typedIn gets the keyboard back. hint is what the note says as long as nothing is refused.
  ValueField(QWidget& box, QWidget& typedIn, const QString& typed, const QString& hint);

  // Says in the note why the text is not taken, until it is changed.
  void refuse(const QString& words);
  // Closes it and gives the keyboard back.
  void leave();

  const QLabel& note() const { return *note_; }

 signals:
  // Enter was pressed.
  void entered();

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void say(const QString& words, const QColor& colour);
  void sayHint();
  void vanish();

  QWidget& box_;
  QWidget& typedIn_;
  QLabel* note_;
  const QString hint_;
  bool gone_ = false;
};

}  // namespace lensbench
