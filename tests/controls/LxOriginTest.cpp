#include <gtest/gtest.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <climits>
#include <memory>

#include "lxcomp/LxOrigin.h"

namespace {

// A parent that records the keys its child let through.
class KeyRecorder : public QWidget {
 public:
  QList<int> keys;

 protected:
  void keyPressEvent(QKeyEvent* event) override { keys.append(event->key()); }
};

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

struct HitCase {
  int x, y;
  int col, row;
  int cell;
};

TEST(TLxOrigin, ClicksPickWholeCellsAndWrapPastTheLastColumn) {
  // 100 / 3 = 33-pixel cells; x or y of 99 lies one past the last column or row.
  const HitCase cases[] = {
      {0, 10, 0, 0, 1},  {32, 1, 0, 0, 1},   {33, 1, 1, 0, 2},   {65, 10, 1, 0, 2},
      {66, 10, 2, 0, 3}, {98, 32, 2, 0, 3},  {99, 1, 3, 0, 4},   {50, 50, 1, 1, 5},
      {98, 98, 2, 2, 9}, {10, 99, 0, 3, 10}, {99, 99, 3, 3, 13}, {99, 66, 3, 2, 10},
  };
  for (const HitCase& c : cases) {
    Selector s;
    s.Click(c.x, c.y);
    EXPECT_EQ(s.origin->GetHotCol(), c.col) << c.x << "," << c.y;
    EXPECT_EQ(s.origin->GetHotRow(), c.row) << c.x << "," << c.y;
    EXPECT_EQ(s.origin->GetSelectedButton(), c.cell) << c.x << "," << c.y;
    EXPECT_EQ(s.changes.count(), 1);
    ASSERT_FALSE(s.changes.isEmpty());
    EXPECT_EQ(s.changes.first().first().value<QObject*>(), s.origin);
  }
}

TEST(TLxOrigin, MouseNotifiesOnlyOnAChange) {
  Selector s;
  s.Click(50, 50);
  s.Click(60, 60);
  EXPECT_EQ(s.origin->GetSelectedButton(), 5);
  EXPECT_EQ(s.changes.count(), 1);
  s.Click(10, 10);
  EXPECT_EQ(s.changes.count(), 2);
}

TEST(TLxOrigin, AClickWithoutAPriorMovePicksTheCellUnderIt) {
  Selector s;
  QTest::mouseClick(s.origin, Qt::LeftButton, Qt::NoModifier, QPoint(70, 40));
  EXPECT_EQ(s.origin->GetSelectedButton(), 6);
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
}

struct KeyCase {
  int selected;
  Qt::Key key;
  int expected;
  int notifications;
};

TEST(TLxOrigin, KeysMoveTheSelectionAndAlwaysNotifyWhenTheyLeadSomewhere) {
  const KeyCase cases[] = {
      {0, Qt::Key_Right, 6, 1},  {0, Qt::Key_Left, 4, 1},   {0, Qt::Key_Up, 2, 1},
      {0, Qt::Key_Down, 8, 1},   {0, Qt::Key_Space, 6, 1},  {0, Qt::Key_Home, 5, 1},
      {5, Qt::Key_Home, 5, 1},   {9, Qt::Key_Space, 1, 1},  {8, Qt::Key_Space, 9, 1},
      {1, Qt::Key_Left, 1, 0},   {3, Qt::Key_Right, 3, 0},  {4, Qt::Key_Right, 5, 1},
      {2, Qt::Key_Up, 2, 0},     {8, Qt::Key_Down, 8, 0},   {4, Qt::Key_Up, 1, 1},
      {4, Qt::Key_Down, 7, 1},   {4, Qt::Key_PageUp, 4, 0}, {4, Qt::Key_PageDown, 4, 0},
      {4, Qt::Key_End, 4, 0},    {4, Qt::Key_A, 4, 0},      {-3, Qt::Key_Right, 6, 1},
      {12, Qt::Key_Space, 1, 1}, {12, Qt::Key_Up, 9, 1},    {12, Qt::Key_Down, 12, 0},
  };
  for (const KeyCase& c : cases) {
    Selector s;
    s.origin->SetSelectedButton(c.selected);
    QTest::keyClick(s.origin, c.key);
    EXPECT_EQ(s.origin->GetSelectedButton(), c.expected) << c.selected << " key " << c.key;
    EXPECT_EQ(s.changes.count(), c.notifications) << c.selected << " key " << c.key;
    EXPECT_TRUE(s.parent.keys.isEmpty()) << "key " << c.key << " was not consumed";
  }
}

TEST(TLxOrigin, DialogKeysPassToTheDialog) {
  Selector s;
  for (Qt::Key key : {Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter})
    QTest::keyClick(s.origin, key);
  EXPECT_EQ(s.parent.keys.size(), 3);
  EXPECT_EQ(s.changes.count(), 0);
}

struct SelectionCase {
  int cols;
  int selected;
  int row, col;
};

TEST(TLxOrigin, SetSelectedButtonDerivesTheCellWithoutNotifying) {
  const SelectionCase cases[] = {
      {3, 1, 0, 0},    {3, 5, 1, 1},   {3, 9, 2, 2},  {3, 4, 1, 0},   {4, 8, 1, 3},
      {3, -4, -1, -2}, {3, -1, 0, -2}, {3, 13, 4, 0}, {0, 5, -1, -1}, {-2, 5, -1, -1},
  };
  for (const SelectionCase& c : cases) {
    Selector s;
    s.origin->SetNumCols(c.cols);
    s.origin->SetSelectedButton(c.selected);
    EXPECT_EQ(s.origin->GetSelRow(), c.row) << c.cols << " cols, cell " << c.selected;
    EXPECT_EQ(s.origin->GetSelCol(), c.col) << c.cols << " cols, cell " << c.selected;
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

struct BadGrid {
  int w, h, rows, cols, selected;
};

// Every way in (mouse, keys, painting) survives grids without cells and tiny sizes.
TEST(TLxOrigin, DegenerateGridsNeverDivideByZero) {
  const BadGrid cases[] = {
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
  const Qt::Key keys[] = {Qt::Key_Space, Qt::Key_Home, Qt::Key_Left,
                          Qt::Key_Right, Qt::Key_Up,   Qt::Key_Down};
  for (const BadGrid& c : cases) {
    Selector s(c.w, c.h);
    s.origin->SetNumRows(c.rows);
    s.origin->SetNumCols(c.cols);
    s.origin->SetSelectedButton(c.selected);
    EXPECT_EQ(s.origin->GetNumRows(), c.rows);
    EXPECT_EQ(s.origin->GetNumCols(), c.cols);
    s.origin->grab();
    for (const QPoint& p : {QPoint(0, 0), QPoint(50, 50), QPoint(99, 99)}) {
      if (c.w > 0 && c.h > 0) s.Click(std::min(p.x(), c.w - 1), std::min(p.y(), c.h - 1));
    }
    for (Qt::Key key : keys)
      QTest::keyClick(s.origin, key);
    s.origin->setFocus();
    s.origin->grab();
  }
}

TEST(TLxOrigin, GridWithoutCellsHasNoHotCellAndIgnoresKeys) {
  Selector s;
  s.origin->SetNumCols(0);
  s.Click(50, 50);
  EXPECT_EQ(s.origin->GetHotCol(), -1);
  EXPECT_EQ(s.origin->GetSelectedButton(), 0);
  QTest::keyClick(s.origin, Qt::Key_Home);
  EXPECT_EQ(s.origin->GetSelectedButton(), 0);
  EXPECT_EQ(s.changes.count(), 0);
  EXPECT_TRUE(s.parent.keys.isEmpty());
}

TEST(TLxOrigin, PublishedPropertiesAreQtProperties) {
  Selector s;
  EXPECT_EQ(s.origin->property("NumRows").toInt(), 3);
  EXPECT_EQ(s.origin->property("NumCols").toInt(), 3);
  EXPECT_EQ(s.origin->property("SelectedButton").toInt(), 0);
  EXPECT_TRUE(s.origin->setProperty("SelectedButton", 7));
  EXPECT_EQ(s.origin->GetSelRow(), 2);
  EXPECT_TRUE(s.origin->setProperty("Width", 60));
  EXPECT_EQ(s.origin->width(), 60);
}

}  // namespace
