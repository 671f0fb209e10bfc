// Dock panels in a window: layout on load, drags of a toolbar's grip with real mouse events,
// docking, floating, hiding, and the saved layout.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QTest>

#include <memory>

#include "lxcomp/DockPanel.h"
#include "lxcomp/LxRegistry.h"
#include "lxcomp/UnitFloatingWindow.h"
#include "support/TempDir.h"

using namespace lx;

namespace {

// Mouse events as the window system delivers them while a button is held: to the window under
// the mouse, with the screen position.
void SendMouse(QWidget* target, QEvent::Type type, QPoint global, Qt::MouseButtons buttons,
               Qt::MouseButton button = Qt::NoButton) {
  const QPointF local = target->mapFromGlobal(QPointF(global));
  QMouseEvent event(type, local, local, QPointF(global), button, buttons, Qt::NoModifier);
  QApplication::sendEvent(target, &event);
}

class DockTest : public testing::Test {
 protected:
  void SetUp() override {
    host = std::make_unique<QWidget>();
    host->resize(600, 400);
    host->move(50, 60);
    top = MakeDock(alTop);
    bottom = MakeDock(alBottom);
    left = MakeDock(alLeft);
    right = MakeDock(alRight);
    canvas = new QWidget(host.get());
    SetWidgetAlign(canvas, alClient);
    AddToolBar(top, "File", {lxNormalButton, lxNormalButton, lxNormalButton});
    AddToolBar(top, "Edit", {lxNormalButton, lxDropDown, lxSeparator, lxCheckButton});
  }
  void TearDown() override {
    host.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  TLxDockPanel* MakeDock(TAlign align) {
    auto* dock = new TLxDockPanel(host.get());
    dock->SetAlign(align);
    return dock;
  }
  TLxToolBarPanel* AddToolBar(TLxDockPanel* dock, const QString& name,
                              std::vector<TLxButtonType> types) {
    TLxToolBarPanel* toolBar = dock->GetToolBars()->Add();
    toolBar->SetName(name);
    for (TLxButtonType type : types) {
      TLxToolBarButton* button = toolBar->GetButtons()->Add();
      button->SetButtonType(type);
      auto* action = new QAction(name + " action", host.get());
      action->setToolTip(name + " tip");
      button->SetAction(action);
    }
    return toolBar;
  }
  void Load() {
    for (TLxDockPanel* dock : {top, bottom, left, right})
      dock->Loaded();
    host->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(host.get()));
    QApplication::processEvents();
  }
  TLxButtonPanel* Strip(const char* name) { return GetLxToolBar(QString::fromLatin1(name)); }
  // Presses on the grip of a strip and returns the screen point.
  QPoint PressGrip(TLxButtonPanel* strip) {
    const QPoint grip(3, 10);
    QTest::mousePress(strip, Qt::LeftButton, Qt::NoModifier, grip);
    return strip->mapToGlobal(grip);
  }
  void DragTo(QPoint global) { SendMouse(host.get(), QEvent::MouseMove, global, Qt::LeftButton); }
  void Release(QPoint global) {
    SendMouse(host.get(), QEvent::MouseButtonRelease, global, Qt::NoButton, Qt::LeftButton);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  std::unique_ptr<QWidget> host;
  TLxDockPanel *top = nullptr, *bottom = nullptr, *left = nullptr, *right = nullptr;
  QWidget* canvas = nullptr;
};

TEST_F(DockTest, LoadedLaysOutStripsAndDocks) {
  Load();
  EXPECT_TRUE(top->GetHorizontal());
  EXPECT_FALSE(left->GetHorizontal());
  EXPECT_TRUE(top->GetIsLoaded());
  EXPECT_EQ(Strip("File")->geometry(), QRect(0, 0, 80, 25));
  EXPECT_EQ(Strip("Edit")->geometry(), QRect(80, 0, 96, 25));  // grip 8, 24 + 32 + 8 + 24
  EXPECT_EQ(top->geometry(), QRect(0, 0, 600, 25));
  EXPECT_EQ(bottom->geometry(), QRect(0, 357, 600, 43));  // buttons + 1 + status line
  EXPECT_TRUE(left->isHidden());
  EXPECT_TRUE(right->isHidden());
  EXPECT_EQ(canvas->geometry(), QRect(0, 25, 600, 332));
  EXPECT_EQ(top->GetNumVisiblePanels(), 2);
  EXPECT_EQ(Strip("Edit")->GetButtons()->Items(0)->GetButton()->toolTip(), "Edit tip");
}

TEST_F(DockTest, ToolBarsAreFoundByExactName) {
  Load();
  EXPECT_EQ(Strip("Edit"), top->GetToolBars()->Items(1)->GetPanel());
  EXPECT_EQ(left->GetToolBar("File"), top->GetToolBars()->Items(0));
  EXPECT_EQ(GetLxToolBar("edit"), nullptr);
  EXPECT_EQ(left->GetToolBar("Nothing"), nullptr);
}

TEST_F(DockTest, DraggingTheGripAlongTheDockSwapsAtTheNeighboursStart) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  const QPoint start = PressGrip(edit);
  EXPECT_TRUE(edit->GetDragging());
  for (int dx = -10; dx > -80; dx -= 10) {
    DragTo(start + QPoint(dx, 0));
    EXPECT_EQ(edit->x(), 80) << "pushing File against the dock start leaves Edit behind it";
  }
  DragTo(start + QPoint(-80, 0));
  EXPECT_EQ(edit->x(), 0);
  EXPECT_EQ(Strip("File")->x(), 96);
  Release(start + QPoint(-80, 0));
  EXPECT_FALSE(edit->GetDragging());
  EXPECT_FALSE(edit->GetMouseIsDown());
}

TEST_F(DockTest, DraggingForwardPushesOrSwapsAndClampsAtTheEnd) {
  Load();
  TLxButtonPanel* file = Strip("File");
  TLxButtonPanel* edit = Strip("Edit");
  QPoint start = PressGrip(file);
  DragTo(start + QPoint(50, 0));
  EXPECT_EQ(file->x(), 50);
  EXPECT_EQ(edit->x(), 130) << "pushed ahead";
  Release(start + QPoint(50, 0));
  start = PressGrip(file);
  DragTo(start + QPoint(100, 0));
  EXPECT_EQ(edit->x(), 50) << "past the neighbour's end: swapped";
  EXPECT_EQ(file->x(), 146);
  Release(start + QPoint(100, 0));
  start = PressGrip(edit);
  DragTo(start + QPoint(2000, 0));
  EXPECT_EQ(edit->x(), 130) << "File ahead is swapped first";
  EXPECT_EQ(file->x(), 50);
  DragTo(start + QPoint(2001, 0));
  EXPECT_EQ(edit->x(), 600 - 96) << "then it stops at the dock's end";
  Release(start + QPoint(2001, 0));
}

TEST_F(DockTest, PressOutsideTheGripStartsNoDrag) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  const QPoint button(edit->GripLength() + 1, 10);
  QTest::mousePress(edit, Qt::LeftButton, Qt::NoModifier, button);
  EXPECT_FALSE(edit->GetDragging());
  QTest::mouseRelease(edit, Qt::LeftButton, Qt::NoModifier, button);
  QTest::mouseMove(edit, QPoint(2, 10));
  EXPECT_EQ(edit->cursor().shape(), Qt::SizeAllCursor);
  SendMouse(edit, QEvent::MouseMove, edit->mapToGlobal(QPoint(40, 10)), Qt::NoButton);
  EXPECT_EQ(edit->cursor().shape(), Qt::ArrowCursor);
}

