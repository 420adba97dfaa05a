#include "optics/light/Tracer.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>

namespace lensbench::light {
namespace {

int sign(double v) { return (v > 0.0) - (v < 0.0); }

// The line of a ray on both faces. The glass is where both have it on their glass side, so light
// enters by the later of the two entries and leaves by the earlier of the two exits. Distances
// along the ray are from the foot of the right chord, so that a start far away does not cost the
// digits of the lens.
struct Line {
  Ray ray;
  Chord left;
  Chord right;
  double leftFoot = 0.0;
  double enterLeft = 0.0;
  double enterRight = 0.0;

  template <class Left, class Right>
  Line(const Left& leftFace, const Right& rightFace, const Ray& along)
      : ray(along),
        left(glassSide(leftFace, ray)),
        right(glassSide(rightFace, ray)),
        leftFoot(dot(originOf(leftFace, ray) - originOf(rightFace, ray), ray.direction)),
        enterLeft(leftFoot + left.from),
        enterRight(right.from) {}

  double start() const { return right.start; }
  Side entered(Side atRim) const {
    if (enterLeft == enterRight) return atRim;
    return enterLeft > enterRight ? Side::Left : Side::Right;
  }
  double enter() const { return std::max(enterLeft, enterRight); }
  // At the rim by the left face.
  Side leaving() const { return right.to < leftFoot + left.to ? Side::Right : Side::Left; }
  double leave() const { return std::min(right.to, leftFoot + left.to); }
};

// True when the point is within so many radii of the centre.
bool within(const Circle& circle, Point p, double radii) {
  const double limit = radii * circle.radius;
  const Point fromCentre = p - circle.centre;
  return dot(fromCentre, fromCentre) <= limit * limit;
}

// Settles a start that stands on a face: the face it heads in by is behind it. False when it heads
// out of the lens, or along the tangent.
bool leaveFaceBehind(Line& line, const Circle& left, const Circle& right, Point start,
                     double margin) {
  if (!within(right, start, 1.0 + margin) || !within(left, start, 1.0 + margin)) return true;
  constexpr double behind = -std::numeric_limits<double>::infinity();
  if (!within(right, start, 1.0 - margin)) {
    if (line.right.start >= 0.0) return false;
    line.enterRight = behind;
  }
  if (!within(left, start, 1.0 - margin)) {
    if (line.left.start >= 0.0) return false;
    line.enterLeft = behind;
  }
  return true;
}

template <class Left, class Right>
bool leaveFaceBehind(Line&, const Left&, const Right&, Point, double) {
  return true;
}

// One ray on its way, through faces whose shapes are known to the compiler.
template <class Left, class Right>
class Walk {
 public:
  Walk(const Left& left, const Right& right, const Ray& ray, const Conditions& conditions,
       RayPath& path)
      : left_(left), right_(right), conditions_(conditions), path_(path), at_(ray) {}

  void run() {
    Line line = lineAhead();
    if (meetsGlass(line) ? throughGlass(line) : !stoppedBesideLens()) emerge();
  }

 private:
  Line lineAhead() const { return {left_, right_, at_}; }

  bool meetsGlass(Line& line) const {
    const double leave = line.leave();
    return leave - line.start() > conditions_.touching &&
           leave - line.enter() > conditions_.touching &&
           leaveFaceBehind(line, left_, right_, at_.start, conditions_.onFace);
  }

  // Into the glass and out of it; false when the ray ends on the way.
  bool throughGlass(Line& line) {
    Side entered = Side::None;
    if (line.enter() < line.start() - conditions_.touching) {
      if (stoppedBeforeLens(0.0)) return false;
    } else {
      if (stoppedBeforeLens(std::max(0.0, line.enter() - line.start()))) return false;
      entered = line.entered(conditions_.enteredAtRim);
      const FacePoint entry = pointAt<true>(line, entered);
      if (!go(Medium::Air, entry.point)) return false;
      if (!cross(entered, entry.normal, 1.0 / path_.n)) return false;
      if (entry.normal) line = lineAhead();
    }
    return leaveGlass(line, entered);
  }

  template <bool entering>
  FacePoint pointAt(const Line& line, Side side) const {
    const auto distance = [](const Chord& chord) {
      return entering ? std::max(chord.start, chord.from) : chord.to;
    };
    if (side == Side::Left) return pointOf(left_, line.ray, line.left, distance(line.left));
    return pointOf(right_, line.ray, line.right, distance(line.right));
  }

