// The wire dialog: the wire's nodes in an editable table with its total length, its width,
// end style and layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgNodeTable.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgWire;
}

namespace lx {

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

class TDlgWire : public TLxDlgNodeTable {
  Q_OBJECT

 public:
  explicit TDlgWire(QWidget* owner = nullptr);
  ~TDlgWire() override;

  void DlgInit(WireSettings* settings);
  // Shows the sum of the segment lengths in micrometres.
  void CalculateLength();

  void OkButtonClick(QObject* sender = nullptr) override;

 protected:
  void NodesChanged() override { CalculateLength(); }

 private:
  std::unique_ptr<Ui::TDlgWire> ui_;
  WireSettings* settings_ = nullptr;
};

bool DoWireDlg(WireSettings* settings);

}  // namespace lx
