// Dock panels in a window: layout on load, drags of a toolbar's grip with real mouse events,
// docking, floating, hiding, and the saved layout.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QScreen>
#include <QSettings>
#include <QTest>

#include <climits>
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

// A 600 x 400 window with a dock on each side and a canvas between; the top dock holds "File"
// (three buttons) and "Edit" (button, drop-down, separator, check button).
class DockTest : public testing::Test {
 protected:
  void SetUp() override {
    host = std::make_unique<QWidget>();
    host->setGeometry(50, 60, 600, 400);
    for (auto [dock, align, name] : {std::tuple{&top, alTop, "top"},
                                     {&bottom, alBottom, "bottom"},
                                     {&left, alLeft, "left"},
                                     {&right, alRight, "right"}}) {
      *dock = new TLxDockPanel(host.get());
      (*dock)->SetAlign(align);
      (*dock)->setObjectName(name);
    }
    canvas = new QWidget(host.get());
    canvas->setObjectName("canvas");
    SetWidgetAlign(canvas, alClient);
    AddToolBar(top, "File", {lxNormalButton, lxNormalButton, lxNormalButton});
    AddToolBar(top, "Edit", {lxNormalButton, lxDropDown, lxSeparator, lxCheckButton});
  }
  void TearDown() override {
    host.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
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
  QPoint At(int x, int y) { return host->mapToGlobal(QPoint(x, y)); }
  // Presses on the grip of a strip and returns the screen point.
  QPoint PressGrip(TLxButtonPanel* strip) {
    QTest::mousePress(strip, Qt::LeftButton, Qt::NoModifier, QPoint(3, 10));
    return strip->mapToGlobal(QPoint(3, 10));
  }
  void DragTo(QPoint global) { SendMouse(host.get(), QEvent::MouseMove, global, Qt::LeftButton); }
  void Release(QPoint global) {
    SendMouse(host.get(), QEvent::MouseButtonRelease, global, Qt::NoButton, Qt::LeftButton);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  // Drags "Edit" by its grip into the middle of the window, where it floats.
  TLxButtonPanel* TearOffEdit() {
    PressGrip(Strip("Edit"));
    DragTo(At(300, 200));
    EXPECT_TRUE(Strip("Edit")->IsFloating());
    return Strip("Edit");
  }

  // "x,y wxh" of a widget, "hidden " first when it is hidden.
  static std::string Shown(const QWidget* w) {
    return QString::asprintf("%s%d,%d %dx%d", w->isHidden() ? "hidden " : "", w->x(), w->y(),
                             w->width(), w->height())
        .toStdString();
  }
  // The window's layout: each dock, then the canvas.
  std::string Docks() {
    std::string text;
    for (const QWidget* w : std::initializer_list<const QWidget*>{top, bottom, left, right, canvas})
      text += w->objectName().toStdString() + " " + Shown(w) + "; ";
    return text;
  }
  // Where a toolbar is: "<dock> x,y wxh" in its dock, or "floating x,y wxh" on the screen.
  std::string Where(const char* name) {
    TLxToolBarPanel* toolBar = top->GetToolBar(name);
    if (!toolBar) return "missing";
    TLxButtonPanel* strip = toolBar->GetPanel();
    if (strip->IsFloating()) return "floating " + Shown(strip->GetFloatingWindow());
    return toolBar->GetDock()->objectName().toStdString() + " " + Shown(strip);
  }

  std::unique_ptr<QWidget> host;
  TLxDockPanel *top = nullptr, *bottom = nullptr, *left = nullptr, *right = nullptr;
  QWidget* canvas = nullptr;
};

class LoadedDockTest : public DockTest {
 protected:
  void SetUp() override {
    DockTest::SetUp();
    Load();
  }
};

TEST_F(LoadedDockTest, LaysOutStripsAndDocksAndFindsToolbarsByExactName) {
  // the bottom dock: a row of buttons, 1, and the status line; strips: grip 8, then the buttons
  EXPECT_EQ(Docks(),
            "top 0,0 600x25; bottom 0,357 600x43; left hidden 0,25 25x332; right hidden "
            "575,25 25x332; canvas 0,25 600x332; ");
  EXPECT_EQ(Where("File"), "top 0,0 80x25");
  EXPECT_EQ(Where("Edit"), "top 80,0 96x25");
  EXPECT_EQ(top->GetNumVisiblePanels(), 2);
  EXPECT_EQ(Strip("Edit")->GetButtons()->Items(0)->GetButton()->toolTip(), "Edit tip");
  EXPECT_EQ(Strip("Edit"), top->GetToolBars()->Items(1)->GetPanel());
  EXPECT_EQ(left->GetToolBar("File"), top->GetToolBars()->Items(0));
  EXPECT_EQ(GetLxToolBar("edit"), nullptr);
  EXPECT_EQ(left->GetToolBar("Nothing"), nullptr);
}

TEST_F(LoadedDockTest, DraggingTheGripAlongTheDockSwapsAtTheNeighboursStart) {
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

TEST_F(LoadedDockTest, DraggingForwardPushesOrSwapsAndClampsAtTheEnd) {
  TLxButtonPanel *file = Strip("File"), *edit = Strip("Edit");
  // strip dragged, distance, then File's and Edit's x
  const std::tuple<TLxButtonPanel*, int, int, int, const char*> steps[] = {
      {file, 50, 50, 130, "Edit pushed ahead"},
      {file, 100, 146, 50, "past the neighbour's end: swapped"},
      {edit, 2000, 50, 130, "File ahead is swapped first"},
      {edit, 2001, 50, 600 - 96, "then Edit stops at the dock's end"}};
  QPoint start;
  for (auto [strip, dx, fileX, editX, what] : steps) {
    if (dx != 2001) start = PressGrip(strip);  // the last step continues the drag before it
    DragTo(start + QPoint(dx, 0));
    EXPECT_EQ(file->x(), fileX) << what;
    EXPECT_EQ(edit->x(), editX) << what;
    if (dx != 2000) Release(start + QPoint(dx, 0));
  }
}

TEST_F(LoadedDockTest, OnlyThePressOnTheGripDrags) {
  TLxButtonPanel* edit = Strip("Edit");
  const QPoint button(edit->GripLength() + 1, 10);
  QTest::mousePress(edit, Qt::LeftButton, Qt::NoModifier, button);
  EXPECT_FALSE(edit->GetDragging());
  QTest::mouseRelease(edit, Qt::LeftButton, Qt::NoModifier, button);
  QTest::mouseMove(edit, QPoint(2, 10));
  EXPECT_EQ(edit->cursor().shape(), Qt::SizeAllCursor);
  SendMouse(edit, QEvent::MouseMove, edit->mapToGlobal(QPoint(40, 10)), Qt::NoButton);
  EXPECT_EQ(edit->cursor().shape(), Qt::ArrowCursor);
  // A press elsewhere that slides onto the grip drags too.
  QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5));
  SendMouse(edit, QEvent::MouseMove, edit->mapToGlobal(QPoint(2, 10)), Qt::LeftButton);
  EXPECT_TRUE(edit->GetDragging());
  Release(edit->mapToGlobal(QPoint(2, 10)));
  QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, QPoint(100, 5));
  EXPECT_FALSE(edit->GetDragging());
}

