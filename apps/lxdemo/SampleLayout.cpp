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
  SampleObject ring;
  ring.kind = SampleObject::Ring;
  ring.layer = 3;
  ring.nodes = {{85000, 40000}};
  ring.radius = 9000;
  ring.width = 3000;
  ring.segments = 32;
  objects_.push_back(ring);
  SampleObject box;
  box.kind = SampleObject::Box;
  box.layer = 2;
  box.nodes = {{85000, 10000}};
  box.length = 16000;
  box.width = 6000;
  box.angle = 30;
  objects_.push_back(box);
  SampleObject small;
  small.kind = SampleObject::Circle;
  small.layer = 1;
  small.nodes = {{50000, 45000}};
  small.radius = 2500;
  objects_.push_back(small);
  BuildLayerList();
}

// One layer record per sample layer, linked in the same order, each with its own fill pattern.
void SampleLayout::BuildLayerList() {
  const char fillStyles[] = {2, -1, 3, 5};
  layerRecords_.clear();
  for (size_t i = 0; i < layers_.size(); ++i) {
    const SampleLayer& layer = layers_[i];
    auto record = std::make_unique<lx::TK5Layer>(layer.number, layer.number, 0, layer.name,
                                                 lx::FromQColor(layer.color), -1,
                                                 fillStyles[i % sizeof fillStyles], 0, false);
    if (!layerRecords_.empty()) layerRecords_.back()->Next = record.get();
    layerRecords_.push_back(std::move(record));
  }
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
