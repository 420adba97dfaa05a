// Takes the picture of a screen along: to the clipboard, into a file, onto paper.
#pragma once

namespace lensbench {

class Dialogs;
class Form;

// An image and a vector picture at once; who pastes takes what it can use.
void copyPicture(Form& form);

// Asks for a file and saves the picture there as PNG, SVG or PDF, as its suffix says. What cannot
// be saved is said in a box.
void savePicture(Form& form, Dialogs& dialogs);

// Asks for a printer and prints the picture on one page. What cannot be printed is said in a box.
void printPicture(Form& form, Dialogs& dialogs);

}  // namespace lensbench
