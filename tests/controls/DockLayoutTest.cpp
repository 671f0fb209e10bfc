// The arithmetic of strips along a dock, on rectangles alone.
#include <gtest/gtest.h>

#include <climits>

#include "controls/DockLayout.h"
#include "lxcomp/DockPanel.h"

using lx::docklayout::Dock;
using lx::docklayout::Strip;

namespace {

// A horizontal dock of `length` with strips 25 high at the given (left, width) pairs.
Dock Row(int length, std::vector<std::pair<int, int>> spans, bool horizontal = true) {
  Dock dock;
  dock.horizontal = horizontal;
  dock.length = length;
  for (auto [left, width] : spans)
    dock.strips.push_back(
        {horizontal ? QRect(left, 0, width, 25) : QRect(0, left, 25, width), true});
  return dock;
}

std::vector<int> Starts(const Dock& dock) {
  std::vector<int> starts;
  for (const Strip& strip : dock.strips)
    starts.push_back(lx::docklayout::Start(strip.rect, dock.horizontal));
  return starts;
}

struct MoveCase {
  const char* what;
  int length;
  std::vector<std::pair<int, int>> spans;
  int index, pos;
  bool swap;
  int returned;
  std::vector<int> starts;
};

class MoveStripTest : public testing::TestWithParam<MoveCase> {};

TEST_P(MoveStripTest, EndsWhereExpected) {
  const MoveCase& c = GetParam();
  for (bool horizontal : {true, false}) {
    Dock dock = Row(c.length, c.spans, horizontal);
    EXPECT_EQ(lx::docklayout::MoveStrip(dock, c.index, c.pos, c.swap), c.returned)
        << c.what << (horizontal ? " (horizontal)" : " (vertical)");
    EXPECT_EQ(Starts(dock), c.starts) << c.what << (horizontal ? " (horizontal)" : " (vertical)");
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MoveStripTest,
    testing::Values(
        MoveCase{"single strip clamps at 0", 300, {{100, 50}}, 0, -10, false, 0, {0}},
        MoveCase{"single strip clamps at far end", 300, {{100, 50}}, 0, 280, true, 250, {250}},
        MoveCase{"single strip moves freely", 300, {{0, 50}}, 0, 120, false, 120, {120}},
        MoveCase{"forward, nothing ahead", 300, {{0, 50}, {100, 50}}, 0, 20, false, 20, {20, 100}},
        MoveCase{"forward past a gap clamps only at far end",
                 300,
                 {{0, 50}, {100, 50}},
                 0,
                 400,
                 false,
                 250,
                 {250, 100}},
        MoveCase{"forward pushes a touching neighbour",
                 300,
                 {{0, 50}, {50, 50}},
                 0,
                 30,
                 false,
                 30,
                 {30, 80}},
        MoveCase{"swap not reached pushes", 300, {{0, 50}, {50, 50}}, 0, 30, true, 30, {30, 80}},
        MoveCase{"swap at the neighbour's end", 300, {{0, 50}, {50, 50}}, 0, 50, true, 50, {50, 0}},
        MoveCase{"a row of touching strips moves together",
                 300,
                 {{0, 50}, {50, 50}, {100, 50}},
                 0,
                 200,
                 false,
                 150,
                 {150, 200, 250}},
        MoveCase{
            "back pushes the strip behind", 300, {{0, 50}, {50, 50}}, 1, 20, false, 50, {0, 50}},
        MoveCase{"back swap", 300, {{0, 50}, {50, 50}}, 1, 0, true, 0, {50, 0}},
        MoveCase{
            "back swap not reached pushes", 300, {{0, 50}, {50, 50}}, 1, 20, true, 50, {0, 50}},
        MoveCase{"back, nothing behind clamps at 0",
                 300,
                 {{0, 50}, {200, 50}},
                 1,
                 -20,
                 false,
                 0,
                 {0, 0}},
        MoveCase{"back, nothing behind, no far clamp",
                 100,
                 {{0, 10}, {200, 50}},
                 1,
                 150,
                 false,
                 150,
                 {0, 150}},
        MoveCase{"back through a row",
                 400,
                 {{100, 50}, {150, 50}, {200, 50}},
                 2,
                 120,
                 false,
                 120,
                 {20, 70, 120}},
        MoveCase{"back through a row pushed to 0",
                 400,
                 {{10, 50}, {60, 50}, {110, 50}},
                 2,
                 0,
                 false,
                 100,
                 {0, 50, 100}},
        MoveCase{"bad index", 300, {{0, 50}}, 3, 10, false, 0, {0}}));

TEST(MoveStripTest, HiddenStripsAreNotNeighbours) {
  Dock dock = Row(300, {{0, 50}, {50, 50}});
  dock.strips[0].visible = false;
  EXPECT_EQ(lx::docklayout::MoveStrip(dock, 1, 0, false), 0);
  EXPECT_EQ(Starts(dock), (std::vector<int>{0, 0}));
}

TEST(MoveStripTest, OverlappingAndZeroSizedStripsEnd) {
  Dock dock = Row(300, {{0, 0}, {0, 0}, {0, 50}, {0, 50}});
  lx::docklayout::MoveStrip(dock, 2, 100, false);
  lx::docklayout::MoveStrip(dock, 3, -50, true);
  Dock empty = Row(0, {});
  EXPECT_EQ(lx::docklayout::MoveStrip(empty, 0, 10, true), 0);
}

struct RoomCase {
  const char* what;
  int length;
  std::vector<std::pair<int, int>> spans;
  int pos, size;
  std::vector<int> starts;
};

class MakeRoomTest : public testing::TestWithParam<RoomCase> {};

TEST_P(MakeRoomTest, ClearsTheStretch) {
  const RoomCase& c = GetParam();
  for (bool horizontal : {true, false}) {
    Dock dock = Row(c.length, c.spans, horizontal);
    lx::docklayout::MakeRoom(dock, c.pos, c.size);
    EXPECT_EQ(Starts(dock), c.starts) << c.what;
  }
}

INSTANTIATE_TEST_SUITE_P(
    Cases, MakeRoomTest,
    testing::Values(
        RoomCase{"free stretch", 300, {{0, 50}, {200, 50}}, 80, 60, {0, 200}},
        RoomCase{"strip that cannot go back is pushed ahead",
                 300,
                 {{0, 50}, {200, 50}},
                 30,
                 60,
                 {90, 200}},
        RoomCase{"stepwise push takes the neighbour along",
                 300,
                 {{0, 50}, {50, 50}},
                 10,
                 100,
                 {110, 160}},
        RoomCase{"strip moves out backwards", 300, {{100, 50}}, 120, 40, {70}},
        RoomCase{
            "strip starting inside is pushed ahead", 300, {{0, 50}, {100, 50}}, 60, 60, {0, 120}},
        RoomCase{"strip at the far end goes back instead", 160, {{100, 50}}, 60, 60, {10}},
        RoomCase{"zero size pushes the strip to pos", 300, {{0, 50}}, 20, 0, {20}},
        RoomCase{"no strips", 300, {}, 20, 50, {}}));

TEST(MakeRoomTest, HiddenStripsStay) {
  Dock dock = Row(300, {{0, 50}, {60, 50}});
  dock.strips[0].visible = false;
  dock.strips[1].visible = false;
  lx::docklayout::MakeRoom(dock, 10, 100);
  EXPECT_EQ(Starts(dock), (std::vector<int>{0, 60}));
}

TEST(ButtonExtentTest, PerType) {
  struct Row {
    int type, t, extent;
  } rows[] = {{lx::lxNormalButton, 24, 24},
              {lx::lxDropDown, 24, 32},
              {lx::lxSeparator, 24, 8},
              {lx::lxMenu, 24, 24},
              {lx::lxCheckButton, 24, 24},
              {lx::lxDropDown, 23, 30},
              {lx::lxSeparator, 23, 7},
              {99, 24, 41},
              {-1, 24, 41}};
  for (const Row& row : rows)
    EXPECT_EQ(lx::docklayout::ButtonExtent(row.type, row.t, 41), row.extent)
        << row.type << " " << row.t;
}

TEST(PlaceButtonsTest, RowsAndColumns) {
  auto row = lx::docklayout::PlaceButtons({{24, 24}, {32, 24}, {8, 24}}, true, 24);
  EXPECT_EQ(row.buttons, (std::vector<QRect>{{8, 0, 24, 24}, {32, 0, 32, 24}, {64, 0, 8, 24}}));
  EXPECT_EQ(row.strip, QSize(72, 25));
  auto column = lx::docklayout::PlaceButtons({{24, 24}, {24, 32}}, false, 24);
  EXPECT_EQ(column.buttons, (std::vector<QRect>{{0, 8, 24, 24}, {0, 32, 24, 32}}));
  EXPECT_EQ(column.strip, QSize(25, 64));
  auto empty = lx::docklayout::PlaceButtons({}, true, 24);
  EXPECT_TRUE(empty.buttons.empty());
  EXPECT_EQ(empty.strip, QSize(8, 25));
}

TEST(TakeButtonsTest, ResizesToTheStrip) {
  auto row = lx::docklayout::TakeButtons({lx::lxNormalButton, lx::lxDropDown, lx::lxSeparator, 7},
                                         {24, 32, 8, 40}, 25, true);
  EXPECT_EQ(row.buttons,
            (std::vector<QRect>{{8, 0, 24, 24}, {32, 0, 32, 24}, {64, 0, 8, 24}, {72, 0, 40, 24}}));
  EXPECT_EQ(row.strip, QSize(112, 25));
  auto column = lx::docklayout::TakeButtons({lx::lxNormalButton}, {30}, 31, false);
  EXPECT_EQ(column.buttons, (std::vector<QRect>{{0, 10, 30, 30}}));
  auto degenerate = lx::docklayout::TakeButtons({lx::lxNormalButton}, {24}, 0, true);
  EXPECT_EQ(degenerate.buttons, (std::vector<QRect>{{0, 0, 0, 0}}));
}

struct ZoneCase {
  const char* what;
  lx::docklayout::Zone zone;
  QPoint point;
  bool accepted;
};

lx::docklayout::Zone Zone(QSize size, bool horizontal, bool right = false, bool tab = false,
                          QRect tabRect = {}) {
  lx::docklayout::Zone zone;
  zone.size = size;
  zone.horizontal = horizontal;
  zone.rightAligned = right;
  zone.tabVisible = tab;
  zone.tabClientWidth = 80;
  zone.tab = tabRect;
  return zone;
}

class AcceptsPointTest : public testing::TestWithParam<ZoneCase> {};

TEST_P(AcceptsPointTest, Zone) {
  EXPECT_EQ(lx::docklayout::AcceptsPoint(GetParam().zone, GetParam().point), GetParam().accepted)
      << GetParam().what;
}

const QSize kTop(300, 25), kSide(25, 300), kWideTab(100, 300), kNarrowTab(50, 300);
const QRect kTab(0, 0, 80, 300), kTabAt10(10, 0, 30, 300);

INSTANTIATE_TEST_SUITE_P(
    Cases, AcceptsPointTest,
    testing::Values(
        ZoneCase{"top corner", Zone(kTop, true), {0, 0}, true},
        ZoneCase{"top far corner", Zone(kTop, true), {299, 23}, true},
        ZoneCase{"top past end", Zone(kTop, true), {300, 0}, false},
        ZoneCase{"top before start", Zone(kTop, true), {-1, 0}, false},
        ZoneCase{"top below buttons", Zone(kTop, true), {10, 24}, false},
        ZoneCase{"top above", Zone(kTop, true), {10, -1}, false},
        ZoneCase{"side corner", Zone(kSide, false), {0, 0}, true},
        ZoneCase{"side far corner", Zone(kSide, false), {23, 299}, true},
        ZoneCase{"side beside buttons", Zone(kSide, false), {24, 0}, false},
        ZoneCase{"side past end", Zone(kSide, false), {0, 300}, false},
        ZoneCase{"tab: left of zone", Zone(kWideTab, false, false, true, kTab), {79, 5}, false},
        ZoneCase{"tab: zone start", Zone(kWideTab, false, false, true, kTab), {80, 5}, true},
        ZoneCase{"tab: zone end", Zone(kWideTab, false, false, true, kTab), {104, 5}, true},
        ZoneCase{"tab: past zone", Zone(kWideTab, false, false, true, kTab), {105, 5}, false},
        ZoneCase{"tab right: outside", Zone(kWideTab, false, true, true, kTab), {-24, 5}, true},
        ZoneCase{"tab right: edge", Zone(kWideTab, false, true, true, kTab), {0, 5}, true},
        ZoneCase{"tab right: inside", Zone(kWideTab, false, true, true, kTab), {1, 5}, false},
        ZoneCase{"narrow tab", Zone(kNarrowTab, false, false, true, kTabAt10), {34, 5}, true},
        ZoneCase{
            "narrow tab before", Zone(kNarrowTab, false, false, true, kTabAt10), {9, 5}, false},
        ZoneCase{"narrow tab right", Zone(kNarrowTab, false, true, true, kTabAt10), {10, 5}, true},
        ZoneCase{
            "narrow tab right past", Zone(kNarrowTab, false, true, true, kTabAt10), {11, 5}, false},
        ZoneCase{"empty dock", Zone(QSize(0, 0), true), {0, 0}, false}));

TEST(RescaleTest, SavedPositions) {
  EXPECT_EQ(lx::docklayout::Rescale(100, 72, 48), 150);
  EXPECT_EQ(lx::docklayout::Rescale(100, 48, 48), 100);
  EXPECT_EQ(lx::docklayout::Rescale(100, 24, 25), 96);
  EXPECT_EQ(lx::docklayout::Rescale(100, 72, 0), 100);
  EXPECT_EQ(lx::docklayout::Rescale(100, 72, -5), 100);
  EXPECT_EQ(lx::docklayout::Rescale(2000000000, 1000, 1), INT_MAX);
}

}  // namespace
