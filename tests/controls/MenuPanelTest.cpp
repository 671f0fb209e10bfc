// The menu bar: title geometry, scaling, hot titles, the open loop and the hand-over timer.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QTest>
#include <QTimer>

#include <functional>
#include <limits>
#include <memory>

#include "controls/MenuGeometry.h"
#include "lxcomp/MenuPanel.h"

using namespace lx;

namespace {

TEST(MenuGeometryTest, HitTestingAndTruncatedLeftEdges) {
  const std::pair<int, int> hits[] = {{0, 0},    {49, 0},   {50, 1}, {119, 1},
                                      {120, -1}, {500, -1}, {-3, 0}};  // x, title
  for (auto [x, title] : hits)
    EXPECT_EQ(menugeometry::HitTitle({40.0f, 60.0f}, 10.0f, x), title) << x;
  EXPECT_EQ(menugeometry::HitTitle({}, 10.0f, 0), -1);
  const std::pair<int, int> lefts[] = {{0, 0}, {1, 10}, {2, 20}, {3, 30}, {9, 30}};  // not 21.2
  for (auto [index, left] : lefts)
    EXPECT_EQ(menugeometry::TitleLeft({10.6f, 10.6f, 10.6f}, 0.0f, index), left) << index;
}

class MenuTest : public testing::Test {
 protected:
  void SetUp() override {
    host = std::make_unique<QWidget>();
    host->setGeometry(40, 30, 500, 200);
    bar = new TLxMenuPanel(host.get());
    bar->setGeometry(0, 0, 500, 24);
    for (const char* name : {"&File", "&Edit", "&View"}) {
      auto* popup = new QMenu(host.get());
      popup->addAction(QStringLiteral("Item of ") + name);
      TLxMenu* menu = bar->GetMenus()->Add();
      menu->SetName(name);
      menu->SetPopupMenu(popup);
    }
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    host->activateWindow();
    QApplication::processEvents();
  }

  QPoint TitleCentre(int index) { return bar->TitleRect(index).center(); }
  // Runs `check` once the popup of `menu` shows (inside its modal loop).
  static void WhenOpen(QMenu* menu, std::function<void()> check) {
    auto* poll = new QTimer();
    QObject::connect(poll, &QTimer::timeout, poll, [poll, menu, check] {
      if (QApplication::activePopupWidget() != menu) return;
      poll->deleteLater();
      check();
    });
    poll->start(10);
  }
  TLxMenu* Menu(int index) { return bar->GetMenus()->Items(index); }
  QMenu* Popup(int index) { return Menu(index)->GetPopupMenu(); }
  std::unique_ptr<QWidget> host;
  TLxMenuPanel* bar = nullptr;
};

TEST_F(MenuTest, MeasuresOnPaintAndRescales) {
  bar->grab();
  EXPECT_EQ(bar->font().pixelSize(), 12);
  EXPECT_EQ(bar->height(), 4 + QFontMetrics(bar->font()).height());
  const float file = Menu(0)->GetTitleWidth();
  EXPECT_FLOAT_EQ(file, QFontMetricsF(bar->font()).horizontalAdvance("File"));
  EXPECT_EQ(bar->TitleRect(1).left(), static_cast<int>(file + 10.0f));
  bar->GetMenus()->Add()->SetName("&Help");
  EXPECT_EQ(bar->TitleAt(bar->TitleLeft(3) + 1), 3) << "a title added later is measured";
  bar->SetTextScaleFactor(1.5f);
  bar->grab();
  EXPECT_EQ(bar->font().pixelSize(), 18);
  EXPECT_EQ(bar->height(), 6 + QFontMetrics(bar->font()).height());
  EXPECT_GT(Menu(0)->GetTitleWidth(), file);
  EXPECT_EQ(bar->TitleAt(bar->TitleLeft(1) + 1), 1);
  for (float bad : {0.0f, 1e30f, std::numeric_limits<float>::infinity()})
    bar->SetTextScaleFactor(bad);
  EXPECT_FLOAT_EQ(bar->GetTextScaleFactor(), 1.5f);
}

TEST_F(MenuTest, HotTitleFollowsTheMouse) {
  bar->grab();
  const std::pair<QPoint, int> moves[] = {
      {TitleCentre(1), 1}, {TitleCentre(0), 0}, {QPoint(480, 5), -1}, {TitleCentre(2), 2}};
  for (auto [point, hot] : moves) {
    QTest::mouseMove(bar, point);
    EXPECT_EQ(bar->GetHotMenu(), hot < 0 ? nullptr : Menu(hot)) << hot;
    for (int i = 0; i < 3; ++i)
      EXPECT_EQ(bar->IsTitleSelected(Menu(i)), i == hot) << hot;
  }
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(bar, &leave);
  EXPECT_EQ(bar->GetHotMenu(), nullptr);
}

TEST_F(MenuTest, DoMenuOpensThePopupBelowItsTitle) {
  bool checked = false;
  WhenOpen(Popup(1), [&] {
    checked = true;
    EXPECT_EQ(bar->GetOpenIndex(), 1);
    EXPECT_TRUE(bar->GetTimer()->isActive());
    EXPECT_EQ(bar->GetTimer()->interval(), 200);
    EXPECT_TRUE(bar->IsTitleSelected(Menu(1)));
    EXPECT_EQ(Popup(1)->pos(), bar->mapToGlobal(QPoint(bar->TitleLeft(1), bar->height())));
    Popup(1)->close();
  });
  bar->DoMenu(1);
  EXPECT_TRUE(checked);
  EXPECT_FALSE(bar->GetTimer()->isActive());
  EXPECT_FALSE(bar->IsTitleSelected(Menu(1)));
}

TEST_F(MenuTest, TimerHandsOverToTheTitleUnderTheMouse) {
  std::vector<int> opened;
  WhenOpen(Popup(0), [&] {
    opened.push_back(0);
    QCursor::setPos(bar->mapToGlobal(TitleCentre(0)));
    bar->OnTimer();
    EXPECT_TRUE(bar->GetOverOpenTitle());
    EXPECT_EQ(bar->GetNextIndex(), -1) << "over the open title: nothing";
    QCursor::setPos(bar->mapToGlobal(QPoint(10, 100)));
    bar->OnTimer();
    EXPECT_EQ(bar->GetNextIndex(), -1) << "outside the bar: nothing";
    EXPECT_EQ(QApplication::activePopupWidget(), Popup(0));
    WhenOpen(Popup(2), [&] {
      opened.push_back(2);
      EXPECT_EQ(bar->GetOpenIndex(), 2);
      bar->SetItemSelected(false);
      EXPECT_TRUE(bar->GetTimer()->isActive());
      bar->SetItemSelected(true);
      EXPECT_FALSE(bar->GetTimer()->isActive());
      Popup(2)->close();
    });
    QCursor::setPos(bar->mapToGlobal(TitleCentre(2)));  // the timer itself notices this
  });
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, TitleCentre(0));
  EXPECT_EQ(opened, (std::vector<int>{0, 2}));
  EXPECT_FALSE(bar->GetTimer()->isActive());
}

