// The keys of the program: one table, by which keys are obeyed and which the help window shows.
#pragma once

#include <vector>

#include <QKeyCombination>

class QKeyEvent;

namespace lensbench {

enum class Command {
  Help,
  Undo,
  Redo,
  Escape,  // leaves a drag, else full screen, else the screen
  FullScreen,
  Follow,
  Repeat,
  Copy,
  Save,
  Print,
  NextThing,
  PreviousThing,
  Move,      // by 1 unit
  MoveFar,   // by 10
  MoveFine,  // by a tenth, where the thing stands on more than whole units
  Enter,     // sends the light of the source
  PauseWaves,
  StepForward,
  StepBack,
  RestartWaves
};

// Where a key counts, provided that the control with the focus has no use for it.
enum class KeyScope {
  Program,      // on every screen
  Drawing,      // on the screens with a picture
  DrawingArea,  // there, while the picture itself has the focus
  Waves         // on the workbench, which alone has waves that move
};

struct Key {
  Command command;
  KeyScope scope;
  std::vector<QKeyCombination> combinations;  // any of them
  const char* name;                           // as it stands on the keys; UTF-8, like what follows
  const char* greek;                          // what it does
  const char* english;
};

// In the order in which the help window shows them.
const std::vector<Key>& keys();

// The row of a key press; null for a key of no meaning. Keys of the number pad count as the others.
const Key* keyOf(const QKeyEvent& event);

}  // namespace lensbench
