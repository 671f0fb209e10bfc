#include "lxcomp/LxOnOffButton.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include "controls/LxSmallControlSupport.h"
#include "lxcomp/LxRegistry.h"

namespace lx {

TLxOnOffButton::TLxOnOffButton(QWidget* parent) : QWidget(parent) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("On/off button"));
  setAccessibleDescription(tr("Off"));
  resize(sizeHint());
}

bool TLxOnOffButton::GetTabStop() const {
  return controls::TabStopOf(this);
}
void TLxOnOffButton::SetTabStop(bool value) {
  controls::SetTabStopOf(this, value);
}
int TLxOnOffButton::GetTabOrder() const {
  return controls::TabOrderOf(this);
}
void TLxOnOffButton::SetTabOrder(int value) {
  controls::SetTabOrderOf(this, value);
}

void TLxOnOffButton::SetCaption(const QString& value) {
  if (value == Caption) return;
  Caption = value;
  setAccessibleName(value);
  updateGeometry();
  update();
}

void TLxOnOffButton::SetDown(bool value) {
  if (value == Down) return;
  Down = value;
  setAccessibleDescription(Down ? tr("On") : tr("Off"));
  update();
}

void TLxOnOffButton::SetBackColor(TColor value) {
  if (value == BackColor) return;
  BackColor = value;
  update();
}

QSize TLxOnOffButton::sizeHint() const {
  const QFontMetrics metrics = fontMetrics();
  return {metrics.horizontalAdvance(Caption) + 4 * metrics.averageCharWidth() + 8,
          metrics.height() + 12};
}

void TLxOnOffButton::Toggle() {
  SetDown(!Down);
}

void TLxOnOffButton::MouseMove(Qt::KeyboardModifiers, int, int) {
  if (Hot) return;
  Hot = true;
  update();
}

void TLxOnOffButton::CMMouseExit() {
  Hot = false;
  update();
}

void TLxOnOffButton::MouseDown(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {
  setFocus(Qt::MouseFocusReason);
  Toggle();
}

void TLxOnOffButton::MouseUp(Qt::MouseButton, Qt::KeyboardModifiers, int, int) {}

void TLxOnOffButton::KeyDown(int& key, Qt::KeyboardModifiers) {
  if (key == Qt::Key_Space) Toggle();
  key = 0;
}

void TLxOnOffButton::LxEnter() {
  update();
}

void TLxOnOffButton::LxExit() {
  update();
}

// Off is a flat caption, on an emphasised (checked, default) button; the mouse over the button
// raises it.
void TLxOnOffButton::Paint() {
  if (!VisualStylesActive()) return;
  QPainter painter(this);
  painter.fillRect(rect(), BackColor != 0 ? ToQColor(BackColor) : controls::ButtonFace(this));
  QStyleOptionButton option;
  option.initFrom(this);
  option.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  if (Hot && isEnabled()) option.state |= QStyle::State_MouseOver | QStyle::State_Raised;
  if (Down) {
    option.state |= QStyle::State_On;
    option.features |= QStyleOptionButton::DefaultButton;
  }
  if (Hot || Down) style()->drawControl(QStyle::CE_PushButtonBevel, &option, &painter, this);
  const QPalette::ColorRole textRole = Hot || Down ? QPalette::ButtonText : QPalette::WindowText;
  style()->drawItemText(&painter, rect(), Qt::AlignCenter, palette(), isEnabled(), Caption,
                        textRole);
  if (!hasFocus()) return;
  const QFontMetrics metrics = fontMetrics();
  const int dx = (width() - metrics.horizontalAdvance(Caption)) / 4;
  const int dy = (height() - metrics.height() - 1) / 2;
  controls::DrawFocusRect(painter, this, rect().adjusted(dx, dy, -dx, -dy));
}

void TLxOnOffButton::paintEvent(QPaintEvent*) {
  Paint();
}

void TLxOnOffButton::mouseMoveEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseMove(event->modifiers(), at.x(), at.y());
}

void TLxOnOffButton::mousePressEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseDown(event->button(), event->modifiers(), at.x(), at.y());
}

void TLxOnOffButton::mouseReleaseEvent(QMouseEvent* event) {
  const QPoint at = event->position().toPoint();
  MouseUp(event->button(), event->modifiers(), at.x(), at.y());
}

void TLxOnOffButton::keyPressEvent(QKeyEvent* event) {
  if (controls::IsDialogKey(event)) {
    event->ignore();
    return;
  }
  int key = event->key();
  KeyDown(key, event->modifiers());
  event->accept();
}

void TLxOnOffButton::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  LxEnter();
}

void TLxOnOffButton::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  LxExit();
}

bool TLxOnOffButton::event(QEvent* event) {
  if (event->type() == QEvent::Leave) CMMouseExit();
  return QWidget::event(event);
}

namespace LxOnOffButton {
void Register() {
  RegisterComponents(QStringLiteral("Quarnel"),
                     {{QStringLiteral("TLxOnOffButton"), QStringLiteral("lxcomp/LxOnOffButton.h"),
                       QStringLiteral("Push button that toggles between on and off"),
                       [](QWidget* parent) -> QWidget* { return new TLxOnOffButton(parent); }}});
}
}  // namespace LxOnOffButton

}  // namespace lx
