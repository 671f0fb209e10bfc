#include <gtest/gtest.h>

#include "lxcomp/LxGeometry.h"

#include <array>
#include <cmath>
#include <limits>
#include <tuple>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kIndefinite = -2147483648.0;
using Four = std::array<double, 4>;

TEST(GetMinMax, BothFormsFoldEveryNodeAndReadNodeZeroAlways) {
  const double nodes[] = {3, 4, -1, 9, 5, -2, 0, 0};
  const double cases[][5] = {// count, box
                             {4, -1, -2, 5, 9},
                             {2, -1, 4, 3, 9},
                             {1, 3, 4, 3, 4},
                             {0, 3, 4, 3, 4},
                             {-3, 3, 4, 3, 4}};
  for (const auto& c : cases) {
    const Four want = {c[1], c[2], c[3], c[4]};
    lx::MinMax box{};
    lx::GetMinMax(nodes, int(c[0]), &box);
    Four loose;
    lx::GetMinMax(nodes, int(c[0]), loose[0], loose[1], loose[2], loose[3]);
    EXPECT_EQ((Four{box.Xmin, box.Ymin, box.Xmax, box.Ymax}), want) << c[0];
    EXPECT_EQ(loose, want) << c[0];
  }
}

TEST(EliminateDuplicateNodes, RemovesOnlyConsecutiveRepeats) {
  double nodes[] = {0, 0, 0, 0, 1, 1, 1, 1, 0, 0}, same_x[] = {1, 2, 1, 3, 1, 3}, one[] = {7, 7};
  EXPECT_EQ(lx::EliminateDuplicateNodes(nodes, 5), 3u);
  EXPECT_EQ((std::array{nodes[0], nodes[1], nodes[2], nodes[3], nodes[4], nodes[5]}),
            (std::array<double, 6>{0, 0, 1, 1, 0, 0}));
  EXPECT_EQ(lx::EliminateDuplicateNodes(same_x, 3), 2u);
  EXPECT_EQ(lx::EliminateDuplicateNodes(one, 1), 1u);
  EXPECT_EQ(lx::EliminateDuplicateNodes(one, 0), 1u);
  EXPECT_EQ(one[0], 7);
}

TEST(RotatePoint, QuarterTurnsAreExactOtherAnglesRoundTheOffset) {
  // x, y, centre x, centre y, degrees, expected x, y; beyond 32 bits the offset is indefinite.
  const double cases[][7] = {
      {10, 0, 0, 0, 90, 0, 10},          {10, 0, 0, 0, -90, 0, -10},
      {10, 5, 0, 0, 180, -10, -5},       {10, 5, 0, 0, -180, -10, -5},
      {0.3, 0.7, 0, 0, 0, 0.3, 0.7},     {0.25, 0.5, 0.5, 0, 90, 0, -0.25},
      {10, 0, 0, 0, 45, 7, 7},           {3, 0, 0, 0, 60, 2, 3},
      {0.4, 0.3, 0, 0, 360, 0, 0},       {12.3, 0, 2, 0, 45, 9, 7},
      {10, 0, 0, 0, 270, 0, -10},        {2.5, 0, 0, 0, 360, 3, 0},
      {-2.5, 0, 0, 0, 360, -3, 0},       {1.5, 0.5, 1.5, 0.5, 30, 1.5, 0.5},
      {2.25, 0, 0.25, 0, -270, 0.25, 2}, {3e9, 0, 0, 0, 360, kIndefinite, 0}};
  for (const auto& c : cases) {
    double x = c[0], y = c[1];
    lx::RotatePoint(x, y, c[2], c[3], c[4]);
    EXPECT_EQ((std::array{x, y}), (std::array{c[5], c[6]}))
        << c[0] << "," << c[1] << " by " << c[4];
  }
  for (const Four& c : {Four{1e12, 0, 45}, {kNaN, 0, 45}, {kInf, 1, 30}, {10, 0, kNaN}}) {
    double x = c[0], y = c[1];
    lx::RotatePoint(x, y, 100, 0, c[2]);
    EXPECT_EQ(x, 100 + kIndefinite) << c[0];
  }
}

