// The arithmetic of strips along a dock, on rectangles alone.
#include <gtest/gtest.h>

#include <climits>

#include "controls/DockLayout.h"
#include "lxcomp/DockPanel.h"

namespace dl = lx::docklayout;

namespace {

using Spans = std::vector<std::pair<int, int>>;  // (start, length) of each strip

// A dock of `length` with strips 25 thick at the given spans; strips listed in `hidden` are hidden.
dl::Dock MakeDock(int length, const Spans& spans, bool horizontal, std::vector<int> hidden = {}) {
  dl::Dock dock{{}, horizontal, length};
  for (auto [start, extent] : spans)
    dock.strips.push_back(
        {horizontal ? QRect(start, 0, extent, 25) : QRect(0, start, 25, extent), true});
  for (int index : hidden)
    dock.strips[index].visible = false;
  return dock;
}

std::vector<int> Starts(const dl::Dock& dock) {
  std::vector<int> starts;
  for (const dl::Strip& strip : dock.strips)
    starts.push_back(dl::Start(strip.rect, dock.horizontal));
  return starts;
}

struct MoveCase {
  int length;
  Spans spans;
  int index, pos;
  bool swap;
  int returned;
  std::vector<int> starts;
};

// clang-format off
const MoveCase kMoves[] = {
    {300, {{100, 50}}, 0, -10, false, 0, {0}},                                // clamps at 0
    {300, {{100, 50}}, 0, 280, true, 250, {250}},                             // clamps at far end
    {300, {{0, 50}}, 0, 120, false, 120, {120}},                              // moves freely
    {300, {{0, 50}, {100, 50}}, 0, 20, false, 20, {20, 100}},                 // nothing ahead
    {300, {{0, 50}, {100, 50}}, 0, 400, false, 250, {250, 100}},              // past a gap
    {300, {{0, 50}, {50, 50}}, 0, 30, false, 30, {30, 80}},                   // pushes ahead
    {300, {{0, 50}, {50, 50}}, 0, 30, true, 30, {30, 80}},                    // swap not reached
    {300, {{0, 50}, {50, 50}}, 0, 50, true, 50, {50, 0}},                     // swap at its end
    {300, {{0, 50}, {50, 50}, {100, 50}}, 0, 200, false, 150, {150, 200, 250}},  // a row moves
    {300, {{0, 50}, {50, 50}}, 1, 20, false, 50, {0, 50}},                    // back: pushes
    {300, {{0, 50}, {50, 50}}, 1, 0, true, 0, {50, 0}},                       // back swap
    {300, {{0, 50}, {50, 50}}, 1, 20, true, 50, {0, 50}},                     // back swap too short
    {300, {{0, 50}, {200, 50}}, 1, -20, false, 0, {0, 0}},                    // back clamps at 0
    {100, {{0, 10}, {200, 50}}, 1, 150, false, 150, {0, 150}},                // back: no far clamp
    {400, {{100, 50}, {150, 50}, {200, 50}}, 2, 120, false, 120, {20, 70, 120}},  // through a row
    {400, {{10, 50}, {60, 50}, {110, 50}}, 2, 0, false, 100, {0, 50, 100}},   // row stops at 0
    {300, {{0, 50}}, 3, 10, false, 0, {0}},                                   // bad index
    {300, {{0, 50}, {50, 50}}, 0, INT_MAX, false, 200, {200, 250}},           // far beyond
    {300, {{0, 50}, {50, 50}}, 1, INT_MIN, true, 0, {50, 0}},
};
// clang-format on

TEST(MoveStripTest, EndsWhereExpectedAlongBothAxes) {
  for (const MoveCase& c : kMoves)
    for (bool horizontal : {true, false}) {
      dl::Dock dock = MakeDock(c.length, c.spans, horizontal);
      const int index = static_cast<int>(&c - kMoves);
      EXPECT_EQ(dl::MoveStrip(dock, c.index, c.pos, c.swap), c.returned) << index << horizontal;
      EXPECT_EQ(Starts(dock), c.starts) << index << horizontal;
    }
}

TEST(MoveStripTest, HiddenAndDegenerateStrips) {
  dl::Dock dock = MakeDock(300, {{0, 50}, {50, 50}}, true, {0});
  EXPECT_EQ(dl::MoveStrip(dock, 1, 0, false), 0) << "a hidden strip is no neighbour";
  EXPECT_EQ(Starts(dock), (std::vector<int>{0, 0}));
  dl::Dock overlapping = MakeDock(300, {{0, 0}, {0, 0}, {0, 50}, {0, 50}}, true);
  dl::MoveStrip(overlapping, 2, 100, false);  // must end
  dl::MoveStrip(overlapping, 3, -50, true);
  dl::Dock empty = MakeDock(0, {}, true);
  EXPECT_EQ(dl::MoveStrip(empty, 0, 10, true), 0);
}

struct RoomCase {
  int length;
  Spans spans;
  int pos, size;
  std::vector<int> starts;
  std::vector<int> hidden = {};
};

// clang-format off
const RoomCase kRooms[] = {
    {300, {{0, 50}, {200, 50}}, 80, 60, {0, 200}},        // stretch already free
    {300, {{0, 50}, {200, 50}}, 30, 60, {90, 200}},       // cannot go back: pushed ahead
    {300, {{0, 50}, {50, 50}}, 10, 100, {110, 160}},      // takes the neighbour along
    {300, {{100, 50}}, 120, 40, {70}},                    // moves out backwards
    {300, {{0, 50}, {100, 50}}, 60, 60, {0, 120}},        // starting inside: pushed ahead
    {160, {{100, 50}}, 60, 60, {10}},                     // at the far end: goes back
    {300, {{0, 50}}, 20, 0, {20}},                        // zero size pushes to pos
    {300, {}, 20, 50, {}},                                // no strips
    {300, {{0, 50}, {60, 50}}, 10, 100, {0, 60}, {0, 1}}, // hidden strips stay
    {300, {{0, 50}}, INT_MAX, INT_MAX, {0}},              // far beyond: nothing to clear
    {300, {{0, 50}}, INT_MIN, INT_MAX, {0}},
};
// clang-format on

TEST(MakeRoomTest, ClearsTheStretchAlongBothAxes) {
  for (const RoomCase& c : kRooms)
    for (bool horizontal : {true, false}) {
      dl::Dock dock = MakeDock(c.length, c.spans, horizontal, c.hidden);
      dl::MakeRoom(dock, c.pos, c.size);
      EXPECT_EQ(Starts(dock), c.starts) << (&c - kRooms) << horizontal;
    }
}

TEST(ButtonLayoutTest, ExtentsPlacementAndResizing) {
  const int rows[][3] = {{lx::lxNormalButton, 24, 24},
                         {lx::lxDropDown, 24, 32},
                         {lx::lxSeparator, 24, 8},
                         {lx::lxMenu, 24, 24},
                         {lx::lxCheckButton, 24, 24},
                         {lx::lxDropDown, 23, 30},
                         {lx::lxSeparator, 23, 7},
                         {99, 24, 41},
                         {-1, 24, 41}};
  for (const auto& row : rows)
    EXPECT_EQ(dl::ButtonExtent(row[0], row[1], 41), row[2]) << row[0] << " " << row[1];

  auto row = dl::PlaceButtons({{24, 24}, {32, 24}, {8, 24}}, true, 24);
  EXPECT_EQ(row.buttons, (std::vector<QRect>{{8, 0, 24, 24}, {32, 0, 32, 24}, {64, 0, 8, 24}}));
  EXPECT_EQ(row.strip, QSize(72, 25));
  auto column = dl::PlaceButtons({{24, 24}, {24, 32}}, false, 24);
  EXPECT_EQ(column.buttons, (std::vector<QRect>{{0, 8, 24, 24}, {0, 32, 24, 32}}));
  EXPECT_EQ(column.strip, QSize(25, 64));
  auto empty = dl::PlaceButtons({}, true, 24);
  EXPECT_TRUE(empty.buttons.empty());
  EXPECT_EQ(empty.strip, QSize(8, 25));

  auto taken = dl::TakeButtons({lx::lxNormalButton, lx::lxDropDown, lx::lxSeparator, 7},
                               {24, 32, 8, 40}, 25, true);
  EXPECT_EQ(taken.buttons,
            (std::vector<QRect>{{8, 0, 24, 24}, {32, 0, 32, 24}, {64, 0, 8, 24}, {72, 0, 40, 24}}));
  EXPECT_EQ(taken.strip, QSize(112, 25));
  EXPECT_EQ(dl::TakeButtons({lx::lxNormalButton}, {30}, 31, false).buttons,
            (std::vector<QRect>{{0, 10, 30, 30}}));
  EXPECT_EQ(dl::TakeButtons({lx::lxNormalButton}, {24}, 0, true).buttons,
            (std::vector<QRect>{{0, 0, 0, 0}}));
}

dl::Zone Zone(QSize size, bool horizontal, bool right = false, QRect tab = {}) {
  dl::Zone zone;
  zone.size = size;
  zone.horizontal = horizontal;
  zone.rightAligned = right;
  zone.tabVisible = !tab.isNull();
  zone.tabClientWidth = 80;
  zone.tab = tab;
  return zone;
}

TEST(AcceptsPointTest, DockingZones) {
  const QSize top(300, 25), side(25, 300), wide(100, 300), narrow(50, 300);
  const QRect tab(0, 0, 80, 300), tabAt10(10, 0, 30, 300);
  const struct {
    dl::Zone zone;
    QPoint point;
    bool accepted;
  } cases[] = {
      {Zone(top, true), {0, 0}, true},
      {Zone(top, true), {299, 23}, true},
      {Zone(top, true), {300, 0}, false},
      {Zone(top, true), {-1, 0}, false},
      {Zone(top, true), {10, 24}, false},
      {Zone(top, true), {10, -1}, false},
      {Zone(side, false), {23, 299}, true},
      {Zone(side, false), {24, 0}, false},
      {Zone(side, false), {0, 300}, false},
      {Zone(QSize(0, 0), true), {0, 0}, false},
      // beside a visible tab: a band one button wide past the tab's client area
      {Zone(wide, false, false, tab), {79, 5}, false},
      {Zone(wide, false, false, tab), {80, 5}, true},
      {Zone(wide, false, false, tab), {104, 5}, true},
      {Zone(wide, false, false, tab), {105, 5}, false},
      {Zone(wide, false, true, tab), {-24, 5}, true},
      {Zone(wide, false, true, tab), {0, 5}, true},
      {Zone(wide, false, true, tab), {1, 5}, false},
      {Zone(narrow, false, false, tabAt10), {34, 5}, true},
      {Zone(narrow, false, false, tabAt10), {9, 5}, false},
      {Zone(narrow, false, true, tabAt10), {10, 5}, true},
      {Zone(narrow, false, true, tabAt10), {11, 5}, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(dl::AcceptsPoint(c.zone, c.point), c.accepted) << (&c - cases);
}

TEST(RescaleTest, SavedPositions) {
  const int rows[][4] = {{100, 72, 48, 150}, {100, 48, 48, 100}, {100, 24, 25, 96},
                         {100, 72, 0, 100},  {100, 72, -5, 100}, {2000000000, 1000, 1, INT_MAX}};
  for (const auto& r : rows)
    EXPECT_EQ(dl::Rescale(r[0], r[1], r[2]), r[3]) << r[0] << " " << r[1] << " " << r[2];
}

}  // namespace
