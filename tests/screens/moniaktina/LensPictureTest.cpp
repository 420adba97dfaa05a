// The lens of the single-ray screen, operation by operation.
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <numbers>

#include <QRegularExpression>
#include <QString>

#include "canvas/Recording.h"
#include "optics/poreiaaktinon/SingleRayPicture.h"

namespace lensbench::poreiaaktinon::single {
namespace {

constexpr double pi = std::numbers::pi;
constexpr Rgb green = RGB(0, 255, 0);
constexpr Rgb red = RGB(255, 0, 0);
using Kind = Operation::Kind;

// Walks through recorded operations, comparing each with what is expected next.
class Reader {
 public:
  explicit Reader(const Recording& canvas) : operations_(canvas.operations()) {}
  ~Reader() { EXPECT_EQ(next_, operations_.size()) << "operations left over"; }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  void cls() { EXPECT_EQ(take(Kind::Cls).colour, white); }
  void circle(double x, double y, double radius) {
    const Operation op = take(Kind::Circle);
    EXPECT_NEAR(op.x1, x, 1e-9) << op;
    EXPECT_NEAR(op.y1, y, 1e-9) << op;
    EXPECT_EQ(op.radius, radius) << op;
    EXPECT_EQ(op.colour, red) << op;
    EXPECT_EQ(op.width, 1) << op;
    EXPECT_FALSE(op.fill) << op;
  }
  // The canvas tells the end angle as the start plus the sweep.
  void arc(double x, double radius, double start, double sweep) {
    const Operation op = take(Kind::Arc);
    EXPECT_EQ(op.x1, x) << op;
    EXPECT_EQ(op.y1, 0.0) << op;
    EXPECT_EQ(op.radius, radius) << op;
    EXPECT_NEAR(op.x2, start, 1e-9) << op;
    EXPECT_NEAR(op.y2 - op.x2, sweep, 1e-9) << op;
    EXPECT_EQ(op.colour, green) << op;
    EXPECT_EQ(op.width, 5) << op;
  }
  void line(double x1, double y1, double x2, double y2) {
    const Operation op = take(Kind::Line);
    EXPECT_EQ(op.x1, x1) << op;
    EXPECT_NEAR(op.y1, y1, 1e-9) << op;
    EXPECT_EQ(op.x2, x2) << op;
    EXPECT_NEAR(op.y2, y2, 1e-9) << op;
    EXPECT_EQ(op.colour, black) << op;
    EXPECT_EQ(op.width, 1) << op;
  }

 private:
  Operation take(Kind kind) {
    if (next_ >= operations_.size()) {
      ADD_FAILURE() << "operation " << next_ << " is missing";
      return {};
    }
    EXPECT_EQ(static_cast<int>(operations_[next_].kind), static_cast<int>(kind))
        << "operation " << next_ << ": " << operations_[next_];
    return operations_[next_++];
  }

