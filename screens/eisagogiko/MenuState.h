// All that a step of the history holds of the lens menu.
#pragma once

#include <QString>

namespace lensbench {

struct MenuState {
  int deiktissahl = 0;  // value of the scroll bar
  QString caption;      // of the label beside it

  friend bool operator==(const MenuState&, const MenuState&) = default;
};
inline MenuState kept(const MenuState& state) { return state; }

}  // namespace lensbench