TEST(LineClip, KeepsThePartInsideTheClosedRectangle) {
  // Segment, kept, segment after clipping to 0..10 x 0..10: wholly left (untouched), across
  // both ways, along the left edge, in at the top-left corner, a point on the corner, a segment
  // touching the corner only.
  const double cases[][9] = {
      {-5, 2, -1, 8, 0, -5, 2, -1, 8},     {-5, 5, 15, 5, 1, 0, 5, 10, 5},
      {15, 5, -5, 5, 1, 10, 5, 0, 5},      {0, -2, 0, 12, 1, 0, 0, 0, 10},
      {-5, 15, 5, 5, 1, 0, 10, 5, 5},      {-2, 10.5, 2, 8.5, 1, 0, 9.5, 2, 8.5},
      {12, 12, 11, 20, 0, 12, 12, 11, 20}, {10, 10, 10, 10, 1, 10, 10, 10, 10},
      {11, 10, 11, 10, 0, 11, 10, 11, 10}, {-5, 25, 25, -5, 1, 10, 10, 10, 10}};
  for (const auto& c : cases) {
    Four l = {c[0], c[1], c[2], c[3]};
    EXPECT_EQ(lx::LineClip(l[0], l[1], l[2], l[3], 0, 0, 10, 10), c[4] != 0) << c[0] << "," << c[1];
    EXPECT_EQ(l, (Four{c[5], c[6], c[7], c[8]})) << c[0] << "," << c[1];
  }
}

TEST(Intersect, EndPointsCountAndNothingIsWrittenOnAMiss) {
  // Two segments, meet, the point. Collinear overlaps give the start of the second segment;
  // parallel, disjoint collinear, and segments whose boxes overlap but lines miss write nothing;
  // a point on a segment and a T junction meet.
  const double cases[][11] = {
      {0, 0, 2, 2, 0, 2, 2, 0, 1, 1, 1},   {0, 0, 1, 0, 1, 0, 2, 5, 1, 1, 0},
      {0, 0, 4, 0, 2, 0, 6, 0, 1, 2, 0},   {2, 0, 6, 0, 0, 0, 4, 0, 1, 0, 0},
      {0, 0, 0, 4, 0, 6, 0, 2, 1, 0, 6},   {0, 0, 4, 0, 4, 0, 8, 0, 1, 4, 0},
      {0, 0, 4, 0, 0, 1, 4, 1, 0, -7, -7}, {0, 0, 4, 0, 5, 0, 8, 0, 0, -7, -7},
      {0, 0, 4, 4, 3, 0, 9, 1, 0, -7, -7}, {0, 0, 2, 2, 1, 1, 1, 1, 1, 1, 1},
      {0, 0, 10, 0, 5, 0, 5, 5, 1, 5, 0}};
  for (const auto& c : cases) {
    double x = -7, y = -7;
    EXPECT_EQ(lx::Intersect(c[0], c[1], c[2], c[3], c[4], c[5], c[6], c[7], x, y), c[8] != 0)
        << c[0] << "," << c[1] << " " << c[4] << "," << c[5];
    EXPECT_EQ((std::array{x, y}), (std::array{c[9], c[10]})) << c[0] << "," << c[1];
  }
}

TEST(DistanceToLineSegment, MinusOneWhenTheFootLiesOutside) {
  // Segment, point, distance.
  const double cases[][7] = {
      {0, 0, 4, 0, 5, 1, -1}, {0, 0, 4, 0, 2, 3, 3},  {0, 0, 4, 0, 4, -2, 2},
      {0, 0, 0, 4, 3, 2, 3},  {0, 0, 0, 4, 3, 5, -1}, {0, 4, 0, 0, -1, 4, 1},
      {1, 1, 1, 1, 4, 1, 3},  {1, 1, 1, 1, 4, 2, -1}, {0, 0, 4, 4, 0, 4, std::sqrt(8.0)},
      {0, 0, 4, 4, 6, 6, -1}};
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(lx::DistanceToLineSegment(c[0], c[1], c[2], c[3], c[4], c[5]), c[6])
        << c[4] << "," << c[5];
}

TEST(Comparisons, SameAngleWithinAThousandthOfADegreeAndValueInRangeInclusive) {
  const double turn = 2 * M_PI,
               angles[][3] = {{0, turn - 1e-6, 1}, {turn - 1e-6, 0, 1}, {0, 2 * turn, 0},
                              {1, 1 + 1.7e-5, 1},  {1, 1 + 1.8e-5, 0},  {-M_PI, M_PI, 1},
                              {0.5, -0.5, 0},      {kNaN, kNaN, 0}};
  for (const auto& a : angles)
    EXPECT_EQ(lx::SameAngleRadians(a[0], a[1]), a[2] != 0) << a[0] << " " << a[1];
  const double ranges[][4] = {{5, 10, 0, 1},  {0, 0, 10, 1},  {11, 0, 10, 0},
                              {-1, 0, 10, 0}, {10, 10, 0, 1}, {kNaN, 0, 10, 0}};
  for (const auto& r : ranges)
    EXPECT_EQ(lx::ValueInRange(r[0], r[1], r[2]), r[3] != 0) << r[0];
}

