#include "optics/protosfakos/SahlScreen.h"

#include <utility>

namespace lensbench::protosfakos {
namespace {

std::function<SahlScreen&()>& connection() {
  static std::function<SahlScreen&()> theConnection;
  return theConnection;
}

}  // namespace

void connectSahlScreen(std::function<SahlScreen&()> screen) { connection() = std::move(screen); }

SahlScreen& sahlScreen() { return connection()(); }

}  // namespace lensbench::protosfakos
