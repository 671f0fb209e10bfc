// Toolbar strips: their buttons, the layout of the buttons, moving a strip along its dock, into
// another dock and into a floating window, and the drag of a strip's grip.
#include <QApplication>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

#include "controls/DockLayout.h"
#include "lxcomp/DockPanel.h"
#include "lxcomp/UnitFloatingWindow.h"

namespace lx {

// ---- button ----

TLxButton::TLxButton(QWidget* parent) : QToolButton(parent) {
  setAutoRaise(true);
  setFocusPolicy(Qt::NoFocus);
  setToolButtonStyle(Qt::ToolButtonIconOnly);
}

TLxButtonPanel* TLxButton::GetPanel() const {
  return qobject_cast<TLxButtonPanel*>(parentWidget());
}

void TLxButton::SetButtonType(TLxButtonType type) {
  ButtonType = type;
  ApplyType();
}

void TLxButton::SetButtonTypeCode(int code) {
  if (code >= lxNormalButton && code <= lxCheckButton)
    SetButtonType(static_cast<TLxButtonType>(code));
}

void TLxButton::SetAction(QAction* action) {
  Action = action;
  if (action) setDefaultAction(action);
  ApplyType();
}

void TLxButton::SetPopupMenu(QMenu* menu) {
  PopupMenu = menu;
  ApplyType();
}

void TLxButton::ApplyType() {
  const bool withMenu = ButtonType == lxDropDown || ButtonType == lxMenu;
  setMenu(withMenu ? PopupMenu.data() : nullptr);
  setPopupMode(ButtonType == lxDropDown ? QToolButton::MenuButtonPopup : QToolButton::InstantPopup);
  setEnabled(ButtonType != lxSeparator && (!Action || Action->isEnabled()));
  if (ButtonType == lxCheckButton) setCheckable(true);
}

void TLxButton::paintEvent(QPaintEvent* event) {
  if (ButtonType != lxSeparator) {
    QToolButton::paintEvent(event);
    return;
  }
  QPainter painter(this);
  const TLxButtonPanel* strip = GetPanel();
  const bool across = strip ? strip->GetHorizontal() : width() < height();
  painter.setPen(palette().color(QPalette::Mid));
  if (across)
    painter.drawLine(width() / 2, 3, width() / 2, height() - 4);
  else
    painter.drawLine(3, height() / 2, width() - 4, height() / 2);
}

// ---- button definitions ----

TLxToolBarButton::TLxToolBarButton() : Button(new TLxButton()) {}

TLxToolBarButton::~TLxToolBarButton() {
  delete Button.data();
}

void TLxToolBarButton::SetButtonType(TLxButtonType type) {
  ButtonType = type;
  if (Button) Button->SetButtonType(type);
}

void TLxToolBarButton::SetAction(QAction* action) {
  Action = action;
  if (Button) Button->SetAction(action);
}

void TLxToolBarButton::SetPopupMenu(QMenu* menu) {
  PopupMenu = menu;
  if (Button) Button->SetPopupMenu(menu);
}

void TLxToolBarButton::Assign(const TLxToolBarButton& source) {
  SetButtonType(source.ButtonType);
  SetAction(source.Action);
  SetPopupMenu(source.PopupMenu);
  ImageChecked = source.ImageChecked;
  ImageUnchecked = source.ImageUnchecked;
}

TLxToolBarButton* TLxButtonCollection::Add() {
  Items_.push_back(std::make_unique<TLxToolBarButton>());
  return Items_.back().get();
}

TLxToolBarButton* TLxButtonCollection::Items(int index) const {
  return index >= 0 && index < Count() ? Items_[static_cast<size_t>(index)].get() : nullptr;
}

void TLxButtonCollection::Delete(int index) {
  if (index >= 0 && index < Count()) Items_.erase(Items_.begin() + index);
}

void TLxButtonCollection::Assign(const TLxButtonCollection& source) {
  if (&source == this) return;
  Items_.clear();
  for (int i = 0; i < source.Count(); ++i)
    Add()->Assign(*source.Items(i));
}

// ---- strip ----

TLxButtonPanel::TLxButtonPanel(QWidget* parent)
    : QWidget(parent), Buttons(std::make_unique<TLxButtonCollection>()) {
  setMouseTracking(true);
  setAutoFillBackground(true);
}

TLxButtonPanel::~TLxButtonPanel() {
  StopDragFilter();
  Buttons.reset();
}

TLxDockPanel* TLxButtonPanel::GetDock() const {
  return qobject_cast<TLxDockPanel*>(parentWidget());
}

void TLxButtonPanel::SetCollection(TLxButtonCollection* buttons) {
  if (buttons) Buttons->Assign(*buttons);
}

QList<TLxButton*> TLxButtonPanel::ButtonControls() const {
  QList<TLxButton*> controls;
  for (int i = 0; i < Buttons->Count(); ++i)
    if (TLxButton* button = Buttons->Items(i)->GetButton()) controls.append(button);
  return controls;
}

int TLxButtonPanel::GripLength() const {
  for (const TLxButton* button : ButtonControls())
    if (button->parentWidget() == this) return Horizontal ? button->x() : button->y();
  return (Horizontal ? height() : width()) / 3;
}

int TLxButtonPanel::GetActualButtonSize(int& size) const {
  const QList<TLxButton*> controls = ButtonControls();
  if (controls.isEmpty()) {
    size = Horizontal ? ButtonHeight : ButtonWidth;
    return Buttons->Count();
  }
  // In the floating window the buttons stand in a horizontal row, whatever the strip's axis.
  const TLxButton* first = controls.first();
  const bool inRow = FloatingWindow && first->parentWidget() == FloatingWindow;
  size = Horizontal || inRow ? first->height() : first->width();
  return Buttons->Count();
}

void TLxButtonPanel::InitializeButtons() {
  for (int i = 0; i < Buttons->Count(); ++i) {
    const TLxToolBarButton* item = Buttons->Items(i);
    if (item->GetAction() && item->GetButton())
      item->GetButton()->setToolTip(item->GetAction()->toolTip());
  }
}

void TLxButtonPanel::AdjustSizeToButtons() {
  const TLxDockPanel* dock = GetDock();
  if (dock) Horizontal = dock->GetHorizontal();
  const int buttonWidth = dock ? dock->GetButtonWidth() : ButtonWidth;
  const int buttonHeight = dock ? dock->GetButtonHeight() : ButtonHeight;
  const int t = Horizontal ? buttonWidth : buttonHeight;
  const int across = Horizontal ? buttonHeight : buttonWidth;
  std::vector<QSize> sizes;
  for (int i = 0; i < Buttons->Count(); ++i) {
    TLxButton* button = Buttons->Items(i)->GetButton();
    if (!button) continue;
    if (!button->parentWidget()) {
      const int extent = docklayout::ButtonExtent(button->GetButtonType(), t, t);
      button->setParent(this);
      button->resize(Horizontal ? QSize(extent, across) : QSize(across, extent));
      button->show();
    }
    sizes.push_back(button->size());
  }
  const docklayout::Placement placement =
      docklayout::PlaceButtons(sizes, Horizontal, Horizontal ? buttonHeight : buttonWidth);
  const QList<TLxButton*> controls = ButtonControls();
  for (int i = 0; i < controls.size(); ++i)
    if (controls[i]->parentWidget() == this)
      controls[i]->setGeometry(placement.buttons[static_cast<size_t>(i)]);
  resize(placement.strip);
}

void TLxButtonPanel::TakeButtons() {
  const int s = Horizontal ? height() : width();
  std::vector<int> types, extents;
  const QList<TLxButton*> controls = ButtonControls();
  for (const TLxButton* button : controls) {
    types.push_back(button->GetButtonType());
    extents.push_back(Horizontal ? button->width() : button->height());
  }
  const docklayout::Placement placement = docklayout::TakeButtons(types, extents, s, Horizontal);
  for (int i = 0; i < controls.size(); ++i) {
    if (controls[i]->parentWidget() != this) controls[i]->setParent(this);
    controls[i]->setGeometry(placement.buttons[static_cast<size_t>(i)]);
    controls[i]->show();
  }
}

int TLxButtonPanel::MoveToolBarTo(int pos, bool swap) {
  TLxDockPanel* dock = GetDock();
  if (!dock) return 0;
  docklayout::Dock model;
  model.horizontal = dock->GetHorizontal();
  model.length = dock->AxisLength();
  int self = -1;
  const TLxToolBarCollection* toolBars = dock->GetToolBars();
  for (int i = 0; i < toolBars->Count(); ++i) {
    const TLxButtonPanel* strip = toolBars->Items(i)->GetPanel();
    if (strip == this) self = i;
    model.strips.push_back({strip->geometry(), !strip->isHidden()});
  }
  if (self < 0) return 0;
  const int reached = docklayout::MoveStrip(model, self, pos, swap);
  for (int i = 0; i < toolBars->Count(); ++i) {
    TLxButtonPanel* strip = toolBars->Items(i)->GetPanel();
    const QPoint place = model.strips[static_cast<size_t>(i)].rect.topLeft();
    if (strip->pos() != place) strip->move(place);
  }
  return reached;
}

void TLxButtonPanel::MoveToGuestDock(int x, int y, bool fromScreen) {
  TLxDockPanel* guest = GuestDock;
  if (!guest) return;
  if (fromScreen) {
    const QPoint local = guest->mapFromGlobal(QPoint(x, y));
    x = local.x();
    y = local.y();
  }
  TLxToolBarPanel* item = guest->GetToolBars()->Add();
  item->SetName(ToolBar ? ToolBar->GetName() : objectName());
  TLxButtonPanel* strip = item->GetPanel();
  guest->SetGuestPanel(strip);
  strip->hide();
  strip->SetHorizontal(guest->GetHorizontal());
  strip->SetCollection(Buttons.get());
  int size = 0;
  GetActualButtonSize(size);
  // One pixel more than the buttons, as a strip laid out in its dock: buttons keep their size.
  const int thickness = size + 1;
  const int length = Horizontal ? width() : height();
  if (guest->GetHorizontal()) {
    strip->resize(length, thickness);
    if (fromScreen) {
      x = std::max(0, std::min(x, guest->width() - length));
      guest->MakeRoom(x, length);
    }
    strip->move(x, 0);
  } else {
    strip->resize(thickness, length);
    if (fromScreen) {
      y = std::max(0, std::min(y, guest->height() - length));
      guest->MakeRoom(y, length);
    }
    strip->move(guest->StripOffset(), y);
  }
  strip->TakeButtons();
  guest->SetSize(thickness - 1);
  hide();
  if (TLxDockPanel* own = GetDock(); own && own != guest) own->ReleaseIfEmpty();
  strip->show();
  guest->setVisible(true);
}

void TLxButtonPanel::FreeGuestDock() {
  TLxDockPanel* guest = GuestDock;
  if (!guest) return;
  TLxToolBarCollection* toolBars = guest->GetToolBars();
  for (int i = 0; i < toolBars->Count(); ++i) {
    if (toolBars->Items(i)->GetPanel() == guest->GetGuestPanel()) {
      toolBars->Delete(i);
      break;
    }
  }
  guest->SetGuestPanel(nullptr);
  guest->ReleaseIfEmpty();
  GuestDock = nullptr;
}

void TLxButtonPanel::LayOutFloatingButtons(int size) {
  int x = 0;
  for (TLxButton* button : ButtonControls()) {
    // Buttons already in the row (floated again from a guest dock) are not turned again.
    const bool inRow = button->parentWidget() == FloatingWindow;
    const QSize extent = Horizontal || inRow ? button->size() : button->size().transposed();
    button->setParent(FloatingWindow);
    button->setGeometry(x, 0, extent.width(), extent.height());
    button->show();
    x += extent.width();
  }
  FloatingWindow->SetClientSize(x, size);
}

void TLxButtonPanel::LayOutFloatingWindow(int buttonWidth, int buttonHeight) {
  if (!FloatingWindow) return;
  int x = 0;
  for (TLxButton* button : ButtonControls()) {
    const int extent = docklayout::ButtonExtent(button->GetButtonType(), buttonWidth, buttonWidth);
    button->setParent(FloatingWindow);
    button->setGeometry(x, 0, extent, buttonHeight);
    button->show();
    x += extent;
  }
  FloatingWindow->SetClientSize(std::max(x, Buttons->Count() * buttonWidth), buttonHeight);
}

void TLxButtonPanel::MakeFloating(int x, int y, bool show) {
  TLxDockPanel* dock = GetDock();
  if (!dock) return;
  int size = 0;
  const int count = GetActualButtonSize(size);
  if (!FloatingWindow) FloatingWindow = new TLxFloatingToolWindow(this);
  FloatingWindow->hide();
  FloatingWindow->setWindowTitle(ToolBar ? ToolBar->GetName() : objectName());
  FloatingWindow->SetClientSize(count * size, size);
  FloatingWindow->move(x, y);
  FreeGuestDock();
  hide();
  Floating = true;
  dock->ReleaseIfEmpty();
  LayOutFloatingButtons(size);
  if (show) FloatingWindow->show();
}

void TLxButtonPanel::MakeDocked(TLxDockPanel* dock, int x, int y) {
  TLxDockPanel* own = GetDock();
  if (!dock || !own) return;
  int size = 0;
  GetActualButtonSize(size);
  if (dock != own) {
    if (FloatingWindow) FloatingWindow->hide();
    hide();
    GuestDock = dock;
    MoveToGuestDock(x, y, true);
    dock->SetGuestPanel(nullptr);
    GuestDock = nullptr;
    dock->SetSize(size);
    dock->setVisible(true);
    RemoveFromOwnDock();  // deletes this strip's toolbar
    return;
  }
  const QPoint local = dock->mapFromGlobal(QPoint(x, y));
  // Buttons come back from the floating window in the strip's own orientation.
  for (TLxButton* button : ButtonControls()) {
    if (button->parentWidget() == this) continue;
    const QSize extent = Horizontal ? button->size() : button->size().transposed();
    button->setParent(this);
    button->resize(extent);
    button->show();
  }
  AdjustSizeToButtons();
  const int length = Horizontal ? width() : height();
  int along =
      std::max(0, std::min(Horizontal ? local.x() : local.y(), dock->AxisLength() - length));
  dock->MakeRoom(along, length);
  if (FloatingWindow) FloatingWindow->hide();
  Floating = false;
  move(Horizontal ? QPoint(along, 0) : QPoint(dock->StripOffset(), along));
  show();
  dock->SetSize(size);
  dock->setVisible(true);
}

void TLxButtonPanel::RemoveFromOwnDock() {
  TLxDockPanel* dock = GetDock();
  if (!dock || !ToolBar) return;
  dock->GetToolBars()->Delete(dock->GetToolBars()->IndexOf(ToolBar));
}

TLxDockPanel* TLxButtonPanel::FindDock(int x, int y) {
  const TLxDockCollection* docks = GetDockCollection();
  for (int i = 0; i < docks->Count(); ++i) {
    TLxDockPanel* dock = docks->Items(i)->GetDockPanel();
    if (dock && dock->CanDockAt(x, y)) return dock;
  }
  return nullptr;
}

// ---- drag ----

void TLxButtonPanel::UpdateCursor(QPoint local) {
  const int along = Horizontal ? local.x() : local.y();
  const Qt::CursorShape shape = along < GripLength() ? Qt::SizeAllCursor : Qt::ArrowCursor;
  if (cursor().shape() != shape) setCursor(shape);
}

void TLxButtonPanel::StartDragFilter() {
  if (Filtering) return;
  qApp->installEventFilter(this);
  Filtering = true;
}

void TLxButtonPanel::StopDragFilter() {
  if (!Filtering) return;
  qApp->removeEventFilter(this);
  Filtering = false;
}

bool TLxButtonPanel::eventFilter(QObject* watched, QEvent* event) {
  if (!Dragging) return QWidget::eventFilter(watched, event);
  if (event->type() == QEvent::MouseMove) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    MouseMove(mouse->buttons(), mouse->globalPosition().toPoint());
    return true;
  }
  if (event->type() == QEvent::MouseButtonRelease) {
    auto* mouse = static_cast<QMouseEvent*>(event);
    MouseUp(mouse->button(), mouse->globalPosition().toPoint());
    return true;
  }
  return QWidget::eventFilter(watched, event);
}

