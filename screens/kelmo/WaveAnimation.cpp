#include "screens/kelmo/WaveAnimation.h"

#include <optional>
#include <string>
#include <utility>

#include "canvas/RuntimeError.h"
#include "optics/poreiaaktinon/Wavefront.h"
#include "screens/kelmo/Scene.h"

namespace lensbench {
namespace {

using poreiaaktinon::FrontPoint;

constexpr Rgb firstFront = RGB(255, 0, 0);
constexpr Rgb secondFront = RGB(2, 0, 150);
constexpr int pointWidth = 3;
constexpr int pieceWidth = 2;

void drawFront(Canvas& canvas, const Front& front, Rgb colour) {
  canvas.DrawWidth(pieceWidth);
  for (const Front::Piece& piece : front.pieces) {
    canvas.Line(piece.from.x, piece.from.y, piece.to.x, piece.to.y, colour);
  }
  canvas.DrawWidth(pointWidth);
  for (const Point& point : front.points) canvas.PSet(point.x, point.y, colour);
  canvas.DrawWidth(1);
}

}  // namespace

Front frontAt(const RaySet& set, double opticalPath) {
  Front front;
  std::optional<FrontPoint> first;
  std::optional<FrontPoint> previous;
  const auto join = [&front](const std::optional<FrontPoint>& a,
                             const std::optional<FrontPoint>& b) {
    if (a && b && a->crossed == b->crossed) front.pieces.push_back({a->position, b->position});
  };
  for (std::size_t i = 0; i < set.rays.size(); ++i) {
    const auto point = poreiaaktinon::pointAtOpticalPath(set.rays[i], opticalPath);
    if (i == 0) first = point;
    if (point) front.points.push_back(point->position);
    join(previous, point);
    previous = point;
  }
  if (set.closed && set.rays.size() > 2) join(previous, first);
  return front;
}

void WaveAnimation::requireRoomFor(std::size_t rays) {
  if (rays <= mostRays) return;
  const std::string count = std::to_string(rays);
  const std::string limit = std::to_string(mostRays);
  throw RuntimeError(RuntimeError::Code::SubscriptOutOfRange,
                     "Ζητήθηκαν κύματα για " + count + " ακτίνες, αλλά το όριο είναι " + limit +
                         ". Waves were asked for " + count + " rays, but the limit is " + limit +
                         ".");
}

void WaveAnimation::start(RaySet set) {
  drop();
  if (set.rays.size() <= mostRays) set_ = std::move(set);
}

void WaveAnimation::drop() {
  set_ = {};
  drawn_.clear();
}

void WaveAnimation::draw(poreiaaktinon::Workbench& workbench, int step) {
  if (set_.rays.empty()) return;
  Canvas& canvas = workbench.canvas();
  const double n = workbench.deiktisdiathlasis();
  if (const double before = set_.rays.front().n; before != n) {
    if (!drawn_.empty()) rubOutFocalCircles(canvas, lensScene(workbench, before));
    const auto setup = poreiaaktinon::setupOf(workbench);
    for (auto& ray : set_.rays) {
      ray = poreiaaktinon::tracePath(setup, ray.points[0], ray.directions[0], ray.phase);
    }
  }

  for (const Front& front : drawn_) drawFront(canvas, front, white);
  if (!drawn_.empty()) redrawWaveScene(canvas, lensScene(workbench));

  drawn_.clear();
  drawn_.push_back(frontAt(set_, pathPerStep * step));
  drawFront(canvas, drawn_.back(), firstFront);
  if (step <= stepsBehind) return;
  drawn_.push_back(frontAt(set_, pathPerStep * (step - stepsBehind)));
  drawFront(canvas, drawn_.back(), secondFront);
}

}  // namespace lensbench
