#include <gtest/gtest.h>

#include "lxcomp/LxGeometry.h"

#include <array>
#include <cmath>
#include <limits>

namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kIndefinite = -2147483648.0;

TEST(GetMinMax, BothFormsFoldEveryNodeAndReadNodeZeroAlways) {
  const double nodes[] = {3, 4, -1, 9, 5, -2, 0, 0};
  struct Case {
    int count;
    lx::MinMax box;
  };
  const Case cases[] = {{4, {-1, -2, 5, 9}},
                        {2, {-1, 4, 3, 9}},
                        {1, {3, 4, 3, 4}},
                        {0, {3, 4, 3, 4}},
                        {-3, {3, 4, 3, 4}}};
  for (const auto& c : cases) {
    lx::MinMax box{};
    lx::GetMinMax(nodes, c.count, &box);
    double xmin, ymin, xmax, ymax;
    lx::GetMinMax(nodes, c.count, xmin, ymin, xmax, ymax);
    EXPECT_EQ((std::array{box.Xmin, box.Ymin, box.Xmax, box.Ymax}),
              (std::array{c.box.Xmin, c.box.Ymin, c.box.Xmax, c.box.Ymax}))
        << c.count;
    EXPECT_EQ((std::array{xmin, ymin, xmax, ymax}),
              (std::array{box.Xmin, box.Ymin, box.Xmax, box.Ymax}));
  }
}

TEST(EliminateDuplicateNodes, RemovesOnlyConsecutiveRepeats) {
  double nodes[] = {0, 0, 0, 0, 1, 1, 1, 1, 0, 0};
  EXPECT_EQ(lx::EliminateDuplicateNodes(nodes, 5), 3u);
  EXPECT_EQ((std::array{nodes[0], nodes[1], nodes[2], nodes[3], nodes[4], nodes[5]}),
            (std::array<double, 6>{0, 0, 1, 1, 0, 0}));
  double same_x[] = {1, 2, 1, 3, 1, 3};
  EXPECT_EQ(lx::EliminateDuplicateNodes(same_x, 3), 2u);
  double one[] = {7, 7};
  EXPECT_EQ(lx::EliminateDuplicateNodes(one, 1), 1u);
  EXPECT_EQ(lx::EliminateDuplicateNodes(one, 0), 1u);
  EXPECT_EQ(one[0], 7);
}

TEST(RotatePoint, QuarterTurnsAreExactOtherAnglesRoundTheOffset) {
  struct Case {
    double x, y, cx, cy, angle, wantX, wantY;
  };
  const Case cases[] = {{10, 0, 0, 0, 90, 0, 10},         {10, 0, 0, 0, -90, 0, -10},
                        {10, 5, 0, 0, 180, -10, -5},      {10, 5, 0, 0, -180, -10, -5},
                        {0.3, 0.7, 0, 0, 0, 0.3, 0.7},    {0.25, 0.5, 0.5, 0, 90, 0, -0.25},
                        {10, 0, 0, 0, 45, 7, 7},          {3, 0, 0, 0, 60, 2, 3},
                        {0.4, 0.3, 0, 0, 360, 0, 0},      {12.3, 0, 2, 0, 45, 9, 7},
                        {10, 0, 0, 0, 270, 0, -10},       {2.5, 0, 0, 0, 360, 3, 0},
                        {-2.5, 0, 0, 0, 360, -3, 0},      {1.5, 0.5, 1.5, 0.5, 30, 1.5, 0.5},
                        {2.25, 0, 0.25, 0, -270, 0.25, 2}};
  for (const auto& c : cases) {
    double x = c.x, y = c.y;
    lx::RotatePoint(x, y, c.cx, c.cy, c.angle);
    EXPECT_EQ(x, c.wantX) << c.x << "," << c.y << " by " << c.angle;
    EXPECT_EQ(y, c.wantY) << c.x << "," << c.y << " by " << c.angle;
  }
}

TEST(RotatePoint, OffsetsBeyondThirtyTwoBitsBecomeTheIndefiniteInteger) {
  struct Case {
    double x, y, angle;
  };
  const Case cases[] = {{1e12, 0, 45}, {kNaN, 0, 45}, {kInf, 1, 30}, {10, 0, kNaN}};
  for (const auto& c : cases) {
    double x = c.x, y = c.y;
    lx::RotatePoint(x, y, 100, 0, c.angle);
    EXPECT_EQ(x, 100 + kIndefinite) << c.x;
  }
  double x = 3e9, y = 0;
  lx::RotatePoint(x, y, 0, 0, 360);
  EXPECT_EQ(x, kIndefinite);
  EXPECT_EQ(y, 0);
}

