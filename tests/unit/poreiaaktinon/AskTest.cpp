// What the pictures of the workbench and of the single-ray screen answer, word for word.
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <variant>
#include <vector>

#include "canvas/Recording.h"
#include "optics/light/Vector.h"
#include "optics/poreiaaktinon/Ask.h"
#include "optics/poreiaaktinon/CardinalPoints.h"
#include "optics/poreiaaktinon/Fronts.h"
#include "optics/poreiaaktinon/Geometry.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr light::Edges edges{-400.0, 400.0, -200.0, 200.0};
constexpr Fakos lens{-50.0, 100.0, 20.0, 90.0};
constexpr Point source{-200.0, 30.0};
const LensScene scene{lens, 1.5, source};

template <class AnyShown>
std::string said(const AnyShown& shown, Point p, double reach = 1.0) {
  const auto answer = ask(shown, p, reach);
  return answer ? answer->text : "";
}
bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

Sent fan(const Bench& bench = {lens, 1.5, {}}, Point from = source, double vima = 5.0) {
  return send(bench, Fan{from, vima}, edges);
}
Shown onlyLens(const LensScene& of = scene) { return {{of}}; }

TEST(Ask, AnEmptyPictureAnswersNothing) {
  EXPECT_FALSE(ask(Shown{}, {0.0, 0.0}, 1e9));
  EXPECT_FALSE(ask(single::Shown{}, {0.0, 0.0}, 1e9));
}

TEST(Ask, NothingIsSaidWhereNothingIsDrawn) {
  EXPECT_EQ(said(onlyLens(), {-300.0, 150.0}), "");
  EXPECT_EQ(said(onlyLens(), source), "");
}

TEST(Ask, CardinalPointsTellWhereParaxialRaysMeetToo) {
  EXPECT_EQ(said(onlyLens(), {-136.0, 0.0}),
            "F1: κύρια εστία, f = 120, στο (-136.67, 0), "
            "οι παραξονικές ακτίνες συναντιούνται στο (-142, 0)\n"
            "F1: focal point, f = 120, at (-136.67, 0), paraxial rays meet at (-142, 0)");
  EXPECT_EQ(said(onlyLens(), {122.5, 0.0}),
            "F2: κύρια εστία, f = 120, στο (122, 0), "
            "οι παραξονικές ακτίνες συναντιούνται στο (116.67, 0)\n"
            "F2: focal point, f = 120, at (122, 0), paraxial rays meet at (116.67, 0)");
  EXPECT_EQ(said(onlyLens(), {-16.67, 0.1}),
            "N1: κομβικό σημείο, f = 120, στο (-16.67, 0), για παραξονικές ακτίνες στο (-22, 0)\n"
            "N1: nodal point, f = 120, at (-16.67, 0), for paraxial rays at (-22, 0)");
  EXPECT_EQ(said(onlyLens(), {2.0, -0.9}),
            "N2: κομβικό σημείο, f = 120, στο (2, 0), για παραξονικές ακτίνες στο (-3.33, 0)\n"
            "N2: nodal point, f = 120, at (2, 0), for paraxial rays at (-3.33, 0)");
  EXPECT_EQ(said(onlyLens(), {-16.0, 120.0}),
            "H1: κύριο επίπεδο, f = 120, στο (-16.67, 0), για παραξονικές ακτίνες στο (-22, 0)\n"
            "H1: principal plane, f = 120, at (-16.67, 0), for paraxial rays at (-22, 0)");
  EXPECT_TRUE(contains(said(onlyLens(), {2.0, -199.0}), "H2: principal plane"));
  EXPECT_EQ(said(onlyLens(), {2.0, -202.0}), "");
}

TEST(Ask, WithEqualRadiiParaxialRaysMeetAtTheMarks) {
  const Shown shown = onlyLens({{-50.0, 90.0, 50.0, 90.0}, 1.5, source});
  const CardinalPoints points = cardinalPoints({-50.0, 90.0, 50.0, 90.0}, 1.5);
  const std::string text = said(shown, {points.F2, 0.0});
  EXPECT_TRUE(contains(text, "F2: focal point, f = ")) << text;
  EXPECT_FALSE(contains(text, "paraxial")) << text;
}

