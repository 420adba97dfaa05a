// Figures that lie above the picture: they move without disturbing it.
#pragma once

#include <QObject>
#include <QRectF>
#include <QString>

#include "canvas/qt/RasterCanvas.h"

class QPainter;
class QWidget;

namespace lensbench {

class Form;

enum class BorderStyle { Solid, Dotted };

// A child of the form's drawing area, which paints those that are visible in order of creation.
class Overlay : public QObject {
  Q_OBJECT

 public:
  Overlay(Form& form, const QString& name);

  bool Visible() const noexcept { return visible_; }
  void Visible(bool visible);
  Rgb BorderColor() const noexcept { return borderColor_; }
  void BorderColor(Rgb colour);
  lensbench::BorderStyle BorderStyle() const noexcept { return borderStyle_; }
  void BorderStyle(lensbench::BorderStyle style);
  // Whether it is part of what the picture says, as a blade is, and goes along when the picture is
  // copied, saved or printed. What only helps the hand, such as a halo, does not. True at first.
  bool InPicture() const noexcept { return inPicture_; }
  void InPicture(bool part) noexcept { inPicture_ = part; }

  // Both in logical pixels of the client area.
  virtual QRectF bounds() const = 0;
  virtual void paint(QPainter& painter) const = 0;
  // The scale has been replaced: new user coordinates for the same place on the screen.
  virtual void convert(const UserMapping& from, const UserMapping& to) = 0;

 protected:
  UserMapping mapping() const;
  QPen border(double width) const;

  // Makes a change and shows the old and the new place anew.
  template <typename Change>
  void change(Change&& make) {
    showAnew();
    make();
    showAnew();
  }

 private:
  void showAnew() const;

  Form& form_;
  bool visible_ = true;
  bool inPicture_ = true;
  Rgb borderColor_ = black;
  lensbench::BorderStyle borderStyle_ = BorderStyle::Solid;
};

}  // namespace lensbench
