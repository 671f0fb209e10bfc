#include <gtest/gtest.h>

#include <QImage>
#include <QTimer>

#include "lxcomp/LxProgress.h"
#include "lxcomp/LxRegistry.h"

namespace {

TEST(TLxProgress, BlocksOfA32PixelIndicator) {
  lx::TLxProgress indicator;
  indicator.resize(32, 32);
  const QImage shot = indicator.grab().toImage();
  EXPECT_EQ(indicator.GetBlockWidth(), 8);
  EXPECT_EQ(indicator.GetBlockHeight(), 8);
  EXPECT_EQ(indicator.BlockRect(4), QRect(24, 24, 8, 8));
  EXPECT_EQ(indicator.BlockRect(7), QRect(0, 12, 8, 8));
  EXPECT_EQ(indicator.BlockRect(8), QRect(12, 12, 8, 8));
  EXPECT_TRUE(indicator.BlockRect(9).isEmpty());
  EXPECT_TRUE(indicator.BlockRect(-1).isEmpty());
  const QColor block = lx::ToQColor(indicator.GetBlockColor());
  EXPECT_EQ(block, QColor(0, 0xCF, 0xEE));
  EXPECT_NE(shot.pixelColor(4, 4), block);  // the gap at position 0
  for (QPoint inside : {QPoint(16, 4), QPoint(28, 28), QPoint(16, 16), QPoint(4, 16)})
    EXPECT_EQ(shot.pixelColor(inside), block) << inside.x() << "," << inside.y();
  EXPECT_NE(shot.pixelColor(10, 4), block);  // between blocks
}

TEST(TLxProgress, GapRunsClockwiseAndSkipsTheCentre) {
  lx::TLxProgress indicator;
  indicator.resize(32, 32);
  for (int step = 1; step <= 8; ++step) {
    indicator.OnTimer();
    EXPECT_EQ(indicator.GetPosition(), step % 8);
  }
  indicator.OnTimer();
  indicator.OnTimer();
  const QImage shot = indicator.grab().toImage();
  EXPECT_EQ(indicator.GetPosition(), 2);
  EXPECT_NE(shot.pixelColor(28, 4), lx::ToQColor(indicator.GetBlockColor()));  // block 2
  EXPECT_EQ(shot.pixelColor(28, 16), lx::ToQColor(indicator.GetBlockColor()));
  EXPECT_EQ(shot.pixelColor(4, 4), lx::ToQColor(indicator.GetBlockColor()));
}

TEST(TLxProgress, OnlyAnAutonomousIndicatorMakesTimers) {
  lx::TLxProgress still;
  still.resize(50, 50);
  (void)still.grab();
  still.OnTimer();
  (void)still.grab();
  EXPECT_EQ(still.GetAnimationTimer(), nullptr);
  EXPECT_TRUE(still.findChildren<QTimer*>().isEmpty());

  lx::TLxProgress running;
  running.resize(50, 50);
  running.SetAutonomous(true);
  (void)running.grab();
  (void)running.grab();
  ASSERT_NE(running.GetAnimationTimer(), nullptr);
  EXPECT_EQ(running.GetAnimationTimer()->interval(), 120);
  EXPECT_EQ(running.findChildren<QTimer*>().size(), 2);  // each repaint adds one
  running.OnTimer();
  (void)running.grab();  // a step is no repaint: no timer more
  EXPECT_EQ(running.findChildren<QTimer*>().size(), 2);
}

TEST(TLxProgress, RegistersOnThePalettePage) {
  lx::RegisterAllComponents();
  bool found = false;
  for (const auto& entry : lx::RegisteredComponents())
    found |= entry.Page == "Quarnel" && entry.Class.ClassName == "TLxProgress";
  EXPECT_TRUE(found);
}

}  // namespace
