#include "optics/protosfakos/SahlState.h"

#include <cstddef>

namespace lensbench::protosfakos {
namespace {

std::size_t checkedFront(int front) {
  if (front < 0 || front > lastFront) throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange);
  return static_cast<std::size_t>(front);
}

}  // namespace

Variant& WavePoints::operator[](int front) { return points_[checkedFront(front)]; }
const Variant& WavePoints::operator[](int front) const { return points_[checkedFront(front)]; }

void SahlState::clearRays() {
  plithosaktinon = 0;
  negativeShown = false;
  for (PerRay<Variant>* values : {&entryX, &entryY, &exitX, &exitY}) values->clear();
  for (PerRay<float>* values : {&directionX, &directionY}) values->clear();
}

SahlState& state() {
  static SahlState theState;
  return theState;
}

}  // namespace lensbench::protosfakos
