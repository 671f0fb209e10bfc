#include <gtest/gtest.h>

#include "LxPolygonTestSupport.h"
#include "geometry/SelfIntersection.h"
#include "lxcomp/LxPolygon.h"

#include <limits>
#include <map>

namespace {

using lx::SelfIntersection;
using lxtest::Nodes;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr auto kNone = SelfIntersection::None, kContact = SelfIntersection::ForbiddenContact,
               kTwice = SelfIntersection::CoveredTwice;

const Nodes kSquare = {0, 0, 1000, 0, 1000, 1000, 0, 1000, 0, 0};

Nodes Reversed(const Nodes& p) {
  Nodes r;
  for (size_t i = p.size(); i >= 2; i -= 2)
    r.insert(r.end(), {p[i - 2], p[i - 1]});
  return r;
}

const auto Count = [](const Nodes& p) { return static_cast<unsigned>(p.size() / 2); };

TEST(PolygonAnalysis, NamedShapes) {
  const struct {
    const char* name;
    SelfIntersection verdict;
    double area;  // square micrometres
    Nodes micrometres;
  } cases[] = {
      {"square", kNone, 1, {0, 0, 1, 0, 1, 1, 0, 1, 0, 0}},
      {"square reversed", kNone, -1, {0, 0, 0, 1, 1, 1, 1, 0, 0, 0}},
      {"square without closing node", kNone, 1, {0, 0, 1, 0, 1, 1, 0, 1}},
      {"bow tie", kContact, 0, {0, 0, 10, 10, 10, 0, 0, 10, 0, 0}},
      {"hole reached by a cut line out and back", kNone, 84, {0, 0, 10, 0, 10, 10, 0, 10, 0,
                                                              5, 3, 5,  3, 7,  7,  7, 7,  3,
                                                              3, 3, 3,  5, 0,  5,  0, 0}},
      {"slit cut into the top edge",
       kNone,
       100,
       {0, 0, 10, 0, 10, 10, 6, 10, 6, 4, 6, 10, 0, 10, 0, 0}},
      {"square traced twice", kContact, 0, {0, 0, 1, 0, 1, 1, 0, 1, 0, 0, 1, 0, 1, 1, 0, 1, 0, 0}},
      {"loop inside a loop, touching at a vertex",
       kTwice,
       0,
       {0, 0, 10, 0, 10, 10, 0, 10, 0, 0, 6, 2, 2, 6, 0, 0}},
      {"loops of opposite orientation side by side",
       kNone,
       0,
       {0, 0, 4, 0, 4, 4, 0, 0, -4, 0, -4, 4, 0, 0}},
      {"triangle without closing node", kNone, 0.5, {0, 0, 1, 0, 0, 1}},
      {"two nodes", kNone, 0, {0, 0, 1, 0}}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Nodes p = c.micrometres;
    for (double& v : p)
      v *= 1000;
    const unsigned n = Count(p);
    EXPECT_EQ(lx::ClassifySelfIntersection(p.data(), n), c.verdict);
    EXPECT_EQ(lxtest::ReferenceSelfIntersection(p.data(), n), c.verdict);
    EXPECT_EQ(lx::SelfIntersectingPolygon(p.data(), n), c.verdict != kNone);
    EXPECT_DOUBLE_EQ(lx::signed_polygonarea(p.data(), n), c.area);
    EXPECT_DOUBLE_EQ(lx::polygonarea(p.data(), n), std::fabs(c.area));
    EXPECT_EQ(lx::polygon_is_clockwise(p.data(), n), c.area < 0);
  }
}

TEST(PointInPolygon, EvenOddWithHalfOpenEdges) {
  Nodes square = {0, 0, 10, 0, 10, 10, 0, 10};
  const struct {
    double x, y;
    unsigned count;
    bool inside;
  } cases[] = {{5, 5, 4, true},     {15, 5, 4, false}, {0, 5, 4, true},   {10, 5, 4, false},
               {5, 0, 4, true},     {5, 10, 4, false}, {-1, 5, 4, false}, {kNaN, 5, 4, false},
               {5, kNaN, 4, false}, {5, 5, 0, false},  {0, 0, 1, false}};
  for (const auto& c : cases)
    EXPECT_EQ(lx::PointInPolygon(c.x, c.y, square.data(), c.count), c.inside)
        << c.x << "," << c.y << " of " << c.count;
}

TEST(PolyClip, OneStageInTheOrderOfTheWalk) {
  const struct {
    unsigned (*clip)(double*, unsigned, double);
    Nodes input;
    double limit;
    Nodes output;
  } cases[] = {
      {lx::PolyClipLeft, kSquare, 500, {500, 0, 1000, 0, 1000, 1000, 500, 1000}},
      {lx::PolyClipLeft, kSquare, 2000, {}},
      {lx::PolyClipLeft, kSquare, -5, kSquare},
      {lx::PolyClipRight, kSquare, 500, {0, 0, 500, 0, 500, 1000, 0, 1000, 0, 0}},
      {lx::PolyClipBottom, kSquare, 250, {1000, 250, 1000, 1000, 0, 1000, 0, 250}},
      {lx::PolyClipTop, kSquare, 250, {0, 0, 1000, 0, 1000, 250, 0, 250, 0, 0}},
      {lx::PolyClipRight, {0, 0, 1000, 0, 0, 1000}, 250, {0, 0, 250, 0, 250, 750, 0, 1000}},
      {lx::PolyClipLeft, {0, 0, 10, 0, 0, 10}, 0, {0, 0, 10, 0, 0, 10}},  // on the line
      {lx::PolyClipTop, {}, 5, {}}};
  for (const auto& c : cases) {
    Nodes buffer = c.input;
    buffer.resize(2 * c.input.size() + 2, -1);
    const unsigned n = c.clip(buffer.data(), Count(c.input), c.limit);
    EXPECT_EQ(Nodes(buffer.begin(), buffer.begin() + 2 * n), c.output) << &c - cases;
  }
  Nodes p = kSquare;  // four stages clip to a rectangle
  p.resize(64);
  unsigned n = 4;
  for (const auto& [clip, limit] : {std::pair{&lx::PolyClipLeft, 200.0},
                                    {lx::PolyClipRight, 800},
                                    {lx::PolyClipBottom, 100},
                                    {lx::PolyClipTop, 900}})
    n = clip(p.data(), n, limit);
  EXPECT_EQ(Nodes(p.begin(), p.begin() + 2 * n), (Nodes{800, 100, 800, 900, 200, 900, 200, 100}));
}

TEST(WildPolygons, NotANumberInfinityAndTinyCountsGiveFixedResults) {
  std::mt19937 rng(7);
  for (double w : {kNaN, kInf, -kInf, 1e308, -1e308}) {
    for (int at = 0; at < 10; ++at) {
      Nodes p = kSquare;
      p[at] = w;
      const unsigned n = Count(p);
      const bool crosses = lx::SelfIntersectingPolygon(p.data(), n);
      if (!std::isnan(w)) {
        EXPECT_EQ(crosses, lxtest::ReferenceSelfIntersection(p.data(), n) != kNone);
      }
      lx::signed_polygonarea(p.data(), n);
      lx::PointInPolygon(500, 500, p.data(), n);
      p.resize(4 * p.size());
      lx::PolyClipLeft(p.data(), n, 500);
      lx::PolyClipTop(p.data(), n, 500);
    }
    Nodes p = lxtest::SmoothStar(rng, 200);  // enough nodes for the bucketed sort by y
    p[2 * 77 + 1] = w;
    EXPECT_EQ(lx::ClassifySelfIntersection(p.data(), Count(p)),
              std::isnan(w) ? kContact : lxtest::ReferenceSelfIntersection(p.data(), Count(p)))
        << w;
  }
  Nodes nan(2000, kNaN);
  EXPECT_TRUE(lx::SelfIntersectingPolygon(nan.data(), 1000));
  EXPECT_EQ(lx::signed_polygonarea(nan.data(), 0), 0);
  EXPECT_EQ(lx::signed_polygonarea(kSquare.data(), 1), 0);
  EXPECT_FALSE(lx::SelfIntersectingPolygon(nullptr, 0));
  EXPECT_EQ(lx::PolyClipLeft(nan.data(), 0, 1), 0u);
}

// A base bar with 300 fingers of equal height: every finger edge spans the same heights, so the
// open-edge sweep hands over to the box split. `lean` moves one finger sideways.
Nodes Comb(double lean) {
  Nodes p = {0, 0, 6000, 0, 6000, 10};
  for (unsigned t = 300; t-- > 0;)
    p.insert(p.end(),
             {20.0 * t + 15, 10, 20.0 * t + 15, 1000, 20.0 * t + 5, 1000, 20.0 * t + 5, 10});
  p.insert(p.end(), {0, 10});
  lxtest::Close(p);
  p[2 * 200] += lean;
  return p;
}

TEST(SelfIntersection, ManyEdgesSpanningTheSameHeights) {
  // Upright, leaning onto its neighbour's edge, and through it.
  const std::pair<double, SelfIntersection> cases[] = {{0, kNone}, {10, kNone}, {15, kContact}};
  for (const auto& [lean, verdict] : cases) {
    const Nodes p = Comb(lean);
    const unsigned n = Count(p);
    EXPECT_EQ(lxtest::ReferenceSelfIntersection(p.data(), n), verdict) << lean;
    EXPECT_EQ(lx::ClassifySelfIntersection(p.data(), n), verdict) << lean;
    EXPECT_EQ(lx::ClassifySelfIntersection(p.data(), n, lx::PairSearchMode::SplitOnly), verdict)
        << lean;
  }
  EXPECT_DOUBLE_EQ(lx::signed_polygonarea(Comb(0).data(), Count(Comb(0))),
                   (6000.0 * 10 + 300 * 10.0 * 990) / 1e6);
}

// --- Random agreement corpus between the fast test and the quadratic reference -------------

int Uniform(std::mt19937& rng, int from, int to) {
  return std::uniform_int_distribution<int>(from, to)(rng);
}

// Points on a small grid, or steps along its axes and diagonals (edges run along each other
// both ways).
Nodes GridPolygon(std::mt19937& rng, unsigned n, int span, bool walk) {
  double x = Uniform(rng, 0, span), y = Uniform(rng, 0, span);
  Nodes p = {x, y};
  for (unsigned i = 1; i < n; ++i) {
    const int len = walk ? Uniform(rng, 1, 3) : 0;
    auto next = [&](double v) {
      return walk ? std::clamp(v + Uniform(rng, -1, 1) * len, 0.0, double(span))
                  : Uniform(rng, 0, span);
    };
    p.insert(p.end(), {x = next(x), y = next(y)});
  }
  lxtest::Close(p);
  return p;
}

// A 10 x 10 square with cut lines drawn from the top edge in and back out, some leading to a
// small clockwise hole.
Nodes CutSquare(std::mt19937& rng) {
  Nodes p = {0, 0, 10, 0, 10, 10};
  for (int c = Uniform(rng, 1, 3), x = 10; c > 0 && x > 1; --c) {
    x = Uniform(rng, 1, x - 1);
    const double cx = x, hy = 10 - Uniform(rng, 1, 9), w = Uniform(rng, 0, 1) ? 1 : -1;
    p.insert(p.end(), {cx, 10, cx, hy});
    if (hy > 1 && Uniform(rng, 0, 1))
      p.insert(p.end(), {cx + w, hy, cx + w, hy - 1, cx, hy - 1, cx, hy});
    p.insert(p.end(), {cx, 10});
  }
  p.insert(p.end(), {0, 10, 0, 0});
  return p;
}

// A square and a triangle through its corner, with either orientation, inside or outside.
Nodes TouchingLoops(std::mt19937& rng) {
  const double sx = Uniform(rng, 0, 1) ? 1 : -1;
  auto u = [&] { return double(Uniform(rng, 1, 8)); };
  Nodes loop = {0, 0, sx * u(), u(), sx * u(), u(), 0, 0};
  if (Uniform(rng, 0, 1)) loop = Reversed(loop);
  Nodes p = {0, 0, 10, 0, 10, 10, 0, 10, 0, 0};
  p.insert(p.end(), loop.begin() + 2, loop.end());
  return p;
}

// Variations any polygon may get: reversed, a node repeated, the closing node dropped, traced
// twice.
Nodes Mutate(std::mt19937& rng, Nodes p) {
  if (Uniform(rng, 0, 9) == 0) p = Reversed(p);
  if (Uniform(rng, 0, 9) < 2 && p.size() >= 4) {
    const size_t at = 2 * Uniform(rng, 0, int(p.size() / 2) - 1);
    p.insert(p.begin() + at, {p[at], p[at + 1]});
  }
  if (Uniform(rng, 0, 9) == 0 && p.size() >= 4) p.resize(p.size() - 2);
  if (Uniform(rng, 0, 9) == 0) {
    const Nodes once = p;
    p.insert(p.end(), once.begin() + 2, once.end());
  }
  return p;
}

Nodes RandomPolygon(std::mt19937& rng, int kind, bool large) {
  const unsigned n = large ? Uniform(rng, 40, 240) : Uniform(rng, 3, 14);
  if (kind < 2) return GridPolygon(rng, n, large ? (kind ? 12 : 60) : 4, kind == 1);
  if (kind == 2) return CutSquare(rng);
  if (kind == 3) return TouchingLoops(rng);
  if (kind == 4) return lxtest::SpikyStar(rng, large ? 4 * n : n, large ? 2000 : 10);
  return large ? lxtest::SpikyStar(rng, n) : lxtest::SmoothStar(rng, n);
}

TEST(SelfIntersectionCorpus, FastTestAgreesWithTheQuadraticReference) {
  std::mt19937 rng(20261122);
  std::map<SelfIntersection, int> seen;
  for (int round = 0; round < 4000; ++round) {
    const Nodes p = Mutate(rng, RandomPolygon(rng, round % 6, round % 20 == 0));
    const unsigned n = Count(p);
    const SelfIntersection want = lxtest::ReferenceSelfIntersection(p.data(), n);
    ASSERT_EQ(lx::ClassifySelfIntersection(p.data(), n), want) << round << ", " << n << " nodes";
    ASSERT_EQ(lx::ClassifySelfIntersection(p.data(), n, lx::PairSearchMode::SplitOnly), want)
        << round << ", " << n << " nodes, split only";
    ++seen[want];
  }
  EXPECT_GT(seen[kNone], 400);
  EXPECT_GT(seen[kContact], 400);
  EXPECT_GT(seen[kTwice], 100);
}

}  // namespace
