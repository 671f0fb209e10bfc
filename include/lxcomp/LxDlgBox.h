// The box dialog: a rotated rectangle by centre, length and width in micrometres, its angle in
// degrees, and the layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgBox;
}

namespace lx {

// Lengths in nanometres, the angle in degrees; Layer is the Number of the chosen layer of Layers.
struct BoxSettings {
  double X;
  double Y;
  double Length;
  double Width;
  double Angle;  // degrees, not scaled
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgBox : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgBox(QWidget* owner = nullptr);
  ~TDlgBox() override;

  void DlgInit(BoxSettings* settings);
  // Reads the fields in order; the first unreadable one is reported and nothing is written.
  void OkButtonClick(QObject* sender = nullptr) override;

 private:
  std::unique_ptr<Ui::TDlgBox> ui_;
  BoxSettings* settings_ = nullptr;
};

// Opens the dialog on the record; true when the user confirmed and the record was written.
bool DoBoxDlg(BoxSettings* settings);

}  // namespace lx