TEST_F(MenuTest, AClickOnTheOpenTitleOnlyClosesIt) {
  WhenOpen(Popup(0), [&] {
    QCursor::setPos(bar->mapToGlobal(TitleCentre(0)));
    bar->OnTimer();
    Popup(0)->close();
  });
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, TitleCentre(0));
  ASSERT_TRUE(bar->GetOverOpenTitle());
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, TitleCentre(0));
  EXPECT_EQ(bar->GetOpenIndex(), -1);
  EXPECT_EQ(bar->GetOpenMenu(), nullptr);
  EXPECT_FALSE(bar->GetOverOpenTitle());
  EXPECT_FALSE(bar->IsTitleSelected(Menu(0)));
}

TEST_F(MenuTest, ATitleRemovedWhileItsMenuIsOpenIsNotTouched) {
  QMenu *file = Popup(0), *view = Popup(2);
  WhenOpen(file, [&] {
    bar->GetMenus()->Delete(0);
    WhenOpen(view, [&] { view->close(); });
    QCursor::setPos(bar->mapToGlobal(TitleCentre(1)));  // the title of View now
    bar->OnTimer();
    file->close();
  });
  bar->DoMenu(0);
  EXPECT_EQ(bar->GetOpenMenu(), Menu(1));
}

TEST_F(MenuTest, BadIndicesTitlesWithoutPopupsAndEmptyBarsAreSafe) {
  bar->DoMenu(-1);
  bar->DoMenu(3);
  EXPECT_EQ(bar->GetOpenIndex(), -1);
  Menu(1)->SetPopupMenu(nullptr);
  bar->DoMenu(1);
  EXPECT_FALSE(bar->GetTimer()->isActive());
  TLxMenuCollection none;
  bar->SetCollection(&none);
  EXPECT_EQ(bar->GetMenus()->Count(), 0);
  bar->grab();
  QTest::mouseClick(bar, Qt::LeftButton, Qt::NoModifier, QPoint(5, 5));
  bar->OnTimer();
  bar->DoMenu(0);
  bar->GetMenus()->Delete(3);
  EXPECT_EQ(Menu(0), nullptr);
}

}  // namespace
