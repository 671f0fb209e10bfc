#include "lxcomp/LxAlign.h"

#include <QEvent>
#include <QPointer>
#include <QVariant>
#include <QWidget>

#include <algorithm>

namespace lx {
namespace {

const char* const kAlignProperty = "lxAlign";

// Realigns a parent whenever it is resized or an aligned child shows, hides or changes size.
class AlignWatcher : public QObject {
 public:
  using QObject::QObject;
  bool eventFilter(QObject* watched, QEvent* event) override {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (!widget) return false;
    switch (event->type()) {
      case QEvent::Resize:
        if (widget->isWindow() || GetWidgetAlign(widget) == alNone) {
          RealignChildren(widget);
        } else if (widget->parentWidget()) {
          RealignChildren(widget->parentWidget());
          RealignChildren(widget);
        }
        break;
      case QEvent::Show:
      case QEvent::Hide:
        if (widget->parentWidget()) RealignChildren(widget->parentWidget());
        break;
      default:
        break;
    }
    return false;
  }
};

AlignWatcher* Watcher() {
  static QPointer<AlignWatcher> watcher;
  if (!watcher) watcher = new AlignWatcher();
  return watcher;
}

void Watch(QWidget* widget) {
  if (!widget) return;
  widget->removeEventFilter(Watcher());
  widget->installEventFilter(Watcher());
}

}  // namespace

void SetWidgetAlign(QWidget* widget, TAlign align) {
  if (!widget) return;
  widget->setProperty(kAlignProperty, static_cast<int>(align));
  Watch(widget);
  Watch(widget->parentWidget());
  if (widget->parentWidget()) RealignChildren(widget->parentWidget());
}

TAlign GetWidgetAlign(const QWidget* widget) {
  if (!widget) return alNone;
  const QVariant value = widget->property(kAlignProperty);
  const int code = value.isValid() ? value.toInt() : 0;
  return code >= alNone && code <= alCustom ? static_cast<TAlign>(code) : alNone;
}

void RealignChildren(QWidget* parent) {
  static int depth = 0;
  if (!parent || depth > 2) return;
  ++depth;
  QRect client = parent->contentsRect();
  const TAlign order[] = {alTop, alBottom, alLeft, alRight, alClient};
  for (TAlign align : order) {
    for (QObject* object : parent->children()) {
      auto* child = qobject_cast<QWidget*>(object);
      if (!child || child->isWindow() || GetWidgetAlign(child) != align) continue;
      const QRect before = client;
      QRect place;
      switch (align) {
        case alTop:
          place = QRect(client.left(), client.top(), client.width(), child->height());
          client.setTop(client.top() + child->height());
          break;
        case alBottom:
          place = QRect(client.left(), client.bottom() + 1 - child->height(), client.width(),
                        child->height());
          client.setBottom(client.bottom() - child->height());
          break;
        case alLeft:
          place = QRect(client.left(), client.top(), child->width(), client.height());
          client.setLeft(client.left() + child->width());
          break;
        case alRight:
          place = QRect(client.right() + 1 - child->width(), client.top(), child->width(),
                        client.height());
          client.setRight(client.right() - child->width());
          break;
        default:
          place = client;
          break;
      }
      place.setWidth(std::max(0, place.width()));
      place.setHeight(std::max(0, place.height()));
      // A hidden child is placed where it would appear, so that it can still be found by
      // position (a dock that is empty and hidden accepts toolbars there), but takes no room.
      if (child->isHidden()) client = before;
      if (child->geometry() != place) child->setGeometry(place);
    }
  }
  --depth;
}

}  // namespace lx