TEST(Ask, TheThinLensItsCentresAndItsRim) {
  EXPECT_EQ(said(onlyLens(), {94.0, 0.0}),
            "δεξιά εστία του λεπτού φακού: f = 94.74, στο (93.31, 0)\n"
            "right focus of the thin lens: f = 94.74, at (93.31, 0)");
  EXPECT_EQ(said(onlyLens(), {-96.0, 0.0}),
            "αριστερή εστία του λεπτού φακού: f = 94.74, στο (-96.17, 0)\n"
            "left focus of the thin lens: f = 94.74, at (-96.17, 0)");
  EXPECT_EQ(said(onlyLens(), {-50.0, -0.5}),
            "κέντρο του αριστερού κύκλου, της δεξιάς όψης: R1 = 100, στο (-50, 0)\n"
            "centre of the left circle, of the right face: R1 = 100, at (-50, 0)");
  EXPECT_EQ(said(onlyLens(), {20.0, 0.5}),
            "κέντρο του δεξιού κύκλου, της αριστερής όψης: R2 = 90, στο (20, 0)\n"
            "centre of the right circle, of the left face: R2 = 90, at (20, 0)");
  const SimeiaTomis rim = tomikyklonaxona(lens.xc1, lens.xc2, lens.R1, lens.R2);
  const std::string upper =
      "άνω χείλος του φακού: στο (-1.43, 87.41)\nupper rim of the lens: at (-1.43, 87.41)";
  EXPECT_EQ(said(onlyLens(), {rim.x1, rim.y1}), upper);
  EXPECT_EQ(said(onlyLens(), {-180.0, rim.y1}), upper);
  EXPECT_EQ(
      said(onlyLens(), {190.0, rim.y2 - 0.5}),
      "κάτω χείλος του φακού: στο (-1.43, -87.41)\nlower rim of the lens: at (-1.43, -87.41)");
}

TEST(Ask, AThinnerStuffHasItsFociOnTheOtherSide) {
  const Shown shown = onlyLens({lens, 0.5, source});
  const double f = estiakiapostasi(lens.R1, lens.R2, 0.5).value();
  ASSERT_LT(f, 0.0);
  const double chord = tomikyklonaxona(lens.xc1, lens.xc2, lens.R1, lens.R2).x1;
  EXPECT_TRUE(contains(said(shown, {chord + f, 0.0}), "left focus of the thin lens: f = -"));
  EXPECT_TRUE(contains(said(shown, {chord - f, 0.0}), "right focus of the thin lens: f = -"));
}

TEST(Ask, TheImageIsRealOrVirtual) {
  const CardinalPoints points = cardinalPoints(lens, 1.5);
  const Point real = imageOf(points, source, Travel::Right);
  EXPECT_EQ(said(onlyLens(), real),
            "είδωλο: πραγματικό, μεγέθυνση -1.89, στο (349.37, -56.84), "
            "οι παραξονικές ακτίνες συναντιούνται στο (364.94, -62.07)\n"
            "image: real, magnification -1.89, at (349.37, -56.84), "
            "paraxial rays meet at (364.94, -62.07)");
  const Point inside{-100.0, 20.0};
  const std::string text =
      said(onlyLens({lens, 1.5, inside}), imageOf(points, inside, Travel::Right));
  EXPECT_TRUE(contains(text, "image: virtual, magnification 3.27")) << text;
  EXPECT_TRUE(contains(text, "είδωλο: φανταστικό, μεγέθυνση 3.27")) << text;
  // From the right, light goes to the left: the real image stands there.
  const Point right{250.0, 30.0};
  const Point left = imageOf(points, right, Travel::Left);
  EXPECT_LT(left.x, 0.0);
  EXPECT_TRUE(contains(said(onlyLens({lens, 1.5, right}), left), "image: real, magnification -"));
}

