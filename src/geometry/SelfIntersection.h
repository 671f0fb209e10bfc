// Which rule decides that a closed polygon intersects itself (for tests and diagnostics).
#pragma once

namespace lx {

enum class SelfIntersection {
  None,              // no crossing, no same-direction overlap, nothing covered twice
  ForbiddenContact,  // two non-adjacent edges cross or overlap running the same way
  CoveredTwice,      // a horizontal line finds a region of winding number 2 or more
};

// How meeting pairs of edges are found: a sweep over the edges' y extents that hands over to a
// recursive split of the edge boxes when many edges span the same heights, or the split alone.
enum class PairSearchMode { Automatic, SplitOnly };

SelfIntersection ClassifySelfIntersection(const double* nodes, unsigned int count,
                                          PairSearchMode mode = PairSearchMode::Automatic);

}  // namespace lx
