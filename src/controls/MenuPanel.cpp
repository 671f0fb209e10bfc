#include "lxcomp/MenuPanel.h"

#include <QApplication>
#include <QCursor>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QTimer>

#include <algorithm>
#include <cmath>

#include "controls/MenuGeometry.h"
#include "lxcomp/LxRegistry.h"

namespace lx {
namespace {

// The title as shown: the accelerator marker removed ("&&" stands for one "&").
QString ShownText(const QString& name) {
  QString text;
  for (int i = 0; i < name.size(); ++i) {
    if (name[i] == QLatin1Char('&') && i + 1 < name.size()) ++i;
    text += name[i];
  }
  return text;
}

}  // namespace

// ---- titles ----

void TLxMenu::SetName(const QString& name) {
  Name = name;
  if (Panel) {
    Panel->MeasureTitle(this);
    Panel->update();
  }
}

TLxMenu* TLxMenuCollection::Add() {
  Items_.push_back(std::make_unique<TLxMenu>(Owner));
  if (Owner) Owner->update();
  return Items_.back().get();
}

TLxMenu* TLxMenuCollection::Items(int index) const {
  return index >= 0 && index < Count() ? Items_[static_cast<size_t>(index)].get() : nullptr;
}

void TLxMenuCollection::Delete(int index) {
  if (index < 0 || index >= Count()) return;
  Items_.erase(Items_.begin() + index);
  if (Owner) Owner->update();
}

int TLxMenuCollection::IndexOf(const TLxMenu* menu) const {
  for (int i = 0; i < Count(); ++i)
    if (Items_[static_cast<size_t>(i)].get() == menu) return i;
  return -1;
}

// ---- panel ----

TLxMenuPanel::TLxMenuPanel(QWidget* parent)
    : QWidget(parent),
      Menus(std::make_unique<TLxMenuCollection>(this)),
      HotColor(FromQColor(palette().color(QPalette::Highlight))),
      Timer(new QTimer(this)) {
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Timer->setInterval(200);
  connect(Timer, &QTimer::timeout, this, &TLxMenuPanel::OnTimer);
}

TLxMenuPanel::~TLxMenuPanel() {
  Timer->stop();
}

void TLxMenuPanel::SetCollection(TLxMenuCollection* menus) {
  if (!menus || menus == Menus.get()) return;
  ResetOpenState();
  HotMenu = nullptr;
  NextMenu = nullptr;
  NextIndex = -1;
  Selected.clear();
  while (Menus->Count() > 0)
    Menus->Delete(Menus->Count() - 1);
  for (int i = 0; i < menus->Count(); ++i) {
    TLxMenu* copy = Menus->Add();
    copy->SetPopupMenu(menus->Items(i)->GetPopupMenu());
    copy->SetName(menus->Items(i)->GetName());
  }
}

void TLxMenuPanel::SetHotColor(TColor color) {
  if (color == HotColor) return;
  HotColor = color;
  update();
}

void TLxMenuPanel::SetTextScaleFactor(float factor) {
  // Beyond a hundredfold text no title fits a screen, and the measuring would overflow.
  if (factor == TextScaleFactor || !(factor > 0.0f && factor <= 100.0f)) return;
  TextScaleFactor = factor;
  update();
}

void TLxMenuPanel::SetShowUnderscores(bool show) {
  if (show == ShowUnderscores) return;
  ShowUnderscores = show;
  update();
}

std::vector<float> TLxMenuPanel::TitleWidths() const {
  std::vector<float> widths;
  for (int i = 0; i < Menus->Count(); ++i)
    widths.push_back(Menus->Items(i)->GetTitleWidth());
  return widths;
}

int TLxMenuPanel::TitleAt(int x) const {
  return menugeometry::HitTitle(TitleWidths(), Gap(), x);
}

int TLxMenuPanel::TitleLeft(int index) const {
  return menugeometry::TitleLeft(TitleWidths(), Gap(), index);
}

QRect TLxMenuPanel::TitleRect(int index) const {
  const TLxMenu* menu = Menus->Items(index);
  if (!menu) return {};
  const int left = TitleLeft(index);
  const int right = static_cast<int>(static_cast<float>(left) + menu->GetTitleWidth() + Gap());
  return QRect(left, 0, std::max(0, right - left), height());
}

void TLxMenuPanel::MeasureTitle(TLxMenu* menu) const {
  if (!menu || EffectiveScale <= 0.0f) return;
  menu->SetTitleWidth(
      static_cast<float>(QFontMetricsF(font()).horizontalAdvance(ShownText(menu->GetName()))));
}

void TLxMenuPanel::Measure() {
  const float scale = static_cast<float>(ScaleFactor(this)) * TextScaleFactor;
  if (scale == EffectiveScale) return;
  EffectiveScale = scale;
  QFont measured = font();
  measured.setPixelSize(std::max(1, static_cast<int>(scale * 12.0f)));
  setFont(measured);
  const QFontMetrics metrics(measured);
  setFixedHeight(static_cast<int>(scale * 4.0f + static_cast<float>(metrics.height())));
  for (int i = 0; i < Menus->Count(); ++i)
    MeasureTitle(Menus->Items(i));
  updateGeometry();
}

QSize TLxMenuPanel::sizeHint() const {
  return QSize(TitleLeft(Menus->Count()), height());
}

bool TLxMenuPanel::IsTitleSelected(const TLxMenu* menu) const {
  return std::find(Selected.begin(), Selected.end(), menu) != Selected.end();
}

void TLxMenuPanel::DrawMenuTitle(TLxMenu* menu, bool selected) {
  const int index = Menus->IndexOf(menu);
  if (index < 0) return;
  const bool was = IsTitleSelected(menu);
  if (selected && !was) Selected.push_back(menu);
  if (!selected && was) Selected.erase(std::find(Selected.begin(), Selected.end(), menu));
  if (selected != was) update(TitleRect(index));
}

void TLxMenuPanel::DrawTitle(QPainter& painter, int index) {
  TLxMenu* menu = Menus->Items(index);
  const QRect cell = TitleRect(index);
  const bool selected = IsTitleSelected(menu);
  if (VisualStylesActive()) {
    QStyleOptionMenuItem option;
    option.initFrom(this);
    option.rect = cell;
    option.menuItemType = QStyleOptionMenuItem::Normal;
    option.state = QStyle::State_Enabled;
    if (selected) option.state |= QStyle::State_Selected | QStyle::State_Sunken;
    style()->drawControl(QStyle::CE_MenuBarItem, &option, &painter, this);
  } else {
    painter.fillRect(cell, selected ? ToQColor(HotColor) : palette().color(QPalette::Window));
  }
  const int indent = static_cast<int>(static_cast<float>(TitleGap) * EffectiveScale) / 2;
  painter.setPen(palette().color(selected ? QPalette::HighlightedText : QPalette::WindowText));
  const int mnemonic = ShowUnderscores ? Qt::TextShowMnemonic : Qt::TextHideMnemonic;
  painter.drawText(cell.adjusted(indent, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter | mnemonic,
                   menu->GetName());
}

void TLxMenuPanel::Paint(QPainter& painter, const QRect& area) {
  Measure();
  // A full repaint draws every title in its normal look (the open one stays selected).
  if (area.contains(rect())) {
    HotMenu = nullptr;
    Selected.clear();
    if (OpenMenu) Selected.push_back(OpenMenu);
  }
  if (VisualStylesActive()) {
    QStyleOptionMenuItem empty;
    empty.initFrom(this);
    empty.rect = rect();
    painter.fillRect(rect(), palette().color(QPalette::Window));
    style()->drawControl(QStyle::CE_MenuBarEmptyArea, &empty, &painter, this);
  } else {
    painter.fillRect(rect(), palette().color(QPalette::Window));
  }
  for (int i = 0; i < Menus->Count(); ++i)
    DrawTitle(painter, i);
}

void TLxMenuPanel::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  Paint(painter, event->rect());
}

void TLxMenuPanel::showEvent(QShowEvent* event) {
  Measure();
  QWidget::showEvent(event);
}

bool TLxMenuPanel::event(QEvent* event) {
  if (event->type() == QEvent::Leave) CMMouseExit();
  return QWidget::event(event);
}

void TLxMenuPanel::mouseMoveEvent(QMouseEvent* event) {
  MouseMove(event->position().toPoint());
}

void TLxMenuPanel::mousePressEvent(QMouseEvent* event) {
  MouseDown(event->button(), event->position().toPoint());
}

void TLxMenuPanel::ResetOpenState() {
  OverOpenTitle = false;
  OpenIndex = -1;
  OpenMenu = nullptr;
}

void TLxMenuPanel::MouseMove(QPoint local) {
  if (LoopRunning) return;
  const int hit = TitleAt(local.x());
  const bool active = QGuiApplication::applicationState() == Qt::ApplicationActive ||
                      QApplication::activeWindow() != nullptr;
  if (active) {
    TLxMenu* title = Menus->Items(hit);
    if (title) {
      if (HotMenu && HotMenu != title) {
        DrawMenuTitle(HotMenu, false);
        HotMenu = nullptr;
      }
      if (HotMenu == title) {
        ResetOpenState();
        return;
      }
      DrawMenuTitle(title, true);
      HotMenu = title;
    } else if (HotMenu) {
      DrawMenuTitle(HotMenu, false);
      HotMenu = nullptr;
    }
  }
  ResetOpenState();
}

void TLxMenuPanel::MouseDown(Qt::MouseButton button, QPoint local) {
  if (LoopRunning) return;
  const int hit = TitleAt(local.x());
  if (hit < 0) return;
  if (OverOpenTitle) {
    // The click landed on the title of the menu that was just open: it only closes it.
    if (OpenMenu) DrawMenuTitle(OpenMenu, false);
    OpenIndex = -1;
    OpenMenu = nullptr;
    HotMenu = nullptr;
    OverOpenTitle = false;
    return;
  }
  NextIndex = hit;
  NextMenu = Menus->Items(hit);
  RunOpenLoop(button == Qt::LeftButton ? Qt::LeftButton : Qt::RightButton);
}

void TLxMenuPanel::DoMenu(int index) {
  TLxMenu* title = Menus->Items(index);
  if (!title || LoopRunning) return;
  if (HotMenu && HotMenu != title) DrawMenuTitle(HotMenu, false);
  DrawMenuTitle(title, true);
  NextIndex = index;
  NextMenu = title;
  RunOpenLoop(Qt::LeftButton);
}

void TLxMenuPanel::RunOpenLoop(Qt::MouseButton button) {
  QPointer<TLxMenuPanel> alive(this);
  LoopRunning = true;
  do {
    OpenIndex = NextIndex;
    OpenMenu = NextMenu;
    DrawMenuTitle(OpenMenu, true);
    NextIndex = -1;
    NextMenu = nullptr;
    HotMenu = nullptr;
    const QPoint point = mapToGlobal(QPoint(TitleLeft(OpenIndex), height()));
    Timer->start();
    TrackButton = button;
    if (QMenu* popup = OpenMenu ? OpenMenu->GetPopupMenu() : nullptr) popup->exec(point);
    if (!alive) return;
    Timer->stop();
    DrawMenuTitle(OpenMenu, false);
  } while (NextIndex >= 0 && Menus->Items(NextIndex) == NextMenu);
  LoopRunning = false;
}

void TLxMenuPanel::SetItemSelected(bool selected) {
  if (selected) Timer->stop();
}

void TLxMenuPanel::OnTimer() {
  const QRect bar(mapToGlobal(QPoint(0, 0)), size());
  const QPoint cursor = QCursor::pos();
  if (!bar.contains(cursor)) return;
  const int hit = TitleAt(mapFromGlobal(cursor).x());
  OverOpenTitle = hit == OpenIndex;
  if (hit == OpenIndex || hit < 0) return;
  NextIndex = hit;
  NextMenu = Menus->Items(hit);
  // Closing the open popup ends its loop; the open loop then opens the next title. The host
  // may have removed the open title meanwhile.
  if (Menus->IndexOf(OpenMenu) >= 0 && OpenMenu->GetPopupMenu()) OpenMenu->GetPopupMenu()->close();
}

void TLxMenuPanel::CMMouseExit() {
  if (HotMenu && HotMenu != OpenMenu) {
    DrawMenuTitle(HotMenu, false);
    HotMenu = nullptr;
  }
}

namespace MenuPanel {

void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxMenuPanel"), QStringLiteral("lxcomp/MenuPanel.h"),
                       QStringLiteral("Menu bar drawn and scaled by the library"),
                       [](QWidget* parent) -> QWidget* { return new TLxMenuPanel(parent); }}});
}

}  // namespace MenuPanel

}  // namespace lx