  std::vector<Operation> operations_;
  std::size_t next_ = 0;
};

void drawLensAlone(Canvas& canvas, int R1, int R2, int xc1, int xc2, double n) {
  draw(canvas, Shown{{LensAlone{outlineOf(R1, R2, xc1, xc2, n)}}});
}

void drawLensUnderRay(Canvas& canvas, int R1, int R2, int xc2, double n) {
  draw(canvas, Shown{{LensUnderRay{outlineOf(R1, R2, 0, xc2, n)}}});
}

TEST(LensPicture, LensAloneAtTheDesignValues) {
  Recording canvas;
  drawLensAlone(canvas, 90, 100, 0, 100, 1.5);
  const double h = std::sqrt(90.0 * 90.0 - 40.5 * 40.5);
  EXPECT_NEAR(h, 80.37, 0.005);
  const double f = 1.0 / ((1.0 / 90.0 + 1.0 / 100.0) * 0.5);
  EXPECT_NEAR(40.5 - f, -54.24, 0.005);
  EXPECT_NEAR(40.5 + f, 135.24, 0.005);

  Reader next(canvas);
  next.cls();
  const double alpha1 = std::asin(h / 90.0);
  const double alpha2 = std::asin(h / 100.0);
  next.arc(0, 90, 2 * pi - alpha1, 2 * alpha1);
  next.arc(100, 100, pi - alpha2, 2 * alpha2);
  next.circle(40.5 - f, 0, 3);
  next.circle(40.5 + f, 0, 3);
  EXPECT_EQ(canvas.DrawWidth(), 1);
}

TEST(LensPicture, FirstCircleStandsWhereItsCentreIs) {
  Recording canvas;
  drawLensAlone(canvas, 90, 100, 7, 100, 1.5);
  EXPECT_EQ(canvas.operations(Kind::Arc)[0].x1, 7.0);
  EXPECT_EQ(canvas.operations(Kind::Arc)[1].x1, 100.0);
}

TEST(LensPicture, UnderTheRayEverythingIsDrawnTwiceAndTheRimMarkedOnce) {
  Recording canvas;
  drawLensUnderRay(canvas, 90, 100, 100, 1.5);
  const double h = std::sqrt(90.0 * 90.0 - 40.5 * 40.5);
  const double f = 1.0 / ((1.0 / 90.0 + 1.0 / 100.0) * 0.5);
  const double alpha1 = std::asin(h / 90.0);
  const double alpha2 = std::asin(h / 100.0);

  Reader next(canvas);
  next.cls();
  for (const bool second : {false, true}) {
    if (second) {
      next.circle(40.5, h, 6);
      next.circle(40.5, -h, 6);
    }
    next.circle(40.5 - f, 0, 3);
    next.circle(40.5 + f, 0, 3);
    next.arc(0, 90, 2 * pi - alpha1, 2 * alpha1);
    next.arc(100, 100, pi - alpha2, 2 * alpha2);
    next.line(-200, h, 200, h);
    next.line(-200, -h, 200, -h);
  }
}

TEST(LensPicture, TopAndBottomLinesHaveTheForeColor) {
  Recording canvas;
  canvas.ForeColor(RGB(1, 2, 3));
  drawLensUnderRay(canvas, 90, 100, 100, 1.5);
  for (const Operation& line : canvas.operations(Kind::Line)) {
    EXPECT_EQ(line.colour, RGB(1, 2, 3));
  }
}

TEST(LensPicture, CirclesApartHaveFacesOfNoLength) {
  Recording canvas;
  drawLensAlone(canvas, 50, 60, 0, 300, 1.5);
  const double f = 1.0 / ((1.0 / 50.0 + 1.0 / 60.0) * 0.5);
  Reader next(canvas);
  next.cls();
  next.arc(0, 50, 2 * pi, 0);
  next.arc(300, 60, pi, 0);
  next.circle(-f, 0, 3);
  next.circle(f, 0, 3);
}

TEST(LensPicture, ConcentricCirclesOfUnequalRadiiCountAsApart) {
  const Outline outline = outlineOf(90, 100, 0, 0, 1.5);
  EXPECT_EQ(outline.x0, 0.0);
  EXPECT_EQ(outline.h, 0.0);
  EXPECT_EQ(outline.h2, 0.0);
  EXPECT_EQ(outline.alpha1, 0.0);
  EXPECT_EQ(outline.alpha2, 0.0);
}

TEST(LensPicture, TangentCirclesTouchOnTheAxis) {
  const Outline outline = outlineOf(100, 100, 0, 200, 1.5);
  EXPECT_EQ(outline.x0, 100.0);
  EXPECT_EQ(outline.h, 0.0);
  EXPECT_EQ(outline.alpha1, 0.0);
}

TEST(LensPicture, FaceOfMoreThanHalfACircleKeepsTheArcSine) {
  // The chord lies left of the centre of circle 1.
  const Outline outline = outlineOf(90, 500, 0, 450, 1.5);
  EXPECT_LT(outline.x0, 0.0);
  EXPECT_NEAR(outline.alpha1, std::asin(outline.h / 90.0), 1e-12);
  EXPECT_LT(outline.alpha1, pi / 2);
}

TEST(LensPicture, ChordThroughACentreMakesAHalfCircle) {
  // 3-4-5: the chord is the diameter of circle 1.
  const Outline outline = outlineOf(60, 100, 0, 80, 1.5);
  EXPECT_NEAR(outline.x0, 0.0, 1e-12);
  EXPECT_NEAR(outline.h, 60.0, 1e-12);
  EXPECT_NEAR(outline.alpha1, pi / 2, 1e-7);
}

TEST(LensPicture, IndexOfOnePutsBothMarksOnTheChord) {
  Recording canvas;
  drawLensAlone(canvas, 90, 100, 0, 100, 1.0);
  const auto marks = canvas.operations(Kind::Circle);
  ASSERT_EQ(marks.size(), 2u);
  EXPECT_NEAR(marks[0].x1, 40.5, 1e-9);
  EXPECT_NEAR(marks[1].x1, 40.5, 1e-9);
}

TEST(LensPicture, IndexBelowOneSwapsTheMarks) {
  Recording canvas;
  drawLensAlone(canvas, 90, 100, 0, 100, 0.5);
  const double f = 1.0 / ((1.0 / 90.0 + 1.0 / 100.0) * -0.5);
  const auto marks = canvas.operations(Kind::Circle);
  EXPECT_NEAR(marks[0].x1, 40.5 - f, 1e-9);
  EXPECT_GT(marks[0].x1, marks[1].x1);
}

void expectDivisionByZeroInWords(const std::function<void()>& work) {
  try {
    work();
    ADD_FAILURE() << "no error";
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.number(), 11);
    const QString words = QString::fromStdString(error.detail());
    EXPECT_TRUE(words.contains(QRegularExpression("[α-ω]{4}"))) << error.detail();
    EXPECT_TRUE(words.contains(QRegularExpression("[a-z]{4}"))) << error.detail();
  }
}

TEST(LensPicture, RadiusOfZeroIsADivisionByZero) {
  Recording canvas;
  expectDivisionByZeroInWords([&] { drawLensAlone(canvas, 90, 0, 0, 100, 1.5); });
  expectDivisionByZeroInWords([&] { drawLensAlone(canvas, 0, 90, 0, 100, 1.5); });
  expectDivisionByZeroInWords([&] { drawLensUnderRay(canvas, 90, 0, 100, 1.5); });
}

TEST(LensPicture, OneAndTheSameCircleIsADivisionByZero) {
  Recording canvas;
  expectDivisionByZeroInWords([&] { drawLensAlone(canvas, 90, 90, 0, 0, 1.5); });
  expectDivisionByZeroInWords([&] { drawLensUnderRay(canvas, 90, 90, 0, 1.5); });
}

TEST(AimedDirection, IsTheDifferenceOfThePoints) {
  const auto direction = aimedDirection(-200.0f, 10.0f, 40.0f, -30.0f);
  EXPECT_EQ(direction.x, 240.0f);
  EXPECT_EQ(direction.y, -40.0f);
}

TEST(AimedDirection, StraightAboveOrBelowIsADivisionByZero) {
  expectDivisionByZeroInWords([] { aimedDirection(5.0f, 0.0f, 5.0f, 80.0f); });
  expectDivisionByZeroInWords([] { aimedDirection(5.0f, 0.0f, 5.0f, -80.0f); });
  expectDivisionByZeroInWords([] { aimedDirection(5.0f, 7.0f, 5.0f, 7.0f); });
}

TEST(AimedDirection, TooSteepForTheArcTangentIsVertical) {
  const auto up = aimedDirection(0.0f, 0.0f, 1e-20f, 80.0f);
  EXPECT_EQ(up.x, 0.0f);
  EXPECT_EQ(up.y, 50.0f);
  // The arc tangent knows no second half-turn: a slope of plus infinity is always upward, and one
  // of minus infinity is no vertical at all.
  EXPECT_EQ(aimedDirection(0.0f, 0.0f, -1e-20f, -80.0f).y, 50.0f);
  EXPECT_EQ(aimedDirection(0.0f, 0.0f, 1e-20f, -80.0f).x, 1e-20f);
  EXPECT_EQ(aimedDirection(0.0f, 0.0f, 1e-20f, -80.0f).y, -80.0f);
}

TEST(AimedDirection, SteepIsNotYetVertical) {
  EXPECT_EQ(aimedDirection(0.0f, 0.0f, 1e-6f, 80.0f).x, 1e-6f);
}

}  // namespace
}  // namespace lensbench::poreiaaktinon::single