void TLxButtonPanel::mousePressEvent(QMouseEvent* event) {
  MouseDown(event->button(), event->globalPosition().toPoint());
}

void TLxButtonPanel::mouseMoveEvent(QMouseEvent* event) {
  MouseMove(event->buttons(), event->globalPosition().toPoint());
}

void TLxButtonPanel::mouseReleaseEvent(QMouseEvent* event) {
  MouseUp(event->button(), event->globalPosition().toPoint());
}

void TLxButtonPanel::MouseDown(Qt::MouseButton button, QPoint screen) {
  MouseIsDown = true;
  UpdateCursor(mapFromGlobal(screen));
  if (button != Qt::LeftButton || cursor().shape() != Qt::SizeAllCursor) return;
  Dragging = true;
  DragStartMouse = screen;
  LastMouse = screen;
  DragStartPanel = pos();
  StartDragFilter();
}

void TLxButtonPanel::MouseMove(Qt::MouseButtons, QPoint screen) {
  if (!Dragging) {
    if (QGuiApplication::applicationState() == Qt::ApplicationActive ||
        QApplication::activeWindow())
      UpdateCursor(mapFromGlobal(screen));
    // A press that began just outside the grip still starts a drag once the mouse is on it.
    if (cursor().shape() == Qt::SizeAllCursor && !MouseIsDown &&
        (QGuiApplication::mouseButtons() & Qt::LeftButton))
      MouseDown(Qt::LeftButton, screen);
    return;
  }
  if (screen == LastMouse) return;
  LastMouse = screen;
  if (GuestDock)
    DragGuest(screen);
  else if (Floating)
    DragFloating(screen);
  else
    DragDocked(screen);
}

