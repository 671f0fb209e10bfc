// Where the titles of a menu bar sit: each title takes its text width plus a scaled gap.
#pragma once

#include <vector>

namespace lx::menugeometry {

// The title under client x: the first whose running (float) sum of extents exceeds x; -1 past
// the last one.
inline int HitTitle(const std::vector<float>& widths, float gap, int x) {
  float end = 0.0f;
  for (size_t i = 0; i < widths.size(); ++i) {
    end += widths[i] + gap;
    if (end > static_cast<float>(x)) return static_cast<int>(i);
  }
  return -1;
}

// The left edge of title `index`, truncated after every addition.
inline int TitleLeft(const std::vector<float>& widths, float gap, int index) {
  int left = 0;
  for (int i = 0; i < index && i < static_cast<int>(widths.size()); ++i)
    left = static_cast<int>(static_cast<float>(left) + widths[static_cast<size_t>(i)] + gap);
  return left;
}

}  // namespace lx::menugeometry
