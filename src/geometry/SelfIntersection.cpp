// Self-intersection of a closed polygon in O(n log n) for ordinary outlines.
//
// The decision has two stages. First every pair of non-adjacent edges that meets is classified:
// a true crossing or a same-direction overlap decides at once, allowed contacts (shared vertices,
// cut lines traversed out and back) add the y of their contact point to the event values. Only
// pairs whose closed bounding boxes overlap can meet, so candidate pairs come from a recursive
// split of the edge boxes rather than from all n^2 pairs. Then one horizontal line per gap between
// consecutive event values is checked for a region of winding number 2 or more, with an active
// edge list that carries each line's crossing order on to the next line.
#include "lxcomp/LxGeometry.h"
#include "lxcomp/LxPolygon.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace lx {

namespace {

constexpr double kHalfTurn = 3.141592653589793;

class PolygonView {
 public:
  PolygonView(const double* nodes, unsigned count) : nodes_(nodes), count_(count) {}
  unsigned Count() const { return count_; }
  double X(unsigned node) const { return nodes_[2 * node]; }
  double Y(unsigned node) const { return nodes_[2 * node + 1]; }
  bool SameNode(unsigned a, unsigned b) const { return X(a) == X(b) && Y(a) == Y(b); }
  bool IsAt(unsigned node, double x, double y) const { return X(node) == x && Y(node) == y; }
  // Edge k runs from StartOf(k) to node k; edge 0 is the closing edge from the last node.
  unsigned StartOf(unsigned edge) const { return edge == 0 ? count_ - 1 : edge - 1; }
  // The pairs of edges that share no node.
  bool NonAdjacent(unsigned a, unsigned b) const {
    return b >= a + 2 && !(a == 0 && b == count_ - 1);
  }
  bool HasNaN(unsigned edge) const {
    const unsigned s = StartOf(edge);
    return std::isnan(X(s)) || std::isnan(Y(s)) || std::isnan(X(edge)) || std::isnan(Y(edge));
  }

 private:
  const double* nodes_;
  unsigned count_;
};

enum class Contact { None, Allowed, Forbidden };

bool AllowedByNodes(bool orderOpposite, bool touchA, bool touchB) {
  return orderOpposite || touchA || touchB;
}

// Classifies edges i < j (non-adjacent), each taken from its end node back to its start node.
Contact ClassifyPair(const PolygonView& p, unsigned i, unsigned j, double& contactY) {
  const unsigned ip = p.StartOf(i), jp = j - 1;
  double x, y;
  if (!Intersect(p.X(i), p.Y(i), p.X(ip), p.Y(ip), p.X(j), p.Y(j), p.X(jp), p.Y(jp), x, y))
    return Contact::None;
  contactY = y;
  const double dxo = p.X(ip) - p.X(i), dyo = p.Y(ip) - p.Y(i);
  const double dxi = p.X(jp) - p.X(j), dyi = p.Y(jp) - p.Y(j);
  bool allowed;
  if (dxo == 0 && dxi == 0) {
    allowed = AllowedByNodes(dyo * dyi <= 0, p.Y(i) == p.Y(jp), p.Y(ip) == p.Y(j));
  } else if (dyo == 0 && dyi == 0) {
    allowed = AllowedByNodes(dxo * dxi <= 0, p.X(i) == p.X(jp), p.X(ip) == p.X(j));
  } else {
    const double ao = std::atan2(dyo, dxo), ai = std::atan2(dyi, dxi);
    if (SameAngleRadians(ao, ai))
      allowed = p.SameNode(ip, j) || p.SameNode(i, jp);
    else if (SameAngleRadians(ao + kHalfTurn, ai))
      allowed = true;
    else
      allowed = p.IsAt(i, x, y) || p.IsAt(ip, x, y) || p.IsAt(j, x, y) || p.IsAt(jp, x, y);
  }
  return allowed ? Contact::Allowed : Contact::Forbidden;
}

struct EdgeBox {
  double lo[2];  // xmin, ymin
  double hi[2];  // xmax, ymax
  unsigned edge;
};

bool BoxesOverlap(const EdgeBox& a, const EdgeBox& b) {
  return a.lo[0] <= b.hi[0] && b.lo[0] <= a.hi[0] && a.lo[1] <= b.hi[1] && b.lo[1] <= a.hi[1];
}

// Finds the meeting pairs of edges. Boxes are split recursively at a value of their lower
// bounds; a box goes to the lower half when it starts below the split and to the upper half when
// it ends at or above it. A pair is examined only in the part that holds the larger of its two
// lower corners, so each overlapping pair is examined exactly once.
class PairSearch {
 public:
  PairSearch(const PolygonView& polygon, std::vector<double>& events)
      : polygon_(polygon), events_(events) {}