void TLxButtonPanel::DragDocked(QPoint screen) {
  TLxDockPanel* dock = GetDock();
  if (!dock) return;
  const QPoint offset = screen - DragStartMouse;
  const int target = Horizontal ? DragStartPanel.x() + offset.x() : DragStartPanel.y() + offset.y();
  const QPoint local = dock->mapFromGlobal(screen);
  const int across = Horizontal ? local.y() : local.x();
  const int dockThickness = Horizontal ? dock->height() : dock->width();
  const int stripThickness = Horizontal ? height() : width();
  if (across < 0 || across > dockThickness + stripThickness) {
    MakeFloating(screen.x(), screen.y(), true);
    return;
  }
  MoveToolBarTo(std::clamp(target, 0, std::max(0, dock->AxisLength())), true);
  dock->update();
}

void TLxButtonPanel::DragFloating(QPoint screen) {
  if (FloatingWindow) FloatingWindow->move(screen);
  const TLxDockCollection* docks = GetDockCollection();
  for (int i = 0; i < docks->Count(); ++i) {
    TLxDockPanel* dock = docks->Items(i)->GetDockPanel();
    if (!dock || dock == GetDock() || !dock->GetIsLoaded() ||
        !dock->CanDockAt(screen.x(), screen.y()))
      continue;
    GuestDock = dock;
    MoveToGuestDock(screen.x(), screen.y(), true);
    // The toolbar now shows in the dock; the window comes back if the mouse leaves it again.
    if (FloatingWindow) FloatingWindow->hide();
    return;
  }
}

