// Polygon analysis on node arrays (interleaved x, y in nanometres; counts are numbers of nodes):
// self-intersection, area and orientation, point containment, and one-line clipping.
#pragma once

namespace lx {

// Whether the closed polygon crosses or overlaps itself, or covers some region twice. The list
// is expected to end with a repeat of its first node (4 nodes make the smallest triangle).
// Touching vertices and cut lines traversed out and back are allowed.
bool SelfIntersectingPolygon(const double* nodes, unsigned int count);

// Signed area in square micrometres, positive for counter-clockwise (y up). A repeated first node
// at the end is ignored. 0 for a self-intersecting polygon or fewer than 3 nodes.
double signed_polygonarea(const double* nodes, unsigned int count);
double polygonarea(const double* nodes, unsigned int count);
bool polygon_is_clockwise(const double* nodes, unsigned int count);

// Even-odd test with a half-open rule: points on left or bottom edges count as inside, points
// on right or top edges as outside. A count of 0 is outside.
bool PointInPolygon(double x, double y, double* nodes, unsigned int count);

// One Sutherland-Hodgman stage against an axis-parallel line, in place; returns the new count.
// The polygon is closed implicitly. The array must have room for twice the input count. Points on
// the line count as inside. Left keeps x >= limit, Right x <= limit, Bottom y >= limit, Top
// y <= limit.
unsigned int PolyClipLeft(double* nodes, unsigned int count, double limit);
unsigned int PolyClipRight(double* nodes, unsigned int count, double limit);
unsigned int PolyClipBottom(double* nodes, unsigned int count, double limit);
unsigned int PolyClipTop(double* nodes, unsigned int count, double limit);

}  // namespace lx
