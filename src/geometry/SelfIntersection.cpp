// Self-intersection of a closed polygon in O(n log n) for ordinary outlines, with exactly the
// verdict of the plain rule that compares every pair of edges and every edge with every line.
//
// The decision has two stages. First every pair of non-adjacent edges that meets is classified:
// a true crossing or a same-direction overlap decides at once, allowed contacts (shared vertices,
// cut lines traversed out and back) add the y of their contact point to the event values. Only
// pairs whose closed bounding boxes overlap can meet, so candidate pairs come from a sweep over
// the edges' y extents (or a recursive split of the edge boxes) rather than from all n^2 pairs.
// Then one horizontal line per gap between consecutive event values is checked for a region of
// winding number 2 or more, with an active-edge list that carries each line's crossing order on
// to the next line. Both stages walk the edges in the order of their lower end, found by one
// sort of the nodes by y.
#include "geometry/SelfIntersection.h"

#include "lxcomp/LxGeometry.h"
#include "lxcomp/LxPolygon.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <utility>
#include <vector>

namespace lx {

namespace {

constexpr double kHalfTurn = 3.141592653589793;

class PolygonView {
 public:
  PolygonView(const double* nodes, unsigned count)
      : nodes_(nodes), count_(count), anyNaN_(AnyNaN()) {}
  unsigned Count() const { return count_; }
  double X(unsigned node) const { return nodes_[2 * size_t{node}]; }
  double Y(unsigned node) const { return nodes_[2 * size_t{node} + 1]; }
  bool SameNode(unsigned a, unsigned b) const { return X(a) == X(b) && Y(a) == Y(b); }
  bool IsAt(unsigned node, double x, double y) const { return X(node) == x && Y(node) == y; }
  // Edge k runs from StartOf(k) to node k; edge 0 is the closing edge from the last node.
  unsigned StartOf(unsigned edge) const { return edge == 0 ? count_ - 1 : edge - 1; }
  // The pairs of edges that share no node.
  bool NonAdjacent(unsigned a, unsigned b) const {
    return b >= a + 2 && !(a == 0 && b == count_ - 1);
  }
  bool AnyNaN() const {
    for (size_t i = 0; i < 2 * size_t{count_}; ++i)
      if (std::isnan(nodes_[i])) return true;
    return false;
  }
  bool HasNaN(unsigned edge) const {
    if (!anyNaN_) return false;
    const unsigned s = StartOf(edge);
    return std::isnan(X(s)) || std::isnan(Y(s)) || std::isnan(X(edge)) || std::isnan(Y(edge));
  }

