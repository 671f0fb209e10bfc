#include "lxcomp/LxGeometry.h"

#include <cmath>
#include <cstdint>

namespace lx {

namespace {

constexpr double kDegreesToRadians = 0.017453292519943295;
constexpr double kAngleTolerance = 1.7453292519943296e-05;  // a thousandth of a degree
constexpr double kFullTurn = 6.283185307179586;

// Truncation toward zero into 32 bits as the processor does it: a value that does not fit (or is
// not a number) becomes the "integer indefinite" -2147483648 instead of undefined behaviour.
std::int32_t TruncateToInt32(double value) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return INT32_MIN;
  return static_cast<std::int32_t>(value);
}

// Halves round away from zero.
std::int32_t RoundToInt32(double value) {
  return TruncateToInt32(value >= 0 ? value + 0.5 : value - 0.5);
}

double Sign(double value) {
  return value < 0 ? -1.0 : 1.0;
}

bool BeyondBoth(double v, double a, double b) {
  return (v > a && v > b) || (v < a && v < b);
}

// One Liang-Barsky boundary; false rejects the segment.
bool ClipBoundary(double p, double q, double& t0, double& t1) {
  if (p == 0) return !(q < 0);
  const double r = q / p;
  if (p < 0) {
    if (r > t1) return false;
    if (r > t0) t0 = r;
  } else if (p > 0) {
    if (r < t0) return false;
    if (r < t1) t1 = r;
  }
  return true;
}

// Rejects when the extent lo..hi misses the extent of a segment given by a, b and b's offset
// `ab` = a - b.
bool ExtentsMiss(double lo, double hi, double a, double b, double ab) {
  return ab > 0 ? (hi < b || a < lo) : (hi < a || b < lo);
}

// Rejects the parameter value `v` when it lies outside 0..f (f of either sign).
bool ParameterOutside(double v, double f) {
  return f > 0 ? (v < 0 || v > f) : (v > 0 || v < f);
}

}  // namespace

void GetMinMax(const double* nodes, int count, double& xmin, double& ymin, double& xmax,
               double& ymax) {
  if (!nodes) return;
  xmin = xmax = nodes[0];
  ymin = ymax = nodes[1];
  for (size_t i = 1; i < static_cast<size_t>(count > 0 ? count : 0); ++i) {
    const double x = nodes[2 * i], y = nodes[2 * i + 1];
    if (x < xmin) xmin = x;
    if (x > xmax) xmax = x;
    if (y < ymin) ymin = y;
    if (y > ymax) ymax = y;
  }
}

void GetMinMax(const double* nodes, int count, MinMax* box) {
  if (!box) return;
  GetMinMax(nodes, count, box->Xmin, box->Ymin, box->Xmax, box->Ymax);
}

unsigned int EliminateDuplicateNodes(double* nodes, unsigned int count) {
  if (count < 2 || !nodes) return 1;
  size_t kept = 1;
  for (size_t i = 1; i < count; ++i) {
    const double x = nodes[2 * i], y = nodes[2 * i + 1];
    if (x == nodes[2 * kept - 2] && y == nodes[2 * kept - 1]) continue;
    nodes[2 * kept] = x;
    nodes[2 * kept + 1] = y;
    ++kept;
  }
  return static_cast<unsigned int>(kept);
}

void RotatePoint(double& x, double& y, double cx, double cy, double angle) {
  const double px = x, py = y;
  if (angle == 0) {
    x = (px - cx) + cx;
    y = (py - cy) + cy;
  } else if (angle == -90) {
    x = cx + (py - cy);
    y = cy + (cx - px);
  } else if (angle == 90) {
    x = cx + (cy - py);
    y = cy + (px - cx);
  } else if (angle == 180 || angle == -180) {
    x = cx + (cx - px);
    y = cy + (cy - py);
  } else {
    const double dx = px - cx, dy = py - cy;
    if (dx == 0 && dy == 0) return;
    const double a = angle * kDegreesToRadians + std::atan2(dy, dx);
    const double r = std::sqrt(dx * dx + dy * dy);
    x = cx + RoundToInt32(r * std::cos(a));
    y = cy + RoundToInt32(r * std::sin(a));
  }
}

bool LineClip(double& x1, double& y1, double& x2, double& y2, double xmin, double ymin, double xmax,
              double ymax) {
  const double dx = x2 - x1, dy = y2 - y1;
  double t0 = 0, t1 = 1;
  if (!ClipBoundary(-dx, x1 - xmin, t0, t1) || !ClipBoundary(dx, xmax - x1, t0, t1) ||
      !ClipBoundary(-dy, y1 - ymin, t0, t1) || !ClipBoundary(dy, ymax - y1, t0, t1))
    return false;
  const double sx = x1, sy = y1;
  x1 = sx + t0 * dx;
  y1 = sy + t0 * dy;
  x2 = sx + t1 * dx;
  y2 = sy + t1 * dy;
  return true;
}

double Distance(double x1, double y1, double x2, double y2) {
  return std::sqrt((x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1));
}

void LineIntersection(double x1, double y1, double slope1, double x2, double y2, double slope2,
                      double& x, double& y) {
  const double c1 = y1 - x1 * slope1, c2 = y2 - x2 * slope2;
  x = (c2 - c1) / (slope1 - slope2);
  y = x * slope1 + c1;
}

