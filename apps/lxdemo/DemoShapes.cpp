// The shape dialogs in the demo: double-clicking a rectangle, polygon, wire or arc opens its
// dialog and applies the record; the gallery pictures each dialog in each of its modes.
#include <QLineF>
#include <QPointF>
#include <QToolButton>

#include <cmath>
#include <vector>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "SampleLayout.h"
#include "lxcomp/LxDlgArc.h"
#include "lxcomp/LxDlgPolygon.h"
#include "lxcomp/LxDlgRectangle.h"
#include "lxcomp/LxDlgWire.h"

namespace {

// A node array as a host hands it over: allocated with new[], so that a dialog may replace it.
struct HostNodes {
  explicit HostNodes(const std::vector<QPointF>& points)
      : count(static_cast<int>(points.size())), nodes(new double[2 * points.size() + 2]) {
    for (size_t i = 0; i < points.size(); ++i) {
      nodes[2 * i] = points[i].x();
      nodes[2 * i + 1] = points[i].y();
    }
  }
  ~HostNodes() { delete[] nodes; }
  HostNodes(const HostNodes&) = delete;
  HostNodes& operator=(const HostNodes&) = delete;
  std::vector<QPointF> Points() const {
    std::vector<QPointF> points;
    for (int i = 0; i < count; ++i)
      points.emplace_back(nodes[2 * i], nodes[2 * i + 1]);
    return points;
  }
  std::int32_t count;
  double* nodes;
};

bool EditRectangle(DemoHost& host, SampleObject& object) {
  if (object.nodes.size() != 2) return false;
  lx::RectangleSettings s{
      0, object.nodes[0].x(), object.nodes[0].y(),      object.nodes[1].x(), object.nodes[1].y(),
      0, object.layer,        host.Layout().LayerList()};
  if (!lx::DoRectangleDlg(&s)) return false;
  object.layer = s.Layer;
  if (s.Kind == 1) {  // a turned box: centre, height in X2, width in Y2
    object.kind = SampleObject::Box;
    object.nodes = {{s.X1, s.Y1}};
    object.length = s.Y2;
    object.width = s.X2;
    object.angle = s.Angle;
  } else {
    object.nodes = {{s.X1, s.Y1}, {s.X2, s.Y2}};
  }
  return true;
}

bool EditPolygon(DemoHost& host, SampleObject& object) {
  HostNodes nodes(object.nodes);
  lx::PolygonSettings s{nodes.count, nodes.nodes, object.layer, host.Layout().LayerList()};
  const bool ok = lx::DoPolygonDlg(&s);
  nodes.count = s.NodeCount;
  nodes.nodes = s.Nodes;  // the dialog may have put a larger array in its place
  if (!ok) return false;
  object.nodes = nodes.Points();
  object.layer = s.Layer;
  return true;
}

bool EditWire(DemoHost& host, SampleObject& object) {
  HostNodes nodes(object.nodes);
  lx::WireSettings s{
      nodes.count, nodes.nodes, object.width, 0, false, object.layer, host.Layout().LayerList()};
  const bool ok = lx::DoWireDlg(&s);
  nodes.count = s.NodeCount;
  nodes.nodes = s.Nodes;
  if (!ok) return false;
  object.nodes = nodes.Points();
  object.width = s.Width;
  object.layer = s.Layer;
  host.ShowStatus(QStringLiteral("Wire end style %1%2")
                      .arg(s.EndStyle)
                      .arg(s.MakeDefault ? QStringLiteral(", made the default") : QString()));
  return true;
}

// The arc's segments from its centre, begin and end: the radius runs from the begin radius to
// the end radius, the angle from the begin angle round in the arc's direction.
std::vector<QPointF> ArcNodes(const lx::ArcSettings& s) {
  const QPointF centre(s.CentreX, s.CentreY);
  const QPointF begin = QPointF(s.BeginX, s.BeginY) - centre;
  const QPointF end = QPointF(s.EndX, s.EndY) - centre;
  const double rb = std::hypot(begin.x(), begin.y());
  const double re = s.ConstantRadius ? rb : std::hypot(end.x(), end.y());
  const double ab = std::atan2(begin.y(), begin.x());
  double sweep = std::atan2(end.y(), end.x()) - ab;
  if (s.Clockwise && sweep > 0) sweep -= 2 * M_PI;
  if (!s.Clockwise && sweep < 0) sweep += 2 * M_PI;
  std::vector<QPointF> nodes;
  const int segments = std::max(1, s.Segments);
  for (int i = 0; i <= segments; ++i) {
    const double t = double(i) / segments;
    const double r = rb + (re - rb) * t;
    nodes.push_back(centre + r * QPointF(std::cos(ab + sweep * t), std::sin(ab + sweep * t)));
  }
  return nodes;
}

bool EditArc(DemoHost& host, SampleObject& object) {
  if (object.nodes.size() < 2) return false;
  const QPointF begin = object.nodes.front();
  const QPointF end = object.nodes.back();
  const QPointF second = object.nodes[1];
  const QPointF c = object.centre;
  // The direction is the turn from the begin node to the next one.
  const double turn =
      (begin.x() - c.x()) * (second.y() - c.y()) - (begin.y() - c.y()) * (second.x() - c.x());
  const bool constant = std::fabs(QLineF(c, begin).length() - QLineF(c, end).length()) < 1e-6;
  lx::ArcSettings s{c.x(),
                    c.y(),
                    begin.x(),
                    begin.y(),
                    end.x(),
                    end.y(),
                    turn < 0,
                    constant,
                    static_cast<std::int32_t>(object.nodes.size() - 1),
                    object.layer,
                    host.Layout().LayerList()};
  if (!lx::DoArcDlg(&s)) return false;
  object.centre = {s.CentreX, s.CentreY};
  object.nodes = ArcNodes(s);
  object.layer = s.Layer;
  return true;
}

// Records for the gallery pictures; they outlive the dialogs that show them.
const lx::TK5Layer* GalleryLayers() {
  static lx::TK5Layer metal(3, 3, 0, QStringLiteral("Metal 1"), 0xfd8b38, -1, 3, 0, false);
  static lx::TK5Layer poly(2, 2, 0, QStringLiteral("Poly"), 0x3336da, -1, -1, 0, false);
  static lx::TK5Layer active(1, 1, 0, QStringLiteral("Active"), 0x43a02e, -1, 2, 1, false);
  active.Next = &poly;
  poly.Next = &metal;
  return &active;
}

QWidget* RectangleInMode(const char* button) {
  static lx::RectangleSettings record;
  const bool box = QString::fromLatin1(button) == "ButtonBox";
  record = box ? lx::RectangleSettings{1, 25000, 12500, 40000, 20000, 30, 2, GalleryLayers()}
               : lx::RectangleSettings{0, 5000, 2500, 45000, 22500, 0, 2, GalleryLayers()};
  auto* dialog = new lx::TDlgRectangle(nullptr);
  dialog->DlgInit(&record);
  if (auto* mode = dialog->findChild<QToolButton*>(QString::fromLatin1(button))) mode->click();
  return dialog;
}

double* GalleryNodes(int count) {
  static double nodes[2 * 12 + 2];
  for (int i = 0; i < count; ++i) {
    const double a = 2 * M_PI * i / count;
    nodes[2 * i] = std::round(20000 * std::cos(a)) + 0.0;  // no negative zero
    nodes[2 * i + 1] = std::round(12500 * std::sin(a)) + 0.0;
  }
  return nodes;
}

QWidget* PolygonPicture(QWidget*) {
  static lx::PolygonSettings record;
  record = {8, GalleryNodes(8), 2, GalleryLayers()};
  auto* dialog = new lx::TDlgPolygon(nullptr);
  dialog->DlgInit(&record);
  return dialog;
}

QWidget* WirePicture(QWidget*) {
  static double nodes[] = {0, 0, 30000, 0, 30000, 15000, 72500, 15000, 72500, 40000, 0, 0};
  static lx::WireSettings record;
  record = {5, nodes, 2000, 1, false, 3, GalleryLayers()};
  auto* dialog = new lx::TDlgWire(nullptr);
  dialog->DlgInit(&record);
  return dialog;
}

QWidget* ArcInMode(const char* button) {
  static lx::ArcSettings record;
  record = {10000, 10000, 22000, 10000, 10000, 25000, false, false, 24, 3, GalleryLayers()};
  auto* dialog = new lx::TDlgArc(nullptr);
  dialog->DlgInit(&record);
  if (auto* mode = dialog->findChild<QToolButton*>(QString::fromLatin1(button))) mode->click();
  return dialog;
}

}  // namespace

