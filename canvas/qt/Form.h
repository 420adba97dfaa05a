// A window that is at once a container of controls and a drawing surface.
#pragma once

#include <optional>

#include <QMainWindow>
#include <QMargins>
#include <QString>

#include "canvas/Rgb.h"
#include "canvas/qt/RasterCanvas.h"

class QMouseEvent;
class QScreen;

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
  // The picture as anyone reads it, brought up to date first.
  const QImage& image();
  DrawingArea& area() noexcept { return *area_; }
  // The same as the parent of the controls; its size is the client area.
  QWidget* drawingArea() const noexcept;

  // Ends with a visible window in front of the others: one that was minimised is restored, one that
  // was hidden comes back where and as large as it was.
  void Show();
  void Hide();

  // The window with its frame, as far as the toolkit knows the frame, in twips. Writing one of them
  // makes a maximised or minimised window an ordinary one.
  double Left() const;
  void Left(double twips);
  double Top() const;
  void Top(double twips);
  double Width() const;
  void Width(double twips);
  double Height() const;
  void Height(double twips);
  // Whether the window stands elsewhere than where Left and Top were last written.
  bool movedByHand() const;
  // Sizes the window so that its client area has this size, in twips.
  void clientSize(double width, double height);
  // A command in the menu bar itself.
  void addMenuEntry(QAction* entry);
  // Maximised on the primary screen when it is shown.
  void fillDisplay();
  // Covers the whole display, panels and all; and is again what it was before, maximised or not.
  void FullScreen(bool on);

  QString Caption() const { return caption_; }
  void Caption(const QString& caption);
  // Words that stand behind the caption in the title of the window, until {} takes them away.
  void titleNote(const QString& words);
  // The picture always lasts; the property is kept because screens set it.
  bool AutoRedraw() const noexcept { return autoRedraw_; }
  void AutoRedraw(bool on) noexcept { autoRedraw_ = on; }
  // 0 the platform's default, 1 an arrow, 2 a cross.
  int MousePointer() const noexcept { return mousePointer_; }
  void MousePointer(int shape);

 signals:
  // Button: 1 left, 2 right, 4 middle; for MouseMove the sum of those held. Shift: 1 shift,
  // 2 control, 4 alt. X, Y in user units, also outside the client area while a button is held.
  void MouseDown(int Button, int Shift, double X, double Y);
  void MouseMove(int Button, int Shift, double X, double Y);
  void MouseUp(int Button, int Shift, double X, double Y);
  // The left button was pressed here, and its release will not be told, not even when it comes: the
  // mouse came back without it, a box stands in front of the form, or the form is out of sight.
  void DragEnded();
  // The client area has a new size or pixel ratio, and the canvas with it.
  void Resized();
  // The window frame was asked to close the form, which it does not do by itself.
  void CloseBox();

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void moveEvent(QMoveEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

  // Where a mouse event is meant, user units.
  virtual Point userPoint(const QMouseEvent& event);
  // A press of the left button that is held here is over: its release will not be told. False when
  // none is held.
  bool endDrag();

 private:
  void mousePressed(const QMouseEvent& event);
  void mouseMoved(const QMouseEvent& event);
  void mouseReleased(const QMouseEvent& event);
  using MouseSignal = void (Form::*)(int, int, double, double);
  void report(MouseSignal signal, Qt::MouseButtons buttons, const QMouseEvent& event);

  void settle();
  // Whether the window is neither maximised nor minimised.
  bool isOrdinary() const;
  void keepOrdinary();
  void makeOrdinary();
  void stateChanged();
  void becomeOrdinary();
  QRect framed() const;
  void moveFrame(QPoint upperLeft);
  void outerSize(QSize size);
  void fitFrame();
  bool reachable() const;
  // Makes an ordinary window no larger than the display, and moves it there.
  void keepOnDisplay();
  void followScreen(QScreen* screen);
  void displayChanged();
  // Whether it is about as large as the display.
  bool isLarge() const;
  void fillWithoutManager();
  void settleFullScreen();

  DrawingArea* area_;
  QString caption_;
  QString titleNote_;
  std::optional<QSize> client_;    // the client area asked for, until the form is shown
  std::optional<QSize> outer_;     // the size with frame last written
  std::optional<QPoint> written_;  // the place of the frame last written
  QMargins frame_;                 // of the window when it was last seen as an ordinary one
  std::optional<QRect> ordinary_;  // of a maximised window, where the toolkit will not know it
  QRect beforeFull_;               // where it stood when it was to be full screen
  QPoint beforeMove_;              // of an ordinary window, before the last change
  QSize beforeResize_;
  QMetaObject::Connection display_;
  bool managerAwaited_ = false;  // just shown, and nobody has answered yet
  bool alone_ = false;           // it fills the display without a window manager
  bool dragging_ = false;
  bool autoRedraw_ = false;
  int mousePointer_ = 0;
};

}  // namespace lensbench