void TLxButtonPanel::DragGuest(QPoint screen) {
  TLxDockPanel* guest = GuestDock;
  TLxButtonPanel* copy = guest->GetGuestPanel();
  if (!copy) return;
  int size = 0;
  GetActualButtonSize(size);
  const QPoint local = guest->mapFromGlobal(screen);
  const bool horizontal = guest->GetHorizontal();
  const int along = horizontal ? local.x() : local.y();
  int across = horizontal ? local.y() : local.x();
  if (guest->GetAlign() == alRight) across = guest->width() - local.x();
  const int thickness = horizontal ? guest->height() : guest->width();
  const bool outside = along < -2 * size || along > guest->AxisLength() + 2 * size || across < 0 ||
                       across > thickness;
  if (outside) {
    MakeFloating(screen.x(), screen.y(), true);
    return;
  }
  copy->MoveToolBarTo(along, true);
  guest->update();
}

void TLxButtonPanel::MouseUp(Qt::MouseButton, QPoint screen) {
  MouseIsDown = false;
  if (!Dragging) return;
  Dragging = false;
  StopDragFilter();
  if (TLxDockPanel* guest = GuestDock) {
    guest->SetGuestPanel(nullptr);
    GuestDock = nullptr;
    RemoveFromOwnDock();  // the copy in the guest dock stays
  } else if (Floating && FloatingWindow) {
    // Torn off and dropped back onto its own dock: it docks there again.
    FloatingWindow->DockWhereDropped(screen);
  }
}

void TLxButtonPanel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int grip = GripLength();
  if (grip <= 0) return;
  QStyleOption option;
  option.initFrom(this);
  option.rect = Horizontal ? QRect(0, 0, grip, height()) : QRect(0, 0, width(), grip);
  if (Horizontal) option.state |= QStyle::State_Horizontal;
  style()->drawPrimitive(QStyle::PE_IndicatorToolBarHandle, &option, &painter, this);
}

}  // namespace lx
