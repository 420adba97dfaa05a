// With nothing asked of it that is new, the program does what it did when the log was written. With
// LENSBENCH_WRITE_GOLDEN set the log is written anew, which is right only where the program is
// meant to behave otherwise.
#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/golden/Player.h"

namespace lensbench {
namespace {

std::vector<std::string> linesOf(const char* file) {
  std::ifstream in(file);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

// The step that a line belongs to, and some lines before it.
std::string context(const std::vector<std::string>& lines, std::size_t at) {
  std::string text;
  for (std::size_t i = at > 12 ? at - 12 : 0; i < std::min(at + 4, lines.size()); ++i) {
    text += (i == at ? "> " : "  ") + lines[i] + "\n";
  }
  return text;
}

TEST(Golden, TheProgramDoesWhatItDid) {
  Player player;
  player.play(400);
  if (std::getenv("LENSBENCH_WRITE_GOLDEN") != nullptr) {
    std::ofstream out(GOLDEN_LOG);
    for (const std::string& line : player.log()) out << line << '\n';
    GTEST_SKIP() << "written, not compared";
  }
  const std::vector<std::string> expected = linesOf(GOLDEN_LOG);
  ASSERT_GT(expected.size(), 1000u);
  const std::size_t lines = std::min(expected.size(), player.log().size());
  for (std::size_t i = 0; i < lines; ++i) {
    ASSERT_EQ(player.log()[i], expected[i]) << "line " << i + 1 << " of the log, which has\n"
                                            << context(expected, i) << "but now there is\n"
                                            << context(player.log(), i);
  }
  EXPECT_EQ(player.log().size(), expected.size());
}

}  // namespace
}  // namespace lensbench
