// What the help window says, and of which screen: what can be taken on the screen that is in front,
// the keys, and the lessons.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

#include <QObject>
#include <QPointer>

#include "screens/help/HelpWindow.h"

class QWindow;

namespace lensbench {

class Form;

// The sections for a screen.
std::vector<HelpSection> helpFor(const Form& screen);

class Help : public QObject {
 public:
  // What puts a lesson, counted from 0, on its screen.
  explicit Help(std::function<void(std::size_t)> setUp);
  ~Help() override;

  // Opens the window for the screen in front, or brings it to the front.
  void open();
  // Null until it was opened.
  const HelpWindow* window() const { return window_.get(); }

 protected:
  // Of the drawing area in front: what is painted anew may stand elsewhere.
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusCameTo(const QWindow* window);
  void tellOf(Form& screen);

  std::function<void(std::size_t)> setUp_;
  std::unique_ptr<HelpWindow> window_;
  QPointer<Form> front_;
  bool stale_ = false;
};

}  // namespace lensbench
