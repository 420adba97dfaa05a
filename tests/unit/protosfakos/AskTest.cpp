// What the pictures of the Ibn Sahl screen answer, word for word.
#include <gtest/gtest.h>
#include <string>

#include "optics/light/Vector.h"
#include "optics/protosfakos/Ask.h"
#include "optics/protosfakos/Hyperbola.h"

namespace lensbench::protosfakos {
namespace {

std::string said(const Shown& shown, Point p, double reach = 0.5) {
  const auto answer = ask(shown, p, reach);
  return answer ? answer->text : "";
}
bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

Asked asking(const Rays& rays, bool amfikyrtos = false) {
  Asked asked;
  asked.rays = rays;
  asked.amfikyrtos = amfikyrtos;
  asked.diafragma = {200.0, 1e9, -1e9};
  return asked;
}
Shown picture(const Asked& asked) { return {{sceneOf(asked)}}; }

const Rays fan = Fan{{-60.0, 10.0}};

TEST(AskSahl, AnEmptyPictureAnswersNothing) { EXPECT_FALSE(ask(Shown{}, {0.0, 0.0}, 1e9)); }

TEST(AskSahl, TheMarksOfTheLens) {
  const Shown shown = picture(asking(fan));
  EXPECT_EQ(said(shown, {-18.0, 0.2}, 0.3),
            "εστία της υπερβολής: c = 18, στο (-18, 0), εδώ συναντιούνται οι ακτίνες που μέσα στο "
            "γυαλί είναι παράλληλες στον άξονα\n"
            "focus of the hyperbola: c = 18, at (-18, 0), where rays meet that are parallel to the "
            "axis in the glass");
  EXPECT_EQ(said(shown, {-60.0, 10.2}),
            "πηγή των ακτίνων: στο (-60, 10)\nsource of the rays: at (-60, 10)");
  const double rim = rimHalfHeight(deriveLens(1.5)->b);
  EXPECT_EQ(said(shown, {48.0, rim}, 0.1),
            "άνω χείλος του φακού: στο (48, 51.96)\nupper rim of the lens: at (48, 51.96)");
  EXPECT_TRUE(contains(said(shown, {48.0, -rim}, 0.1), "lower rim of the lens: at (48, -51.96)"));
  Asked waves = asking(fan);
  waves.onlyWaves = true;
  EXPECT_EQ(
      said(picture(waves), {12.0, 0.0}),
      "κορυφή της υπερβολής: a = 12, στο (12, 0)\nvertex of the hyperbola: a = 12, at (12, 0)");
  EXPECT_FALSE(contains(said(picture(waves), {-18.0, 0.0}), "focus"));
}

TEST(AskSahl, TheAxialRayGoesThroughBothVerticesUnrefracted) {
  const Shown shown = picture(asking(Desmi{0.0}, true));
  EXPECT_EQ(said(shown, {84.0, 0.0}),
            "κορυφή της υπερβολής: η ακτίνα συνεχίζει ευθεία, χωρίς διάθλαση, όπως σχεδιάστηκε\n"
            "the hyperbola's vertex: the ray goes on straight, unrefracted, as drawn");
  EXPECT_TRUE(contains(said(shown, {12.0, 0.0}), "goes out straight, unrefracted, as drawn"));
  EXPECT_TRUE(contains(said(shown, {98.0, 0.0}, 0.1), "wave front: optical path 32"));
  EXPECT_TRUE(contains(said(shown, {100.0, 0.0}, 0.1), "ray 101 of 201: angle 180.00°"));
}

TEST(AskSahl, EveryMeetingAndStopAnswers) {
  Asked asked = asking(fan);
  asked.diafragma = {-20.0, 15.0, -5.0};
  const Scene scene = sceneOf(asked);
  int meetings = 0;
  int stops = 0;
  for (const light::RayPath& path : scene.traced->paths) {
    if (path.ending == light::Ending::Diaphragm) {
      ++stops;
      EXPECT_EQ(said({{scene}}, path.end(), 1e-6),
                "σταμάτησε στο διάφραγμα, η οπή του είναι 20\n"
                "stopped by the diaphragm, its opening is 20");
    }
    for (int i = 0; i + 1 < path.count; ++i) {
      ++meetings;
      EXPECT_TRUE(contains(said({{scene}}, path.pieces[static_cast<std::size_t>(i)].to, 1e-6),
                           "\nrefraction: n1 = "));
    }
  }
  EXPECT_GT(meetings, 5);
  EXPECT_GT(stops, 20);
}

TEST(AskSahl, WavesOnlyStillShowWhereRaysAreStopped) {
  Asked asked = asking(fan);
  asked.diafragma = {-20.0, 0.0, 0.0};
  asked.onlyWaves = true;
  const Shown shown = picture(asked);
  const Point stop = sceneOf(asked).traced->paths[20].end();
  EXPECT_TRUE(contains(said(shown, stop), "its opening is 0: drag the blades apart"));
  EXPECT_EQ(said(shown, 0.5 * (stop + Point{-60.0, 10.0}), 0.1), "");
}

TEST(AskSahl, OnlyRaysShowNoFronts) {
  Asked asked = asking(fan);
  const Scene both = sceneOf(asked);
  asked.onlyRays = true;
  const Scene raysOnly = sceneOf(asked);
  const Recorded& recorded = both.traced->recorded[5];
  const Point between = 0.5 * (recorded.kymata[12] + both.traced->recorded[6].kymata[12]);
  EXPECT_EQ(said({{both}}, between, 1e-3),
            "μέτωπο κύματος: οπτικός δρόμος 44 από την πηγή\n"
            "wave front: optical path 44 from the source");
  EXPECT_EQ(said({{raysOnly}}, between, 1e-3), "");
  EXPECT_TRUE(contains(said({{raysOnly, FrontsAgain{raysOnly, false}}}, between, 1e-3),
                       "optical path 44 from the source"));
}

TEST(AskSahl, FrontsOnceMoreAfterABundleCountFromTheMiddle) {
  Asked asked = asking(Desmi{0.1});
  asked.onlyRays = true;
  const Scene scene = sceneOf(asked);
  const FrontsAgain again{scene, true};
  const auto rays = raysOf(again);
  const Point between = 0.5 * (rays.at(10).kymata[20] + rays.at(11).kymata[20]);
  const std::string text = said({{again}}, between, 1e-3);
  EXPECT_TRUE(contains(text, "optical path 76 from (0, 0)")) << text;
  const Point own =
      0.5 * (scene.traced->recorded.at(10).kymata[3] + scene.traced->recorded.at(11).kymata[3]);
  const std::string counted = said({{FrontsAgain{scene, false}}}, own, 1e-3);
  EXPECT_TRUE(
      contains(counted, "optical path 8 from the plane through (130, 0) square to the rays"))
      << counted;
}

TEST(AskSahl, AtIndexOneThereIsNoRimAndNoFocus) {
  Asked asked = asking(fan);
  asked.deiktisSahl = 1.0;
  const Shown shown = picture(asked);
  for (const double x : {-12.0, 48.0}) {
    const std::string text = said(shown, {x, 0.0}, 1.0);
    EXPECT_FALSE(contains(text, "rim") || contains(text, "focus")) << text;
  }
}

}  // namespace
}  // namespace lensbench::protosfakos