TEST(Ask, OnTheAxisThereIsNoImage) {
  const LensScene onAxis{lens, 1.5, {-200.0, 0.0}};
  for (double x = -400.0; x <= 400.0; x += 0.5) {
    EXPECT_FALSE(contains(said(onlyLens(onAxis), {x, 0.0}), "image")) << x;
  }
}

TEST(Ask, TheCardinalPointsOnceMoreSayTheSame) {
  const Shown marks{{CardinalMarks{lens, 1.5, source}}};
  EXPECT_EQ(said(marks, {122.0, 0.0}), said(onlyLens(), {122.0, 0.0}));
  EXPECT_EQ(said(marks, {-50.0, 0.0}), "");
}

TEST(Ask, WithoutALensOnlyTheCentresAreLeft) {
  const Fakos apart{-300.0, 100.0, 300.0, 100.0};
  const Shown shown{{LensScene{apart, 1.5, source}, Light{fan({apart, 1.5, {}}), {}}}};
  EXPECT_TRUE(contains(said(shown, {-300.0, 0.0}), "centre of the left circle"));
  for (double x = -400.0; x <= 400.0; x += 4.0) {
    for (double y = -200.0; y <= 200.0; y += 4.0) {
      const std::string text = said(shown, {x, y}, 3.0);
      EXPECT_TRUE(text.empty() || contains(text, "\ncentre") || contains(text, "\nray ")) << text;
    }
  }
}

TEST(Ask, ARadiusOfZeroLeavesNoLens) {
  const Shown shown = onlyLens({{-50.0, 100.0, 20.0, 0.0}, 1.5, source});
  EXPECT_TRUE(contains(said(shown, {20.0, 0.0}), "R2 = 0, at (20, 0)"));
  EXPECT_EQ(said(shown, {0.0, 100.0}), "");
}

TEST(Ask, AtIndexOneRaysMeetFacesAndNothingTurns) {
  const Bench bench{lens, 1.0, {}};
  const Sent sent = fan(bench);
  const Shown shown{{LensScene{lens, 1.0, source}, Light{sent, {}}}};
  EXPECT_EQ(said(onlyLens({lens, 1.0, source}), {93.31, 0.0}), "");
  const light::RayPath& along = sent.paths->front();
  ASSERT_EQ(along.count, 3);
  const std::string text = said(shown, along.pieces[0].to);
  EXPECT_TRUE(contains(text, "refraction: n1 = 1.00, a1 = 19.47°, n2 = 1.00, a2 = 19.47°")) << text;
}

TEST(Ask, WhereSomethingHappensComesFirst) {
  const Bench bench{lens, 1.5, Diafragma{-100.0, 5.0, -5.0}};
  const Shown shown{{scene, Light{fan(bench), {true, true}}}};
  // A ray of the fan ends on a blade at (-100, 30); a wave point stands there.
  EXPECT_EQ(said(shown, {-100.0, 30.5}),
            "σταμάτησε στο διάφραγμα, η οπή του είναι 10\n"
            "stopped by the diaphragm, its opening is 10");
  EXPECT_TRUE(contains(said(shown, {-150.0, 30.5}), "\nwave front: optical path 50 from the"));
  EXPECT_EQ(said(shown, {-145.0, 30.5}),
            "ακτίνα 1 από 72: γωνία 0.00° με τον άξονα\nray 1 of 72: angle 0.00° with the axis");
}

TEST(Ask, MarksComeBeforeLinesFrontsAndRays) {
  const Sent sent = fan({lens, 1.5, {}}, {-200.0, 0.0});
  const Shown shown{{LensScene{lens, 1.5, {-200.0, 0.0}}, Light{sent, {true, true}}}};
  // The axial ray and its wave points run through all of them.
  EXPECT_TRUE(contains(said(shown, {20.0, 0.9}), "centre of the right circle"));
  EXPECT_TRUE(contains(said(shown, {2.0, 0.0}), "N2: nodal point"));
  EXPECT_TRUE(contains(said(shown, {2.0, 30.0}), "H2: principal plane"));
}

