// Takes the picture of a screen along: to the clipboard, into a file, onto paper.
#pragma once

#include <QByteArray>
#include <QString>

#include "canvas/qt/TakenPicture.h"

namespace lensbench {

class Dialogs;

// An image and a vector picture at once; who pastes takes what it can use.
void copyPicture(const TakenPicture& picture);

// Asks for a file and saves the picture there as PNG, SVG or PDF, as its suffix says. What cannot
// be saved is said in a box.
void savePicture(const TakenPicture& picture, Dialogs& dialogs);

// Asks for a printer and prints the picture on one page. What cannot be printed is said in a box.
void printPicture(const TakenPicture& picture, Dialogs& dialogs);

enum class Written { Whole, NotOpened, NotWhole };

// Replaces what a file holds, at once or, where that fails, not at all. A device is just written
// to.
[[nodiscard]] Written writeFile(const QString& name, const QByteArray& bytes);

}  // namespace lensbench