TEST_F(LoadedDockTest, DraggingOutOfTheDockFloatsTheToolbar) {
  TLxButtonPanel* edit = TearOffEdit();
  const TLxFloatingToolWindow* window = edit->GetFloatingWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(edit->isHidden());
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(window->windowTitle(), "Edit");
  EXPECT_EQ(window->size(), QSize(24 + 32 + 8 + 24, 24));
  DragTo(At(320, 230));
  EXPECT_EQ(window->pos(), At(320, 230));
  Release(At(320, 230));
  EXPECT_EQ(top->GetNumVisiblePanels(), 1);
  EXPECT_EQ(GetLxToolBar("Edit"), edit);
}

TEST_F(LoadedDockTest, ATornOffToolbarDroppedOnItsDockDocksAgain) {
  TLxButtonPanel* edit = TearOffEdit();
  DragTo(At(400, 10));
  EXPECT_TRUE(edit->IsFloating()) << "its own dock takes no guest";
  Release(At(400, 10));
  EXPECT_EQ(Where("Edit"), "top 400,0 96x25");
  EXPECT_FALSE(edit->GetFloatingWindow()->isVisible());
}

TEST_F(LoadedDockTest, DraggingIntoAnotherDockMovesTheToolbarThere) {
  TLxButtonPanel* edit = TearOffEdit();
  ASSERT_TRUE(left->CanDockAt(At(10, 100).x(), At(10, 100).y())) << "an empty dock accepts";
  DragTo(At(10, 100));
  EXPECT_EQ(edit->GetGuestDock(), left);
  ASSERT_EQ(left->GetToolBars()->Count(), 1);
  DragTo(At(300, 100));
  EXPECT_EQ(left->GetToolBars()->Count(), 0) << "leaving the guest dock drops the copy";
  EXPECT_TRUE(left->isHidden());
  EXPECT_TRUE(edit->GetFloatingWindow()->isVisible());
  DragTo(At(10, 100));
  ASSERT_NE(left->GetGuestPanel(), nullptr);
  DragTo(At(10, 130));
  Release(At(10, 130));
  EXPECT_EQ(Where("Edit"), "left 0,105 25x96");
  EXPECT_EQ(Docks(),
            "top 0,0 600x25; bottom 0,357 600x43; left 0,25 25x332; right hidden 575,25 25x332; "
            "canvas 25,25 575x332; ");
  EXPECT_EQ(top->GetToolBars()->Count(), 1);
  EXPECT_EQ(left->GetGuestPanel(), nullptr);
}

