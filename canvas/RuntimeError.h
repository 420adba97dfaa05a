// The errors that end the program: a number and its words, as the error boundary shows them.
#pragma once

#include <exception>
#include <string>

namespace lensbench {

// A failure that no routine handles. It travels to the one error boundary of the program, which
// shows it and ends the program; nothing in between catches it.
class RuntimeError : public std::exception {
 public:
  enum class Code {
    InvalidArgument = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13
  };

  // detail: one more sentence for the student, Greek and English, may be empty.
  explicit RuntimeError(Code code, std::string detail = {});

  int number() const noexcept { return static_cast<int>(code_); }
  // The words of the number, in each language, without the number.
  const char* greek() const noexcept;
  const char* english() const noexcept;
  const std::string& detail() const noexcept { return detail_; }
  // "Error 11: Division by zero"
  const char* what() const noexcept override { return what_.c_str(); }

 private:
  Code code_;
  std::string detail_;
  std::string what_;
};

// Out of line, so that the arithmetic which calls them stays small enough to inline.
[[noreturn]] void throwInvalidArgument();
[[noreturn]] void throwOverflow();
[[noreturn]] void throwDivisionByZero();

}  // namespace lensbench
