// Random hits of each kind: what the picture says there is what a second tracer and formulas of
// these tests find, to the digits that are shown.
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <gtest/gtest.h>
#include <numbers>
#include <string>

#include "optics/poreiaaktinon/Ask.h"
#include "tests/property/poreiaaktinon/IndependentTrace.h"
#include "tests/property/poreiaaktinon/RandomBench.h"

namespace lensbench::poreiaaktinon {
namespace {

constexpr int hits = 1000;
constexpr double pi = std::numbers::pi;
constexpr double reach = 1e-3;

std::string print(const char* format, ...) {
  char buffer[400];
  va_list values;
  va_start(values, format);
  std::vsnprintf(buffer, sizeof buffer, format, values);
  va_end(values);
  std::string text = buffer;
  // No negative zeros.
  for (const char* zero : {"-0.00,", "-0.00)", "-0.00°"}) {
    if (const auto at = text.find(zero); at != std::string::npos) text.erase(at, 1);
  }
  return text;
}

// A whole number as such, others with two decimals.
std::string number(double value) {
  std::string text = print("%.2f", value);
  if (text.ends_with(".00")) text.resize(text.size() - 3);
  return text == "-0" ? "0" : text;
}

// A fan in a picture, one ray of it, and that ray by the second tracer.
struct RandomHit {
  Bench bench;
  Fan fan;
  int ray = 0;
  int count = 0;
  double angle = 0.0;
  Shown shown;
  IndependentTrace trace;
};

class RandomHits {
 public:
  explicit RandomHits(unsigned seed) : random(seed) {}

  RandomHit next(std::optional<Diafragma> diafragma = {}) {
    for (;;) {
      RandomHit hit;
      hit.bench = random.bench();
      hit.bench.diafragma = diafragma;
      hit.fan = {random.source(), random.real(2.0, 9.0)};
      if (!inAir(hit.bench.fakos, hit.fan.source)) continue;
      hit.count = static_cast<int>(std::floor(360.0 / hit.fan.vima));
      hit.ray = random.whole(0, hit.count - 1);
      hit.angle = hit.ray * hit.fan.vima * pi / 180.0;
      hit.trace = traceIndependently(hit.bench.fakos, hit.bench.n, hit.fan.source, hit.angle);
      if (hit.trace.smallestCosine < 1e-3L) continue;
      hit.shown.layers = {Light{send(hit.bench, hit.fan, RandomBench::edges), {}}};
      return hit;
    }
  }