TEST(Ask, WavesOnlyShowNeitherRaysNorWhereTheyTurn) {
  const Bench bench{lens, 1.5, Diafragma{0.0, 0.0, 0.0}};
  const Sent sent = fan(bench);
  const Shown shown{{Light{sent, {false, true}}}};
  EXPECT_EQ(said(shown, {-145.0, 30.0}), "");
  EXPECT_EQ(said(shown, sent.paths->front().pieces[0].to, 0.1), "");
  EXPECT_EQ(said(shown, sent.paths->front().end(), 0.1), "");
  EXPECT_EQ(said(shown, {-150.0, 30.4}),
            "μέτωπο κύματος: οπτικός δρόμος 50 από την πηγή\n"
            "wave front: optical path 50 from the source");
}

TEST(Ask, EveryWavePointThatIsDrawnAnswers) {
  const std::vector<Rays> sets{Fan{source, 7.0}, Fan{{10.0, 12.0}, 7.0}, Desmi{0.4, 20}};
  for (const Rays& rays : sets) {
    const Shown shown{{Light{send({lens, 1.5, {}}, rays, edges), {false, true}}}};
    Recording canvas(800.0, 400.0);
    canvas.Scale(-400.0, 200.0, 400.0, -200.0);
    draw(canvas, shown);
    const auto dots = canvas.operations(Operation::Kind::PSet);
    ASSERT_GT(dots.size(), 500u);
    for (const Operation& dot : dots) {
      const auto answer = ask(shown, {dot.x1 + 1e-3, dot.y1}, 0.5);
      ASSERT_TRUE(answer) << dot;
      EXPECT_LE(answer->distance, 1.1e-3) << dot;
      EXPECT_TRUE(contains(answer->text, "wave front: optical path ")) << answer->text;
      EXPECT_TRUE(contains(answer->text, "0 from the ")) << answer->text;
    }
  }
}

TEST(Ask, ABundleCountsFromItsPlane) {
  const Shown shown{{Light{send({lens, 1.5, {}}, Desmi{0.0, 20}, edges), {true, true}}}};
  EXPECT_EQ(said(shown, {-150.0, 180.0}),
            "μέτωπο κύματος: οπτικός δρόμος 50 από το επίπεδο που περνά από το (-200, 0) κάθετα "
            "στις ακτίνες\n"
            "wave front: optical path 50 from the plane through (-200, 0) square to the rays");
  EXPECT_TRUE(contains(said(shown, {-145.0, 180.0}), "\nray 2 of 21: angle 0.00° with the axis"));
}

TEST(Ask, MovingFrontsTellTheirOpticalPath) {
  const Sent sent = fan({lens, 1.5, {}}, source, 1.0);
  const Shown early{{WaveScene{lens, 1.5}, Fronts{sent, 25}}};
  EXPECT_EQ(said(early, source + Point{-62.5, 0.0}),
            "μέτωπο κύματος: οπτικός δρόμος 62.50 από την πηγή\n"
            "wave front: optical path 62.50 from the source");
  EXPECT_EQ(said(early, source + Point{-30.0, 0.0}), "");
  const Shown later{{WaveScene{lens, 1.5}, Fronts{sent, 45}}};
  EXPECT_TRUE(contains(said(later, source + Point{-112.5, 0.0}), "optical path 112.50 from"));
  EXPECT_TRUE(contains(said(later, source + Point{-12.5, 0.0}), "optical path 12.50 from"));
  // Between two points of the front, on the piece that joins them.
  const Point between = source + 62.5 * unit(Point{-std::cos(0.5 * pi / 180.0), 0.0087265355});
  EXPECT_TRUE(contains(said(early, between, 0.1), "optical path 62.50 from"));
  EXPECT_TRUE(contains(said(later, {93.31, 0.0}), "right focus of the thin lens"));
  EXPECT_FALSE(contains(said(later, {-50.0, 0.0}), "centre"));
}

TEST(Ask, OfTwoRaysOnOneLineTheOneDrawnLastAnswers) {
  const Shown shown{{Light{fan(), {}}, Light{fan({lens, 1.5, {}}, source, 10.0), {}}}};
  EXPECT_TRUE(contains(said(shown, {-250.0, 30.0}), "\nray 19 of 36: angle 180.00°"));
}

