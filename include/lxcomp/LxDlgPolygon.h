// The polygon dialog: the polygon's nodes in an editable table, with the nodes' area and
// orientation, and the layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

class QTableView;

namespace Ui {
class TDlgPolygon;
}

namespace lx {

class TNodeTableEditor;

// Nodes: NodeCount interleaved x, y pairs in nanometres, allocated with new[]: when the user
// adds nodes, OK frees it with delete[] and puts a new array of 2 * NodeCount + 2 doubles in
// its place.
struct PolygonSettings {
  std::int32_t NodeCount;
  double* Nodes;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgPolygon : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgPolygon(QWidget* owner = nullptr);
  ~TDlgPolygon() override;

  void DlgInit(PolygonSettings* settings);
  // Shows the area of 3 to 2000 nodes in the chosen unit, with the orientation.
  void CalculateArea();
  void ComboUnitsChange(QObject* sender = nullptr);
  // The paste button is enabled while the clipboard's text starts with a readable node.
  void CheckClipboard();
  void WMClipboard();

  // The table's texts and edit steps, by grid row (0 the header, 1 to count the nodes).
  QString AdvGridGetDisplText(int col, int row) const;
  QString AdvGridGetEditText(int col, int row);
  void AdvGridEditChange(const QString& value);
  void AdvGridEditCellDone();
  void AdvGridEditingDone();
  void AdvGridResize();

  void ButtonDeleteClick(QObject* sender = nullptr);
  void ButtonInsertClick(QObject* sender = nullptr);
  void ButtonAddClick(QObject* sender = nullptr);
  void ButtonCopyClick(QObject* sender = nullptr);
  void ButtonPasteClick(QObject* sender = nullptr);
  void OkButtonClick(QObject* sender = nullptr) override;

  // The dialog's own copy of the nodes.
  int GetNodeCount() const;
  const double* GetNodes() const;
  // The area last computed, in square micrometres (0 when none).
  double GetArea() const { return area_; }
  QTableView* Grid() const;

 private:
  void ShowArea();

  std::unique_ptr<Ui::TDlgPolygon> ui_;
  TNodeTableEditor* table_ = nullptr;
  PolygonSettings* settings_ = nullptr;
  double area_ = 0;
};

// Opens the dialog on the record; true when the user confirmed and the record was written.
bool DoPolygonDlg(PolygonSettings* settings);

}  // namespace lx
