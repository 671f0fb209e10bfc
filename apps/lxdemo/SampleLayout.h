// The demo's layout: a few layers and the objects drawn on them, lengths in nanometres.
#pragma once

#include <QColor>
#include <QPointF>
#include <QString>

#include <memory>
#include <vector>

#include "lxcomp/LxLayer.h"

struct SampleLayer {
  int number = 0;
  QString name;
  QColor color;
};

struct SampleObject {
  enum Kind { Rectangle, Polygon, Wire, Circle, Ring, Box, Arc };
  Kind kind = Rectangle;
  int layer = 0;
  std::vector<QPointF> nodes;  // corners, polygon or wire nodes, or the centre
  double radius = 0;           // circles and rings
  double width = 0;            // rings, wires and boxes
  double length = 0;           // boxes
  double angle = 0;            // boxes, degrees
  int segments = 0;            // rings
  QPointF centre;              // arcs, whose nodes are the drawn segments
};

class SampleLayout {
 public:
  SampleLayout();
  std::vector<SampleLayer>& Layers() { return layers_; }
  std::vector<SampleObject>& Objects() { return objects_; }
  const SampleLayer* Layer(int number) const;
  // The same layers as the library's linked layer list, for the dialogs' layer pickers.
  const lx::TK5Layer* LayerList() const {
    return layerRecords_.empty() ? nullptr : layerRecords_.front().get();
  }
  lx::TK5Layer* LayerList() {
    return layerRecords_.empty() ? nullptr : layerRecords_.front().get();
  }
  // The layer record numbered `number`, or null.
  const lx::TK5Layer* LayerRecord(int number) const {
    for (const lx::TK5Layer* layer = LayerList(); layer; layer = layer->Next)
      if (layer->Number == number) return layer;
    return nullptr;
  }
  // The topmost object under a point (nanometres), or -1.
  int ObjectAt(QPointF point, double tolerance) const;

 private:
  void BuildLayerList();
  std::vector<SampleLayer> layers_;
  std::vector<SampleObject> objects_;
  std::vector<std::unique_ptr<lx::TK5Layer>> layerRecords_;
};
