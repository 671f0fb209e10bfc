#include "lxcomp/LxButtonGroupBox.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTimer>
#include <QToolButton>

#include "controls/LxSmallControlSupport.h"
#include "lxcomp/LxPlatform.h"
#include "lxcomp/LxRegistry.h"

namespace lx {
namespace {

QToolButton* AsSpeedButton(QWidget* widget) {
  return qobject_cast<QToolButton*>(widget);
}

bool StrictlyInside(const QRect& r, int x, int y) {
  return r.x() < x && x < r.x() + r.width() && r.y() < y && y < r.y() + r.height();
}

}  // namespace

TLxButtonGroup::TLxButtonGroup(QWidget* parent) : QWidget(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Button group"));
  Timer = new QTimer(this);
  Timer->setInterval(HotTimerInterval);
  connect(Timer, &QTimer::timeout, this, &TLxButtonGroup::DoTimer);
}

bool TLxButtonGroup::GetTabStop() const {
  return controls::TabStopOf(this);
}
void TLxButtonGroup::SetTabStop(bool value) {
  controls::SetTabStopOf(this, value);
}
int TLxButtonGroup::GetTabOrder() const {
  return controls::TabOrderOf(this);
}
void TLxButtonGroup::SetTabOrder(int value) {
  controls::SetTabOrderOf(this, value);
}

void TLxButtonGroup::SetHot(bool value) {
  if (value == Hot) return;
  Hot = value;
  update();
}

// The group's child widgets in child order; speed buttons and any others.
QList<QWidget*> TLxButtonGroup::ChildControls() const {
  return findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
}

QToolButton* TLxButtonGroup::CurrentButton() const {
  QToolButton* current = nullptr;
  for (QWidget* child : ChildControls())
    if (QToolButton* button = AsSpeedButton(child); button && button->isChecked()) current = button;
  return current;
}

// Follows the mouse, which may leave the group through a child without the group noticing.
void TLxButtonGroup::DoTimer() {
  if (!isVisible()) {
    Timer->stop();
    return;
  }
  SetHot(rect().contains(mapFromGlobal(QCursor::pos())));
}

void TLxButtonGroup::CMMouseExit() {
  DoTimer();
}

// The speed button a key leads to from the current one; null when it leads nowhere.
QToolButton* TLxButtonGroup::TargetOf(int key) const {
  const QList<QWidget*> children = ChildControls();
  QToolButton* current = CurrentButton();
  const QRect from = current ? current->geometry() : QRect(0, 0, 0, 0);
  int cx = from.x() + from.width() / 2;
  int cy = from.y() + from.height() / 2;
  switch (key) {
    case Qt::Key_Space: {
      const int next = static_cast<int>(children.indexOf(current)) + 1;
      return AsSpeedButton(children.value(next < children.size() ? next : 0));
    }
    case Qt::Key_Home:
      for (QWidget* child : children)
        if (QToolButton* button = AsSpeedButton(child)) return button;
      return nullptr;
    case Qt::Key_Left:
      cx -= from.width();
      break;
    case Qt::Key_Right:
      cx += from.width();
      break;
    case Qt::Key_Up:
      cy -= from.height();
      break;
    case Qt::Key_Down:
      cy += from.height();
      break;
    default:
      return nullptr;
  }
  if (!StrictlyInside(QRect(0, 0, width(), height()), cx, cy)) return nullptr;
  for (QWidget* child : children)
    if (QToolButton* button = AsSpeedButton(child);
        button && StrictlyInside(button->geometry(), cx, cy))
      return button;
  return nullptr;
}

void TLxButtonGroup::PutDown(QToolButton* button) {
  button->setChecked(true);
  emit OnChange(button);
  update();
}

void TLxButtonGroup::KeyDown(int& key, Qt::KeyboardModifiers) {
  QToolButton* target = TargetOf(key);
  if (!target) return;
  PutDown(target);
  key = 0;
}

void TLxButtonGroup::LxEnter() {
  update();
}

void TLxButtonGroup::LxExit() {
  update();
}

void TLxButtonGroup::Paint() {
  if (!Timer->isActive()) Timer->start();
  if (!VisualStylesActive()) return;
  QPainter painter(this);
  QStyleOptionFrame frame;
  frame.initFrom(this);
  frame.state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
  if (hasFocus() || Hot) frame.state |= QStyle::State_HasFocus;
  if (Hot) frame.state |= QStyle::State_MouseOver;
  frame.lineWidth = 1;
  frame.frameShape = QFrame::StyledPanel;
  style()->drawPrimitive(QStyle::PE_FrameLineEdit, &frame, &painter, this);
  painter.fillRect(QRect(2, 2, width() - 4, height() - 4), controls::ButtonFace(this));
}

void TLxButtonGroup::paintEvent(QPaintEvent*) {
  Paint();
}

void TLxButtonGroup::keyPressEvent(QKeyEvent* event) {
  int key = event->key();
  KeyDown(key, event->modifiers());
  if (key == 0)
    event->accept();
  else
    QWidget::keyPressEvent(event);
}

void TLxButtonGroup::focusInEvent(QFocusEvent* event) {
  QWidget::focusInEvent(event);
  LxEnter();
}

void TLxButtonGroup::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  LxExit();
}

bool TLxButtonGroup::event(QEvent* event) {
  if (event->type() == QEvent::Leave) CMMouseExit();
  return QWidget::event(event);
}

namespace LxButtonGroupBox {
void Register() {
  RegisterComponents(
      QStringLiteral("Quarnel"),
      {{QStringLiteral("TLxButtonGroup"), QStringLiteral("lxcomp/LxButtonGroupBox.h"),
        QStringLiteral("Frame that moves among its speed buttons by keyboard"),
        [](QWidget* parent) -> QWidget* { return new TLxButtonGroup(parent); }}});
}
}  // namespace LxButtonGroupBox

}  // namespace lx
