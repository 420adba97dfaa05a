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
  Chord left;
  Chord right;
  double leftFoot = 0.0;
  double enterLeft = 0.0;
  double enterRight = 0.0;

  Line(const Lens& lens, const Ray& ray)
      : left(glassSide(lens.left, ray)),
        right(glassSide(lens.right, ray)),
        leftFoot(dot(left.origin - right.origin, ray.direction)),
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
bool leaveFaceBehind(Line& line, const Lens& lens, Point start, double margin) {
  const auto* left = std::get_if<Circle>(&lens.left);
  const auto* right = std::get_if<Circle>(&lens.right);
  if (left == nullptr || right == nullptr) return true;
  if (!within(*right, start, 1.0 + margin) || !within(*left, start, 1.0 + margin)) return true;
  constexpr double behind = -std::numeric_limits<double>::infinity();
  if (!within(*right, start, 1.0 - margin)) {
    if (line.right.start >= 0.0) return false;
    line.enterRight = behind;
  }
  if (!within(*left, start, 1.0 - margin)) {
    if (line.left.start >= 0.0) return false;
    line.enterLeft = behind;
  }
  return true;
}

// One ray on its way.
class Walk {
 public:
  Walk(const Lens& lens, const Ray& ray, const Conditions& conditions, RayPath& path)
      : lens_(lens), conditions_(conditions), path_(path), at_(ray) {}

  void run() {
    Line line(lens_, at_);
    if (!meetsGlass(line)) {
      if (!stoppedBesideLens()) emerge();
      return;
    }
    Side entered = Side::None;
    if (line.enter() >= line.start() - conditions_.touching) {
      entered = line.entered(conditions_.enteredAtRim);
      const FacePoint entry = pointAt(line, entered, true);
      if (stoppedBeforeLens(std::max(0.0, line.enter() - line.start())) ||
          !go(Medium::Air, entry.point)) {
        return;
      }
      if (!cross(entered, entry.normal, 1.0 / lens_.n)) return;
      if (entry.normal) line = Line(lens_, at_);
    } else if (stoppedBeforeLens(0.0)) {
      return;
    }
    leave(line, entered);
  }

 private:
  bool meetsGlass(Line& line) const {
    const double leave = line.leave();
    return leave - line.start() > conditions_.touching &&
           leave - line.enter() > conditions_.touching &&
           (conditions_.onFace <= 0.0 ||
            leaveFaceBehind(line, lens_, at_.start, conditions_.onFace));
  }

  FacePoint pointAt(const Line& line, Side side, bool entering) const {
    const Chord& chord = side == Side::Left ? line.left : line.right;
    const double distance = entering ? std::max(chord.start, chord.from) : chord.to;
    return pointOf(side == Side::Left ? lens_.left : lens_.right, chord, at_.direction, distance);
  }

  // From the entry, or the start in the glass, to the face that the ray leaves by and out.
  void leave(const Line& line, Side entered) {
    const bool straight = entered != Side::None && !path_.meetings[0].refracts;
    const bool ahead = line.start() < line.leave() && line.enter() <= line.leave();
    if (!conditions_.outAsIn && !straight && !ahead) {
      go(Medium::Glass, at_.start);
      path_.ending = Ending::Trapped;
      return;
    }
    const Side side = line.leaving();
    const FacePoint exit = pointAt(line, side, false);
    if (!go(Medium::Glass, exit.point)) return;
    if (!conditions_.outAsIn && !straight && side == entered) {
      path_.ending = Ending::Trapped;
      return;
    }
    if (cross(side, straight ? std::nullopt : exit.normal, lens_.n)) emerge();
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
      if (reached && stoppedBy(*conditions_.diafragma, medium)) return false;
    }
    add(medium, end);
    return true;
  }

  void add(Medium medium, Point end) {
    path_.pieces[static_cast<std::size_t>(path_.count++)] = {at_.start, end, at_.direction, medium};
    at_.start = end;
  }

  // Ends the path on the line of the diaphragm when the ray meets a blade there.
  bool stoppedBy(const Diafragma& diafragma, Medium medium) {
    const double y = heightAt(diafragma, at_.start, at_.direction);
    if (!stops(diafragma, y)) return false;
    add(medium, {diafragma.X, y});
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
    return stoppedBy(*conditions_.diafragma, Medium::Air);
  }

  // The same for a ray that misses the lens; one that runs away from the plane up to which the
  // diaphragm counts has no way before the lens.
  bool stoppedBesideLens() {
    if (!conditions_.beforeLens) return false;
    const double offset = *conditions_.beforeLens - at_.start.x;
    if (sign(offset) != sign(at_.direction.x)) return false;
    return stoppedBeforeLens(offset / at_.direction.x);
  }

  const Lens& lens_;
  const Conditions& conditions_;
  RayPath& path_;
  Ray at_;  // the end of the way so far, and where it goes on to
};

}  // namespace

RayPath trace(const Lens& lens, const Ray& ray, const Conditions& conditions, double phase) {
  RayPath path;
  path.n = lens.n;
  path.phase = phase;
  Walk(lens, ray, conditions, path).run();
  return path;
}

}  // namespace lensbench::light
