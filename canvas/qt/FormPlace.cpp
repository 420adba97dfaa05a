// Where the window of a form stands and how large it is, whatever window manager there is, if any.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include <QGuiApplication>
#include <QLayout>
#include <QScreen>
#include <QTimer>
#include <QWindow>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/Form.h"

namespace lensbench {
namespace {

int pixels(double twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

QPoint offset(const QMargins& frame) { return {frame.left(), frame.top()}; }
QSize grownBy(const QMargins& frame) { return QSize(0, 0).grownBy(frame); }

// By then a window manager that there is has changed the state of a window.
constexpr int instant = 100;  // ms

}  // namespace

void Form::Show() {
  if (!isVisible() && !reachable()) keepOnDisplay();
  show();
  // After it is shown: the toolkit maps a window that is no longer minimised.
  if (isMinimized()) {
    keepOrdinary();
    setWindowState(windowState() & ~Qt::WindowMinimized);
  }
  raise();
  activateWindow();
}

void Form::Hide() {
  if (isVisible()) keepOrdinary();
  hide();
  // A window without a place of its own is placed anew when it is shown.
  if (isOrdinary()) setGeometry(geometry());
}

// A window that is shown maximised anew takes the display's size for its ordinary one.
void Form::keepOrdinary() {
  if (isMaximized() && !ordinary_) ordinary_ = normalGeometry();
}

// The toolkit's own idea of the frame lags behind the changes of state that are asked for here.
QRect Form::framed() const {
  return isOrdinary() ? geometry().marginsAdded(frame_) : frameGeometry();
}

double Form::Left() const { return framed().x() * twipsPerPixel; }
void Form::Left(double twips) {
  makeOrdinary();
  moveFrame({pixels(twips), framed().y()});
}
double Form::Top() const { return framed().y() * twipsPerPixel; }
void Form::Top(double twips) {
  makeOrdinary();
  moveFrame({framed().x(), pixels(twips)});
}
double Form::Width() const { return framed().width() * twipsPerPixel; }
void Form::Width(double twips) {
  makeOrdinary();
  outerSize({pixels(twips), framed().height()});
}
double Form::Height() const { return framed().height() * twipsPerPixel; }
void Form::Height(double twips) {
  makeOrdinary();
  outerSize({framed().width(), pixels(twips)});
}

void Form::clientSize(double width, double height) {
  const QSize client(pixels(width), pixels(height));
  outer_.reset();
  settle();
  resize(size() + client - area_->size());
  settle();
  if (!isVisible()) client_ = client;
}

void Form::outerSize(QSize size) {
  client_.reset();
  outer_ = size;
  resize(size - grownBy(frame_));
  settle();
}

void Form::moveFrame(QPoint upperLeft) {
  written_ = upperLeft;
  // Until its frame is known the toolkit itself takes the place for the frame's.
  if (frame_.isNull()) {
    move(upperLeft);
  } else {
    setGeometry({upperLeft + offset(frame_), size()});
  }
}

bool Form::movedByHand() const { return written_ && framed().topLeft() != *written_; }

bool Form::isOrdinary() const {
  return !(windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
}

void Form::makeOrdinary() {
  ordinary_.reset();
  alone_ = false;
  // A hidden window is restored when it is shown.
  const Qt::WindowStates kept = isVisible() ? Qt::WindowNoState : Qt::WindowMinimized;
  if (!isOrdinary()) setWindowState(windowState() & kept);
}

void Form::stateChanged() {
  // Where the window manager made the window large first and maximised only then, the toolkit took
  // the display's size for the ordinary one.
  if (isMaximized() && !ordinary_ && normalGeometry() == geometry() && isLarge() &&
      !beforeResize_.isEmpty()) {
    ordinary_ = QRect(beforeMove_, beforeResize_);
  }
  // On its way from minimised to maximised a window is an ordinary one for an instant.
  QTimer::singleShot(instant, this, &Form::becomeOrdinary);
}

void Form::becomeOrdinary() {
  if (!isVisible() || !isOrdinary()) return;
  if (ordinary_) setGeometry(*std::exchange(ordinary_, std::nullopt));
  keepOnDisplay();
  fitFrame();
}

void Form::fillDisplay() {
  client_.reset();
  outer_.reset();
  QScreen* display = QGuiApplication::primaryScreen();
  // A window is maximised on the display that it stands on.
  if (isOrdinary() && !display->availableGeometry().contains(geometry().center())) {
    setScreen(display);
    move(display->availableGeometry().topLeft());
  }
  setWindowState(Qt::WindowMaximized);
}

void Form::FullScreen(bool on) {
  if (on == isFullScreen()) return;
  if (on) beforeFull_ = geometry();
  setWindowState(windowState() ^ Qt::WindowFullScreen);
  QTimer::singleShot(instant, this, &Form::settleFullScreen);
}

// Without a window manager nobody covers the display with a window, nor puts it back.
void Form::settleFullScreen() {
  const QRect display = screen()->geometry();
  if (isFullScreen()) {
    if (size() != display.size()) setGeometry(display);
  } else if (geometry() == display && beforeFull_ != display) {
    setGeometry(beforeFull_);
  }
}

// The window manager adds its frame when the window is first mapped. What is not as it was written
// was changed by a person.
void Form::fitFrame() {
  if (!isVisible() || !isOrdinary()) return;
  if (frame_.isNull()) {
    frame_ = windowHandle()->frameMargins();
    if (outer_ && size() == *outer_) resize(*outer_ - grownBy(frame_));
  }
  if (client_ && area_->size() == *client_) keepOnDisplay();
}

bool Form::reachable() const {
  const QRect frame = frameGeometry();
  return screen()->availableVirtualGeometry().contains(frame.center().x(), frame.top());
}

void Form::keepOnDisplay() {
  if (!isOrdinary()) return;
  const QRect room = screen()->availableVirtualGeometry();
  const QRect frame = frameGeometry();
  if (room.contains(frame)) return;
  const QSize fitting = frame.size().boundedTo(room.size());
  resize(fitting - (frame.size() - size()));
  move(std::clamp(frame.x(), room.left(), room.right() + 1 - fitting.width()),
       std::clamp(frame.y(), room.top(), room.bottom() + 1 - fitting.height()));
}

void Form::displayChanged() {
  if (alone_) setGeometry(screen()->availableGeometry());
  if (isVisible()) keepOnDisplay();
}

bool Form::isLarge() const {
  constexpr int panel = 64;  // pixels, more than a frame or a panel of the desktop takes
  const QSize missing = screen()->availableGeometry().size() - size();
  return std::max(std::abs(missing.width()), std::abs(missing.height())) <= panel;
}

// Without a window manager nobody makes a maximised window as large as the display. One that is
// there has put its frame around the window, or made it large, before it is seen.
void Form::fillWithoutManager() {
  if (!isMaximized() || isLarge() || !windowHandle()->frameMargins().isNull()) return;
  alone_ = true;
  setGeometry(screen()->availableGeometry());
}

// Lays out at once, also while hidden, so that the canvas has its size before anything is drawn.
void Form::settle() {
  layout()->invalidate();
  layout()->activate();
  area_->fitCanvas();
}

void Form::followScreen(QScreen* screen) {
  disconnect(display_);
  if (screen == nullptr) return;
  display_ = connect(screen, &QScreen::availableGeometryChanged, this, &Form::displayChanged);
  area_->fitCanvas();
}

}  // namespace lensbench
