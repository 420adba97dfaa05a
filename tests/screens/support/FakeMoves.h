// Moves that are written down instead of made.
#pragma once

#include <string>
#include <vector>

#include "screens/Moves.h"

namespace lensbench {

class FakeMoves : public Moves {
 public:
  std::vector<std::string> made;
  light::Diafragma opening{0.0, 1000.0, -1000.0};  // of the workbench: open

  void openSingleRay() override { made.emplace_back("openSingleRay"); }
  void openLensMenu() override { made.emplace_back("openLensMenu"); }
  void leaveSingleRay() override { made.emplace_back("leaveSingleRay"); }
  void leaveLensMenu() override { made.emplace_back("leaveLensMenu"); }
  void openIbnSahl() override { made.emplace_back("openIbnSahl"); }
  void drawIbnSahl() override { made.emplace_back("drawIbnSahl"); }
  void leaveIbnSahl() override { made.emplace_back("leaveIbnSahl"); }
  void End() override { made.emplace_back("End"); }
  void undo() override { made.emplace_back("undo"); }
  void redo() override { made.emplace_back("redo"); }
  void help() override { made.emplace_back("help"); }
  void toggleFollow() override { made.emplace_back("toggleFollow"); }
  void followIndex() override { made.emplace_back("followIndex"); }
  light::Diafragma diafragma() override { return opening; }
};

}  // namespace lensbench