TEST_F(DockTest, APressThatSlidesOntoTheGripStartsADrag) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5));
  SendMouse(edit, QEvent::MouseMove, edit->mapToGlobal(QPoint(2, 10)), Qt::LeftButton);
  EXPECT_TRUE(edit->GetDragging());
  Release(edit->mapToGlobal(QPoint(2, 10)));
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5));
  EXPECT_FALSE(edit->GetDragging());
}

TEST_F(DockTest, DraggingOutOfTheDockFloatsTheToolbar) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  const QPoint start = PressGrip(edit);
  const QPoint away = host->mapToGlobal(QPoint(300, 200));
  DragTo(away);
  ASSERT_NE(edit->GetFloatingWindow(), nullptr);
  EXPECT_TRUE(edit->IsFloating());
  EXPECT_TRUE(edit->isHidden());
  EXPECT_TRUE(edit->GetFloatingWindow()->isVisible());
  EXPECT_EQ(edit->GetFloatingWindow()->windowTitle(), "Edit");
  EXPECT_EQ(edit->GetFloatingWindow()->size(), QSize(24 + 32 + 8 + 24, 24));
  DragTo(away + QPoint(20, 30));
  EXPECT_EQ(edit->GetFloatingWindow()->pos(), away + QPoint(20, 30));
  Release(away + QPoint(20, 30));
  EXPECT_EQ(top->GetNumVisiblePanels(), 1);
  EXPECT_EQ(GetLxToolBar("Edit"), edit);
  Q_UNUSED(start);
}

