#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QLabel>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "lxcomp/LxButtonGroupBox.h"
#include "support/KeyRecorder.h"

namespace {

using lxtest::KeyRecorder;

// A group of 30 x 30 speed buttons laid out in `columns` columns.
struct Group {
  KeyRecorder parent;
  lx::TLxButtonGroup* group = new lx::TLxButtonGroup(&parent);
  QList<QToolButton*> buttons;
  QSignalSpy changes{group, &lx::TLxButtonGroup::OnChange};

  Group(int count, int columns) {
    parent.resize(300, 300);
    const int rows = (count + columns - 1) / columns;
    group->setGeometry(10, 10, columns * 30, rows * 30);
    for (int i = 0; i < count; ++i) {
      auto* button = new QToolButton(group);
      button->setCheckable(true);
      button->setAutoExclusive(true);
      button->setGeometry((i % columns) * 30, (i / columns) * 30, 30, 30);
      buttons.append(button);
    }
    parent.show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(&parent);
  }
  int Current() const { return static_cast<int>(buttons.indexOf(group->CurrentButton())); }
};

struct NavCase {
  int count, columns;
  int down;  // -1: none
  Qt::Key key;
  int expected;  // the current button after the key; -1: none
  bool consumed;
};

TEST(TLxButtonGroup, KeysMoveAmongTheSpeedButtons) {
  const NavCase cases[] = {
      {3, 3, 0, Qt::Key_Right, 1, true},  {3, 3, 2, Qt::Key_Right, 2, false},
      {3, 3, 2, Qt::Key_Space, 0, true},  {3, 3, 0, Qt::Key_Space, 1, true},
      {3, 3, 1, Qt::Key_Left, 0, true},   {3, 3, 0, Qt::Key_Left, 0, false},
      {3, 3, 2, Qt::Key_Home, 0, true},   {3, 3, 1, Qt::Key_Up, 1, false},
      {3, 3, 1, Qt::Key_End, 1, false},   {3, 3, 1, Qt::Key_PageDown, 1, false},
      {4, 2, 0, Qt::Key_Down, 2, true},   {4, 2, 3, Qt::Key_Up, 1, true},
      {4, 2, 2, Qt::Key_Down, 2, false},  {4, 2, 3, Qt::Key_Left, 2, true},
      {3, 3, -1, Qt::Key_Space, 0, true}, {3, 3, -1, Qt::Key_Right, -1, false},
      {3, 3, -1, Qt::Key_Home, 0, true},  {3, 3, 0, Qt::Key_A, 0, false},
  };
  for (const NavCase& c : cases) {
    Group g(c.count, c.columns);
    if (c.down >= 0) g.buttons[c.down]->setChecked(true);
    QTest::keyClick(g.group, c.key);
    const QString where =
        QString("%1 buttons, down %2, key %3").arg(c.count).arg(c.down).arg(c.key);
    EXPECT_EQ(g.Current(), c.expected) << where.toStdString();
    EXPECT_EQ(g.parent.keys.isEmpty(), c.consumed) << where.toStdString();
    EXPECT_EQ(g.changes.count(), c.consumed ? 1 : 0) << where.toStdString();
    if (c.consumed && !g.changes.isEmpty()) {
      EXPECT_EQ(g.changes.first().first().value<QObject*>(), g.buttons[c.expected]);
    }
  }
}

TEST(TLxButtonGroup, SpaceWrapsOnlyToASpeedButton) {
  KeyRecorder parent;
  auto* group = new lx::TLxButtonGroup(&parent);
  group->setGeometry(0, 0, 90, 30);
  new QLabel("x", group);  // child 0 is not a speed button
  auto* button = new QToolButton(group);
  button->setCheckable(true);
  button->setChecked(true);
  button->setGeometry(30, 0, 30, 30);
  QSignalSpy changes(group, &lx::TLxButtonGroup::OnChange);
  QTest::keyClick(group, Qt::Key_Space);
  EXPECT_EQ(changes.count(), 0);
  EXPECT_EQ(parent.keys, QList<int>{Qt::Key_Space});
  QTest::keyClick(group, Qt::Key_Home);
  EXPECT_EQ(changes.count(), 1);
}

TEST(TLxButtonGroup, WithoutSpeedButtonsEveryKeyPassesOn) {
  KeyRecorder parent;
  auto* group = new lx::TLxButtonGroup(&parent);
  group->setGeometry(0, 0, 90, 30);
  new QLabel("only a label", group);
  for (Qt::Key key :
       {Qt::Key_Space, Qt::Key_Home, Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down})
    QTest::keyClick(group, key);
  EXPECT_EQ(parent.keys.size(), 6);
}

TEST(TLxButtonGroup, HotTimerFollowsTheCursorWhileVisible) {
  Group g(3, 3);
  EXPECT_EQ(g.group->GetTimer()->interval(), 300);
  EXPECT_TRUE(g.group->GetTimer()->isActive());
  QCursor::setPos(g.group->mapToGlobal(QPoint(45, 15)));
  if (!g.group->rect().contains(g.group->mapFromGlobal(QCursor::pos())))
    GTEST_SKIP() << "this platform cannot place the cursor";
  g.group->DoTimer();
  EXPECT_TRUE(g.group->GetHot());
  QCursor::setPos(g.group->mapToGlobal(QPoint(200, 200)));
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(g.group, &leave);
  EXPECT_FALSE(g.group->GetHot());
  g.parent.hide();
  g.group->DoTimer();
  EXPECT_FALSE(g.group->GetTimer()->isActive());
}

TEST(TLxButtonGroup, PaintsAtAnySize) {
  for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(3, 3), QSize(400, 2)}) {
    Group g(2, 2);
    g.group->resize(size);
    g.group->SetHot(true);
    g.group->grab();
    QTest::keyClick(g.group, Qt::Key_Right);
  }
}

}  // namespace
