// The origin selector: a grid of cells picked by mouse or keys, notifying on every change.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <climits>
#include <tuple>

#include "lxcomp/LxOrigin.h"
#include "support/KeyRecorder.h"

namespace {

using lxtest::KeyRecorder;

struct Selector {
  KeyRecorder parent;
  lx::TLxOrigin* origin = new lx::TLxOrigin(&parent);
  QSignalSpy changes{origin, &lx::TLxOrigin::OnChange};

  explicit Selector(int w = 100, int h = 100) {
    parent.resize(300, 300);
    origin->setGeometry(0, 0, w, h);
    parent.show();
    parent.activateWindow();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&parent);
  }
  void Click(int x, int y) {
    QTest::mouseMove(origin, QPoint(x, y));
    QTest::mouseClick(origin, Qt::LeftButton, Qt::NoModifier, QPoint(x, y));
  }
};

TEST(TLxOrigin, ClicksPickWholeCellsAndWrapPastTheLastColumn) {
  // x, y, hot column, hot row, cell: 100 / 3 = 33-pixel cells, 99 lies one past the last one.
  const int cases[][5] = {
      {0, 10, 0, 0, 1},  {32, 1, 0, 0, 1},   {33, 1, 1, 0, 2},   {65, 10, 1, 0, 2},
      {66, 10, 2, 0, 3}, {98, 32, 2, 0, 3},  {99, 1, 3, 0, 4},   {50, 50, 1, 1, 5},
      {98, 98, 2, 2, 9}, {10, 99, 0, 3, 10}, {99, 99, 3, 3, 13}, {99, 66, 3, 2, 10},
  };
  for (const auto& c : cases) {
    Selector s;
    s.Click(c[0], c[1]);
    EXPECT_EQ(s.origin->GetHotCol(), c[2]) << c[0] << "," << c[1];
    EXPECT_EQ(s.origin->GetHotRow(), c[3]) << c[0] << "," << c[1];
    EXPECT_EQ(s.origin->GetSelectedButton(), c[4]) << c[0] << "," << c[1];
    ASSERT_EQ(s.changes.count(), 1);
    EXPECT_EQ(s.changes.first().first().value<QObject*>(), s.origin);
  }
}

TEST(TLxOrigin, MouseNotifiesOnlyOnAChange) {
  Selector s;
  QTest::mouseClick(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(70, 40));
  EXPECT_EQ(s.origin->GetSelectedButton(), 6) << "a click without a prior move";
  s.Click(50, 50);
  s.Click(60, 60);
  EXPECT_EQ(s.origin->GetSelectedButton(), 5);
  EXPECT_EQ(s.changes.count(), 2);
}

TEST(TLxOrigin, PressTakesTheFocusAndShowsTheCellPressedUntilRelease) {
  Selector s;
  QTest::mousePress(s.origin, Qt::RightButton, Qt::NoModifier, QPoint(80, 80));
  EXPECT_TRUE(s.origin->GetMouseIsDown());
  EXPECT_TRUE(s.origin->hasFocus());
  EXPECT_EQ(s.origin->GetSelectedButton(), 0);
  QTest::mouseRelease(s.origin, Qt::RightButton, Qt::NoModifier, QPoint(80, 80));
  EXPECT_FALSE(s.origin->GetMouseIsDown());
  EXPECT_EQ(s.origin->GetSelectedButton(), 9);
}

