// The menu bar of a form, in which the commands stand themselves.
#pragma once

#include <QMenuBar>
#include <QPointer>

namespace lensbench {

// F10 and Alt bring the keyboard into the bar; Escape and a command give it back to where it was.
// An entry that can carry a check mark has room for it beside its caption, marked or not.
class MenuBar : public QMenuBar {
  Q_OBJECT

 public:
  explicit MenuBar(QWidget* form);

 protected:
  void initStyleOption(QStyleOptionMenuItem* option, const QAction* action) const override;
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;

 private:
  void enter();
  void leave();

  QPointer<QWidget> before_;  // what had the keyboard before it came into the bar
};

}  // namespace lensbench