 private:
  const double* nodes_;
  unsigned count_;
  bool anyNaN_;
};

struct Keyed {
  double y;
  std::uint32_t index;
};

bool Lower(const Keyed& a, const Keyed& b) {
  return a.y < b.y;
}

// Sorts by y (no not-a-number): a distribution into one bucket per item by linear position
// between the least and the greatest y, which is monotone in y, then a sort of each bucket.
// Linear time for spread-out values, n log n at worst.
void SortByY(std::vector<Keyed>& items) {
  if (items.size() < 64) return std::sort(items.begin(), items.end(), Lower);
  const auto [least, greatest] = std::minmax_element(items.begin(), items.end(), Lower);
  const double low = least->y;
  const double scale = static_cast<double>(items.size()) / (greatest->y - low);
  if (!std::isfinite(scale) || !(scale > 0)) {  // infinite span or all equal
    if (greatest->y != low) std::sort(items.begin(), items.end(), Lower);
    return;
  }
  const size_t last = items.size() - 1;
  auto bucketOf = [&](double y) { return std::min(last, static_cast<size_t>((y - low) * scale)); };
  std::vector<std::uint32_t> start(items.size() + 1, 0);
  for (const Keyed& item : items)
    ++start[bucketOf(item.y) + 1];
  for (size_t b = 1; b <= items.size(); ++b)
    start[b] += start[b - 1];
  std::vector<Keyed> sorted(items.size());
  std::vector<std::uint32_t> fill(start.begin(), start.end() - 1);
  for (const Keyed& item : items)
    sorted[fill[bucketOf(item.y)]++] = item;
  for (size_t b = 0; b < items.size(); ++b)
    if (start[b + 1] - start[b] > 1)
      std::sort(sorted.begin() + start[b], sorted.begin() + start[b + 1], Lower);
  items.swap(sorted);
}

// Nodes in ascending y (not-a-number y left out), and edges in ascending y of their lower end.
struct YOrder {
  std::vector<std::uint32_t> nodes;
  std::vector<std::uint32_t> edges;  // edges with no not-a-number y
};

YOrder OrderByY(const PolygonView& p) {
  const unsigned n = p.Count();
  std::vector<Keyed> keyed;
  keyed.reserve(n);
  for (unsigned v = 0; v < n; ++v)
    if (!std::isnan(p.Y(v))) keyed.push_back({p.Y(v), v});
  SortByY(keyed);
  YOrder order;
  order.nodes.reserve(keyed.size());
  order.edges.reserve(keyed.size());
  auto lowerEnd = [&](unsigned edge) {
    const unsigned s = p.StartOf(edge);
    return p.Y(s) <= p.Y(edge) ? s : edge;
  };
  for (const Keyed& k : keyed) {
    const unsigned v = k.index;
    order.nodes.push_back(v);
    for (unsigned edge : {v, v + 1 == n ? 0 : v + 1}) {
      const double y0 = p.Y(p.StartOf(edge)), y1 = p.Y(edge);
      if (!std::isnan(y0) && !std::isnan(y1) && lowerEnd(edge) == v) order.edges.push_back(edge);
    }
  }
  return order;
}

enum class Contact { None, Allowed, Forbidden };

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
    allowed = dyo * dyi <= 0 || p.Y(i) == p.Y(jp) || p.Y(ip) == p.Y(j);
  } else if (dyo == 0 && dyi == 0) {
    allowed = dxo * dxi <= 0 || p.X(i) == p.X(jp) || p.X(ip) == p.X(j);
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

EdgeBox BoxOf(const PolygonView& p, unsigned edge) {
  const unsigned s = p.StartOf(edge);
  return {{std::min(p.X(s), p.X(edge)), std::min(p.Y(s), p.Y(edge))},
          {std::max(p.X(s), p.X(edge)), std::max(p.Y(s), p.Y(edge))},
          edge};
}

// Finds the meeting pairs of edges. First a sweep upward over the edges' y extents with a list
// of the edges still open; ordinary outlines keep that list short. When it grows long (many
// edges spanning the same heights) the search starts over with a recursive split: boxes are
// divided at a value of their lower bounds, a box going to the lower half when it starts below
// the split and to the upper half when it ends at or above it, and a pair is examined only in
// the part that holds the larger of its two lower corners, so exactly once.
class PairSearch {
 public:
  PairSearch(const PolygonView& polygon, std::vector<double>& contacts)
      : polygon_(polygon), events_(contacts) {}

  // True when some pair crosses or overlaps in the same direction.
  bool FindForbiddenContact(const std::vector<std::uint32_t>& edgesByLowerY, PairSearchMode mode) {
    std::vector<unsigned> wild;  // edges with a not-a-number coordinate meet unpredictably
    for (unsigned k = 0; k < polygon_.Count(); ++k)
      if (polygon_.HasNaN(k)) wild.push_back(k);
    if (TestWildEdges(wild)) return true;
    const size_t known = events_.size();
    bool forbidden = false;
    if (mode == PairSearchMode::Automatic && SweepUpward(edgesByLowerY, forbidden))
      return forbidden;
    events_.resize(known);
    std::vector<EdgeBox> boxes;
    boxes.reserve(polygon_.Count());
    for (unsigned k = 0; k < polygon_.Count(); ++k)
      if (!polygon_.HasNaN(k)) boxes.push_back(BoxOf(polygon_, k));
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

  // False when the open list grew too long to finish this way.
  bool SweepUpward(const std::vector<std::uint32_t>& edgesByLowerY, bool& forbidden) {
    const size_t budget = 16 * size_t{polygon_.Count()} + 4096;
    size_t work = 0;
    std::vector<EdgeBox> open;
    for (unsigned edge : edgesByLowerY) {
      if (polygon_.HasNaN(edge)) continue;
      const EdgeBox box = BoxOf(polygon_, edge);
      size_t kept = 0;
      for (const EdgeBox& o : open) {
        if (o.hi[1] < box.lo[1]) continue;  // ended below this edge: closed for good
        open[kept++] = o;
        if (o.lo[0] <= box.hi[0] && box.lo[0] <= o.hi[0] && TestPair(o.edge, edge)) {
          forbidden = true;
          return true;
        }
      }
      open.resize(kept);
      open.push_back(box);
      work += kept;
      if (work > budget) return false;
    }
    forbidden = false;
    return true;
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
  double upperY;  // the edge leaves the sweep once a line reaches this
  unsigned edge;
  bool upward;
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
  WindingSweep(const PolygonView& polygon, const std::vector<std::uint32_t>& edgesByLowerY)
      : polygon_(polygon), edgesByLowerY_(edgesByLowerY) {}

  // `events` ascending and distinct.
  bool CoversTwice(const std::vector<double>& events) {
    for (size_t g = 0; g + 1 < events.size(); ++g)
      if (LineCoveredTwice((events[g] + events[g + 1]) * 0.5)) return true;
    return false;
  }

 private:
  void SetX(Crossing& c, double line) const {
    const unsigned from = polygon_.StartOf(c.edge), to = c.edge;
    const double x0 = polygon_.X(from), x1 = polygon_.X(to), y0 = polygon_.Y(from);
    c.x = (x1 - x0) * (line - y0) / (polygon_.Y(to) - y0) + x0;
  }

  bool LineCoveredTwice(double line) {
    // Lines only rise and every listed edge starts below the line, so an edge passes strictly
    // through the line exactly while the line stays below its upper end.
    size_t kept = 0;
    for (const Crossing& c : active_)
      if (line < c.upperY) active_[kept++] = c;
    active_.resize(kept);
    for (; next_ < edgesByLowerY_.size(); ++next_) {
      const unsigned edge = edgesByLowerY_[next_];
      const double y0 = polygon_.Y(polygon_.StartOf(edge)), y1 = polygon_.Y(edge);
      if (!(std::min(y0, y1) < line)) break;
      if (line < std::max(y0, y1)) active_.push_back({0, std::max(y0, y1), edge, y0 < y1});
    }
    if (active_.size() < 3) return false;  // two crossings always wind -1..1
    for (Crossing& c : active_)
      SetX(c, line);
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
  const std::vector<std::uint32_t>& edgesByLowerY_;
  size_t next_ = 0;
  std::vector<Crossing> active_;
};

// Event values: the y of every node but the last (which repeats the first), and the y of every
// allowed contact, ascending and distinct.
std::vector<double> EventValues(const PolygonView& p, const std::vector<std::uint32_t>& nodesByY,
                                std::vector<double>& contacts) {
  std::vector<double> events;
  events.reserve(nodesByY.size() + contacts.size());
  for (unsigned v : nodesByY)
    if (v + 1 < p.Count() && (events.empty() || events.back() != p.Y(v))) events.push_back(p.Y(v));
  contacts.erase(
      std::remove_if(contacts.begin(), contacts.end(), [](double v) { return std::isnan(v); }),
      contacts.end());
  if (contacts.empty()) return events;
  std::sort(contacts.begin(), contacts.end());
  const size_t middle = events.size();
  events.insert(events.end(), contacts.begin(), contacts.end());
  std::inplace_merge(events.begin(), events.begin() + middle, events.end());
  events.erase(std::unique(events.begin(), events.end()), events.end());
  return events;
}

}  // namespace

SelfIntersection ClassifySelfIntersection(const double* nodes, unsigned int count,
                                          PairSearchMode mode) {
  if (count < 4 || !nodes) return SelfIntersection::None;
  const PolygonView polygon(nodes, count);
  const YOrder order = OrderByY(polygon);
  std::vector<double> contacts;
  if (PairSearch(polygon, contacts).FindForbiddenContact(order.edges, mode))
    return SelfIntersection::ForbiddenContact;
  const std::vector<double> events = EventValues(polygon, order.nodes, contacts);
  if (WindingSweep(polygon, order.edges).CoversTwice(events)) return SelfIntersection::CoveredTwice;
  return SelfIntersection::None;
}

bool SelfIntersectingPolygon(const double* nodes, unsigned int count) {
  return ClassifySelfIntersection(nodes, count) != SelfIntersection::None;
}

}  // namespace lx