  // True when some pair crosses or overlaps in the same direction.
  bool FindForbiddenContact() {
    std::vector<EdgeBox> boxes;
    std::vector<unsigned> wild;  // edges with a not-a-number coordinate meet unpredictably
    boxes.reserve(polygon_.Count());
    for (unsigned k = 0; k < polygon_.Count(); ++k) {
      if (polygon_.HasNaN(k)) {
        wild.push_back(k);
        continue;
      }
      const unsigned s = polygon_.StartOf(k);
      boxes.push_back(
          {{std::min(polygon_.X(s), polygon_.X(k)), std::min(polygon_.Y(s), polygon_.Y(k))},
           {std::max(polygon_.X(s), polygon_.X(k)), std::max(polygon_.Y(s), polygon_.Y(k))},
           k});
    }
    if (TestWildEdges(wild)) return true;
    const double unbounded = -INFINITY;
    return Visit(std::move(boxes), {unbounded, unbounded}, 0);
  }

 private:
  static constexpr size_t kLeafSize = 24;
  static constexpr int kMaxDepth = 64;

  struct Bounds {
    double lo[2];  // the part's lower corner; pairs with a larger lower corner belong here
  };

  bool TestPair(unsigned a, unsigned b) {
    if (a > b) std::swap(a, b);
    if (!polygon_.NonAdjacent(a, b)) return false;
    double y = 0;
    const Contact contact = ClassifyPair(polygon_, a, b, y);
    if (contact == Contact::Forbidden) return true;
    if (contact == Contact::Allowed) events_.push_back(y);
    return false;
  }

  bool TestWildEdges(const std::vector<unsigned>& wild) {
    for (unsigned w : wild)
      for (unsigned k = 0; k < polygon_.Count(); ++k)
        if (k != w && !(polygon_.HasNaN(k) && k < w) && TestPair(w, k)) return true;
    return false;
  }

  bool Leaf(const std::vector<EdgeBox>& boxes, const Bounds& bounds) {
    for (size_t a = 0; a < boxes.size(); ++a) {
      for (size_t b = a + 1; b < boxes.size(); ++b) {
        const EdgeBox& p = boxes[a];
        const EdgeBox& q = boxes[b];
        if (!BoxesOverlap(p, q)) continue;
        if (std::max(p.lo[0], q.lo[0]) < bounds.lo[0]) continue;
        if (std::max(p.lo[1], q.lo[1]) < bounds.lo[1]) continue;
        if (TestPair(p.edge, q.edge)) return true;
      }
    }
    return false;
  }

  // A split value that leaves some box starting below it, or false when all start alike.
  bool SplitValue(const std::vector<EdgeBox>& boxes, int axis, double& split) {
    keys_.resize(boxes.size());
    for (size_t i = 0; i < boxes.size(); ++i)
      keys_[i] = boxes[i].lo[axis];
    auto middle = keys_.begin() + keys_.size() / 2;
    std::nth_element(keys_.begin(), middle, keys_.end());
    split = *middle;
    const double lowest = *std::min_element(keys_.begin(), middle + 1);
    if (lowest < split) return true;
    bool found = false;
    for (double k : keys_)
      if (k > lowest && (!found || k < split)) split = k, found = true;
    return found;
  }

  bool Visit(std::vector<EdgeBox> boxes, Bounds bounds, int depth) {
    if (boxes.size() <= kLeafSize || depth >= kMaxDepth) return Leaf(boxes, bounds);
    for (int axis : {depth % 2, 1 - depth % 2}) {
      double split;
      if (!SplitValue(boxes, axis, split)) continue;
      size_t lower = 0, upper = 0;
      for (const EdgeBox& b : boxes) {
        lower += b.lo[axis] < split;
        upper += b.hi[axis] >= split;
      }
      if (lower == boxes.size() || upper == boxes.size()) continue;
      std::vector<EdgeBox> below, above;
      below.reserve(lower);
      above.reserve(upper);
      for (const EdgeBox& b : boxes) {
        if (b.lo[axis] < split) below.push_back(b);
        if (b.hi[axis] >= split) above.push_back(b);
      }
      std::vector<EdgeBox>().swap(boxes);
      if (Visit(std::move(below), bounds, depth + 1)) return true;
      Bounds upperBounds = bounds;
      upperBounds.lo[axis] = split;
      return Visit(std::move(above), upperBounds, depth + 1);
    }
    return Leaf(boxes, bounds);
  }

  const PolygonView& polygon_;
  std::vector<double>& events_;
  std::vector<double> keys_;
};

struct Crossing {
  double x;
  bool upward;
  unsigned edge;
};

// Ascending x, downward before upward at equal x; not-a-number x last, so the order is total.
bool CrossingBefore(const Crossing& a, const Crossing& b) {
  const bool aNaN = std::isnan(a.x), bNaN = std::isnan(b.x);
  if (aNaN != bNaN) return bNaN;
  if (!aNaN && a.x != b.x) return a.x < b.x;
  return !a.upward && b.upward;
}

// Walking the sorted crossings of one line, a gap between two crossings of distinct x with a
// winding number beyond -1..1 means that part of the plane is covered twice.
bool CoveredTwice(const std::vector<Crossing>& crossings) {
  int winding = crossings[0].upward ? 1 : -1;
  for (size_t m = 1; m < crossings.size(); ++m) {
    if ((winding < -1 || winding > 1) && crossings[m].x > crossings[m - 1].x) return true;
    winding += crossings[m].upward ? 1 : -1;
  }
  return false;
}

// Checks one horizontal line per gap between consecutive event values. The crossings of the
// previous line stay in their order, so sorting a line is mostly a pass over sorted data.
class WindingSweep {
 public:
  explicit WindingSweep(const PolygonView& polygon) : polygon_(polygon) {
    const unsigned n = polygon.Count();
    for (unsigned k = 1; k <= n; ++k) {
      const double y0 = polygon.Y(k - 1), y1 = polygon.Y(k % n);
      if (y0 < y1 || y0 > y1) byLowerEnd_.push_back({std::min(y0, y1), k});
    }
    std::sort(byLowerEnd_.begin(), byLowerEnd_.end(),
              [](const Entry& a, const Entry& b) { return a.lower < b.lower; });
  }

  bool CoversTwice(std::vector<double>& events) {
    events.erase(
        std::remove_if(events.begin(), events.end(), [](double v) { return std::isnan(v); }),
        events.end());
    std::sort(events.begin(), events.end());
    events.erase(std::unique(events.begin(), events.end()), events.end());
    for (size_t g = 0; g + 1 < events.size(); ++g)
      if (LineCoveredTwice((events[g] + events[g + 1]) * 0.5)) return true;
    return false;
  }

 private:
  struct Entry {
    double lower;
    unsigned edge;  // k: from node k-1 to node k (node count is node 0)
  };

  // Sets the crossing's x and direction; false when the edge does not pass strictly through.
  bool Cross(Crossing& c, double line) const {
    const unsigned n = polygon_.Count();
    const unsigned from = c.edge - 1, to = c.edge % n;
    const double y0 = polygon_.Y(from), y1 = polygon_.Y(to);
    const bool upward = y0 < line && line < y1;
    if (!upward && !(y0 > line && line > y1)) return false;
    const double x0 = polygon_.X(from), x1 = polygon_.X(to);
    c.x = (x1 - x0) * (line - y0) / (y1 - y0) + x0;
    c.upward = upward;
    return true;
  }

  bool LineCoveredTwice(double line) {
    size_t kept = 0;
    for (Crossing& c : active_)
      if (Cross(c, line)) active_[kept++] = c;
    active_.resize(kept);
    for (; next_ < byLowerEnd_.size() && byLowerEnd_[next_].lower < line; ++next_) {
      Crossing c{0, false, byLowerEnd_[next_].edge};
      if (Cross(c, line)) active_.push_back(c);
    }
    if (active_.size() < 3) return false;  // two crossings always wind -1..1
    InsertionSort();
    return CoveredTwice(active_);
  }

  void InsertionSort() {
    for (size_t i = 1; i < active_.size(); ++i) {
      const Crossing c = active_[i];
      size_t j = i;
      for (; j > 0 && CrossingBefore(c, active_[j - 1]); --j)
        active_[j] = active_[j - 1];
      active_[j] = c;
    }
  }

  const PolygonView& polygon_;
  std::vector<Entry> byLowerEnd_;
  size_t next_ = 0;
  std::vector<Crossing> active_;
};

}  // namespace

bool SelfIntersectingPolygon(const double* nodes, unsigned int count) {
  if (count < 4 || !nodes) return false;
  const PolygonView polygon(nodes, count);
  std::vector<double> events;
  events.reserve(count + 16);
  for (unsigned i = 0; i + 1 < count; ++i)
    events.push_back(polygon.Y(i));
  if (PairSearch(polygon, events).FindForbiddenContact()) return true;
  return WindingSweep(polygon).CoversTwice(events);
}

}  // namespace lx
