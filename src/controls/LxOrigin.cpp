#include "lxcomp/LxOrigin.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>
#include <limits>

#include "controls/LxSmallControlSupport.h"
#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxRegistry.h"

namespace lx {
namespace {

constexpr int kCellPixels = 24;  // preferred cell size at scale 1

// How many whole steps of `step` pixels (running sums step, 2 step, ...) lie at or before pos,
// at most `count`. A zero step fits any number of times.
int StepsWithin(int step, int pos, int count) {
  if (pos < 0 || pos < step) return 0;
  if (step <= 0) return count;
  return std::min(pos / step, count);
}

int Saturate(std::int64_t value) {
  return static_cast<int>(std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(),
                                                   std::numeric_limits<int>::max()));
}

}  // namespace

TLxOrigin::TLxOrigin(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);  // Paint covers every pixel
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Origin selector"));
  DescribeSelection();
  resize(sizeHint());
}

void TLxOrigin::SetWidth(int value) {
  resize(std::max(0, value), height());
}

void TLxOrigin::SetHeight(int value) {
  resize(width(), std::max(0, value));
}

void TLxOrigin::SetNumRows(int value) {
  if (value > 0 && value == NumRows) return;
  NumRows = value;
  updateGeometry();
  update();
}

void TLxOrigin::SetNumCols(int value) {
  if (value > 0 && value == NumCols) return;
  NumCols = value;
  updateGeometry();
  update();
}

void TLxOrigin::SetSelectedButton(int value) {
  if (value == SelectedButton) return;
  SelectedButton = value;
  DeriveSelection();
  update();
}

bool TLxOrigin::GetTabStop() const {
  return controls::TabStopOf(this);
}
void TLxOrigin::SetTabStop(bool value) {
  controls::SetTabStopOf(this, value);
}
int TLxOrigin::GetTabOrder() const {
  return controls::TabOrderOf(this);
}
void TLxOrigin::SetTabOrder(int value) {
  controls::SetTabOrderOf(this, value);
}

QSize TLxOrigin::sizeHint() const {
  const int cell = qRound(kCellPixels * ScaleFactor(this));
  return {cell * std::clamp(NumCols, 1, 16), cell * std::clamp(NumRows, 1, 16)};
}

int TLxOrigin::CellWidth() const {
  return NumCols > 0 ? width() / NumCols : 0;
}

int TLxOrigin::CellHeight() const {
  return NumRows > 0 ? height() / NumRows : 0;
}

int TLxOrigin::CellNumber(std::int64_t row, std::int64_t col) const {
  return Saturate(row * NumCols + col + 1);
}

// Row and column of SelectedButton, counted from 0 (division truncating toward zero).
void TLxOrigin::DeriveSelection() {
  if (NumCols <= 0) {
    SelRow = SelCol = -1;
  } else {
    const std::int64_t index = static_cast<std::int64_t>(SelectedButton) - 1;
    const std::int64_t row = index / NumCols;
    SelRow = static_cast<int>(row);
    SelCol = static_cast<int>(index - row * NumCols);
  }
  DescribeSelection();
}

void TLxOrigin::DescribeSelection() {
  const std::int64_t cells = static_cast<std::int64_t>(NumRows) * NumCols;
  const bool valid = HasCells() && SelectedButton >= 1 && SelectedButton <= cells;
  setAccessibleDescription(valid ? tr("Cell %1 of %2 selected").arg(SelectedButton).arg(cells)
                                 : tr("No cell selected"));
}

void TLxOrigin::MouseMove(Qt::KeyboardModifiers, int x, int y) {
  int col = -1;
  int row = -1;
  if (HasCells()) {
    col = StepsWithin(CellWidth(), x, NumCols);
    row = StepsWithin(CellHeight(), y, NumRows);
  }
  if (col == HotCol && row == HotRow) return;
  HotCol = col;
  HotRow = row;
  update();
}

void TLxOrigin::CMMouseExit() {
  HotCol = HotRow = -1;
  update();
}

void TLxOrigin::MouseDown(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
  MouseIsDown = true;
  setFocus(Qt::MouseFocusReason);
  update();
}

void TLxOrigin::MouseUp(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
  MouseIsDown = false;
  if (HotCol == SelCol && HotRow == SelRow) return;
  SelCol = HotCol;
  SelRow = HotRow;
  SelectedButton = CellNumber(HotRow, HotCol);
  DescribeSelection();
  emit OnChange(this);
}

// The cell a key leads to from the selected cell (or the centre cell when none is selected);
// 0 when the key leads nowhere.
int TLxOrigin::KeyTarget(int key) const {
  if (!HasCells()) return 0;
  const std::int64_t cells = static_cast<std::int64_t>(NumRows) * NumCols;
  const std::int64_t centre = (cells + 1) / 2;
  const std::int64_t n = SelectedButton > 0 ? SelectedButton : centre;
  const std::int64_t row = (n - 1) / NumCols;
  const std::int64_t col = (n - 1) - row * NumCols;
  switch (key) {
    case Qt::Key_Space:
      return n >= cells ? 1 : Saturate(n + 1);
    case Qt::Key_Home:
      return Saturate(centre);
    case Qt::Key_Left:
      return col > 0 ? Saturate(n - 1) : 0;
    case Qt::Key_Right:
      return col + 1 < NumCols ? Saturate(n + 1) : 0;
    case Qt::Key_Up:
      return row > 0 ? CellNumber(row - 1, col) : 0;
    case Qt::Key_Down:
      return row + 1 < NumRows ? CellNumber(row + 1, col) : 0;
    default:
      return 0;
  }
}