TEST_F(DockTest, ATornOffToolbarDroppedOnItsDockDocksAgain) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  const QPoint start = PressGrip(edit);
  DragTo(host->mapToGlobal(QPoint(300, 200)));
  ASSERT_TRUE(edit->IsFloating());
  const QPoint back = host->mapToGlobal(QPoint(400, 10));
  DragTo(back);
  EXPECT_TRUE(edit->IsFloating()) << "its own dock takes no guest";
  Release(back);
  EXPECT_FALSE(edit->IsFloating());
  EXPECT_FALSE(edit->isHidden());
  EXPECT_EQ(edit->pos(), QPoint(400, 0));
  EXPECT_FALSE(edit->GetFloatingWindow()->isVisible());
  Q_UNUSED(start);
}

TEST_F(DockTest, DraggingIntoAnotherDockMovesTheToolbarThere) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  PressGrip(edit);
  DragTo(host->mapToGlobal(QPoint(300, 200)));
  const QPoint leftZone = host->mapToGlobal(QPoint(10, 100));
  ASSERT_TRUE(left->CanDockAt(leftZone.x(), leftZone.y())) << "an empty dock still accepts";
  DragTo(leftZone);
  EXPECT_EQ(edit->GetGuestDock(), left);
  ASSERT_NE(left->GetGuestPanel(), nullptr);
  DragTo(leftZone + QPoint(0, 30));
  Release(leftZone + QPoint(0, 30));
  TLxToolBarPanel* moved = top->GetToolBar("Edit");
  ASSERT_NE(moved, nullptr);
  EXPECT_EQ(moved->GetDock(), left);
  EXPECT_EQ(top->GetToolBars()->Count(), 1);
  EXPECT_FALSE(moved->GetPanel()->GetHorizontal());
  EXPECT_EQ(moved->GetPanel()->size(), QSize(25, 96));
  EXPECT_EQ(moved->GetPanel()->y(), 130 - 25);
  EXPECT_TRUE(left->isVisible());
  EXPECT_EQ(left->width(), 25);
  EXPECT_EQ(left->GetGuestPanel(), nullptr);
}

TEST_F(DockTest, LeavingTheGuestDockFloatsAgainAndDropsTheCopy) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  PressGrip(edit);
  DragTo(host->mapToGlobal(QPoint(300, 200)));
  DragTo(host->mapToGlobal(QPoint(10, 100)));
  ASSERT_EQ(left->GetToolBars()->Count(), 1);
  DragTo(host->mapToGlobal(QPoint(300, 100)));
  EXPECT_EQ(left->GetToolBars()->Count(), 0);
  EXPECT_TRUE(left->isHidden());
  EXPECT_TRUE(edit->GetFloatingWindow()->isVisible());
  Release(host->mapToGlobal(QPoint(300, 100)));
  EXPECT_EQ(GetLxToolBar("Edit"), edit);
}