  RandomBench random;
};

bool onArea(const Leg& leg) { return std::fabs(leg.x) < 380.0L && std::fabs(leg.y) < 210.0L; }

std::string english(const std::optional<Answer>& answer) {
  if (!answer) return "nothing";
  const auto lines = answer->text.size();
  const auto middle = answer->text.find("\nrefraction") != std::string::npos
                          ? answer->text.find("\nrefraction")
                          : answer->text.find('\n');
  return middle < lines ? answer->text.substr(middle + 1) : "";
}

// The angle with the normal of the face on which a leg starts.
double incidence(const Bench& bench, const Leg& at, long double direction) {
  const auto [xc1, R1, xc2, R2] = bench.fakos;
  const auto off = [&](double centre, double radius) {
    return std::fabs(std::hypot(at.x - centre, at.y) - radius);
  };
  const double centre = off(xc1, R1) < off(xc2, R2) ? xc1 : xc2;
  const long double normal = std::atan2(at.y, at.x - centre);
  const long double turn = std::remainder(direction - normal, std::acos(-1.0L));
  return static_cast<double>(std::fabs(turn));
}

TEST(AskLaws, MeetingsShowTheLawOfSines) {
  RandomHits random(41);
  for (int done = 0; done < hits;) {
    const RandomHit hit = random.next();
    const auto& legs = hit.trace.legs;
    for (std::size_t i = 1; i < legs.size(); ++i) {
      if (!onArea(legs[i])) continue;
      const double a1 = incidence(hit.bench, legs[i], legs[i - 1].angle);
      const double a2 = incidence(hit.bench, legs[i], legs[i].angle);
      const double n1 = static_cast<double>(legs[i - 1].index);
      const double n2 = static_cast<double>(legs[i].index);
      const std::string expected = print(
          "refraction: n1 = %.2f, a1 = %.2f°, n2 = %.2f, a2 = %.2f°\n"
          "n1·sin a1 = %.4f, n2·sin a2 = %.4f",
          n1, a1 * 180.0 / pi, n2, a2 * 180.0 / pi, n1 * std::sin(a1), n2 * std::sin(a2));
      const Point p{static_cast<double>(legs[i].x), static_cast<double>(legs[i].y)};
      ASSERT_EQ(english(ask(hit.shown, p, reach)), expected) << done;
      ++done;
    }
  }
}

TEST(AskLaws, TotalReflectionsNameBothAngles) {
  RandomHits random(42);
  for (int done = 0; done < hits;) {
    const RandomHit hit = random.next();
    if (!hit.trace.totallyReflected) continue;
    const Leg& last = hit.trace.legs.back();
    const bool entering = hit.trace.legs.size() == 1;
    const auto meeting = firstMeeting(hit.bench.fakos, last.x, last.y, std::cos(last.angle),
                                      std::sin(last.angle), entering ? 0.0L : 1e-9L);
    ASSERT_TRUE(meeting);
    const Leg end{meeting->x, meeting->y, 0.0L, 0.0L};
    if (!onArea(end)) continue;
    const double angle = incidence(hit.bench, end, last.angle) * 180.0 / pi;
    const double n = hit.bench.n;
    const double critical = std::asin(entering ? n : 1.0 / n) * 180.0 / pi;
    if (angle - critical < 0.2) continue;  // more digits are shown there
    const std::string expected =
        print("total reflection: %.1f° is more than the critical angle %.1f°", angle, critical);
    const Point p{static_cast<double>(end.x), static_cast<double>(end.y)};
    ASSERT_EQ(english(ask(hit.shown, p, reach)), expected) << done;
    ++done;
  }
}

TEST(AskLaws, StopsTellTheOpening) {
  RandomHits random(43);
  for (int done = 0; done < hits;) {
    const double X = random.random.real(-380.0, 380.0);
    const double yB = random.random.real(-80.0, 80.0);
    const double opening = done % 4 == 0 ? 0.0 : random.random.real(0.01, 100.0);
    const RandomHit hit = random.next(Diafragma{X, yB + opening, yB});
    // On the way to the lens, before any face is met.
    const Leg& first = hit.trace.legs.front();
    const long double run = (X - first.x) / std::cos(first.angle);
    if (run <= 1e-6L) continue;
    const Point p{X, static_cast<double>(first.y + run * std::sin(first.angle))};
    const auto face = firstMeeting(hit.bench.fakos, first.x, first.y, std::cos(first.angle),
                                   std::sin(first.angle), 0.0L);
    if ((face && face->t < run) || std::fabs(p.y) > 210.0) continue;
    if (opening > 0.0 && p.y >= yB && p.y <= yB + opening) continue;
    const std::string expected = "stopped by the diaphragm, its opening is " + number(opening) +
                                 (opening == 0.0 ? ": drag the blades apart" : "");
    ASSERT_EQ(english(ask(hit.shown, p, reach)), expected) << done;
    ++done;
  }
}

std::string turn(double radians) {
  const std::string text = print("%.2f°", std::remainder(radians, 2.0 * pi) * 180.0 / pi);
  return text == "-180.00°" ? "180.00°" : text;
}

TEST(AskLaws, RaysTellNumberAndAngle) {
  RandomHits random(44);
  for (int done = 0; done < hits;) {
    const RandomHit hit = random.next();
    const auto& legs = hit.trace.legs;
    const auto i =
        static_cast<std::size_t>(random.random.whole(0, static_cast<int>(legs.size()) - 1));
    const long double room = i + 1 < legs.size()
                                 ? std::hypot(legs[i + 1].x - legs[i].x, legs[i + 1].y - legs[i].y)
                                 : 20.0L;
    const long double part = 0.3L + 0.4L * random.random.real(0.0, 1.0);
    const Leg at{legs[i].x + part * room * std::cos(legs[i].angle),
                 legs[i].y + part * room * std::sin(legs[i].angle), 0.0L, 0.0L};
    if (room < 1.0L || !onArea(at)) continue;
    // A ray that is about to be reflected ends before that.
    if (i + 1 == legs.size() && hit.trace.totallyReflected) continue;
    if (i == 0 && legs.size() == 1 &&
        firstMeeting(hit.bench.fakos, legs[0].x, legs[0].y, std::cos(legs[0].angle),
                     std::sin(legs[0].angle), 0.0L)) {
      continue;
    }
    std::string expected =
        print("ray %d of %d: angle ", hit.ray + 1, hit.count) + turn(hit.angle) + " with the axis";
    if (i > 0) expected += ", here " + turn(static_cast<double>(legs[i].angle));
    const Point p{static_cast<double>(at.x), static_cast<double>(at.y)};
    const auto answer = ask(hit.shown, p, 1e-7);
    ASSERT_EQ(english(answer), expected) << done;
    ++done;
  }
}

TEST(AskLaws, WavePointsAndFrontsTellTheirOpticalPath) {
  RandomHits random(45);
  for (int done = 0; done < hits;) {
    RandomHit hit = random.next();
    if (hit.trace.totallyReflected || hit.trace.legs.size() < 3) continue;
    const Sent sent = std::get<Light>(hit.shown.layers[0]).sent;
    const bool moving = done % 2 == 1;
    const int step = random.random.whole(1, 200);
    const double L = moving ? 2.5 * step : 10.0 * random.random.whole(1, 60);
    const Point p = pointOn(hit.trace, L);
    if (std::fabs(p.x) > 375.0 || std::fabs(p.y) > 205.0) continue;
    // The way there must not lead out of the area.
    bool within = true;
    for (const Leg& leg : hit.trace.legs) within = within && onArea(leg);
    if (!within) continue;
    if (moving) {
      hit.shown.layers = {Fronts{sent, step}};
    } else {
      hit.shown.layers = {Light{sent, {false, true}}};
    }
    const std::string expected = "wave front: optical path " + number(L) + " from the source";
    const auto answer = ask(hit.shown, p, 1e-6);
    ASSERT_EQ(english(answer), expected) << done;
    ++done;
  }
}

// The thick lens in air by its matrix: refraction at the left face, the glass, the right face.
struct Matrix {
  long double a, b, c, d;
};
Matrix product(const Matrix& p, const Matrix& q) {
  return {p.a * q.a + p.b * q.c, p.a * q.b + p.b * q.d, p.c * q.a + p.d * q.c,
          p.c * q.b + p.d * q.d};
}

TEST(AskLaws, CardinalPointsAndThinFociAgreeWithMatrices) {
  RandomBench random(46);
  int compared[3] = {};
  while (compared[0] < hits || compared[1] < hits || compared[2] < hits) {
    const Bench bench = random.bench();
    const auto [xc1, R1, xc2, R2] = bench.fakos;
    const double n = bench.n;
    if (n == 1.0) continue;
    const double left = xc2 - R2;
    const double right = xc1 + R1;
    const long double d = right - left;
    const Matrix in{1, 0, -(n - 1) / R2, 1};
    const Matrix through{1, d / n, 0, 1};
    const Matrix out{1, 0, -(n - 1) / R1, 1};
    const Matrix all = product(out, product(through, in));
    const long double f = -1 / all.c;
    if (!(std::fabs(f) < 1000.0L)) continue;
    const long double trueF2 = right + all.a * f;
    const long double trueF1 = left - all.d * f;
    // As marked: displaced by what pairs each face with its own radius.
    const long double shift = f * (n - 1) * d / n * (1 / R2 - 1 / R1);
    const Shown shown{{LensScene{bench.fakos, n, {-200.0, 0.0}}}};
    struct Mark {
      std::string name;
      long double marked, paraxial;
      std::string meet;
      int kind;
    };
    const std::string rays = "paraxial rays meet";
    const std::string marks = "for paraxial rays";
    const Mark all6[] = {{"F1: focal point", trueF1 + shift, trueF1, rays, 0},
                         {"F2: focal point", trueF2 + shift, trueF2, rays, 0},
                         {"N1: nodal point", trueF1 + f + shift, trueF1 + f, marks, 1},
                         {"N2: nodal point", trueF2 - f + shift, trueF2 - f, marks, 1},
                         {"H1: principal plane", trueF1 + f + shift, trueF1 + f, marks, 2},
                         {"H2: principal plane", trueF2 - f + shift, trueF2 - f, marks, 2}};
    for (const Mark& mark : all6) {
      const double x = static_cast<double>(mark.marked);
      const std::string at = std::string("(") + number(x) + ", 0)";
      const std::string exact =
          std::string("(") + number(static_cast<double>(mark.paraxial)) + ", 0)";
      std::string expected = mark.name + ", f = " + number(static_cast<double>(f)) + ", at " + at;
      if (at != exact) expected += ", " + mark.meet + " at " + exact;
      const Point p{x, mark.kind == 2 ? random.real(20.0, 199.0) : 0.0};
      const auto answer = ask(shown, p, 1e-6);
      // Another mark may stand at the same place, and a rim line cross the plane there.
      if (!answer || english(answer).substr(0, 2) != mark.name.substr(0, 2)) continue;
      ASSERT_EQ(english(answer), expected);
      ++compared[mark.kind];
    }
  }
}

TEST(AskLaws, ImagesAgreeWithTheLensFormula) {
  RandomBench random(47);
  int done = 0;
  for (int tries = 0; done < hits && tries < 100 * hits; ++tries) {
    const Bench bench = random.bench();
    const double xc1 = bench.fakos.xc1;
    const double R1 = bench.fakos.R1;
    const double xc2 = bench.fakos.xc2;
    const double R2 = bench.fakos.R2;
    const double n = bench.n;
    const Point source = random.source();
    if (n == 1.0 || source.x > std::min(xc1 + R1, xc2 + R2)) continue;
    const long double d = (xc1 + R1) - (xc2 - R2);
    const long double power =
        (n - 1.0L) * (1.0L / R1 + 1.0L / R2) - (n - 1.0L) * (n - 1.0L) * d / (n * R1 * R2);
    const long double f = 1.0L / power;
    // 1/s + 1/s' = 1/f from the principal points, as marked and as they are.
    const auto image = [&](double radius1, double radius2) {
      const long double H1 = xc2 - R2 + d * f * (n - 1.0L) / (n * radius1);
      const long double H2 = xc1 + R1 - d * f * (n - 1.0L) / (n * radius2);
      const long double s = H1 - source.x;
      const long double behind = s * f / (s - f);
      return Point{static_cast<double>(H2 + behind), static_cast<double>(-source.y * behind / s)};
    };
    const Point marked = image(R2, R1);
    const Point exact = image(R1, R2);
    if (!(std::fabs(marked.x) < 1000.0 && std::fabs(marked.y) < 1000.0)) continue;
    if (!(std::fabs(exact.x) < 1e5 && std::fabs(exact.y) < 1e5)) continue;
    const std::string at = std::string("(") + number(marked.x) + ", " + number(marked.y) + ")";
    const std::string other = std::string("(") + number(exact.x) + ", " + number(exact.y) + ")";
    std::string expected = std::string("image: ") +
                           (marked.x >= std::min(xc1 + R1, xc2 + R2) ? "real" : "virtual") +
                           print(", magnification %.2f, at ", marked.y / source.y) + at;
    if (at != other) expected += ", paraxial rays meet at " + other;
    const auto answer = ask(Shown{{LensScene{bench.fakos, n, source}}}, marked, 1e-6);
    ASSERT_EQ(english(answer), expected) << done;
    ++done;
  }
  EXPECT_EQ(done, hits);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon
