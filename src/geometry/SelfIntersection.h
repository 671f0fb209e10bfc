// Which rule decides that a closed polygon intersects itself (for tests and diagnostics).
#pragma once

namespace lx {

enum class SelfIntersection {
  None,              // no crossing, no same-direction overlap, nothing covered twice
  ForbiddenContact,  // two non-adjacent edges cross or overlap running the same way
  CoveredTwice,      // a horizontal line finds a region of winding number 2 or more
};

SelfIntersection ClassifySelfIntersection(const double* nodes, unsigned int count);

}  // namespace lx
