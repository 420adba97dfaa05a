#include "canvas/RuntimeError.h"

#include <utility>

namespace lensbench {

RuntimeError::RuntimeError(Code code, std::string detail)
    : code_(code),
      detail_(std::move(detail)),
      what_("Error " + std::to_string(number()) + ": " + english()) {}

const char* RuntimeError::greek() const noexcept {
  switch (code_) {
    case Code::InvalidArgument:
      return "μη έγκυρο όρισμα";
    case Code::Overflow:
      return "υπερχείλιση";
    case Code::OutOfMemory:
      return "έλλειψη μνήμης";
    case Code::SubscriptOutOfRange:
      return "δείκτης πίνακα εκτός ορίων";
    case Code::DivisionByZero:
      return "διαίρεση με το μηδέν";
    case Code::TypeMismatch:
      return "ασυμφωνία τύπων";
  }
  return "";
}

const char* RuntimeError::english() const noexcept {
  switch (code_) {
    case Code::InvalidArgument:
      return "Invalid argument";
    case Code::Overflow:
      return "Overflow";
    case Code::OutOfMemory:
      return "Out of memory";
    case Code::SubscriptOutOfRange:
      return "Subscript out of range";
    case Code::DivisionByZero:
      return "Division by zero";
    case Code::TypeMismatch:
      return "Type mismatch";
  }
  return "";
}

void throwInvalidArgument() { throw RuntimeError(RuntimeError::Code::InvalidArgument); }
void throwOverflow() { throw RuntimeError(RuntimeError::Code::Overflow); }
void throwDivisionByZero() { throw RuntimeError(RuntimeError::Code::DivisionByZero); }

}  // namespace lensbench
