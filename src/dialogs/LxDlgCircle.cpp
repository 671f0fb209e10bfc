#include "lxcomp/LxDlgCircle.h"

#include "lxcomp/LxDialogs.h"
#include "lxcomp/LxMisc.h"
#include "ui_LxDlgCircle.h"

namespace lx {

TDlgCircle::TDlgCircle(QWidget* owner) : TLxDlgBase(owner), ui_(new Ui::TDlgCircle) {
  ui_->setupUi(ClientArea());
  setObjectName(QStringLiteral("DlgCircle"));
  setWindowTitle(QStringLiteral("Circle properties..."));
  SetHelpContext(4040);
  UseLxExit({ui_->EditX, ui_->EditY, ui_->EditR});
  layout()->setSizeConstraint(QLayout::SetFixedSize);
}

TDlgCircle::~TDlgCircle() = default;

void TDlgCircle::DlgInit(CircleSettings* settings) {
  settings_ = settings;
  if (!settings) return;
  PrintMicrons(settings->X, ui_->EditX);
  PrintMicrons(settings->Y, ui_->EditY);
  PrintMicrons(settings->Radius, ui_->EditR);
  FillComboBoxExWithLayers(ui_->LayerCombo, settings->Layers, settings->Layer);
}

void TDlgCircle::OkButtonClick(QObject*) {
  if (!settings_) {
    done(mrOk);
    return;
  }
  double x = 0, y = 0, radius = 0;
  if (ReadCoordinate(ui_->EditX, &x) || ReadCoordinate(ui_->EditY, &y) ||
      ReadCoordinate(ui_->EditR, &radius))
    return;
  settings_->X = x;
  settings_->Y = y;
  settings_->Radius = radius;
  if (const int layer = GetLayerIndex(ui_->LayerCombo, settings_->Layers); layer >= 0)
    settings_->Layer = layer;
  done(mrOk);
}

bool DoCircleDlg(CircleSettings* settings) {
  return RunModal<TDlgCircle>(settings);
}

}  // namespace lx
