// What can be taken on a drawing screen: by the mouse, by keys, and in words.
#pragma once

#include <QPainterPath>
#include <QString>

#include "canvas/Canvas.h"

namespace lensbench {

// Which way a thing goes when it is moved, and whether only to whole units.
struct Motion {
  bool x = true;
  bool y = true;
  bool whole = false;
};

struct Thing {
  int id = 0;            // the screen's own
  QString name;          // Greek · English
  QString words;         // a Greek line and an English line, with the numbers of the moment
  Point at;              // where it stands, and where keys move it from; user units
  QPainterPath outline;  // logical pixels of the drawing area
  Qt::CursorShape shape = Qt::ArrowCursor;  // of the pointer that would take it
  Motion motion;
};

}  // namespace lensbench
