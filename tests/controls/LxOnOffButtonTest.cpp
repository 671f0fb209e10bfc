#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>

#include "lxcomp/LxOnOffButton.h"
#include "support/KeyRecorder.h"

namespace {

using lxtest::KeyRecorder;

struct Fixture {
  KeyRecorder parent;
  lx::TLxOnOffButton* button = new lx::TLxOnOffButton(&parent);

  Fixture() {
    parent.resize(200, 100);
    button->SetCaption("Snap");
    button->setGeometry(10, 10, 80, 30);
    parent.show();
    parent.activateWindow();
    [[maybe_unused]] const bool active = QTest::qWaitForWindowActive(&parent);
  }
};

TEST(TLxOnOffButton, EveryMouseButtonTogglesOnThePress) {
  for (Qt::MouseButton mouse : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
    Fixture f;
    QTest::mousePress(f.button, mouse, Qt::NoModifier, QPoint(20, 10));
    EXPECT_TRUE(f.button->GetDown()) << mouse;
    EXPECT_TRUE(f.button->hasFocus()) << mouse;
    QTest::mouseRelease(f.button, mouse, Qt::NoModifier, QPoint(20, 10));
    EXPECT_TRUE(f.button->GetDown()) << mouse;
    QTest::mouseClick(f.button, mouse, Qt::NoModifier, QPoint(20, 10));
    EXPECT_FALSE(f.button->GetDown()) << mouse;
  }
}

struct KeyCase {
  Qt::Key key;
  bool toggles;
};

TEST(TLxOnOffButton, SpaceTogglesAndEveryKeyIsSwallowed) {
  const KeyCase cases[] = {{Qt::Key_Space, true},   {Qt::Key_A, false},    {Qt::Key_Left, false},
                           {Qt::Key_Down, false},   {Qt::Key_Home, false}, {Qt::Key_F5, false},
                           {Qt::Key_Delete, false}, {Qt::Key_1, false}};
  for (const KeyCase& c : cases) {
    Fixture f;
    QTest::keyClick(f.button, c.key);
    EXPECT_EQ(f.button->GetDown(), c.toggles) << c.key;
    EXPECT_TRUE(f.parent.keys.isEmpty()) << c.key;
  }
}

TEST(TLxOnOffButton, DialogKeysReachTheDialog) {
  Fixture f;
  QTest::keyClick(f.button, Qt::Key_Escape);
  QTest::keyClick(f.button, Qt::Key_Return);
  EXPECT_EQ(f.parent.keys, (QList<int>{Qt::Key_Escape, Qt::Key_Return}));
  EXPECT_FALSE(f.button->GetDown());
}

TEST(TLxOnOffButton, HotFollowsTheMouse) {
  Fixture f;
  EXPECT_FALSE(f.button->GetHot());
  QTest::mouseMove(f.button, QPoint(30, 15));
  EXPECT_TRUE(f.button->GetHot());
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(f.button, &leave);
  EXPECT_FALSE(f.button->GetHot());
}

TEST(TLxOnOffButton, StateIsPublishedAndAnnounced) {
  Fixture f;
  EXPECT_TRUE(f.button->GetTabStop());
  EXPECT_EQ(f.button->accessibleName(), "Snap");
  EXPECT_EQ(f.button->accessibleDescription(), "Off");
  EXPECT_TRUE(f.button->setProperty("Down", true));
  EXPECT_EQ(f.button->accessibleDescription(), "On");
  EXPECT_EQ(f.button->property("Caption").toString(), "Snap");
}

TEST(TLxOnOffButton, TabOrderIsThePlaceInTheFocusChain) {
  Fixture f;
  auto* second = new lx::TLxOnOffButton(&f.parent);
  auto* third = new lx::TLxOnOffButton(&f.parent);
  EXPECT_EQ(f.button->GetTabOrder(), 0);
  EXPECT_EQ(second->property("TabOrder").toInt(), 1);
  EXPECT_EQ(third->GetTabOrder(), 2);
  second->SetTabStop(false);
  EXPECT_EQ(second->focusPolicy(), Qt::ClickFocus);
}

TEST(TLxOnOffButton, PaintsAtAnySizeInEveryState) {
  for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(3, 40), QSize(200, 2)}) {
    Fixture f;
    f.button->resize(size);
    f.button->SetBackColor(0x00ff00);
    for (bool down : {false, true}) {
      f.button->SetDown(down);
      QTest::mouseMove(f.button, QPoint(0, 0));
      f.button->setFocus();
      f.button->grab();
    }
  }
}

}  // namespace
