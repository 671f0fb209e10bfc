// The polygon dialog: the polygon's nodes in an editable table, with the nodes' area and
// orientation, and the layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgNodeTable.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgPolygon;
}

namespace lx {

// Nodes: NodeCount interleaved x, y pairs in nanometres, allocated with new[]: when the user
// adds nodes, OK frees it with delete[] and puts a new array of 2 * NodeCount + 2 doubles in
// its place.
struct PolygonSettings {
  std::int32_t NodeCount;
  double* Nodes;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgPolygon : public TLxDlgNodeTable {
  Q_OBJECT

 public:
  explicit TDlgPolygon(QWidget* owner = nullptr);
  ~TDlgPolygon() override;

  void DlgInit(PolygonSettings* settings);
  // Shows the area of 3 to 2000 nodes in the chosen unit, with the orientation.
  void CalculateArea();
  void ComboUnitsChange(QObject* sender = nullptr);

  void OkButtonClick(QObject* sender = nullptr) override;

  // The area last computed, in square micrometres (0 when none).
  double GetArea() const { return area_; }

 protected:
  void NodesChanged() override { CalculateArea(); }

 private:
  void ShowArea();

  std::unique_ptr<Ui::TDlgPolygon> ui_;
  PolygonSettings* settings_ = nullptr;
  double area_ = 0;
};

// Opens the dialog on the record; true when the user confirmed and the record was written.
bool DoPolygonDlg(PolygonSettings* settings);

}  // namespace lx