TEST(LineClip, KeepsThePartInsideTheClosedRectangle) {
  struct Case {
    double x1, y1, x2, y2;
    bool kept;
    double w1, v1, w2, v2;
  };
  // Rectangle 0..10 x 0..10.
  const Case cases[] = {
      {-5, 2, -1, 8, false, -5, 2, -1, 8},  // wholly left: untouched
      {-5, 5, 15, 5, true, 0, 5, 10, 5},    // crosses the whole rectangle
      {15, 5, -5, 5, true, 10, 5, 0, 5},    // the other way
      {0, -2, 0, 12, true, 0, 0, 0, 10},    // along the left edge
      {-5, 15, 5, 5, true, 0, 10, 5, 5},    // enters at the top-left corner
      {-2, 10.5, 2, 8.5, true, 0, 9.5, 2, 8.5},
      {12, 12, 11, 20, false, 12, 12, 11, 20},
      {10, 10, 10, 10, true, 10, 10, 10, 10},  // a point on the corner
      {11, 10, 11, 10, false, 11, 10, 11, 10},
      {-5, 25, 25, -5, true, 10, 10, 10, 10},  // touches the corner only
  };
  for (const auto& c : cases) {
    double x1 = c.x1, y1 = c.y1, x2 = c.x2, y2 = c.y2;
    EXPECT_EQ(lx::LineClip(x1, y1, x2, y2, 0, 0, 10, 10), c.kept) << c.x1 << "," << c.y1;
    EXPECT_EQ((std::array{x1, y1, x2, y2}), (std::array{c.w1, c.v1, c.w2, c.v2}))
        << c.x1 << "," << c.y1;
  }
}

TEST(Intersect, EndPointsCountAndNothingIsWrittenOnAMiss) {
  struct Case {
    double s[8];
    bool meet;
    double x, y;
  };
  const Case cases[] = {
      {{0, 0, 2, 2, 0, 2, 2, 0}, true, 1, 1},
      {{0, 0, 1, 0, 1, 0, 2, 5}, true, 1, 0},
      {{0, 0, 4, 0, 2, 0, 6, 0}, true, 2, 0},  // collinear: the start of the second
      {{2, 0, 6, 0, 0, 0, 4, 0}, true, 0, 0},  // collinear: always the second's start
      {{0, 0, 0, 4, 0, 6, 0, 2}, true, 0, 6},
      {{0, 0, 4, 0, 4, 0, 8, 0}, true, 4, 0},     // collinear, touching end to end
      {{0, 0, 4, 0, 0, 1, 4, 1}, false, -7, -7},  // parallel, disjoint
      {{0, 0, 4, 0, 5, 0, 8, 0}, false, -7, -7},  // collinear, disjoint
      {{0, 0, 4, 4, 3, 0, 9, 1}, false, -7, -7},  // boxes overlap, lines miss
      {{0, 0, 2, 2, 1, 1, 1, 1}, true, 1, 1},     // a point on the segment
      {{0, 0, 10, 0, 5, 0, 5, 5}, true, 5, 0},    // T junction
  };
  for (const auto& c : cases) {
    double x = -7, y = -7;
    EXPECT_EQ(lx::Intersect(c.s[0], c.s[1], c.s[2], c.s[3], c.s[4], c.s[5], c.s[6], c.s[7], x, y),
              c.meet)
        << c.s[0] << "," << c.s[1] << " " << c.s[4] << "," << c.s[5];
    EXPECT_EQ(x, c.x);
    EXPECT_EQ(y, c.y);
  }
}

TEST(DistanceToLineSegment, MinusOneWhenTheFootLiesOutside) {
  struct Case {
    double x1, y1, x2, y2, px, py, want;
  };
  const Case cases[] = {
      {0, 0, 4, 0, 5, 1, -1}, {0, 0, 4, 0, 2, 3, 3},  {0, 0, 4, 0, 4, -2, 2},
      {0, 0, 0, 4, 3, 2, 3},  {0, 0, 0, 4, 3, 5, -1}, {0, 4, 0, 0, -1, 4, 1},
      {1, 1, 1, 1, 4, 1, 3},  {1, 1, 1, 1, 4, 2, -1}, {0, 0, 4, 4, 0, 4, std::sqrt(8.0)},
      {0, 0, 4, 4, 6, 6, -1},
  };
  for (const auto& c : cases)
    EXPECT_DOUBLE_EQ(lx::DistanceToLineSegment(c.x1, c.y1, c.x2, c.y2, c.px, c.py), c.want)
        << c.px << "," << c.py;
}

