#include "SampleLayout.h"

#include <QLineF>
#include <QPolygonF>
#include <QRectF>

#include <cmath>

SampleLayout::SampleLayout() {
  layers_ = {{1, "Active", QColor(46, 160, 67)},
             {2, "Poly", QColor(218, 54, 51)},
             {3, "Metal 1", QColor(56, 139, 253)},
             {4, "Via", QColor(163, 113, 247)}};
  auto rect = [](int layer, double x1, double y1, double x2, double y2) {
    SampleObject o;
    o.kind = SampleObject::Rectangle;
    o.layer = layer;
    o.nodes = {{x1, y1}, {x2, y2}};
    return o;
  };
  objects_.push_back(rect(1, 0, 0, 40000, 20000));
  objects_.push_back(rect(3, 5000, 25000, 60000, 32000));
  SampleObject poly;
  poly.kind = SampleObject::Polygon;
  poly.layer = 2;
  poly.nodes = {{45000, 0}, {70000, 0}, {70000, 18000}, {58000, 10000}, {45000, 18000}};
  objects_.push_back(poly);
  SampleObject wire;
  wire.kind = SampleObject::Wire;
  wire.layer = 3;
  wire.width = 2000;
  wire.nodes = {{0, 40000}, {30000, 40000}, {30000, 55000}, {70000, 55000}};
  objects_.push_back(wire);
  SampleObject circle;
  circle.kind = SampleObject::Circle;
  circle.layer = 4;
  circle.nodes = {{15000, 48000}};
  circle.radius = 5000;
  objects_.push_back(circle);
}

const SampleLayer* SampleLayout::Layer(int number) const {
  for (const auto& layer : layers_)
    if (layer.number == number) return &layer;
  return nullptr;
}

namespace {

bool Hits(const SampleObject& o, QPointF p, double tolerance) {
  switch (o.kind) {
    case SampleObject::Rectangle:
      return o.nodes.size() == 2 && QRectF(o.nodes[0], o.nodes[1])
                                        .normalized()
                                        .adjusted(-tolerance, -tolerance, tolerance, tolerance)
                                        .contains(p);
    case SampleObject::Polygon:
      return QPolygonF(QList<QPointF>(o.nodes.begin(), o.nodes.end()))
          .containsPoint(p, Qt::OddEvenFill);
    case SampleObject::Circle:
    case SampleObject::Ring:
    case SampleObject::Box:
      return !o.nodes.empty() && QLineF(o.nodes[0], p).length() <=
                                     std::max({o.radius, o.length / 2, o.width / 2}) + tolerance;
    case SampleObject::Wire:
    case SampleObject::Arc:
      for (size_t i = 1; i < o.nodes.size(); ++i) {
        const QLineF seg(o.nodes[i - 1], o.nodes[i]);
        const QRectF box = QRectF(seg.p1(), seg.p2()).normalized();
        const double grow = o.width / 2 + tolerance;
        if (box.adjusted(-grow, -grow, grow, grow).contains(p)) return true;
      }
      return false;
  }
  return false;
}

}  // namespace

int SampleLayout::ObjectAt(QPointF point, double tolerance) const {
  for (int i = static_cast<int>(objects_.size()) - 1; i >= 0; --i)
    if (Hits(objects_[i], point, tolerance)) return i;
  return -1;
}