TEST_F(LoadedDockTest, HidingAndShowingDockedAndFloatingToolbars) {
  TLxToolBarPanel* file = top->GetToolBar("File");
  TLxButtonPanel* strip = file->GetPanel();
  file->SetVisible(false);
  EXPECT_TRUE(strip->isHidden());
  EXPECT_TRUE(file->GetWasDocked());
  EXPECT_EQ(file->GetHiddenPos(), top->mapToGlobal(QPoint(0, 0)));
  EXPECT_FALSE(strip->GetFloatingWindow()->isVisible());
  file->SetVisible(true);
  EXPECT_EQ(Where("File"), "top 0,0 80x25");
  EXPECT_EQ(strip->GetButtons()->Items(0)->GetButton()->parentWidget(), strip);
  strip->MakeFloating(200, 200, true);
  file->SetVisible(false);
  EXPECT_FALSE(file->GetWasDocked());
  EXPECT_EQ(Where("File"), "floating hidden 200,200 72x24");
  file->SetVisible(true);
  EXPECT_EQ(Where("File"), "floating 200,200 72x24");
  strip->GetFloatingWindow()->close();
  EXPECT_FALSE(file->GetVisible());
}

TEST_F(DockTest, AVerticalToolbarKeepsItsButtonSizeWhenHiddenAndFloatedAgain) {
  TLxToolBarPanel* tools = AddToolBar(left, "Tools", {lxDropDown, lxSeparator, lxNormalButton});
  Load();
  tools->SetVisible(false);
  tools->SetVisible(true);
  EXPECT_EQ(Where("Tools"), "left 0,0 25x72");
  EXPECT_EQ(left->width(), 25);
  tools->GetPanel()->MakeFloating(200, 200, true);
  tools->GetPanel()->MakeFloating(220, 200, true);  // as when a drag leaves a guest dock
  EXPECT_EQ(Where("Tools"), "floating 220,200 64x24");
  EXPECT_EQ(tools->GetButtons()->Items(1)->GetButton()->geometry(), QRect(32, 0, 8, 24));
}