TEST_F(DockTest, HidingAndShowingADockedToolbar) {
  Load();
  TLxToolBarPanel* file = top->GetToolBar("File");
  file->SetVisible(false);
  EXPECT_FALSE(file->GetVisible());
  EXPECT_TRUE(file->GetWasDocked());
  EXPECT_EQ(file->GetHiddenPos(), top->mapToGlobal(QPoint(0, 0)));
  EXPECT_TRUE(file->GetPanel()->isHidden());
  EXPECT_FALSE(file->GetPanel()->GetFloatingWindow()->isVisible());
  file->SetVisible(true);
  EXPECT_FALSE(file->GetPanel()->isHidden());
  EXPECT_FALSE(file->GetPanel()->IsFloating());
  EXPECT_EQ(file->GetPanel()->geometry(), QRect(0, 0, 80, 25));
  EXPECT_EQ(file->GetPanel()->GetButtons()->Items(0)->GetButton()->parentWidget(),
            file->GetPanel());
}

TEST_F(DockTest, HidingAFloatingToolbarHidesItsWindow) {
  Load();
  TLxToolBarPanel* file = top->GetToolBar("File");
  file->GetPanel()->MakeFloating(200, 200, true);
  file->SetVisible(false);
  EXPECT_FALSE(file->GetWasDocked());
  EXPECT_FALSE(file->GetPanel()->GetFloatingWindow()->isVisible());
  file->SetVisible(true);
  EXPECT_TRUE(file->GetPanel()->GetFloatingWindow()->isVisible());
  file->GetPanel()->GetFloatingWindow()->close();
  EXPECT_FALSE(file->GetVisible());
}

TEST_F(DockTest, AFloatingWindowDroppedOnADockDocksThere) {
  Load();
  TLxButtonPanel* file = Strip("File");
  file->MakeFloating(400, 400, true);
  const QPoint overLeft = host->mapToGlobal(QPoint(10, 150));
  QCursor::setPos(overLeft);
  file->GetFloatingWindow()->move(overLeft - QPoint(5, 5));
  QTest::qWait(100);
  EXPECT_EQ(top->GetToolBar("File")->GetDock(), top) << "still moving";
  QTest::qWait(400);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  TLxToolBarPanel* moved = top->GetToolBar("File");
  ASSERT_NE(moved, nullptr);
  EXPECT_EQ(moved->GetDock(), left);
  EXPECT_FALSE(moved->GetPanel()->isHidden());
}

TEST_F(DockTest, AFloatingWindowMovedByTheProgramStaysFloating) {
  Load();
  TLxButtonPanel* file = Strip("File");
  file->MakeFloating(400, 400, true);
  QCursor::setPos(host->mapToGlobal(QPoint(10, 150)));
  file->GetFloatingWindow()->move(host->mapToGlobal(QPoint(300, 150)));
  QTest::qWait(400);
  EXPECT_TRUE(file->IsFloating());
  EXPECT_EQ(top->GetToolBar("File")->GetPanel(), file);
}

TEST_F(DockTest, ReloadingRelaysAFloatingWindow) {
  Load();
  TLxButtonPanel* edit = Strip("Edit");
  edit->MakeFloating(300, 300, true);
  top->SetScaleFactor(2.0f);
  top->Loaded();
  EXPECT_EQ(edit->GetFloatingWindow()->size(), QSize(4 * 48, 48));
  EXPECT_EQ(edit->GetButtons()->Items(1)->GetButton()->geometry(), QRect(48, 0, 64, 48));
}

