// The option buttons, menu entries and diaphragm edges of the Ibn Sahl screen, with their design
// data.
#pragma once

#include "canvas/qt/Form.h"
#include "canvas/qt/LineControl.h"
#include "canvas/qt/MenuEntry.h"
#include "canvas/qt/OptionButton.h"

namespace lensbench {

struct SahlControls {
  explicit SahlControls(Form& form);

  OptionButton onlyrays;      // rays without wavefronts
  OptionButton RAYSANDWAVES;  // rays and wavefronts
  OptionButton kymataYESNO;   // wavefronts without rays

  LineControl Line2;  // lower edge of the diaphragm; its second end is the inner one
  LineControl Line1;  // upper edge

  MenuEntry parallilidesmifotos;  // bundle of parallel rays
  MenuEntry TELOS;                // end of the program
  MenuEntry kymatikosahl;         // wavefronts
  MenuEntry BACKKELMO;            // back to the lens menu

 private:
  void setTexts();
  void placeOptions();
  void describeAll();
};

}  // namespace lensbench