TEST_F(LoadedDockTest, AFloatingWindowDroppedOnADockDocksThere) {
  Strip("File")->MakeFloating(400, 400, true);
  QCursor::setPos(At(10, 150));
  Strip("File")->GetFloatingWindow()->move(At(300, 150));
  QTest::qWait(400);
  EXPECT_TRUE(Strip("File")->IsFloating()) << "moved by the program, not over the cursor";
  Strip("File")->GetFloatingWindow()->move(At(5, 145));
  QTest::qWait(100);
  EXPECT_EQ(Where("File"), "floating 55,205 72x24") << "still moving";
  QTest::qWait(400);
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Where("File").substr(0, 7), "left 0,");
}

TEST_F(LoadedDockTest, ReloadingRelaysAFloatingWindow) {
  TLxButtonPanel* edit = Strip("Edit");
  edit->MakeFloating(300, 300, true);
  top->SetScaleFactor(2.0f);
  top->Loaded();
  EXPECT_EQ(edit->GetFloatingWindow()->size(), QSize(4 * 48, 48));
  EXPECT_EQ(edit->GetButtons()->Items(1)->GetButton()->geometry(), QRect(48, 0, 64, 48));
}

TEST_F(LoadedDockTest, DockToPlacesAlongTheDockAndEmptiedDocksHide) {
  const std::tuple<TLxDockPanel*, int, const char*> moves[] = {
      {bottom, 30, "bottom 0,0 96x25"},  // a horizontal dock takes pos as y
      {bottom, 5, "bottom 0,5 96x25"},
      {top, 300, "top 300,0 96x25"}};
  for (auto [dock, pos, where] : moves) {
    top->GetToolBar("Edit")->DockTo(dock, pos);
    EXPECT_EQ(Where("Edit"), where);
  }
  top->GetToolBar("Edit")->DockTo(left, 0);
  top->GetToolBar("File")->DockTo(left, 100);
  // the top dock hides; an empty bottom dock keeps its status line
  EXPECT_EQ(Docks(),
            "top hidden 0,0 600x25; bottom 0,381 600x19; left 0,0 25x381; right hidden 575,0 "
            "25x381; canvas 25,0 575x381; ");
  EXPECT_EQ(left->GetNumVisiblePanels(), 2);
}

