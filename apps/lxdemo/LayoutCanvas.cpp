#include "LayoutCanvas.h"

#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>

#include <cmath>

#include "SampleLayout.h"
#include "lxcomp/LxPlatform.h"

LayoutCanvas::LayoutCanvas(SampleLayout& layout, QWidget* parent)
    : QWidget(parent), layout_(layout) {
  setMouseTracking(true);
  setMinimumSize(320, 240);
  setAutoFillBackground(true);
  setBackgroundRole(QPalette::Base);
}

QPointF LayoutCanvas::ToLayout(QPointF p) const {
  return {(p.x() - origin_.x()) / scale_, (origin_.y() - p.y()) / scale_};
}

QPointF LayoutCanvas::ToWidget(QPointF p) const {
  return {origin_.x() + p.x() * scale_, origin_.y() - p.y() * scale_};
}

void LayoutCanvas::ZoomToFit() {
  QRectF bounds;
  for (const auto& o : layout_.Objects())
    for (const auto& n : o.nodes)
      bounds |= QRectF(n, QSizeF(1, 1)).adjusted(-o.radius, -o.radius, o.radius, o.radius);
  if (bounds.isEmpty() || width() < 2 || height() < 2) return;
  bounds.adjust(-bounds.width() * 0.08, -bounds.height() * 0.08, bounds.width() * 0.08,
                bounds.height() * 0.08);
  scale_ = std::min(width() / bounds.width(), height() / bounds.height());
  origin_ = {(width() - bounds.width() * scale_) / 2 - bounds.left() * scale_,
             (height() + bounds.height() * scale_) / 2 + bounds.top() * scale_};
  update();
}

void LayoutCanvas::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // Grid dots every 10 micrometres where they are at least 8 pixels apart.
  const double step = 10000 * scale_;
  if (step >= 8) {
    painter.setPen(palette().color(QPalette::Mid));
    const QPointF first = ToLayout({0, 0});
    for (double x = std::floor(first.x() / 10000) * 10000; ToWidget({x, 0}).x() < width();
         x += 10000)
      for (double y = std::ceil(first.y() / 10000) * 10000; ToWidget({0, y}).y() < height();
           y -= 10000)
        painter.drawPoint(ToWidget({x, y}));
  }
  DrawObjects(painter);
}

namespace {

// A layer's fill pattern and outline style as the layout view draws them.
Qt::BrushStyle BrushOfFillStyle(int fillStyle) {
  static constexpr Qt::BrushStyle patterns[] = {
      Qt::HorPattern,   Qt::VerPattern,       Qt::FDiagPattern, Qt::BDiagPattern,
      Qt::CrossPattern, Qt::DiagCrossPattern, Qt::NoBrush};
  return fillStyle >= 0 && fillStyle < 7 ? patterns[fillStyle] : Qt::SolidPattern;
}

Qt::PenStyle PenOfLineStyle(int lineStyle) {
  static constexpr Qt::PenStyle pens[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine,
                                          Qt::DashDotDotLine};
  return lineStyle >= 0 && lineStyle < 5 ? pens[lineStyle] : Qt::SolidLine;
}

}  // namespace

void LayoutCanvas::DrawObjects(QPainter& painter) const {
  for (const auto& o : layout_.Objects()) {
    const auto* layer = layout_.Layer(o.layer);
    const lx::TK5Layer* record = layout_.LayerRecord(o.layer);
    const QColor color =
        record ? lx::ToQColor(record->LineColor) : (layer ? layer->color : QColor(Qt::gray));
    QColor fill = record ? lx::ToQColor(record->FillColor) : color;
    fill.setAlpha(record && record->FillStyle >= 0 ? 255 : 90);
    painter.setPen(QPen(color, 1.5, record ? PenOfLineStyle(record->LineStyle) : Qt::SolidLine));
    painter.setBrush(QBrush(fill, record ? BrushOfFillStyle(record->FillStyle) : Qt::SolidPattern));
    QPolygonF poly;
    for (const auto& n : o.nodes)
      poly << ToWidget(n);
    switch (o.kind) {
      case SampleObject::Rectangle:
        if (poly.size() == 2) painter.drawRect(QRectF(poly[0], poly[1]).normalized());
        break;
      case SampleObject::Polygon:
        painter.drawPolygon(poly);
        break;
      case SampleObject::Wire:
      case SampleObject::Arc: {
        QPen pen(fill, std::max(1.0, o.width * scale_), Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin);
        painter.setPen(pen);
        painter.drawPolyline(poly);
        painter.setPen(QPen(color, 1));
        painter.drawPolyline(poly);
        break;
      }
      case SampleObject::Circle:
        if (!poly.isEmpty()) painter.drawEllipse(poly[0], o.radius * scale_, o.radius * scale_);
        break;
      case SampleObject::Ring: {
        if (poly.isEmpty()) break;
        QPainterPath path;
        path.addEllipse(poly[0], o.radius * scale_, o.radius * scale_);
        const double inner = std::max(0.0, o.radius - o.width) * scale_;
        path.addEllipse(poly[0], inner, inner);
        painter.drawPath(path);
        break;
      }
      case SampleObject::Box: {
        if (poly.isEmpty()) break;
        painter.save();
        painter.translate(poly[0]);
        painter.rotate(-o.angle);
        const QSizeF size(o.length * scale_, o.width * scale_);
        painter.drawRect(QRectF(QPointF(-size.width() / 2, -size.height() / 2), size));
        painter.restore();
        break;
      }
    }
  }
}

void LayoutCanvas::wheelEvent(QWheelEvent* event) {
  const double factor = std::pow(1.0015, event->angleDelta().y());
  const QPointF at = event->position();
  const QPointF fixed = ToLayout(at);
  scale_ = std::clamp(scale_ * factor, 1e-6, 10.0);
  origin_ = {at.x() - fixed.x() * scale_, at.y() + fixed.y() * scale_};
  update();
}

void LayoutCanvas::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton || event->button() == Qt::RightButton) {
    panning_ = true;
    panStart_ = event->position();
    setCursor(Qt::ClosedHandCursor);
  }
}

void LayoutCanvas::mouseMoveEvent(QMouseEvent* event) {
  if (panning_) {
    origin_ += event->position() - panStart_;
    panStart_ = event->position();
    update();
  }
  emit CursorMoved(ToLayout(event->position()));
}

void LayoutCanvas::mouseReleaseEvent(QMouseEvent*) {
  panning_ = false;
  unsetCursor();
}

void LayoutCanvas::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const int index = layout_.ObjectAt(ToLayout(event->position()), 4 / scale_);
  if (index >= 0) emit ObjectActivated(index);
}

void LayoutCanvas::resizeEvent(QResizeEvent*) {
  if (!fitted_) {
    fitted_ = true;
    ZoomToFit();
  }
}
