#include "optics/poreiaaktinon/Repeat.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#include "optics/poreiaaktinon/Fronts.h"

namespace lensbench::poreiaaktinon {
namespace {

bool hasRoom(double vima) { return static_cast<std::size_t>(rayCount(vima)) <= mostRays; }

// Sends rays again; what has been sent alike is not traced anew.
class Again {
 public:
  explicit Again(const Values& now) : now_(now) {}

  Sent operator()(const Sent& sent) { return send(sent, raysNow(sent.rays)); }
  // As waves that move, for which there must be room.
  Sent moving(const Sent& sent) {
    Rays rays = raysNow(sent.rays);
    auto* fan = std::get_if<Fan>(&rays);
    if (fan != nullptr && !hasRoom(fan->vima)) fan->vima = std::get<Fan>(sent.rays).vima;
    return send(sent, rays);
  }

 private:
  Rays raysNow(const Rays& rays) const {
    if (std::holds_alternative<Fan>(rays)) return Fan{now_.pigi, now_.vima};
    if (const auto* desmi = std::get_if<Desmi>(&rays)) return Desmi{desmi->gonia, now_.desmi1};
    return rays;
  }

  Sent send(const Sent& before, const Rays& rays) {
    const auto alike = [&](const Sent& sent) {
      return sent.paths && sent == Sent{now_.bench, rays, now_.edges, {}};
    };
    if (alike(before)) return before;
    const auto known = std::find_if(sent_.begin(), sent_.end(), alike);
    if (known != sent_.end()) return *known;
    return sent_.emplace_back(poreiaaktinon::send(now_.bench, rays, now_.edges));
  }

  const Values& now_;
  std::vector<Sent> sent_;
};

// The set that a fan or bundle leaves when it is sent, or the one whose fronts are shown; nothing
// where neither is.
std::optional<Sent> setOf(const Shown& shown) {
  std::optional<Sent> set;
  for (const Layer& layer : shown.layers) {
    if (const auto* light = std::get_if<Light>(&layer)) set = light->sent;
    if (const auto* fronts = std::get_if<Fronts>(&layer)) set = fronts->sent;
  }
  return set;
}

}  // namespace

bool showsMoreThanLens(const Shown& shown) {
  return !std::all_of(shown.layers.begin(), shown.layers.end(),
                      [](const Layer& layer) { return std::holds_alternative<LensScene>(layer); });
}

Standing repeated(const Standing& standing, const Values& now) {
  Again again(now);
  const Fakos& fakos = now.bench.fakos;
  const double n = now.bench.n;
  Standing next;
  for (const Layer& layer : standing.shown.layers) {
    auto& layers = next.shown.layers;
    if (const auto* light = std::get_if<Light>(&layer)) {
      layers.emplace_back(Light{again(light->sent), now.provoli});
    } else if (const auto* fronts = std::get_if<Fronts>(&layer)) {
      layers.emplace_back(Fronts{again.moving(fronts->sent), fronts->step});
    } else if (std::holds_alternative<LensScene>(layer)) {
      layers.emplace_back(LensScene{fakos, n, now.pigi});
    } else if (std::holds_alternative<CardinalMarks>(layer)) {
      layers.emplace_back(CardinalMarks{fakos, n, now.pigi});
    } else {
      layers.emplace_back(WaveScene{fakos, n});
    }
  }
  next.set = setOf(next.shown);
  if (next.set && next.set->paths->size() > mostRays) next.set.reset();
  if (!next.set && standing.set && !setOf(next.shown)) next.set = again.moving(*standing.set);
  return next;
}

Standing fittedTo(const light::Edges& edges, const Standing& standing) {
  Standing fitted{fittedTo(edges, standing.shown), standing.set};
  if (!fitted.set) return fitted;
  const auto shown = setOf(fitted.shown);
  const Sent wanted{fitted.set->bench, fitted.set->rays, edges, {}};
  fitted.set = shown == wanted ? *shown : resent(*fitted.set, wanted.bench, edges);
  return fitted;
}

Standing untraced(Standing standing) {
  standing.shown = untraced(std::move(standing.shown));
  if (standing.set) standing.set->paths.reset();
  return standing;
}

}  // namespace lensbench::poreiaaktinon
