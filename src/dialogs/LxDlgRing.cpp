#include "lxcomp/LxDlgRing.h"

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgRing.h"

namespace lx {

TDlgRing::TDlgRing(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgRing) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgRing"));
  setWindowTitle(QStringLiteral("Ring properties..."));
  SetHelpContext(4055);
  UseLxExit({ui_->EditX, ui_->EditY, ui_->EditR, ui_->EditW, ui_->EditNum});
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgRing::~TDlgRing() = default;

void TDlgRing::DlgInit(RingSettings* settings) {
  settings_ = settings;
  if (!settings) return;
  PrintMicrons(settings->X, ui_->EditX);
  PrintMicrons(settings->Y, ui_->EditY);
  PrintMicrons(settings->Radius, ui_->EditR);
  PrintMicrons(settings->Width, ui_->EditW);
  PrintNumber(settings->Segments, ui_->EditNum);
  FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
}

void TDlgRing::OkButtonClick(QObject*) {
  if (!settings_) {
    done(mrOk);
    return;
  }
  double x = 0, y = 0, radius = 0, width = 0;
  int segments = 0;
  if (ReadCoordinate(ui_->EditX, &x) || ReadCoordinate(ui_->EditY, &y) ||
      ReadCoordinate(ui_->EditR, &radius) || ReadCoordinate(ui_->EditW, &width) ||
      ReadNumber(ui_->EditNum, &segments))
    return;
  settings_->X = x;
  settings_->Y = y;
  settings_->Radius = radius;
  settings_->Width = width;
  settings_->Segments = segments;
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoRingDlg(RingSettings* settings) {
  return RunModal<TDlgRing>(settings);
}

}  // namespace lx
