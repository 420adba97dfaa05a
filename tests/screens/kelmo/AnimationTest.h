// What the tests of moving waves share: an open diaphragm and the picture that a step must show.
#pragma once

#include <optional>
#include <vector>

#include "optics/light/OpticalPath.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {

class AnimationTest : public KelmoTest {
 protected:
  AnimationTest() { openDiaphragm(); }

  // The front at an optical path as its definition draws it: pieces between neighbours that have
  // crossed the same faces, and a dot on every ray that reaches so far.
  void drawFrontAt(Canvas& canvas, double opticalPath, bool closed, Rgb colour) {
    std::vector<std::optional<light::FrontPoint>> points;
    for (const auto& ray : set()) points.push_back(light::pointAtOpticalPath(ray, opticalPath));
    canvas.DrawWidth(2);
    for (std::size_t i = 0; i < points.size(); ++i) {
      const bool last = i + 1 == points.size();
      if (last && !closed) break;
      const auto& a = points[i];
      const auto& b = points[last ? 0 : i + 1];
      if (!a || !b || a->crossed != b->crossed) continue;
      canvas.Line(a->position.x, a->position.y, b->position.x, b->position.y, colour);
    }
    canvas.DrawWidth(3);
    for (const auto& p : points) {
      if (p) canvas.PSet(p->position.x, p->position.y, colour);
    }
    canvas.DrawWidth(1);
  }

  // The white scene of the present lens with the fronts of a step.
  QImage waveSceneAt(int step, bool closed) {
    return drawn({{poreiaaktinon::WaveScene{screen.fakos(), screen.n()}}}, [&](Canvas& canvas) {
      if (step > 0) drawFrontAt(canvas, 2.5 * step, closed, RGB(255, 0, 0));
      if (step > 40) drawFrontAt(canvas, 2.5 * (step - 40), closed, RGB(2, 0, 150));
    });
  }
  ::testing::AssertionResult showsStep(int step, bool closed) {
    return samePicture(picture(), waveSceneAt(step, closed));
  }

  int count(Rgb colour) {
    const QImage shown = picture();
    const QRgb wanted = qRgb(colour.red(), colour.green(), colour.blue());
    int found = 0;
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) found += shown.pixel(x, y) == wanted ? 1 : 0;
    }
    return found;
  }
};

}  // namespace lensbench
