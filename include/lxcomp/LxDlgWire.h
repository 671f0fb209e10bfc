// The wire dialog: the wire's nodes in an editable table with its total length, its width,
// end style and layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

class QTableView;

namespace Ui {
class TDlgWire;
}

namespace lx {

class TNodeTableEditor;

// Nodes as in PolygonSettings (allocated with new[], replaced on OK when the wire grew).
// EndStyle: 0 round, 1 flat, 2 extended. MakeDefault is only written.
struct WireSettings {
  std::int32_t NodeCount;
  double* Nodes;
  double Width;
  std::int32_t EndStyle;
  bool MakeDefault;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgWire : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgWire(QWidget* owner = nullptr);
  ~TDlgWire() override;

  void DlgInit(WireSettings* settings);
  // Shows the sum of the segment lengths in micrometres.
  void CalculateLength();
  void CheckClipboard();
  void WMClipboard();

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

  int GetNodeCount() const;
  const double* GetNodes() const;
  QTableView* Grid() const;

 private:
  std::unique_ptr<Ui::TDlgWire> ui_;
  TNodeTableEditor* table_ = nullptr;
  WireSettings* settings_ = nullptr;
};

bool DoWireDlg(WireSettings* settings);

}  // namespace lx
