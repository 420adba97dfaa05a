// A workbench of plain values on a recording canvas, connected while it lives.
#pragma once

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/RayPath.h"
#include "optics/poreiaaktinon/Workbench.h"

namespace lensbench::poreiaaktinon {

// The lens, index and source with which the workbench opens; the diaphragm is wide open.
class FakeWorkbench : public Workbench {
 public:
  FakeWorkbench() {
    surface.Scale(-400.0, 200.0, 400.0, -200.0);
    surface.forget();
    connectWorkbench([this]() -> Workbench& { return *this; });
  }
  FakeWorkbench(const FakeWorkbench&) = delete;
  FakeWorkbench& operator=(const FakeWorkbench&) = delete;
  ~FakeWorkbench() override { connectWorkbench({}); }

  Canvas& canvas() override { return surface; }
  Diafragma diafragma() const override { return opening; }
  Fakos fakos() const override { return lens; }
  double deiktisdiathlasis() const override { return n; }
  Point pigi() const override { return source; }
  double vima() const override { return step; }
  Provoli provoli() const override { return shown; }

  Recording surface{800.0, 400.0};
  Diafragma opening{0.0, 1000.0, -1000.0};
  Fakos lens{-50.0, 100.0, 20.0, 90.0};
  double n = 1.5;
  Point source{-200.0, 0.0};
  double step = 30.0;
  Provoli shown;
};

constexpr Edges testEdges{-400.0, 400.0, -200.0, 200.0};

}  // namespace lensbench::poreiaaktinon
