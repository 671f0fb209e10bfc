#include <gtest/gtest.h>

#include "LxPolygonTestSupport.h"
#include "geometry/SelfIntersection.h"
#include "lxcomp/LxPolygon.h"

#include <array>
#include <limits>
#include <map>

namespace {

using lx::SelfIntersection;
using lxtest::Nodes;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();

const Nodes kSquare = {0, 0, 1000, 0, 1000, 1000, 0, 1000, 0, 0};

Nodes Reversed(const Nodes& p) {
  Nodes r;
  for (size_t i = p.size(); i >= 2; i -= 2)
    r.insert(r.end(), {p[i - 2], p[i - 1]});
  return r;
}

Nodes Scaled(Nodes p, double factor) {
  for (double& v : p)
    v *= factor;
  return p;
}

unsigned Count(const Nodes& p) {
  return static_cast<unsigned>(p.size() / 2);
}

struct ShapeCase {
  const char* name;
  Nodes nodes;
  SelfIntersection verdict;
  double area;  // square micrometres
};

TEST(PolygonAnalysis, NamedShapes) {
  const ShapeCase cases[] = {
      {"square", kSquare, SelfIntersection::None, 1.0},
      {"square reversed", Reversed(kSquare), SelfIntersection::None, -1.0},
      {"square without closing node",
       {0, 0, 1000, 0, 1000, 1000, 0, 1000},
       SelfIntersection::None,
       1.0},
      {"bow tie", {0, 0, 10, 10, 10, 0, 0, 10, 0, 0}, SelfIntersection::ForbiddenContact, 0},
      {"hole reached by a cut line out and back",
       Scaled({0, 0, 10, 0, 10, 10, 0, 10, 0, 5, 3, 5, 3, 7, 7, 7, 7, 3, 3, 3, 3, 5, 0, 5, 0, 0},
              1000),
       SelfIntersection::None, 84.0},
      {"slit cut into the top edge",
       Scaled({0, 0, 10, 0, 10, 10, 6, 10, 6, 4, 6, 10, 0, 10, 0, 0}, 1000), SelfIntersection::None,
       100.0},
      {"square traced twice",
       {0, 0, 1000, 0, 1000, 1000, 0, 1000, 0, 0, 1000, 0, 1000, 1000, 0, 1000, 0, 0},
       SelfIntersection::ForbiddenContact,
       0},
      {"loop inside a loop, touching at a vertex",
       Scaled({0, 0, 10, 0, 10, 10, 0, 10, 0, 0, 6, 2, 2, 6, 0, 0}, 1000),
       SelfIntersection::CoveredTwice, 0},
      {"loops of opposite orientation side by side",
       Scaled({0, 0, 4, 0, 4, 4, 0, 0, -4, 0, -4, 4, 0, 0}, 1000), SelfIntersection::None, 0.0},
      {"triangle without closing node", {0, 0, 1000, 0, 0, 1000}, SelfIntersection::None, 0.5},
      {"two nodes", {0, 0, 1000, 0}, SelfIntersection::None, 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const unsigned n = Count(c.nodes);
    EXPECT_EQ(lx::ClassifySelfIntersection(c.nodes.data(), n), c.verdict);
    EXPECT_EQ(lxtest::ReferenceSelfIntersection(c.nodes.data(), n), c.verdict);
    EXPECT_EQ(lx::SelfIntersectingPolygon(c.nodes.data(), n), c.verdict != SelfIntersection::None);
    EXPECT_DOUBLE_EQ(lx::signed_polygonarea(c.nodes.data(), n), c.area);
    EXPECT_DOUBLE_EQ(lx::polygonarea(c.nodes.data(), n), std::fabs(c.area));
    EXPECT_EQ(lx::polygon_is_clockwise(c.nodes.data(), n), c.area < 0);
  }
}

TEST(PointInPolygon, EvenOddWithHalfOpenEdges) {
  Nodes square = {0, 0, 10, 0, 10, 10, 0, 10};
  struct Case {
    double x, y;
    bool inside;
  };
  const Case cases[] = {{5, 5, true},   {15, 5, false},   {0, 5, true},
                        {10, 5, false}, {5, 0, true},     {5, 10, false},
                        {-1, 5, false}, {kNaN, 5, false}, {5, kNaN, false}};
  for (const auto& c : cases)
    EXPECT_EQ(lx::PointInPolygon(c.x, c.y, square.data(), 4), c.inside) << c.x << "," << c.y;
  EXPECT_FALSE(lx::PointInPolygon(5, 5, square.data(), 0));
  EXPECT_FALSE(lx::PointInPolygon(0, 0, square.data(), 1));
}

struct ClipCase {
  const char* name;
  unsigned (*clip)(double*, unsigned, double);
  Nodes input;
  double limit;
  Nodes output;
};

TEST(PolyClip, OneStageInTheOrderOfTheWalk) {
  const ClipCase cases[] = {
      {"left 500", lx::PolyClipLeft, kSquare, 500, {500, 0, 1000, 0, 1000, 1000, 500, 1000}},
      {"left beyond", lx::PolyClipLeft, kSquare, 2000, {}},
      {"left before", lx::PolyClipLeft, kSquare, -5, kSquare},
      {"right 500", lx::PolyClipRight, kSquare, 500, {0, 0, 500, 0, 500, 1000, 0, 1000, 0, 0}},
      {"bottom 250", lx::PolyClipBottom, kSquare, 250, {1000, 250, 1000, 1000, 0, 1000, 0, 250}},
      {"top 250", lx::PolyClipTop, kSquare, 250, {0, 0, 1000, 0, 1000, 250, 0, 250, 0, 0}},
      {"right through a slanted edge",
       lx::PolyClipRight,
       {0, 0, 1000, 0, 0, 1000},
       250,
       {0, 0, 250, 0, 250, 750, 0, 1000}},
      {"on the line counts as inside",
       lx::PolyClipLeft,
       {0, 0, 10, 0, 0, 10},
       0,
       {0, 0, 10, 0, 0, 10}},
      {"empty", lx::PolyClipTop, {}, 5, {}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    Nodes buffer = c.input;
    buffer.resize(2 * c.input.size() + 2, -1);
    const unsigned n = c.clip(buffer.data(), Count(c.input), c.limit);
    EXPECT_EQ(Nodes(buffer.begin(), buffer.begin() + 2 * n), c.output);
  }
}

TEST(PolyClip, FourStagesClipToARectangle) {
  Nodes p = {0, 0, 1000, 0, 1000, 1000, 0, 1000};
  p.resize(64);
  unsigned n = 4;
  n = lx::PolyClipLeft(p.data(), n, 200);
  n = lx::PolyClipRight(p.data(), n, 800);
  n = lx::PolyClipBottom(p.data(), n, 100);
  n = lx::PolyClipTop(p.data(), n, 900);
  EXPECT_EQ(Nodes(p.begin(), p.begin() + 2 * n), (Nodes{800, 100, 800, 900, 200, 900, 200, 100}));
}

TEST(WildPolygons, NotANumberInfinityAndTinyCountsGiveFixedResults) {
  const double wild[] = {kNaN, kInf, -kInf, 1e308, -1e308};
  for (double w : wild) {
    for (int at = 0; at < 10; ++at) {
      Nodes p = kSquare;
      p[at] = w;
      const unsigned n = Count(p);
      const bool crosses = lx::SelfIntersectingPolygon(p.data(), n);
      if (!std::isnan(w)) {
        EXPECT_EQ(crosses,
                  lxtest::ReferenceSelfIntersection(p.data(), n) != SelfIntersection::None);
      }
      lx::signed_polygonarea(p.data(), n);
      lx::PointInPolygon(500, 500, p.data(), n);
      p.resize(4 * p.size());
      lx::PolyClipLeft(p.data(), n, 500);
      lx::PolyClipTop(p.data(), n, 500);
    }
  }
  std::mt19937 rng(7);
  for (double w : wild) {  // enough nodes for the bucketed sort by y
    Nodes p = lxtest::SmoothStar(rng, 200);
    p[2 * 77 + 1] = w;
    const unsigned n = Count(p);
    EXPECT_EQ(lx::ClassifySelfIntersection(p.data(), n),
              std::isnan(w) ? SelfIntersection::ForbiddenContact
                            : lxtest::ReferenceSelfIntersection(p.data(), n))
        << w;
  }
  Nodes nan(2000, kNaN);
  EXPECT_TRUE(lx::SelfIntersectingPolygon(nan.data(), 1000));
  EXPECT_EQ(lx::signed_polygonarea(nan.data(), 0), 0);
  EXPECT_EQ(lx::signed_polygonarea(kSquare.data(), 1), 0);
  EXPECT_FALSE(lx::SelfIntersectingPolygon(nullptr, 0));
  EXPECT_EQ(lx::PolyClipLeft(nan.data(), 0, 1), 0u);
}

// A base bar with `teeth` fingers of equal height: every finger edge spans the same heights, so
// the open-edge sweep hands over to the box split.
Nodes Comb(unsigned teeth, double height) {
  Nodes p = {0, 0, 20.0 * teeth, 0, 20.0 * teeth, 10};
  for (unsigned t = teeth; t-- > 0;)
    p.insert(p.end(),
             {20.0 * t + 15, 10, 20.0 * t + 15, height, 20.0 * t + 5, height, 20.0 * t + 5, 10});
  p.insert(p.end(), {0, 10});
  lxtest::Close(p);
  return p;
}

TEST(SelfIntersection, ManyEdgesSpanningTheSameHeights) {
  struct Case {
    const char* name;
    Nodes nodes;
    SelfIntersection verdict;
  };
  Nodes touching = Comb(300, 1000);
  touching[2 * 200] += 10;  // one finger leans onto its neighbour's edge
  Nodes crossing = Comb(300, 1000);
  crossing[2 * 200] += 15;  // and through it
  const Case cases[] = {
      {"comb", Comb(300, 1000), SelfIntersection::None},
      {"finger touching its neighbour", touching, SelfIntersection::None},
      {"finger crossing its neighbour", crossing, SelfIntersection::ForbiddenContact}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const unsigned n = Count(c.nodes);
    EXPECT_EQ(lxtest::ReferenceSelfIntersection(c.nodes.data(), n), c.verdict);
    EXPECT_EQ(lx::ClassifySelfIntersection(c.nodes.data(), n), c.verdict);
    EXPECT_EQ(lx::ClassifySelfIntersection(c.nodes.data(), n, lx::PairSearchMode::SplitOnly),
              c.verdict);
  }
  EXPECT_DOUBLE_EQ(lx::signed_polygonarea(Comb(300, 1000).data(), Count(Comb(300, 1000))),
                   (6000.0 * 10 + 300 * 10.0 * 990) / 1e6);
}

// --- Random agreement corpus between the fast test and the quadratic reference -------------

Nodes RandomPoints(std::mt19937& rng, unsigned n, int span) {
  std::uniform_int_distribution<int> coord(0, span);
  Nodes p;
  for (unsigned i = 0; i < n; ++i)
    p.insert(p.end(), {double(coord(rng)), double(coord(rng))});
  lxtest::Close(p);
  return p;
}

// Steps along the axes and diagonals of a small grid: edges run along each other both ways.
Nodes GridWalk(std::mt19937& rng, unsigned n, int span) {
  std::uniform_int_distribution<int> coord(0, span), step(-1, 1), length(1, 3);
  double x = coord(rng), y = coord(rng);
  Nodes p = {x, y};
  for (unsigned i = 1; i < n; ++i) {
    const int len = length(rng);
    x = std::clamp(x + step(rng) * len, 0.0, double(span));
    y = std::clamp(y + step(rng) * len, 0.0, double(span));
    p.insert(p.end(), {x, y});
  }
  lxtest::Close(p);
  return p;
}

// A rectangle with cut lines drawn in and back out, some leading to a hole.
Nodes CutRectangle(std::mt19937& rng) {
  std::uniform_int_distribution<int> pick(1, 9), coin(0, 1);
  Nodes p = {0, 0, 10, 0, 10, 10};
  const int cuts = pick(rng) % 3 + 1;
  int x = 10;
  for (int c = 0; c < cuts && x > 1; ++c) {
    const int cx = std::uniform_int_distribution<int>(1, x - 1)(rng), depth = pick(rng);
    p.insert(p.end(), {double(cx), 10, double(cx), double(10 - depth)});
    if (coin(rng) && depth < 9) {  // a small hole at the end of the cut, clockwise
      const double hy = 10 - depth;
      const double w = coin(rng) ? 1 : -1;
      p.insert(p.end(), {cx + w, hy, cx + w, hy - 1, double(cx), hy - 1, double(cx), hy});
    }
    p.insert(p.end(), {double(cx), 10});
    x = cx;
  }
  p.insert(p.end(), {0, 10});
  lxtest::Close(p);
  return p;
}

// Two loops through one shared vertex, with either orientation, nested or apart.
Nodes TouchingLoops(std::mt19937& rng) {
  std::uniform_int_distribution<int> coord(1, 8), coin(0, 1);
  Nodes p = {0, 0, 10, 0, 10, 10, 0, 10, 0, 0};
  const double sx = coin(rng) ? 1 : -1;
  Nodes inner = {0, 0, sx * coord(rng), double(coord(rng)), sx * coord(rng), double(coord(rng)),
                 0, 0};
  if (coin(rng)) inner = Reversed(inner);
  p.insert(p.end(), inner.begin() + 2, inner.end());
  return p;
}

Nodes IntegerStar(std::mt19937& rng, unsigned n, double span) {
  std::uniform_real_distribution<double> radius(span / 4, span / 2);
  Nodes p = lxtest::StarPolygon(rng, n, [&](double) { return radius(rng); });
  for (double& v : p)
    v = std::round(v);
  return p;
}

// Variations that every generator's polygon may get.
Nodes Mutate(std::mt19937& rng, Nodes p) {
  std::uniform_int_distribution<int> dice(0, 9);
  if (dice(rng) == 0) p = Reversed(p);
  if (dice(rng) < 2 && p.size() >= 4) {  // repeat a node
    const size_t at = 2 * std::uniform_int_distribution<size_t>(0, p.size() / 2 - 1)(rng);
    p.insert(p.begin() + at, {p[at], p[at + 1]});
  }
  if (dice(rng) == 0 && p.size() >= 4) p.resize(p.size() - 2);  // drop the closing node
  if (dice(rng) == 0) {                                         // trace it twice
    Nodes twice = p;
    twice.insert(twice.end(), p.begin() + 2, p.end());
    p = twice;
  }
  return p;
}

Nodes RandomPolygon(std::mt19937& rng, int kind, bool large) {
  std::uniform_int_distribution<unsigned> small(3, 14), big(40, 240);
  const unsigned n = large ? big(rng) : small(rng);
  switch (kind) {
    case 0:
      return RandomPoints(rng, n, large ? 60 : 4);
    case 1:
      return GridWalk(rng, n, large ? 12 : 4);
    case 2:
      return CutRectangle(rng);
    case 3:
      return TouchingLoops(rng);
    case 4:
      return IntegerStar(rng, large ? 4 * n : n, large ? 4000 : 20);
    default:
      return large ? lxtest::SpikyStar(rng, n) : lxtest::SmoothStar(rng, n);
  }
}

TEST(SelfIntersectionCorpus, FastTestAgreesWithTheQuadraticReference) {
  std::mt19937 rng(20261122);
  std::map<SelfIntersection, int> seen;
  int checked = 0;
  for (int round = 0; round < 4000; ++round) {
    const bool large = round % 20 == 0;
    const Nodes p = Mutate(rng, RandomPolygon(rng, round % 6, large));
    const unsigned n = Count(p);
    const SelfIntersection want = lxtest::ReferenceSelfIntersection(p.data(), n);
    ASSERT_EQ(lx::ClassifySelfIntersection(p.data(), n), want)
        << "round " << round << ", " << n << " nodes";
    ASSERT_EQ(lx::ClassifySelfIntersection(p.data(), n, lx::PairSearchMode::SplitOnly), want)
        << "round " << round << ", " << n << " nodes, split only";
    ++seen[want];
    ++checked;
  }
  EXPECT_EQ(checked, 4000);
  EXPECT_GT(seen[SelfIntersection::None], 400);
  EXPECT_GT(seen[SelfIntersection::ForbiddenContact], 400);
  EXPECT_GT(seen[SelfIntersection::CoveredTwice], 100);
}

}  // namespace