TEST(RegisterTest, ControlsAreOnThePalette) {
  RegisterAllComponents();
  const auto& palette = RegisteredComponents();
  for (const char* name :
       {"TLxDockPanel", "TLxButtonPanel", "TLxMenuPanel", "TLxFloatingToolWindow"}) {
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

// ---- saved layout ----

class SavedLayoutTest : public DockTest {
 protected:
  lxtest::TempDir dir;
  QSettings store{dir.Path("layout.ini"), QSettings::IniFormat};
  // Writes "name=value ..." pairs under `key`, as they stand in the file.
  void Write(const QString& key, const QString& pairs) {
    for (const QString& pair : pairs.split(' ', Qt::SkipEmptyParts))
      store.setValue(key + "/" + pair.section('=', 0, 0), pair.section('=', 1));
  }
  QString Saved(const QString& key) {
    QStringList pairs;
    for (const char* name : {"dockpanel", "docked", "left", "top", "width", "height", "visible"})
      pairs << QString("%1=%2").arg(name, store.value(key + "/" + name, "?").toString());
    return pairs.join(' ');
  }
};

TEST_F(SavedLayoutTest, SaveWritesThePlaceOfDockedHiddenAndFloatingToolbars) {
  Load();
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  EXPECT_EQ(edit->SaveState(store, "Docked"), 0);
  EXPECT_EQ(Saved("Docked"), "dockpanel=3 docked=1 left=80 top=0 width=96 height=25 visible=1");
  edit->SetVisible(false);
  EXPECT_EQ(edit->SaveState(store, "Hidden"), 0);
  EXPECT_EQ(Saved("Hidden"), "dockpanel=3 docked=1 left=80 top=0 width=96 height=25 visible=0");
  edit->SetVisible(true);
  edit->GetPanel()->MakeFloating(210, 220, true);
  EXPECT_EQ(edit->SaveState(store, "Floating"), 0);
  EXPECT_EQ(Saved("Floating"),
            "dockpanel=3 docked=0 left=210 top=220 width=88 height=24 visible=1");
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
  EXPECT_EQ(Where("Edit"), "left 0,40 25x96");
  EXPECT_EQ(Where("File"), "floating 300,310 72x24");
}

struct RestoreCase {
  const char* saved;
  bool result;
  const char* where;  // where Edit then is; `result` tells the host whether to show it
};

class RestoreCases : public SavedLayoutTest, public testing::WithParamInterface<RestoreCase> {};

TEST_P(RestoreCases, ResultAndPlace) {
  Load();
  Write("Edit", GetParam().saved);
  EXPECT_EQ(top->GetToolBar("Edit")->RestoreState(store, "Edit"), GetParam().result);
  EXPECT_EQ(Where("Edit"), GetParam().where);
}

INSTANTIATE_TEST_SUITE_P(
    Cases, RestoreCases,
    testing::Values(
        RestoreCase{"", true, "top 80,0 96x25"},  // nothing saved: the place is kept
        RestoreCase{"dockpanel=3 docked=1 left=-5 height=25", true, "top 0,0 96x25"},
        RestoreCase{"dockpanel=7 docked=1 left=10", false, "top 80,0 96x25"},
        RestoreCase{"docked=1 left=10", false, "top 80,0 96x25"},
        RestoreCase{"dockpanel=0 docked=1", false, "top 80,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=abc height=x visible=?", true, "top 80,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=1099511627776", true, "top 80,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=200 visible=0", false, "top 200,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=100 height=50", true, "top 50,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=3000 height=25", true, "top 504,0 96x25"},
        RestoreCase{"dockpanel=3 docked=1 left=120 height=0", true, "top 120,0 96x25"}));

TEST_F(SavedLayoutTest, RestoreIntoAVerticalDockRescalesByWidth) {
  left->SetButtonWidth(71);
  TLxToolBarPanel* tall = AddToolBar(left, "Tall", {lxNormalButton});
  Load();
  ASSERT_EQ(tall->GetPanel()->width(), 72);
  Write("Tall", "dockpanel=1 docked=1 top=100 width=48 height=30");
  EXPECT_TRUE(tall->RestoreState(store, "Tall"));
  EXPECT_EQ(tall->GetPanel()->pos(), QPoint(0, 150));
}

TEST_F(SavedLayoutTest, RestoreFromALargerScreenStaysInsideDockAndScreen) {
  Load();
  Write("Edit", "dockpanel=1 docked=1 top=5000 width=25 height=96");
  EXPECT_TRUE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  EXPECT_EQ(Where("Edit"), "left 0,236 25x96");  // at the end of the dock
  Write("Edit", "dockpanel=3 docked=0 left=50000 top=-300");
  EXPECT_TRUE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  const TLxFloatingToolWindow* window = Strip("Edit")->GetFloatingWindow();
  ASSERT_NE(window, nullptr);
  EXPECT_TRUE(QApplication::primaryScreen()->geometry().contains(window->pos()));
  EXPECT_TRUE(window->isVisible());
}

TEST_F(SavedLayoutTest, AHiddenToolbarIsRestoredHiddenAndShownAtItsRestoredPlace) {
  Load();
  TLxToolBarPanel* edit = top->GetToolBar("Edit");
  edit->SetVisible(false);
  Write("Edit", "dockpanel=3 docked=1 left=300 height=25 visible=0");
  EXPECT_FALSE(edit->RestoreState(store, "Edit"));
  EXPECT_TRUE(edit->GetPanel()->isHidden());
  edit->SetVisible(true);
  EXPECT_EQ(Where("Edit"), "top 300,0 96x25");
}

TEST_F(SavedLayoutTest, RestoreNeedsLoadedDocks) {
  Write("Edit", "dockpanel=3 docked=1 left=10");
  EXPECT_FALSE(top->GetToolBar("Edit")->RestoreState(store, "Edit"));
  Write("File", "dockpanel=1 docked=1 left=10");
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
  lonely.SetSize(INT_MAX);
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
