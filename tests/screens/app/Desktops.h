// Fonts and colours of desktops, for as long as a test lasts, and the controls on them.
#pragma once

#include <QApplication>
#include <QColor>
#include <QFont>
#include <QList>
#include <QPalette>
#include <QTest>

#include "canvas/qt/Form.h"
#include "screens/ElSahl/ElSahl.h"
#include "screens/eisagogiko/eisagogiko.h"
#include "screens/kelmo/kelmo.h"
#include "screens/moniaktina/moniaktina.h"
#include "tests/screens/app/Shell.h"

namespace lensbench {

class DesktopFont {
 public:
  explicit DesktopFont(double points) {
    QFont font = before_;
    font.setPointSizeF(points);
    QApplication::setFont(font);
  }
  ~DesktopFont() { QApplication::setFont(before_); }
  DesktopFont(const DesktopFont&) = delete;
  DesktopFont& operator=(const DesktopFont&) = delete;

 private:
  const QFont before_ = QApplication::font();
};

class DesktopColours {
 public:
  DesktopColours(const QColor& background, const QColor& words, const QColor& button) {
    QPalette colours(button, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
      colours.setColor(role, words);
    }
    colours.setColor(QPalette::Base, background);
    QApplication::setPalette(colours);
  }
  ~DesktopColours() { QApplication::setPalette(before_); }
  DesktopColours(const DesktopColours&) = delete;
  DesktopColours& operator=(const DesktopColours&) = delete;

 private:
  const QPalette before_ = QApplication::palette();
};

// The four screens, in windows as a display of 1366 x 768 gives them, each with its lens.
struct ShownProgram : Program {
  static constexpr int width = 1366;  // pixels

  ShownProgram() {
    screens.eisagogiko().Show();
    screens.eisagogiko().Command1_Click();
    screens.openSingleRay();
    screens.kelmo().Show();
    for (Form* form :
         {static_cast<Form*>(&screens.kelmo()), static_cast<Form*>(&screens.moniaktina())}) {
      // The display answers each change of state, and every answer starts the moment anew.
      QApplication::processEvents();
      form->setWindowState(Qt::WindowNoState);
      QApplication::processEvents();
      // A window that has become an ordinary one is fitted to the display a moment later.
      for (int tries = 0; tries < 20 && form->width() != width; ++tries) {
        QTest::qWait(130);
        form->resize(width, 740);
        // Larger than the display, but not out of its reach: it is not fitted to it any more.
        form->move(-width / 4, 0);
        QApplication::processEvents();
      }
    }
    QApplication::processEvents();
  }

  QList<Form*> forms() {
    return {&screens.kelmo(), &screens.moniaktina(), &screens.eisagogiko(), &screens.ElSahl()};
  }
};

// The controls that stand on the drawing area of a form and are seen.
inline QList<QWidget*> controlsOf(const Form& form) {
  QList<QWidget*> controls;
  const auto all = form.drawingArea()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  for (QWidget* widget : all) {
    if (widget->isVisibleTo(form.drawingArea())) controls << widget;
  }
  return controls;
}

}  // namespace lensbench
