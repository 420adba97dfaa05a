#include "tests/docs/Page.h"

#include <algorithm>
#include <fstream>
#include <gtest/gtest.h>

#include "canvas/Format.h"

namespace lensbench {
namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_'; }

}  // namespace

Page::Page(const std::string& name) {
  std::ifstream file(SOURCE_FOLDER "/docs/" + name);
  EXPECT_TRUE(file.is_open()) << name;
  std::string word;
  while (file >> word) text_ += (text_.empty() ? "" : " ") + word;
  checked_.assign(text_.size(), false);
}

bool Page::cutsANumber(std::size_t from, std::size_t to) const {
  const auto at = [this](std::size_t i) { return i < text_.size() ? text_[i] : ' '; };
  const char before = from > 0 ? text_[from - 1] : ' ';
  if (isDigit(text_[from]) && (isDigit(before) || before == '.' || before == '-')) return true;
  if (!isDigit(text_[to - 1])) return false;
  return isDigit(at(to)) || ((at(to) == '.' || at(to) == ',') && isDigit(at(to + 1)));
}

void Page::says(const std::string& words) {
  std::vector<std::size_t> found;
  for (auto i = text_.find(words); i != std::string::npos; i = text_.find(words, i + 1)) {
    if (!cutsANumber(i, i + words.size())) found.push_back(i);
  }
  EXPECT_EQ(found.size(), 1U) << "says: " << words;
  for (const std::size_t i : found) {
    std::fill_n(checked_.begin() + static_cast<std::ptrdiff_t>(i), words.size(), true);
  }
}

std::vector<std::string> Page::unchecked() const {
  std::vector<std::string> numbers;
  for (std::size_t i = 0; i < text_.size(); ++i) {
    const char before = i > 0 ? text_[i - 1] : ' ';
    if (!isDigit(text_[i]) || isDigit(before) || isLetter(before) || checked_[i]) continue;
    // Whole words, so that no letter of several bytes is cut.
    const std::size_t from = i < 30 ? 0 : text_.find(' ', i - 30) + 1;
    numbers.push_back(text_.substr(from, text_.find(' ', i + 30) - from));
  }
  return numbers;
}

std::string fixed(double value, int decimals) { return formatDecimals(value, decimals); }

std::string grouped(int value) {
  std::string digits = std::to_string(value);
  for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, 1, ',');
  return digits;
}

std::string place(Point p, int decimals) {
  return std::string("(") + fixed(p.x, decimals) + ", " + fixed(p.y, decimals) + ")";
}

std::string below(double error, const std::string& bound) {
  EXPECT_LT(error, std::stod(bound));
  EXPECT_GT(error, std::stod(bound) / 100.0);
  return bound;
}

std::string about(double value, const std::string& figure, double within) {
  EXPECT_NEAR(value, std::stod(figure), within);
  return figure;
}

}  // namespace lensbench
