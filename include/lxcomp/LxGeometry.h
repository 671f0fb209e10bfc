// Plane geometry on double coordinates (lengths in nanometres): bounding boxes, duplicate nodes,
// rotation, segment clipping, distances, line and segment intersections, circle-ray intersection
// and angle comparison. The functions hold no state, allocate nothing and never fail: degenerate
// input gives fixed results, some of them infinite or not-a-number by the nature of the formula.
// Node arrays hold interleaved x, y pairs; every count is a number of nodes.
#pragma once

namespace lx {

// Axis-parallel bounding box.
struct MinMax {
  double Xmin;
  double Ymin;
  double Xmax;
  double Ymax;
};

// Bounding box of the nodes. Node 0 is always read (pass at least one node); a null array leaves
// the outputs untouched.
void GetMinMax(const double* nodes, int count, double& xmin, double& ymin, double& xmax,
               double& ymax);
void GetMinMax(const double* nodes, int count, MinMax* box);

// Removes consecutive exact duplicates in place and returns the new count (1 for counts below 2).
// A closing node that repeats node 0 is kept.
unsigned int EliminateDuplicateNodes(double* nodes, unsigned int count);

// Rotates (x, y) counter-clockwise about (cx, cy) by `angle` degrees. Quarter and half turns are
// exact; every other angle rounds the offset from the centre to whole nanometres (halves away from
// zero). An offset beyond the 32-bit range, or not a number, becomes -2147483648.
void RotatePoint(double& x, double& y, double cx, double cy, double angle);

// Clips the segment to the closed rectangle (Liang-Barsky). Returns false and leaves the segment
// untouched when no part of it lies inside.
bool LineClip(double& x1, double& y1, double& x2, double& y2, double xmin, double ymin, double xmax,
              double ymax);

double Distance(double x1, double y1, double x2, double y2);

// Intersection of two lines given by a point and a slope; equal slopes give non-finite results.
void LineIntersection(double x1, double y1, double slope1, double x2, double y2, double slope2,
                      double& x, double& y);

// Distance from (px, py) to the line through (lx, ly) with the given slope.
double DistanceToLine(double lx, double ly, double slope, double px, double py);

double Dot(double ax, double ay, double bx, double by);
double PerpDot(double ax, double ay, double bx, double by);
// Radians that turn vector a onto vector b, in [-pi, pi], counter-clockwise positive.
double SignedAngle(double ax, double ay, double bx, double by);

// Where the ray from (px, py) in direction (dx, dy) leaves the circle about (cx, cy). False when
// the start point lies outside the circle or the line misses it; then x, y are not written.
bool CircleLineIntersection(double px, double py, double dx, double dy, double cx, double cy,
                            double radius, double& x, double& y);

// Intersection of two lines given by a point and a direction; axis-parallel lines need no
// division by zero.
void LineIntersection2(double x1, double y1, double dx1, double dy1, double x2, double y2,
                       double dx2, double dy2, double& x, double& y);

// Whether the closed segments P1P2 and P3P4 meet; end points count. On success (x, y) is a common
// point (an end point when they only touch); on failure nothing is written.
bool Intersect(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
               double y4, double& x, double& y);

// Angles in radians equal within a thousandth of a degree, allowing one full turn between them.
bool SameAngleRadians(double a, double b);

// value lies between a and b inclusive, in either order.
bool ValueInRange(double value, double a, double b);

// Perpendicular distance from (px, py) to the segment, or -1 when the foot of the perpendicular
// lies outside it.
double DistanceToLineSegment(double x1, double y1, double x2, double y2, double px, double py);

// Moves (x, y) by `length` along the ray from the anchor (x0, y0) through it (a negative length
// moves it back, possibly past the anchor). A point on the anchor stays where it is.
void ExtendLineSegment(double& x, double& y, double x0, double y0, double length);

}  // namespace lx