TEST(RegisterTest, ControlsAreOnThePalette) {
  RegisterAllComponents();
  for (const char* name :
       {"TLxDockPanel", "TLxButtonPanel", "TLxMenuPanel", "TLxFloatingToolWindow"}) {
    const auto& palette = RegisteredComponents();
    const auto entry = std::find_if(palette.begin(), palette.end(), [&](const auto& e) {
      return e.Class.ClassName == QLatin1String(name);
    });
    ASSERT_NE(entry, palette.end()) << name;
    EXPECT_EQ(entry->Page, "Quarnel");
    if (!entry->Class.Create) continue;
    std::unique_ptr<QWidget> widget(entry->Class.Create(nullptr));
    EXPECT_STREQ(widget->metaObject()->className(), (std::string("lx::") + name).c_str());
  }
}

TEST_F(DockTest, DockToABottomDockTakesPosAsY) {
  Load();
  top->GetToolBar("Edit")->DockTo(bottom, 30);
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  ASSERT_EQ(edit->GetDock(), bottom);
  EXPECT_EQ(edit->GetPanel()->pos(), QPoint(0, 0));
  edit->DockTo(bottom, 5);
  EXPECT_EQ(edit->GetPanel()->pos(), QPoint(0, 5));
  edit->DockTo(top, 300);
  edit = top->GetToolBar("Edit");
  EXPECT_EQ(edit->GetDock(), top);
  EXPECT_EQ(edit->GetPanel()->pos(), QPoint(300, 0));
  EXPECT_TRUE(bottom->isVisible());
  EXPECT_EQ(bottom->height(), 1 + bottom->GetStatusHeight()) << "an empty bottom dock";
}

TEST_F(DockTest, EmptiedTopDockHides) {
  Load();
  top->GetToolBar("Edit")->DockTo(left, 0);
  top->GetToolBar("File")->DockTo(left, 100);
  EXPECT_TRUE(top->isHidden());
  EXPECT_EQ(left->GetNumVisiblePanels(), 2);
  EXPECT_EQ(canvas->geometry().top(), 0);
}

// ---- saved layout ----

class SavedLayoutTest : public DockTest {
 protected:
  lxtest::TempDir dir;
  QSettings store{dir.Path("layout.ini"), QSettings::IniFormat};
  void Write(const QString& key, std::map<QString, QVariant> values) {
    store.beginGroup(key);
    for (const auto& [name, value] : values)
      store.setValue(name, value);
    store.endGroup();
  }
  int Read(const QString& key, const char* name) {
    return store.value(key + "/" + name, -999).toInt();
  }
};

TEST_F(SavedLayoutTest, SaveWritesTheDockedPlace) {
  Load();
  EXPECT_EQ(top->GetToolBar("Edit")->SaveState(store, "Toolbars/Edit"), 0);
  const std::pair<const char*, int> expected[] = {{"dockpanel", 3}, {"docked", 1}, {"left", 80},
                                                  {"top", 0},       {"width", 96}, {"height", 25},
                                                  {"visible", 1}};
  for (auto [name, value] : expected)
    EXPECT_EQ(Read("Toolbars/Edit", name), value) << name;
}

TEST_F(SavedLayoutTest, SaveOfAHiddenDockedToolbarSaysDocked) {
  Load();
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  edit->SetVisible(false);
  EXPECT_EQ(edit->SaveState(store, "Edit"), 0);
  EXPECT_EQ(Read("Edit", "docked"), 1);
  EXPECT_EQ(Read("Edit", "visible"), 0);
  EXPECT_EQ(Read("Edit", "left"), 80);
}

TEST_F(SavedLayoutTest, SaveOfAFloatingToolbarWritesTheWindow) {
  Load();
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  edit->GetPanel()->MakeFloating(210, 220, true);
  EXPECT_EQ(edit->SaveState(store, "Edit"), 0);
  EXPECT_EQ(Read("Edit", "docked"), 0);
  EXPECT_EQ(Read("Edit", "left"), 210);
  EXPECT_EQ(Read("Edit", "top"), 220);
  EXPECT_EQ(Read("Edit", "width"), 88);
  EXPECT_EQ(Read("Edit", "height"), 24);
  EXPECT_NE(edit->SaveState(store, ""), 0);
}