TEST(CircleLineIntersection, WhereTheRayFromInsideLeavesTheCircle) {
  // Circle about (100, 200) with radius 10; start, direction, hit, exit point.
  const double cases[][7] = {
      {100, 200, 1, 0, true, 110, 200}, {100, 200, -1, 0, true, 90, 200},
      {100, 200, 0, 1, true, 100, 210}, {100, 200, 0, -1, true, 100, 210},  // larger y always
      {104, 200, 3, 0, true, 110, 200}, {200, 200, -1, 0, false, -7, -7},   // start outside
      {110, 200, 1, 0, true, 110, 200}};  // on the circle, leaving
  for (const auto& c : cases) {
    double x = -7, y = -7;
    EXPECT_EQ(lx::CircleLineIntersection(c[0], c[1], c[2], c[3], 100, 200, 10, x, y), c[4] != 0)
        << c[0] << " " << c[2] << "," << c[3];
    EXPECT_DOUBLE_EQ(x, c[5]);
    EXPECT_DOUBLE_EQ(y, c[6]);
  }
}

TEST(LineIntersection2, AxisParallelLinesNeedNoDivisionByZero) {
  // Point and direction of each line, expected x, y.
  const double cases[][10] = {
      {1, 2, 0, 1, 5, 6, 0, 3, 1, 2},  // both vertical: the first point
      {3, 0, 0, 1, 0, 0, 1, 2, 3, 6}, {0, 0, 1, 2, 3, 0, 0, 1, 3, 6},  // one vertical
      {1, 2, 1, 0, 5, 6, 3, 0, 1, 2},                                  // both horizontal
      {0, 4, 1, 0, 0, 0, 1, 2, 2, 4}, {0, 0, 1, 2, 0, 4, 1, 0, 2, 4},  // one horizontal
      {0, 0, 1, 1, 0, 4, 1, -1, 2, 2}};
  for (const auto& l : cases) {
    double x, y;
    lx::LineIntersection2(l[0], l[1], l[2], l[3], l[4], l[5], l[6], l[7], x, y);
    EXPECT_DOUBLE_EQ(x, l[8]);
    EXPECT_DOUBLE_EQ(y, l[9]);
  }
}

TEST(LinesBySlope, IntersectionDistanceAndAngle) {
  double x, y;
  lx::LineIntersection(0, 0, 1, 0, 4, -1, x, y);
  EXPECT_DOUBLE_EQ(x, 2);
  EXPECT_DOUBLE_EQ(y, 2);
  lx::LineIntersection(0, 0, 1, 0, 4, 1, x, y);  // parallel: not finite, no trap
  EXPECT_FALSE(std::isfinite(x));
  EXPECT_DOUBLE_EQ(lx::DistanceToLine(0, 3, 0, 7, -2), 5);
  EXPECT_DOUBLE_EQ(lx::DistanceToLine(0, 0, 1, 0, 2), std::sqrt(2.0));
  EXPECT_DOUBLE_EQ(lx::Distance(1, 1, 4, 5), 5);
  EXPECT_DOUBLE_EQ(lx::SignedAngle(0, 1, 1, 0), -M_PI / 2);
  EXPECT_DOUBLE_EQ(lx::SignedAngle(1, 0, -1, 0), M_PI);
}

TEST(ExtendLineSegment, MovesAlongTheRayFromTheAnchor) {
  // From (x, y) by a length along the ray from the anchor (1, 1) to the expected x, y.
  const double cases[][5] = {
      {4, 5, 5, 7, 9}, {4, 5, -5, 1, 1}, {4, 5, -10, -2, -3}, {1, 1, 5, 1, 1}};
  for (const auto& c : cases) {
    double x = c[0], y = c[1];
    lx::ExtendLineSegment(x, y, 1, 1, c[2]);
    EXPECT_NEAR(x, c[3], 1e-12) << c[2];
    EXPECT_NEAR(y, c[4], 1e-12) << c[2];
  }
}

TEST(WildCoordinates, NothingTrapsOnNotANumberOrInfinity) {
  for (double w : {kNaN, kInf, -kInf, 1e308, -1e308}) {
    double x = w, y = 0, x2 = 5, y2 = w, rx, ry;
    lx::LineClip(x, y, x2, y2, 0, 0, 10, 10);
    lx::Intersect(w, 0, 1, 1, 0, w, 1, 0, rx, ry);
    lx::CircleLineIntersection(0, 0, w, 1, 0, 0, 10, rx, ry);
    lx::DistanceToLineSegment(0, 0, w, 1, 2, 2);
    lx::LineIntersection2(0, 0, w, 1, 1, 1, 1, w, rx, ry);
    x = 1, y = 1;
    lx::ExtendLineSegment(x, y, 0, 0, w);
    x = w, y = 3;
    lx::RotatePoint(x, y, 0, 0, 33);
    EXPECT_EQ(x, kIndefinite) << w;
  }
}

}  // namespace
