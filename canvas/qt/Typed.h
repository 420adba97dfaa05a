// What people type where a number is asked for.
#pragma once

#include <string>

#include <QString>

namespace lensbench {

// The text of the number alone, for the readers of canvas/Format.h: blanks around it and a degree
// sign behind it are left out, and a typographic minus is a hyphen.
[[nodiscard]] std::string numberTyped(const QString& text);

}  // namespace lensbench
