#include "canvas/qt/Form.h"

#include <cmath>

#include <QApplication>
#include <QCloseEvent>
#include <QLayout>
#include <QMouseEvent>
#include <QScreen>

#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/MenuBar.h"

namespace lensbench {
namespace {

int pixels(double twips) { return static_cast<int>(std::lround(twips / twipsPerPixel)); }

int buttonNumber(Qt::MouseButtons buttons) {
  return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) | (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
         (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

int shiftNumber(Qt::KeyboardModifiers keys) {
  return (keys.testFlag(Qt::ShiftModifier) ? 1 : 0) | (keys.testFlag(Qt::ControlModifier) ? 2 : 0) |
         (keys.testFlag(Qt::AltModifier) ? 4 : 0);
}

}  // namespace

Form::Form(const FormDesign& design) : area_(new DrawingArea(this)) {
  setObjectName(design.name);
  setWindowTitle(design.caption);
  setCentralWidget(area_);
  setMenuBar(new MenuBar(this));

  QPalette colours = palette();
  if (design.background) {
    // A background of our own needs a text colour that is read on it whatever the theme.
    colours.setColor(QPalette::Window, QColor::fromRgb(opaque(painted(*design.background))));
    colours.setColor(QPalette::WindowText, Qt::black);
    area_->setPalette(colours);
  }
  const QColor background = colours.color(QPalette::Window);
  canvas().BackColor(RGB(background.red(), background.green(), background.blue()));
  canvas().Cls();

  const auto report = [this](auto signal, Qt::MouseButtons buttons, const QMouseEvent* event) {
    const Point user = canvas().mapping().toUser({event->position().x(), event->position().y()});
    emit(this->*signal)(buttonNumber(buttons), shiftNumber(event->modifiers()), user.x, user.y);
  };
  connect(area_, &DrawingArea::pressed, this,
          [=](const QMouseEvent* event) { report(&Form::MouseDown, event->button(), event); });
  connect(area_, &DrawingArea::moved, this,
          [=](const QMouseEvent* event) { report(&Form::MouseMove, event->buttons(), event); });
  connect(area_, &DrawingArea::released, this,
          [=](const QMouseEvent* event) { report(&Form::MouseUp, event->button(), event); });
  connect(area_, &DrawingArea::canvasResized, this, &Form::Resized);

  clientSize(design.width, design.height);
}

Form::~Form() = default;

RasterCanvas& Form::canvas() noexcept { return area_->canvas(); }
const RasterCanvas& Form::canvas() const noexcept { return area_->canvas(); }
QWidget* Form::drawingArea() const noexcept { return area_; }
DrawingArea& Form::area() noexcept { return *area_; }
const QImage& Form::image() { return area_->image(); }

void Form::Show() {
  show();
  raise();
  activateWindow();
}

double Form::Left() const { return frameGeometry().x() * twipsPerPixel; }
void Form::Left(double twips) { move(pixels(twips), frameGeometry().y()); }
double Form::Top() const { return frameGeometry().y() * twipsPerPixel; }
void Form::Top(double twips) { move(frameGeometry().x(), pixels(twips)); }
double Form::Width() const { return frameGeometry().width() * twipsPerPixel; }
void Form::Width(double twips) { outerSize({pixels(twips), frameGeometry().height()}); }
double Form::Height() const { return frameGeometry().height() * twipsPerPixel; }
void Form::Height(double twips) { outerSize({frameGeometry().width(), pixels(twips)}); }

void Form::clientSize(double width, double height) {
  client_ = QSize(pixels(width), pixels(height));
  outer_.reset();
  settle();
  resize(size() + *client_ - area_->size());
  settle();
}

void Form::outerSize(QSize size) {
  client_.reset();
  outer_ = size;
  setWindowState(windowState() & ~Qt::WindowMaximized);
  frame_ = frameGeometry().size() - geometry().size();
  resize(size - frame_);
  settle();
}

void Form::fitFrame() {
  // The window manager adds its frame only when the window is mapped.
  const QSize frame = frameGeometry().size() - geometry().size();
  if (!outer_ || hadInput_ || isMaximized() || !isVisible() || frame == frame_) return;
  frame_ = frame;
  resize(*outer_ - frame_);
}

void Form::fillDisplay() {
  client_.reset();
  outer_.reset();
  setScreen(QGuiApplication::primaryScreen());
  setWindowState(windowState() | Qt::WindowMaximized);
}

void Form::addMenuEntry(QAction* entry) {
  menuBar()->addAction(entry);
  // The bar takes its height from the window and not from the client area.
  if (client_ && !shown_)
    clientSize(client_->width() * twipsPerPixel, client_->height() * twipsPerPixel);
}

// Lays out at once, also while hidden, so that the canvas has its size before anything is drawn.
void Form::settle() {
  layout()->invalidate();
  layout()->activate();
  area_->fitCanvas();
}

void Form::MousePointer(int shape) {
  if (shape == mousePointer_) return;
  mousePointer_ = shape;
  if (shape == 1) {
    area_->setCursor(Qt::ArrowCursor);
  } else if (shape == 2) {
    area_->setCursor(Qt::CrossCursor);
  } else {
    area_->unsetCursor();
  }
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit CloseBox();
}

void Form::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!shown_) {
    shown_ = true;
    qApp->installEventFilter(this);
  }
  fitFrame();
}

void Form::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  fitFrame();
}

void Form::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  fitFrame();
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  markInput(watched, *event);
  return QMainWindow::eventFilter(watched, event);
}

void Form::markInput(const QObject* watched, const QEvent& event) {
  const bool press = event.type() == QEvent::KeyPress || event.type() == QEvent::MouseButtonPress ||
                     event.type() == QEvent::MouseButtonDblClick;
  if (hadInput_ || !press || !watched->isWidgetType()) return;
  hadInput_ = static_cast<const QWidget*>(watched)->window() == this;
  if (hadInput_) qApp->removeEventFilter(this);
}

}  // namespace lensbench
