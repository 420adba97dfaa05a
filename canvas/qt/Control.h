// What all widgets on a form share: name, place, font and words for those who cannot see them.
#pragma once

#include <QAction>
#include <QEvent>
#include <QPalette>
#include <QString>
#include <QWidget>

#include "canvas/Canvas.h"
#include "canvas/qt/Fonts.h"
#include "canvas/qt/Form.h"

namespace lensbench {

// Twips of the client area.
struct Place {
  double left, top, width, height;
};

QRect inPixels(const Place& place);

// accessibleName says what it is, toolTip what it does, both in Greek and English.
void describe(QWidget& widget, const QString& accessibleName, const QString& toolTip);
void describe(QAction& action, const QString& accessibleName, const QString& toolTip);

// A tool tip with what is to be feared, each in Greek and English, a line each.
QString withWarning(const QString& toolTip, const QString& warning);

// A toolkit widget as a control of a form.
template <typename Widget>
class Control : public Widget {
 public:
  // The name as given; the installed face that stands for it is what is seen.
  QString FontName() const { return fontName_; }
  void FontName(const QString& name) {
    fontName_ = name;
    useFont();
  }
  double FontSize() const { return fontSize_; }
  void FontSize(double points) {
    fontSize_ = points;
    useFont();
  }

  bool Visible() const { return !Widget::isHidden(); }
  void Visible(bool visible) { Widget::setVisible(visible); }
  bool Enabled() const { return Widget::isEnabled(); }
  void Enabled(bool enabled) { Widget::setEnabled(enabled); }

  Place place() const {
    return {Widget::x() * twipsPerPixel, Widget::y() * twipsPerPixel,
            Widget::width() * twipsPerPixel, Widget::height() * twipsPerPixel};
  }
  void place(const Place& twips) { Widget::setGeometry(inPixels(twips)); }

 protected:
  template <typename... Arguments>
  Control(Form& form, const QString& name, const Place& twips, Arguments... arguments)
      : Widget(arguments..., form.drawingArea()) {
    Widget::setObjectName(name);
    // A press on a control is not a press on the drawing beneath it.
    Widget::setAttribute(Qt::WA_NoMousePropagation);
    useFont();
    place(twips);
  }

 private:
  void useFont() { Widget::setFont(controlFont(fontName_, fontSize_)); }

  QString fontName_ = "Arial";
  double fontSize_ = smallestControlText;
};

// Colours of a control that stands on an area of this background: those of a light palette where
// the area's colour is not the desktop's own, so that a dark desktop does not take its words away;
// but on a desktop of high contrast the desktop's, on a plate of its own.
QPalette coloursOn(const QColor& background);

// A control that stands on the background of its form.
template <typename Widget>
class PlainControl : public Control<Widget> {
 protected:
  PlainControl(Form& form, const QString& name, const Place& twips)
      : Control<Widget>(form, name, twips) {
    Widget::setBackgroundRole(QPalette::Window);
    Widget::setForegroundRole(QPalette::WindowText);
    Widget::setAutoFillBackground(true);
    takeColours();
    Widget::parentWidget()->installEventFilter(this);
  }

  // The toolkit tells a widget with colours of its own nothing of the desktop's.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) takeColours();
    return Widget::eventFilter(watched, event);
  }

 private:
  void takeColours() {
    Widget::setPalette(coloursOn(Widget::parentWidget()->palette().color(QPalette::Window)));
  }
};

}  // namespace lensbench
