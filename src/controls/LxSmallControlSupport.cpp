#include "controls/LxSmallControlSupport.h"

#include <QKeyEvent>
#include <QList>
#include <QPainter>
#include <QStyle>
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
  if (rect.width() < 2 || rect.height() < 2) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(widget->palette().color(QPalette::Highlight), 1.0, Qt::DotLine));
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
  painter.restore();
}

void DrawHotTint(QPainter& painter, const QWidget* widget, const QRect& rect) {
  if (rect.width() < 2 || rect.height() < 2) return;
  QColor tint = widget->palette().color(QPalette::Highlight);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  tint.setAlpha(150);
  painter.setPen(QPen(tint, 1.0));
  tint.setAlpha(45);
  painter.setBrush(tint);
  painter.drawRoundedRect(QRectF(rect).adjusted(0.5, 0.5, -0.5, -0.5), 2.0, 2.0);
  painter.restore();
}

}  // namespace lx::controls
