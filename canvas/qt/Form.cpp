#include "canvas/qt/Form.h"

#include <utility>

#include <QCloseEvent>
#include <QMouseEvent>
#include <QTimer>
#include <QWindow>

#include "canvas/qt/Accessibility.h"
#include "canvas/qt/DrawingArea.h"
#include "canvas/qt/MenuBar.h"

namespace lensbench {
namespace {

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
  speakOfForms();
  setObjectName(design.name);
  Caption(design.caption);
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

  connect(area_, &DrawingArea::pressed, this, [this](QMouseEvent* event) { mousePressed(*event); });
  connect(area_, &DrawingArea::moved, this, [this](QMouseEvent* event) { mouseMoved(*event); });
  connect(area_, &DrawingArea::released, this,
          [this](QMouseEvent* event) { mouseReleased(*event); });
  connect(area_, &DrawingArea::canvasResized, this, &Form::Resized);

  clientSize(design.width, design.height);
}

Form::~Form() = default;

RasterCanvas& Form::canvas() noexcept { return area_->canvas(); }
const RasterCanvas& Form::canvas() const noexcept { return area_->canvas(); }
QWidget* Form::drawingArea() const noexcept { return area_; }
const QImage& Form::image() { return area_->image(); }

void Form::Caption(const QString& caption) {
  caption_ = caption;
  setWindowTitle(caption_ + titleNote_);
}

void Form::titleNote(const QString& words) {
  titleNote_ = words;
  Caption(caption_);
}

void Form::addMenuEntry(QAction* entry) {
  menuBar()->addAction(entry);
  // The bar takes its height from the window and not from the client area.
  if (client_) clientSize(client_->width() * twipsPerPixel, client_->height() * twipsPerPixel);
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

Point Form::userPoint(const QMouseEvent& event) {
  return canvas().mapping().toUser({event.position().x(), event.position().y()});
}

void Form::report(MouseSignal signal, Qt::MouseButtons buttons, const QMouseEvent& event) {
  const Point user = userPoint(event);
  emit(this->*signal)(buttonNumber(buttons), shiftNumber(event.modifiers()), user.x, user.y);
}

void Form::mousePressed(const QMouseEvent& event) {
  if (event.button() == Qt::LeftButton) {
    endDrag();
    dragging_ = true;
  }
  report(&Form::MouseDown, event.button(), event);
}

void Form::mouseMoved(const QMouseEvent& event) {
  if (!event.buttons().testFlag(Qt::LeftButton)) endDrag();
  report(&Form::MouseMove, event.buttons(), event);
}

void Form::mouseReleased(const QMouseEvent& event) {
  // A drag that was told to have ended stays so, even if its release comes after all.
  if (event.button() == Qt::LeftButton && !std::exchange(dragging_, false)) return;
  report(&Form::MouseUp, event.button(), event);
}

bool Form::endDrag() {
  const bool held = std::exchange(dragging_, false);
  if (held) emit DragEnded();
  return held;
}

bool Form::event(QEvent* event) {
  if (event->type() == QEvent::WindowBlocked) endDrag();
  if (event->type() == QEvent::WindowStateChange) stateChanged();
  return QMainWindow::event(event);
}

void Form::closeEvent(QCloseEvent* event) {
  event->ignore();
  emit CloseBox();
}

void Form::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (event->spontaneous()) return;
  windowHandle()->installEventFilter(this);
  connect(windowHandle(), &QWindow::screenChanged, this, &Form::followScreen, Qt::UniqueConnection);
  followScreen(screen());
  managerAwaited_ = true;
  fitFrame();
}

void Form::hideEvent(QHideEvent* event) {
  QMainWindow::hideEvent(event);
  endDrag();
}

void Form::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  if (isVisible() && isOrdinary()) beforeResize_ = event->oldSize();
  fitFrame();
}

void Form::moveEvent(QMoveEvent* event) {
  QMainWindow::moveEvent(event);
  if (isVisible() && isOrdinary()) beforeMove_ = event->oldPos();
  fitFrame();
}

bool Form::eventFilter(QObject* watched, QEvent* event) {
  if (watched == windowHandle()) {
    // A window manager that there is has placed the window by now.
    if (event->type() == QEvent::Expose && std::exchange(managerAwaited_, false)) {
      QTimer::singleShot(0, this, [this] {
        fillWithoutManager();
        fitFrame();
      });
    }
    return false;
  }
  return QMainWindow::eventFilter(watched, event);
}

}  // namespace lensbench
