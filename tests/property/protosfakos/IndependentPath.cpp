#include "tests/property/protosfakos/IndependentPath.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <vector>

namespace lensbench::protosfakos::independent {
namespace {

V along(V p, V d, Real t) { return {p.x + t * d.x, p.y + t * d.y}; }
Real product(V p, V q) { return p.x * q.x + p.y * q.y; }

struct Hit {
  Real t = 0;
  V point;
  V normal;  // either side
  int face = 0;
};

void meetHyperbola(const Lens& lens, V p, V d, int face, std::vector<Hit>& hits) {
  const bool mirrored = face == 1;
  const V q = mirrored ? V{8 * lens.a - p.x, p.y} : p;
  const V e = mirrored ? V{-d.x, d.y} : d;
  const Real aa = lens.a * lens.a, bb = lens.b * lens.b;
  const Real A = e.x * e.x / aa - e.y * e.y / bb;
  const Real B = 2 * (q.x * e.x / aa - q.y * e.y / bb);
  const Real C = q.x * q.x / aa - q.y * q.y / bb - 1;
  const Real D = B * B - 4 * A * C;
  if (D < 0 || A == 0) return;
  for (const Real s : {-1.0L, 1.0L}) {
    const Real t = (-B + s * std::sqrt(D)) / (2 * A);
    const V at = along(q, e, t);
    if (at.x < 0 || at.x > 4 * lens.a) continue;
    V normal{at.x / aa, -at.y / bb};
    const Real size = std::sqrt(product(normal, normal));
    normal = {normal.x / size * (mirrored ? -1 : 1), normal.y / size};
    hits.push_back({t, along(p, d, t), normal, face});
  }
}

void meetPlane(const Lens& lens, V p, V d, std::vector<Hit>& hits) {
  if (d.x == 0) return;
  const Real t = (4 * lens.a - p.x) / d.x;
  const V at = along(p, d, t);
  if (std::fabs(at.y) <= lens.b * std::sqrt(15.0L)) hits.push_back({t, at, {1, 0}, 1});
}

std::optional<Hit> nearestAhead(const Lens& lens, V p, V d, Real from) {
  std::vector<Hit> hits;
  meetHyperbola(lens, p, d, 0, hits);
  if (lens.amfikyrtos) {
    meetHyperbola(lens, p, d, 1, hits);
  } else {
    meetPlane(lens, p, d, hits);
  }
  std::optional<Hit> nearest;
  for (const Hit& hit : hits) {
    if (hit.t > from && (!nearest || hit.t < nearest->t)) nearest = hit;
  }
  return nearest;
}

std::optional<V> bent(V d, V normal, Real ratio) {
  Real cosI = -product(normal, d);
  if (cosI < 0) {
    normal = {-normal.x, -normal.y};
    cosI = -cosI;
  }
  const Real sinSquared = ratio * ratio * (1 - cosI * cosI);
  if (sinSquared >= 1) return std::nullopt;
  const Real k = ratio * cosI - std::sqrt(1 - sinSquared);
  return V{ratio * d.x + k * normal.x, ratio * d.y + k * normal.y};
}

bool inGlass(const Lens& lens, V p) {
  const auto inBranch = [&](Real x) {
    return x > 0 && x * x / (lens.a * lens.a) - p.y * p.y / (lens.b * lens.b) > 1;
  };
  return inBranch(p.x) && (lens.amfikyrtos ? inBranch(8 * lens.a - p.x) : p.x < 4 * lens.a);
}

}  // namespace

Expected construct(const Lens& lens, V p, V d) {
  Expected e;
  e.entry = p;
  e.inside = d;
  int enteredFace = -1;
  if (!inGlass(lens, p)) {
    const auto hit = nearestAhead(lens, p, d, 0);
    if (!hit) return e;
    e.entry = hit->point;
    enteredFace = hit->face;
    e.margin = std::fabs(product(hit->normal, d));
    e.inside = bent(d, hit->normal, 1 / lens.n).value();
  }
  const auto hit = nearestAhead(lens, e.entry, e.inside, 1e-8L);
  e.ending = End::Trapped;
  if (!hit) {
    e.margin = 0;
    return e;
  }
  e.exit = hit->point;
  // Within a hair of the rim the last digit decides which face is met.
  e.margin = std::min(e.margin, std::fabs(hit->point.x - 4 * lens.a) + (lens.amfikyrtos ? 0 : 1));
  e.margin = std::min(e.margin, hit->t);
  if (hit->face == enteredFace) return e;
  const Real cosine = std::fabs(product(hit->normal, e.inside));
  const Real sine = lens.n * std::sqrt(1 - cosine * cosine);
  e.margin = std::min(e.margin, std::fabs(1 - sine));
  const auto out = bent(e.inside, hit->normal, lens.n);
  e.ending = out ? End::Emerged : End::TotalReflection;
  if (out) e.emerging = *out;
  return e;
}

double apart(V expected, Point met) {
  return static_cast<double>(std::hypot(expected.x - met.x, expected.y - met.y));
}

}  // namespace lensbench::protosfakos::independent