TEST(TLxOrigin, ReleaseAfterLeavingSelectsMinusNumCols) {
  Selector s;
  s.origin->SetNumCols(4);
  s.Click(30, 30);
  QTest::mousePress(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(s.origin, &leave);
  EXPECT_EQ(s.origin->GetHotCol(), -1);
  QTest::mouseRelease(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(150, 150));
  EXPECT_EQ(s.origin->GetSelectedButton(), -4);
  EXPECT_EQ(s.origin->GetSelCol(), -1);
  EXPECT_EQ(s.changes.count(), 2);
  // Dragged out with the button held: the mouse has left before the release as well.
  s.Click(30, 30);
  QTest::mousePress(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(10, 10));
  QTest::mouseMove(s.origin, QPoint(150, 60));
  EXPECT_EQ(s.origin->GetHotCol(), -1);
  QTest::mouseRelease(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(150, 60));
  EXPECT_EQ(s.origin->GetSelectedButton(), -4);
}

TEST(TLxOrigin, KeysMoveTheSelectionAndAlwaysNotifyWhenTheyLeadSomewhere) {
  // selected, key, then selected, notifications
  const std::tuple<int, Qt::Key, int, int> cases[] = {
      {0, Qt::Key_Right, 6, 1},  {0, Qt::Key_Left, 4, 1},   {0, Qt::Key_Up, 2, 1},
      {0, Qt::Key_Down, 8, 1},   {0, Qt::Key_Space, 6, 1},  {0, Qt::Key_Home, 5, 1},
      {5, Qt::Key_Home, 5, 1},   {9, Qt::Key_Space, 1, 1},  {8, Qt::Key_Space, 9, 1},
      {1, Qt::Key_Left, 1, 0},   {3, Qt::Key_Right, 3, 0},  {4, Qt::Key_Right, 5, 1},
      {2, Qt::Key_Up, 2, 0},     {8, Qt::Key_Down, 8, 0},   {4, Qt::Key_Up, 1, 1},
      {4, Qt::Key_Down, 7, 1},   {4, Qt::Key_PageUp, 4, 0}, {4, Qt::Key_PageDown, 4, 0},
      {4, Qt::Key_End, 4, 0},    {4, Qt::Key_A, 4, 0},      {-3, Qt::Key_Right, 6, 1},
      {12, Qt::Key_Space, 1, 1}, {12, Qt::Key_Up, 9, 1},    {12, Qt::Key_Down, 12, 0},
  };
  for (auto [selected, key, expected, notifications] : cases) {
    Selector s;
    s.origin->SetSelectedButton(selected);
    QTest::keyClick(s.origin, key);
    EXPECT_EQ(s.origin->GetSelectedButton(), expected) << selected << " key " << key;
    EXPECT_EQ(s.changes.count(), notifications) << selected << " key " << key;
    EXPECT_TRUE(s.parent.keys.isEmpty()) << "key " << key << " was not consumed";
  }
  Selector s;
  for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
    QTest::keyClick(s.origin, key);
  EXPECT_EQ(s.parent.keys.size(), 3) << "dialog keys pass to the dialog";
  EXPECT_EQ(s.changes.count(), 0);
}

TEST(TLxOrigin, SetSelectedButtonDerivesTheCellWithoutNotifying) {
  const int cases[][4] = {
      // columns, selected, row, column
      {3, 1, 0, 0},    {3, 5, 1, 1},   {3, 9, 2, 2},  {3, 4, 1, 0},   {4, 8, 1, 3},
      {3, -4, -1, -2}, {3, -1, 0, -2}, {3, 13, 4, 0}, {0, 5, -1, -1}, {-2, 5, -1, -1},
  };
  for (const auto& c : cases) {
    Selector s;
    s.origin->SetNumCols(c[0]);
    ASSERT_TRUE(s.origin->setProperty("SelectedButton", c[1]));
    EXPECT_EQ(s.origin->GetSelRow(), c[2]) << c[0] << " cols, cell " << c[1];
    EXPECT_EQ(s.origin->GetSelCol(), c[3]) << c[0] << " cols, cell " << c[1];
    EXPECT_EQ(s.changes.count(), 0);
  }
}

TEST(TLxOrigin, DescribesTheSelectedCellToAssistiveTools) {
  Selector s;
  EXPECT_EQ(s.origin->accessibleName(), "Origin selector");
  EXPECT_EQ(s.origin->accessibleDescription(), "No cell selected");
  QTest::keyClick(s.origin, Qt::Key_Right);
  EXPECT_EQ(s.origin->accessibleDescription(), "Cell 6 of 9 selected");
  s.Click(5, 5);
  EXPECT_EQ(s.origin->accessibleDescription(), "Cell 1 of 9 selected");
  EXPECT_TRUE(s.origin->GetTabStop());
}

// Every way in (mouse, keys, painting) survives grids without cells and tiny sizes.
TEST(TLxOrigin, DegenerateGridsNeverDivideByZero) {
  const int cases[][5] = {
      // width, height, rows, columns, selected
      {100, 100, 3, 0, 0},
      {100, 100, 0, 3, 5},
      {100, 100, -2, -3, 4},
      {100, 100, 0, 0, -1},
      {0, 0, 3, 3, 5},
      {1, 1, 3, 3, 9},
      {1, 1, 1, 1, 1},
      {100, 100, 200, 200, 7},
      {100, 100, 3, 3, INT_MAX},
      {100, 100, 3, 3, INT_MIN},
      {50, 50, INT_MAX, INT_MAX, INT_MIN},
  };
  for (const auto& c : cases) {
    Selector s(c[0], c[1]);
    s.origin->SetNumRows(c[2]);
    s.origin->SetNumCols(c[3]);
    s.origin->SetSelectedButton(c[4]);
    s.origin->grab();
    for (int at : {0, 50, 99})
      if (c[0] > 0 && c[1] > 0) s.Click(std::min(at, c[0] - 1), std::min(at, c[1] - 1));
    for (Qt::Key key :
         {Qt::Key_Space, Qt::Key_Home, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
      QTest::keyClick(s.origin, key);
    s.origin->grab();
  }
  Selector s;
  s.origin->SetNumCols(0);
  s.Click(50, 50);
  EXPECT_EQ(s.origin->GetHotCol(), -1) << "a grid without cells has no hot cell";
  QTest::keyClick(s.origin, Qt::Key_Home);
  EXPECT_EQ(s.origin->GetSelectedButton(), 0);
  EXPECT_EQ(s.changes.count(), 0);
  EXPECT_TRUE(s.parent.keys.isEmpty()) << "and swallows the keys";
}

}  // namespace
