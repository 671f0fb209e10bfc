#include "controls/DockLayout.h"

#include <algorithm>
#include <cstdint>

#include "lxcomp/DockPanel.h"

namespace lx::docklayout {
namespace {

// Positions and sizes far beyond any screen are cut to this, so that sums never overflow.
constexpr int kFar = 1 << 28;

int Bounded(int value) {
  return std::clamp(value, -kFar, kFar);
}

int End(const QRect& rect, bool horizontal) {
  return Start(rect, horizontal) + Length(rect, horizontal);
}

// The first other visible strip that starts in (left, left + width]: the one met moving forward.
int StripAhead(const Dock& dock, int index) {
  const QRect& self = dock.strips[static_cast<size_t>(index)].rect;
  const int left = Start(self, dock.horizontal), right = End(self, dock.horizontal);
  for (size_t i = 0; i < dock.strips.size(); ++i) {
    if (static_cast<int>(i) == index || !dock.strips[i].visible) continue;
    const int start = Start(dock.strips[i].rect, dock.horizontal);
    if (left < start && start <= right) return static_cast<int>(i);
  }
  return -1;
}

// The first other visible strip that this one starts in or touches from behind.
int StripBehind(const Dock& dock, int index) {
  const int left = Start(dock.strips[static_cast<size_t>(index)].rect, dock.horizontal);
  for (size_t i = 0; i < dock.strips.size(); ++i) {
    if (static_cast<int>(i) == index || !dock.strips[i].visible) continue;
    const QRect& other = dock.strips[i].rect;
    if (Start(other, dock.horizontal) < left && left <= End(other, dock.horizontal))
      return static_cast<int>(i);
  }
  return -1;
}

int Move(Dock& dock, int index, int pos, bool swap, size_t depth) {
  const bool h = dock.horizontal;
  QRect& self = dock.strips[static_cast<size_t>(index)].rect;
  const int left = Start(self, h), width = Length(self, h);
  auto place = [&](int start) {
    SetStart(dock.strips[static_cast<size_t>(index)].rect, h, start);
    return start;
  };
  if (dock.strips.size() <= 1) return place(std::min(std::max(pos, 0), dock.length - width));
  // Each push visits a strip further along one direction; deeper means overlapping input.
  if (depth > dock.strips.size()) return left;
  if (left < pos) {
    const int ahead = StripAhead(dock, index);
    if (ahead < 0) return place(std::min(dock.length - width, pos));
    QRect& other = dock.strips[static_cast<size_t>(ahead)].rect;
    if (swap && pos + width >= End(other, h)) {
      SetStart(other, h, left);
      return place(Start(other, h) + Length(other, h));
    }
    const int reached = Move(dock, ahead, pos + width, false, depth + 1);
    return place(reached - width);
  }
  const int behind = StripBehind(dock, index);
  if (behind < 0) return place(std::max(pos, 0));
  QRect& other = dock.strips[static_cast<size_t>(behind)].rect;
  const int otherLength = Length(other, h);
  if (Start(other, h) < pos || !swap) {
    const int reached = Move(dock, behind, pos - otherLength, false, depth + 1);
    return place(reached + otherLength);
  }
  const int start = place(Start(other, h));
  SetStart(other, h, start + width);
  return start;
}

}  // namespace

int Start(const QRect& rect, bool horizontal) {
  return horizontal ? rect.left() : rect.top();
}

int Length(const QRect& rect, bool horizontal) {
  return horizontal ? rect.width() : rect.height();
}

void SetStart(QRect& rect, bool horizontal, int start) {
  if (horizontal)
    rect.moveLeft(start);
  else
    rect.moveTop(start);
}

int MoveStrip(Dock& dock, int index, int pos, bool swap) {
  if (index < 0 || index >= static_cast<int>(dock.strips.size())) return 0;
  return Move(dock, index, Bounded(pos), swap, 0);
}

void MakeRoom(Dock& dock, int pos, int size) {
  pos = Bounded(pos);
  size = Bounded(size);
  const bool h = dock.horizontal;
  for (size_t i = 0; i < dock.strips.size(); ++i) {
    const QRect& rect = dock.strips[i].rect;
    if (!dock.strips[i].visible || pos < Start(rect, h) || pos >= End(rect, h)) continue;
    const int width = Length(rect, h);
    const int index = static_cast<int>(i);
    const int reached = MoveStrip(dock, index, pos - width, false);
    if (reached + width > pos) {
      // It could not get out backwards: push it ahead in steps, so its neighbours move along.
      for (int k = 1; k <= 10; ++k)
        MoveStrip(dock, index, pos + static_cast<int>(std::int64_t{size} * k / 11), false);
      MoveStrip(dock, index, pos + size, false);
      return;
    }
    break;
  }
  for (size_t i = 0; i < dock.strips.size(); ++i) {
    const QRect& rect = dock.strips[i].rect;
    const int start = Start(rect, h);
    if (!dock.strips[i].visible || start <= pos || start >= pos + size) continue;
    const int index = static_cast<int>(i);
    if (MoveStrip(dock, index, pos + size, false) < pos + size)
      MoveStrip(dock, index, pos - Length(dock.strips[i].rect, h), false);
  }
}

int ButtonExtent(int buttonType, int t, int fallback) {
  switch (buttonType) {
    case lxNormalButton:
    case lxMenu:
    case lxCheckButton:
      return t;
    case lxDropDown:
      return t + t / 3;
    case lxSeparator:
      return t / 3;
    default:
      return fallback;
  }
}

Placement PlaceButtons(const std::vector<QSize>& sizes, bool horizontal, int emptyThickness) {
  Placement result;
  const QSize last = sizes.empty() ? QSize(emptyThickness, emptyThickness) : sizes.back();
  int at = (horizontal ? last.height() : last.width()) / 3;
  for (const QSize& size : sizes) {
    if (horizontal) {
      result.buttons.emplace_back(at, 0, size.width(), size.height());
      at += size.width();
    } else {
      result.buttons.emplace_back(0, at, size.width(), size.height());
      at += size.height();
    }
  }
  result.strip = horizontal ? QSize(at, last.height() + 1) : QSize(last.width() + 1, at);
  return result;
}

Placement TakeButtons(const std::vector<int>& types, const std::vector<int>& extents, int s,
                      bool horizontal) {
  Placement result;
  const int t = std::max(0, s - 1);
  int at = t / 3;
  for (size_t i = 0; i < types.size(); ++i) {
    const int fallback = i < extents.size() ? extents[i] : t;
    const int extent = ButtonExtent(types[i], t, fallback);
    result.buttons.push_back(horizontal ? QRect(at, 0, extent, t) : QRect(0, at, t, extent));
    at += extent;
  }
  result.strip = horizontal ? QSize(at, s) : QSize(s, at);
  return result;
}

bool AcceptsPoint(const Zone& zone, QPoint p) {
  if (zone.horizontal) {
    if (p.x() < 0 || p.x() >= zone.size.width()) return false;
    return p.y() >= 0 && p.y() < zone.buttonHeight;
  }
  if (p.y() < 0 || p.y() >= zone.size.height()) return false;
  if (zone.tabVisible) {
    if (zone.size.width() >= zone.tabClientWidth) {
      if (zone.rightAligned) return -zone.buttonWidth <= p.x() && p.x() <= 0;
      return zone.tab.width() <= p.x() && p.x() <= zone.tab.width() + zone.buttonWidth;
    }
    if (zone.rightAligned) return 0 <= p.x() && p.x() <= zone.tab.left();
    return zone.tab.left() <= p.x() && p.x() <= zone.tab.left() + zone.buttonWidth;
  }
  return p.x() >= 0 && p.x() < zone.buttonWidth;
}

int Rescale(int value, int current, int saved) {
  if (saved <= 0 || current == saved) return value;
  const std::int64_t scaled = std::int64_t{value} * current / saved;
  return static_cast<int>(std::clamp<std::int64_t>(scaled, INT32_MIN, INT32_MAX));
}

}  // namespace lx::docklayout
