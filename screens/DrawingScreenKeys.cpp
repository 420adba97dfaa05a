// What the keys do on a drawing screen.
#include <algorithm>

#include <QKeyEvent>

#include "screens/DrawingScreen.h"
#include "screens/Export.h"
#include "screens/Handlers.h"
#include "screens/Moves.h"

namespace lensbench {
namespace {

// Of the keys that are held down, those that go on.
bool repeats(Command command) {
  switch (command) {
    case Command::Undo:
    case Command::Redo:
    case Command::Move:
    case Command::MoveFar:
    case Command::MoveFine:
    case Command::StepForward:
    case Command::StepBack:
      return true;
    default:
      return false;
  }
}

// One unit the way of an arrow.
Point alongArrow(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1.0, 0.0};
    case Qt::Key_Right:
      return {1.0, 0.0};
    case Qt::Key_Up:
      return {0.0, 1.0};
    default:
      return {0.0, -1.0};
  }
}

}  // namespace

void DrawingScreen::showEvent(QShowEvent* event) {
  thingFocus_.open();
  Form::showEvent(event);
}

void DrawingScreen::keyPressEvent(QKeyEvent* event) {
  const Key* key = keyOf(*event);
  const bool heldInVain = key != nullptr && event->isAutoRepeat() && !repeats(key->command);
  if (heldInVain || (key != nullptr && obey(key->command, event->key()))) return;
  Form::keyPressEvent(event);
}

bool DrawingScreen::obey(Command command, int key) {
  switch (command) {
    case Command::Help:
      context_.moves.help();
      return true;
    case Command::Undo:
      context_.moves.undo();
      return true;
    case Command::Redo:
      context_.moves.redo();
      return true;
    case Command::Escape:
      escape();
      return true;
    case Command::FullScreen:
      FullScreen(!isFullScreen());
      return true;
    case Command::Follow:
      context_.moves.toggleFollow();
      return true;
    case Command::Repeat: {
      const ActionScope scope(context_.actions, *this);
      repeat();
      return true;
    }
    case Command::Copy:
      copyPicture(*this);
      return true;
    case Command::Save:
      savePicture(*this, context_.dialogs);
      return true;
    case Command::Print:
      printPicture(*this, context_.dialogs);
      return true;
    case Command::Move:
      return moveThing(alongArrow(key), 1.0);
    case Command::MoveFar:
      return moveThing(alongArrow(key), 10.0);
    case Command::MoveFine:
      return moveThing(alongArrow(key), 0.1);
    case Command::Enter:
      return enterThing();
    case Command::PauseWaves:
      return pauseWaves();
    case Command::StepForward:
      return stepByHand(1);
    case Command::StepBack:
      return stepByHand(-1);
    case Command::RestartWaves: {
      const ActionScope scope(context_.actions, *this);
      return restartWaves();
    }
    case Command::NextThing:
    case Command::PreviousThing:
      break;  // before the toolkit takes the Tab key
  }
  return false;
}

bool DrawingScreen::moveThing(Point way, double step) {
  const auto thing = thingFocus_.thing();
  if (!thing) return false;
  const Motion& motion = thing->motion;
  const double length = motion.whole ? std::max(step, 1.0) : step;
  const double x = motion.x ? way.x * length : 0.0;
  const double y = motion.y ? way.y * length : 0.0;
  if (x == 0.0 && y == 0.0) return true;
  const ActionScope scope(context_.actions, *this);
  put(thing->id, {thing->at.x + x, thing->at.y + y});
  return true;
}

bool DrawingScreen::enterThing() {
  const auto thing = thingFocus_.thing();
  if (!thing) return false;
  const ActionScope scope(context_.actions, *this);
  enter(thing->id);
  return true;
}

// Like the ticks in whose place it comes, it is no step of the history.
bool DrawingScreen::stepByHand(int steps) {
  const ActionScope scope(context_.actions, *this, By::Itself);
  return stepWaves(steps);
}

void DrawingScreen::escape() {
  if (leaveDrag()) return;
  if (isFullScreen()) return FullScreen(false);
  goBack();
}

}  // namespace lensbench
