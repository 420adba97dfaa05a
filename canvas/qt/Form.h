// A window that is at once a container of controls and a drawing surface.
#pragma once

#include <optional>

#include <QMainWindow>
#include <QString>

#include "canvas/Rgb.h"
#include "canvas/qt/RasterCanvas.h"

class QMouseEvent;

namespace lensbench {

class DrawingArea;

// What a form looks like before any code has run. Places are the client area's, in twips; left and
// top are kept as designed but not followed: where a window opens is up to its screen and the
// display. Without a background the platform's own is taken.
struct FormDesign {
  QString name;
  QString caption;
  double left = 0.0;
  double top = 0.0;
  double width = 4800.0;
  double height = 3600.0;
  std::optional<Rgb> background;
};

// The button of the mouse events that acts on the drawing screens.
constexpr int leftButton = 1;

class Form : public QMainWindow {
  Q_OBJECT

 public:
  explicit Form(const FormDesign& design);
  ~Form() override;

  RasterCanvas& canvas() noexcept;
  const RasterCanvas& canvas() const noexcept;
  // The parent of the controls; its size is the client area.
  QWidget* drawingArea() const noexcept;
  DrawingArea& area() noexcept;
  // The picture up to date, in pixels of the canvas.
  const QImage& image();

  // Makes the form visible and brings it to the front.
  void Show();
  void Hide() { hide(); }

  // The window with its frame, as far as the toolkit knows the frame, in twips.
  double Left() const;
  void Left(double twips);
  double Top() const;
  void Top(double twips);
  double Width() const;
  void Width(double twips);
  double Height() const;
  void Height(double twips);
  // Sizes the window so that its client area has this size, in twips.
  void clientSize(double width, double height);
  // A command in the menu bar itself.
  void addMenuEntry(QAction* entry);
  // Maximised on the primary screen when it is shown.
  void fillDisplay();

  QString Caption() const { return windowTitle(); }
  void Caption(const QString& caption) { setWindowTitle(caption); }
  // The picture always lasts; the property is kept because screens set it.
  bool AutoRedraw() const noexcept { return autoRedraw_; }
  void AutoRedraw(bool on) noexcept { autoRedraw_ = on; }
  // 0 the platform's default, 1 an arrow, 2 a cross.
  int MousePointer() const noexcept { return mousePointer_; }
  void MousePointer(int shape);

  // Whether a key or a mouse button has been pressed in the form since it was first shown.
  bool hadInput() const noexcept { return hadInput_; }

 signals:
  // Button: 1 left, 2 right, 4 middle; for MouseMove the sum of those held. Shift: 1 shift,
  // 2 control, 4 alt. X, Y in user units, also outside the client area while a button is held.
  void MouseDown(int Button, int Shift, double X, double Y);
  void MouseMove(int Button, int Shift, double X, double Y);
  void MouseUp(int Button, int Shift, double X, double Y);
  // The client area has a new size or pixel ratio, and the canvas with it.
  void Resized();
  // The window frame was asked to close the form, which it does not do by itself.
  void CloseBox();

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void settle();
  void fitFrame();
  void outerSize(QSize size);
  void markInput(const QObject* watched, const QEvent& event);

  DrawingArea* area_;
  std::optional<QSize> client_;  // the client area asked for, until the form is shown
  std::optional<QSize> outer_;   // the size with frame asked for
  QSize frame_;                  // what the frame added when outer_ was last applied
  bool shown_ = false;
  bool autoRedraw_ = false;
  bool hadInput_ = false;
  int mousePointer_ = 0;
};

}  // namespace lensbench
