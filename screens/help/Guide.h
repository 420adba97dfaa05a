// The lessons as one page for paper and screen.
#pragma once

#include <string>

namespace lensbench::lessons {

// Markdown, UTF-8: all lessons in Greek and English side by side, each with its picture.
std::string guide();

// Where the guide looks for the picture of a lesson, numbered from 1, beside itself.
std::string picturePath(std::size_t number);

}  // namespace lensbench::lessons