  // From the entry, or the start in the glass, to the face that the ray leaves by; false when it
  // ends there.
  bool leaveGlass(const Line& line, Side entered) {
    const bool straight = entered != Side::None && !path_.meetings[0].refracts;
    const bool mayBeTrapped = !conditions_.outAsIn && !straight;
    if (mayBeTrapped && !(line.start() < line.leave() && line.enter() <= line.leave())) {
      go(Medium::Glass, at_.start);
      path_.ending = Ending::Trapped;
      return false;
    }
    const Side side = line.leaving();
    const FacePoint exit = pointAt<false>(line, side);
    if (!go(Medium::Glass, exit.point)) return false;
    if (mayBeTrapped && side == entered) {
      path_.ending = Ending::Trapped;
      return false;
    }
    return cross(side, straight ? std::nullopt : exit.normal, path_.n);
  }

  // Turns the direction at a face; false at total reflection.
  bool cross(Side face, const std::optional<Point>& normal, double ratio) {
    Meeting& meeting = path_.meetings[static_cast<std::size_t>(path_.count) - 1];
    meeting.face = face;
    meeting.refracts = normal.has_value();
    if (!normal) return true;
    meeting.normal = *normal;
    const auto beyond = refracted(at_.direction, *normal, ratio, conditions_.grazing);
    if (!beyond) {
      path_.ending = Ending::TotalReflection;
      return false;
    }
    at_.direction = *beyond;
    return true;
  }

  // The last piece.
  void emerge() {
    if (const auto* edges = std::get_if<Edges>(&conditions_.end)) {
      go(Medium::Air, leavingPoint(*edges, at_.start, at_.direction));
      return;
    }
    const auto& lengths = std::get<Lengths>(conditions_.end);
    go(Medium::Air, at_.at(path_.count == 0 ? lengths.missing : lengths.emerging));
  }

  // Adds the piece up to the point where it ends, or where the diaphragm stops it on the way; false
  // when it was stopped.
  bool go(Medium medium, Point end) {
    if (conditions_.diafragma && !conditions_.beforeLens) {
      const double X = conditions_.diafragma->X;
      const bool reached = !(X < at_.start.x && X < end.x) && !(X > at_.start.x && X > end.x);
      if (reached &&
          stoppedAt(heightAt(*conditions_.diafragma, at_.start, at_.direction), medium)) {
        return false;
      }
    }
    add(medium, end);
    return true;
  }

  void add(Medium medium, Point end) {
    Piece& piece = path_.pieces[static_cast<std::size_t>(path_.count++)];
    piece.from = at_.start;
    piece.to = end;
    piece.direction = at_.direction;
    piece.medium = medium;
    at_.start = end;
  }

  // Ends the path on the line of the diaphragm when the ray, which crosses it at height y, meets a
  // blade there.
  bool stoppedAt(double y, Medium medium) {
    if (!stops(*conditions_.diafragma, y)) return false;
    add(medium, {conditions_.diafragma->X, y});
    path_.ending = Ending::Diaphragm;
    return true;
  }

  // Where the diaphragm counts only before the lens: stops a ray that has the given distance to run
  // there. The diaphragm counts only on the side of the start on which that way leads.
  bool stoppedBeforeLens(double distance) {
    if (!conditions_.diafragma || !conditions_.beforeLens) return false;
    const double offset = conditions_.diafragma->X - at_.start.x;
    if (sign(offset) != (distance > 0.0 ? sign(at_.direction.x) : 0)) return false;
    const double crossing = offset == 0.0 ? 0.0 : offset / at_.direction.x;
    if (distance < crossing || !std::isfinite(crossing)) return false;
    return stoppedAt(at_.at(crossing).y, Medium::Air);
  }

  // The same for a ray that misses the lens; one that runs away from the plane up to which the
  // diaphragm counts has no way before the lens.
  bool stoppedBesideLens() {
    if (!conditions_.beforeLens) return false;
    const double offset = *conditions_.beforeLens - at_.start.x;
    if (sign(offset) != sign(at_.direction.x)) return false;
    return stoppedBeforeLens(offset / at_.direction.x);
  }

  // Copies: nothing that is written to the path can change them.
  const Left left_;
  const Right right_;
  const Conditions& conditions_;
  RayPath& path_;
  Ray at_;  // the end of the way so far, and where it goes on to
};

}  // namespace

RayPath trace(const Lens& lens, const Ray& ray, const Conditions& conditions, double phase) {
  RayPath path;
  path.n = lens.n;
  path.phase = phase;
  std::visit(
      [&](const auto& left, const auto& right) { Walk(left, right, ray, conditions, path).run(); },
      lens.left, lens.right);
  return path;
}

}  // namespace lensbench::light
