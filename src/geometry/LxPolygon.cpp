#include "lxcomp/LxPolygon.h"

#include <cmath>
#include <vector>

namespace lx {

namespace {

// Shoelace sum twice the signed area in nm^2; 0 for a self-intersecting or degenerate polygon.
double TwiceSignedArea(const double* nodes, unsigned int count) {
  if (!nodes || count == 0 || SelfIntersectingPolygon(nodes, count)) return 0;
  size_t n = count;
  if (nodes[0] == nodes[2 * n - 2] && nodes[1] == nodes[2 * n - 1]) --n;
  if (n < 3) return 0;
  double sum = 0;
  for (size_t i = 1; i < n; ++i)
    sum += nodes[2 * i - 2] * nodes[2 * i + 1] - nodes[2 * i - 1] * nodes[2 * i];
  sum += nodes[1] * nodes[2 * n - 2] - nodes[0] * nodes[2 * n - 1];
  return sum;
}

constexpr double kTwiceSquareNanometresPerSquareMicrometre = 2000000.0;

// One clipping stage. `Inside` tells whether a node is kept; `Cross` writes the point where the
// edge from a to b meets the limit line.
template <typename Inside, typename Cross>
unsigned int ClipStage(double* nodes, unsigned int count, Inside inside, Cross cross) {
  if (count == 0 || !nodes) return 0;
  const std::vector<double> input(nodes, nodes + 2 * static_cast<size_t>(count));
  size_t written = 0;
  auto emit = [&](double x, double y) {
    nodes[2 * written] = x;
    nodes[2 * written + 1] = y;
    ++written;
  };
  for (size_t i = 0; i < count; ++i) {
    const size_t next = i + 1 < count ? i + 1 : 0;
    const double* a = &input[2 * i];
    const double* b = &input[2 * next];
    const bool aInside = inside(a), bInside = inside(b);
    if (aInside) emit(a[0], a[1]);
    if (aInside != bInside) {
      double x, y;
      cross(a, b, x, y);
      emit(x, y);
    }
  }
  return static_cast<unsigned int>(written);
}

// The point of the edge a-b whose coordinate `axis` equals `limit`, the other coordinate
// interpolated from a towards b.
void CrossAt(const double* a, const double* b, int axis, double limit, double& x, double& y) {
  const int other = 1 - axis;
  double at[2];
  at[axis] = limit;
  at[other] = a[other] + (b[other] - a[other]) * (limit - a[axis]) / (b[axis] - a[axis]);
  x = at[0];
  y = at[1];
}

template <int Axis, bool KeepAbove>
unsigned int ClipAgainst(double* nodes, unsigned int count, double limit) {
  return ClipStage(
      nodes, count,
      [limit](const double* p) { return KeepAbove ? p[Axis] >= limit : p[Axis] <= limit; },
      [limit](const double* a, const double* b, double& x, double& y) {
        CrossAt(a, b, Axis, limit, x, y);
      });
}

}  // namespace

double signed_polygonarea(const double* nodes, unsigned int count) {
  return TwiceSignedArea(nodes, count) / kTwiceSquareNanometresPerSquareMicrometre;
}

double polygonarea(const double* nodes, unsigned int count) {
  return std::fabs(signed_polygonarea(nodes, count));
}

bool polygon_is_clockwise(const double* nodes, unsigned int count) {
  return signed_polygonarea(nodes, count) < 0;
}

bool PointInPolygon(double x, double y, double* nodes, unsigned int count) {
  if (count == 0 || !nodes) return false;
  bool inside = false;
  for (size_t i = 0, j = count - 1; i < count; j = i++) {
    const double xi = nodes[2 * i], yi = nodes[2 * i + 1];
    const double xj = nodes[2 * j], yj = nodes[2 * j + 1];
    if ((yi > y) != (yj > y) && x < (y - yi) * (xj - xi) / (yj - yi) + xi) inside = !inside;
  }
  return inside;
}

unsigned int PolyClipLeft(double* nodes, unsigned int count, double limit) {
  return ClipAgainst<0, true>(nodes, count, limit);
}

unsigned int PolyClipRight(double* nodes, unsigned int count, double limit) {
  return ClipAgainst<0, false>(nodes, count, limit);
}

unsigned int PolyClipBottom(double* nodes, unsigned int count, double limit) {
  return ClipAgainst<1, true>(nodes, count, limit);
}

unsigned int PolyClipTop(double* nodes, unsigned int count, double limit) {
  return ClipAgainst<1, false>(nodes, count, limit);
}

}  // namespace lx