TEST(SameAngleRadians, AThousandthOfADegreeAndOneFullTurn) {
  struct Case {
    double a, b;
    bool same;
  };
  const Case cases[] = {
      {0, 2 * M_PI - 0.000001, true},
      {2 * M_PI - 0.000001, 0, true},
      {0, 4 * M_PI, false},
      {1, 1 + 1.7e-5, true},
      {1, 1 + 1.8e-5, false},
      {-M_PI, M_PI, true},
      {0.5, -0.5, false},
      {kNaN, kNaN, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(lx::SameAngleRadians(c.a, c.b), c.same) << c.a << " " << c.b;
}

TEST(ValueInRange, InclusiveInEitherOrder) {
  struct Case {
    double v, a, b;
    bool in;
  };
  const Case cases[] = {{5, 10, 0, true},   {0, 0, 10, true},  {11, 0, 10, false},
                        {-1, 0, 10, false}, {10, 10, 0, true}, {kNaN, 0, 10, false}};
  for (const auto& c : cases)
    EXPECT_EQ(lx::ValueInRange(c.v, c.a, c.b), c.in) << c.v;
}

TEST(CircleLineIntersection, WhereTheRayFromInsideLeavesTheCircle) {
  struct Case {
    double px, py, dx, dy;
    bool hit;
    double x, y;
  };
  // Circle about (100, 200) with radius 10.
  const Case cases[] = {
      {100, 200, 1, 0, true, 110, 200}, {100, 200, -1, 0, true, 90, 200},
      {100, 200, 0, 1, true, 100, 210}, {100, 200, 0, -1, true, 100, 210},  // larger y always
      {104, 200, 3, 0, true, 110, 200}, {200, 200, -1, 0, false, -7, -7},   // start outside
      {110, 200, 1, 0, true, 110, 200},  // on the circle, leaving
  };
  for (const auto& c : cases) {
    double x = -7, y = -7;
    EXPECT_EQ(lx::CircleLineIntersection(c.px, c.py, c.dx, c.dy, 100, 200, 10, x, y), c.hit)
        << c.px << " " << c.dx << "," << c.dy;
    EXPECT_DOUBLE_EQ(x, c.x);
    EXPECT_DOUBLE_EQ(y, c.y);
  }
}

TEST(LineIntersection2, AxisParallelLinesNeedNoDivisionByZero) {
  struct Case {
    double l[8];
    double x, y;
  };
  const Case cases[] = {
      {{1, 2, 0, 1, 5, 6, 0, 3}, 1, 2},   // both vertical: the first point
      {{3, 0, 0, 1, 0, 0, 1, 2}, 3, 6},   // first vertical
      {{0, 0, 1, 2, 3, 0, 0, 1}, 3, 6},   // second vertical
      {{1, 2, 1, 0, 5, 6, 3, 0}, 1, 2},   // both horizontal
      {{0, 4, 1, 0, 0, 0, 1, 2}, 2, 4},   // first horizontal
      {{0, 0, 1, 2, 0, 4, 1, 0}, 2, 4},   // second horizontal
      {{0, 0, 1, 1, 0, 4, 1, -1}, 2, 2},  // general
  };
  for (const auto& c : cases) {
    double x, y;
    lx::LineIntersection2(c.l[0], c.l[1], c.l[2], c.l[3], c.l[4], c.l[5], c.l[6], c.l[7], x, y);
    EXPECT_DOUBLE_EQ(x, c.x);
    EXPECT_DOUBLE_EQ(y, c.y);
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
  struct Case {
    double x, y, length, wantX, wantY;
  };
  // Anchor (1, 1).
  const Case cases[] = {{4, 5, 5, 7, 9}, {4, 5, -5, 1, 1}, {4, 5, -10, -2, -3}, {1, 1, 5, 1, 1}};
  for (const auto& c : cases) {
    double x = c.x, y = c.y;
    lx::ExtendLineSegment(x, y, 1, 1, c.length);
    EXPECT_NEAR(x, c.wantX, 1e-12) << c.length;
    EXPECT_NEAR(y, c.wantY, 1e-12) << c.length;
  }
}

TEST(WildCoordinates, NothingTrapsOnNotANumberOrInfinity) {
  const double wild[] = {kNaN, kInf, -kInf, 1e308, -1e308};
  for (double w : wild) {
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
