// The ring dialog: centre, radius and width in micrometres, the number of segments, the layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgRing;
}

namespace lx {

// Lengths in nanometres; Layer is the Number of the chosen layer of Layers.
struct RingSettings {
  double X;
  double Y;
  double Radius;
  double Width;
  std::int32_t Segments;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgRing : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgRing(QWidget* owner = nullptr);
  ~TDlgRing() override;

  void DlgInit(RingSettings* settings);
  // Reads the fields in order; the first unreadable one is reported and nothing is written.
  void OkButtonClick(QObject* sender = nullptr) override;

 private:
  std::unique_ptr<Ui::TDlgRing> ui_;
  RingSettings* settings_ = nullptr;
};

// Opens the dialog on the record; true when the user confirmed and the record was written.
bool DoRingDlg(RingSettings* settings);

}  // namespace lx
