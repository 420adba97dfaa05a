// Layers of a picture, drawn one over the other by a function drawLayer for each kind of them,
// which is found where the layer is declared.
#pragma once

#include <algorithm>
#include <cstddef>
#include <variant>
#include <vector>

#include "canvas/Canvas.h"

namespace lensbench {

// Draws what the layers have beyond the first ones, which the canvas holds. False, with nothing
// drawn, when they do not start with those.
template <class Layer>
bool drawAdded(Canvas& canvas, const std::vector<Layer>& held, const std::vector<Layer>& layers) {
  if (held.size() > layers.size() || !std::equal(held.begin(), held.end(), layers.begin())) {
    return false;
  }
  for (std::size_t i = held.size(); i < layers.size(); ++i) {
    std::visit([&](const auto& layer) { drawLayer(canvas, layer); }, layers[i]);
  }
  return true;
}

}  // namespace lensbench
