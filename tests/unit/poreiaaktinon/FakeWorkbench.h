// A workbench of plain values on a recording canvas, connected to the named routines while it
// lives, and rays traced one by one.
#pragma once

#include "canvas/Recording.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Named.h"

namespace lensbench::poreiaaktinon {

constexpr light::Edges testEdges{-400.0, 400.0, -200.0, 200.0};

// The lens, index and source with which the workbench opens; the diaphragm is wide open.
class FakeWorkbench {
 public:
  FakeWorkbench() {
    surface.Scale(-400.0, 200.0, 400.0, -200.0);
    surface.forget();
    connectWorkbench({[this]() -> Canvas& { return surface; },
                      [this] {
                        return Bench{lens, n, opening};
                      },
                      [this] { return step; }, [this] { return shown; },
                      [this] { return source; }});
  }
  FakeWorkbench(const FakeWorkbench&) = delete;
  FakeWorkbench& operator=(const FakeWorkbench&) = delete;
  ~FakeWorkbench() { connectWorkbench({}); }

  Bench bench() const { return {lens, n, opening}; }

  Recording surface{800.0, 400.0};
  Diafragma opening{0.0, 1000.0, -1000.0};
  Fakos lens{-50.0, 100.0, 20.0, 90.0};
  double n = 1.5;
  Point source{-200.0, 0.0};
  double step = 30.0;
  Provoli shown;
};

inline light::RayPath tracePath(const Bench& bench, Point start, Point direction,
                                const light::Edges& edges = testEdges) {
  return send(bench, SingleRay{start, direction}, edges).paths->front();
}

}  // namespace lensbench::poreiaaktinon
