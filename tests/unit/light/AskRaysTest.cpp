// What rays say of themselves and of what happens to them, word for word.
#include <cmath>
#include <gtest/gtest.h>
#include <numbers>
#include <string>
#include <vector>

#include "optics/light/AskRays.h"
#include "optics/light/Tracer.h"

namespace lensbench::light {
namespace {

constexpr double reach = 1.0;

Point towards(double degrees) {
  const double angle = degrees * std::numbers::pi / 180.0;
  return {std::cos(angle), std::sin(angle)};
}

// A path that turns at the origin, on a vertical face with glass to the right of it.
RayPath turningAtOrigin(double degreesBefore, double n) {
  const Point before = towards(degreesBefore);
  const auto behind = refracted(before, {-1.0, 0.0}, 1.0 / n, Grazing::AlongTangent);
  RayPath path;
  path.n = n;
  path.pieces[0] = {-100.0 * before, {0.0, 0.0}, before, Medium::Air};
  path.meetings[0] = {Side::Left, {-1.0, 0.0}, true};
  path.pieces[1] = {{0.0, 0.0}, 100.0 * behind.value(), behind.value(), Medium::Glass};
  path.count = 2;
  return path;
}

// A path that ends in the glass at the origin.
RayPath endingAtOrigin(double degrees, double n, Ending ending) {
  RayPath path;
  path.n = n;
  path.pieces[0] = {-100.0 * towards(degrees), {0.0, 0.0}, towards(degrees), Medium::Glass};
  path.meetings[0] = {Side::Right, {1.0, 0.0}, true};
  path.count = 1;
  path.ending = ending;
  return path;
}

std::string said(const std::vector<RayPath>& paths, Point p) {
  Nearest nearest(p, reach);
  offerRays(nearest, paths);
  const auto answer = nearest.answer();
  return answer ? answer->text : "";
}

std::string stopSaid(const Diafragma& diafragma, Phrase blades = {}) {
  RayPath path;
  path.pieces[0] = {{-10.0, 5.0}, {0.0, 5.0}, {1.0, 0.0}, Medium::Air};
  path.count = 1;
  path.ending = Ending::Diaphragm;
  const std::vector<RayPath> paths{path};
  Nearest nearest({0.0, 5.5}, reach);
  offerRays(nearest, paths);
  offerStops(nearest, paths, diafragma, blades);
  return nearest.answer()->text;
}

TEST(AskRays, ARefractionShowsTheLawOfSines) {
  EXPECT_EQ(said({turningAtOrigin(30.0, 1.5)}, {0.2, 0.0}),
            "διάθλαση: n1 = 1.00, a1 = 30.00°, n2 = 1.50, a2 = 19.47°\n"
            "n1·ημ a1 = 0.5000, n2·ημ a2 = 0.5000\n"
            "refraction: n1 = 1.00, a1 = 30.00°, n2 = 1.50, a2 = 19.47°\n"
            "n1·sin a1 = 0.5000, n2·sin a2 = 0.5000");
}

TEST(AskRays, AnglesHaveNoSense) {
  EXPECT_EQ(said({turningAtOrigin(-30.0, 1.5)}, {0.0, 0.0}),
            said({turningAtOrigin(30.0, 1.5)}, {0.0, 0.0}));
}

TEST(AskRays, AtIndexOneAndAlongTheNormalNothingTurns) {
  EXPECT_NE(said({turningAtOrigin(40.0, 1.0)}, {0.0, 0.0})
                .find("refraction: n1 = 1.00, a1 = 40.00°, n2 = 1.00, a2 = 40.00°\n"
                      "n1·sin a1 = 0.6428, n2·sin a2 = 0.6428"),
            std::string::npos);
  EXPECT_NE(said({turningAtOrigin(0.0, 1.5)}, {0.0, 0.0})
                .find("refraction: n1 = 1.00, a1 = 0.00°, n2 = 1.50, a2 = 0.00°\n"
                      "n1·sin a1 = 0.0000, n2·sin a2 = 0.0000"),
            std::string::npos);
}

// Of the products one is just above a half of the last digit and one just below.
TEST(AskRays, ProductsAgreeInTheDigitsThatAreShown) {
  const double sine = 0.12345;
  RayPath path = turningAtOrigin(std::asin(sine) * 180.0 / std::numbers::pi, 1.5);
  path.pieces[0].direction = {std::sqrt(1.0 - sine * sine), sine - 1e-12};
  path.pieces[1].direction = {std::sqrt(1.0 - sine * sine / 2.25), sine / 1.5 + 1e-12};
  EXPECT_NE(said({path}, {0.0, 0.0}).find("n1·sin a1 = 0.123, n2·sin a2 = 0.123"),
            std::string::npos);
}

TEST(AskRays, AtAVertexARayGoesOnUnrefracted) {
  RayPath path = turningAtOrigin(20.0, 1.5);
  path.meetings[0].refracts = false;
  EXPECT_EQ(said({path}, {0.0, 0.0}),
            "κορυφή της υπερβολής: η ακτίνα συνεχίζει ευθεία, χωρίς διάθλαση, όπως σχεδιάστηκε\n"
            "the hyperbola's vertex: the ray goes on straight, unrefracted, as drawn");
  path.meetings[1].refracts = false;
  path.pieces[2] = {path.pieces[1].to, {300.0, 300.0}, towards(45.0), Medium::Air};
  path.count = 3;
  EXPECT_EQ(said({path}, path.pieces[1].to),
            "η ακτίνα, που μπήκε από την κορυφή της υπερβολής, βγαίνει ευθεία, χωρίς διάθλαση, "
            "όπως σχεδιάστηκε\n"
            "the ray, which came in by the hyperbola's vertex, goes out straight, unrefracted, as "
            "drawn");
}

TEST(AskRays, ATotalReflectionNamesTheCriticalAngle) {
  EXPECT_EQ(said({endingAtOrigin(48.2, 1.5, Ending::TotalReflection)}, {0.0, 0.0}),
            "ολική ανάκλαση: οι 48.2° ξεπερνούν την κρίσιμη γωνία των 41.8°\n"
            "total reflection: 48.2° is more than the critical angle 41.8°");
}

TEST(AskRays, CloseToTheCriticalAngleMoreDigitsAreShown) {
  EXPECT_NE(said({endingAtOrigin(41.8104, 1.5, Ending::TotalReflection)}, {0.0, 0.0})
                .find("total reflection: 41.8104° is more than the critical angle 41.8103°"),
            std::string::npos);
  const double critical = std::asin(1.0 / 1.5) * 180.0 / std::numbers::pi;
  EXPECT_NE(said({endingAtOrigin(critical, 1.5, Ending::TotalReflection)}, {0.0, 0.0})
                .find("total reflection: 41.81° is the critical angle"),
            std::string::npos);
}

TEST(AskRays, OnEntryIntoThinStuffItsIndexIsTheSine) {
  RayPath path = endingAtOrigin(50.0, 0.5, Ending::TotalReflection);
  path.pieces[0].medium = Medium::Air;
  EXPECT_NE(said({path}, {0.0, 0.0})
                .find("total reflection: 50.0° is more than the critical angle 30.0°"),
            std::string::npos);
}

TEST(AskRays, WhereNoFaceLetsARayOut) {
  EXPECT_EQ(said({endingAtOrigin(10.0, 1.5, Ending::Trapped)}, {0.0, 0.0}),
            "τέλος της ακτίνας: καμία όψη μπροστά της δεν την αφήνει να βγει από το γυαλί\n"
            "end of the ray: no face ahead of it lets it out of the glass");
}

TEST(AskRays, AStopTellsTheOpening) {
  EXPECT_EQ(stopSaid({0.0, 0.0, 0.0}),
            "σταμάτησε στο διάφραγμα, η οπή του είναι 0: σύρε τα άκρα του για να ανοίξει\n"
            "stopped by the diaphragm, its opening is 0: drag the blades apart");
  EXPECT_EQ(stopSaid({0.0, -3.0, 4.0}), stopSaid({0.0, 0.0, 0.0}));
  EXPECT_EQ(stopSaid({0.0, 3.0, -1.5}),
            "σταμάτησε στο διάφραγμα, η οπή του είναι 4.50\n"
            "stopped by the diaphragm, its opening is 4.50");
  EXPECT_EQ(stopSaid({0.0, 0.0, 0.0}, {" εκεί", " there"}),
            "σταμάτησε στο διάφραγμα, η οπή του είναι 0: σύρε τα άκρα του για να ανοίξει εκεί\n"
            "stopped by the diaphragm, its opening is 0: drag the blades apart there");
}

TEST(AskRays, ARayHasANumberAndAnAngle) {
  const RayPath first = turningAtOrigin(30.0, 1.5);
  EXPECT_EQ(said({first, turningAtOrigin(-30.0, 1.5)}, {-50.0, -50.0 * std::tan(30.0 / 57.29578)}),
            "ακτίνα 1 από 2: γωνία 30.00° με τον άξονα\n"
            "ray 1 of 2: angle 30.00° with the axis");
  EXPECT_EQ(said({first, turningAtOrigin(-30.0, 1.5)}, -50.0 * towards(160.5288)),
            "ακτίνα 2 από 2: γωνία -30.00° με τον άξονα, εδώ -19.47°\n"
            "ray 2 of 2: angle -30.00° with the axis, here -19.47°");
  EXPECT_EQ(said({first}, -50.0 * towards(30.0)),
            "ακτίνα: γωνία 30.00° με τον άξονα\nray: angle 30.00° with the axis");
  EXPECT_EQ(said({first}, {-50.0, 50.0}), "");
}

TEST(AskRays, BackwardsIsHalfATurnEitherWay) {
  for (const double y : {0.0, -0.0, -1e-9}) {
    RayPath path;
    path.pieces[0] = {{0.0, 0.0}, {-50.0, 50.0 * y}, {-1.0, y}, Medium::Air};
    path.count = 1;
    EXPECT_NE(said({path}, {-20.0, 0.0}).find("ray: angle 180.00° with the axis"),
              std::string::npos);
  }
}

TEST(AskRays, NumbersHaveNoDecimalsOrTwo) {
  EXPECT_EQ(coordinates({12.5, -3.0}), "(12.50, -3)");
  EXPECT_EQ(coordinates({-0.001, 100.0}), "(0, 100)");
  EXPECT_EQ(frontWords(2.5, {"εδώ", "here"}),
            "μέτωπο κύματος: οπτικός δρόμος 2.50 από εδώ\nwave front: optical path 2.50 from here");
}

}  // namespace
}  // namespace lensbench::light
