#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QSignalSpy>
#include <QTest>

#include <numeric>

#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxTabControl.h"

namespace {

struct Tabs {
  QWidget parent;
  lx::TLxTabControl* tabs = new lx::TLxTabControl(&parent);
  QSignalSpy changes{tabs, &lx::TLxTabControl::OnChange};

  explicit Tabs(const QStringList& texts = {"Layers", "Objects", "Grid"}) {
    parent.resize(400, 100);
    tabs->resize(400, tabs->height());
    tabs->SetTabs(&texts);
    parent.show();
    [[maybe_unused]] const bool exposed = QTest::qWaitForWindowExposed(&parent);
    tabs->grab();  // one paint measures the tabs
  }
  int Left(int tab) const {
    const auto& w = tabs->GetTabWidths();
    return std::accumulate(w.begin(), w.begin() + tab, 0);
  }
  void Click(int x) {
    QTest::mouseMove(tabs, QPoint(x, 10));
    QTest::mouseClick(tabs, Qt::LeftButton, Qt::NoModifier, QPoint(x, 10));
  }
};

TEST(TLxTabControl, MeasuresFromTheScaleFactorAndTheTexts) {
  Tabs t;
  const double scale = lx::ScaleFactor(t.tabs);
  EXPECT_EQ(t.tabs->GetTabMargin(), scale);
  const QFontMetrics metrics = t.tabs->fontMetrics();
  EXPECT_EQ(t.tabs->height(), static_cast<int>(scale * 4.0 + metrics.height()));
  ASSERT_EQ(t.tabs->GetTabWidths().size(), 3u);
  for (int i = 0; i < 3; ++i)
    EXPECT_EQ(t.tabs->GetTabWidths()[i],
              static_cast<int>(scale * 8.0 + metrics.horizontalAdvance(t.tabs->GetTabs()[i])));
}

TEST(TLxTabControl, HitTestingUsesRunningSumsOfWidths) {
  Tabs t;
  const int end = t.Left(3);
  const struct {
    int x, tab;
  } cases[] = {{0, 0},         {t.Left(1) - 1, 0}, {t.Left(1), 1}, {t.Left(2) - 1, 1},
               {t.Left(2), 2}, {end - 1, 2},       {end, -1},      {end + 50, -1}};
  for (const auto& c : cases)
    EXPECT_EQ(t.tabs->TabAt(c.x), c.tab) << c.x;
}

TEST(TLxTabControl, OnlyAClickOnAnotherTabNotifies) {
  Tabs t;
  t.tabs->SetTabIndex(0);
  EXPECT_EQ(t.changes.count(), 0);
  t.Click(t.Left(1) + 2);
  EXPECT_EQ(t.tabs->GetTabIndex(), 1);
  EXPECT_EQ(t.changes.count(), 1);
  EXPECT_EQ(t.changes.first().first().value<QObject*>(), t.tabs);
  t.Click(t.Left(1) + 5);
  EXPECT_EQ(t.changes.count(), 1);
  QTest::mouseClick(t.tabs, Qt::LeftButton, Qt::NoModifier, QPoint(3, 5));  // no move first
  EXPECT_EQ(t.tabs->GetTabIndex(), 0);
  EXPECT_EQ(t.changes.count(), 2);
  t.tabs->SetTabIndex(2);
  EXPECT_EQ(t.changes.count(), 2);
  EXPECT_EQ(t.tabs->accessibleDescription(), "Grid");
}

TEST(TLxTabControl, HotTabStaysWhenTheMouseLeavesTheTabs) {
  Tabs t;
  EXPECT_EQ(t.tabs->GetHotTab(), -1);
  QTest::mouseMove(t.tabs, QPoint(t.Left(2) + 1, 5));
  EXPECT_EQ(t.tabs->GetHotTab(), 2);
  QTest::mouseMove(t.tabs, QPoint(t.Left(3) + 20, 5));
  EXPECT_EQ(t.tabs->GetHotTab(), 2);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(t.tabs, &leave);
  EXPECT_EQ(t.tabs->GetHotTab(), 2);
}

TEST(TLxTabControl, ArrowKeysPickTheNeighbouringTab) {
  Tabs t;
  t.tabs->SetTabIndex(1);
  QTest::keyClick(t.tabs, Qt::Key_Right);
  QTest::keyClick(t.tabs, Qt::Key_Right);
  EXPECT_EQ(t.tabs->GetTabIndex(), 2);
  EXPECT_EQ(t.changes.count(), 1);
  QTest::keyClick(t.tabs, Qt::Key_Left);
  EXPECT_EQ(t.tabs->GetTabIndex(), 1);
}

bool Uniform(const QImage& image) {
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x)
      if (image.pixel(x, y) != image.pixel(0, 0)) return false;
  return true;
}

TEST(TLxTabControl, WithoutAVisualStyleNoTabsAreDrawn) {
  Tabs t;
  t.tabs->SetTabIndex(1);
  EXPECT_FALSE(Uniform(t.tabs->grab().toImage()));
  lx::SetVisualStyles(false);
  const QImage plain = t.tabs->grab().toImage();
  lx::SetVisualStyles(true);
  EXPECT_TRUE(Uniform(plain));
}

TEST(TLxTabControl, EmptyListsAndStrayIndexesAreHarmless) {
  for (int index : {-5, -1, 0, 3, 1000}) {
    Tabs t(QStringList{});
    t.tabs->SetTabIndex(index);
    t.tabs->grab();
    t.Click(5);
    QTest::keyClick(t.tabs, Qt::Key_Left);
    QTest::keyClick(t.tabs, Qt::Key_Right);
    EXPECT_EQ(t.tabs->GetTabIndex(), index);
    EXPECT_EQ(t.changes.count(), 0);
    t.tabs->SetTabs(nullptr);
    t.tabs->resize(0, 0);
    t.tabs->grab();
    t.tabs->resize(1, 1);
    t.tabs->grab();
  }
  Tabs t;
  t.tabs->SetTabIndex(7);
  t.tabs->grab();
  t.Click(2);
  EXPECT_EQ(t.tabs->GetTabIndex(), 0);
}

}  // namespace