TEST_F(SavedLayoutTest, RoundTripOfEveryToolbar) {
  Load();
  top->GetToolBar("Edit")->DockTo(left, 40);
  top->GetToolBar("File")->GetPanel()->MakeFloating(300, 310, true);
  for (const char* name : {"File", "Edit"})
    top->GetToolBar(name)->SaveState(store, name);
  top->GetToolBar("Edit")->DockTo(top, 0);
  top->GetToolBar("File")->DockTo(top, 200);
  for (const char* name : {"File", "Edit"})
    EXPECT_TRUE(top->GetToolBar(name)->RestoreState(store, name)) << name;
  EXPECT_EQ(top->GetToolBar("Edit")->GetDock(), left);
  EXPECT_EQ(top->GetToolBar("Edit")->GetPanel()->pos(), QPoint(0, 40));
  TLxButtonPanel* file = Strip("File");
  EXPECT_TRUE(file->IsFloating());
  EXPECT_EQ(file->GetFloatingWindow()->pos(), QPoint(300, 310));
  EXPECT_TRUE(file->GetFloatingWindow()->isVisible());
}

struct RestoreCase {
  const char* what;
  std::map<QString, QVariant> values;
  bool result;
  QPoint editPos;  // where Edit then sits in the top dock
};

class RestoreCases : public SavedLayoutTest, public testing::WithParamInterface<RestoreCase> {};

TEST_P(RestoreCases, ResultAndPlace) {
  Load();
  const RestoreCase& c = GetParam();
  Write("Edit", c.values);
  EXPECT_EQ(top->GetToolBar("Edit")->RestoreState(store, "Edit"), c.result) << c.what;
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  ASSERT_NE(edit, nullptr);
  EXPECT_EQ(edit->GetDock(), top) << c.what;
  EXPECT_EQ(edit->GetPanel()->pos(), c.editPos) << c.what;
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RestoreCases,
    testing::Values(
        RestoreCase{"missing key keeps the place", {}, true, {80, 0}},
        RestoreCase{"negative left becomes 0",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", -5}, {"height", 25}},
                    true,
                    {0, 0}},
        RestoreCase{
            "unknown dock code", {{"dockpanel", 7}, {"docked", 1}, {"left", 10}}, false, {80, 0}},
        RestoreCase{"no dock code", {{"docked", 1}, {"left", 10}}, false, {80, 0}},
        RestoreCase{"dock code 0", {{"dockpanel", 0}, {"docked", 1}}, false, {80, 0}},
        RestoreCase{
            "corrupt values fall back",
            {{"dockpanel", 3}, {"docked", 1}, {"left", "abc"}, {"height", "x"}, {"visible", "?"}},
            true,
            {80, 0}},
        RestoreCase{"values beyond 32 bits fall back",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", qlonglong(1) << 40}},
                    true,
                    {80, 0}},
        RestoreCase{"hidden when saved hidden",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", 200}, {"visible", 0}},
                    false,
                    {200, 0}},
        RestoreCase{"rescaled by button size",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", 100}, {"height", 50}},
                    true,
                    {50, 0}},
        RestoreCase{"a wider screen's place stays inside the dock",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", 3000}, {"height", 25}},
                    true,
                    {600 - 96, 0}},
        RestoreCase{"zero saved height does not divide",
                    {{"dockpanel", 3}, {"docked", 1}, {"left", 120}, {"height", 0}},
                    true,
                    {120, 0}}));

