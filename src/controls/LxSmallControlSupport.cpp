#include "controls/LxSmallControlSupport.h"

#include <QKeyEvent>
#include <QList>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QWidget>

#include <algorithm>

namespace lx::controls {
namespace {

// The parent's child widgets in focus-chain order.
QList<QWidget*> TabSiblings(const QWidget* widget) {
  QWidget* parent = widget->parentWidget();
  if (!parent) return {const_cast<QWidget*>(widget)};
  QList<QWidget*> siblings;
  for (QWidget* it = parent->nextInFocusChain(); it && it != parent; it = it->nextInFocusChain())
    if (it->parentWidget() == parent && !siblings.contains(it)) siblings.append(it);
  return siblings;
}

}  // namespace

bool TabStopOf(const QWidget* widget) {
  return (widget->focusPolicy() & Qt::TabFocus) != 0;
}

void SetTabStopOf(QWidget* widget, bool stop) {
  widget->setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
}

int TabOrderOf(const QWidget* widget) {
  return std::max(0, static_cast<int>(TabSiblings(widget).indexOf(widget)));
}

void SetTabOrderOf(QWidget* widget, int order) {
  QList<QWidget*> siblings = TabSiblings(widget);
  siblings.removeAll(widget);
  if (siblings.isEmpty()) return;
  siblings.insert(std::clamp(order, 0, static_cast<int>(siblings.size())), widget);
  for (int i = 1; i < siblings.size(); ++i)
    QWidget::setTabOrder(siblings[i - 1], siblings[i]);
}

bool IsDialogKey(const QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return true;
    default:
      return false;
  }
}

QColor ButtonFace(const QWidget* widget) {
  return widget->palette().color(QPalette::Window);
}

void DrawFocusRect(QPainter& painter, const QWidget* widget, const QRect& rect) {
  QStyleOptionFocusRect option;
  option.initFrom(widget);
  option.rect = rect;
  option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
  option.backgroundColor = ButtonFace(widget);
  widget->style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, widget);
}

}  // namespace lx::controls
