// The arc dialog: an arc by its centre and its begin and end nodes, or by its centre, radii
// and angles, with its direction, constant or variable radius, segment count and layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgArc;
}

namespace lx {

// Lengths in nanometres. Segments is at least 1 after OK.
struct ArcSettings {
  double CentreX;
  double CentreY;
  double BeginX;
  double BeginY;
  double EndX;
  double EndY;
  bool Clockwise;
  bool ConstantRadius;
  std::int32_t Segments;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgArc : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgArc(QWidget* owner = nullptr);
  ~TDlgArc() override;

  void DlgInit(ArcSettings* settings);
  // Radii and angles from the working centre and nodes, into their fields.
  void CalcRandA();
  // Begin and end nodes from the centre field and the working radii and angles.
  void CalcNodes();
  // Puts the pressed mode button down and shows that mode's fields.
  void ButtonNodesClick(QObject* sender = nullptr);
  void ShowHideItems(bool nodesMode);
  void RB_CRClick(QObject* sender = nullptr);
  void RB_VRClick(QObject* sender = nullptr);
  void OkButtonClick(QObject* sender = nullptr) override;

  bool NodesMode() const;

 private:
  std::unique_ptr<Ui::TDlgArc> ui_;
  ArcSettings* settings_ = nullptr;
  // The working copy: centre, begin and end nodes (nanometres), radii and angles (degrees).
  double cx_ = 0, cy_ = 0, bx_ = 0, by_ = 0, ex_ = 0, ey_ = 0;
  double rb_ = 0, re_ = 0, ab_ = 0, ae_ = 0;
};

bool DoArcDlg(ArcSettings* settings);

}  // namespace lx
