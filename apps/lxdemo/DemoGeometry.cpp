// Analysis > Polygon area and orientation: the geometry kernel on the sample layout's polygons.
#include <QMessageBox>
#include <QStringList>

#include <vector>

#include "DemoHost.h"
#include "DemoRegistry.h"
#include "lxcomp/LxPolygon.h"

namespace {

// The polygon's nodes as the kernel takes them: interleaved x, y with the first node repeated.
std::vector<double> ClosedNodes(const SampleObject& polygon) {
  std::vector<double> nodes;
  for (const QPointF& p : polygon.nodes)
    nodes.insert(nodes.end(), {p.x(), p.y()});
  if (!polygon.nodes.empty()) nodes.insert(nodes.end(), {nodes[0], nodes[1]});
  return nodes;
}

QString Describe(DemoHost& host, const SampleObject& polygon, int number) {
  const std::vector<double> nodes = ClosedNodes(polygon);
  const auto count = static_cast<unsigned>(nodes.size() / 2);
  const SampleLayer* layer = host.Layout().Layer(polygon.layer);
  const QString layerName = layer ? layer->name : QString::number(polygon.layer);
  if (lx::SelfIntersectingPolygon(nodes.data(), count))
    return QStringLiteral("Polygon %1 (%2, %3 nodes): self-intersecting, no area")
        .arg(number)
        .arg(layerName)
        .arg(polygon.nodes.size());
  return QStringLiteral("Polygon %1 (%2, %3 nodes): %4 µm², %5")
      .arg(number)
      .arg(layerName)
      .arg(polygon.nodes.size())
      .arg(lx::polygonarea(nodes.data(), count), 0, 'f', 3)
      .arg(lx::polygon_is_clockwise(nodes.data(), count) ? QStringLiteral("clockwise")
                                                         : QStringLiteral("counter-clockwise"));
}

void AnalysePolygons(DemoHost& host) {
  QStringList lines;
  for (const SampleObject& object : host.Layout().Objects())
    if (object.kind == SampleObject::Polygon) lines << Describe(host, object, lines.size() + 1);
  if (lines.isEmpty()) {
    host.ShowStatus(QStringLiteral("The layout holds no polygons"));
    return;
  }
  host.ShowStatus(lines.first());
  QMessageBox::information(&host, QStringLiteral("Polygon analysis"), lines.join('\n'));
}

}  // namespace

LXDEMO_REGISTER(Geometry) {
  DemoRegistry::Instance().Add(DemoCommand{
      QStringLiteral("Analysis"), QStringLiteral("Polygon area and orientation"), AnalysePolygons});
}