TEST(Ask, RaysReflectedTotallyNameBothAngles) {
  // From within the glass near a vertex.
  const Sent sent = fan({lens, 1.5, {}}, {40.0, 0.0}, 1.0);
  int reflected = 0;
  for (const light::RayPath& path : *sent.paths) {
    if (path.ending != light::Ending::TotalReflection) continue;
    ++reflected;
    const std::string text = said(Shown{{Light{sent, {}}}}, path.end(), 1e-6);
    EXPECT_TRUE(contains(text, "° is more than the critical angle 41.8")) << text;
  }
  EXPECT_GT(reflected, 10);
}

single::Shown singlePicture(const single::Outline& outline, const Diafragma& diafragma) {
  const Bench bench{{outline.xc1, outline.R1, outline.xc2, outline.R2}, 1.5, diafragma};
  return {{single::LensUnderRay{outline},
           single::Ray{send(bench, SingleRay{{-200.0, 10.0}, {2.0, 0.0}}, edges)}}};
}

TEST(AskSingle, TheRayHasNoNumberAndTheBladesStandElsewhere) {
  const auto outline = single::outlineOf(90, 100, 0, 100, 1.5);
  const single::Shown closed = singlePicture(outline, {-100.0, 0.0, 0.0});
  EXPECT_EQ(said(closed, {-150.0, 10.0}),
            "ακτίνα: γωνία 0.00° με τον άξονα\nray: angle 0.00° with the axis");
  EXPECT_EQ(said(closed, {-100.0, 10.0}),
            "σταμάτησε στο διάφραγμα, η οπή του είναι 0: σύρε τα άκρα του για να ανοίξει στην "
            "οθόνη των σφαιρικών φακών\n"
            "stopped by the diaphragm, its opening is 0: drag the blades apart on the screen of "
            "the spherical lenses");
  const single::Shown open = singlePicture(outline, {-100.0, 50.0, -50.0});
  const auto& path = std::get<single::Ray>(open.layers[1]).sent.paths->front();
  ASSERT_EQ(path.count, 3);
  EXPECT_TRUE(contains(said(open, path.pieces[0].to, 0.1), "refraction: n1 = 1.00, a1 = "));
  EXPECT_TRUE(contains(said(open, path.pieces[1].to, 0.1), "refraction: n1 = 1.50, a1 = "));
}

TEST(AskSingle, FocalAndRimMarks) {
  const auto outline = single::outlineOf(90, 100, 0, 100, 1.5);
  const single::Shown alone{{single::LensAlone{outline}}};
  const single::Shown under{{single::LensUnderRay{outline}}};
  const Point right{outline.x0 + outline.f.value(), 0.0};
  EXPECT_TRUE(contains(said(alone, right), "right focus of the thin lens: f = 94.74, at ("));
  EXPECT_EQ(said(alone, right), said(under, right));
  EXPECT_EQ(said(alone, {outline.x0, outline.h}), "");
  EXPECT_TRUE(contains(said(under, {outline.x0, outline.h}), "\nupper rim of the lens: at ("));
  EXPECT_TRUE(contains(said(under, {-199.0, outline.h2}), "\nlower rim of the lens: at ("));
}

TEST(AskSingle, AtIndexOneTheFocusIsInfinitelyFarAndMarkedOnTheChord) {
  const auto outline = single::outlineOf(90, 100, 0, 100, 1.0);
  EXPECT_TRUE(contains(said(single::Shown{{single::LensAlone{outline}}}, {outline.x0, 0.0}),
                       "focus of the thin lens: f = ∞, at ("));
}

TEST(AskSingle, CirclesThatDoNotCrossHaveNoRim) {
  const auto outline = single::outlineOf(50, 60, 0, 300, 1.5);
  EXPECT_EQ(said(single::Shown{{single::LensUnderRay{outline}}}, {-150.0, 0.0}),
            "οι κύκλοι δεν τέμνονται σε δύο σημεία: ο φακός δεν έχει χείλος\n"
            "the circles do not cross at two points: the lens has no rim");
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
