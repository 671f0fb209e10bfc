#include "lxcomp/LxTabControl.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionTab>
#include <QTabBar>

#include <algorithm>

#include "controls/LxSmallControlSupport.h"
#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxRegistry.h"

namespace lx {
namespace {

QStyleOptionTab::TabPosition PositionOf(int index, int count) {
  if (count == 1) return QStyleOptionTab::OnlyOneTab;
  if (index == 0) return QStyleOptionTab::Beginning;
  return index == count - 1 ? QStyleOptionTab::End : QStyleOptionTab::Middle;
}

}  // namespace

TLxTabControl::TLxTabControl(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setAccessibleName(tr("Tabs"));
  resize(200, height());
  Measure();
}

void TLxTabControl::SetTabs(const QStringList* tabs) {
  Tabs = tabs ? *tabs : QStringList();
  HotTab = -1;  // a hot tab of the old list means nothing in the new one
  HotShown = false;
  MeasureTabs();
  DescribeSelection();
  update();
}

void TLxTabControl::SetTabIndex(int value) {
  if (value == TabIndex) return;
  TabIndex = value;
  DescribeSelection();
  update();
}

void TLxTabControl::DescribeSelection() {
  setAccessibleDescription(TabIndex >= 0 && TabIndex < Tabs.size() ? Tabs[TabIndex] : QString());
}

double TLxTabControl::GetScaleFactorFromMonitor() const {
  return ScaleFactor(this);
}

int TLxTabControl::TextHeight() const {
  return fontMetrics().height();
}

// The height follows the monitor's scale; the tab widths follow the texts.
void TLxTabControl::Measure() {
  const double scale = GetScaleFactorFromMonitor();
  if (scale != TabMargin) {
    TabMargin = scale;
    resize(width(), static_cast<int>(scale * 4.0 + TextHeight()));
    updateGeometry();
  }
  MeasureTabs();
}

void TLxTabControl::MeasureTabs() {
  const QFontMetrics metrics = fontMetrics();
  TabWidths.clear();
  for (const QString& text : Tabs)
    TabWidths.push_back(static_cast<int>(TabMargin * 8.0 + metrics.horizontalAdvance(text)));
}

int TLxTabControl::TabAt(int x) const {
  long long right = 0;
  for (size_t i = 0; i < TabWidths.size(); ++i) {
    right += TabWidths[i];
    if (right > x) return static_cast<int>(i);
  }
  return -1;
}

QSize TLxTabControl::sizeHint() const {
  long long total = 0;
  for (int w : TabWidths)
    total += w;
  const int h = static_cast<int>(std::max(TabMargin, 1.0) * 4.0 + TextHeight());
  return {static_cast<int>(std::clamp(total, 80LL, 4000LL)), h};
}

void TLxTabControl::PaintTab(QPainter& painter, int index, const QRect& area) const {
  QStyleOptionTab option;
  option.initFrom(this);
  option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  option.shape = QTabBar::RoundedSouth;
  option.rect = area;
  option.text = Tabs[index];
  option.position = PositionOf(index, static_cast<int>(Tabs.size()));
  if (index == TabIndex) option.state |= QStyle::State_Selected;
  const bool hot = HotShown && index == HotTab && index != TabIndex && isEnabled();
  if (hot) option.state |= QStyle::State_MouseOver;
  style()->drawControl(QStyle::CE_TabBarTabShape, &option, &painter, this);
  if (hot) controls::DrawHotTint(painter, this, area.adjusted(1, 0, -1, -1));
  if (index == TabIndex && area.height() > 4) {
    // An accent along the free edge tells the selected tab apart in every palette.
    const QColor accent = palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled,
                                          isEnabled() ? QPalette::Highlight : QPalette::Mid);
    painter.fillRect(QRect(area.left() + 2, area.bottom() - 2, area.width() - 4, 2), accent);
  }
  style()->drawItemText(&painter, area, Qt::AlignCenter, palette(), isEnabled(), option.text,
                        QPalette::WindowText);
  if (index == TabIndex && hasFocus())
    controls::DrawFocusRect(painter, this, area.adjusted(2, 1, -2, -2));
}

