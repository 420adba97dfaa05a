// Moves that are written down instead of made.
#pragma once

#include <string>
#include <vector>

#include "screens/Moves.h"

namespace lensbench {

class FakeMoves : public Moves {
 public:
  std::vector<std::string> made;

  void openSingleRay() override { made.emplace_back("openSingleRay"); }
  void openLensMenu() override { made.emplace_back("openLensMenu"); }
  void leaveSingleRay() override { made.emplace_back("leaveSingleRay"); }
  void leaveLensMenu() override { made.emplace_back("leaveLensMenu"); }
  void openIbnSahl() override { made.emplace_back("openIbnSahl"); }
  void leaveIbnSahl() override { made.emplace_back("leaveIbnSahl"); }
  void End() override { made.emplace_back("End"); }
};

}  // namespace lensbench
