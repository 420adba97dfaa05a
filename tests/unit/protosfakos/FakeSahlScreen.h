// A screen without windows for the hyperbolic lenses, and the state they start from in tests.
#pragma once

#include <string>
#include <vector>

#include "canvas/Recording.h"
#include "optics/protosfakos/Hyperbola.h"
#include "optics/protosfakos/SahlScreen.h"
#include "optics/protosfakos/SahlState.h"
#include "optics/protosfakos/Scenes.h"

namespace lensbench::protosfakos {

class FakeSahlScreen : public SahlScreen {
 public:
  Canvas& canvas() override { return recording; }
  void caption(std::string_view utf8) override { captions.emplace_back(utf8); }
  Diafragma diafragma() const override { return opening; }
  bool onlyRays() const override { return rays; }
  bool onlyWaves() const override { return waves; }
  void message(std::string_view utf8) override { messages.emplace_back(utf8); }

  Recording recording{600.0, 600.0};
  // Wide open, so that a test that is not about the diaphragm never meets it.
  Diafragma opening{130.0, 1e9, -1e9};
  bool rays = false;
  bool waves = false;
  std::vector<std::string> captions;
  std::vector<std::string> messages;
};

// Connects a fake screen and resets the shared state for its lifetime.
struct SahlBench {
  explicit SahlBench(double n = 1.5) {
    state() = SahlState{};
    state().deiktisSahl = n;
    lens = deriveLens(n).value();
    connectSahlScreen([this]() -> SahlScreen& { return screen; });
  }
  ~SahlBench() {
    connectSahlScreen({});
    state() = SahlState{};
  }
  SahlBench(const SahlBench&) = delete;
  SahlBench& operator=(const SahlBench&) = delete;

  // The scene of the fan for the lens that amfikyrtos chooses, as the screen asks for it.
  void fan(bool amfikyrtos, double x, double y) {
    state().pigiX = x;
    state().pigiY = y;
    (amfikyrtos ? sxediasiamfikyrtou : sxediasiepipedokyrtou)(lens.a, lens.b, x, y);
  }
  void bundle(bool amfikyrtos, double slope) {
    (amfikyrtos ? desmiamfikyrtou : desmiepipedokyrtou)(lens.a, lens.b, slope);
  }
  int recorded() const { return static_cast<int>(state().plithosaktinon.value()); }
  const std::vector<Operation>& operations() const { return screen.recording.operations(); }

  HyperbolaAxes lens;
  FakeSahlScreen screen;
};

}  // namespace lensbench::protosfakos
