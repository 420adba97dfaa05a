#include "optics/poreiaaktinon/Fronts.h"

#include <optional>
#include <string>

#include "canvas/RuntimeError.h"
#include "optics/light/OpticalPath.h"

namespace lensbench::poreiaaktinon {

Front frontAt(const Sent& sent, double opticalPath) {
  using Place = std::optional<light::FrontPoint>;
  const std::vector<light::RayPath>& rays = *sent.paths;
  Front front;
  const auto join = [&front](const Place& a, const Place& b) {
    if (a && b && a->crossed == b->crossed) front.pieces.push_back({a->position, b->position});
  };
  Place first;
  Place previous;
  for (std::size_t i = 0; i < rays.size(); ++i) {
    const Place place = light::pointAtOpticalPath(rays[i], opticalPath);
    if (i == 0) first = place;
    if (place) front.points.push_back(place->position);
    join(previous, place);
    previous = place;
  }
  if (sent.closed() && rays.size() > 2) join(previous, first);
  return front;
}

void requireRoomFor(std::size_t rays) {
  if (rays <= mostRays) return;
  const std::string count = std::to_string(rays);
  const std::string limit = std::to_string(mostRays);
  throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange,
                     "Ζητήθηκαν κύματα για " + count + " ακτίνες, αλλά το όριο είναι " + limit +
                         ". Waves were asked for " + count + " rays, but the limit is " + limit +
                         ".");
}

}  // namespace lensbench::poreiaaktinon
