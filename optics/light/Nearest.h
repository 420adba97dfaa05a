// What is drawn nearest to a point, in the order in which things are named.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>

#include "canvas/Answer.h"
#include "optics/light/Vector.h"

namespace lensbench::light {

// What is named before what, however near the other is: where something happens to a ray, marked
// points, lines that explain a lens, fronts, rays.
enum class Rank : std::uint8_t { Event, Mark, Guide, Front, Ray };

// Keeps the best of what it is offered; of two that are equally near the later one, which is drawn
// over the other. Words are functions of no argument, called for the answer alone, so what they
// refer to must last until then.
class Nearest {
 public:
  // User units.
  Nearest(Point p, double reach) : p_(p), reach_(reach * reach) {}

  Point asked() const noexcept { return p_; }

  template <class Words>
  void point(Rank rank, Point at, Words&& words) {
    const Point away = p_ - at;
    const double square = dot(away, away);
    if (!takes(rank, square)) return;
    rank_ = rank;
    at_ = at;
    square_ = square;
    words_ = std::forward<Words>(words);
  }

  template <class Words>
  void stroke(Rank rank, Point from, Point to, Words&& words) {
    // Nearly all strokes are out of reach; no division is spent on them.
    if (reaches(from, to)) point(rank, footOn(from, to), std::forward<Words>(words));
  }

  // False for most strokes that are out of reach; one that is not would reach if it were longer.
  bool reaches(Point from, Point to) const {
    const Point along = to - from;
    const double aside = cross(along, p_ - nearerEnd(from, to));
    return aside * aside <= reach_ * dot(along, along);
  }

  std::optional<Answer> answer() const {
    if (!words_) return std::nullopt;
    return Answer{words_(), at_, std::sqrt(square_), rank_ == Rank::Event};
  }

 private:
  // Distances are taken from there, so that an end far outside the drawing area costs no digits
  // within it.
  Point nearerEnd(Point from, Point to) const {
    return dot(p_ - to, p_ - to) < dot(p_ - from, p_ - from) ? to : from;
  }

  Point footOn(Point from, Point to) const {
    const Point near = nearerEnd(from, to);
    const Point along = near == from ? to - from : from - to;
    const double part = dot(along, p_ - near);
    // The foot is never beyond the farther end.
    return part > 0.0 ? near + (part / dot(along, along)) * along : near;
  }

  bool takes(Rank rank, double square) const {
    if (words_ && rank == rank_) return square <= square_;
    return square <= reach_ && (!words_ || rank < rank_);
  }

  Point p_;
  double reach_;  // squared, like the distance of the best
  Rank rank_ = Rank::Ray;
  Point at_;
  double square_ = 0.0;
  std::function<std::string()> words_;
};

}  // namespace lensbench::light
