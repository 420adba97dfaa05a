// What the tests of moving waves share: an open diaphragm and the picture that a step must show.
#pragma once

#include <optional>
#include <vector>

#include "optics/poreiaaktinon/Wavefront.h"
#include "screens/kelmo/Scene.h"
#include "tests/screens/kelmo/KelmoTest.h"

namespace lensbench {

class AnimationTest : public KelmoTest {
 protected:
  AnimationTest() { openDiaphragm(); }

  // The front at an optical path as its definition draws it: pieces between neighbours that have
  // crossed the same faces, and a dot on every ray that reaches so far.
  void drawFrontAt(double opticalPath, bool closed, Rgb colour) {
    const auto& rays = screen.animation().set().rays;
    std::vector<std::optional<poreiaaktinon::FrontPoint>> points;
    for (const auto& ray : rays) {
      points.push_back(poreiaaktinon::pointAtOpticalPath(ray, opticalPath));
    }
    Canvas& canvas = screen.canvas();
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

  // The wave scene, drawn anew, with the fronts of a step.
  QImage waveSceneAt(int step, bool closed) {
    drawWaveScene(screen.workbench());
    if (step > 0) drawFrontAt(2.5 * step, closed, RGB(255, 0, 0));
    if (step > 40) drawFrontAt(2.5 * (step - 40), closed, RGB(2, 0, 150));
    return picture();
  }
  // Compares the picture with that of a step, and leaves it as it was found.
  ::testing::AssertionResult showsStep(int step, bool closed) {
    const QImage shown = picture();
    const auto result = samePicture(shown, waveSceneAt(step, closed));
    restore(shown);
    return result;
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

 private:
  void restore(const QImage& shown) {
    Canvas& canvas = screen.canvas();
    const QImage now = picture();
    const UserMapping m = screen.canvas().mapping();
    for (int y = 0; y < shown.height(); ++y) {
      for (int x = 0; x < shown.width(); ++x) {
        if (shown.pixel(x, y) == now.pixel(x, y)) continue;
        const QRgb p = shown.pixel(x, y);
        const Point user = m.toUser({static_cast<double>(x), static_cast<double>(y)});
        canvas.PSet(user.x, user.y, RGB(qRed(p), qGreen(p), qBlue(p)));
      }
    }
  }
};

}  // namespace lensbench