TEST_F(SavedLayoutTest, RestoreIntoAVerticalDockRescalesByWidth) {
  left->SetButtonWidth(71);
  AddToolBar(left, "Tall", {lxNormalButton});
  Load();
  TLxToolBarPanel* tall = top->GetToolBar("Tall");
  ASSERT_EQ(tall->GetPanel()->width(), 72);
  Write("Tall", {{"dockpanel", 1}, {"docked", 1}, {"top", 100}, {"width", 48}, {"height", 30}});
  EXPECT_TRUE(tall->RestoreState(store, "Tall"));
  EXPECT_EQ(tall->GetPanel()->pos(), QPoint(0, 150));
}

TEST_F(SavedLayoutTest, RestoreIntoAnotherDockFromATallerScreenStaysInside) {
  Load();
  Write("Edit", {{"dockpanel", 1}, {"docked", 1}, {"top", 5000}, {"width", 25}, {"height", 96}});
  EXPECT_TRUE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  ASSERT_EQ(edit->GetDock(), left);
  EXPECT_EQ(edit->GetPanel()->geometry(), QRect(0, left->height() - 96, 25, 96));
  EXPECT_EQ(top->GetToolBars()->Count(), 1);
}

TEST_F(SavedLayoutTest, RestoreFromAnotherScreenKeepsTheWindowOnScreen) {
  Load();
  Write("Edit", {{"dockpanel", 3}, {"docked", 0}, {"left", 50000}, {"top", -300}});
  EXPECT_TRUE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  const TLxFloatingToolWindow* window = Strip("Edit")->GetFloatingWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(QApplication::primaryScreen()->geometry().contains(window->pos()));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(SavedLayoutTest, RestoreNeedsLoadedDocks) {
  Write("Edit", {{"dockpanel", 3}, {"docked", 1}, {"left", 10}});
  EXPECT_FALSE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  Write("File", {{"dockpanel", 1}, {"docked", 1}, {"left", 10}});
  EXPECT_FALSE(top->GetToolBar("File")->RestoreState(store, "File"));
  EXPECT_EQ(top->GetToolBar("File")->GetDock(), top);
}

// ---- degenerate input ----

TEST_F(DockTest, EmptyToolbarsAndDocksAreSafe) {
  TLxToolBarPanel* empty = AddToolBar(right, "Empty", {});
  Load();
  TLxButtonPanel* strip = empty->GetPanel();
  EXPECT_EQ(strip->size(), QSize(25, 8));
  int size = -1;
  EXPECT_EQ(strip->GetActualButtonSize(size), 0);
  EXPECT_EQ(size, 24);
  EXPECT_EQ(strip->MoveToolBarTo(-50, true), 0);
  right->MakeRoom(-5, 0);
  strip->MakeFloating(-100, -100, true);
  empty->SetVisible(false);
  empty->SetVisible(true);
  strip->MakeDocked(right, -10, -10);
  empty->DockTo(top, -50);
  EXPECT_EQ(top->GetToolBar("Empty")->GetPanel()->x(), 0);

  TLxDockPanel lonely;
  lonely.Loaded();
  lonely.Show();
  lonely.SetSize(0);
  lonely.SetSize(-100);
  lonely.MakeRoom(0, 100);
  EXPECT_FALSE(lonely.CanDockAt(0, 0) && lonely.size().isEmpty());
  EXPECT_EQ(lonely.GetNumVisiblePanels(), 0);
  lonely.ReleaseIfEmpty();
  EXPECT_TRUE(lonely.isHidden());
}

TEST(DockCollectionTest, DestroyedDocksLeaveTheCollection) {
  const int before = GetDockCollection()->Count();
  {
    TLxDockPanel dock;
    dock.GetToolBars()->Add()->SetName("Short-lived");
    EXPECT_EQ(GetDockCollection()->Count(), before + 1);
    EXPECT_NE(GetLxToolBar("Short-lived"), nullptr);
  }
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(GetDockCollection()->Count(), before);
  EXPECT_EQ(GetLxToolBar("Short-lived"), nullptr);
  EXPECT_EQ(GetDockCollection()->Items(-1), nullptr);
  GetDockCollection()->Delete(1000);
}

}  // namespace