double DistanceToLine(double lx, double ly, double slope, double px, double py) {
  if (slope == 0) return std::fabs(py - ly);
  const double mp = -1 / slope;
  const double c = ly - lx * slope, cp = py - mp * px;
  const double fx = (cp - c) / (slope - mp), fy = slope * fx + c;
  return std::sqrt((fx - px) * (fx - px) + (fy - py) * (fy - py));
}

double Dot(double ax, double ay, double bx, double by) {
  return ax * bx + ay * by;
}

double PerpDot(double ax, double ay, double bx, double by) {
  return ax * by - ay * bx;
}

double SignedAngle(double ax, double ay, double bx, double by) {
  return std::atan2(PerpDot(ax, ay, bx, by), Dot(ax, ay, bx, by));
}

bool CircleLineIntersection(double px, double py, double dx, double dy, double cx, double cy,
                            double radius, double& x, double& y) {
  const double qx = px - cx, qy = py - cy;
  if (qx * qx + qy * qy > radius * radius) return false;
  const double d2 = dx * dx + dy * dy;
  const double d = qx * (qy + dy) - (qx + dx) * qy;
  const double disc = radius * radius * d2 - d * d;
  if (disc < 0) return false;
  const double s = std::sqrt(disc);
  const double xPlus = (d * dy + Sign(dy) * dx * s) / d2;
  if (Sign(dx) == Sign(xPlus - qx)) {
    x = xPlus;
    y = (-d * dx + std::fabs(dy) * s) / d2;
  } else {
    x = (d * dy - Sign(dy) * dx * s) / d2;
    y = (-d * dx - std::fabs(dy) * s) / d2;
  }
  x += cx;
  y += cy;
  return true;
}

void LineIntersection2(double x1, double y1, double dx1, double dy1, double x2, double y2,
                       double dx2, double dy2, double& x, double& y) {
  if (dx1 == 0 && dx2 == 0) {
    x = x1;
    y = y1;
  } else if (dx1 == 0) {
    const double m2 = dy2 / dx2, c2 = y2 - x2 * m2;
    x = x1;
    y = m2 * x1 + c2;
  } else if (dx2 == 0) {
    const double m1 = dy1 / dx1, c1 = y1 - x1 * m1;
    x = x2;
    y = m1 * x2 + c1;
  } else if (dy1 == 0 && dy2 == 0) {
    x = x1;
    y = y1;
  } else if (dy1 == 0) {
    const double m2 = dy2 / dx2, c2 = y2 - x2 * m2;
    x = (y1 - c2) / m2;
    y = y1;
  } else if (dy2 == 0) {
    const double m1 = dy1 / dx1, c1 = y1 - x1 * m1;
    x = (y2 - c1) / m1;
    y = y2;
  } else {
    const double m1 = dy1 / dx1, m2 = dy2 / dx2;
    const double c1 = y1 - x1 * m1, c2 = y2 - x2 * m2;
    x = (c2 - c1) / (m1 - m2);
    y = m1 * (c2 - c1) / (m1 - m2) + c1;
  }
}

bool Intersect(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
               double y4, double& x, double& y) {
  const double ax = x2 - x1, bx = x3 - x4;
  if (ExtentsMiss(ax < 0 ? x2 : x1, ax < 0 ? x1 : x2, x3, x4, bx)) return false;
  const double ay = y2 - y1, by = y3 - y4;
  if (ExtentsMiss(ay < 0 ? y2 : y1, ay < 0 ? y1 : y2, y3, y4, by)) return false;
  const double cx = x1 - x3, cy = y1 - y3;
  const double d = by * cx - bx * cy;
  const double f = ay * bx - ax * by;
  if (ParameterOutside(d, f)) return false;
  const double e = ax * cy - ay * cx;
  if (ParameterOutside(e, f)) return false;
  const double denominator = by * ax - bx * ay;
  if (denominator != 0) {
    const double t = (cy * bx - cx * by) / denominator;
    x = x1 + ax * t;
    y = y1 + ay * t;
  } else if (cy * ax == cx * ay) {
    x = x3;
    y = y3;
  } else {
    x = x4;
    y = y4;
  }
  return true;
}

bool SameAngleRadians(double a, double b) {
  if (std::fabs(a - b) < kAngleTolerance) return true;
  if (b > a) return std::fabs(a + kFullTurn - b) < kAngleTolerance;
  return std::fabs(a - kFullTurn - b) < kAngleTolerance;
}

bool ValueInRange(double value, double a, double b) {
  if (value > a && value > b) return false;
  return value >= a || value >= b;
}

double DistanceToLineSegment(double x1, double y1, double x2, double y2, double px, double py) {
  if (x2 - x1 == 0) return BeyondBoth(py, y1, y2) ? -1 : std::fabs(px - x1);
  if (y2 - y1 == 0) return BeyondBoth(px, x1, x2) ? -1 : std::fabs(py - y1);
  const double m = (y2 - y1) / (x2 - x1), mp = -1 / m, c = y1 - m * x1;
  const double fx = (py - mp * px - c) / (m - mp), fy = m * fx + c;
  if (BeyondBoth(fx, x1, x2) || BeyondBoth(fy, y1, y2)) return -1;
  return std::sqrt((fx - px) * (fx - px) + (fy - py) * (fy - py));
}

void ExtendLineSegment(double& x, double& y, double x0, double y0, double length) {
  if (x == x0 && y == y0) return;
  const double a = std::atan2(y - y0, x - x0);
  x += length * std::cos(a);
  y += length * std::sin(a);
}

}  // namespace lx