void TLxOrigin::KeyDown(int& key, Qt::KeyboardModifiers) {
  const int target = KeyTarget(key);
  key = 0;
  if (target == 0) return;
  if (target != SelectedButton) {
    SelectedButton = target;
    DeriveSelection();
    update();
  }
  emit OnChange(this);
}

void TLxOrigin::LxEnter() {
  update();
}

void TLxOrigin::LxExit() {
  update();
}

TLxOrigin::CellLook TLxOrigin::LookOf(int row, int col) const {
  if (CellNumber(row, col) == SelectedButton) return CellLook::Selected;
  if (row != HotRow || col != HotCol) return CellLook::Normal;
  return MouseIsDown ? CellLook::Pressed : CellLook::Hot;
}

void TLxOrigin::PaintCell(QPainter& painter, const QRect& cell, CellLook look) const {
  QStyleOptionButton option;
  option.initFrom(this);
  option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  option.rect = cell.width() > 4 && cell.height() > 4 ? cell.adjusted(1, 1, -1, -1) : cell;
  switch (look) {
    case CellLook::Normal:
      option.state |= QStyle::State_Raised;
      break;
    case CellLook::Hot:
      option.state |= QStyle::State_Raised | QStyle::State_MouseOver;
      break;
    case CellLook::Pressed:
      option.state |= QStyle::State_Sunken;
      break;
    case CellLook::Selected:
      option.state |= QStyle::State_On;
      break;
  }
  style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, this);
  if (look == CellLook::Hot && isEnabled()) controls::DrawHotTint(painter, this, option.rect);
  if (look != CellLook::Selected) return;
  // The chosen reference point, as a dot in the selection colour.
  const qreal radius = std::max(1.5, std::min(cell.width(), cell.height()) / 6.0);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(isEnabled() ? option.palette.color(QPalette::Highlight)
                               : option.palette.color(QPalette::Disabled, QPalette::ButtonText));
  painter.drawEllipse(QRectF(cell).center(), radius, radius);
  painter.restore();
}

// The focus surrounds the selected cell, or the whole grid when no cell is selected.
void TLxOrigin::PaintFocus(QPainter& painter) const {
  QRect area = rect();
  if (HasCells() && SelRow >= 0 && SelRow < NumRows && SelCol >= 0 && SelCol < NumCols) {
    const int cw = CellWidth();
    const int ch = CellHeight();
    area = QRect(SelCol * cw, SelRow * ch, cw, ch);
  }
  if (area.width() > 8 && area.height() > 8) area.adjust(3, 3, -3, -3);
  controls::DrawFocusRect(painter, this, area);
}

void TLxOrigin::Paint() {
  QPainter painter(this);
  painter.fillRect(rect(), controls::ButtonFace(this));
  const int cw = CellWidth();
  const int ch = CellHeight();
  if (!HasCells() || cw <= 0 || ch <= 0) return;
  if (!isEnabled()) painter.setOpacity(0.5);  // some palettes give disabled buttons no own look
  for (int row = 0; row < NumRows; ++row)
    for (int col = 0; col < NumCols; ++col)
      PaintCell(painter, QRect(col * cw, row * ch, cw, ch), LookOf(row, col));
  if (hasFocus()) PaintFocus(painter);
}

void TLxOrigin::paintEvent(QPaintEvent*) {
  Paint();
}

void TLxOrigin::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  // Moves outside arrive only while a pressed button holds the mouse: it has left the control
  // (the leave event itself comes only after the release).
  if (!rect().contains(at)) {
    if (HotCol != -1 || HotRow != -1) CMMouseExit();
    return;
  }
  MouseMove(event->modifiers(), at.x(), at.y());
}

void TLxOrigin::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseMove(event->modifiers(), at.x(), at.y());  // a press always lands where the mouse is
  MouseDown(event->button(), event->modifiers(), at.x(), at.y());
}

void TLxOrigin::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseUp(event->button(), event->modifiers(), at.x(), at.y());
  update();  // the pressed cell rises again and shows the selection
}

void TLxOrigin::keyPressEvent(QKeyEvent* event) {
  if (controls::IsDialogKey(event)) {
    event->ignore();
    return;
  }
  int key = event->key();
  KeyDown(key, event->modifiers());
  event->accept();
}

void TLxOrigin::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  LxEnter();
}

void TLxOrigin::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  LxExit();
}

bool TLxOrigin::event(QEvent* event) {
  if (event->type() == QEvent::Leave) CMMouseExit();
  return QWidget::event(event);
}

namespace LxOrigin {
void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxOrigin"), QStringLiteral("lxcomp/LxOrigin.h"),
                       QStringLiteral("Grid of buttons that picks a reference point"),
                       [](QWidget* parent) -> QWidget* { return new TLxOrigin(parent); }}});
}
}  // namespace LxOrigin

}  // namespace lx
