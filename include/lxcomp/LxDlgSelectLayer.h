// The layer picker: one layer chosen from the host's list.
#pragma once

#include <memory>

#include "lxcomp/LxDlgBase.h"
#include "lxcomp/LxLayer.h"

namespace Ui {
class TLxDlgSelectLayer;
}

namespace lx {

// Picks one layer of a list.
class TLxDlgSelectLayer : public TLxDlgBase {
  Q_OBJECT

 public:
  // Preselects the layer whose Number is *number; OK writes the chosen layer's Number (or -1).
  TLxDlgSelectLayer(QWidget* owner, const TK5Layer* layers, int* number);
  ~TLxDlgSelectLayer() override;
  void OkButtonClick(QObject* sender = nullptr) override;

 private:
  std::unique_ptr<Ui::TLxDlgSelectLayer> ui_;
  const TK5Layer* layers_ = nullptr;
  int* number_ = nullptr;
};

// The Number of the layer chosen from `layers` (`current` preselected), or -1 after Cancel.
int DoSelectLayerDlg(const TK5Layer* layers, int current, const wchar_t* caption);

}  // namespace lx
