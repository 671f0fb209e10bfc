// The circle dialog: centre and radius in micrometres, and the layer.
#pragma once

#include <cstdint>
#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TDlgCircle;
}

namespace lx {

// Lengths in nanometres; Layer is the Number of the chosen layer of Layers.
struct CircleSettings {
  double X;
  double Y;
  double Radius;
  std::int32_t Layer;
  const TK5Layer* Layers;
};

class TDlgCircle : public TLxDlgBase {
  Q_OBJECT

 public:
  explicit TDlgCircle(QWidget* owner = nullptr);
  ~TDlgCircle() override;

  void DlgInit(CircleSettings* settings);
  // Reads the fields in order; the first unreadable one is reported and nothing is written.
  void OkButtonClick(QObject* sender = nullptr) override;

 private:
  std::unique_ptr<Ui::TDlgCircle> ui_;
  CircleSettings* settings_ = nullptr;
};

// Opens the dialog on the record; true when the user confirmed and the record was written.
bool DoCircleDlg(CircleSettings* settings);

}  // namespace lx