// Tabs hang below a strip: the selected tab stands taller than the others.
void TLxTabControl::Paint() {
  Measure();
  if (!VisualStylesActive()) return;
  QPainter painter(this);
  painter.fillRect(rect(), controls::ButtonFace(this));
  const int margin = static_cast<int>(TabMargin);
  QStyleOptionTabWidgetFrame strip;
  strip.initFrom(this);
  strip.shape = QTabBar::RoundedSouth;
  strip.rect = QRect(0, -10, width(), 10 + margin);
  style()->drawPrimitive(QStyle::PE_FrameTabWidget, &strip, &painter, this);
  int x = 0;
  for (int i = 0; i < static_cast<int>(TabWidths.size()) && x < width(); ++i) {
    const int w = TabWidths[static_cast<size_t>(i)];
    // Edges computed in fractions of the margin and cut to whole pixels only at the end.
    if (i == TabIndex)
      PaintTab(painter, i, QRect(x, 0, w, static_cast<int>(height() - TabMargin)));
    else
      PaintTab(painter, i,
               QRect(x, margin, w, static_cast<int>(height() - 2.0 * TabMargin) - margin));
    x += w;
  }
}

void TLxTabControl::MouseMove(Qt::KeyboardModifiers, int x, int) {
  const int old = HotTab;
  const int tab = TabAt(x);
  if (tab >= 0) HotTab = tab;
  if (old < 0 && HotTab < 0) return;
  HotShown = true;
  update();
}

void TLxTabControl::CMMouseExit() {
  HotShown = false;
  if (HotTab >= 0 && HotTab != TabIndex) update();
}

void TLxTabControl::MouseDown(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {}

void TLxTabControl::MouseUp(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
  if (HotTab < 0 || HotTab == TabIndex) return;
  SetTabIndex(HotTab);
  emit OnChange(this);
}

void TLxTabControl::paintEvent(QPaintEvent*) {
  Paint();
}

void TLxTabControl::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseMove(event->modifiers(), at.x(), at.y());
}

void TLxTabControl::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseMove(event->modifiers(), at.x(), at.y());  // a press always lands where the mouse is
  MouseDown(event->button(), event->modifiers(), at.x(), at.y());
}

void TLxTabControl::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseUp(event->button(), event->modifiers(), at.x(), at.y());
}

// Left and Right pick the neighbouring tab as a click on it would.
void TLxTabControl::keyPressEvent(QKeyEvent* event) {
  const int count = static_cast<int>(Tabs.size());
  int target = -1;
  if (count > 0 && event->key() == Qt::Key_Left && TabIndex > 0)
    target = std::min(TabIndex, count) - 1;
  if (count > 0 && event->key() == Qt::Key_Right && TabIndex + 1 < count)
    target = std::max(TabIndex + 1, 0);
  if (event->key() != Qt::Key_Left && event->key() != Qt::Key_Right) {
    QWidget::keyPressEvent(event);
    return;
  }
  event->accept();
  if (target < 0 || target == TabIndex) return;
  SetTabIndex(target);
  emit OnChange(this);
}

bool TLxTabControl::event(QEvent* event) {
  switch (event->type()) {
    case QEvent::Leave:
      CMMouseExit();
      break;
    case QEvent::FontChange:
    case QEvent::ScreenChangeInternal:
      TabMargin = 0.0;  // measure again at the next paint
      break;
    default:
      break;
  }
  return QWidget::event(event);
}

namespace LxTabControl {
void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxTabControl"), QStringLiteral("lxcomp/LxTabControl.h"),
                       QStringLiteral("Row of tabs that scales with its monitor"),
                       [](QWidget* parent) -> QWidget* { return new TLxTabControl(parent); }}});
}
}  // namespace LxTabControl

}  // namespace lx
