// A page of docs/ whose figures a test computes anew.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "canvas/Canvas.h"

namespace lensbench {

class Page {
 public:
  // A file of docs/.
  explicit Page(const std::string& name);

  // Demands that the page says this exactly once, wherever its lines are broken. The numbers in it
  // count as checked.
  void says(const std::string& words);

  // The numbers on the page that nothing has checked, each with the words around it. Digits that
  // belong to a name, like those of F1, are no numbers.
  std::vector<std::string> unchecked() const;

 private:
  // Whether words that stand there are cut out of a longer number.
  bool cutsANumber(std::size_t from, std::size_t to) const;

  std::string text_;  // one blank between two words
  std::vector<bool> checked_;
};

// Figures as the pages print them.

// So many decimals.
std::string fixed(double value, int decimals = 2);
// A whole number with commas between thousands.
std::string grouped(int value);
// "(x, y)".
std::string place(Point p, int decimals = 2);
// The power of ten that an error is below: demands that it is below, and not idly, by less than a
// factor of a hundred, so that the bound means something on every compiler.
std::string below(double error, const std::string& bound);
// A share that roundings and random places make: demands that it is so near.
std::string about(double value, const std::string& figure, double within);

}  // namespace lensbench