LXDEMO_REGISTER(Shapes) {
  auto& registry = DemoRegistry::Instance();
  registry.Add(DemoObjectEditor{SampleObject::Rectangle, EditRectangle});
  registry.Add(DemoObjectEditor{SampleObject::Polygon, EditPolygon});
  registry.Add(DemoObjectEditor{SampleObject::Wire, EditWire});
  registry.Add(DemoObjectEditor{SampleObject::Arc, EditArc});

  registry.Add(GalleryEntry{QStringLiteral("rectangle-dialog-corners"),
                            [](QWidget*) { return RectangleInMode("ButtonCorners"); }});
  registry.Add(GalleryEntry{QStringLiteral("rectangle-dialog-width-height"),
                            [](QWidget*) { return RectangleInMode("ButtonWH"); }});
  registry.Add(GalleryEntry{QStringLiteral("rectangle-dialog-box"),
                            [](QWidget*) { return RectangleInMode("ButtonBox"); }});
  registry.Add(GalleryEntry{QStringLiteral("polygon-dialog"), PolygonPicture});
  registry.Add(GalleryEntry{QStringLiteral("wire-dialog"), WirePicture});
  registry.Add(GalleryEntry{QStringLiteral("arc-dialog-nodes"),
                            [](QWidget*) { return ArcInMode("BtnNodes"); }});
  registry.Add(GalleryEntry{QStringLiteral("arc-dialog-radii-angles"),
                            [](QWidget*) { return ArcInMode("BtnAngles"); }});
}
