// Dock panels, their toolbar collections, and the saved layout of a toolbar.
#include "lxcomp/DockPanel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <cstdint>

#include "controls/DockLayout.h"
#include "lxcomp/LxRegistry.h"
#include "lxcomp/UnitFloatingWindow.h"

namespace lx {
namespace {

TLxDockCollection*& DockCollectionPointer() {
  static TLxDockCollection* collection = nullptr;
  return collection;
}

// Codes of the "dockpanel" value.
int AlignCode(TAlign align) {
  switch (align) {
    case alLeft:
      return 1;
    case alRight:
      return 2;
    case alTop:
      return 3;
    case alBottom:
      return 4;
    default:
      return 0;
  }
}

// A 32-bit value of the saved layout; absent or unreadable values give `fallback`.
int ReadValue(const QSettings& store, const QString& name, int fallback, bool* present = nullptr) {
  const QVariant value = store.value(name);
  bool ok = false;
  const qlonglong number = value.isValid() ? value.toLongLong(&ok) : 0;
  ok = ok && number >= INT32_MIN && number <= INT32_MAX;
  if (present) *present = ok;
  return ok ? static_cast<int>(number) : fallback;
}

bool GroupExists(QSettings& store, const QString& key) {
  store.beginGroup(key);
  const bool exists = !store.childKeys().isEmpty() || !store.childGroups().isEmpty();
  store.endGroup();
  return exists;
}

// A floating window restored from another screen layout is moved back onto a screen.
QPoint OnScreen(QPoint topLeft) {
  if (QGuiApplication::screenAt(topLeft + QPoint(8, 8))) return topLeft;
  QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return QPoint(0, 0);
  const QRect area = screen->availableGeometry();
  return QPoint(std::clamp(topLeft.x(), area.left(), std::max(area.left(), area.right() - 64)),
                std::clamp(topLeft.y(), area.top(), std::max(area.top(), area.bottom() - 32)));
}

// Keeps a restored position on the dock axis when the dock is long enough to hold the strip.
int OnAxis(int pos, int stripLength, int dockLength) {
  if (dockLength < stripLength || dockLength <= 0) return std::max(pos, 0);
  return std::clamp(pos, 0, dockLength - stripLength);
}

}  // namespace

// ---- dock collection ----

TLxDockPanelItem* TLxDockCollection::Add() {
  Items_.push_back(std::make_unique<TLxDockPanelItem>());
  return Items_.back().get();
}

TLxDockPanelItem* TLxDockCollection::Items(int index) const {
  return index >= 0 && index < Count() ? Items_[static_cast<size_t>(index)].get() : nullptr;
}

void TLxDockCollection::Delete(int index) {
  if (index >= 0 && index < Count()) Items_.erase(Items_.begin() + index);
}

TLxDockCollection* GetDockCollection() {
  TLxDockCollection*& collection = DockCollectionPointer();
  if (!collection) collection = new TLxDockCollection();
  return collection;
}

TLxButtonPanel* GetLxToolBar(const QString& name) {
  const TLxDockCollection* docks = DockCollectionPointer();
  if (!docks) return nullptr;
  for (int i = 0; i < docks->Count(); ++i) {
    const TLxDockPanel* dock = docks->Items(i)->GetDockPanel();
    if (!dock) continue;
    for (int j = 0; j < dock->GetToolBars()->Count(); ++j)
      if (dock->GetToolBars()->Items(j)->GetName() == name)
        return dock->GetToolBars()->Items(j)->GetPanel();
  }
  return nullptr;
}

// ---- toolbar collection ----

TLxToolBarPanel* TLxToolBarCollection::Add() {
  Items_.push_back(std::make_unique<TLxToolBarPanel>(Owner));
  return Items_.back().get();
}

TLxToolBarPanel* TLxToolBarCollection::Items(int index) const {
  return index >= 0 && index < Count() ? Items_[static_cast<size_t>(index)].get() : nullptr;
}

void TLxToolBarCollection::Delete(int index) {
  if (index < 0 || index >= Count()) return;
  // Moved out first: the item's destructor may look the collection up.
  std::unique_ptr<TLxToolBarPanel> item = std::move(Items_[static_cast<size_t>(index)]);
  Items_.erase(Items_.begin() + index);
}

int TLxToolBarCollection::IndexOf(const TLxToolBarPanel* item) const {
  for (int i = 0; i < Count(); ++i)
    if (Items_[static_cast<size_t>(i)].get() == item) return i;
  return -1;
}

// ---- dock panel ----

TLxDockPanel::TLxDockPanel(QWidget* parent)
    : QWidget(parent), ToolBars(std::make_unique<TLxToolBarCollection>(this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  GetDockCollection()->Add()->SetDockPanel(this);
}

TLxDockPanel::~TLxDockPanel() {
  ToolBars.reset();
  TLxDockCollection* docks = GetDockCollection();
  for (int i = docks->Count() - 1; i >= 0; --i)
    if (docks->Items(i)->GetDockPanel() == this) docks->Delete(i);
}

void TLxDockPanel::SetAlign(TAlign align) {
  Align = align;
  SetWidgetAlign(this, align);
}

void TLxDockPanel::SetCollection(TLxToolBarCollection* toolBars) {
  if (!toolBars || toolBars == ToolBars.get()) return;
  while (ToolBars->Count() > 0)
    ToolBars->Delete(ToolBars->Count() - 1);
  for (int i = 0; i < toolBars->Count(); ++i) {
    TLxToolBarPanel* item = ToolBars->Add();
    item->SetName(toolBars->Items(i)->GetName());
    item->SetCollection(toolBars->Items(i)->GetButtons());
  }
}

int TLxDockPanel::StripOffset() const {
  return Align == alLeft && TabStripVisible() ? TabClientWidth : 0;
}

TLxToolBarPanel* TLxDockPanel::GetToolBar(const QString& name) const {
  const TLxButtonPanel* strip = GetLxToolBar(name);
  return strip ? strip->GetToolBar() : nullptr;
}

int TLxDockPanel::GetNumVisiblePanels() const {
  int visible = 0;
  for (int i = 0; i < ToolBars->Count(); ++i)
    if (!ToolBars->Items(i)->GetPanel()->isHidden()) ++visible;
  return visible;
}

void TLxDockPanel::MakeRoom(int pos, int size) {
  docklayout::Dock model;
  model.horizontal = Horizontal;
  model.length = AxisLength();
  for (int i = 0; i < ToolBars->Count(); ++i) {
    const TLxButtonPanel* strip = ToolBars->Items(i)->GetPanel();
    model.strips.push_back({strip->geometry(), !strip->isHidden()});
  }
  docklayout::MakeRoom(model, pos, size);
  for (int i = 0; i < ToolBars->Count(); ++i) {
    TLxButtonPanel* strip = ToolBars->Items(i)->GetPanel();
    const QPoint place = model.strips[static_cast<size_t>(i)].rect.topLeft();
    if (strip->pos() != place) strip->move(place);
  }
}

bool TLxDockPanel::CanDockAt(int x, int y) const {
  docklayout::Zone zone;
  zone.size = size();
  zone.horizontal = Horizontal;
  zone.rightAligned = Align == alRight;
  zone.buttonWidth = ButtonWidth;
  zone.buttonHeight = ButtonHeight;
  zone.tabVisible = TabStripVisible();
  zone.tabClientWidth = TabClientWidth;
  return docklayout::AcceptsPoint(zone, mapFromGlobal(QPoint(x, y)));
}

void TLxDockPanel::SetSize(int size) {
  LastSize = size;
  // An empty dock keeps one pixel (and a bottom dock its status line).
  const int thickness = std::clamp(size, 0, QWIDGETSIZE_MAX) + 1;
  if (Horizontal)
    resize(width(), thickness + (Align == alBottom ? StatusHeight : 0));
  else
    resize(thickness + (TabStripVisible() ? TabClientWidth : 0), height());
}

void TLxDockPanel::Show() {
  int size = -1;
  if (ToolBars->Count() > 0) ToolBars->Items(0)->GetPanel()->GetActualButtonSize(size);
  SetSize(size);
  setVisible(true);
}

void TLxDockPanel::ReleaseIfEmpty() {
  if (ToolBars->Count() > 0 && GetNumVisiblePanels() > 0) return;
  if (TabClientWidth > 0 || Align == alBottom)
    SetSize(-1);
  else
    hide();
}

void TLxDockPanel::LayOutStrips() {
  int at = 0;
  for (int i = 0; i < ToolBars->Count(); ++i) {
    TLxButtonPanel* strip = ToolBars->Items(i)->GetPanel();
    if (strip->isHidden()) continue;
    if (Horizontal) {
      strip->move(at, 0);
      at += strip->width();
    } else {
      strip->move(StripOffset(), at);
      at += strip->height();
    }
  }
}

void TLxDockPanel::Loaded() {
  if (Align == alTop || Align == alBottom)
    Horizontal = true;
  else if (Align == alLeft || Align == alRight)
    Horizontal = false;
  else
    Horizontal = width() > height();
  for (int i = 0; i < ToolBars->Count(); ++i) {
    TLxButtonPanel* strip = ToolBars->Items(i)->GetPanel();
    if (strip->GetFloatingWindow())
      strip->LayOutFloatingWindow(static_cast<int>(ButtonWidth * ScaleFactor),
                                  static_cast<int>(ButtonHeight * ScaleFactor));
    strip->SetHorizontal(Horizontal);
    strip->AdjustSizeToButtons();
    if (!IsLoaded) strip->InitializeButtons();
  }
  LayOutStrips();
  SetSize(Horizontal ? ButtonHeight : ButtonWidth);
  setVisible(GetNumVisiblePanels() > 0 || Align == alBottom || TabStripVisible());
  IsLoaded = true;
}

void TLxDockPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  Paint(painter);
}

// ---- toolbar ----

TLxToolBarPanel::TLxToolBarPanel(TLxDockPanel* dock) : Dock(dock), Panel(new TLxButtonPanel(dock)) {
  Panel->SetToolBar(this);
  if (dock) {
    Panel->SetHorizontal(dock->GetHorizontal());
    Panel->SetButtonWidth(dock->GetButtonWidth());
    Panel->SetButtonHeight(dock->GetButtonHeight());
    Panel->show();
  }
}

TLxToolBarPanel::~TLxToolBarPanel() {
  if (Dock && Dock->GetGuestPanel() == Panel) Dock->SetGuestPanel(nullptr);
  Panel->SetToolBar(nullptr);
  if (Panel->GetFloatingWindow()) Panel->GetFloatingWindow()->hide();
  Panel->hide();
  // The strip may be the receiver of the mouse event that ends here.
  Panel->deleteLater();
}

void TLxToolBarPanel::SetName(const QString& name) {
  Name = name;
  Panel->setObjectName(name);
  if (Panel->GetFloatingWindow()) Panel->GetFloatingWindow()->setWindowTitle(name);
}

void TLxToolBarPanel::SetVisible(bool visible) {
  if (visible == Visible) return;
  Visible = visible;
  TLxFloatingToolWindow* window = Panel->GetFloatingWindow();
  if (visible) {
    if (!window) return;
    if (WasDocked)
      Panel->MakeDocked(Panel->GetDock(), HiddenPos.x(), HiddenPos.y());
    else
      window->show();
    return;
  }
  WasDocked = !Panel->IsFloating();
  if (WasDocked) {
    TLxDockPanel* dock = Panel->GetDock();
    HiddenPos = dock ? dock->mapToGlobal(Panel->pos()) : Panel->pos();
    Panel->MakeFloating(HiddenPos.x(), HiddenPos.y(), false);
  } else if (window) {
    window->hide();
  }
}

void TLxToolBarPanel::DockTo(TLxDockPanel* dock, int pos) {
  if (!dock) return;
  pos = std::max(pos, 0);
  const bool alongX = dock->GetAlign() == alTop;
  const int x = alongX ? pos : 0;
  const int y = alongX ? 0 : pos;
  if (Panel->GetDock() == dock) {
    if (Panel->IsFloating()) {
      const QPoint screen = dock->mapToGlobal(QPoint(x, y));
      Panel->MakeDocked(dock, screen.x(), screen.y());
    } else if (alongX && Panel->x() != pos) {
      Panel->move(pos, Panel->y());
    } else if (!alongX && Panel->y() != pos) {
      Panel->move(Panel->x(), pos);
    }
    return;
  }
  if (!dock->GetIsLoaded()) return;
  Panel->SetGuestDock(dock);
  Panel->MoveToGuestDock(x, y, false);
  dock->SetGuestPanel(nullptr);
  Panel->SetGuestDock(nullptr);
  if (Dock) Dock->GetToolBars()->Delete(Dock->GetToolBars()->IndexOf(this));  // deletes this
}

int TLxToolBarPanel::SaveState(QSettings& store, const QString& key) {
  if (key.isEmpty() || !store.isWritable()) return QSettings::AccessError;
  TLxDockPanel* dock = Panel->GetDock();
  const bool floating = Panel->IsFloating();
  const bool hiddenDocked = floating && !Visible && WasDocked;
  QRect place = Panel->geometry();
  if (floating && !hiddenDocked && Panel->GetFloatingWindow()) {
    const TLxFloatingToolWindow* window = Panel->GetFloatingWindow();
    place = QRect(window->pos(), window->size());
  } else if (hiddenDocked && dock) {
    // Where the strip will reappear: its place in the dock when it was hidden.
    place.moveTopLeft(dock->mapFromGlobal(HiddenPos));
  }
  store.beginGroup(key);
  store.setValue(QStringLiteral("dockpanel"), AlignCode(dock ? dock->GetAlign() : alNone));
  store.setValue(QStringLiteral("docked"), !floating || hiddenDocked ? 1 : 0);
  store.setValue(QStringLiteral("left"), place.left());
  store.setValue(QStringLiteral("top"), place.top());
  store.setValue(QStringLiteral("width"), place.width());
  store.setValue(QStringLiteral("height"), place.height());
  store.setValue(QStringLiteral("visible"), Visible ? 1 : 0);
  store.endGroup();
  store.sync();
  return store.status();
}

bool TLxToolBarPanel::RestoreState(QSettings& store, const QString& key) {
  if (!DockCollectionPointer()) return false;
  if (key.isEmpty() || !GroupExists(store, key)) return Visible;
  store.beginGroup(key);
  bool hasDock = false, hasDocked = false;
  const int code = ReadValue(store, QStringLiteral("dockpanel"), 0, &hasDock);
  const bool docked = ReadValue(store, QStringLiteral("docked"), 0, &hasDocked) != 0 && hasDocked;
  int left = std::max(0, ReadValue(store, QStringLiteral("left"), Panel->x()));
  int top = std::max(0, ReadValue(store, QStringLiteral("top"), Panel->y()));
  const int savedWidth = ReadValue(store, QStringLiteral("width"), Panel->width());
  const int savedHeight = ReadValue(store, QStringLiteral("height"), Panel->height());
  const bool visible = ReadValue(store, QStringLiteral("visible"), Visible ? 1 : 0) != 0;
  store.endGroup();
  WasDocked = docked;
  if (!hasDock || code == 0) return false;
  if (!docked) {
    const QPoint place = OnScreen(QPoint(left, top));
    Panel->MakeFloating(place.x(), place.y(), visible);
    return visible;
  }
  TLxDockPanel* target = nullptr;
  const TLxDockCollection* docks = GetDockCollection();
  for (int i = 0; i < docks->Count() && !target; ++i) {
    TLxDockPanel* dock = docks->Items(i)->GetDockPanel();
    if (dock && AlignCode(dock->GetAlign()) == code) target = dock;
  }
  if (!target) return false;
  if (target == Dock) {
    if (!Dock->GetIsLoaded()) return false;
    QPoint place;
    if (Panel->GetHorizontal()) {
      const int x = docklayout::Rescale(left, Panel->height(), savedHeight);
      place = QPoint(OnAxis(x, Panel->width(), Dock->width()), 0);
    } else {
      const int y = docklayout::Rescale(top, Panel->width(), savedWidth);
      place = QPoint(Dock->StripOffset(), OnAxis(y, Panel->height(), Dock->height()));
    }
    if (Panel->IsFloating()) {
      const QPoint screen = Dock->mapToGlobal(place);
      // A hidden toolbar stays hidden; showing it docks it at the restored place.
      if (Visible)
        Panel->MakeDocked(Dock, screen.x(), screen.y());
      else
        HiddenPos = screen;
    } else {
      Panel->move(place);
    }
    return visible;
  }
  if (!Dock || !Dock->GetIsLoaded() || !target->GetIsLoaded()) return false;
  const int saved = std::min(savedWidth, savedHeight);
  const int current = std::min(Panel->width(), Panel->height());
  left = docklayout::Rescale(left, current, saved);
  top = docklayout::Rescale(top, current, saved);
  const int length = Panel->GetHorizontal() ? Panel->width() : Panel->height();
  if (target->GetHorizontal())
    left = OnAxis(left, length, target->width());
  else
    top = OnAxis(top, length, target->height());
  Panel->SetGuestDock(target);
  Panel->MoveToGuestDock(left, top, false);
  target->SetGuestPanel(nullptr);
  Panel->SetGuestDock(nullptr);
  Dock->GetToolBars()->Delete(Dock->GetToolBars()->IndexOf(this));  // deletes this
  return visible;
}

namespace DockPanel {

void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxDockPanel"), QStringLiteral("lxcomp/DockPanel.h"),
                       QStringLiteral("Dock panel with toolbars and a status line"),
                       [](QWidget* parent) -> QWidget* { return new TLxDockPanel(parent); }},
                      {QStringLiteral("TLxButtonPanel"), QStringLiteral("lxcomp/DockPanel.h"),
                       QStringLiteral("Toolbar strip"),
                       [](QWidget* parent) -> QWidget* { return new TLxButtonPanel(parent); }}});
}

}  // namespace DockPanel

}  // namespace lx
